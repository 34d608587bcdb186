// The figures of the main screen, worked out for any front end.
#pragma once

namespace tanhua {

struct Peli;

void Päivitälukemat(Peli& peli);

}  // namespace tanhua
