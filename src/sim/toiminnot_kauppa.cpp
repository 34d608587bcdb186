// The runner's operations of the animal screen and slaughter.
#include <stdexcept>

#include "animals/kauppa.h"
#include "skripti.h"

namespace tanhua {

namespace {

int Kortti(const std::string& nimi) {
    const int kortti = KorttiNimellä(nimi);
    if (kortti < 0)
        throw std::runtime_error("unknown animal card '" + nimi +
                                 "': give a card's title (Lehmä, Emakko, \"Uros Kettu\", ...) or its key (Sika, KettuUros, ...)");
    return kortti;
}

// The lot as the steppers can set it.
Integer Erä(const std::string& sana) {
    if (sana == "1") return 1;
    if (sana == "10") return 10;
    if (sana == "100") return 100;
    throw std::runtime_error("the lot must be 1, 10 or 100: '" + sana + "'");
}

// A button of the card. With a card and a lot named, the card's picture is clicked and the lot set
// as the steppers would (without their clicks), which a player can always do; with neither, the open
// card takes the press, and with no card showing the button is out of sight.
Toiminto Painike(void (*painike)(Peli&), const char* ohjain) {
    return Toiminto{0, 2, [painike, ohjain](Peli& peli, const std::vector<std::string>& a) {
                        if (a.size() == 1) throw std::runtime_error("give both the card and the lot, or neither");
                        if (a.empty()) {
                            VaadiPainettava(peli, ohjain);
                            painike(peli);
                            return;
                        }
                        const int kortti = Kortti(a[0]);
                        const Integer määrä = Erä(a[1]);
                        ValitseEläin(peli, kortti);
                        peli.eläinruutu.määrä = määrä;
                        Aseta(peli.eläinruutu.yhtosto, static_cast<double>(peli.eläinruutu.ostohinta) * määrä);
                        Aseta(peli.eläinruutu.yhtmyynti, static_cast<double>(peli.eläinruutu.myyntihinta) * määrä);
                        painike(peli);
                    }};
}

int Laatikko(const std::string& nimi) {
    static constexpr std::array<const char*, 5> NIMET{"TeurasLehmä", "TeurasLammas", "TeurasSika", "TeurasKana",
                                                      "TeurasKettu"};
    for (std::size_t b = 0; b < NIMET.size(); ++b)
        if (nimi == NIMET[b]) return static_cast<int>(b);
    throw std::runtime_error("unknown order box '" + nimi +
                             "': TeurasLehmä, TeurasLammas, TeurasSika, TeurasKana or TeurasKettu");
}


}  // namespace

void EläinkaupanToiminnot(Toimintoluettelo& t) {
    t["AutoTeurastus"] = Pelkkä(AutoTeurastus);
    t["Eläimet.Avaa"] = Pelkkä(AvaaEläimet);
    t["Eläimet.ValitseEläin"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                             ValitseEläin(peli, Kortti(a[0]));
                                         }};
    t["Eläimet.määräplus"] = Painallus("Eläimet.määräplus", määräplus);
    t["Eläimet.määrämiinus"] = Painallus("Eläimet.määrämiinus", määrämiinus);
    t["Eläimet.Osta"] = Painike(Osta, "Eläimet.Command4");
    t["Eläimet.Myy"] = Painike(Myy, "Eläimet.Command3");
    t["Eläimet.Teurasta"] = Painike(Teurasta, "Eläimet.Command2");
    t["Eläimet.Teuraskuva"] = Toiminto{0, 0, [](Peli& peli, const std::vector<std::string>&) {
                                           VaadiPainettava(peli, "Eläimet.Teuraskuva");
                                           AvaaTeuraspaneeli(peli, false);
                                       }};
    t["Eläimet.NahkuriKuva"] = Toiminto{0, 0, [](Peli& peli, const std::vector<std::string>&) {
                                            VaadiPainettava(peli, "Eläimet.NahkuriKuva");
                                            AvaaTeuraspaneeli(peli, true);
                                        }};
    t["Eläimet.Teuraslaatikko"] = Toiminto{2, 2, [](Peli& peli, const std::vector<std::string>& a) {
                                               const int laatikko = Laatikko(a[0]);
                                               const bool päällä = Kytkin(a[1], "an order box");
                                               VaadiPainettava(peli, "Eläimet." + a[0]);
                                               AsetaTeuraslaatikko(peli, laatikko, päällä);
                                           }};
    t["Eläimet.TeurasRaja"] = Toiminto{2, 2, [](Peli& peli, const std::vector<std::string>& a) {
                                           const int raja = TeurasRajaNimellä(a[0]);
                                           if (raja < 0)
                                               throw std::runtime_error("unknown limit field '" + a[0] +
                                                                        "': Lehmä, Sonni, Lammas, Pässi, Sika, "
                                                                        "Karju, Kana, Kukko, Kettu or KettuUros");
                                           VaadiPainettava(peli, "Eläimet.Teuras" +
                                                                     std::string(TEURASRAJAT[static_cast<std::size_t>(raja)]) +
                                                                     "Raja");
                                           TeurasRajaMuuttui(peli, raja, a[1]);
                                       }};
    t["Eläimet.Takaisin"] = Pelkkä(Takaisin);
    t["Eläimet.Esc"] = EscNäppäin(EläimetEsc);
}

}  // namespace tanhua
