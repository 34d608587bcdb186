// What the supplies screen holds: the three shop lists, the owned list, the list shown and the
// chosen item with its labels. The lists live as long as the program, like the screen itself.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "../core/laskenta.h"
#include "../core/taulut/tarvikkeet.h"

namespace tanhua {

// An entry of a list: an index of TARVIKETAULU, or the flagless plough row of the machines.
using TarvikeRivinro = int;
inline constexpr TarvikeRivinro AURA = static_cast<TarvikeRivinro>(TARVIKKEITA);

// Which list the screen shows: a shop list by TarvikeLista, the owned ones, or none yet.
inline constexpr int EI_LISTAA = -1;
inline constexpr int OMAT_LISTA = 3;

// The shop lists as a new farm has them: the catalogue order, the plough last among the machines.
inline std::array<std::vector<TarvikeRivinro>, 3> AlkuKauppa() {
    std::array<std::vector<TarvikeRivinro>, 3> kauppa;
    for (std::size_t k = 0; k < TARVIKKEITA; ++k)
        kauppa[TARVIKETAULU[k].lista].push_back(static_cast<TarvikeRivinro>(k));
    kauppa[Työkoneet].push_back(AURA);
    return kauppa;
}

struct TarvikeRuutuTila {
    bool auki = false;  // the screen is showing

    // The shop lists Tarvikkeita, Lisälaitteet and Työkoneet, indexed by TarvikeLista. A sold or
    // broken item goes back to the end of its list.
    std::array<std::vector<TarvikeRivinro>, 3> kauppa = AlkuKauppa();
    // Tavarat: the owned items in order of purchase.
    std::vector<TarvikeRivinro> Tavarat;

    // Lista: what the screen shows, a copy of the list chosen by `näkyvä`.
    int näkyvä = EI_LISTAA;  // a TarvikeLista, OMAT_LISTA or EI_LISTAA
    std::vector<TarvikeRivinro> Lista;

    // The chosen row, -1 when none; its name, text and price.
    TarvikeRivinro valittu = -1;
    std::string nimi;        // the chosen item's shown name
    std::string otsikko;     // the list's title
    std::string info;        // the list's text, or the chosen item's text
    std::string hinta;       // the price, or the sale price, under the label below; "" when blank
    Long hintaArvo = 0;      // the price the action button works with
    static constexpr const char* HINTA_OTSIKKO = "Hinta :";

    // The action button Command5: buys from a shop list, sells from the owned list.
    std::string Command5 = "Osta";
    std::string Command5Ohje = "Ostaa valitun tuotteen";
};

}  // namespace tanhua
