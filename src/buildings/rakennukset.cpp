// The buildings' day: the work orders, and the stable's step, which keeps its place in the day.
#include "rakennukset.h"

#include <string>

#include "../core/peli.h"
#include "../core/viestit.h"
#include "taulut/rakennuskatalogi.h"

namespace tanhua {

// The work orders move on by a day. Carpenters given boards each take a further day off an
// order, burning the day's board use each; an order whose days run out delivers its size or level.
void TyömaaPäivä(Peli& peli) {
    Muuttujat& m = peli.m;
    const auto b = peli.arvonta.U(5, 9);
    for (const std::size_t kohde : TYÖMAIDEN_JÄRJESTYS) {
        if (m.RakAika[kohde] <= 0) continue;
        if (m.LautaRakennukseen && m.Työ[Kirvesmies] > 0 && m.RakAika[kohde] > 1) {
            // Each carpenter with boards to burn burns them, even past the last day.
            for (Long kirvesmies = 1; kirvesmies <= m.Työ[Kirvesmies]; ++kirvesmies) {
                if (m.Var[Lauta] > b) {
                    Lisää(m.Var[Lauta], -b);
                    Lisää(m.RakAika[kohde], -1);
                }
            }
        }
        Lisää(m.RakAika[kohde], -1);
        if (m.RakAika[kohde] < 1) {
            std::string valmis;
            if (OnVarastotila(kohde)) {
                const Tila tila = static_cast<Tila>(kohde - RAKENNUKSIA);
                Single& koko = tila == Navetta ? m.Koko_Navetta : tila == Siilo ? m.Koko_Siilo : m.Koko_Varasto;
                Lisää(koko, m.RakTilaus[kohde]);
                valmis = std::string(TILATAULU[tila].valmis);
            } else {
                Lisää(m.Rak[kohde], m.RakTilaus[kohde]);
                valmis = std::string(RAKENNUSTAULU[kohde].valmis);
            }
            LisääListaan(peli, valmis);
            m.RakTilaus[kohde] = 0;
            m.RakAika[kohde] = 0;
        }
    }
}

}  // namespace tanhua
