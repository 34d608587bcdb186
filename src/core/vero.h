// The month's property tax: land, capacities, buildings, the herd and the supplies, each squared.
#pragma once

#include "laskenta.h"

namespace tanhua {

struct Muuttujat;

// "Omaisuus, kiinteistö- ja maavero": squares make big holdings dear; under 50 it is forgiven.
Long Omaisuusvero(const Muuttujat& m);

}  // namespace tanhua
