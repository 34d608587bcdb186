// The fold by which a screen closes to its middle line and the next opens from it: the rounds'
// heights and tops and the pause between them, worked out from the settings for any window.
#pragma once

#include <vector>

namespace tanhua {

struct Peli;

struct TaitonKierros {
    int korkeus;   // never below 0: a fold that would go negative shows nothing for that round
    int yläreuna;
};

struct Taitto {
    std::vector<TaitonKierros> kierrokset;  // empty with animations off
    // The pause after each round: a sleep of this many milliseconds then one turn of the events
    // (Prosessorisäästö on), or this many turns of the events with no sleep.
    int nukkuMs = 0;
    int tapahtumakierroksia = 0;
};

// Which form folds: the main form pauses longer when it folds away.
enum class Lomake { Pääruutu, Alaruutu };

// The form of height H and top T folding down to its middle line; afterwards it gets its own size
// back (the main form keeps it small until PalautaKoko).
Taitto KuvanPienennys(const Peli& peli, int H, int T, Lomake lomake);
// The form opening from its middle line up to height H; afterwards it stands at H and T.
Taitto KuvanSuurennus(const Peli& peli, int H, int T, Lomake lomake);

}  // namespace tanhua
