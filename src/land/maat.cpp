// The land's day and month: the forester's felling, the grain of the fields and the monthly
// replanting of waste land.
#include "maat.h"

#include "../buildings/jalostus.h"
#include "../core/peli.h"
#include "../core/viestit.h"

namespace tanhua {

namespace {

// One forester's pass. The draws come in the rule's order: the overtime bonus (only with
// overtime on), the logs, then the forest machine's extra.
void Hakkuukierros(Peli& peli) {
    Muuttujat& m = peli.m;
    const bool kone = m.Tarv[Metsäkone];
    double x = 0;
    if (m.Ylityö[Metsuri]) {
        x = Int(2 * peli.arvonta.r());
        Lisää(m.YlityöPalkat, Int(m.Palkka[Metsuri] / 50.0) * x);
    }
    double A = Int(2 * peli.arvonta.r()) + 2 + m.Moti[Metsuri] + x + 1;
    if (kone) A += Int(3 * peli.arvonta.r()) + 1;
    if (static_cast<double>(m.MetsääJäljellä) - A >= 0) {
        Lisää(m.Var[Puu], A);
        // The hectare shrinks by the crew's size at each pass, not by the logs.
        const double d = static_cast<double>(m.Työ[Metsuri]) * (kone ? 2 : 1);
        Lisää(m.MetsääJäljellä, -d);
        Lisää(m.PuutaHakattu, d);
    } else {
        Aseta(m.MetsääJäljellä, 0);
    }
    if (m.Viikonloppu) Lisää(m.YlityöPalkat, Int(m.Palkka[Metsuri] / 15.0));
}

}  // namespace

void Metsänhakkuu(Peli& peli) {
    Muuttujat& m = peli.m;
    if (m.Työ[Metsuri] <= 0) return;
    if (m.Metsä >= 0 && (!m.Viikonloppu || m.Ylityö[Metsuri]))
        for (long long i = 0; i < m.Työ[Metsuri]; ++i) Hakkuukierros(peli);
    // On any day with a forester: a felled hectare turns to waste land and the next one starts.
    if (m.Metsä > 0 && m.MetsääJäljellä < 1) {
        Aseta(m.MetsääJäljellä, 100);
        Lisää(m.Metsä, -1);
        Lisää(m.Joutomaa, 1);
    }
    if (m.Metsä < 1 && m.MetsääJäljellä < 50 && m.MetsääJäljellä > 2)
        LisääListaan(peli, "Metsurisi on kaatanut lähes kaiken metsäsi. " + Str(m.MetsääJäljellä) + " % jäljellä.");
    if (m.Metsä < 1 && m.MetsääJäljellä <= 2) LisääListaan(peli, "Metsurisi on kaatanut kaiken metsäsi.");
}

Long Metsitys(Peli& peli) {
    Muuttujat& m = peli.m;
    Long kulut = 0;
    if (!(m.Pellot_Metsitä == 1 && m.Joutomaa > 0 && m.Työ[Metsuri] > 0)) return kulut;
    // One round more than there are foresters; the money is tested before the land.
    for (long long kierros = 0; kierros < static_cast<long long>(m.Työ[Metsuri]) + 1; ++kierros) {
        if (m.Raha < 1000) {
            LisääListaan(peli, "Metsän istuttamiseen ei ole varaa.");
            break;
        }
        if (m.Joutomaa < 1) break;
        Lisää(m.Joutomaa, -1);
        Lisää(m.Metsä, 1);
        Lisää(m.Raha, -1000);
        Lisää(kulut, 1000);
    }
    return kulut;
}

void Viljankasvu(Peli& peli) {
    Muuttujat& m = peli.m;
    if (m.Vuodenaika == "Talvi") return;
    // Within a day the season block's value, pollination included; on its own the value afresh.
    const double S = peli.päivänKausiarvo ? *peli.päivänKausiarvo : Kausiarvo(m);
    if (m.Pelto <= 0) return;
    // Manure: up to a kilo a hectare, never more than a third of the stock.
    double D = 0;
    if (m.LantaPeltoon) {
        const Long kolmannes = JakoKok(CLng(m.Var[Lanta]), 3);
        D = m.Pelto < kolmannes ? static_cast<double>(m.Pelto) : kolmannes;
        Lisää(m.Var[Lanta], -D);
    }
    // One pass more than the hectares, one draw each.
    const double kerroin = Int(D * 0.1 + S);
    const long long kierroksia = CLng(m.Pelto);  // counted wider, so the last pass can't overflow the count
    double G = 0;
    for (long long i = 0; i <= kierroksia; ++i) G += kerroin * peli.arvonta.r() * 0.1;
    Lisää(m.Var[Vilja], Int(G));
    Lisää(m.ViljaaTuotettu, Round(G));
}

}  // namespace tanhua
