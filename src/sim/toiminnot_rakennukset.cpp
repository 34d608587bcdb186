// The runner's operations of the building screen and the work orders.
#include <stdexcept>
#include <string>

#include "buildings/rakennukset.h"
#include "buildings/rakentaminen.h"
#include "skripti.h"

namespace tanhua {

namespace {

std::size_t KohdeSanasta(const std::string& sana) {
    const int kohde = KohdeNimellä(sana);
    if (kohde < 0)
        throw std::runtime_error("unknown building '" + sana +
                                 "': give its key (Navetta, Siilo, Varasto, Saha, Kasvihuone, ..., Pakkaamo)");
    return static_cast<std::size_t>(kohde);
}

std::string Kuva(std::size_t kohde) { return "Rakennukset.Picture(" + std::to_string(KuvanNumero(kohde)) + ")"; }

// The step of a target's row whose size is the word; a size not on the row is a malformed line.
int AskelSanasta(std::size_t kohde, const std::string& sana) {
    const KatalogiRivi& rivi = RAKENNUSKATALOGI[kohde];
    std::string askeleet;
    for (int i = 0; i < rivi.askelia; ++i) {
        const std::string koko = std::to_string(rivi.määrät[static_cast<std::size_t>(i)]);
        if (koko == sana) return i;
        askeleet += (i ? ", " : "") + koko;
    }
    throw std::runtime_error("the size of " + std::string(rivi.avain) + " is one of " + askeleet + ": '" + sana + "'");
}

// The day labels are refreshed when the screen opens, and stars and orders only change while it
// is closed; a press on the closed screen reads them as opening it would have left them.
void LabelitAjan(Peli& peli) {
    if (!peli.rakennusruutu.auki) NäytäTyömaat(peli);
}

// The steppers pressed until the store's step is reached, as a player would.
void AsetaAskel(Peli& peli, int askel) {
    for (int i = 0; i < 3 && peli.rakennusruutu.askel != askel; ++i)
        AskelMäärä(peli, askel > peli.rakennusruutu.askel ? 1 : -1);
}

// The slider's place: a whole number from 0 to 10, else a malformed line.
int Liukuarvo(const std::string& sana) {
    if (sana.empty() || sana.size() > 2 || sana.find_first_not_of("0123456789") != std::string::npos ||
        std::stoi(sana) > TUOTANTO_ASKELIA)
        throw std::runtime_error("the production slider is a whole number from 0 to 10: '" + sana + "'");
    return std::stoi(sana);
}

}  // namespace

void RakennustenToiminnot(Toimintoluettelo& t) {
    t["TyömaaPäivä"] = Pelkkä(TyömaaPäivä);
    // The day's production steps in their order, or with a building's key that building's step.
    // Outside a day the steps take the store load and the herd's feed estimate once at the start.
    t["Jalostus"] = Toiminto{0, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                 if (a.empty()) return Jalostus(peli);
                                 const int r = KohdeNimellä(a[0]);
                                 if (r < 0 || r >= static_cast<int>(RAKENNUKSIA))
                                     throw std::runtime_error("Jalostus takes a building's key: '" + a[0] + "'");
                                 const JalostuksenLuvut luvut(peli);
                                 Jalostus(peli, static_cast<Rakennus>(r));
                             }};
    t["Rakennukset.Tuotanto"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                             const int arvo = Liukuarvo(a[0]);
                                             VaadiPainettava(peli, "Rakennukset.Rakennus_Tuotanto");
                                             AsetaTuotanto(peli, arvo);
                                         }};
    t["Rakennukset.Avaa"] = Pelkkä(AvaaRakennukset);
    // Leaving a screen that isn't showing is no press a player can make.
    t["Rakennukset.Sulje"] = Toiminto{0, 0, [](Peli& peli, const std::vector<std::string>&) {
                                          if (!peli.rakennusruutu.auki) Ohita();
                                          SuljeRakennukset(peli);
                                      }};
    t["Rakennukset.NäytäTyömaat"] = Pelkkä(NäytäTyömaat);
    t["Rakennukset.Valitse"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                            const std::size_t kohde = KohdeSanasta(a[0]);
                                            VaadiPainettava(peli, Kuva(kohde));
                                            ValitseKohde(peli, kohde);
                                        }};
    t["Rakennukset.määräplus"] = Toiminto{0, 0, [](Peli& peli, const std::vector<std::string>&) {
                                              VaadiPainettava(peli, "Rakennukset.määräplus");
                                              AskelMäärä(peli, 1);
                                          }};
    t["Rakennukset.määrämiinus"] = Toiminto{0, 0, [](Peli& peli, const std::vector<std::string>&) {
                                                VaadiPainettava(peli, "Rakennukset.määrämiinus");
                                                AskelMäärä(peli, -1);
                                            }};
    // With a target named its picture is clicked first; with a size the steppers are pressed to
    // it. Without arguments the button takes the target that is chosen. Every check comes before
    // the first click, so a press that can't be made changes nothing.
    t["Rakennukset.Rakenna"] = Toiminto{0, 2, [](Peli& peli, const std::vector<std::string>& a) {
                                            if (a.empty()) {
                                                VaadiPainettava(peli, "Rakennukset.Command2");
                                                LabelitAjan(peli);
                                                TilaaKohde(peli);
                                                return;
                                            }
                                            const std::size_t kohde = KohdeSanasta(a[0]);
                                            const int askel = a.size() > 1 ? AskelSanasta(kohde, a[1]) : 0;
                                            VaadiPainettava(peli, Kuva(kohde));
                                            if (!TilausKäytössä(peli.m, kohde)) Ohita();
                                            LabelitAjan(peli);
                                            ValitseKohde(peli, kohde);
                                            AsetaAskel(peli, askel);
                                            TilaaKohde(peli);
                                        }};
}

}  // namespace tanhua
