// The runner's staff operations: a job the script names must exist and be on the list.
#include <gtest/gtest.h>

#include <stdexcept>

#include "sim/skripti.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

TEST(StaffScript, UnknownOrLockedJobsAndBadNumbersAreScriptErrors) {
    testi::Testipeli t;
    t.Aloita();  // stars on, none earned
    const Toimintoluettelo& ops = Toiminnot();
    ops.at("Työvoima.Avaa").aja(t.peli, {});
    struct Tapaus { const char* op; std::vector<std::string> a; };
    const Tapaus virheet[] = {
        {"Työvoima.Palkkaa", {"Lypsäjä"}},
        {"Työvoima.Valitse", {"Leipuri"}},  // opens with two stars
        {"Työvoima.Palkka", {"Siivooja", "4001"}},
        {"Työvoima.Palkka", {"Siivooja", "abc"}},
        {"Työvoima.Ylityö", {"Siivooja", "2"}},
        {"Työvoima.Irtisano", {"Siivooja", "0"}},
    };
    for (const Tapaus& c : virheet) EXPECT_THROW(ops.at(c.op).aja(t.peli, c.a), std::runtime_error) << c.op;
    ops.at("Työvoima.Palkka").aja(t.peli, {"Siivooja", "4000"});
    EXPECT_EQ(t.m.Palkka[Siivooja], 4000);
}

}  // namespace
}  // namespace tanhua
