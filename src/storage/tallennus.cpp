// Saving and opening a farm by name. The .sav holds one value a line in a fixed order, every
// byte raised by one; the .fxf beside it holds the seal of the .sav's bytes, so a save edited by
// hand or taken from another version is refused.
#include "tallennus.h"

#include <algorithm>
#include <system_error>

#include "../animals/eläimet.h"
#include "../buildings/tarvikkeet.h"
#include "../core/peli.h"
#include "../core/perushinnat.h"
#include "../core/päivä.h"
#include "../core/pääruutu.h"
#include "../core/sää.h"
#include "../core/viestit.h"
#include "../core/vikatila.h"
#include "sinetti.h"
#include "tiedostot.h"

namespace tanhua {

namespace {

constexpr int VIKA_KIRJOITUS = 75;  // the file could not be written

// The auto-sale switches stand in the file in the product screen's order, not the stock order.
constexpr std::array<Tuote, TUOTTEITA> MYYNTIJÄRJESTYS{
    Muna, Maito, Liha, Villa, Turkki, Rehu, Puu, Vihannes, Vilja, Lanta,
    Juusto, Makkara, Vaate, Leivos, Lauta, Leipä, Jauho, Marja, Viini, Hunaja};
constexpr std::array<Maa, MAITA> MAAJÄRJESTYS{MaaPelto, MaaMetsä, MaaJoutomaa, MaaLaidun};
constexpr std::array<Rakennus, 8> TUOTANTOJÄRJESTYS{Saha, Meijeri, Mylly, Teurastamo,
                                                    Rehuntuotanto, Viinitehdas, Ompelimo, Leipomo};

// Walks every value of the save in the file's order. The walker has one overload for each
// declared width, and one for a chart list (a count line and that many texts).
template <class K>
void Kentät(Muuttujat& m, K& k) {
    k.Versio(m);
    k(m.PelaajanNimi);
    k(m.Raha);
    k(m.Laina);
    k(m.Tili);
    k(m.Lyhennysvapaa);
    k(m.Päivä);
    k(m.Kuukausi);
    k(m.Vuosi);
    k(m.Vaikeustaso);
    for (auto& laji : m.El)
        for (Long& luku : laji) k(luku);
    for (Single& v : m.Var) k(v);
    for (Integer& v : m.Kurssi) k(v);
    for (Maa maa : MAAJÄRJESTYS) k(m.MaaKurssi[maa]);
    k(m.Koko_Navetta);
    k(m.Koko_Siilo);
    for (Rakennus r : {Saha, Kasvihuone, Meijeri, Mylly}) k(m.Rak[r]);
    k(m.Koko_Varasto);
    for (Rakennus r : {Ompelimo, Leipomo, Teurastamo, Rehuntuotanto, Hevostalli, Marjatarha, Viinitehdas,
                       Mehiläistarha, Pakkaamo})
        k(m.Rak[r]);
    k(m.Pelto);
    k(m.Metsä);
    k(m.Joutomaa);
    k(m.MetsääJäljellä);
    k(m.Laidun);
    for (Long& v : m.Työ) k(v);
    k(m.RatsastusTulot);
    k(m.Liikevaihto);
    k(m.TuntiHinta);
    k(m.Hevostalli_rulla);
    for (auto* lista : {&m.Käyrät.LV, &m.Käyrät.Netto, &m.Käyrät.Rahatila, &m.Käyrät.YHTPalkat,
                        &m.Käyrät.Eläimiä, &m.Käyrät.Rakennuksia})
        k(*lista);
    for (Tuote t : MYYNTIJÄRJESTYS) k(m.Tuotteet.Myy[t]);
    for (Tuote t : MYYNTIJÄRJESTYS) k(m.Tuotteet.MyyTyyli[t]);
    k(m.Tuotteet.rulla);
    k(m.PeliMoodi);
    for (std::size_t t = 0; t < TYÖLÄISIÄ; ++t)
        if (TYÖLÄISTAULU[t].ylityöTallennetaan) k(m.Ylityö[t]);
    for (Integer& v : m.Palkka) k(v);
    for (Integer& v : m.Eläimet.Teuras) k(v);
    for (std::string& v : m.Eläimet.TeurasRaja) k(v);
    for (Integer& v : m.Pankki.Vakuutus) k(v);
    for (Boolean& v : m.Tarv) k(v);
    k.TarvikkeetLuettu();
    for (Sopimus& s : m.Sop) {
        k(s.Tuote);
        k(s.Määrä);
        k(s.Hinta);
        k(s.Sakko);
        k(s.Kesto);
    }
    k(m.SopimuksiaLäpi);
    k(m.SopimuksiaEpä);
    k(m.Pellot_Metsitä);
    k(m.LantaPeltoon);
    for (Tila tila : {Navetta, Siilo, Varasto}) {
        k(m.RakAika[std::size_t{RAKENNUKSIA} + tila]);
        k(m.RakTilaus[std::size_t{RAKENNUKSIA} + tila]);
    }
    for (std::size_t r = 0; r < RAKENNUKSIA; ++r) {
        k(m.RakAika[r]);
        k(m.RakTilaus[r]);
    }
    k(m.LautaRakennukseen);
    k(m.Tähdet);
    k(m.TähtiLukitus);
    k(m.Aurinkoisuus);
    k(m.Sateisuus);
    k(m.Lämpötila);
    for (Rakennus r : TUOTANTOJÄRJESTYS) k(m.Tuotanto[r]);
}

// A number's line: one blank before a number that is not negative, a minus before one that is,
// one blank behind.
std::string Numerorivi(long long x) { return Str(x) + " "; }

struct Kirjoittaja {
    std::vector<std::string> rivit;
    void operator()(const Single& x) { rivit.push_back(Str(x) + " "); }
    void operator()(const Long& x) { rivit.push_back(Numerorivi(x)); }
    void operator()(const Integer& x) { rivit.push_back(Numerorivi(x)); }
    void operator()(const Byte& x) { rivit.push_back(Numerorivi(x)); }
    void operator()(const Boolean& x) { rivit.push_back(x ? "True" : "False"); }
    void operator()(const std::string& x) { rivit.push_back(x); }
    void operator()(const std::vector<std::string>& lista) {
        rivit.push_back(Numerorivi(static_cast<long long>(lista.size())));
        for (const std::string& s : lista) rivit.push_back(s);
    }
    void Versio(const Muuttujat& m) { (*this)(m.Versio); }
    void TarvikkeetLuettu() {}
};

// A number line read by its width: blanks ignored, "." or "," as the decimal separator,
// failure 13 for letters and 6 for a number past the width.
double Luku(std::string rivi) {
    std::replace(rivi.begin(), rivi.end(), ',', '.');
    return TekstiLuvuksi(rivi);
}

struct Lukija {
    Peli& peli;
    const std::vector<std::string>& rivit;
    std::size_t seuraava = 0;
    bool kesken = true;  // false once the player has given up after a failure

