// The end of a career: the life story told when a goal is reached or the farmer retires.
#pragma once

namespace tanhua {

struct Peli;

void LoppuJuttu(Peli& peli);

}  // namespace tanhua
