// The accountant's automatic sale on the sale days, and the topping up of the silo.
#include "../core/peli.h"
#include "../core/pääruutu.h"
#include "myynti.h"
#include "taulut/tuoteruutu.h"

namespace tanhua {

namespace {

// One product by its box: all of the stock or half of it at the market price with the season offset.
void MyyAutomaattisesti(Muuttujat& m, Tuote k) {
    const double jakaja = m.Tuotteet.MyyTyyli[k] == "Kaikki" ? 1 : 2;
    const double lisä = k == Lanta ? 0 : Kausilisä(m, k);
    const double varasto = m.Var[k];
    const Long summa =
        JakoKok(CLng((static_cast<double>(m.Kurssi[k]) + m.PerusHinta[k] + lisä) * varasto), jakaja);
    Lisää(m.Liikevaihto, summa);
    Lisää(m.Raha, summa);
    if (m.PakkaamoKäsitelty < m.PakkaamoMax && m.Työ[Varastotyöntekijä] > 0) {
        Lisää(m.PakkaamoTulot, summa * static_cast<double>(m.PakkaamoKerroin));
        Lisää(m.PakkaamoKäsitelty, Round(varasto / jakaja));
    }
    Lisää(m.Tulo[k], summa);
    // Furs go by whole pieces cut down; the rest round to the even number.
    Lisää(m.Var[k], -(k == Turkki ? Int(varasto / jakaja) : Round(varasto / jakaja)));
    // A last single unit under "Puolet" goes with the sale; a last bottle of wine stays.
    if (k != Viini && m.Var[k] / jakaja == 0.5) Aseta(m.Var[k], 0);
}

// The silo filled at the market price, or as far as the cash goes.
void OstaRehuAutomaattisesti(Muuttujat& m) {
    const double hinta = static_cast<double>(m.Kurssi[Rehu]) + m.PerusHinta[Rehu];
    const double tilaa = static_cast<double>(m.Koko_Siilo) - m.Var[Rehu];
    if (m.Raha >= hinta * tilaa) {
        Lisää(m.Raha, -hinta * tilaa);
        Lisää(m.Tulo[Rehu], -hinta * tilaa);
        Lisää(m.Liikevaihto, -hinta * tilaa);
        Aseta(m.Var[Rehu], m.Koko_Siilo);
    } else if (m.Raha >= 1) {
        if (hinta == 0) NostaVika(VIKA_NOLLAJAKO);
        // The counters fall by the kilos bought; the change is lost.
        const double kilot = Int(m.Raha / hinta);
        Lisää(m.Liikevaihto, -kilot);
        Lisää(m.Tulo[Rehu], -kilot);
        Lisää(m.Var[Rehu], kilot);
        Aseta(m.Raha, 0);
    }
}

}  // namespace

void AutoMyynti(Peli& peli) {
    Muuttujat& m = peli.m;
    if (m.Työ[Kirjanpitäjä] <= 0) return;
    for (Tuote k : AUTOMYYNTIJÄRJESTYS)
        if (m.Tuotteet.Myy[k] == 1) MyyAutomaattisesti(m, k);
    Päivitälukemat(peli);
    if (m.Tuotteet.Myy[Rehu] == 1) OstaRehuAutomaattisesti(m);
}

}  // namespace tanhua
