// Theft, fire, animal activists and a broken supply: what is lost and what the insurance pays.
#include <algorithm>

#include "../buildings/tarvikkeet.h"
#include "perheet.h"
#include "taulut/kuvat.h"
#include "taulut/vahingot.h"

namespace tanhua::sattumat {

namespace {
// A stock partly stolen: D(stock) goes, and the claim grows by 1.3 times its base price each.
void Varasta(Peli& peli, Tuote tuote, Single& korvaus) {
    Muuttujat& m = peli.m;
    if (!(m.Var[tuote] > 0)) return;
    const double viety = static_cast<double>(peli.arvonta.D(m.Var[tuote]));
    Lisää(m.Var[tuote], -viety);
    Lisää(korvaus, viety * 1.3 * m.PerusHinta[tuote]);
}
}  // namespace

Tulos Varkaus(Peli& peli) {
    Muuttujat& m = peli.m;
    if (!(m.Raha > 8000)) return std::nullopt;
    const double n = 3.0 + m.Työ[Vahtikoira] + (m.Tarv[Varashälytin] ? 2 : 0);
    if (peli.arvonta.D(n) + 1 > 2) return std::nullopt;
    const double viety = Round(Round(m.Raha / 5.0) * peli.arvonta.r()) + 1;
    Lisää(m.Raha, -viety);
    Single korvaus = CSng(static_cast<double>(peli.arvonta.D(viety * 1.5)));
    Varasta(peli, Vaate, korvaus);
    Varasta(peli, Viini, korvaus);
    std::string teksti(VARKAUS_TEKSTI);
    if (Vakuutettu(m, VakuutusVarkaus)) {
        Lisää(m.Raha, korvaus);
        teksti += std::string(VARKAUS_KORVAUS) + Str(korvaus);
    }
    const auto kuva = peli.arvonta.D(2) == 0 ? sattumakuva::Varkaita : sattumakuva::Varkaita2;
    return Kertomus(VARKAUS_RIVI, kuva, teksti, sattumaääni::Kolina);
}

namespace {
// The capacity a silo or store fire takes: 50 x (D((size - (100 + 50a)) / 50) + 1), at most 1,000.
double SäiliönMenetys(Peli& peli, Single koko, int a) {
    const double L = 50.0 * (static_cast<double>(peli.arvonta.D((koko - (100.0 + 50 * a)) / 50.0)) + 1);
    return std::min(L, 1000.0);
}
}  // namespace

Tulos Tulipalo(Peli& peli) {
    Muuttujat& m = peli.m;
    const int a = m.Tarv[Palohälytin] ? 1 : 0;
    // An alarm puts most fires out before they start.
    if (a == 1 && peli.arvonta.D(3) != 0) return std::nullopt;
    const auto paikka = static_cast<Palopaikka>(Rivi(peli, PALOPAIKAT.size()));
    auto kuva = peli.arvonta.D(2) == 0 ? sattumakuva::Tulipalo : sattumakuva::Tulipalo2;
    Single korvaus = 0;
    if (paikka == PaloNavetta) {
        if (!(m.Koko_Navetta > 9 + 5 * a)) return std::nullopt;
        const double L = std::min(static_cast<double>(peli.arvonta.D(m.Koko_Navetta / (4.0 + a))) + 1, 100.0);
        Aseta(korvaus, static_cast<double>(peli.arvonta.D(3000)) * L + 1000);
        Lisää(m.Koko_Navetta, -L);
    } else {
        Single& koko = paikka == PaloSiilo ? m.Koko_Siilo : m.Koko_Varasto;
        if (!(koko > 150 + 50 * a)) return std::nullopt;
        const double L = SäiliönMenetys(peli, koko, a);
        Aseta(korvaus, static_cast<double>(peli.arvonta.D(2000)) * L / 50.0 + 500);
        Lisää(koko, -L);
        if (paikka == PaloSiilo) {
            // Half the feed burns; what still doesn't fit the smaller silo is half the silo.
            Puolita(m.Var[Rehu]);
            if (m.Var[Rehu] > m.Koko_Siilo) Aseta(m.Var[Rehu], JakoKok(m.Koko_Siilo, 2));
        } else {
            for (std::size_t k = 0; k < TUOTTEITA; ++k)
                if (k != Rehu) Puolita(m.Var[k]);
        }
        kuva = sattumakuva::Tulipalo;
    }
    std::string teksti(PALOPAIKAT[paikka].teksti);
    if (Vakuutettu(m, VakuutusPalo)) {
        Lisää(m.Raha, korvaus);
        teksti += std::string(PALO_KORVAUS) + Str(korvaus);
    }
    return Kertomus(PALOPAIKAT[paikka].rivi, kuva, teksti, sattumaääni::Tuli);
}

Tulos Aktivistit(Peli& peli, const Laskurit& laskurit) {
    Muuttujat& m = peli.m;
    if (!(laskurit.EläimiäYhteensä > 0)) return std::nullopt;
    const double n = 3.0 + m.Työ[Vahtikoira] + (m.Tarv[Varashälytin] ? 1 : 0);
    if (peli.arvonta.D(n) + 1 > 2) return std::nullopt;
    Single korvaus = 0;
    for (std::size_t i = 0; i < AKTIVISTIT.size(); ++i) {
        const AktivistiRivi& rivi = AKTIVISTIT[i];
        Long& c = m.El[rivi.laji][Naaras];
        if (!(c > 2)) continue;
        const double vapaaksi = static_cast<double>(peli.arvonta.D(JakoKok(c, 3))) + 1;
        Lisää(c, -vapaaksi);
        // The foxes set the claim; each kind after them adds to what there is.
        const double ennen = i == 0 ? 0.0 : static_cast<double>(korvaus);
        Aseta(korvaus, static_cast<double>(peli.arvonta.D(rivi.arvonta)) * vapaaksi + ennen + rivi.lisä);
    }
    std::string teksti(AKTIVISTI_TEKSTI);
    if (Vakuutettu(m, VakuutusVarkaus)) {
        Lisää(m.Raha, korvaus);
        teksti += std::string(AKTIVISTI_KORVAUS) + Str(korvaus);
    }
    return Kertomus(AKTIVISTI_RIVI, sattumakuva::Aktivisti, teksti, sattumaääni::Kolina);
}

namespace {
// The supplies that leave the farm when they break; the packing plant's belt and the machines are
// told as broken but stay.
bool LähteeRikki(TarvikeRivinro rivi) {
    if (rivi < 0 || rivi >= AURA) return false;
    const Tarvike k = static_cast<Tarvike>(rivi);
    return k != Liukuhihna && TARVIKETAULU[k].lista != Työkoneet;
}
}  // namespace

Tulos Rikkoutuminen(Peli& peli) {
    Muuttujat& m = peli.m;
    const auto& tavarat = peli.tarvikeruutu.Tavarat;
    if (tavarat.empty()) return std::nullopt;
    const TarvikeRivinro rivi = tavarat[Rivi(peli, tavarat.size())];
    std::string loppu;
    if (Vakuutettu(m, VakuutusTarvike)) {
        const double S = static_cast<double>(peli.arvonta.D(5000)) + 1000;
        Lisää(m.Raha, S);
        loppu = std::string(RIKKO_KORVAUS) + Str(CSng(S));
    }
    const RikkoRivi& t = RIKKOUTUMISET[Rivi(peli, 5)];
    const std::string teksti = std::string(t.ennen) + std::string(TarvikkeenNimi(rivi)) + std::string(t.jälkeen) + loppu;
    if (LähteeRikki(rivi)) PalautaKauppaan(peli, static_cast<Tarvike>(rivi));
    return Kertomus(RIKKO_RIVI, sattumakuva::Korjaaja, teksti);
}

}  // namespace tanhua::sattumat
