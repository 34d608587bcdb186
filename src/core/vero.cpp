// The property tax of the month end.
#include "vero.h"

#include <array>

#include "state.h"

namespace tanhua {

namespace {
struct RakennusVero {
    Rakennus rakennus;
    double kerroin;  // the term is kerroin * (leveys * L)^2
    double leveys;
};
inline constexpr std::array RAKENNUSVEROT{
    RakennusVero{Ompelimo, 2, 5},      RakennusVero{Saha, 2, 5},         RakennusVero{Meijeri, 2, 5},
    RakennusVero{Leipomo, 2, 5},       RakennusVero{Teurastamo, 2, 5},   RakennusVero{Hevostalli, 2, 5},
    RakennusVero{Viinitehdas, 2, 5},   RakennusVero{Kasvihuone, 2, 3},   RakennusVero{Mylly, 2, 4},
    RakennusVero{Rehuntuotanto, 2, 4}, RakennusVero{Mehiläistarha, 2, 4}, RakennusVero{Marjatarha, 9, 1},
    RakennusVero{Pakkaamo, 2, 7},
};
static_assert(RAKENNUSVEROT.size() == RAKENNUKSIA);

struct EläinVero {
    Laji laji;
    Luokka luokka;
    double kerroin;
};
inline constexpr std::array ELÄINVEROT{
    EläinVero{Nauta, Naaras, 0.055},  EläinVero{Nauta, Uros, 0.052},   EläinVero{Hevonen, Naaras, 0.053},
    EläinVero{Hevonen, Uros, 0.05},   EläinVero{Sika, Naaras, 0.046},  EläinVero{Sika, Uros, 0.045},
    EläinVero{Lammas, Naaras, 0.047}, EläinVero{Lammas, Uros, 0.045},  EläinVero{Kettu, Naaras, 0.044},
    EläinVero{Kettu, Uros, 0.043},    EläinVero{Kana, Naaras, 0.038},  EläinVero{Kana, Uros, 0.036},
};
static_assert(ELÄINVEROT.size() == 2 * LAJEJA);

double Neliö(double x) { return x * x; }
}  // namespace

Long Omaisuusvero(const Muuttujat& m) {
    const double A = Round(Round(Neliö(m.Pelto) * 0.1) + Neliö(m.Metsä) * 0.01 + Neliö(m.Joutomaa) * 0.005 +
                           Neliö(m.Laidun) * 0.01);
    const double B = Round(A + (Neliö(m.Koko_Navetta) + Neliö(m.Koko_Siilo) + Neliö(m.Koko_Varasto)) * 0.00001);
    double C = B;
    for (const RakennusVero& r : RAKENNUSVEROT) C += r.kerroin * Neliö(r.leveys * m.Rak[r.rakennus]);
    double eläimet = 0;
    for (const EläinVero& e : ELÄINVEROT) eläimet += Neliö(static_cast<double>(m.El[e.laji][e.luokka])) * e.kerroin;
    const double D = Round(C + eläimet);
    double tarvikkeita = 0;
    for (Boolean omistettu : m.Tarv) tarvikkeita += omistettu ? 1 : 0;
    const double V = D + Neliö(tarvikkeita);
    return V < 50 ? 0 : CLng(V);
}

}  // namespace tanhua
