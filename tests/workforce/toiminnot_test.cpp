// The staff screen as a script and any front end reach it: the list the stars give, and words and
// numbers a script can't type. The controls and the skipped presses are played in the staff scenario.
#include <gtest/gtest.h>

#include <stdexcept>

#include "core/ohjaimet.h"
#include "henkilöstö.h"
#include "sim/skripti.h"

namespace tanhua {
namespace {

std::string Näkyy(const Peli& peli, const std::string& nimi) { return OhjainTekstinä(*LueOhjain(peli, nimi)); }

TEST(StaffControls, StarsOpenTheJobsInTheScreensOrder) {
    struct Tapaus { bool lukitus; Byte tähdet; std::string lista; };
    const std::string perus = "Kirjanpitäjä|Siivooja|Vahtikoira|Nahkuri";
    const std::string yksi = perus + "|Puutarhuri|Metsuri|Mehiläishoitaja|Teurastaja|Mylläri";
    const std::string kaksi = yksi + "|Ompelija|Leipuri|Meijerityöntekijä|Kirvesmies|Tallimestari|Siementäjä|Viinimestari";
    const Tapaus tapaukset[] = {
        {true, 0, perus}, {true, 1, yksi}, {true, 2, kaksi}, {true, 3, kaksi + "|Varastotyöntekijä"},
        {false, 0, kaksi + "|Varastotyöntekijä"},
    };
    for (const Tapaus& c : tapaukset) {
        testi::Aloitettu t;
        t.m.TähtiLukitus = c.lukitus;
        t.m.Tähdet = c.tähdet;
        EXPECT_EQ(Näkyy(t.peli, "Työvoima.Lista"), c.lista) << int(c.tähdet);
    }
}

TEST(StaffScript, MalformedWordsAndNumbersOutOfTheirWidthAreScriptErrors) {
    testi::Aloitettu t;
    t.m.PerusPalkka[Siivooja] = 32000;  // 33000 lies on the slider but not in a wage
    AvaaTyövoima(t.peli);
    const Toimintoluettelo& ops = Toiminnot();
    struct Tapaus { const char* op; std::vector<std::string> a; };
    const Tapaus virheet[] = {
        {"Työvoima.Palkkaa", {"Lypsäjä"}},
        {"Työvoima.Palkka", {"Siivooja", "33000"}},
        {"Työvoima.Palkka", {"Siivooja", "-9223372036854775808"}},
        {"Työvoima.Palkka", {"Siivooja", "99999999999999999999"}},
        {"Työvoima.Palkka", {"Siivooja", "33001"}},
        {"Työvoima.Palkka", {"Siivooja", "abc"}},
        {"Työvoima.Mittari", {"1001"}},
        {"Työvoima.Ylityö", {"Siivooja", "2"}},
        {"Työvoima.Irtisano", {"Siivooja", "0"}},
        {"Työvoima.Palkkaa", {"Siivooja", "4294967297"}},
    };
    for (const Tapaus& c : virheet) EXPECT_THROW(ops.at(c.op).aja(t.peli, c.a), std::runtime_error) << c.op << " " << c.a.back();
    EXPECT_EQ(t.m.Palkka[Siivooja], 3000);
}

}  // namespace
}  // namespace tanhua
