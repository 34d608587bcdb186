// The riding stable: the day's lessons and their ledger, and the stable screen's operations.
#include "talli.h"

#include "../racing/ravit.h"

#include <algorithm>
#include <string>

#include "../core/peli.h"
#include "../core/viestit.h"
#include "rakennukset.h"
#include "taulut/talli.h"

namespace tanhua {

double Tungos(const Muuttujat& m) {
    double laitumella = static_cast<double>(m.Laidun) * 4;
    if (!(laitumella > 0)) laitumella = 1;
    const double hevosia = static_cast<double>(m.El[Hevonen][Naaras]) + m.El[Hevonen][Uros];
    return std::clamp(hevosia / laitumella * 100, 0.0, 100.0);
}

double Kysyntä(const Muuttujat& m) {
    double b = 0;
    for (const VuodenajanKysyntä& k : KAUDEN_KYSYNTÄ)
        if (m.Vuodenaika == k.vuodenaika) b += k.kysyntä;
    if (m.Pilvisyys >= 1 && m.Pilvisyys <= static_cast<int>(PILVISYYDEN_KYSYNTÄ.size()))
        b += PILVISYYDEN_KYSYNTÄ[static_cast<std::size_t>(m.Pilvisyys - 1)];
    b -= m.Hevostalli_rulla;
    // A full pasture takes up to 2 off the demand.
    b -= Tungos(m) * 0.02;
    return b;
}

namespace {
// A lesson block of one master: the hours drawn around the demand, ties to even, held to the day's
// cap (four hours, six on overtime).
double Tunnit(Peli& peli, double b) {
    const Muuttujat& m = peli.m;
    const double h = Round((m.Moti[Tallimestari] + 4.0) * peli.arvonta.r() + b);
    return std::clamp(h, 0.0, m.Ylityö[Tallimestari] ? 6.0 : 4.0);
}

void Kirjaa(Peli& peli, const std::string& loppu) {
    const Muuttujat& m = peli.m;
    peli.talliruutu.Ratsastus.push_back(Str(m.Päivä) + "." + Str(m.Kuukausi) + loppu);
}
}  // namespace

void RatsastusPäivä(Peli& peli) {
    Muuttujat& m = peli.m;
    if (!(m.Rak[Hevostalli] > 0 && m.El[Hevonen][Naaras] > 0 && m.Työ[Tallimestari] > 0)) return;
    // Without overtime the weekend is free: no lessons, no draws.
    if (m.Viikonloppu && !m.Ylityö[Tallimestari]) {
        Kirjaa(peli, std::string(tallit::Viikonloppu));
        return;
    }
    const double b = Kysyntä(m);
    // The mares run out one a master: each master's second block needs a mare left after his own.
    double hevosia = m.El[Hevonen][Naaras];
    Long T = 0;
    for (Long mestari = 0; mestari < m.Työ[Tallimestari]; ++mestari) {
        const double ensimmäinen = Tunnit(peli, b);
        if (hevosia >= 1) Lisää(T, ensimmäinen);
        const double toinen = Tunnit(peli, b);
        hevosia -= 1;
        if (hevosia >= 1) Lisää(T, toinen);
    }
    const Single S = CSng(static_cast<double>(T) * m.TuntiHinta);
    Kirjaa(peli, " - " + Str(T) + std::string(m.Viikonloppu ? tallit::TuntiaYlityö : tallit::Tuntia) + Str(S));
    Lisää(m.RatsastusTulot, Int(S));
    Lisää(m.Liikevaihto, Int(S));
    // The weekend's extra pay is one day's for the stable, however many masters work it.
    if (m.Viikonloppu) Lisää(m.YlityöPalkat, Int(m.Palkka[Tallimestari] / 15.0));
}

int KapasiteettiLuku(const Muuttujat& m) { return static_cast<int>(Int(Tungos(m))); }

std::uint32_t KapasiteettiVäri(int kapasiteetti) {
    if (kapasiteetti < TUNGOS_KELTAINEN) return RGB(50, 200, 50);
    if (kapasiteetti < TUNGOS_PUNAINEN) return RGB(200, 200, 80);
    return RGB(200, 50, 50);
}

void AvaaHevostalli(Peli& peli) {
    SoitaÄäni(peli, "klik");
    peli.talliruutu.auki = true;
    peli.talliruutu.Ravikustannus = false;
}

void SuljeHevostalli(Peli& peli) {
    SoitaÄäni(peli, "klik");
    peli.talliruutu.auki = false;
    peli.talliruutu.Ravikustannus = false;
}

void AsetaRulla(Peli& peli, int rulla) {
    Muuttujat& m = peli.m;
    rulla = std::clamp(rulla, 0, RULLA_MAX);
    if (rulla == m.Hevostalli_rulla) return;
    SoitaÄäni(peli, "siirto");
    Aseta(m.Hevostalli_rulla, rulla);
    Aseta(m.TuntiHinta, TUNTIHINNAT[static_cast<std::size_t>(rulla)]);
}

void VaihdaHinnasto(Peli& peli) {
    SoitaÄäni(peli, "klik");
    peli.talliruutu.Hinnasto = !peli.talliruutu.Hinnasto;
}

void OsallistuRaveihin(Peli& peli) {
    // The notice, then the race screen fresh.
    AvaaRavit(peli);
}

void OsoitinRaveihin(Peli& peli, bool napilla) { peli.talliruutu.Ravikustannus = napilla; }

}  // namespace tanhua
