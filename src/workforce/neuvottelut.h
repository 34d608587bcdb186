// The wage talks: an underpaid job's workers demand a raise, and a refusal may cost a worker.
#pragma once

namespace tanhua {

struct Peli;

// The day's round of talks over the thirteen jobs in their order. Each job takes three draws
// whether or not it talks; an agreement goes on to the next job, a resignation ends the round.
void Palkkaneuvottelut(Peli& peli);

}  // namespace tanhua
