// The land screen: the cards of the four kinds of land, buying and selling them, and the forester's panel.
#include "pellot.h"

#include <array>

#include "../core/ohjaimet.h"
#include "../core/peli.h"
#include "../core/pääruutu.h"
#include "../core/viestit.h"
#include "taulut/pellot.h"

namespace tanhua {

namespace {
std::string T(std::string_view s) { return std::string(s); }

// The card's price and total as the market stands now.
void PäivitäKortti(Peli& peli) {
    PeltoRuutuTila& r = peli.peltoruutu;
    if (r.kortti < 0) return;
    const Muuttujat& m = peli.m;
    const auto k = static_cast<std::size_t>(r.kortti);
    Aseta(r.hinta, static_cast<double>(m.PerusMaa[k]) + m.MaaKurssi[k]);
    Aseta(r.yhteensä, static_cast<double>(r.hinta) * r.määrä);
}

Maa Kortti(const Peli& peli) { return static_cast<Maa>(peli.peltoruutu.kortti); }
}  // namespace

Single& Hehtaarit(Muuttujat& m, Maa maa) {
    switch (maa) {
        case MaaMetsä: return m.Metsä;
        case MaaPelto: return m.Pelto;
        case MaaJoutomaa: return m.Joutomaa;
        default: return m.Laidun;
    }
}

Single Hehtaarit(const Muuttujat& m, Maa maa) {
    switch (maa) {
        case MaaMetsä: return m.Metsä;
        case MaaPelto: return m.Pelto;
        case MaaJoutomaa: return m.Joutomaa;
        default: return m.Laidun;
    }
}

int MaaNimellä(const std::string& nimi) {
    for (std::size_t k = 0; k < MAITA; ++k)
        if (MAAKORTIT[k].otsikko == nimi || MAATAULU[k].avain == nimi) return static_cast<int>(k);
    return -1;
}

double KortinMaavero(const Muuttujat& m, Maa maa) {
    const double H = Hehtaarit(m, maa);
    return Round(H * H * MAAKORTIT[maa].veroKerroin, 2);
}

std::string KKTuotto(const Muuttujat& m, Maa maa) {
    if (maa == MaaMetsä) return Luku(m.PuutaHakattu);
    if (maa == MaaPelto) return m.Vuodenaika == "Talvi" ? T(peltoteksti::Talvi) : Luku(m.ViljaaTuotettu);
    return T(peltoteksti::EiTuottoa);
}

bool LantaKuvassa(const Peli& peli) { return peli.peltoruutu.kortti == MaaPelto && peli.m.LantaPeltoon; }

bool MetsuriKuvassa(const Muuttujat& m) { return m.Rak[Saha] > 0 && m.Työ[Metsuri] > 0; }

void AvaaPellot(Peli& peli) {
    PeltoRuutuTila& r = peli.peltoruutu;
    SoitaÄäni(peli, "klik");
    r.auki = true;
    r.otsikko = T(peltoteksti::Ruutu);
    if (peli.m.Pelto <= 0) r.Image4 = r.Image5 = false;
    PäivitäKortti(peli);
}

void SuljePellot(Peli& peli) {
    SoitaÄäni(peli, "klik");
    peli.peltoruutu.auki = false;
}

bool PellotEsc(Peli& peli) {
    PeltoRuutuTila& r = peli.peltoruutu;
    if (r.MetsuriValikko || r.kortti >= 0) {
        r.MetsuriValikko = false;
        r.kortti = -1;
        return false;
    }
    SuljePellot(peli);
    return true;
}

void ValitseMaa(Peli& peli, Maa maa) {
    PeltoRuutuTila& r = peli.peltoruutu;
    SoitaÄäni(peli, "siirto");
    r.kortti = static_cast<int>(maa);
    r.määrä = 1;
    PäivitäKortti(peli);
}

namespace {
// The lot moves one step along 1, 10, 100; past either end nothing changes.
void AskellaErää(Peli& peli, int suunta) {
    PeltoRuutuTila& r = peli.peltoruutu;
    if (r.kortti < 0) return;
    SoitaÄäni(peli, "siirto");
    r.määrä = SeuraavaErä(r.määrä, suunta);
    PäivitäKortti(peli);
}

// After a trade: the card's figures and the money plate beside the screen.
void Kauppa(Peli& peli) {
    PäivitäKortti(peli);
    NäytäRaha(peli);
}
}  // namespace

void plus(Peli& peli) { AskellaErää(peli, 1); }
void miinus(Peli& peli) { AskellaErää(peli, -1); }

void OstaMaata(Peli& peli) {
    PeltoRuutuTila& r = peli.peltoruutu;
    if (r.kortti < 0) return;
    Muuttujat& m = peli.m;
    PäivitäKortti(peli);
    // Strict: the lot is refused only when it costs more than the cash; equal money buys.
    if (Int(r.yhteensä) > m.Raha) {
        Kieltäydy(peli, Rivitä({T(peltoteksti::EiVaraa), "",
                                Str(r.määrä) + T(peltoteksti::HehtaariaMaksaa) + Str(r.yhteensä),
                                T(peltoteksti::RahaaOn) + Str(m.Raha),
                                T(peltoteksti::Puuttuu) + Str(CSng(r.yhteensä - static_cast<double>(m.Raha)))}));
        return;
    }
    SoitaÄäni(peli, "siirto");
    // Land is no turnover: Liikevaihto doesn't move.
    Lisää(Hehtaarit(m, Kortti(peli)), Int(r.määrä));
    Lisää(m.Raha, -Int(r.yhteensä));
    Kauppa(peli);
}

void MyyMaata(Peli& peli) {
    PeltoRuutuTila& r = peli.peltoruutu;
    if (r.kortti < 0) return;
    Muuttujat& m = peli.m;
    PäivitäKortti(peli);
    const Maa maa = Kortti(peli);
    const double erä = Int(r.määrä);
    if (erä > Hehtaarit(m, maa) || (maa == MaaJoutomaa && m.Joutomaa < 1)) {
        Kieltäydy(peli, T(peltoteksti::EiMyytävää));
        return;
    }
    // A stable standing or being built keeps at least some pasture under it.
    const bool talli = m.Rak[Hevostalli] != 0 || m.RakAika[Hevostalli] > 0;
    if (maa == MaaLaidun && erä >= m.Laidun && talli) {
        Kieltäydy(peli, T(peltoteksti::Hevostalli));
        return;
    }
    SoitaÄäni(peli, "siirto");
    Lisää(Hehtaarit(m, maa), -erä);
    Lisää(m.Raha, Int(r.yhteensä));
    Kauppa(peli);
}

void AvaaMetsuriValikko(Peli& peli) {
    SoitaÄäni(peli, "klik");
    peli.peltoruutu.MetsuriValikko = true;
}

void AsetaMetsitä(Peli& peli, bool päällä) { Aseta(peli.m.Pellot_Metsitä, päällä ? 1 : 0); }

bool OsoitinPelloilla(Peli& peli, const std::string& ohjain) {
    std::string_view teksti;
    for (std::size_t k = 0; k < MAITA; ++k)
        if (ohjain == "Image" + std::to_string(k)) teksti = MAAKORTIT[k].osoitin;
    if (ohjain == "Image4") teksti = peltoteksti::Kylvä;
    if (ohjain == "Image5") teksti = peltoteksti::Korjaa;
    if (ohjain == "MetsuriKuva") teksti = peltoteksti::Metsurin;
    if (teksti.empty()) return false;
    peli.peltoruutu.otsikko = T(teksti);
    return true;
}

}  // namespace tanhua