    // Reads one value under the failure handler; on "go on" the next value is read.
    template <class F>
    void Kenttä(F&& lue) {
        if (!kesken) return;
        kesken = Vartioitu(peli, paikka::Avaus, {[&] {
                               if (seuraava >= rivit.size()) NostaVika(VIKA_TIEDOSTO_LOPPUI);
                               const std::string& rivi = rivit[seuraava++];
                               lue(rivi);
                           }});
    }
    template <class T>
    void operator()(T& x) {
        Kenttä([&](const std::string& r) { Aseta(x, Luku(r)); });
    }
    void operator()(Boolean& x) {
        Kenttä([&](const std::string& r) { x = TekstiTotuudeksi(r); });
    }
    void operator()(std::string& x) {
        Kenttä([&](const std::string& r) { x = r; });
    }
    void operator()(std::vector<std::string>& lista) {
        Integer määrä = 0;
        (*this)(määrä);
        for (Integer i = 0; i < määrä && kesken; ++i) {
            std::string s;
            (*this)(s);
            if (kesken) lista.push_back(s);
        }
    }
    // The first line is the writer's version; the running program keeps its own, and the failure
    // box compares the two.
    void Versio(Muuttujat& m) { (*this)(m.TilanteenVersio); }
    void TarvikkeetLuettu() {
        if (kesken) RakennaTarvikelistat(peli);
    }
};

std::filesystem::path Tiedosto(const Peli& peli, const std::string& nimi) {
    return DataTiedosto(peli.kansiot, nimi);
}

void Kirjoita(const std::filesystem::path& polku, const std::string& sisältö) {
    if (!KirjoitaKokonaan(polku, sisältö)) NostaVika(VIKA_KIRJOITUS);
}

void PoistaTiedosto(const std::filesystem::path& polku) {
    std::error_code virhe;
    std::filesystem::remove(polku, virhe);
}

// The lines as Windows-1252 bytes, each ended by CR LF.
std::string Tavuina(const std::vector<std::string>& rivit) {
    std::string t;
    for (const std::string& r : rivit) t += Utf8ToCp1252(r) + "\r\n";
    return t;
}

std::string Siirrä(const std::string& teksti, int suunta) {
    std::string ulos;
    ulos.reserve(teksti.size());
    for (const std::string& rivi : Rivit(teksti)) {
        for (char c : rivi) ulos += static_cast<char>(static_cast<unsigned char>(c) + suunta);
        ulos += "\r\n";
    }
    return ulos;
}

// The stored seal: the whole .fxf less its final line end (the seal itself may end in a CR).
std::string TallennettuSinetti(const std::string& fxf) {
    if (fxf.size() >= 2 && fxf.compare(fxf.size() - 2, 2, "\r\n") == 0) return fxf.substr(0, fxf.size() - 2);
    if (!fxf.empty() && fxf.back() == '\n') return fxf.substr(0, fxf.size() - 1);
    return fxf;
}

}  // namespace

std::vector<std::string> TilanteenRivit(const Peli& peli) {
    Kirjoittaja k;
    Kentät(const_cast<Muuttujat&>(peli.m), k);
    return k.rivit;
}

std::string SiirretytRivit(const std::vector<std::string>& rivit) { return Siirrä(Tavuina(rivit), +1); }

std::vector<std::string> PalautetutRivit(const std::string& sav) {
    std::vector<std::string> rivit = Rivit(Siirrä(sav, -1));
    for (std::string& r : rivit) r = Cp1252ToUtf8(r);
    return rivit;
}

void TallennaTilanne(Peli& peli, const std::string& nimi) {
    const auto temp = Tiedosto(peli, "temp.dat");
    const auto sav = Tiedosto(peli, nimi + ".sav");
    const auto fxf = Tiedosto(peli, nimi + ".fxf");
    std::string sinetti;
    // The save as it was: put back if its new seal can't be written, so that no .sav stands beside
    // a seal of another.
    const std::optional<std::string> vanhaSav = LueTiedosto(sav);
    Vartioitu(peli, paikka::Tallennus,
              {
                  [&] { Kirjoita(temp, Tavuina(TilanteenRivit(peli))); },
                  [&] {
                      const auto rivit = LueTiedosto(temp);
                      if (!rivit) NostaVika(VIKA_EI_TIEDOSTOA);
                      Kirjoita(sav, Siirrä(*rivit, +1));
                  },
                  [&] { sinetti = TiedostonSinetti(sav); },
                  [&] {
                      if (KirjoitaKokonaan(fxf, sinetti + "\r\n")) return;
                      if (vanhaSav) KirjoitaKokonaan(sav, *vanhaSav);
                      else PoistaTiedosto(sav);
                      NostaVika(VIKA_KIRJOITUS);
                  },
                  [&] { PoistaTiedosto(temp); },
                  [&] {
                      if (nimi != "Autosave") Kirjoita(Tiedosto(peli, "Savetus.dat"), Utf8ToCp1252(nimi) + "\r\n");
                  },
                  [&] { peli.m.VikaLaskuri = 0; },
              });
}

std::string AvausKiellettyTeksti() {
    return "\nTilanteen avaamisessa esiintyi virhe.\nTodennäköisesti olet yrittänyt murtaa tilanteen salausta, "
           "tai Tanhuan versio on uudempi, kuin tilanteen. Tämän takia peli ei suostu avaamaan tilannetta.\n";
}

bool AvaaTilanne(Peli& peli, const std::string& nimi) {
    Muuttujat& m = peli.m;
    const auto sav = Tiedosto(peli, nimi + ".sav");
    const auto fxf = LueTiedosto(Tiedosto(peli, nimi + ".fxf"));
    if (!fxf || TallennettuSinetti(*fxf) != TiedostonSinetti(sav)) {
        peli.kanavat.Laatikko(AvausKiellettyTeksti());
        Lopeta(peli);
        return false;
    }
    const auto temp = Tiedosto(peli, "temp.dat");
    std::vector<std::string> rivit;
    const bool valmis = Vartioitu(peli, paikka::Avaus,
                                  {
                                      [&] {
                                          for (auto* lista : {&m.Käyrät.LV, &m.Käyrät.Netto, &m.Käyrät.Rahatila,
                                                              &m.Käyrät.YHTPalkat, &m.Käyrät.Eläimiä,
                                                              &m.Käyrät.Rakennuksia})
                                              lista->clear();
                                      },
                                      [&] {
                                          // The buyers' call requests aren't saved: an opened farm
                                          // starts with none waiting, the phone quiet, and no call
                                          // or contract chosen on the contracts screen.
                                          peli.näkymä.Sopimuksia.clear();
                                          peli.näkymä.Puhelin = false;
                                          peli.sopimusruutu = SopimusRuutuTila{};
                                      },
                                      [&] {
                                          const auto tavut = LueTiedosto(sav);
                                          if (!tavut) NostaVika(VIKA_EI_TIEDOSTOA);
                                          Kirjoita(temp, Siirrä(*tavut, -1));
                                      },
                                      [&] {
                                          const auto tavut = LueTiedosto(temp);
                                          if (!tavut) NostaVika(VIKA_EI_TIEDOSTOA);
                                          rivit = Rivit(*tavut);
                                          for (std::string& r : rivit) r = Cp1252ToUtf8(r);
                                      },
                                  });
    if (!valmis) return true;

    peli.Ladataan = true;
    Lukija lukija{peli, rivit};
    Kentät(m, lukija);
    peli.Ladataan = false;
    if (!lukija.kesken) return true;

    Vartioitu(peli, paikka::Avaus,
              {
                  [&] {
                      PoistaTiedosto(temp);
                      m.VikaLaskuri = 0;
                  },
                  [&] {
                      peli.näkymä.lukemat.tähdetNäkyvät = m.TähtiLukitus;
                      peli.näkymä.lukemat.tähtiä = m.TähtiLukitus ? m.Tähdet : 0;
                  },
                  [&] {
                      peli.näkymä.Lista.clear();
                      peli.näkymä.ListaNäkyvissä = false;
                  },
              });
    return true;
}

std::vector<std::string> TilanneTiedostot(const Peli& peli) {
    std::vector<std::string> nimet;
    std::error_code virhe;
    for (const auto& e : std::filesystem::directory_iterator(peli.kansiot.data, virhe)) {
        const std::string nimi = e.path().filename().string();
        if (nimi.size() > 4 && PienetKirjaimet(nimi.substr(nimi.size() - 4)) == ".sav") nimet.push_back(nimi);
    }
    std::sort(nimet.begin(), nimet.end());
    return nimet;
}

namespace {
bool Listalla(const Peli& peli, const std::string& tiedosto) {
    const auto& t = peli.tilanneruutu.Tiedostot;
    const std::string haettu = PienetKirjaimet(tiedosto);
    return std::any_of(t.begin(), t.end(), [&](const std::string& s) { return PienetKirjaimet(s) == haettu; });
}

std::size_t Merkkejä(const std::string& utf8) {
    return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0u) != 0x80u;
    }));
}
}  // namespace

