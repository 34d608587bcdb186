// Random events of the day: the wage-talk test, the day's draw and the events it plays out.
#pragma once

#include <optional>
#include <string>

#include "../core/laskenta.h"

namespace tanhua {

struct Peli;

// What an event tells, without a screen: its line of the event list, its picture (a file of
// Kuvat/sattumat/), the news window's text and its sound ("" for none).
struct SattumanTulos {
    std::string rivi;
    std::string kuva;
    std::string teksti;
    std::string ääni;
    bool operator==(const SattumanTulos&) const = default;
};

// The head counts of the barn, worked out once a run before the event number is drawn.
struct Laskurit {
    Long EläimiäYhteensä = 0;  // all 24 animal counters, young and cubs too
    Long VapaatPaikat = 0;     // Koko_Navetta less them, rounded to whole
};
Laskurit LaskeLaskurit(const Peli& peli);

// The day's step on days 3 to 29: motivation, the wage-talk test, then on one day in 29 an event.
void Sattumat(Peli& peli);

// Plays event 1 to 60 out on the farm: its gate, its draws in order and its effects. Empty when the
// gate fails or the number is empty. Event 51 asks the player itself and tells its demand first.
std::optional<SattumanTulos> PelaaSattuma(Peli& peli, int numero, const Laskurit& laskurit);

// Hands a result to the channels: the list line, the news window, then the sound.
void KerroSattuma(Peli& peli, const SattumanTulos& tulos);

}  // namespace tanhua
