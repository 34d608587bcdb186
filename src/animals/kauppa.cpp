// The animal screen: cards, the lot, buying and selling at fixed prices, the limits and the hints.
#include "kauppa.h"

#include <array>
#include <cmath>

#include "../core/ohjaimet.h"
#include "../core/kanavat.h"
#include "../core/peli.h"
#include "../core/viestit.h"
#include "../core/vikatila.h"
#include "eläimet.h"

namespace tanhua {

namespace {

// The order box of a species, or -1 for horses, which have none.
int LajinLaatikko(Laji laji) {
    for (std::size_t b = 0; b < TEURASLAATIKOT.size(); ++b)
        if (TEURASLAATIKOT[b].laji == laji) return static_cast<int>(b);
    return -1;
}

void PäivitäSummat(EläinRuutuTila& r) {
    if (r.kortti < 0) return;
    Aseta(r.yhtosto, static_cast<double>(r.ostohinta) * r.määrä);
    Aseta(r.yhtmyynti, static_cast<double>(r.myyntihinta) * r.määrä);
}

}  // namespace

int KorttiNimellä(std::string_view nimi) {
    for (std::size_t i = 0; i < KORTIT.size(); ++i)
        if (KORTIT[i].otsikko == nimi || KORTIT[i].avain == nimi) return static_cast<int>(i);
    return -1;
}

int TeurasRajaNimellä(std::string_view nimi) {
    for (std::size_t j = 0; j < TEURASRAJAT.size(); ++j) {
        const std::string kokonainen = "Teuras" + std::string(TEURASRAJAT[j]) + "Raja";
        if (TEURASRAJAT[j] == nimi || kokonainen == nimi) return static_cast<int>(j);
    }
    return -1;
}

Long& KortinPäät(Muuttujat& m, int kortti) {
    const KorttiRivi& k = KORTIT[static_cast<std::size_t>(kortti)];
    return m.El[k.laji][k.luokka];
}

std::uint32_t YlitettyRajaVäri() { return RGB(180, 100, 100); }

namespace {
// The panels' own colour, which an order's box shows until a purchase marks it.
const std::uint32_t PANEELIN_VÄRI = RGB(255, 250, 235);
}  // namespace

void PäivitäEläinruutu(Peli& peli) {
    const Muuttujat& m = peli.m;
    EläinRuutuTila& r = peli.eläinruutu;
    double pienet = 0;
    for (std::size_t laji = 0; laji < LAJEJA; ++laji)
        pienet += static_cast<double>(m.El[laji][Nuori]) + m.El[laji][Poikanen];
    Aseta(r.aikuisia, Navettakuorma(m));
    Aseta(r.pienet, pienet);
    r.teuraskuva = m.Rak[Teurastamo] > 0 && m.Työ[Teurastaja] > 0;
    r.nahkurikuva = m.Työ[Nahkuri] > 0;
}

void AvaaEläimet(Peli& peli) {
    EläinRuutuTila& r = peli.eläinruutu;
    SoitaÄäni(peli, "klik");
    r.aihe = AIHE_RUUTU;
    r.kohdistin = -1;
    if (peli.m.OhjeetPäällä) r.ohje = OHJE_TERVETULOA;
    PäivitäEläinruutu(peli);
}

void ValitseEläin(Peli& peli, int kortti) {
    EläinRuutuTila& r = peli.eläinruutu;
    const KorttiRivi& k = KORTIT[static_cast<std::size_t>(kortti)];
    SoitaÄäni(peli, "siirto");
    r.kortti = kortti;
    r.otsikko = k.otsikko;
    Aseta(r.ostohinta, k.ostohinta);
    Aseta(r.myyntihinta, k.myyntihinta);
    // Meat kinds show the farm's own meat figure; foxes none; horses the figure of their card.
    if (k.teurastus == Teurastus::Liha)
        r.liha = peli.m.Lihaa[k.laji][k.luokka == Uros ? 1 : 0];
    else
        Aseta(r.liha, k.näytettyLiha);
    r.info = std::string(k.infoAlku);
    if (!k.infoLoppu.empty()) r.info += Luku(r.liha) + std::string(k.infoLoppu);
    PäivitäSummat(r);
}

namespace {
// The lot moves one step along 1, 10, 100; past either end nothing changes.
void AskellaMäärää(Peli& peli, int suunta) {
    EläinRuutuTila& r = peli.eläinruutu;
    SoitaÄäni(peli, "siirto");
    r.määrä = SeuraavaErä(r.määrä, suunta);
    PäivitäSummat(r);
}
}  // namespace

void määräplus(Peli& peli) { AskellaMäärää(peli, 1); }
void määrämiinus(Peli& peli) { AskellaMäärää(peli, -1); }

void Osta(Peli& peli) {
    EläinRuutuTila& r = peli.eläinruutu;
    if (r.kortti < 0) return;
    Muuttujat& m = peli.m;
    const KorttiRivi& k = KORTIT[static_cast<std::size_t>(r.kortti)];

    if (Int(r.yhtosto) > m.Raha) {
        const std::string hinta = (r.määrä == 1 ? "Eläin maksaa " : "Eläimet maksaa ") + Str(r.yhtosto);
        Kieltäydy(peli, Rivitä({"Rahasi eivät riitä!", "", "Rahatilanteesi on " + Str(m.Raha), hinta,
                               // the shortfall is told unnarrowed: a cash with cents shows them all
                               "Sinulta puuttuu " + Str(Int(r.yhtosto) - m.Raha)}));
        return;
    }
    // Only the adults take room here; the young count in the room test of breeding.
    if (r.määrä + Navettakuorma(m) > m.Koko_Navetta) {
        Kieltäydy(peli, "Sinulla ei ole tilaa navetassasi.");
        return;
    }
    Long& päät = KortinPäät(m, r.kortti);
    // One head at a time: the cash is stored after each price.
    for (int i = 0; i < r.määrä; ++i) {
        Lisää(m.Raha, -Int(k.ostohinta));
        Lisää(päät, 1);
    }
    SoitaÄäni(peli, "klik");
    PäivitäEläinruutu(peli);

    // A purchase past the limit of an order that is on: its panel opens with the box marked.
    const int laatikko = LajinLaatikko(k.laji);
    if (laatikko >= 0 && m.Eläimet.Teuras[static_cast<std::size_t>(laatikko)] == 1) {
        const int raja = 2 * laatikko + (k.luokka == Uros ? 1 : 0);
        if (TeurasRaja(m, raja) < päät) {
            if (TEURASLAATIKOT[static_cast<std::size_t>(laatikko)].nylky) r.nylkyAuki = true;
            else r.teurasAuki = true;
            r.laatikonVäri[static_cast<std::size_t>(laatikko)] = YlitettyRajaVäri();
        }
    }
}

void Myy(Peli& peli) {
    EläinRuutuTila& r = peli.eläinruutu;
    if (r.kortti < 0) return;
    Muuttujat& m = peli.m;
    Long& päät = KortinPäät(m, r.kortti);
    if (r.määrä > päät) {
        Kieltäydy(peli, Rivitä({"Tarkasta eläinten määrä!", "", "Olet myymässä " + Str(r.määrä) + " eläintä", ""}));
        return;
    }
    // Animals are no turnover: only the cash moves.
    Lisää(m.Raha, r.yhtmyynti);
    Lisää(päät, -r.määrä);
    SoitaÄäni(peli, "klik");
    PäivitäEläinruutu(peli);
}

bool TeurasRajaMuuttui(Peli& peli, int raja, const std::string& teksti) {
    // The whole text must read as a number (blanks around it allowed); letters or an empty field
    // would otherwise stop the butcher's daily run with a type failure.
    double luku = 0;
    bool onLuku = true;
    try {
        luku = TekstiLuvuksi(teksti);
    } catch (const Vika&) {
        onLuku = false;
    }
    if (!onLuku || !std::isfinite(luku)) {
        Kieltäydy(peli, std::string(RAJA_EI_LUKU));
        return false;
    }
    double arvo = Int(luku);
    if (arvo < 0) arvo = 0;
    peli.m.Eläimet.TeurasRaja[static_cast<std::size_t>(raja)] = Luku(arvo);
    return true;
}

void AsetaTeuraslaatikko(Peli& peli, int laatikko, bool päällä) {
    Aseta(peli.m.Eläimet.Teuras[static_cast<std::size_t>(laatikko)], päällä ? 1 : 0);
}

void AvaaTeuraspaneeli(Peli& peli, bool nylky) {
    (nylky ? peli.eläinruutu.nylkyAuki : peli.eläinruutu.teurasAuki) = true;
}

std::uint32_t TeuraslaatikonVäri(const Peli& peli, int laatikko) {
    const std::uint32_t väri = peli.eläinruutu.laatikonVäri[static_cast<std::size_t>(laatikko)];
    return väri != 0 ? väri : PANEELIN_VÄRI;
}

void Takaisin(Peli& peli) {
    EläinRuutuTila& r = peli.eläinruutu;
    SoitaÄäni(peli, "klik");
    r.teurasAuki = false;
    r.nylkyAuki = false;
    r.laatikonVäri.fill(0);
    EläintenKunto(peli);
}

bool EläimetEsc(Peli& peli) {
    if (peli.eläinruutu.kortti >= 0) {
        peli.eläinruutu.kortti = -1;
        return false;
    }
    Takaisin(peli);
    return true;
}

void OsoitinEläinruudulla(Peli& peli, EläinKohde kohde, int kortti) {
    EläinRuutuTila& r = peli.eläinruutu;
    const bool ohjeet = peli.m.OhjeetPäällä;
    const KorttiRivi* k = kortti >= 0 ? &KORTIT[static_cast<std::size_t>(kortti)] : nullptr;
    switch (kohde) {
        case EläinKohde::Ruutu:
            r.aihe = AIHE_RUUTU;
            r.kohdistin = -1;
            break;
        case EläinKohde::Kuva:
            if (!k) return;
            r.aihe = k->aihe;
            r.kohdistin = kortti;
            if (ohjeet) r.ohje = k->laji == Nauta && k->luokka == Uros ? OHJE_SONNI : LAJIOHJEET[k->laji];
            break;
        case EläinKohde::Laskuri:
            if (!k) return;
            r.aihe = k->aiheLaskuri;
            break;
        case EläinKohde::Urokset:
            if (ohjeet) r.ohje = OHJE_UROKSET;
            break;
        case EläinKohde::Nuoret:
            if (ohjeet) r.ohje = OHJE_NUORET;
            break;
        case EläinKohde::Takaisin:
            if (ohjeet) r.ohje = OHJE_TAKAISIN;
            break;
        case EläinKohde::Teuraskuva:
            r.aihe = "Teurastamo";
            break;
        case EläinKohde::NahkuriKuva:
            r.aihe = "Nahkuri";
            break;
    }
}

}  // namespace tanhua
