// Random events of the day: the head of the step, the choice of the family by number, and the
// hand-over of an event's result to the channels.
#include "sattumat.h"

#include <array>

#include "../core/peli.h"
#include "../core/viestit.h"
#include "../workforce/neuvottelut.h"
#include "../workforce/palkat.h"
#include "perheet.h"

namespace tanhua {

namespace {
// The kinds whose motivation counts in the wage-talk test: not the wine master, the beekeeper or
// the warehouse worker.
inline constexpr std::array<Työläinen, 14> NEUVOTTELIJAT{
    Nahkuri, Puutarhuri, Leipuri, Teurastaja, Metsuri, Kirvesmies, Ompelija, Meijerityöntekijä,
    Vahtikoira, Siivooja, Mylläri, Kirjanpitäjä, Tallimestari, Siementäjä,
};

inline constexpr int EVENT_PÄIVÄ = 29;   // an event is tried on one day in 29
inline constexpr int NUMEROITA = 60;
}  // namespace

Laskurit LaskeLaskurit(const Peli& peli) {
    const Muuttujat& m = peli.m;
    double eläimiä = 0;
    for (const auto& laji : m.El)
        for (Long luku : laji) eläimiä += luku;
    return Laskurit{CLng(eläimiä), CLng(static_cast<double>(m.Koko_Navetta) - eläimiä)};
}

void Sattumat(Peli& peli) {
    Muuttujat& m = peli.m;
    LaskeMotivaatio(peli);
    double motivaatio = 0;
    for (Työläinen k : NEUVOTTELIJAT) motivaatio += m.Moti[k];
    if (motivaatio + static_cast<double>(peli.arvonta.D(15)) < 3) {
        LaskePalkat(peli);
        Palkkaneuvottelut(peli);
    }
    if (peli.arvonta.D(EVENT_PÄIVÄ) != 0) return;
    // The news window's picture goes blank; nothing is told by it.
    peli.näkymä.IkkunaKuva.clear();
    const Laskurit laskurit = LaskeLaskurit(peli);
    const int numero = static_cast<int>(peli.arvonta.D(NUMEROITA)) + 1;
    if (const auto tulos = PelaaSattuma(peli, numero, laskurit)) KerroSattuma(peli, *tulos);
}

std::optional<SattumanTulos> PelaaSattuma(Peli& peli, int numero, const Laskurit& laskurit) {
    using namespace sattumat;
    if (numero >= 1 && numero <= 8) return Pilaantuminen(peli);
    if (numero >= 9 && numero <= 18) return Lahja(peli, numero, laskurit);
    if (numero == 19) return Varkaus(peli);
    if (numero == 20) return Tulipalo(peli);
    if (numero == 23) return Aktivistit(peli, laskurit);
    if (numero >= 24 && numero <= 28) return Oikeusjuttu(peli, numero);
    if (numero >= 29 && numero <= 37) return Kirjanpito(peli, numero);
    if (numero >= 38 && numero <= 42) return Tauti(peli, numero);
    if (numero == 43) return Hygieniapalkinto(peli);
    if (numero >= 44 && numero <= 50) return Työtapaturma(peli);
    if (numero == 51) return Suojeluraha(peli);
    if (numero == 52) return Metsästäjä(peli);
    if (numero == 53) return Myrsky(peli);
    if (numero == 54) return Rikkoutuminen(peli);
    if (numero == 55) return Karkaaminen(peli);
    return std::nullopt;  // 21, 22 and 56 to 60 are empty
}

void KerroSattuma(Peli& peli, const SattumanTulos& tulos) {
    LisääListaan(peli, tulos.rivi);
    Kerro(peli, "Kuvat/sattumat/" + tulos.kuva, tulos.teksti);
    // The window is painted before the sound starts: the channel shows it at once.
    if (!tulos.ääni.empty()) SoitaÄäni(peli, tulos.ääni);
}

}  // namespace tanhua
