// The runner's operations of the market, the product screen and the bank's market report.
#include <stdexcept>

#include "market/markkinat.h"
#include "market/myynti.h"
#include "skripti.h"

namespace tanhua {

namespace {

Tuote TuoteSanasta(const std::string& sana) {
    const int k = TuoteNimellä(sana);
    if (k < 0)
        throw std::runtime_error("unknown product '" + sana +
                                 "': give its key (Maito, Muna, Lanta, ...) or its card name (Kananmuna, Lannoite, ...)");
    return static_cast<Tuote>(k);
}


// The card's prices are worked out when the screen opens, so its operations need it open.
void VaadiAuki(const Peli& peli) {
    if (!peli.tuoteruutu.auki) Ohita();
}

// A button of the card: with a product named, its picture is clicked first; without, the card
// that is open takes the press. A product whose card would show the button disabled is a press
// the player couldn't make, told before the picture is clicked.
Toiminto Kortilla(void (*painike)(Peli&), const char* ohjain, bool vainRehulla = false) {
    return Toiminto{0, 1, [painike, ohjain, vainRehulla](Peli& peli, const std::vector<std::string>& a) {
                        const int k = a.empty() ? -1 : static_cast<int>(TuoteSanasta(a[0]));
                        VaadiAuki(peli);
                        if (k >= 0) {
                            if (vainRehulla && k != Rehu) Ohita();
                            AvaaTuote(peli, static_cast<Tuote>(k));
                        }
                        VaadiPainettava(peli, ohjain);
                        painike(peli);
                    }};
}

TuoteKohde Kohde(const std::string& sana) {
    if (sana == "Ruutu") return TuoteKohde::Ruutu;
    if (sana == "Command2") return TuoteKohde::Command2;
    if (sana == "Command6") return TuoteKohde::Command6;
    if (sana == "Command3") return TuoteKohde::Command3;
    if (sana == "Command1") return TuoteKohde::Command1;
    if (sana == "KirjanpitäjäKuva") return TuoteKohde::KirjanpitäjäKuva;
    throw std::runtime_error("unknown place on the product screen '" + sana +
                             "': Ruutu, Command1, Command2, Command3, Command6, KirjanpitäjäKuva or a product");
}

}  // namespace

void MarkkinoidenToiminnot(Toimintoluettelo& t) {
    t["Markkinat"] = Pelkkä(Markkinat);
    t["EnsimmäinenKurssi"] = Pelkkä(EnsimmäinenKurssi);
    t["AutoMyynti"] = Pelkkä(AutoMyynti);
    t["PäivitäTuotteet"] = Pelkkä(PäivitäTuotteet);
    t["Pankki.PörssiRaportti"] = Pelkkä([](Peli& p) { VaadiPainettava(p, "Pankki.Command6"); PörssiRaportti(p); });

    t["Tuotteet.Avaa"] = Pelkkä(AvaaTuotteet);
    t["Tuotteet.AvaaTuote"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                           const Tuote k = TuoteSanasta(a[0]);
                                           VaadiAuki(peli);
                                           AvaaTuote(peli, k);
                                       }};
    t["Tuotteet.MyyKaikki"] = Kortilla(MyyKaikki, "Tuotteet.Command2");
    t["Tuotteet.MyyPuolet"] = Kortilla(MyyPuolet, "Tuotteet.Command6");
    t["Tuotteet.OstaRehua"] = Kortilla(OstaRehua, "Tuotteet.Command3", true);
    t["Tuotteet.Tuotelisäasetus"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                                 const bool päällä = Kytkin(a[0], "the extra setting");
                                                 VaadiPainettava(peli, "Tuotteet.Tuotelisäasetus");
                                                 Tuotelisäasetus(peli, päällä);
                                             }};
    t["Tuotteet.KirjanpitäjäKuva"] = Painallus("Tuotteet.KirjanpitäjäKuva", KirjanpitäjäKuva);
    // The accountant's settings sit on his panel.
    t["Tuotteet.Myy"] = Toiminto{2, 2, [](Peli& peli, const std::vector<std::string>& a) {
                                     const Tuote k = TuoteSanasta(a[0]);
                                     const bool päällä = Kytkin(a[1], "a sale box");
                                     VaadiPainettava(peli, "Tuotteet." + AsetuksenNimi(k));
                                     AsetaAutomyynti(peli, k, päällä);
                                 }};
    t["Tuotteet.Tyyli"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                       const Tuote k = TuoteSanasta(a[0]);
                                       VaadiPainettava(peli, "Tuotteet." + AsetuksenNimi(k) + "Tyyli");
                                       KäännäTyyli(peli, k);
                                   }};
    t["Tuotteet.rulla"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                       // 1 sells every week, 0 once a month.
                                       const bool viikoittain = Kytkin(a[0], "the sale time");
                                       VaadiPainettava(peli, "Tuotteet.rulla");
                                       AsetaMyyntiaika(peli, viikoittain ? 1 : 0);
                                   }};
    // Hovering needs no click, but a hidden button or picture can't be hovered.
    t["Tuotteet.Osoitin"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                         const int k = TuoteNimellä(a[0]);
                                         if (k >= 0) {
                                             OsoitinTuoteruudulla(peli, TuoteKohde::Kuva, k);
                                             return;
                                         }
                                         const TuoteKohde kohde = Kohde(a[0]);
                                         if (kohde != TuoteKohde::Ruutu && kohde != TuoteKohde::Command1)
                                             VaadiPainettava(peli, "Tuotteet." + a[0]);
                                         OsoitinTuoteruudulla(peli, kohde);
                                     }};
    t["Tuotteet.Esc"] = EscNäppäin(TuotteetEsc);
    t["Tuotteet.Sulje"] = Pelkkä(SuljeTuotteet);
}

}  // namespace tanhua
