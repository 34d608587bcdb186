// The herd's month end: the young grow up in their species' months, and the adults breed.
#include "../core/peli.h"
#include "../core/viestit.h"
#include "eläimet.h"
#include "taulut/elinkaari.h"

namespace tanhua {

void Vanhentuminen(Peli& peli) {
    Muuttujat& m = peli.m;
    for (const IkäRivi& rivi : IKÄTAULU) {
        if (Mod(m.Kuukausi, rivi.jakso) != 1) continue;
        auto& el = m.El[rivi.laji];
        // One young in four grows into a male, at most one a species; a lone young is female.
        if (el[Nuori] > 1) {
            const double arpa = Int(peli.arvonta.r() * 4) + 1;
            if (arpa == 1) {
                Lisää(el[Nuori], -1);
                Lisää(el[Uros], 1);
            }
        }
        // The rest of the young become adult females, and the cubs take their place.
        Lisää(el[Naaras], el[Nuori]);
        Aseta(el[Nuori], el[Poikanen]);
        Aseta(el[Poikanen], 0);
    }
    m.Käyrät.Eläimiä.push_back(Str(CLng(Navettakuorma(m))));
}

void Lisääntyminen(Peli& peli) {
    Muuttujat& m = peli.m;
    const Long siementäjiä = m.Työ[Siementäjä];
    const double bonus = siementäjiä > 0 ? Round(Int(siementäjiä * 0.3) + 1 + m.Moti[Siementäjä]) : 0;

    std::array<double, LAJEJA> arpa{};
    for (std::size_t i = 0; i < PESUETAULU.size(); ++i) {
        const PesueRivi& rivi = PESUETAULU[i];
        arpa[i] = Round(Int(peli.arvonta.r() * rivi.n) - bonus - JakoKok(m.El[rivi.laji][Naaras], rivi.d));
    }

    // The room is judged against the herd as it stood before this month's births.
    const double päitä = EläimiäKaikkiaan(m);
    bool uroksia = false;
    for (const auto& laji : m.El) uroksia = uroksia || laji[Uros] > 0;
    if (!(m.Koko_Navetta > päitä) && (uroksia || siementäjiä > 0))
        LisääListaan(peli, "Eläimesi ei voi lisääntyä tilanpuutteen vuoksi!");

    std::array<double, LAJEJA> pesue{};
    pesue.fill(1);
    for (Laji laji : PESUEIDEN_ARVONTA) {
        for (const PesueRivi& rivi : PESUETAULU) {
            if (rivi.laji != laji) continue;
            const bool hautomo = laji == Kana && m.Tarv[Hautomo];
            const int jako = hautomo ? rivi.hautomoJako : rivi.jako;
            const int perus = hautomo ? rivi.hautomoPerus : rivi.perus;
            pesue[laji] = Int(peli.arvonta.r() * JakoKok(m.El[laji][Naaras], jako) + perus) + 1;
        }
    }

    for (std::size_t i = 0; i < PESUETAULU.size(); ++i) {
        auto& el = m.El[PESUETAULU[i].laji];
        const double poikasia = pesue[PESUETAULU[i].laji];
        if (m.Koko_Navetta > päitä + poikasia && arpa[i] <= 1 && (el[Uros] > 0 || siementäjiä > 0) && el[Naaras] > 0)
            Lisää(el[Poikanen], poikasia);
    }
}

}  // namespace tanhua
