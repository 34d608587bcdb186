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

// Chooses the card, sets the lot as the steppers would (without their clicks) and presses the button.
Toiminto Painike(void (*painike)(Peli&)) {
    return Toiminto{2, 2, [painike](Peli& peli, const std::vector<std::string>& a) {
                        const int kortti = Kortti(a[0]);
                        const Integer määrä = Erä(a[1]);
                        ValitseEläin(peli, kortti);
                        peli.eläinruutu.määrä = määrä;
                        Aseta(peli.eläinruutu.yhtosto, static_cast<double>(peli.eläinruutu.ostohinta) * määrä);
                        Aseta(peli.eläinruutu.yhtmyynti, static_cast<double>(peli.eläinruutu.myyntihinta) * määrä);
                        painike(peli);
                    }};
}

}  // namespace

void EläinkaupanToiminnot(Toimintoluettelo& t) {
    t["AutoTeurastus"] = Pelkkä(AutoTeurastus);
    t["Eläimet.Avaa"] = Pelkkä(AvaaEläimet);
    t["Eläimet.ValitseEläin"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                             ValitseEläin(peli, Kortti(a[0]));
                                         }};
    t["Eläimet.määräplus"] = Pelkkä(määräplus);
    t["Eläimet.määrämiinus"] = Pelkkä(määrämiinus);
    t["Eläimet.Osta"] = Painike(Osta);
    t["Eläimet.Myy"] = Painike(Myy);
    t["Eläimet.Teurasta"] = Painike(Teurasta);
    t["Eläimet.TeurasRaja"] = Toiminto{2, 2, [](Peli& peli, const std::vector<std::string>& a) {
                                           const int raja = TeurasRajaNimellä(a[0]);
                                           if (raja < 0)
                                               throw std::runtime_error("unknown limit field '" + a[0] +
                                                                        "': Lehmä, Sonni, Lammas, Pässi, Sika, "
                                                                        "Karju, Kana, Kukko, Kettu or KettuUros");
                                           TeurasRajaMuuttui(peli, raja, a[1]);
                                       }};
    t["Eläimet.Takaisin"] = Pelkkä(Takaisin);
}

}  // namespace tanhua
