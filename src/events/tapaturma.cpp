// Work accidents: the injury, the cost, and the staff member who got hurt.
#include "../workforce/palkat.h"
#include "perheet.h"
#include "taulut/kuvat.h"
#include "taulut/tapaturmat.h"

namespace tanhua::sattumat {

Tulos Työtapaturma(Peli& peli) {
    Muuttujat& m = peli.m;
    const std::string_view vamma = VAMMAT[Rivi(peli, 9)];
    const Single C = CSng(static_cast<double>(peli.arvonta.D(2000)) + 100);
    const bool vakuutettu = Vakuutettu(m, VakuutusTyö);
    const std::string loppu = vakuutettu ? std::string(TAPATURMA_VAKUUTETTU) : std::string(TAPATURMA_MAKSETTU) + Str(C);
    LaskeMotivaatio(peli);
    const int uhri = static_cast<int>(peli.arvonta.D(15)) + 1;
    const bool talvi = m.Vuodenaika == "Talvi";
    std::string_view sana;
    for (const UhriRivi& rivi : UHRIT) {
        if (rivi.numero != uhri || m.Työ[rivi.työ] <= 0 || (talvi && rivi.talvellaPoissa)) continue;
        // The better paid, the seldomer hurt; at a motivation of 1 or less it is certain.
        if (!(peli.arvonta.D(m.Moti[rivi.työ]) < 1)) continue;
        // When both of number 15 are hurt each costs, and the beekeeper's word stands.
        sana = rivi.sana;
        if (!vakuutettu) Lisää(m.Raha, -static_cast<double>(C));
    }
    if (sana.empty()) return std::nullopt;
    const std::string rivi =
        vakuutettu ? std::string(TAPATURMA_RIVI_VAKUUTETTU) : std::string(TAPATURMA_RIVI_MAKSETTU) + Str(C);
    return Kertomus(rivi, sattumakuva::Tapaturma, std::string(sana) + std::string(vamma) + loppu,
                    sattumaääni::Sairas);
}

}  // namespace tanhua::sattumat
