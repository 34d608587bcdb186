// Disease, the hunter, the storm and the animals' escape.
#include <algorithm>

#include "perheet.h"
#include "taulut/kuvat.h"
#include "taulut/luonto.h"
#include "taulut/taudit.h"

namespace tanhua::sattumat {

Tulos Tauti(Peli& peli, int numero) {
    Muuttujat& m = peli.m;
    // Certain below hygiene 20, else one chance in Hygienia \ 10; never at 50 or above.
    if (!(m.Hygienia < 50)) return std::nullopt;
    if (peli.arvonta.D(JakoKok(m.Hygienia, 10)) + 1 >= 2) return std::nullopt;
    const TautiRivi& rivi = TAUDIT[static_cast<std::size_t>(numero - ENSIMMÄINEN_TAUTI)];
    Long& laskuri = m.El[rivi.laji][Naaras];
    if (!(laskuri > 1)) return std::nullopt;
    const double kuolleet = static_cast<double>(peli.arvonta.D(JakoKok(laskuri, 3))) + 1;
    // The claim is a whole number.
    const Long korvaus = CLng(static_cast<double>(peli.arvonta.D(rivi.K)) * kuolleet + rivi.B);
    std::string teksti(rivi.teksti);
    if (Vakuutettu(m, VakuutusEläin)) {
        Lisää(m.Raha, korvaus);
        teksti += std::string(TAUTI_KORVAUS) + Str(static_cast<long long>(korvaus));
    }
    Lisää(laskuri, -kuolleet);
    const auto kuva = peli.arvonta.D(2) == 1 ? sattumakuva::Tauti : sattumakuva::Tauti2;
    return Kertomus(rivi.rivi, kuva, teksti, sattumaääni::Kärpänen);
}

Tulos Metsästäjä(Peli& peli) {
    Muuttujat& m = peli.m;
    const std::string_view kuvaus = METSÄSTÄJÄT[Rivi(peli, 5)];
    const KohdeRivi& kohde = METSÄSTÄJÄN_KOHTEET[Rivi(peli, 2)];
    Long& laskuri = m.El[kohde.laji][Naaras];
    if (!(laskuri > 0)) return std::nullopt;
    Lisää(laskuri, -(static_cast<double>(peli.arvonta.D(JakoKok(laskuri, 5))) + 1));
    return Kertomus(METSÄSTÄJÄ_RIVI, sattumakuva::Metsästäjä, std::string(kuvaus) + std::string(kohde.teksti));
}

namespace {
// A storm on a silo or store above 100: L = 50 x (D((size - (50k + 100)) / 50) + 1) with k = D(3);
// a draw not below the size leaves it alone. An L below 0 counts as 0: a storm never enlarges.
// Returns what the claim grows by.
double MyrskySäiliöön(Peli& peli, Single& koko) {
    if (!(koko > 100)) return 0;
    const double k = static_cast<double>(peli.arvonta.D(3));
    const double L = std::max(0.0, 50.0 * (static_cast<double>(peli.arvonta.D((koko - (50 * k + 100)) / 50.0)) + 1));
    if (!(koko > L)) return 0;
    Lisää(koko, -L);
    return static_cast<double>(peli.arvonta.D(1500)) * L / 50.0 + 500;
}
}  // namespace

Tulos Myrsky(Peli& peli) {
    Muuttujat& m = peli.m;
    const int sää = peli.näkymä.SääKuva;
    if (sää != SÄÄ_UKKONEN && sää != SÄÄ_RAEKUURO) return std::nullopt;
    Long T = 0;
    Aseta(T, MyrskySäiliöön(peli, m.Koko_Siilo));
    Lisää(T, MyrskySäiliöön(peli, m.Koko_Varasto));
    const double k = static_cast<double>(peli.arvonta.D(5));
    const double L = std::max(0.0, static_cast<double>(peli.arvonta.D(m.Koko_Navetta / (k + 4))) + 1);
    Lisää(m.Koko_Navetta, -L);
    Lisää(T, static_cast<double>(peli.arvonta.D(3000)) * L + 800);
    T = std::max<Long>(T, 100);
    std::string loppu;
    if (Vakuutettu(m, VakuutusPalo)) {
        Lisää(m.Raha, T);
        loppu = std::string(MYRSKY_KORVAUS) + Str(static_cast<long long>(T));
    }
    const std::string teksti = std::string(MYRSKYT[Rivi(peli, 5)]) + loppu;
    // What the wind leaves: feed beyond the smaller silo, and half the crops and honey.
    if (m.Var[Rehu] > m.Koko_Siilo) Aseta(m.Var[Rehu], JakoKok(m.Koko_Siilo, 2));
    for (Tuote t : {Marja, Vihannes, Hunaja, Vilja}) Puolita(m.Var[t]);
    return Kertomus(MYRSKY_RIVI, sattumakuva::Myrsky, teksti);
}

Tulos Karkaaminen(Peli& peli) {
    Muuttujat& m = peli.m;
    if (!(m.Laidun > 0 && m.Vuodenaika != "Talvi")) return std::nullopt;
    // The electric herder keeps most of them in.
    if (peli.arvonta.D(m.Tarv[Paimenpoika] ? 6 : 2) != 0) return std::nullopt;
    // P is drawn whatever the outcome.
    const Single P = CSng(Round((m.Raha / 10.0) * peli.arvonta.r()));
    const auto tulos = Rivi(peli, 4);
    std::string loppu(PAON_LOPUT[tulos]);
    if (tulos < PAKO_MAKSETAAN) {
        Lisää(m.Raha, -static_cast<double>(P));
        loppu += Str(P);
    }
    const std::string teksti = std::string(PAKOTEKSTIT[Rivi(peli, 3)]) + loppu;
    if (tulos >= PAKO_MAKSETAAN) {
        for (const Karkulainen& k : KARKULAISET) {
            Long& laskuri = m.El[k.laji][k.luokka];
            if (laskuri > 5) Lisää(laskuri, -static_cast<double>(peli.arvonta.D(5)));
        }
    }
    return Kertomus(PAKO_RIVI, sattumakuva::Pako, teksti);
}

}  // namespace tanhua::sattumat
