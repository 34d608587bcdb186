// The operations a script can call, by their names in the game.
#include <map>

#include "animals/eläimet.h"
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
#include "market/markkinat.h"
#include "market/myynti.h"
#include "skripti.h"

namespace tanhua {

namespace {
// An operation that takes no arguments.
Toiminto Pelkkä(void (*f)(Peli&)) {
    return Toiminto{0, 0, [f](Peli& peli, const std::vector<std::string>&) { f(peli); }};
}
}  // namespace

const std::map<std::string, Toiminto>& Toiminnot() {
    static const std::map<std::string, Toiminto> toiminnot{
        // The day and the month
        {"SeuraavaPäivä", Pelkkä(SeuraavaPäivä)},
        {"Kuukaudenvaihde", Pelkkä(Kuukaudenvaihde)},
        {"SuljeRaportti", Pelkkä(SuljeRaportti)},
        {"TavoiteTarkastus", Pelkkä(TavoiteTarkastus)},
        {"Joululahja", Pelkkä(Joululahja)},
        {"PerusHinnat", Pelkkä(PerusHinnat)},
        {"TyhjennäTulot", Pelkkä(TyhjennäTulot)},
        // The steps of the day by their own names
        {"Markkinat", Pelkkä(Markkinat)},
        {"AutoMyynti", Pelkkä(AutoMyynti)},
        {"TähtiTarkastus", Pelkkä(TähtiTarkastus)},
        {"TyömaaPäivä", Pelkkä(TyömaaPäivä)},
        {"Keli", Pelkkä(Keli)},
        {"AutoTeurastus", Pelkkä(AutoTeurastus)},
        {"Sattumat", Pelkkä(Sattumat)},
        {"EläintenKunto", Pelkkä(EläintenKunto)},
        {"PakkaamoPäivä", Pelkkä(PakkaamoPäivä)},
        {"EläintenTuotanto", Pelkkä(EläintenTuotanto)},
        {"Ruokinta", Pelkkä(Ruokinta)},
        {"Vanhentuminen", Pelkkä(Vanhentuminen)},
        {"Lisääntyminen", Pelkkä(Lisääntyminen)},
        {"Sopimustarjous", Pelkkä(Sopimustarjous)},
        {"Päivitälukemat", Pelkkä(Päivitälukemat)},
        {"PäiväKulut", Pelkkä(PäiväKulut)},
        // The start screen
        {"Alku.NostaVaikeustasoa", Pelkkä(NostaVaikeustasoa)},
        {"Alku.LaskeVaikeustasoa", Pelkkä(LaskeVaikeustasoa)},
        {"Tilanne.UusiTilanne", Toiminto{0, 0, [](Peli& peli, const std::vector<std::string>&) { UusiTilanne(peli); }}},
    };
    return toiminnot;
}

}  // namespace tanhua
