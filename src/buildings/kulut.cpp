// The day's electricity and water bills, and the packing plant's capacity and factor.
#include "kulut.h"

#include <algorithm>

#include "../core/peli.h"
#include "rakennukset.h"
#include "taulut/kulutus.h"

namespace tanhua {

double Sähkökerroin(const Muuttujat& m) { return std::max(1.0, (40 - m.Lämpötila) * 0.06); }
double Vesikerroin(const Muuttujat& m) { return std::max(1.0, (m.Lämpötila + 32) * 0.05); }

void PakkaamoPäivä(Peli& peli) {
    Muuttujat& m = peli.m;
    // Without workers the last figures stay.
    if (!(m.Rak[Pakkaamo] > 0 && m.Työ[Varastotyöntekijä] > 0)) return;
    const double w = m.Työ[Varastotyöntekijä];
    const double e = static_cast<double>(m.Palkka[Varastotyöntekijä]) - m.PerusPalkka[Varastotyöntekijä];
    const double h = m.Tarv[Liukuhihna] ? 1 : 0;
    Aseta(m.PakkaamoMax, w * 2000 + h * w * 300 + e * 0.5);
    // Only the hygiene and level part is rounded, to two decimals, ties to even.
    Aseta(m.PakkaamoKerroin,
          Round(m.Hygienia / 100.0 * 0.08 + m.Rak[Pakkaamo] * 0.01, 2) + 0.05 * h + 0.5 + e * 0.0001);
}

namespace {

double Rakennustensähkö(const Muuttujat& m) {
    double summa = VARASTON_SÄHKÖ * m.Koko_Varasto + NAVETAN_SÄHKÖ * m.Koko_Navetta;
    for (std::size_t r = 0; r < RAKENNUKSIA; ++r) summa += KULUTUSTAULU[r].sähkö * m.Rak[r];
    return summa;
}

double Rakennustenvesi(const Muuttujat& m) {
    double summa = NAVETAN_VESI * m.Koko_Navetta;
    for (std::size_t r = 0; r < RAKENNUKSIA; ++r) summa += KULUTUSTAULU[r].vesi * m.Rak[r];
    return summa;
}

double Eläintenvesi(const Muuttujat& m) {
    double summa = 0;
    for (std::size_t laji = 0; laji < LAJEJA; ++laji)
        summa += ELÄINTEN_VESI[laji] * (static_cast<double>(m.El[laji][Naaras]) + m.El[laji][Uros]);
    return summa;
}

// The well and the water heater add their electricity after the lights' saving, each just
// before its own saving on water.
bool SäästönJälkeen(std::size_t tarvike) { return tarvike == Kaivo || tarvike == Lämminvesivaraaja; }

}  // namespace

void PäiväKulut(Peli& peli) {
    Muuttujat& m = peli.m;
    const double taso = m.Vaikeustaso + 2;
    const double sf = Sähkökerroin(m), vf = Vesikerroin(m);
    Lisää(m.Sähkölasku, Rakennustensähkö(m) * taso * sf);
    Lisää(m.Vesilasku, Rakennustenvesi(m) * taso * vf);
    Lisää(m.Vesilasku, Eläintenvesi(m) * taso * vf);
    // The devices cost flat, with no difficulty or weather factor.
    double sähkö = 0, vesi = 0;
    for (std::size_t t = 0; t < TARVIKKEITA; ++t) {
        if (!m.Tarv[t]) continue;
        if (!SäästönJälkeen(t)) sähkö += TARVIKETAULU[t].sähkö;
        vesi += TARVIKETAULU[t].vesi;
    }
    Lisää(m.Sähkölasku, sähkö);
    Lisää(m.Vesilasku, vesi);
    // The savings act on the month's whole bill so far, every day: they compound.
    if (m.Tarv[Energiansäästövalot]) Aseta(m.Sähkölasku, m.Sähkölasku * SÄÄSTÖVALOT);
    for (const Tarvike t : {Kaivo, Lämminvesivaraaja}) {
        if (!m.Tarv[t]) continue;
        Lisää(m.Sähkölasku, TARVIKETAULU[t].sähkö);
        Aseta(m.Vesilasku, m.Vesilasku * VESISÄÄSTÖ);
    }
}

}  // namespace tanhua
