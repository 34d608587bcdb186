// The bank's month: the loan, the deposit and the insurance premiums.
#include "pankki.h"

#include <array>

#include "../core/peli.h"

namespace tanhua {

Long LainaKuukausi(Peli& peli) {
    Muuttujat& m = peli.m;
    Long p = 0;
    if (m.Laina > 0) {
        Lisää(m.Laina, static_cast<double>(m.Laina) * m.LainaKorko * 0.001);
        if (m.Lyhennysvapaa > 0) Aseta(m.Lyhennysvapaa, m.Lyhennysvapaa - 1);
        if (m.Lyhennysvapaa == 0) {
            // A quarter of what stands, or the whole rest once it is under 600.
            p = CLng(m.Laina < 600 ? Int(m.Laina) : Int(m.Laina / 4.0));
            Lisää(m.Raha, -p);
            Lisää(m.Laina, -p);
            if (m.Laina < 1) Aseta(m.Laina, 0);
            Aseta(m.Raha, Int(m.Raha));
        }
        Aseta(m.Laina, Round(m.Laina, 2));
    }
    if (m.Tili > 0) {
        Lisää(m.Tili, static_cast<double>(m.Tili) * (0.002 - m.Vaikeustaso * 0.0005));
        Aseta(m.Tili, Round(m.Tili, 2));
    }
    return p;
}

namespace {
double OmistetutTarvikkeet(const Muuttujat& m) {
    double n = 0;
    for (Boolean omistettu : m.Tarv) n += omistettu ? 1 : 0;
    return n;
}
}  // namespace

void PäivitäVakuutus(Peli& peli) {
    Muuttujat& m = peli.m;
    // The capacities are taken as whole numbers before the integer division.
    const double B = static_cast<double>(JakoKok(CLng(m.Koko_Siilo), 10)) + JakoKok(CLng(m.Koko_Navetta), 2) +
                     JakoKok(CLng(m.Koko_Varasto), 10) + m.Rak[Ompelimo] + m.Rak[Saha] + m.Rak[Meijeri] +
                     m.Rak[Kasvihuone] + m.Rak[Mylly] + m.Rak[Leipomo] + m.Rak[Teurastamo] + m.Rak[Rehuntuotanto] +
                     m.Rak[Hevostalli] + m.Rak[Viinitehdas];
    const auto& El = m.El;
    double työ = 0;
    for (std::size_t k = 0; k < TYÖLÄISIÄ; ++k)
        if (k != Mehiläishoitaja && k != Varastotyöntekijä) työ += m.Työ[k];
    std::array<double, VAKUUTUKSIA> maksu{};
    maksu[VakuutusPalo] = B + 10;
    maksu[VakuutusVarkaus] = Int(m.Raha / 5000.0 + m.Tili / 5000.0 + JakoKok(B, 300)) + 10;
    maksu[VakuutusEläin] = 2.0 * (static_cast<double>(El[Sika][Naaras]) + El[Lammas][Naaras] + El[Kettu][Naaras]) +
                           El[Kana][Naaras] + 3.0 * (static_cast<double>(El[Hevonen][Naaras]) + El[Nauta][Naaras]) + 20;
    maksu[VakuutusTyö] = 100 * työ + 100;
    maksu[VakuutusTarvike] = 15 * OmistetutTarvikkeet(m);
    for (std::size_t i = 0; i < VAKUUTUKSIA; ++i) m.Pankki.Vakumaksu[i] = Suoraan(Str(maksu[i]));
}

void LaskeVaku(Peli& peli) {
    Muuttujat& m = peli.m;
    Aseta(m.Vakuutusmaksut, 0);
    for (Vakuutus v : {VakuutusPalo, VakuutusVarkaus, VakuutusEläin, VakuutusTyö, VakuutusTarvike})
        if (m.Pankki.Vakuutus[v] == 1) Lisää(m.Vakuutusmaksut, Int(Val(m.Pankki.Vakumaksu[v])));
}

}  // namespace tanhua
