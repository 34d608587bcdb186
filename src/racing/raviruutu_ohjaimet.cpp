// The controls of the race-betting screen as the player sees them.
#include <string>

#include "../core/ohjaimet.h"
#include "../core/peli.h"
#include "ravit.h"

namespace tanhua {

namespace {
const RaviRuutuTila& R(const Peli& p) { return p.raviruutu; }

// A control of the coupon panel: out of sight while the coupon is hidden.
Ohjain Kupongilla(const Peli& p, std::string arvo) { return R(p).Picture1 ? Näkyvä(std::move(arvo)) : Piilossa(); }
}  // namespace

void RaviruudunOhjaimet(Ohjainluettelo& l) {
    const RuudunOhjaimet yksi(l, "Ravit");
    yksi("Command2", [](const Peli&) { return Näkyvä("Lyö vetoa"); });
    yksi("Command1", [](const Peli&) { return Näkyvä("Sulje"); });

    // The coupon.
    yksi("Picture1", [](const Peli& p) { return Kupongilla(p, R(p).otsikko); });  // the panel shows its heading
    yksi("Vetolaji", [](const Peli& p) { return Kupongilla(p, R(p).Vetolaji); });
    yksi("Command5", [](const Peli& p) { return Kupongilla(p, "V75"); });
    yksi("Command10", [](const Peli& p) { return Kupongilla(p, "Trio"); });
    yksi("Command9", [](const Peli& p) { return Kupongilla(p, "Voittajaveto"); });
    yksi("otsikko", [](const Peli& p) { return Kupongilla(p, R(p).otsikko); });
    yksi("RiviNro", [](const Peli& p) { return Kupongilla(p, std::to_string(R(p).RiviNro)); });
    yksi("NimiMäärä", [](const Peli& p) { return Kupongilla(p, std::to_string(R(p).NimiMäärä)); });
    yksi.Taulukko("Rivi", RIVINAPPEJA, 0, [](const Peli& p, int i) { return Kupongilla(p, std::to_string(i + 1)); });
    yksi.Taulukko("RaviNimi", RIVEJÄ, 0, [](const Peli& p, int i) { return Kupongilla(p, R(p).RaviNimi[i]); });
    yksi.Taulukko("Kerroin", RIVEJÄ, 0, [](const Peli& p, int i) { return Kupongilla(p, R(p).Kerroin[i]); });
    yksi.Taulukko("Ruutu", RIVEJÄ, 0, [](const Peli& p, int i) { return Kupongilla(p, R(p).Ruutu[i]); });
    yksi("Panos", [](const Peli& p) { return Kupongilla(p, std::to_string(R(p).Panos)); });
    yksi("Panosz", [](const Peli& p) { return Kupongilla(p, R(p).Panosz); });
    yksi("Command6", [](const Peli& p) { return Kupongilla(p, "-"); });
    yksi("Command7", [](const Peli& p) { return Kupongilla(p, "+"); });
    yksi("Command4", [](const Peli& p) { return Kupongilla(p, "Hyväksy kuponki"); });

    // The result sheet.
    yksi("Tulos", [](const Peli& p) {
        return JosNäkyy(R(p).Tulos, [&] { return std::to_string(R(p).tulos.size()) + " riviä"; });
    });
    yksi("Command8", [](const Peli& p) { return JosNäkyy(R(p).Tulos, [] { return "sulje"; }); });
}

}  // namespace tanhua
