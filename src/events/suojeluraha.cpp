// Protection money: a caller demands a sum; the player pays, or refuses and may lose to a fire.
#include "../core/kanavat.h"
#include "../core/viestit.h"
#include "perheet.h"
#include "taulut/kuvat.h"
#include "taulut/suojeluraha.h"

namespace tanhua::sattumat {

Tulos Suojeluraha(Peli& peli) {
    Muuttujat& m = peli.m;
    if (!(m.Raha > 10000 && m.Koko_Navetta > 15 && m.Koko_Siilo > 200 && m.Koko_Varasto > 200)) return std::nullopt;
    // The demand stands in the news window while the question is asked over it.
    const std::string uhkaus(UHKAUKSET[Rivi(peli, 6)]);
    const std::string kuva = "Kuvat/sattumat/" + std::string(sattumakuva::Alamaailma);
    Kerro(peli, kuva, uhkaus);
    const Single summa = CSng(Round((m.Raha / 10.0) * peli.arvonta.r()) + 500);
    const std::string kysymys = uhkaus + "\n" + std::string(SUOJELU_KYSYMYS) + Str(summa) +
                                std::string(SUOJELU_KYSYMYS_LOPPU);
    const std::string vastaus = Kysy(peli, kysymys, 1);
    if (vastaus == KYLLÄ) {
        const std::string teksti(MAKSETTU[Rivi(peli, 5)]);
        Lisää(m.Raha, -static_cast<double>(summa));
        return Kertomus(std::string(SUOJELU_MAKSETTU_RIVI) + Str(summa), sattumakuva::Alamaailma, teksti);
    }
    if (vastaus == EI) {
        // One refusal in three is answered with a fire, gates and alarm and all.
        if (peli.arvonta.D(3) == 0) return Tulipalo(peli);
        const std::string teksti(KIELLETTY[Rivi(peli, 5)]);
        return Kertomus(SUOJELU_KIELLETTY_RIVI, sattumakuva::Alamaailma, teksti);
    }
    return std::nullopt;
}

}  // namespace tanhua::sattumat
