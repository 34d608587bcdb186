// What the animal screen holds while it is open: the chosen card and the lot (not saved).
#pragma once

namespace tanhua {

struct EläinRuutuTila {};

}  // namespace tanhua
