// The motivation and stress gauges of the staff screen.
#include <string>

#include "../core/peli.h"
#include "palkat.h"
#include "taulut/mittarit.h"
#include "työvoima.h"

namespace tanhua {

namespace {
template <std::size_t N>
std::string Taso(const std::array<MittarinTaso, N>& tasot, double luku) {
    for (const MittarinTaso& t : tasot)
        if (luku >= t.alkaen) return std::string(t.sana);
    return std::string(tasot.back().sana);
}
}  // namespace

// Both gauges are blank while nobody is employed.
void Motilasku(Peli& peli) {
    TyövoimaRuutuTila& r = peli.työvoimaruutu;
    if (r.Työläisiä < 1) {
        r.Moti.clear();
        return;
    }
    LaskeMotivaatio(peli);
    double summa = 0;
    for (Integer moti : peli.m.Moti) summa += moti;
    // Seventeen jobs, but divided by fifteen.
    r.Moti = Taso(MOTIVAATIOTASOT, Round(summa / 15));
}

void Stressilasku(Peli& peli) {
    TyövoimaRuutuTila& r = peli.työvoimaruutu;
    if (r.Työläisiä < 1) {
        r.Stres.clear();
        return;
    }
    // Jobs are counted, not workers: a job nobody holds counts as rested.
    int levossa = 0;
    for (Boolean ylityö : peli.m.Ylityö) levossa += ylityö ? 0 : 1;
    r.Stres = Taso(STRESSITASOT, levossa);
}

}  // namespace tanhua
