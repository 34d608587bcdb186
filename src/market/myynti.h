// Sale of products: the accountant's automatic sale.
#pragma once

namespace tanhua {

struct Peli;

void AutoMyynti(Peli& peli);

}  // namespace tanhua
