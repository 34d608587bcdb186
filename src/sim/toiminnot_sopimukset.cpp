// The runner's operations of the contracts: the day's call request, the month's steps, the phone and
// the contracts screen. A press on a sheet needs its sheet showing.
#include <string>

#include "contracts/sopimukset.h"
#include "core/pääruutu.h"
#include "skripti.h"

namespace tanhua {

void SopimustenToiminnot(Toimintoluettelo& t) {
    t["TarjousSiivous"] = Pelkkä(TarjousSiivous);
    t["SopimusKuukausi"] = Pelkkä(SopimusKuukausi);

    // Command10 of the main screen; the way in from the main screen is added with the other screens'.
    t["Sopimukset.Avaa"] = Pelkkä(AvaaSopimukset);
    // The phone opens the same screen, and is there to click only while it rings.
    t["Tanhua.Puhelin"] = Toiminto{0, 0, [](Peli& peli, const std::vector<std::string>&) {
                                       VaadiPainettava(peli, "Tanhua.Puhelin");
                                       AvaaAlaruutu(peli, [&] { AvaaSopimukset(peli); });
                                   }};
    t["Sopimukset.Sulje"] = Painallus("Sopimukset.Command1", [](Peli& peli) { SuljeSopimukset(peli); });

    // Entry N of the list, counted from 1; a place the list doesn't hold is no press.
    t["Sopimukset.Valitse"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                           const long long n = Luku(a[0], "an entry of the list", 0, 1000000000);
                                           VaadiPainettava(peli, "Sopimukset.Sopimuksia");
                                           if (n < 1 || n > static_cast<long long>(peli.näkymä.Sopimuksia.size()))
                                               Ohita();
                                           ValitseTarjous(peli, static_cast<int>(n - 1));
                                       }};
    t["Sopimukset.Hyväksy"] = Painallus("Sopimukset.Command3", HyväksyTarjous);
    t["Sopimukset.Hylkää"] = Painallus("Sopimukset.Command2", HylkääTarjous);
    t["Sopimukset.UudetSopimukset"] = Painallus("Sopimukset.Command5", UudetSopimukset);
    t["Sopimukset.Sopimukset"] = Painallus("Sopimukset.Command6", NäytäSopimukset);
    t["Sopimukset.SuljeTarjoukset"] = Painallus("Sopimukset.Command9", SuljeTarjoukset);
    t["Sopimukset.SuljeSopimukset"] = Painallus("Sopimukset.Command8", SuljeSopimuslappu);

    // With N, a click on slot N's product first; then "Peru sopimus".
    t["Sopimukset.PeruSopimus"] = Toiminto{0, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                               if (!a.empty()) {
                                                   const long long n = Luku(a[0], "a contract slot", 1, SOPIMUSPAIKKOJA);
                                                   const std::string tuote = "Sopimukset.s" + a[0] + "tuotez";
                                                   VaadiPainettava(peli, tuote);
                                                   ValitsePeruttava(peli, static_cast<int>(n - 1));
                                               }
                                               VaadiPainettava(peli, "Sopimukset.Command7");
                                               PeruSopimus(peli);
                                           }};
}

}  // namespace tanhua
