// The star rating of the farm: the daily test with its prizes, and the click on a star.
#pragma once

#include <string>

namespace tanhua {

struct Peli;

// With the star lock on, the next star is earned when the farm meets all of its row; one a day.
void TähtiTarkastus(Peli& peli);
// A click on star picture 0..4: what the star asks, or the news that all are earned.
void NäytäTähti(Peli& peli, int indeksi);
// The hint of a thing the star lock keeps closed: the stars that open it.
std::string LukonVihje(int tähdet);

}  // namespace tanhua
