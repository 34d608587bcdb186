// The controls of the bank screen as the player sees them.
#include <string>

#include "core/ohjaimet.h"
#include "core/peli.h"
#include "taulut/pankki.h"

namespace tanhua {

namespace {
const PankkiRuutuTila& R(const Peli& p) { return p.pankkiruutu; }
// While the market report lies over the bank nothing of the bank can be clicked.
bool Vapaa(const Peli& p) { return p.näkymä.PankkiKäytössä; }

// A control of a sheet: out of sight while its sheet is hidden.
Ohjain Lapulla(bool lappu, std::string arvo, bool käytössä = true) {
    return lappu ? Näkyvä(std::move(arvo), käytössä) : Piilossa();
}
}  // namespace

void PankkiruudunOhjaimet(Ohjainluettelo& l) {
    const RuudunOhjaimet yksi(l, "Pankki");
    auto nappi = [&yksi](const char* nimi, const char* teksti) {
        yksi(nimi, [teksti](const Peli& p) { return Näkyvä(teksti, Vapaa(p)); });
    };
    yksi("lainaz", [](const Peli& p) { return Näkyvä(R(p).lainaz); });
    yksi("tiliz", [](const Peli& p) { return Näkyvä(R(p).tiliz); });
    yksi("Maksuaikaz", [](const Peli& p) { return Näkyvä(R(p).Maksuaikaz); });
    nappi("Command1", "Takaisin");
    nappi("Command2", "Ota lainaa");
    nappi("Command3", "Maksa lainat");
    nappi("Command4", "Talleta rahaa");
    nappi("Command5", "Nosta talletukset");
    nappi("Command6", "Pörssikurssit");
    nappi("vaku", "Vakuutukset");

    // The loan and deposit sheet; a deposit hides the period controls.
    yksi("Lappu", [](const Peli& p) { return Lapulla(R(p).Lappu, R(p).otsikko); });
    yksi("otsikko", [](const Peli& p) { return Lapulla(R(p).Lappu, R(p).otsikko); });
    yksi("teksti", [](const Peli& p) { return Lapulla(R(p).Lappu, R(p).teksti); });
    yksi("summa", [](const Peli& p) { return Lapulla(R(p).Lappu, R(p).summa, Vapaa(p)); });
    auto aika = [&yksi](const char* nimi, std::function<std::string(const PankkiRuutuTila&)> arvo) {
        yksi(nimi, [arvo](const Peli& p) { return Lapulla(R(p).Lappu && R(p).aikaNäkyvissä, arvo(R(p)), Vapaa(p)); });
    };
    aika("aika", [](const PankkiRuutuTila& r) { return r.aikaz; });
    aika("prossa", [](const PankkiRuutuTila& r) { return r.prossa; });
    aika("Command9", [](const PankkiRuutuTila&) { return "<"; });
    aika("Command10", [](const PankkiRuutuTila&) { return ">"; });
    yksi("Command8", [](const Peli& p) { return Lapulla(R(p).Lappu, "Hyväksy", Vapaa(p) && R(p).Command8); });
    yksi("Command7", [](const Peli& p) { return Lapulla(R(p).Lappu, "Sulje", Vapaa(p)); });

    // The insurance sheet: the boxes and premium labels are the farm's, the sum and pointer text the sheet's.
    yksi("VakuLappu", [](const Peli& p) { return Lapulla(R(p).VakuLappu, std::string(pankkiteksti::VakuOtsikko)); });
    for (std::size_t v = 0; v < VAKUUTUKSIA; ++v) {
        yksi(VAKUUTUSTAULU[v].laatikko, [v](const Peli& p) {
            Ohjain o = Valinta(p.m.Pankki.Vakuutus[v] == 1, R(p).VakuLappu);
            o.käytössä = Vapaa(p);
            return o;
        });
        yksi(VAKUUTUSTAULU[v].maksu, [v](const Peli& p) { return Lapulla(R(p).VakuLappu, p.m.Pankki.Vakumaksu[v]); });
    }
    yksi("Vakusummaz", [](const Peli& p) { return Lapulla(R(p).VakuLappu, R(p).Vakusummaz); });
    yksi("Vakuinfo", [](const Peli& p) { return Lapulla(R(p).VakuLappu, R(p).Vakuinfo, Vapaa(p)); });
    yksi("Command11", [](const Peli& p) { return Lapulla(R(p).VakuLappu, "Sulje", Vapaa(p)); });
}

}  // namespace tanhua