bool TallennaNappi(Peli& peli) {
    TilanneRuutuTila& r = peli.tilanneruutu;
    const std::string nimi = r.Kohde;
    if (nimi.empty()) {
        Kieltäydy(peli, "Olet tallentamassa ilman nimeä\n\nKirjoita tallennettavalle tilanteelle nimi tai valitse "
                        "korvattava tilanne listalta.");
        return false;
    }
    if (Merkkejä(nimi) >= 12) {
        Kieltäydy(peli, "Tallennettava tiedostonimi on liian pitkä. Kirjoita lyhempi nimi");
        return false;
    }
    r.Tiedostot = TilanneTiedostot(peli);
    if (Listalla(peli, nimi + ".sav") &&
        !KysyKyllä(peli, "Olet tallentamassa vanhan tilanteen päälle. Jatketaanko?"))
        return false;
    TallennaTilanne(peli, nimi);
    Ilmoita(peli, "Tilanne tallennettu");
    r.Tiedostot = TilanneTiedostot(peli);
    return true;
}

bool AvaaNappi(Peli& peli) {
    TilanneRuutuTila& r = peli.tilanneruutu;
    Muuttujat& m = peli.m;
    if (r.Kohde.empty()) {
        Ilmoita(peli, "Valitse ensin tilanne jonka avaat");
        return false;
    }
    r.Tiedostot = TilanneTiedostot(peli);
    if (!Listalla(peli, r.Kohde + ".sav")) {
        Ilmoita(peli, "Olet käytänyt tilanteen nimessä pisteitä ja tanhua ei saa nyt avattua tilannetta. Poista "
                      "virheellinen tiedosto ja tallenna tilanne uudestaan.");
        return false;
    }
    if (!AvaaTilanne(peli, r.Kohde)) return false;
    PerusHinnat(peli);
    AsetaVuodenaika(m);
    Keli(peli);
    m.VikaLaskuri = 0;
    Ilmoita(peli, "Tilanne avattu onnistuneesti");
    EläintenKunto(peli);
    Päivitälukemat(peli);
    Päivitälukemat(peli);
    return true;
}

}  // namespace tanhua
