// Lawsuits and tax, the bookkeeper's events and the hygiene award: sums taken from or paid to the cash.
#include <algorithm>
#include <cmath>

#include "perheet.h"
#include "taulut/kuvat.h"
#include "taulut/oikeus.h"

namespace tanhua::sattumat {

namespace {
bool OikeusPortti(const Muuttujat& m, int numero) {
    switch (numero) {
        case 24: return m.Työ[Vahtikoira] > 0;
        case 25: return m.El[Kettu][Naaras] > 2 && m.Työ[Nahkuri] < 1;
        case 26: return m.Metsä > 0 && m.Työ[Metsuri] > 0;
        case 27: return m.Var[Lanta] > 0 && m.El[Sika][Naaras] > 0 && m.Hygienia < 60;
        default: return m.Raha > 100000;
    }
}
}  // namespace

Tulos Oikeusjuttu(Peli& peli, int numero) {
    Muuttujat& m = peli.m;
    if (!OikeusPortti(m, numero)) return std::nullopt;
    if (numero == 28) {
        const Single S = CSng(Round(m.Raha / 10.0 + peli.arvonta.r() * 1000) + 1);
        Lisää(m.Raha, -static_cast<double>(S));
        return Kertomus(VEROKARHU_RIVI, sattumakuva::Tuomari, std::string(VEROKARHU_TEKSTI) + Str(S),
                        sattumaääni::Koputus);
    }
    const OikeusRivi& rivi = *std::find_if(OIKEUSJUTUT.begin(), OIKEUSJUTUT.end(),
                                           [&](const OikeusRivi& r) { return r.numero == numero; });
    const double R = Round(m.Raha / 10.0);
    const double summa = R * peli.arvonta.r() + rivi.pohja;
    const Single S = CSng((rivi.pyöristys == Pyöristys::Alas ? std::floor(summa) : Round(summa)) + rivi.maksu);
    Lisää(m.Raha, -static_cast<double>(S));
    // The foxes that broke loose: a draw of them goes, and one more is counted back.
    if (numero == 25) Aseta(m.El[Kettu][Naaras], m.El[Kettu][Naaras] - static_cast<double>(peli.arvonta.D(m.El[Kettu][Naaras])) + 1);
    return Kertomus(rivi.rivi, sattumakuva::Tuomari, std::string(rivi.teksti) + Str(S), sattumaääni::Koputus);
}

Tulos Kirjanpito(Peli& peli, int numero) {
    Muuttujat& m = peli.m;
    const KirjanpitoRivi& rivi = KIRJANPITO[static_cast<std::size_t>(numero - KIRJANPITO.front().numero)];
    const bool kirjanpitäjä = m.Työ[Kirjanpitäjä] > 0;
    if (rivi.kirjanpitäjällä != kirjanpitäjä) return std::nullopt;
    // The bookkeeper finds money only for a farm short of it.
    if (kirjanpitäjä && !(m.Raha < 20000)) return std::nullopt;
    if (rivi.lähtijä && !(m.Työ[*rivi.lähtijä] > 0)) return std::nullopt;
    const Single S = CSng(static_cast<double>(peli.arvonta.D(rivi.arvonta)) + rivi.lisä);
    if (rivi.lähtijä) Lisää(m.Työ[*rivi.lähtijä], -1);
    Lisää(m.Raha, rivi.etumerkki * static_cast<double>(S));
    const std::string teksti = std::string(rivi.ennen) + Str(S) + std::string(rivi.jälkeen);
    return Kertomus(rivi.rivi, sattumakuva::Lakimies, teksti);
}

Tulos Hygieniapalkinto(Peli& peli) {
    Muuttujat& m = peli.m;
    if (!(m.Raha < 50000 && m.Työ[Siivooja] > 0 && m.Hygienia > 90)) return std::nullopt;
    const Single S = CSng(static_cast<double>(peli.arvonta.D(4000)) + 500);
    Lisää(m.Raha, S);
    return Kertomus(HYGIENIA_RIVI, sattumakuva::Lakimies, std::string(HYGIENIA_TEKSTI) + Str(S));
}

}  // namespace tanhua::sattumat
