// The runner's operations of the supplies shop.
#include <algorithm>
#include <stdexcept>
#include <string>

#include "buildings/tarvikkeet.h"
#include "skripti.h"

namespace tanhua {

namespace {

void VaadiAuki(const Peli& peli) {
    if (!peli.tarvikeruutu.auki)
        throw std::runtime_error("the supplies screen is not open: call Tarvikkeet.Avaa first");
}

// A row the player can click: it must stand on the list shown.
TarvikeRivinro Rivi(const Peli& peli, const std::string& sana) {
    const TarvikeRivinro rivi = TarvikeNimellä(sana);
    if (rivi < 0)
        throw std::runtime_error("unknown supply '" + sana +
                                 "': give its key or its shown name (Lypsykone, \"Sähkö paimenpoika\", Aura, ...)");
    const auto& lista = peli.tarvikeruutu.Lista;
    if (std::find(lista.begin(), lista.end(), rivi) == lista.end())
        throw std::runtime_error("'" + sana + "' is not on the list shown (show it with Tarvikkeet.Yleiset, "
                                 "Tarvikkeet.Lisälaitteet, Tarvikkeet.Työkoneet or Tarvikkeet.Omat)");
    return rivi;
}

// The action button as it reads now, with a row clicked first when one is named.
Toiminto Toimi(const char* teksti) {
    return Toiminto{0, 1, [teksti](Peli& peli, const std::vector<std::string>& a) {
                        VaadiAuki(peli);
                        if (peli.tarvikeruutu.Command5 != teksti)
                            throw std::runtime_error("the action button reads '" + peli.tarvikeruutu.Command5 +
                                                     "', not '" + teksti + "'");
                        if (!a.empty()) ValitseTarvike(peli, Rivi(peli, a[0]));
                        Command5Tarvikkeet(peli);
                    }};
}

Toiminto Auki(void (*f)(Peli&)) {
    return Toiminto{0, 0, [f](Peli& peli, const std::vector<std::string>&) {
                        VaadiAuki(peli);
                        f(peli);
                    }};
}

}  // namespace

void TarvikkeidenToiminnot(Toimintoluettelo& t) {
    t["Tarvikkeet.Avaa"] = Toiminto{0, 0, [](Peli& peli, const std::vector<std::string>&) {
                                        if (!TarvikkeetAuki(peli.m))
                                            throw std::runtime_error(
                                                "the supplies button of the main screen is locked until the first star");
                                        AvaaTarvikkeet(peli);
                                    }};
    t["Tarvikkeet.Yleiset"] = Auki(NäytäYleiset);          // Command4
    t["Tarvikkeet.Lisälaitteet"] = Auki(NäytäLisälaitteet);  // Command3
    t["Tarvikkeet.Työkoneet"] = Auki(NäytäTyökoneet);      // Command2
    t["Tarvikkeet.Omat"] = Auki(NäytäOmat);                // Command6
    t["Tarvikkeet.Valitse"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                           VaadiAuki(peli);
                                           ValitseTarvike(peli, Rivi(peli, a[0]));
                                       }};
    t["Tarvikkeet.Osta"] = Toimi("Osta");
    t["Tarvikkeet.Myy"] = Toimi("Myy");
    t["Tarvikkeet.Sulje"] = Auki(SuljeTarvikkeet);
}

}  // namespace tanhua
