// A built building's production panel: the month's gross, the bills' estimates and the net.
#pragma once

#include <string>

#include "../core/taulut/rakennukset.h"

namespace tanhua {

struct Peli;

// The panel's text from level 1 upward, lines ending CR LF. The estimates take the weather's
// factors as they stood when the building screen was opened.
std::string RakennusPaneeli(const Peli& peli, Rakennus rakennus);
// The panel's two product pictures under Kuvat/tuotteet/, raw stock then product; empty for a
// building that shows none.
std::string RaakaKuva(Rakennus rakennus);
std::string TuoteKuva(Rakennus rakennus);

}  // namespace tanhua
