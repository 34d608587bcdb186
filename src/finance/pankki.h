// The bank's month: loan interest and instalments, deposit interest, insurance premiums.
#pragma once

#include "../core/laskenta.h"

namespace tanhua {

struct Peli;

// Interest and the instalment of the loan, then the deposit's interest. Returns the instalment p.
Long LainaKuukausi(Peli& peli);
// Recomputes the five premium labels from the farm as it stands.
void PäivitäVakuutus(Peli& peli);
// Vakuutusmaksut: the premiums of the ticked boxes, as the labels hold them.
void LaskeVaku(Peli& peli);

}  // namespace tanhua
