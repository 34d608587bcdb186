// The herd at the silo: the day's feed, starvation with the welfare fine, and the low-feed warning.
#include <string>

#include "../core/peli.h"
#include "../core/viestit.h"
#include "eläimet.h"
#include "taulut/elinkaari.h"

namespace tanhua {

Long RehuTarve(const Muuttujat& m) {
    const auto& el = m.El;
    auto kaikki = [&](Laji laji) {
        return static_cast<double>(el[laji][Naaras]) + el[laji][Nuori] + el[laji][Poikanen] + el[laji][Uros];
    };
    const double kettuja = static_cast<double>(el[Kettu][Naaras]) + el[Kettu][Nuori] + el[Kettu][Poikanen];
    return CLng(0.5 * kaikki(Kana) + 5 * (kaikki(Nauta) + kaikki(Hevonen)) + 3 * (kaikki(Sika) + kaikki(Lammas)) +
                kettuja + 2.0 * el[Kettu][Uros]);
}

void Ruokinta(Peli& peli) {
    Muuttujat& m = peli.m;
    // Both figures are taken before anyone eats or starves.
    const double laidun = LaidunKerroin(m);
    const Long tarve = RehuTarve(m);
    peli.päivänRehuTarve = tarve;  // the feed plant reads the estimate the feeding took

    for (const RuokintaRivi& rivi : RUOKINTATAULU) {
        const Long päitä = m.El[rivi.laji][rivi.luokka];
        if (päitä <= 0) continue;
        double päivässä = 0;
        // One pass more than there are heads.
        for (long long i = 0; i <= päitä; ++i) {
            double määrä = rivi.perus;
            if (rivi.arvonta > 0) {
                const double x = Int(rivi.arvonta * peli.arvonta.r()) + rivi.lisä;
                määrä += (rivi.laiduntaa ? laidun : 1.0) * x;
            }
            päivässä += määrä;
        }
        Lisää(m.Var[Rehu], -päivässä);
        // The counter is whole: the month's sum is what gets rounded, not the day's share.
        Lisää(m.Syönti[rivi.laji], päivässä);
    }

    // Exactly one kilo left is enough to get through the day.
    if (m.Var[Rehu] < 1) {
        Nälkäkuolemat(peli);
        Aseta(m.Var[Rehu], 0);
    }

    if (m.Var[Rehu] < 4.0 * tarve) {
        const std::string jäljellä = Luku(m.Var[Rehu]);
        if (m.Raha > 0)
            LisääListaan(peli, "Rehua jäljellä " + jäljellä + " Kg!!");
        else if (m.Tuotteet.Myy[Rehu] != 0 && m.Työ[Kirjanpitäjä] > 0)
            LisääListaan(peli, "Rehua jäljellä " + jäljellä + " Kg ja rahat loppu!");
        else if (m.Tuotteet.Myy[Rehu] != 0)
            LisääListaan(peli, "Rehua " + jäljellä + " Kg, Rehun automaattiostoon ei varaa!");
        else
            LisääListaan(peli, "Rehua jäljellä " + jäljellä + " Kg eikä ole varaa ostaa lisää.");
    }
}

void Nälkäkuolemat(Peli& peli) {
    Muuttujat& m = peli.m;
    bool kuoli = false;
    for (const NälkäRivi& rivi : NÄLKÄTAULU) {
        // Every kind draws, whether or not it has heads, so the later kinds' draws don't move.
        const double t = Round(Int(peli.arvonta.r() * rivi.n) - m.Vaikeustaso + m.Hygienia / 50.0);
        Long& päitä = m.El[rivi.laji][rivi.luokka];
        if (t <= 1 && päitä > 0) {
            Lisää(päitä, -1);
            LisääListaan(peli, std::string(rivi.rivi));
            kuoli = true;
        }
    }

    // The animal welfare office comes on one day in five, when there is cash to take.
    if (kuoli && m.Raha > 1000 && Int(peli.arvonta.r() * 5) == 0) {
        const double sakko = Round(Round(m.Raha / 5.0) * peli.arvonta.r()) + 1;
        Lisää(m.Raha, -Int(sakko));
        LisääListaan(peli, "Eläinsuojeluvirasto sakotti " + Str(sakko));
        Kerro(peli, "Kuvat/sattumat/tuomari.jpg",
              "Eläinsuojeluviranomaiset tulivat tilallesi ja antoivat eläinten nälkäkuolemista sakkoa sinulle :" +
                  Str(sakko));
        SoitaÄäni(peli, "Koputus");
    }
    // The animal screen reads its twelve counters from the record when it is shown.
}

}  // namespace tanhua
