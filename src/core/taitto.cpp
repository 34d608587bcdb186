// The rounds of a fold: s = AnimNopeus; each round takes s + 50 units of height and moves the top
// half of that, so the form closes on its middle line.
#include "taitto.h"

#include <algorithm>

#include "peli.h"

namespace tanhua {

namespace {

void Tauko(const Peli& peli, Taitto& t, int tapahtumia) {
    const int s = peli.asetukset.AnimNopeus;
    if (peli.asetukset.Prosessorisäästö) t.nukkuMs = 11 - s / 10;
    else t.tapahtumakierroksia = tapahtumia;
}

}  // namespace

Taitto KuvanPienennys(const Peli& peli, int H, int T, Lomake lomake) {
    Taitto t;
    if (!peli.asetukset.Animaatiot) return t;
    const int s = peli.asetukset.AnimNopeus;
    Tauko(peli, t, lomake == Lomake::Pääruutu ? 101 - s : s + 1);
    int korkeus = H, yläreuna = T;
    for (;;) {
        korkeus -= s + 50;
        yläreuna += s / 2 + 25;
        t.kierrokset.push_back({std::max(korkeus, 0), yläreuna});
        if (korkeus < s + 50) break;
    }
    return t;
}

Taitto KuvanSuurennus(const Peli& peli, int H, int /*T*/, Lomake /*lomake*/) {
    Taitto t;
    if (!peli.asetukset.Animaatiot) return t;
    const int s = peli.asetukset.AnimNopeus;
    Tauko(peli, t, s + 1);
    // The opening starts from a flat form at half the height, counted from the top of the frame.
    int korkeus = 0, yläreuna = H / 2;
    for (;;) {
        korkeus += s + 50;
        yläreuna -= s / 2 + 25;
        t.kierrokset.push_back({korkeus, yläreuna});
        if (korkeus > H) break;
    }
    return t;
}

}  // namespace tanhua
