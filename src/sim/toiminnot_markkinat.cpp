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

bool Kytkin(const std::string& sana) {
    if (sana == "1" || sana == "on") return true;
    if (sana == "0" || sana == "off") return false;
    throw std::runtime_error("a check box is on or off (1 or 0): '" + sana + "'");
}

// A button of the card: with a product named, its picture is clicked first; without, the card
// that is open takes the press.
Toiminto Kortilla(void (*painike)(Peli&)) {
    return Toiminto{0, 1, [painike](Peli& peli, const std::vector<std::string>& a) {
                        if (!a.empty()) AvaaTuote(peli, TuoteSanasta(a[0]));
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
                                           AvaaTuote(peli, TuoteSanasta(a[0]));
                                       }};
    t["Tuotteet.MyyKaikki"] = Kortilla(MyyKaikki);
    t["Tuotteet.MyyPuolet"] = Kortilla(MyyPuolet);
    t["Tuotteet.OstaRehua"] = Kortilla(OstaRehua);
    t["Tuotteet.Tuotelisäasetus"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                                 Tuotelisäasetus(peli, Kytkin(a[0]));
                                             }};
    t["Tuotteet.KirjanpitäjäKuva"] = Pelkkä(KirjanpitäjäKuva);
    t["Tuotteet.Myy"] = Toiminto{2, 2, [](Peli& peli, const std::vector<std::string>& a) {
                                     AsetaAutomyynti(peli, TuoteSanasta(a[0]), Kytkin(a[1]));
                                 }};
    t["Tuotteet.Tyyli"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                       KäännäTyyli(peli, TuoteSanasta(a[0]));
                                   }};
    t["Tuotteet.rulla"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                       if (a[0] != "0" && a[0] != "1")
                                           throw std::runtime_error("the slider is 0 (joka kuukausi) or 1 (joka viikko)");
                                       AsetaMyyntiaika(peli, a[0] == "1" ? 1 : 0);
                                   }};
    t["Tuotteet.Osoitin"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                         const int k = TuoteNimellä(a[0]);
                                         if (k >= 0) OsoitinTuoteruudulla(peli, TuoteKohde::Kuva, k);
                                         else OsoitinTuoteruudulla(peli, Kohde(a[0]));
                                     }};
    t["Tuotteet.Esc"] = Pelkkä(TuotteetEsc);
    t["Tuotteet.Sulje"] = Pelkkä(SuljeTuotteet);
}

}  // namespace tanhua
