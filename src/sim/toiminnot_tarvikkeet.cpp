// The runner's operations of the supplies shop.
#include <algorithm>
#include <stdexcept>
#include <string>

#include "buildings/tarvikkeet.h"
#include "skripti.h"

namespace tanhua {

namespace {

// A row by its name; a name no supply has is a malformed line.
TarvikeRivinro RiviSanasta(const std::string& sana) {
    const TarvikeRivinro rivi = TarvikeNimellä(sana);
    if (rivi < 0)
        throw std::runtime_error("unknown supply '" + sana +
                                 "': give its key or its shown name (Lypsykone, \"Sähkö paimenpoika\", Aura, ...)");
    return rivi;
}

// A row the player can click: the shop must be open to them and the row on the list shown.
TarvikeRivinro Rivi(const Peli& peli, const std::string& sana) {
    const TarvikeRivinro rivi = RiviSanasta(sana);
    VaadiPainettava(peli, "Tarvikkeet.Lista");
    const auto& lista = peli.tarvikeruutu.Lista;
    if (std::find(lista.begin(), lista.end(), rivi) == lista.end()) Ohita();
    return rivi;
}

// The action button as it reads now, with a row clicked first when one is named. A button that
// reads the other word is not the one the script asked for.
Toiminto Toimi(const char* teksti) {
    return Toiminto{0, 1, [teksti](Peli& peli, const std::vector<std::string>& a) {
                        const TarvikeRivinro rivi = a.empty() ? -1 : Rivi(peli, a[0]);
                        VaadiPainettava(peli, "Tarvikkeet.Command5");
                        if (peli.tarvikeruutu.Command5 != teksti) Ohita();
                        if (rivi >= 0) ValitseTarvike(peli, rivi);
                        Command5Tarvikkeet(peli);
                    }};
}

}  // namespace

void TarvikkeidenToiminnot(Toimintoluettelo& t) {
    // The main screen's button stays disabled until the stars open the shop.
    t["Tarvikkeet.Avaa"] = Toiminto{0, 0, [](Peli& peli, const std::vector<std::string>&) {
                                        if (!TarvikkeetAuki(peli.m)) Ohita();
                                        AvaaTarvikkeet(peli);
                                    }};
    t["Tarvikkeet.Yleiset"] = Painallus("Tarvikkeet.Command4", NäytäYleiset);
    t["Tarvikkeet.Lisälaitteet"] = Painallus("Tarvikkeet.Command3", NäytäLisälaitteet);
    t["Tarvikkeet.Työkoneet"] = Painallus("Tarvikkeet.Command2", NäytäTyökoneet);
    t["Tarvikkeet.Omat"] = Painallus("Tarvikkeet.Command6", NäytäOmat);
    t["Tarvikkeet.Valitse"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                           ValitseTarvike(peli, Rivi(peli, a[0]));
                                       }};
    t["Tarvikkeet.Osta"] = Toimi("Osta");
    t["Tarvikkeet.Myy"] = Toimi("Myy");
    // Leaving a screen that isn't showing is no press a player can make.
    t["Tarvikkeet.Sulje"] = Toiminto{0, 0, [](Peli& peli, const std::vector<std::string>&) {
                                         if (!peli.tarvikeruutu.auki) Ohita();
                                         SuljeTarvikkeet(peli);
                                     }};
}

}  // namespace tanhua
