// The statistics screen: curves drawn from the monthly lists, the product tables, the picture.
#include "käyrät.h"

#include <algorithm>
#include <optional>

#include "../core/peli.h"
#include "../core/taulut/rakennukset.h"
#include "../core/taulut/työvoima.h"
#include "../core/viestit.h"
#include "../core/vikatila.h"

namespace tanhua {

namespace {

std::string Paikka(const KäyräRivi& rivi) {
    return std::string(käyrätteksti::PaikkaAlku) + std::string(rivi.nappi) + std::string(käyrätteksti::PaikkaLoppu);
}

// Taulu is cleared for a curve or a table; the notice printed on it goes with it.
void TyhjennäTaulu(KäyrätRuutuTila& r) {
    r.janat.clear();
    r.taulu.clear();
    r.T = r.U = r.S = 0;
    r.Ilmoitusteksti = false;
}

// The items as numbers, read back from their text (exponent form too). A text that isn't a number
// is reported with the button's place; going on leaves the item out (nullopt), giving up returns
// nothing at all.
std::optional<std::vector<std::optional<double>>> LueArvot(Peli& peli, const std::vector<std::string>& lista,
                                                           const std::string& paikka) {
    std::vector<std::optional<double>> arvot;
    arvot.reserve(lista.size());
    for (const std::string& teksti : lista) {
        try {
            arvot.emplace_back(TekstiLuvuksi(teksti));
        } catch (...) {
            const Vika vika = VikaPoikkeuksesta(std::current_exception());
            peli.m.VikaPaikka = paikka;
            VikaTila(peli, vika);
            if (!peli.m.VikaJatkuu) return std::nullopt;
            arvot.emplace_back(std::nullopt);
        }
    }
    return arvot;
}

// The line, two units thick: each item joined to the one before it, the first segment flat. An item
// left out breaks the line; the next one starts from the last good value.
void Viivat(KäyrätRuutuTila& r, const std::vector<std::optional<double>>& arvot) {
    const double H = TAULU_KORKEUS;
    double x = 0;
    std::optional<double> edellinen;
    for (const auto& arvo : arvot) {
        if (!edellinen) edellinen = arvo;
        if (arvo) {
            const double y1 = H - *edellinen / r.U, y2 = H - *arvo / r.U;
            r.janat.push_back({x, y1, x + r.S, y2});
            r.janat.push_back({x, y1 + 1, x + r.S, y2 + 1});
            edellinen = arvo;
        }
        x += r.S;
    }
}

void Taulukko(Peli& peli, std::string_view otsikko, Single (*luku)(const Muuttujat&, Tuote)) {
    KäyrätRuutuTila& r = peli.käyrätruutu;
    r.Maximi.clear();
    r.Puoli.clear();
    r.Minimi.clear();
    TyhjennäTaulu(r);
    r.otsikko = otsikko;
    r.taulu.push_back({MUSTA, 0, ""});
    for (std::size_t k = 0; k < TUOTTEITA; ++k) {
        const Single arvo = luku(peli.m, static_cast<Tuote>(k));
        r.taulu.push_back({arvo < 0 ? PUNAINEN : MUSTA, 5, std::string(TUOTETAULUN_NIMET[k]) + Str(arvo)});
    }
    peli.kanavat.Alue(RaporttiSivu{std::string(käyrätteksti::Taulu), 12, r.taulu});
}

Single Brutto(const Muuttujat& m, Tuote k) { return m.EdTulo[k]; }

double Palkat(const Muuttujat& m, Työläinen t) { return static_cast<double>(m.Palkka[t]) * m.Työ[t]; }

// The seasonal staff cost only in months 4 to 11, and only with their building.
bool Kaudella(const Muuttujat& m, Rakennus r) { return m.Kuukausi >= 4 && m.Kuukausi <= 11 && m.Rak[r] > 0; }

}  // namespace

std::string Aika2(Integer vuosi) {
    const double kuukausia = Round((static_cast<double>(vuosi) - 1980) * 12 / 2);
    return Str(static_cast<long long>(Round(kuukausia / 12)) + 1980);
}

double AsteikonKatto(const KäyräRivi& rivi, double suurin) {
    for (double porras : rivi.portaat)
        if (porras >= suurin) return porras;
    return rivi.katto;
}

AsteikonTekstit Asteikkotekstit(Asteikko asteikko, double T) {
    auto pääte = [](Asteikko a) {
        switch (a) {
            case Asteikko::Eläintä: return " eläintä";
            case Asteikko::Neliöitä: return " m/4";
            default: return ";-";
        }
    };
    const std::string p = pääte(asteikko);
    AsteikonTekstit t{Str(T) + p, Str(T / 2) + p, Str(0) + p};
    if (asteikko == Asteikko::Miljoonia) {
        // A million and more are told in whole millions, cut towards zero (7 500 000 is " 7 milj").
        if (T >= 1000000) t.Maximi = Str(static_cast<long long>(JakoKok(T, 1000000))) + " milj";
        if (T / 2 > 1000000) t.Puoli = Str(static_cast<long long>(JakoKok(JakoKok(T, 1000000), 2))) + " milj";
    }
    return t;
}

std::vector<double> Esikatselu(const Muuttujat& m, Käyrä käyrä) {
    std::vector<double> arvot;
    for (const std::string& s : m.Käyrät.*KÄYRÄTAULU[käyrä].lista) arvot.push_back(Val(s));
    return arvot;
}

Single TuotteenNetto(const Muuttujat& m, Tuote k) {
    double netto = m.EdTulo[k];
    switch (k) {
        case Maito: netto -= m.EdSyönti[Nauta]; break;
        case Liha: if (m.Rak[Teurastamo] > 0) netto -= Palkat(m, Teurastaja); break;
        case Villa: netto -= m.EdSyönti[Lammas]; break;
        case Muna: netto -= m.EdSyönti[Kana]; break;
        case Turkki: netto -= m.EdSyönti[Kettu] + Palkat(m, Nahkuri); break;
        case Puu: netto -= Palkat(m, Metsuri); break;
        case Lauta: netto -= Palkat(m, Kirvesmies); break;
        case Vihannes: if (Kaudella(m, Kasvihuone)) netto -= JakoKok(Palkat(m, Puutarhuri), 2); break;
        case Juusto: netto -= Palkat(m, Meijerityöntekijä); break;
        case Jauho: netto -= Palkat(m, Mylläri); break;
        case Leipä:
        case Leivos: netto -= Palkat(m, Leipuri); break;
        case Vaate: netto -= Palkat(m, Ompelija); break;
        case Makkara: netto -= Palkat(m, Teurastaja); break;
        case Marja: if (Kaudella(m, Marjatarha)) netto -= Palkat(m, Puutarhuri); break;
        case Viini: netto -= Palkat(m, Viinimestari); break;
        case Hunaja: if (Kaudella(m, Mehiläistarha)) netto -= Palkat(m, Mehiläishoitaja); break;
        default: break;  // Rehu, Vilja, Lanta: the sales alone
    }
    return CSng(netto);
}

void AvaaKäyrät(Peli& peli) {
    const Muuttujat& m = peli.m;
    KäyrätRuutuTila& r = peli.käyrätruutu;
    SoitaÄäni(peli, "klik");
    r = KäyrätRuutuTila{};
    r.auki = true;
    r.aika1 = käyrätteksti::Aika1;
    r.aika2 = Aika2(m.Vuosi);
    r.aika3 = Str(m.Päivä) + "." + Str(m.Kuukausi) + "." + Str(m.Vuosi);
    // Hiring a bookkeeper while the screen is open changes nothing until it is opened again.
    r.Command5 = m.Työ[Kirjanpitäjä] > 0;
}

void SuljeKäyrät(Peli& peli) {
    SoitaÄäni(peli, "klik");
    peli.käyrätruutu.auki = false;
    peli.käyrätruutu.kuva = false;
}

bool KäyrätEsc(Peli& peli) {
    if (peli.käyrätruutu.kuva) {
        PiilotaKuukausikuva(peli);
        return false;
    }
    SuljeKäyrät(peli);
    return true;
}

void PiirräKäyrä(Peli& peli, Käyrä käyrä) {
    const KäyräRivi& rivi = KÄYRÄTAULU[käyrä];
    KäyrätRuutuTila& r = peli.käyrätruutu;
    const std::string paikka = Paikka(rivi);
    std::optional<std::vector<std::optional<double>>> arvot;
    Vartioitu(peli, paikka,
              {[&] {
                   SoitaÄäni(peli, "siirto");
                   r.otsikko = rivi.otsikko;
                   TyhjennäTaulu(r);
               },
               [&] { arvot = LueArvot(peli, peli.m.Käyrät.*rivi.lista, paikka); },
               [&] {
                   if (!arvot) return;
                   // The top counts each item by its floor and never goes below 0.
                   double suurin = 0;
                   for (const auto& a : *arvot)
                       if (a) suurin = std::max(suurin, Int(*a));
                   r.T = AsteikonKatto(rivi, suurin);
                   const AsteikonTekstit t = Asteikkotekstit(rivi.asteikko, r.T);
                   r.Maximi = t.Maximi;
                   r.Puoli = t.Puoli;
                   r.Minimi = t.Minimi;
               },
               [&] {
                   if (!arvot) return;
                   r.U = Round(r.T / TAULU_KORKEUS);
                   if (r.U == 0) r.U = 1;
                   r.S = arvot->empty() ? 1 : Round(static_cast<double>(TAULU_LEVEYS) / arvot->size());
                   Viivat(r, *arvot);
               }});
}

void TuotteidenBrutto(Peli& peli) { Taulukko(peli, käyrätteksti::Brutto, Brutto); }
void TuotteidenNetto(Peli& peli) { Taulukko(peli, käyrätteksti::Netto, TuotteenNetto); }

void NäytäKuukausikuva(Peli& peli, bool kuvaOtettu) {
    KäyrätRuutuTila& r = peli.käyrätruutu;
    r.kuva = kuvaOtettu;
    r.Ilmoitusteksti = !kuvaOtettu;
}

void PiilotaKuukausikuva(Peli& peli) { peli.käyrätruutu.kuva = false; }

}  // namespace tanhua
