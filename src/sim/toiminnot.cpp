// The operations a script can call, by their names in the game.
#include <map>
#include <stdexcept>


#include "buildings/rakennukset.h"
#include "contracts/sopimukset.h"
#include "core/alku.h"
#include "core/kuukausi.h"
#include "core/päivä.h"
#include "core/perushinnat.h"
#include "core/pääruutu.h"
#include "core/sää.h"
#include "core/tähdet.h"
#include "events/sattumat.h"
#include "land/maat.h"
#include "skripti.h"

namespace tanhua {

Toiminto Pelkkä(void (*f)(Peli&)) {
    return Toiminto{0, 0, [f](Peli& peli, const std::vector<std::string>&) { f(peli); }};
}

const Toimintoluettelo& Toiminnot() {
    static const Toimintoluettelo toiminnot = [] {
        Toimintoluettelo t{
        // The day and the month
        {"SeuraavaPäivä", Pelkkä(SeuraavaPäivä)},
        {"Kuukaudenvaihde", Pelkkä(Kuukaudenvaihde)},
        {"SuljeRaportti", Pelkkä(SuljeRaportti)},
        {"TavoiteTarkastus", Pelkkä(TavoiteTarkastus)},
        {"Joululahja", Pelkkä(Joululahja)},
        {"PerusHinnat", Pelkkä(PerusHinnat)},
        {"TyhjennäTulot", Pelkkä(TyhjennäTulot)},
        // The steps of the day by their own names
        {"TähtiTarkastus", Pelkkä(TähtiTarkastus)},
        {"TyömaaPäivä", Pelkkä(TyömaaPäivä)},
        {"Keli", Pelkkä(Keli)},
        {"Sattumat", Pelkkä(Sattumat)},
        {"PakkaamoPäivä", Pelkkä(PakkaamoPäivä)},
        {"Sopimustarjous", Pelkkä(Sopimustarjous)},
        {"Päivitälukemat", Pelkkä(Päivitälukemat)},
        {"PäiväKulut", Pelkkä(PäiväKulut)},
        // The start screen
        {"Tanhua.NäytäTähti", Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
             if (a[0].size() != 1 || a[0][0] < '0' || a[0][0] > '4')
                 throw std::runtime_error("a star is 0 to 4: '" + a[0] + "'");
             NäytäTähti(peli, a[0][0] - '0');
         }}},
        {"Alku.NostaVaikeustasoa", Pelkkä(NostaVaikeustasoa)},
        {"Alku.LaskeVaikeustasoa", Pelkkä(LaskeVaikeustasoa)},
        {"Tilanne.UusiTilanne", Toiminto{0, 0, [](Peli& peli, const std::vector<std::string>&) { UusiTilanne(peli); }}},
        };
        EläintenToiminnot(t);
        EläinkaupanToiminnot(t);
        MarkkinoidenToiminnot(t);
        TyövoimanToiminnot(t);
        RakennustenToiminnot(t);
        PankinToiminnot(t);
        TarvikkeidenToiminnot(t);
        return t;
    }();
    return toiminnot;
}

}  // namespace tanhua
