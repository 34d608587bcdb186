// What the building screen holds while it is open: the chosen target, its step and the day labels.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "../core/laskenta.h"
#include "../core/taulut/rakennukset.h"

namespace tanhua {

struct RakennusRuutuTila {
    bool auki = false;            // the screen is showing

    // The chosen target (Kohde): an index of the work orders (Saha ... Pakkaamo, then Navetta,
    // Siilo, Varasto), -1 before the player has chosen one.
    int kohde = -1;
    Single hinta = 0;             // the price of the chosen step, as hintanäky shows it
    int askel = 0;                // the step of a store's row: 0, 1 or 2
    Integer määrä = 0;            // what the order adds: places, kilos or units; 1 level
    Integer Kesto = 0;            // the days the order takes
    bool askeleetKäytössä = false;  // the steppers määräplus and määrämiinus
    std::string Command2 = "Rakenna";  // "Rakenna" or "Laajenna"
    bool Command2Käytössä = false;     // off before a choice and for a building at level 5
    std::string info;             // the info box
    bool paneeli = false;         // a built building shows its production panel in the info box's place
    std::string taso;             // a building's level as "2 / 5"; empty for a store

    // The sixteen day labels (RakenneSahaz ... RakennePakkaamoz, RakenneNavettaz ...), indexed like
    // the work orders: "12 päivää", or "Lukittu" in red over a building the stars lock.
    std::array<std::string, TYÖMAITA> päivät{};
    std::array<bool, TYÖMAITA> päivätNäkyvät{};
    std::array<bool, TYÖMAITA> päivätPunaisella{};

    // The sizes of the three stores as they stood when the screen was opened.
    std::string navettaz, siiloz, varastoz;

    std::string ohje;             // the hint line

    // The weather's factors of the bills (SF, VF) as they stood when the screen was opened: the
    // production panels' estimates use these.
    std::optional<double> SF, VF;
};

}  // namespace tanhua
