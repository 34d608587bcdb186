// The market: the monthly walk of the prices, the crashes and their news, the lower bounds,
// the first walk of a new farm and the bank's market report.
#include "markkinat.h"

#include <string>

#include "../core/peli.h"
#include "../core/viestit.h"
#include "taulut/pörssi.h"

namespace tanhua {

namespace {

Single Hehtaarit(const Muuttujat& m, Maa maa) {
    switch (maa) {
        case MaaMetsä: return m.Metsä;
        case MaaPelto: return m.Pelto;
        case MaaJoutomaa: return m.Joutomaa;
        default: return m.Laidun;
    }
}

// One step of the walk: the old index plus r * n - k, rounded to the nearest whole number.
template <class T>
void Askel(Peli& peli, T& indeksi, int n, int k) {
    const double r = peli.arvonta.r();
    Aseta(indeksi, static_cast<double>(indeksi) + r * n - k);
}

std::string Tarina(int numero, const std::string& sana) {
    const Uutinen& u = UUTISET[static_cast<std::size_t>(numero - 1)];
    std::string t = std::string(u.alku) + sana + std::string(u.keski);
    if (u.kahdesti) t += sana + std::string(u.loppu);
    return t;
}

void Alarajat(Muuttujat& m) {
    for (std::size_t k = 0; k < TUOTTEITA; ++k) {
        const PörssiRivi& p = PÖRSSITAULU[k];
        const double hinta = static_cast<double>(m.PerusHinta[k]) + m.Kurssi[k];
        switch (p.alaraja) {
            case Alaraja::Hinta0:
                if (hinta < 0) Aseta(m.Kurssi[k], 0);
                break;
            case Alaraja::Indeksi:
                if (m.Kurssi[k] < p.alarajaIndeksi) Aseta(m.Kurssi[k], 0);
                break;
            case Alaraja::Hinta1:
                if (hinta < 1) Aseta(m.Kurssi[k], 1);
                break;
        }
    }
    for (std::size_t maa = 0; maa < MAITA; ++maa)
        if (static_cast<double>(m.PerusMaa[maa]) + m.MaaKurssi[maa] < MAAPÖRSSI[maa].alaraja)
            Aseta(m.MaaKurssi[maa], 0);
}

}  // namespace

void Markkinat(Peli& peli) {
    Muuttujat& m = peli.m;

    for (Tuote k : KÄVELYJÄRJESTYS) Askel(peli, m.Kurssi[k], PÖRSSITAULU[k].n, PÖRSSITAULU[k].k);
    for (Maa maa : MAAJÄRJESTYS) Askel(peli, m.MaaKurssi[maa], MAAPÖRSSI[maa].n, MAAPÖRSSI[maa].k);

    // A crash throws the index back to 0; the last crash in the order names the news.
    std::string sana;
    bool uutinen = false;
    for (Tuote k : ROMAHDUSJÄRJESTYS) {
        const PörssiRivi& p = PÖRSSITAULU[k];
        if (k == Rehu) {
            // Feed is held down in the first years; later it crashes, but never makes the news.
            if (m.Vuosi < REHU_ROMAHDUSVUOSI) {
                if (m.Kurssi[Rehu] > REHU_KATTO_ENNEN) Aseta(m.Kurssi[Rehu], REHU_KATTO_ENNEN);
            } else if (m.Kurssi[Rehu] > p.romahdusRaja) {
                Aseta(m.Kurssi[Rehu], 0);
                sana = p.sana;
            }
            continue;
        }
        if (m.Kurssi[k] > p.romahdusRaja) {
            Aseta(m.Kurssi[k], 0);
            sana = p.sana;
            if (m.Var[k] > 0) uutinen = true;
        }
    }
    for (Maa maa : MAAJÄRJESTYS) {
        if (m.MaaKurssi[maa] > MAAPÖRSSI[maa].romahdusRaja) {
            Aseta(m.MaaKurssi[maa], 0);
            sana = MAAPÖRSSI[maa].sana;
            if (Hehtaarit(m, maa) > 0) uutinen = true;
        }
    }

    if (uutinen) {
        const int numero = static_cast<int>(Int(peli.arvonta.r() * 5)) + 1;
        LisääListaan(peli, sana + " kurssi romahti!");
        Kerro(peli, std::string(UUTISKUVA), Tarina(numero, sana));
    }

    Alarajat(m);
}

void EnsimmäinenKurssi(Peli& peli) {
    Muuttujat& m = peli.m;
    m.Kurssi.fill(0);
    m.MaaKurssi.fill(0);
    for (Tuote k : KÄVELYJÄRJESTYS) {
        int n = PÖRSSITAULU[k].n, kk = PÖRSSITAULU[k].k;
        for (const EnsiAskel& e : ENSIASKELEET)
            if (e.tuote == k) n = e.n, kk = e.k;
        Askel(peli, m.Kurssi[k], n, kk);
    }
    for (Maa maa : MAAJÄRJESTYS)
        if (maa != MaaLaidun) Askel(peli, m.MaaKurssi[maa], MAAPÖRSSI[maa].n, MAAPÖRSSI[maa].k);
}

namespace {
// A label padded with blanks to ten characters (counted as letters, not bytes).
std::string Tasattu(std::string_view nimi) {
    std::size_t merkkejä = 0;
    for (char c : nimi)
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) ++merkkejä;
    std::string t(nimi);
    if (merkkejä < 10) t.append(10 - merkkejä, ' ');
    return t;
}
}  // namespace

void PörssiRaportti(Peli& peli) {
    const Muuttujat& m = peli.m;
    SoitaÄäni(peli, "klik");
    const std::string reuna(9, ' ');
    RaporttiSivu sivu;
    sivu.otsikko = " Pörssikurssit :" + Str(m.Päivä) + "." + Str(m.Kuukausi) + "." + Str(m.Vuosi);
    sivu.fonttikoko = 10;
    // The market page has no tab columns: its nine blanks are its indent.
    auto rivi = [&](const std::string& teksti) { sivu.rivit.push_back(RaporttiRivi{MUSTA, 0, teksti}); };
    for (const RaporttiNimi& r : RAPORTTINIMET) rivi(reuna + Tasattu(r.nimi) + ": " + Str(m.Kurssi[r.tuote]));
    rivi(reuna);
    // The sum of all twenty indices over 19.
    double summa = 0;
    for (Integer kurssi : m.Kurssi) summa += kurssi;
    const double keskiarvo = Int(summa / 19);
    rivi(reuna + "Keskiarvo : " + Str(keskiarvo));
    std::string_view näkymä = LAMA;
    for (const Näkymärivi& n : TALOUSNÄKYMÄT)
        if (keskiarvo > n.yli) {
            näkymä = n.teksti;
            break;
        }
    rivi(reuna + "Yleinen talousnäkymä : " + std::string(näkymä));
    // The page lies over the bank, which waits until it is closed.
    peli.näkymä.PankkiKäytössä = false;
    peli.näkymä.RaporttiAuki = true;
    peli.kanavat.Raportti(sivu);
}

}  // namespace tanhua
