// A built building's production panel: the month's gross, the bills' estimates and the net.
#include "paneeli.h"

#include <string>

#include "../core/peli.h"
#include "kulut.h"
#include "taulut/kulutus.h"
#include "taulut/paneelit.h"

namespace tanhua {

namespace {

// Lines of the panel end CR LF.
constexpr std::string_view RIVINVAIHTO = "\r\n";

// A figure of the panel: rounded to two decimals and joined directly.
std::string Luku2(double x) { return Luku(Round(x, 2)); }

struct Kertoimet {
    double taso;  // Vaikeustaso + 2
    double sf, vf;
};

Kertoimet PaneelinKertoimet(const Peli& peli) {
    const RakennusRuutuTila& r = peli.rakennusruutu;
    // SF and VF as they stood when the screen was opened; before any opening, today's.
    return {peli.m.Vaikeustaso + 2.0, r.SF.value_or(Sähkökerroin(peli.m)), r.VF.value_or(Vesikerroin(peli.m))};
}

// An estimate of the month so far: level x coefficient x difficulty x factor x day.
double Arvio(const Peli& peli, Rakennus rakennus, double kerroin, double sää) {
    const Kertoimet k = PaneelinKertoimet(peli);
    return Round(peli.m.Rak[rakennus] * kerroin * k.taso * sää * peli.m.Päivä, 2);
}

double Sähköarvio(const Peli& peli, Rakennus rakennus) {
    return Arvio(peli, rakennus, KULUTUSTAULU[rakennus].paneelinSähkö, PaneelinKertoimet(peli).sf);
}
double Vesiarvio(const Peli& peli, Rakennus rakennus) {
    return Arvio(peli, rakennus, KULUTUSTAULU[rakennus].vesi, PaneelinKertoimet(peli).vf);
}

double Bruttotuotto(const Muuttujat& m, const PaneeliRivi& p) {
    switch (p.brutto) {
        case Brutto::Ratsastus: return m.RatsastusTulot;
        case Brutto::Pakkaamo: return m.PakkaamoTulot;
        default: break;
    }
    double summa = 0;
    for (int i = 0; i < p.tuloja; ++i) summa += m.Tulo[p.tulot[static_cast<std::size_t>(i)]];
    return summa;
}

double Palkat(const Muuttujat& m, Työläinen työ) { return static_cast<double>(m.Palkka[työ]) * m.Työ[työ]; }

std::string Rivi(std::string_view a, const std::string& b = {}, std::string_view c = {}) {
    return std::string(a) + b + std::string(c) + std::string(RIVINVAIHTO);
}

// The feed plant shows its limit and the month's grain and feed instead of money.
std::string RehunPaneeli(const Peli& peli) {
    const Muuttujat& m = peli.m;
    const PaneeliRivi& p = PANEELITAULU[Rehuntuotanto];
    const double taso = m.Rak[Rehuntuotanto];
    std::string teksti = Rivi(p.otsikko) + Rivi(REHU_MAX, Luku2(taso * taso * taso + 9), REHU_PÄIVÄ);
    if (m.RehuaTuotettu > 0)
        teksti += Rivi(REHU_VILJAA, Luku2(m.ViljaaKäytetty)) + Rivi(REHU_REHUA, Luku2(m.RehuaTuotettu));
    else
        teksti += Rivi(REHU_EI);
    const double sähkö = Sähköarvio(peli, Rehuntuotanto), vesi = Vesiarvio(peli, Rehuntuotanto);
    return teksti + Rivi(PANEELI_SÄHKÖ, Luku2(sähkö)) + Rivi(PANEELI_VESI, Luku2(vesi)) +
           Rivi(REHU_YHTEENSÄ, Luku2(sähkö + vesi), PANEELI_NETTO_KK);
}

// The packing plant's estimate has the conveyor's share on top of the level's.
std::string PakkaamonPaneeli(const Peli& peli) {
    const Muuttujat& m = peli.m;
    const PaneeliRivi& p = PANEELITAULU[Pakkaamo];
    const Kertoimet k = PaneelinKertoimet(peli);
    const double h = m.Tarv[Liukuhihna] ? 1 : 0;
    const double sähkö =
        Round((h * PAKKAAMON_HIHNAN_SÄHKÖ + m.Rak[Pakkaamo] * KULUTUSTAULU[Pakkaamo].paneelinSähkö * k.taso * k.sf) *
                  m.Päivä, 2);
    const double netto = static_cast<double>(m.PakkaamoTulot) - Palkat(m, p.työ) - sähkö;
    return Rivi(p.otsikko) + Rivi(PANEELI_BRUTTO, Luku2(m.PakkaamoTulot), PANEELI_KK) +
           Rivi(PANEELI_MAX, Luku2(m.PakkaamoMax)) +
           Rivi(PANEELI_LAATU, Luku2(static_cast<double>(m.PakkaamoKerroin) * 100), " %") +
           Rivi(PANEELI_SÄHKÖ, Luku2(sähkö)) + Rivi(PANEELI_NETTO, Luku2(netto), PANEELI_NETTO_KK);
}

}  // namespace

std::string RakennusPaneeli(const Peli& peli, Rakennus rakennus) {
    if (rakennus == Rehuntuotanto) return RehunPaneeli(peli);
    if (rakennus == Pakkaamo) return PakkaamonPaneeli(peli);
    const Muuttujat& m = peli.m;
    const PaneeliRivi& p = PANEELITAULU[rakennus];
    const double brutto = Bruttotuotto(m, p);
    std::string teksti = Rivi(p.otsikko) + Rivi(PANEELI_BRUTTO, Luku2(brutto), PANEELI_KK);
    double netto = brutto - Palkat(m, p.työ);
    if (p.sähkö) {
        const double arvio = Sähköarvio(peli, rakennus);
        teksti += Rivi(PANEELI_SÄHKÖ, Luku2(arvio));
        netto -= arvio;
    }
    if (p.vesi) {
        const double arvio = Vesiarvio(peli, rakennus);
        teksti += Rivi(PANEELI_VESI, Luku2(arvio));
        netto -= arvio;
    }
    // The yards rest in winter and show no net.
    if (p.talvellaNetto || m.Vuodenaika != "Talvi") teksti += Rivi(PANEELI_NETTO, Luku2(netto), PANEELI_NETTO_KK);
    return teksti;
}

std::string RaakaKuva(Rakennus rakennus) { return std::string(PANEELITAULU[rakennus].raakaKuva); }
std::string TuoteKuva(Rakennus rakennus) { return std::string(PANEELITAULU[rakennus].tuoteKuva); }

}  // namespace tanhua
