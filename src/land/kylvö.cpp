// The sowing plan with its cost sheet, and the harvest with its estimate and sheet.
#include "kylvö.h"

#include "../core/peli.h"
#include "../core/pääruutu.h"
#include "../core/viestit.h"
#include "taulut/kylvö.h"

namespace tanhua {

namespace {
// Builds a sheet line by line, adding each priced line to the running total.
struct Arkki {
    std::vector<std::string>& rivit;
    double summa = 0;
    void Rivi(std::string teksti) { rivit.push_back(std::move(teksti)); }
    void Kulu(const std::string& teksti, double määrä) {
        Rivi(teksti + Str(määrä));
        summa += määrä;
    }
};

double Siemenhinta(const Muuttujat& m, Kasvi k) {
    return static_cast<double>(m.Siemen[k]) + m.SiemenKurssi[k];
}

void PäivitäKasvikortti(KylvöRuutuTila& r) {
    Aseta(r.yhteensä, static_cast<double>(r.määrä) * r.kulu * r.hinta);
}

// A plan changed: the areas and the sheet again.
void PlaaniMuuttui(Peli& peli) {
    PäivitäMäärät(peli);
    KylvönKustannukset(peli);
}

void PalaaPelloille(Peli& peli) {
    peli.kylvöruutu.auki = false;
    peli.nostoruutu.auki = false;
    NäytäRaha(peli);
}
}  // namespace

void AvaaKylvö(Peli& peli) {
    SoitaÄäni(peli, "klik");
    peli.kylvöruutu.auki = true;
    PlaaniMuuttui(peli);
}

void PäivitäMäärät(Peli& peli) {
    KylvöRuutuTila& r = peli.kylvöruutu;
    double yhteensä = 0;
    for (Long ala : r.ala) yhteensä += ala;
    Aseta(r.kylvetään, yhteensä);
    Aseta(r.eikylvetä, Int(peli.m.Pelto) - r.kylvetään);
}

void KylvönKustannukset(Peli& peli) {
    const Muuttujat& m = peli.m;
    KylvöRuutuTila& r = peli.kylvöruutu;
    r.Kustannukset.clear();
    Arkki a{r.Kustannukset};
    const double ha = r.kylvetään;
    const double siemenet = Int(r.ala[Rypsi] * 500.0 * m.Siemen[Rypsi] + m.SiemenKurssi[Rypsi]) +
                            Int(r.ala[Peruna] * 15000.0 * m.Siemen[Peruna] + m.SiemenKurssi[Peruna]) +
                            Int(r.ala[Mansikka] * 50000.0 * m.Siemen[Mansikka] + m.SiemenKurssi[Mansikka]);
    a.Kulu("Siemeniin : ", siemenet);
    a.Rivi("");
    a.Rivi("Maan kääntäminen");
    if (!m.Tarv[Traktori]) a.Kulu("traktorin vuokraus : 100 / ha = ", ha * 100);
    else a.Kulu("traktorin polttoaineisiin : 2 / ha = ", ha * 2);
    a.Kulu("traktorin kuljettajan palkka :", ha * 1000);
    if (r.Lannoitetaan) {
        a.Rivi("");
        a.Rivi("Lannoittamiseen");
        a.Rivi("Lantaa kuluu 100 kg / ha.");
        // Manure short of a hundred kilos a hectare is bought; the farm's own costs nothing here.
        if (m.Var[Lanta] < ha * 100)
            a.Kulu("Lannan ostamiseen : ", (static_cast<double>(m.Kurssi[Lanta]) + m.PerusHinta[Lanta]) * ha * 100);
        else
            a.Rivi("Lantaa kuluu : " + Str(ha * 100));
    }
    if (r.Myrkytetään) {
        a.Rivi("");
        a.Rivi("Myrkytyksiin");
        a.Kulu("Tuholais myrkytys maksaa : ", ha * 500);
        if (!m.Tarv[MyrkkyKärry]) a.Kulu("Myrkytyskoneen vuokraus : ", ha * 100);
        else a.Kulu("Myrkyttämisen bensakulut : ", ha * 2);
    }
    if (r.Ojitetaan) {
        a.Rivi("");
        a.Rivi("Uusinta ojituksiin");
        a.Kulu("Salaojitus maksaa : ", ha * 250);
    }
    a.Rivi("");
    Aseta(r.T, a.summa);
    a.Rivi("Kokonais kustannus : " + Str(r.T));
}

void ValitseKasvi(Peli& peli, Kasvi kasvi) {
    KylvöRuutuTila& r = peli.kylvöruutu;
    SoitaÄäni(peli, "siirto");
    r.kortti = static_cast<int>(kasvi);
    r.määrä = 0;
    Aseta(r.hinta, Siemenhinta(peli.m, kasvi));
    Aseta(r.kulu, static_cast<double>(KASVITAULU[kasvi].siemenPerHa));
    PäivitäKasvikortti(r);
}

void KylvöPlus(Peli& peli) {
    KylvöRuutuTila& r = peli.kylvöruutu;
    if (r.kortti < 0) return;
    if (r.määrä < Int(r.eikylvetä)) Lisää(r.määrä, 1);
    PäivitäKasvikortti(r);
}

void KylvöMiinus(Peli& peli) {
    KylvöRuutuTila& r = peli.kylvöruutu;
    if (r.kortti < 0) return;
    if (r.määrä > 0) Lisää(r.määrä, -1);
    PäivitäKasvikortti(r);
}

void HyväksyKasvi(Peli& peli) {
    KylvöRuutuTila& r = peli.kylvöruutu;
    if (r.kortti < 0) return;
    Lisää(r.ala[static_cast<std::size_t>(r.kortti)], r.määrä);
    PlaaniMuuttui(peli);
    // The lot stays on the card while unplanned field remains.
    if (r.eikylvetä <= 0) {
        r.määrä = 0;
        r.yhteensä = 0;
    }
}

void NollaaAla(Peli& peli, Kasvi kasvi) {
    peli.kylvöruutu.ala[kasvi] = 0;
    PlaaniMuuttui(peli);
}

void AsetaLannoitetaan(Peli& peli, bool päällä) {
    peli.kylvöruutu.Lannoitetaan = päällä;
    KylvönKustannukset(peli);
}

void AsetaMyrkytetään(Peli& peli, bool päällä) {
    peli.kylvöruutu.Myrkytetään = päällä;
    KylvönKustannukset(peli);
}

void AsetaOjitetaan(Peli& peli, bool päällä) {
    peli.kylvöruutu.Ojitetaan = päällä;
    KylvönKustannukset(peli);
}

void AloitaKylväminen(Peli& peli) {
    Muuttujat& m = peli.m;
    KylvöRuutuTila& r = peli.kylvöruutu;
    PlaaniMuuttui(peli);
    if (m.Raha < r.T) {
        Kieltäydy(peli, Rivitä({"Kylväminen maksaa liikaa!", "", "Rahatilanteesi : " + Str(m.Raha),
                                "Kylväminen maksaa : " + Str(r.T), "",
                                "Sinulta puuttuu : " + Str(CSng(r.T - static_cast<double>(m.Raha)))}));
        return;
    }
    SoitaÄäni(peli, "klik");
    m.Kylvetty = r.ala;
    Lisää(m.Raha, -static_cast<double>(r.T));
    Aseta(m.KylvettyAla, r.kylvetään);
    Aseta(m.KasvuVaihe, 0);
    Aseta(m.KylvöKulut, r.T);
    Aseta(m.HoitoTaso, 2 * (r.Lannoitetaan ? 1 : 0) + (r.Myrkytetään ? 1 : 0) + (r.Ojitetaan ? 1 : 0));
    peli.peltoruutu.Image4 = false;
    peli.peltoruutu.Image5 = true;
    // The plan went into the ground; the next one starts empty.
    peli.kylvöruutu = KylvöRuutuTila{};
    PalaaPelloille(peli);
}

void PeruutaKylvö(Peli& peli) {
    SoitaÄäni(peli, "klik");
    peli.kylvöruutu = KylvöRuutuTila{};
    PalaaPelloille(peli);
}

void AvaaNosto(Peli& peli) {
    SoitaÄäni(peli, "klik");
    NostoRuutuTila& r = peli.nostoruutu;
    r.auki = true;
    r.arkki = false;
    LaskeNosto(peli);
}

void LaskeNosto(Peli& peli) {
    const Muuttujat& m = peli.m;
    NostoRuutuTila& r = peli.nostoruutu;
    r.yhteensä = 0;
    for (std::size_t k = 0; k < KASVEJA; ++k) {
        NostoRivi& rivi = r.rivit[k];
        rivi.ha = m.Kylvetty[k];
        rivi.kg = m.Sato[k];
        Aseta(rivi.hinta, 2.0 * m.Siemen[k] + m.SiemenKurssi[k]);
        rivi.summa = Int(static_cast<double>(rivi.kg) * Int(rivi.hinta));
        r.yhteensä += rivi.summa;
    }
    // The costs: machines, then the wages; rape needs the combine, strawberries pickers.
    r.Kustannukset.clear();
    Arkki a{r.Kustannukset};
    const double ha = m.KylvettyAla;
    a.Rivi("Koneisiin");
    if (m.Kylvetty[Rypsi] > 0) {
        if (m.Tarv[Puimuri]) a.Kulu("puimurin polttoaineisiin : 2 / ha = ", ha * 2);
        else a.Kulu("puimurin vuokraus : 250 / ha = ", ha * 250);
    }
    if (m.Tarv[Traktori]) a.Kulu("traktorin polttoaineisiin : 2 / ha = ", ha * 2);
    else a.Kulu("traktorin vuokraus : 100 / ha = ", ha * 100);
    a.Rivi("Palkat");
    a.Kulu("traktorin kuljettajat : ", ha * 1500);
    if (m.Kylvetty[Rypsi] > 0) a.Kulu("puimurin kuljettajat : ", ha * 2000);
    if (m.Kylvetty[Mansikka] > 0) a.Kulu("marjan poimijat : ", ha * 1000);
    Aseta(r.C, a.summa);
    a.Rivi("");
    a.Rivi("Sadon nosto kustannus : " + Str(r.C));
    a.Rivi("");
    a.Rivi("Kylvämisen kulut : " + Str(m.KylvöKulut));
    a.Rivi("Koko sadon kulut : " + Str(static_cast<double>(m.KylvöKulut) + r.C));
    a.Rivi("");
    r.brutto = Int(r.yhteensä) - (static_cast<double>(m.KylvöKulut) + r.C);
    a.Rivi("Sadon tuotanto : " + Str(Int(r.yhteensä)));
    a.Rivi("Sadon brutto tuotto : " + Str(r.brutto));
}

void NostoLaske(Peli& peli) {
    SoitaÄäni(peli, "klik");
    LaskeNosto(peli);
}

void NostoKustannukset(Peli& peli) {
    SoitaÄäni(peli, "klik");
    LaskeNosto(peli);
    peli.nostoruutu.arkki = true;
}

void KorjaaSato(Peli& peli) {
    Muuttujat& m = peli.m;
    SoitaÄäni(peli, "klik");
    // The gross figure already takes the sowing's and the harvest's costs off; it may be negative.
    Lisää(m.Raha, Int(peli.nostoruutu.brutto));
    m.Kylvetty.fill(0);
    m.Sato.fill(0);
    Aseta(m.KylvettyAla, 0);
    Aseta(m.KasvuVaihe, 0);
    peli.peltoruutu.Image4 = true;
    peli.peltoruutu.Image5 = false;
    peli.nostoruutu = NostoRuutuTila{};
    PalaaPelloille(peli);
}

void PeruSadonKorjuu(Peli& peli) {
    SoitaÄäni(peli, "klik");
    peli.nostoruutu.auki = false;
    peli.nostoruutu.arkki = false;
}

}  // namespace tanhua
