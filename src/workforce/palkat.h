// Wages: the month's wage sum, the employment subsidy and the staff's motivation.
#pragma once

#include "../core/laskenta.h"

namespace tanhua {

struct Peli;

// PalkatYhteensä: every job's workers times their wage; gardeners and beekeepers draw none in winter.
void LaskePalkat(Peli& peli);
// The month's employment subsidy T, never above the wage sum.
Long Työllistämistuki(Peli& peli);
// Moti of every job but the tanner: the wage's difference from the base wage in thousands, rounded to even.
void LaskeMotivaatio(Peli& peli);

}  // namespace tanhua
