// Wage talks: the staff's demand for a rise when their pay falls behind.
#pragma once

namespace tanhua {

struct Peli;

// Called from the head of the day's events when the staff's motivation runs low.
void Palkkaneuvottelut(Peli& peli);

}  // namespace tanhua
