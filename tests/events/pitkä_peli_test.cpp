// A long game under a seeded random strategy: staff, supplies, insurance and random answers to the
// caller. Whatever the events do, no failure is reported and no head count or stock goes below 0.
#include <gtest/gtest.h>

#include <random>
#include <set>
#include <sstream>

#include "core/kentät.h"
#include "sim/skripti.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

constexpr int VUOSIA = 100;

TEST(Soak, AHundredYearsOfRandomPlayLeaveNoFailureAndNothingBelowZero) {
    testi::Väliaikainen kansio;
    Ajuri ajuri(Kansiot{TANHUA_PROGRAM_DIR, kansio.polku() / "Data"});
    std::ostringstream ulos;
    std::mt19937 valinta(29);
    auto yksi = [&](std::initializer_list<const char*> vaihtoehdot) {
        return std::string(vaihtoehdot.begin()[valinta() % vaihtoehdot.size()]);
    };
    for (const char* rivi : {"new Sitkeä Vapaa 1 off", "seed 1234", "set Raha 100000", "set El_Kana 60",
                             "set El_Kukko 3", "set El_Lehmä 12", "set El_Sonni 1", "set Koko_Navetta 200",
                             "set Koko_Siilo 6000", "set Koko_Varasto 3000", "set Laidun 2", "set Metsä 2",
                             "call Työvoima.Palkkaa Vahtikoira 1", "set Pankki.VakuutusPalo 1"})
        ajuri.Rivi(rivi, ulos);
    // The pictures the events showed: a plausible mix, not one family over and over.
    const std::string SATTUMA = "IKKUNA|Kuvat/sattumat/";
    std::set<std::string> kuvat;
    for (int kuukausi = 0; kuukausi < 12 * VUOSIA; ++kuukausi) {
        const std::string työ = yksi({"Siivooja", "Kirjanpitäjä", "Nahkuri", "Metsuri", "Leipuri", "Teurastaja"});
        ajuri.Rivi(yksi({"call Työvoima.Palkkaa ", "call Työvoima.Irtisano "}) + työ + " 1", ulos);
        const std::string tavara = yksi({"Palohälytin", "Varashälytin", "Paimenpoika", "Lypsykone", "UVValot"});
        ajuri.Rivi(yksi({"call Tarvikkeet.Osta ", "call Tarvikkeet.Myy "}) + tavara, ulos);
        ajuri.Rivi("set Pankki.Vakuutus" + yksi({"Palo", "Varkaus", "Eläin", "Työ", "Tarvike"}) + " " +
                       yksi({"0", "1"}), ulos);
        ajuri.Rivi("answer " + yksi({"Kyllä", "Ei"}) + " " + yksi({"Kyllä", "Ei"}), ulos);
        // Feed enough for the herd, so that the events rather than hunger shape the farm.
        ajuri.Rivi("set Var_Rehu 5000", ulos);
        ajuri.Rivi("days 30", ulos);
        for (const std::string& t : ajuri.kanavat().tapahtumat) {
            if (t.rfind(SATTUMA, 0) == 0) kuvat.insert(t.substr(0, t.find('|', SATTUMA.size())));
            ASSERT_NE(t.rfind("VIKA|", 0), 0u) << "month " << kuukausi << ": " << t;
            ASSERT_NE(t.rfind("LAATIKKO|", 0), 0u) << "month " << kuukausi << ": " << t;
        }
        ajuri.kanavat().tapahtumat.clear();
        ajuri.kanavat().vastaukset.clear();
        const Muuttujat& m = ajuri.peli().m;
        for (const auto& laji : m.El)
            for (Long luku : laji) ASSERT_GE(luku, 0) << "month " << kuukausi;
        for (Single varasto : m.Var) ASSERT_GE(varasto, 0) << "month " << kuukausi;
        for (Long työntekijöitä : m.Työ) ASSERT_GE(työntekijöitä, 0) << "month " << kuukausi;
    }
    std::string nähdyt;
    for (const std::string& k : kuvat) nähdyt += k.substr(SATTUMA.size()) + " ";
    EXPECT_GE(kuvat.size(), 12u) << nähdyt;
}

}  // namespace
}  // namespace tanhua
