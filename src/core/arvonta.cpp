// The game's random draws: a 24-bit linear congruential generator and the queue of given values.
#include "arvonta.h"

#include <cmath>

#include "laskenta.h"

namespace tanhua {

double Arvonta::Generaattori() {
    // A 24-bit generator; a draw is the new state over 2^24, so it is never 1.
    tila_ = (tila_ * 0x43FD43FDu + 0xC39EC3u) & 0xFFFFFFu;
    return static_cast<double>(static_cast<float>(tila_) / 16777216.0f);
}

double Arvonta::r(std::source_location paikka) {
    double arvo;
    if (!jono_.empty()) {
        arvo = jono_.front();
        jono_.pop_front();
    } else {
        arvo = Generaattori();
    }
    if (seuranta) seuranta(arvo, paikka);
    return arvo;
}

long long Arvonta::D(double x, std::source_location paikka) {
    const double arvo = std::floor(x * r(paikka));
    // A draw too large for a whole number is an overflow, as storing it would be.
    if (!(arvo >= -9.2e18 && arvo <= 9.2e18)) NostaVika(VIKA_YLIVUOTO);
    return static_cast<long long>(arvo);
}

long long Arvonta::U(long long a, long long b, std::source_location paikka) {
    return a + static_cast<long long>(std::floor(static_cast<double>(b - a + 1) * r(paikka)));
}

}  // namespace tanhua
