// The operations a script can call, by their names in the game.
#include <map>


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
        {"Alku.NostaVaikeustasoa", Pelkkä(NostaVaikeustasoa)},
        {"Alku.LaskeVaikeustasoa", Pelkkä(LaskeVaikeustasoa)},
        {"Tilanne.UusiTilanne", Toiminto{0, 0, [](Peli& peli, const std::vector<std::string>&) { UusiTilanne(peli); }}},
        };
        EläintenToiminnot(t);
        EläinkaupanToiminnot(t);
        MarkkinoidenToiminnot(t);
        return t;
    }();
    return toiminnot;
}

}  // namespace tanhua
