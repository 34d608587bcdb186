// The month end in its fixed order, the monthly report, and the closing of the report.
#include "kuukausi.h"

#include "../animals/eläimet.h"
#include "../contracts/sopimukset.h"
#include "../finance/pankki.h"
#include "../land/maat.h"
#include "../storage/tallennus.h"
#include "../workforce/palkat.h"
#include "päivä.h"
#include "pääruutu.h"
#include "peli.h"
#include "vero.h"
#include "viestit.h"

namespace tanhua {

void TyhjennäTulot(Peli& peli) {
    Muuttujat& m = peli.m;
    for (std::size_t k = 0; k < TUOTTEITA; ++k) {
        m.EdTulo[k] = m.Tulo[k];
        Aseta(m.Tulo[k], 0);
    }
}

namespace {
// The figures of one month end.
struct Kuukausiluvut {
    Long W = 0;  // wage sum as a whole number
    Long T = 0;  // employment subsidy
    Long V = 0;  // property tax
    Long I = 0;  // planting cost
    Long p = 0;  // loan instalment
    Single R = 0;  // size figure of the buildings chart
    Single N = 0;  // net turnover
};

// A whole number written without Str: no leading blank.
std::string Kokonaisena(double x) { return Suoraan(Str(Round(x))); }

class Raportinkirjoittaja {
public:
    void Väri(std::uint32_t väri) { väri_ = väri; }
    void Rivi(const std::string& teksti, int sarake = 5) { sivu.rivit.push_back({väri_, sarake, teksti}); }
    RaporttiSivu sivu;

private:
    std::uint32_t väri_ = MUSTA;
};

// Prints the month's report line by line; the printing also adds the deductions, the subsidy
// and the contract money to the turnover, and works out the premiums.
void TulostaRaportti(Peli& peli, Kuukausiluvut& k) {
    Muuttujat& m = peli.m;
    Raportinkirjoittaja r;
    r.sivu.otsikko = m.PelaajanNimi + " - Kuukausiraportti : " + Str(m.Päivä) + "." + Str(m.Kuukausi) + "." +
                     Str(m.Vuosi);
    Aseta(m.Vakuutusmaksut, 0);
    LaskeVaku(peli);
    r.Rivi("Kuukauden tapahtumat :");
    if (m.Liikevaihto > 0) r.Rivi("Myynnit : +" + Kokonaisena(m.Liikevaihto));
    if (m.Verovähennykset > 0) {
        r.Rivi("");
        r.Rivi("Verovähennykset : +" + Str(m.Verovähennykset));
        Lisää(m.Liikevaihto, m.Verovähennykset);
    }
    if (k.T > 0) {
        r.Rivi("Työllistämistuki : +" + Str(k.T));
        Lisää(m.Liikevaihto, k.T);
    }
    if (m.Rak[Pakkaamo] > 0) {
        const double x = m.PakkaamoTulot - static_cast<double>(m.Palkka[Varastotyöntekijä]) * m.Työ[Varastotyöntekijä];
        // The packing plant's and the contracts' lines only ever turn the text red; a colour
        // stays until it is changed, so a good line after a red one is red too.
        if (x <= 0) r.Väri(PUNAINEN);
        r.Rivi("Pakkaamon tuotto : " + std::string(x > 0 ? "+" : "") + Suoraan(Str(Round(x, 2))));
    }
    if (m.Sopimustulot != 0) {
        if (m.Sopimustulot < 0) {
            r.Väri(PUNAINEN);
            r.Rivi("");
            r.Rivi("Sopimukset : " + Str(m.Sopimustulot));
        } else {
            r.Rivi("Sopimukset : +" + Str(m.Sopimustulot));
            r.Rivi("");
        }
        Lisää(m.Liikevaihto, m.Sopimustulot);
    }
    r.Väri(PUNAINEN);
    r.Rivi("Sähkölasku : -" + Str(Int(m.Sähkölasku)));
    r.Rivi("Vesilasku : -" + Str(Int(m.Vesilasku)));
    if (k.V >= 50) r.Rivi("Omaisuus, kiinteistö- ja maavero : -" + Str(k.V));
    r.Rivi("Rehu : " + Kokonaisena(m.Tulo[Rehu]));
    const double nettopalkat = Int(Int(static_cast<double>(m.YlityöPalkat) + k.W) - k.T);
    if (k.W > 0 && k.T > 0) r.Rivi("Palkat : -" + Str(k.W));
    if (k.W > 0 && m.YlityöPalkat > 0) r.Rivi("Ylityö korvaukset : -" + Str(m.YlityöPalkat));
    if (k.W > 0 && nettopalkat > 0) r.Rivi("Nettopalkat : -" + Str(nettopalkat));
    if (k.p > 0) r.Rivi("Lainan lyhennys : -" + Str(k.p));
    if (k.I > 0) r.Rivi("Metsän istutus kustannukset : -" + Str(k.I));
    if (m.Vakuutusmaksut > 0) r.Rivi("Vakuutusmaksut : -" + Str(m.Vakuutusmaksut));
    r.Rivi("");
    r.Rivi("");
    r.Väri(MUSTA);
    r.Rivi("Brutto Tulot :" + Kokonaisena(m.Liikevaihto), 10);
    r.Rivi("__________________________________________________", 0);
    Aseta(k.N, m.Liikevaihto - Int(static_cast<double>(m.YlityöPalkat) + k.W) - Int(m.Sähkölasku) -
                   Int(m.Vesilasku) - Int(m.Vakuutusmaksut) - k.I - k.V);
    r.Väri(k.N > 0 ? MUSTA : PUNAINEN);
    r.Rivi("Netto Liikevaihto :" + Kokonaisena(k.N), 10);
    peli.näkymä.PääruutuKäytössä = false;
    peli.näkymä.RaporttiAuki = true;
    peli.kanavat.Raportti(r.sivu);
}

// Wages, bills, tax and premiums all fall due now; cash ends whole.
void Tilitys(Muuttujat& m, const Kuukausiluvut& k) {
    Lisää(m.Raha, m.PakkaamoTulot);
    Lisää(m.Raha, -Int(Int(static_cast<double>(m.YlityöPalkat) + k.W) - k.T));
    Lisää(m.Raha, -(Int(m.Sähkölasku) + Int(m.Vesilasku)));
    Lisää(m.Raha, m.Verovähennykset);
    Lisää(m.Raha, -static_cast<double>(m.Vakuutusmaksut));
    Lisää(m.Raha, -k.V);
    if (m.Rak[Hevostalli] > 0 && m.RatsastusTulot >= 1) Lisää(m.Raha, m.RatsastusTulot);
    Aseta(m.Raha, Int(m.Raha));
}

// The calendar turns: day 31 becomes day 1 of the next month, and month 13 the January of a new year.
void KalenteriKääntyy(Muuttujat& m) {
    Aseta(m.Päivä, 1);
    Aseta(m.Kuukausi, m.Kuukausi + 1);
    AsetaVuodenaika(m);
    if (m.Kuukausi == 13) {
        Aseta(m.Kuukausi, 1);
        Aseta(m.Vuosi, m.Vuosi + 1);
        m.Vuodenaika = "Talvi";
    }
}
}  // namespace

// No handler of its own: a failure ends the month end where it stands and reaches the day's
// handler, so the date doesn't move and the next press runs the month end again.
void Kuukaudenvaihde(Peli& peli) {
    Muuttujat& m = peli.m;
    Kuukausiluvut k;
    peli.näkymä.Lista.clear();
    peli.näkymä.ListaNäkyvissä = false;
    LaskeMotivaatio(peli);
    // The herd ages and breeds while the month is still the old one.
    Vanhentuminen(peli);
    Lisääntyminen(peli);
    SopimusKuukausi(peli);
    k.I = Metsitys(peli);
    Lisää(m.Liikevaihto, m.PakkaamoTulot);
    k.p = LainaKuukausi(peli);
    m.PalkkaLukko.fill(false);
    LaskePalkat(peli);
    k.W = CLng(m.PalkatYhteensä);
    k.T = Työllistämistuki(peli);
    Aseta(k.R, m.Koko_Navetta * 10.0 + m.Koko_Siilo + m.Koko_Varasto + 100 * RakennuksiaYhteensä(m));
    k.V = Omaisuusvero(m);
    TulostaRaportti(peli, k);
    m.Käyrät.Rakennuksia.push_back(Str(k.R));
    m.Käyrät.Netto.push_back(Str(k.N));
    m.Käyrät.YHTPalkat.push_back(Str(CLng(static_cast<double>(k.W) - k.T)));
    Tilitys(m, k);
    Aseta(m.Vesilasku, 0);
    Aseta(m.Sähkölasku, 0);
    peli.talliruutu.Ratsastus.clear();
    Aseta(m.RatsastusTulot, 0);
    Aseta(m.YlityöPalkat, 0);
    Aseta(m.Verovähennykset, 0);
    Aseta(m.Sopimustulot, 0);
    PäivitäVakuutus(peli);
    TyhjennäTulot(peli);
    TyhjennäSyönnit(peli);
    EläintenKunto(peli);
    m.Käyrät.LV.push_back(Str(m.Liikevaihto));
    m.Käyrät.Rahatila.push_back(Str(m.Raha));
    for (Single* arvo : {&m.PakkaamoKäsitelty, &m.PakkaamoTulot}) Aseta(*arvo, 0);
    for (Long* arvo : {&m.RehuaTuotettu, &m.ViljaaKäytetty, &m.ViljaaTuotettu, &m.PuutaHakattu}) Aseta(*arvo, 0);
    // The autosave holds day 31 and the old month.
    if (peli.asetukset.Autotallennus) TallennaTilanne(peli, "Autosave");
    TarjousSiivous(peli);
    KalenteriKääntyy(m);
    // The gauges are brought up to date, then the screen is taken as the month's picture.
    Päivitälukemat(peli);
    peli.kanavat.Kuvakaappaus();
}

void SuljeRaportti(Peli& peli) {
    Näkymä& n = peli.näkymä;
    n.RaporttiAuki = false;
    if (!n.PankkiKäytössä) {
        // The market report goes back to the bank.
        n.PankkiKäytössä = true;
        return;
    }
    n.PääruutuKäytössä = true;
    Aseta(peli.m.Liikevaihto, 0);
    SoitaÄäni(peli, "klik");
}

}  // namespace tanhua
