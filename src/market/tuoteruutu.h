// What the product screen holds while it is open: the chosen card (not saved).
#pragma once

namespace tanhua {

struct TuoteRuutuTila {};

}  // namespace tanhua
