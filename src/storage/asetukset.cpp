// Asetukset.dat: nine lines read once at start; Savetus.dat: the name of the last saved farm.
#include "asetukset.h"

#include "../core/peli.h"
#include "../core/viestit.h"
#include "../core/vikatila.h"
#include "tiedostot.h"

namespace tanhua {

// name, flag, the tool's label and hint
const std::array<AsetusRivi, 9> ASETUSRIVIT{{
    {"Resoluutio800", &Asetukset::Resoluutio800, "Koko näyttö",
     "Peli täyttää koko näytön, ja sen kuva skaalataan näytön kokoon."},  // 1
    {"Animaatiot", &Asetukset::Animaatiot, "Animaatiot",
     "Ikkunat ja paneelit avautuvat ja sulkeutuvat liukuen; pois päältä ne ilmestyvät heti."},  // 2
    {"AnimNopeus", nullptr, "Animaatioiden nopeus",
     "Mitä suurempi luku, sitä nopeammin animaatiot etenevät (0–100)."},  // 3
    {"Kursorit", &Asetukset::Kursorit, "Pelin omat hiiren osoittimet",
     "Hiiren osoittimena on pelissä talikko."},  // 4
    {"Musiikki", &Asetukset::Musiikki, "Musiikki", "Taustamusiikki alkaa soida, kun peli alkaa."},  // 5
    {"BiisiSatunnainen", &Asetukset::BiisiSatunnainen, "Kappaleet sekalaisessa järjestyksessä",
     "Seuraava kappale arvotaan; pois päältä kappaleet soivat listan järjestyksessä."},  // 6
    {"Autotallennus", &Asetukset::Autotallennus, "Automaattinen tallennus",
     "Tila tallentuu nimellä Autosave jokaisen kuukauden lopussa."},  // 7
    {"Äänitehosteet", &Asetukset::Äänitehosteet, "Äänitehosteet",
     "Napsautukset ja pelin muut äänet; pois päältä peli on hiljaa."},  // 8
    {"Prosessorisäästö", &Asetukset::Prosessorisäästö, "Prosessorin säästö",
     "Odottaessaan peli nukkuu eikä kuormita prosessoria turhaan."},  // 9
}};

void LueAsetusrivi(Asetukset& a, std::size_t rivi, const std::string& teksti) {
    const AsetusRivi& r = ASETUSRIVIT.at(rivi);
    if (r.totuus) a.*r.totuus = TekstiTotuudeksi(teksti);
    else Aseta(a.AnimNopeus, TekstiLuvuksi(teksti));
}

void LueAsetukset(Peli& peli) {
    Asetukset& a = peli.asetukset;
    a = Asetukset{};
    const auto sisältö = LueTiedosto(DataTiedosto(peli.kansiot, "Asetukset.dat"));
    if (!sisältö) {
        Ilmoita(peli,
                "Tanhua ei löytänyt \\Data kansiosta Asetukset.dat tiedostoa. Tähän ei ole muuta syytä, kuin "
                "että olet poistanut sen jotenkin, tai tiedoston lataamisessa on tullut virheitä. Jos tämä "
                "virhesanoma ei poistu jatkossa, asenna tanhua uudelleen ja ota yhteyttä pelin tekijään.");
        return;
    }
    const std::vector<std::string> rivit = Rivit(*sisältö);
    // Each line is read on its own: a line that doesn't convert is reported, and on "go on"
    // the next line is read.
    for (std::size_t i = 0; i < ASETUSRIVIT.size(); ++i) {
        const bool jatka = Vartioitu(peli, paikka::AlkuLataus, {[&] {
                                         if (i >= rivit.size()) NostaVika(VIKA_TIEDOSTO_LOPPUI);
                                         LueAsetusrivi(a, i, rivit[i]);
                                     }});
        if (!jatka) return;
    }
}

std::vector<int> JäsennäAsetukset(const std::string& teksti, const Asetukset& oletus, Asetukset& a) {
    const std::vector<std::string> rivit = Rivit(teksti);
    std::vector<int> huonot;
    a = oletus;
    for (std::size_t i = 0; i < ASETUSRIVIT.size(); ++i) {
        Asetukset koe = a;
        try {
            if (i >= rivit.size()) NostaVika(VIKA_TIEDOSTO_LOPPUI);
            LueAsetusrivi(koe, i, rivit[i]);
            a = koe;
        } catch (const Vika&) {
            huonot.push_back(static_cast<int>(i + 1));
        }
    }
    return huonot;
}

std::string HuonotRivit(const std::vector<int>& huonot, bool puuttuu) {
    if (puuttuu) return "Asetukset.dat puuttui: kaikilla asetuksilla on asennuksen arvot.";
    if (huonot.empty()) return "";
    std::string luvut;
    for (int rivi : huonot) luvut += (luvut.empty() ? "" : ", ") + std::to_string(rivi);
    if (huonot.size() == 1)
        return "Asetukset.dat: rivi " + luvut + " ei kelvannut pelille; sen tilalla on asennuksen arvo.";
    return "Asetukset.dat: rivit " + luvut + " eivät kelvanneet pelille; niiden tilalla ovat asennuksen arvot.";
}

Asetustila LueAsetustila(const Kansiot& kansiot) {
    Asetustila t;
    Asetukset tyhjät;
    if (const auto toimitettu = LueTiedosto(kansiot.ohjelma / "Data" / "Asetukset.dat"))
        JäsennäAsetukset(*toimitettu, tyhjät, t.oletukset);
    const auto sisältö = LueTiedosto(DataTiedosto(kansiot, "Asetukset.dat"));
    t.arvot = t.oletukset;
    if (!sisältö) t.huomautus = HuonotRivit({}, true);
    else t.huomautus = HuonotRivit(JäsennäAsetukset(*sisältö, t.oletukset, t.arvot), false);
    return t;
}

bool KirjoitaAsetukset(const Kansiot& kansiot, const Asetukset& a) {
    return KirjoitaKokonaan(DataTiedosto(kansiot, "Asetukset.dat"), AsetuksetTekstinä(a));
}

std::string AsetusTekstinä(const Asetukset& a, std::size_t rivi) {
    const AsetusRivi& r = ASETUSRIVIT.at(rivi);
    if (r.totuus) return a.*r.totuus ? "True" : "False";
    return std::to_string(a.AnimNopeus);
}

std::string AsetuksetTekstinä(const Asetukset& a) {
    std::string t;
    for (std::size_t i = 0; i < ASETUSRIVIT.size(); ++i) t += AsetusTekstinä(a, i) + "\r\n";
    return t;
}

std::string AsetaAsetus(Asetukset& a, std::size_t rivi, const std::string& arvo) {
    const AsetusRivi& r = ASETUSRIVIT.at(rivi);
    if (r.totuus) {
        if (arvo != "True" && arvo != "False") return std::string(r.nimi) + " is True or False, not '" + arvo + "'";
        a.*r.totuus = arvo == "True";
        return "";
    }
    int luku = -1;
    if (!arvo.empty() && arvo.size() <= 3 && arvo.find_first_not_of("0123456789") == std::string::npos)
        luku = std::stoi(arvo);
    if (luku < 0 || luku > 100) return std::string(r.nimi) + " is a whole number from 0 to 100, not '" + arvo + "'";
    Aseta(a.AnimNopeus, luku);
    return "";
}

std::size_t AsetusNimellä(std::string_view nimi) {
    for (std::size_t i = 0; i < ASETUSRIVIT.size(); ++i)
        if (ASETUSRIVIT[i].nimi == nimi) return i;
    return ASETUSRIVIT.size();
}

void LueSavetus(Peli& peli) {
    peli.alku.Viime.clear();
    const auto sisältö = LueTiedosto(DataTiedosto(peli.kansiot, "Savetus.dat"));
    if (!sisältö) {
        Ilmoita(peli,
                "Tanhua ei löytänyt edellisen tilanteen tallennus tiedostoa. Älä yritä tällä kertaa jatkaa "
                "edellistä tilannetta, vaan jos haluat avata tilanteen avaa se itse pelin aikana ja tallenna "
                "uudestaan. Tämän jälkeen tätä virhesanomaa ei pitäisi tulla. Jos saat ilmoituksen kuitenkin "
                "jatkossakin. Ota yhteyttä pelin tekijään.");
        return;
    }
    const auto rivit = Rivit(*sisältö);
    if (!rivit.empty()) peli.alku.Viime = Cp1252ToUtf8(rivit.front());
}

}  // namespace tanhua
