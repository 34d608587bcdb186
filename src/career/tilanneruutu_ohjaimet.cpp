// The controls of the Tilanne screen as the player sees them.
#include <string>

#include "../core/ohjaimet.h"
#include "../core/peli.h"

namespace tanhua {

namespace {
const TilanneRuutuTila& R(const Peli& p) { return p.tilanneruutu; }

// A control of the save panel: out of sight while the panel is hidden.
Ohjain Paneelissa(const Peli& p, std::string arvo) { return R(p).akkuna ? Näkyvä(std::move(arvo)) : Piilossa(); }

std::string Yhdessä(const std::vector<std::string>& rivit, char väli) {
    std::string t;
    for (std::size_t i = 0; i < rivit.size(); ++i) t += (i ? std::string(1, väli) : "") + rivit[i];
    return t;
}
}  // namespace

void TilanneruudunOhjaimet(Ohjainluettelo& l) {
    const RuudunOhjaimet yksi(l, "Tilanne");
    // Once the story shows, the career has ended: nothing but its own Sulje leads on.
    auto nappi = [&yksi](const char* nimi, const char* teksti) {
        yksi(nimi, [teksti](const Peli& p) { return Näkyvä(teksti, !R(p).Tarina); });
    };
    nappi("Command1", "Avaa/Tallenna");
    nappi("Command4", "Jää eläkkeelle");
    nappi("Command8", "Ennätys listat");
    nappi("Command10", "Uusi tilanne");
    // The screen's own Sulje stays clickable while the story shows, but does nothing then.
    yksi("Command3", [](const Peli&) { return Näkyvä("Sulje"); });
    yksi("Ohje", [](const Peli& p) { return JosNäkyy(p.m.OhjeetPäällä, [&] { return R(p).Ohje; }); });

    yksi("akkuna", [](const Peli& p) { return Paneelissa(p, "Avaa/Tallenna"); });
    yksi("Kohde", [](const Peli& p) { return Paneelissa(p, R(p).Kohde); });
    yksi("File1", [](const Peli& p) { return Paneelissa(p, Yhdessä(R(p).Tiedostot, '|')); });
    yksi("Command5", [](const Peli& p) { return Paneelissa(p, "Tallenna"); });
    yksi("Command6", [](const Peli& p) { return Paneelissa(p, "Avaa"); });
    yksi("Poista", [](const Peli& p) { return Paneelissa(p, "Poista"); });
    yksi("Command2", [](const Peli& p) { return Paneelissa(p, "Sulje"); });

    yksi("Tarina", [](const Peli& p) { return JosNäkyy(R(p).Tarina, [&] { return Yhdessä(R(p).TarinaRivit, '\n'); }); });
    yksi("TarinaSulje", [](const Peli& p) { return JosNäkyy(R(p).Tarina, [] { return "Sulje"; }); });
}

void ToptenruudunOhjaimet(Ohjainluettelo& l) {
    const RuudunOhjaimet yksi(l, "Topten");
    yksi("otsikko", [](const Peli& p) { return Näkyvä(R(p).Topten.otsikko); });
    for (int i = 1; i <= 10; ++i) {
        yksi("n" + std::to_string(i), [i](const Peli& p) { return Näkyvä(R(p).Topten.n[i]); });
        yksi("p" + std::to_string(i), [i](const Peli& p) { return Näkyvä(R(p).Topten.p[i]); });
    }
    yksi("Command1", [](const Peli&) { return Näkyvä("Sulje"); });
    yksi("Command2", [](const Peli&) { return Näkyvä("Tyhjennä listat"); });
}

}  // namespace tanhua
