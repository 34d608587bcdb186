// Derived values of the farm record that many rules share.
#include "state.h"

namespace tanhua {

double VarastoKuorma(const Muuttujat& m) {
    double kuorma = 0;
    for (std::size_t k = 0; k < TUOTTEITA; ++k) kuorma += m.Var[k] * TUOTETAULU[k].paino;
    return kuorma;
}

double Navettakuorma(const Muuttujat& m) {
    double kuorma = 0;
    for (std::size_t laji = 0; laji < LAJEJA; ++laji) kuorma += static_cast<double>(m.El[laji][Naaras]) + m.El[laji][Uros];
    return kuorma;
}

double Yksikköhinta(const Muuttujat& m, Tuote k) { return static_cast<double>(m.PerusHinta[k]) + m.Kurssi[k]; }

double TyöntekijöitäYhteensä(const Muuttujat& m) {
    double yht = 0;
    for (Long n : m.Työ) yht += n;
    return yht;
}

double RakennuksiaYhteensä(const Muuttujat& m) {
    double yht = 0;
    for (Byte taso : m.Rak) yht += taso;
    return yht;
}

double MaataYhteensä(const Muuttujat& m) {
    return static_cast<double>(m.Metsä) + m.Pelto + m.Joutomaa + m.Laidun;
}

}  // namespace tanhua
