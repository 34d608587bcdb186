// The score of the career: net cash and holdings weighed, the start taken out by difficulty.
#include <array>

#include "../core/kanavat.h"
#include "../core/peli.h"
#include "tilanne.h"

namespace tanhua {

namespace {

// Buildings that count in the score: all thirteen.
constexpr std::array<Rakennus, 13> PISTERAKENNUKSET{Kasvihuone, Saha, Meijeri, Mylly, Ompelimo, Leipomo, Teurastamo,
                                                   Rehuntuotanto, Hevostalli, Marjatarha, Viinitehdas,
                                                   Mehiläistarha, Pakkaamo};
// Staff that count: 14 kinds; the butcher, the watchdog and the inseminator do not.
constexpr std::array<Työläinen, 14> PISTETYÖLÄISET{Puutarhuri, Nahkuri, Leipuri, Metsuri, Ompelija,
                                                  Meijerityöntekijä, Siivooja, Mylläri, Kirvesmies, Kirjanpitäjä,
                                                  Tallimestari, Viinimestari, Mehiläishoitaja, Varastotyöntekijä};

struct Taso {
    const char* nimi;
    double vähennys, jakaja;
};
// The easier the level, the more was given at the start and the larger the divisor.
constexpr std::array<Taso, 3> TASOT{{{"Helppo", 15000, 120}, {"Normaali", 10000, 100}, {"Vaikea", 8000, 80}}};

const Taso& TasoOf(const Muuttujat& m) { return TASOT[m.Vaikeustaso < TASOT.size() ? m.Vaikeustaso : 1]; }

double Aikuiset(const Muuttujat& m, Laji laji) {
    return static_cast<double>(m.El[laji][Naaras]) + m.El[laji][Uros];
}

struct Laskut {
    double maa = 0, rakennukset = 0, työntekijät = 0, eläimet = 0;
};

Laskut Laske(const Muuttujat& m) {
    Laskut l;
    l.maa = Int(static_cast<double>(m.Metsä) + m.Pelto + m.Joutomaa + m.Laidun);
    for (Rakennus r : PISTERAKENNUKSET) l.rakennukset += m.Rak[r];
    for (Työläinen t : PISTETYÖLÄISET) l.työntekijät += m.Työ[t];
    for (std::size_t laji = 0; laji < LAJEJA; ++laji) l.eläimet += Aikuiset(m, static_cast<Laji>(laji));
    return l;
}

Single Nettokäteinen(const Muuttujat& m) { return CSng(static_cast<double>(m.Tili) + m.Raha - m.Laina); }

}  // namespace

std::string MääräTeksti(double x) {
    if (x < 1000000) return Luku(static_cast<Single>(x));
    if (x < 1000000000) return Luku(Round(x / 1000000, 2)) + " Miljoonaa";
    return Luku(Round(x / 1000000000, 1)) + " Miljardia";
}

Single Pisteet(const Muuttujat& m, int tarvikkeita) {
    const Laskut l = Laske(m);
    // Every step is stored in a Single, as the score is.
    Single p = Nettokäteinen(m);
    const std::array<double, 9> lisät{
        l.maa * 8000,
        l.rakennukset * 10000,
        l.työntekijät * 1000,
        static_cast<double>(tarvikkeita) * 1000,
        Aikuiset(m, Kana) * 500,
        (Aikuiset(m, Lammas) + Aikuiset(m, Sika) + Aikuiset(m, Kettu)) * 3000,
        Aikuiset(m, Nauta) * 5000,
        Aikuiset(m, Hevonen) * 7000,
        (static_cast<double>(m.SopimuksiaLäpi) - m.SopimuksiaEpä) * 100,
    };
    for (double lisä : lisät) p = CSng(static_cast<double>(p) + lisä);
    const Taso& taso = TasoOf(m);
    p = CSng(static_cast<double>(p) - taso.vähennys);
    // Floored downward: a score of -0.6 is -1.
    return CSng(Int(static_cast<double>(p) / taso.jakaja));
}

std::vector<std::string> PisteRaportti(const Muuttujat& m, int tarvikkeita, Single pisteet) {
    const Laskut l = Laske(m);
    auto luku = [](double x) { return Luku(static_cast<long long>(x)); };
    return {
        "      Tämänhetkinen tilanteesi",
        "",
        std::string("      Vaikeustaso : ") + TasoOf(m).nimi,
        "      Nettokäteinen : " + MääräTeksti(Nettokäteinen(m)),
        "      Maaomistukset : " + luku(l.maa),
        "      Eläimet : " + luku(l.eläimet),
        "      Rakennuksia : " + luku(l.rakennukset),
        "      Työntekijöitä : " + luku(l.työntekijät),
        "      Tarvikkeita : " + std::to_string(tarvikkeita),
        // Machines are counted among the supplies.
        "      Työkoneita : 0",
        "      Sopimusten saldo : " + Str(static_cast<long long>(m.SopimuksiaLäpi) - m.SopimuksiaEpä),
        "",
        "      Tämänhetkiset pisteesi : " + MääräTeksti(pisteet),
        "",
    };
}

void LaskePisteet(Peli& peli) {
    TilanneRuutuTila& r = peli.tilanneruutu;
    const int tarvikkeita = static_cast<int>(peli.tarvikeruutu.Tavarat.size());
    r.Alue.clear();
    r.Pisteet = Pisteet(peli.m, tarvikkeita);
    r.Alue = PisteRaportti(peli.m, tarvikkeita, r.Pisteet);
    RaporttiSivu alue{"Tilanne", 12, {}};
    for (const std::string& rivi : r.Alue) alue.rivit.push_back({MUSTA, 0, rivi});
    peli.kanavat.Alue(alue);
}

}  // namespace tanhua
