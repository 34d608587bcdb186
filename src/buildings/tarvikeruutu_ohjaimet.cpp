// The controls of the supplies shop as the player sees them.
#include <string>

#include "../core/ohjaimet.h"
#include "../core/peli.h"
#include "tarvikkeet.h"

namespace tanhua {

namespace {

const TarvikeRuutuTila& R(const Peli& p) { return p.tarvikeruutu; }

// Until the stars open the shop its button on the main screen is disabled, so none of its
// controls can be reached.
Ohjain Nappi(const Peli& p, std::string teksti) { return Näkyvä(std::move(teksti), TarvikkeetAuki(p.m)); }

}  // namespace

void TarvikeruudunOhjaimet(Ohjainluettelo& l) {
    const RuudunOhjaimet yksi(l, "Tarvikkeet");
    // The list buttons. The machines' button is not on the screen, so their list can't be shown.
    yksi("Command4", [](const Peli& p) { return Nappi(p, "Tarvikkeet"); });
    yksi("Command3", [](const Peli& p) { return Nappi(p, "Lisälaitteet"); });
    yksi("Command2", [](const Peli&) { return Piilossa(); });
    yksi("Command6", [](const Peli& p) { return Nappi(p, "Ostetut laitteet"); });

    yksi("otsikko", [](const Peli& p) { return Näkyvä(R(p).otsikko); });
    yksi("Lista", [](const Peli& p) {
        std::string t;
        for (std::size_t i = 0; i < R(p).Lista.size(); ++i)
            t += (i ? "|" : "") + std::string(TarvikkeenNimi(R(p).Lista[i]));
        return Näkyvä(t, TarvikkeetAuki(p.m));
    });
    yksi("nimi", [](const Peli& p) { return Näkyvä(R(p).nimi); });
    yksi("info", [](const Peli& p) { return Näkyvä(R(p).info); });
    yksi("hinta", [](const Peli& p) { return Näkyvä(R(p).hinta); });
    yksi("Command5", [](const Peli& p) { return Nappi(p, R(p).Command5); });
    yksi("Command1", [](const Peli& p) { return Nappi(p, "Takaisin"); });
}

}  // namespace tanhua
