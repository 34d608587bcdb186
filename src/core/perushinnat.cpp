// Base prices: the product and land tables at the farm's difficulty, plus the supply bonuses.
#include "perushinnat.h"

#include <array>

#include "peli.h"
#include "vikatila.h"

namespace tanhua {

namespace {
struct Lisä {
    Tarvike tarvike;
    Tuote tuote;
    int määrä;
};

// In the order the bonuses are added; an item may raise more than one product.
inline constexpr std::array TARVIKELISÄT{
    Lisä{Kutomakone, Vaate, 1},        Lisä{Teollisuusrukki, Villa, 1},  Lisä{Separointikone, Maito, 1},
    Lisä{Pastörointikammio, Maito, 1}, Lisä{Kirnu, Juusto, 1},           Lisä{Kirnu, Maito, 1},
    Lisä{Lantasäiliö, Lanta, 1},       Lisä{Teollisuusuuni, Leipä, 1},   Lisä{Teollisuusuuni, Leivos, 1},
    Lisä{Kylmiö, Makkara, 2},          Lisä{Kylmiö, Liha, 1},            Lisä{Käymissäiliö, Viini, 2},
    Lisä{Turkiskuivaamo, Turkki, 100}, Lisä{Kaavintakone, Turkki, 50},
};

std::string PerusHintaLaatikko(const Vika& vika) {
    std::string t = "Tanhua suoritti vikatilan perus hintojen määrittelyssä.\n";
    if (vika.Numero() == VIKA_YLIVUOTO) {
        t += "Jokin arvo hinnoissa ylitti maksimi rajan.\n"
             "Jos tämä viesti ei tullut tilannetta ladattaessa, ilmoita asiasta pelin tekijälle.";
    } else {
        t += "Vian numero : " + std::to_string(vika.Numero()) + ". Vika selite : " + vika.Selite() +
             "\nTanhua yrittää jatkaa peliä normaalisti, mutta vika saattaa aiheuttaa tilanteessasi "
             "häiriöitä.\nIlmoita tästä viasta pelin tekijälle.";
    }
    return t;
}
}  // namespace

void PerusHinnat(Peli& peli) {
    Muuttujat& m = peli.m;
    const double v = m.Vaikeustaso;
    OmallaLaatikolla(peli, paikka::Perushinnat, [&] {
        for (std::size_t k = 0; k < TUOTTEITA; ++k)
            Aseta(m.PerusHinta[k], TUOTETAULU[k].hinta0 + TUOTETAULU[k].hintaPerTaso * v);
        for (std::size_t k = 0; k < MAITA; ++k)
            Aseta(m.PerusMaa[k], static_cast<double>(MAATAULU[k].hinta0) + MAATAULU[k].hintaPerTaso * v);
        for (std::size_t k = 0; k < KASVEJA; ++k) Aseta(m.Siemen[k], SIEMENKERTOIMET[k]);
    }, PerusHintaLaatikko);
    OmallaLaatikolla(peli, paikka::Perushinnat, [&] {
        for (const Lisä& lisä : TARVIKELISÄT)
            if (m.Tarv[lisä.tarvike]) Lisää(m.PerusHinta[lisä.tuote], lisä.määrä);
    }, PerusHintaLaatikko);
}

}  // namespace tanhua
