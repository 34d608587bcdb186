// The runner's operations of the land: the land screen, the forester, the grain, and the sowing and
// harvest screens. The land operations need no opening of the screen; the card is chosen and the
// lot stepped as a player would.
#include <stdexcept>
#include <string>

#include "core/ohjaimet.h"
#include "land/kylvö.h"
#include "land/maat.h"
#include "land/pellot.h"
#include "land/taulut/kylvö.h"
#include "skripti.h"

namespace tanhua {

namespace {

Maa MaaSanasta(const std::string& sana) {
    const int k = MaaNimellä(sana);
    if (k < 0) throw std::runtime_error("a land kind is Metsä, Pelto, Joutomaa or Laidun: '" + sana + "'");
    return static_cast<Maa>(k);
}

Integer Erä(const std::string& sana) {
    if (sana == "1") return 1;
    if (sana == "10") return 10;
    if (sana == "100") return 100;
    throw std::runtime_error("a lot of land is 1, 10 or 100: '" + sana + "'");
}

Kasvi KasviSanasta(const std::string& sana) {
    for (std::size_t k = 0; k < KASVEJA; ++k)
        if (KASVITAULU[k].otsikko == sana) return static_cast<Kasvi>(k);
    throw std::runtime_error("a crop is Mansikka, Peruna or Rypsi: '" + sana + "'");
}

// A card opened, the lot stepped to LOT, and the card's button pressed.
Toiminto Kauppa(const char* nappi, void (*f)(Peli&)) {
    return Toiminto{2, 2, [nappi, f](Peli& peli, const std::vector<std::string>& a) {
                        const Maa maa = MaaSanasta(a[0]);
                        const Integer erä = Erä(a[1]);
                        ValitseMaa(peli, maa);
                        while (peli.peltoruutu.määrä < erä) plus(peli);
                        VaadiPainettava(peli, nappi);
                        f(peli);
                    }};
}

// A box of the sowing screen.
Toiminto Laatikko(void (*f)(Peli&, bool)) {
    return Toiminto{1, 1, [f](Peli& peli, const std::vector<std::string>& a) { f(peli, Kytkin(a[0], "a box")); }};
}

}  // namespace

void MaidenToiminnot(Toimintoluettelo& t) {
    // The land's steps of the day and the month.
    t["Metsuri"] = Pelkkä(Metsänhakkuu);
    t["Metsitys"] = Pelkkä([](Peli& peli) { Metsitys(peli); });
    t["Viljankasvu"] = Pelkkä(Viljankasvu);

    // The land screen.
    t["Pellot.Avaa"] = Pelkkä(AvaaPellot);
    // Leaving a screen that isn't showing is no press a player can make.
    t["Pellot.Sulje"] = Toiminto{0, 0, [](Peli& peli, const std::vector<std::string>&) {
                                     if (!peli.peltoruutu.auki) Ohita();
                                     SuljePellot(peli);
                                 }};
    t["Pellot.Esc"] = EscNäppäin([](Peli& peli) {
        if (!peli.peltoruutu.auki) Ohita();
        return PellotEsc(peli);
    });
    t["Pellot.ValitseMaa"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                          ValitseMaa(peli, MaaSanasta(a[0]));
                                      }};
    t["Pellot.plus"] = Painallus("Pellot.plus", plus);
    t["Pellot.miinus"] = Painallus("Pellot.miinus", miinus);
    t["Pellot.OstaMaata"] = Kauppa("Pellot.Command7", OstaMaata);
    t["Pellot.MyyMaata"] = Kauppa("Pellot.Command8", MyyMaata);
    t["Pellot.MetsuriKuva"] = Painallus("Pellot.MetsuriKuva", AvaaMetsuriValikko);
    // The box is on the forester's panel, which opens from the forester's picture.
    t["Pellot.Metsitä"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                       const bool päällä = Kytkin(a[0], "Metsitä");
                                       if (!peli.peltoruutu.MetsuriValikko) {
                                           VaadiPainettava(peli, "Pellot.MetsuriKuva");
                                           AvaaMetsuriValikko(peli);
                                       }
                                       AsetaMetsitä(peli, päällä);
                                   }};
    t["Pellot.Osoita"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                      if (!Painettavissa(peli, "Pellot." + a[0])) Ohita();
                                      if (!OsoitinPelloilla(peli, a[0]))
                                          throw std::runtime_error("the pointer names Image0 .. Image5 or MetsuriKuva: '" +
                                                                   a[0] + "'");
                                  }};
    // The two pictures that lead to the sowing and harvest screens; hidden in play.
    t["Pellot.Image4"] = Painallus("Pellot.Image4", AvaaKylvö);
    t["Pellot.Image5"] = Painallus("Pellot.Image5", AvaaNosto);

    // The sowing screen: each crop's card opened afresh, HA presses of plus, then "Hyväksy".
    t["Kylvö.Hyväksy"] = Toiminto{2, 2, [](Peli& peli, const std::vector<std::string>& a) {
                                      const Kasvi kasvi = KasviSanasta(a[0]);
                                      const long long ha = Luku(a[1], "hectares", 0, 1000000);
                                      PäivitäMäärät(peli);
                                      ValitseKasvi(peli, kasvi);
                                      for (long long i = 0; i < ha; ++i) KylvöPlus(peli);
                                      HyväksyKasvi(peli);
                                  }};
    t["Kylvö.Nollaa"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                     NollaaAla(peli, KasviSanasta(a[0]));
                                 }};
    t["Kylvö.Lannoitetaan"] = Laatikko(AsetaLannoitetaan);
    t["Kylvö.Myrkytetään"] = Laatikko(AsetaMyrkytetään);
    t["Kylvö.Ojitetaan"] = Laatikko(AsetaOjitetaan);
    t["Kylvö.AloitaKylväminen"] = Pelkkä(AloitaKylväminen);
    t["Kylvö.PeruutaKylvö"] = Pelkkä(PeruutaKylvö);

    // The harvest screen; its costs are worked out as it opens, so each operation starts there.
    auto nosto = [](void (*f)(Peli&)) {
        return Toiminto{0, 0, [f](Peli& peli, const std::vector<std::string>&) {
                            if (!peli.nostoruutu.auki) LaskeNosto(peli);
                            f(peli);
                        }};
    };
    t["Nosto.laske"] = nosto(NostoLaske);
    t["Nosto.Kustannukset"] = nosto(NostoKustannukset);
    t["Nosto.KorjaaSato"] = nosto(KorjaaSato);
    t["Nosto.PeruSadonKorjuu"] = nosto(PeruSadonKorjuu);
}

}  // namespace tanhua
