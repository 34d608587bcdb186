// The month end in its fixed order, and the closing of the report.
#include "kuukausi.h"

#include "../animals/eläimet.h"
#include "päivä.h"
#include "peli.h"

namespace tanhua {

void TyhjennäTulot(Peli& peli) {
    Muuttujat& m = peli.m;
    for (std::size_t k = 0; k < TUOTTEITA; ++k) {
        m.EdTulo[k] = m.Tulo[k];
        m.Tulo[k] = 0;
    }
}

namespace {
// The calendar turns: day 31 becomes day 1 of the next month, and month 13 the January of a new year.
void KalenteriKääntyy(Muuttujat& m) {
    Aseta(m.Päivä, 1);
    Aseta(m.Kuukausi, m.Kuukausi + 1);
    AsetaVuodenaika(m);
    if (m.Kuukausi == 13) {
        Aseta(m.Kuukausi, 1);
        Aseta(m.Vuosi, m.Vuosi + 1);
        m.Vuodenaika = "Talvi";
    }
}
}  // namespace

void Kuukaudenvaihde(Peli& peli) {
    Muuttujat& m = peli.m;
    peli.näkymä.Lista.clear();
    peli.näkymä.ListaNäkyvissä = false;
    // The herd ages and breeds while the month is still the old one.
    Vanhentuminen(peli);
    Lisääntyminen(peli);
    TyhjennäTulot(peli);
    KalenteriKääntyy(m);
}

void SuljeRaportti(Peli& peli) { peli.näkymä.PääruutuKäytössä = true; }

}  // namespace tanhua
