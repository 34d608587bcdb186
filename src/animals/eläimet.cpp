// The herd's day: hygiene with the cleaner's overtime, the output of milk, wool, eggs and manure,
// the pasture factor, and the month's feed bills.
#include "eläimet.h"

#include <algorithm>
#include <functional>

#include "../core/peli.h"
#include "../core/viestit.h"
#include "../core/vikatila.h"

namespace tanhua {

namespace {

// A supply owned counts as one more in the output formulas.
double Lippu(Boolean omistettu) { return omistettu ? 1.0 : 0.0; }

// The hygiene check keeps going past its own failures: each statement that fails shows the
// plain box and the next one runs, so an overflowing figure leaves the old one standing.
void HygieniaLause(Peli& peli, const std::function<void()>& lause) {
    try {
        lause();
    } catch (...) {
        peli.kanavat.Laatikko("Vika hygienia tarkastuksessa");
    }
}

}  // namespace

double EläimiäKaikkiaan(const Muuttujat& m) {
    double n = 0;
    for (const auto& laji : m.El)
        for (Long luokka : laji) n += luokka;
    return n;
}

void EläintenKunto(Peli& peli) {
    Muuttujat& m = peli.m;
    double n = 0, perus = 0, siivous = 0;
    HygieniaLause(peli, [&] { n = CLng(EläimiäKaikkiaan(m)); });
    if (n <= 0) {
        // An empty barn is clean whatever the staff, and no overtime runs up.
        HygieniaLause(peli, [&] { Aseta(m.Hygienia, 100); });
        return;
    }
    HygieniaLause(peli, [&] {
        perus = (10 - n) * 10 + Lippu(m.Tarv[Syöttölinjasto]);
        if (perus < 0) perus = 0;
    });
    HygieniaLause(peli, [&] {
        siivous = 21.0 - m.Vaikeustaso + 10.0 * m.Moti[Siivooja] + (m.Ylityö[Siivooja] ? 10.0 : 0.0);
    });
    HygieniaLause(peli, [&] { Aseta(m.Hygienia, siivous * m.Työ[Siivooja] / n * 100 + perus); });
    HygieniaLause(peli, [&] { if (m.Hygienia < 0) Aseta(m.Hygienia, 0); });
    HygieniaLause(peli, [&] { if (m.Hygienia > 100) Aseta(m.Hygienia, 100); });
    // The cleaner on overtime is paid at every check, at the weekend rate on weekends.
    HygieniaLause(peli, [&] {
        if (m.Ylityö[Siivooja])
            Lisää(m.YlityöPalkat, JakoKok(m.Palkka[Siivooja], m.Viikonloppu ? 30 : 200));
    });
}

void EläintenTuotanto(Peli& peli) {
    Muuttujat& m = peli.m;
    Arvonta& a = peli.arvonta;
    const double h = m.Hygienia / 100.0 + 0.5;  // 0.5 at hygiene 0, 1.5 at 100
    const auto& el = m.El;
    // A manure heap of a whole kind: one draw for all heads.
    auto lantaa = [&](Long päitä, double osuus) {
        if (päitä > 0) Lisää(m.Var[Lanta], Int(Int(h * päitä * a.r()) * osuus));
    };

    for (Long i = 0; i < el[Nauta][Naaras]; ++i) Lisää(m.Var[Maito], 3 + Int(h * 4 * a.r()) + Lippu(m.Tarv[Lypsykone]));
    lantaa(el[Nauta][Naaras], 0.5);
    lantaa(el[Nauta][Uros], 0.5);

    for (Long i = 0; i < el[Lammas][Naaras]; ++i)
        Lisää(m.Var[Villa], 2 + Int(h * 3 * a.r()) + Lippu(m.Tarv[Kerimäkone]));
    lantaa(el[Lammas][Naaras], 0.2);
    // Rams and hens get one pass more than their heads.
    if (el[Lammas][Uros] > 0)
        for (long long i = 0; i <= el[Lammas][Uros]; ++i) Lisää(m.Var[Villa], 1 + Int(h * a.r()));
    lantaa(el[Lammas][Uros], 0.2);

    if (el[Kana][Naaras] > 0)
        for (long long i = 0; i <= el[Kana][Naaras]; ++i) Lisää(m.Var[Muna], Int(2 * h * a.r()) + Lippu(m.Tarv[UVValot]));
    lantaa(el[Kana][Naaras], 0.3);
    lantaa(el[Kana][Uros], 0.3);

    // Pigs give manure a head, judged by hygiene on a scale of its own.
    const long long sikoja = static_cast<long long>(el[Sika][Naaras]) + el[Sika][Uros];
    if (sikoja > 0)
        for (long long i = 0; i <= sikoja; ++i)
            Lisää(m.Var[Lanta], Int((m.Hygienia / 50.0 + 0.5) * a.r()) + Lippu(m.Tarv[Lantasäiliö]));
}

double LaidunKerroin(const Muuttujat& m) {
    if (m.Laidun <= 0) return 1;
    const double laiduntajia = static_cast<double>(m.El[Nauta][Naaras]) + m.El[Nauta][Uros] + m.El[Lammas][Naaras] +
                               m.El[Lammas][Uros] + m.El[Hevonen][Naaras] + m.El[Hevonen][Uros];
    // A hectare carries ten adult grazers.
    double kuorma = laiduntajia > 0 ? laiduntajia / (m.Laidun * 10.0) * 100 : 0;
    kuorma = std::clamp(kuorma, 40.0, 90.0);
    // Grazers take a tenth more from the silo in spring and a tenth less in autumn; in winter all.
    if (m.Vuodenaika == "Kevät") kuorma += 10;
    else if (m.Vuodenaika == "Syksy") kuorma -= 10;
    else if (m.Vuodenaika != "Kesä") kuorma = 100;
    return kuorma * 0.01;
}

void TyhjennäSyönnit(Peli& peli) {
    Muuttujat& m = peli.m;
    const double rehunHinta = static_cast<double>(m.Kurssi[Rehu]) + m.PerusHinta[Rehu];
    for (std::size_t laji = 0; laji < LAJEJA; ++laji) {
        Aseta(m.EdSyönti[laji], rehunHinta * m.Syönti[laji]);
        Aseta(m.Syönti[laji], 0);
    }
}

}  // namespace tanhua
