// The controls of the staff screen as the player sees them.
#include <string>

#include "core/ohjaimet.h"
#include "core/peli.h"
#include "työvoima.h"

namespace tanhua {

namespace {
const TyövoimaRuutuTila& R(const Peli& p) { return p.työvoimaruutu; }
bool Valittu(const Peli& p) { return R(p).valittu >= 0; }

// A figure of the chosen job; blank until a job is chosen.
template <class T>
Ohjain JobinLuku(const Peli& p, T luku) {
    return Näkyvä(Valittu(p) ? Str(luku) : std::string());
}
}  // namespace

void TyövoimaruudunOhjaimet(Ohjainluettelo& l) {
    const RuudunOhjaimet yksi(l, "Työvoima");
    // The list is filled by the stars at each opening; as the stars only move on a day's press,
    // it is always the jobs they open for the farm as it stands.
    yksi("Lista", [](const Peli& p) {
        std::string t;
        for (Työläinen k : TarjolleTyöläiset(p.m)) t += (t.empty() ? "" : "|") + std::string(TYÖLÄISTAULU[k].avain);
        return Näkyvä(t);
    });
    yksi("Työläisiä", [](const Peli& p) { return Näkyvä(Str(R(p).Työläisiä)); });
    yksi("yhtpalk", [](const Peli& p) { return Näkyvä(Str(R(p).yhtpalk)); });

    // The chosen job's card.
    yksi("työ", [](const Peli& p) { return Näkyvä(R(p).työ); });
    yksi("Kuva", [](const Peli& p) {
        const std::string& polku = R(p).kuva;
        return Näkyvä(polku.substr(polku.find_last_of('/') + 1));
    });
    yksi("info", [](const Peli& p) { return Näkyvä(R(p).info); });
    yksi("palkka", [](const Peli& p) { return JobinLuku(p, R(p).palkka); });
    yksi("työmies", [](const Peli& p) { return JobinLuku(p, R(p).työmies); });
    yksi("palk", [](const Peli& p) { return JobinLuku(p, R(p).palk); });
    yksi("YliTyö", [](const Peli& p) { return Näkyvä(R(p).YliTyö); });
    yksi("mittari", [](const Peli& p) {
        return Näkyvä(std::to_string(R(p).mittari), Valittu(p) && R(p).mittariKäytössä);
    });
    yksi("Moti", [](const Peli& p) { return Näkyvä(R(p).Moti); });
    yksi("Stres", [](const Peli& p) { return Näkyvä(R(p).Stres); });

    // The buttons: hiring and firing need a chosen job; overtime one whose overtime can be set.
    yksi("Command1", [](const Peli&) { return Näkyvä("Takaisin"); });
    yksi("Command3", [](const Peli& p) { return Näkyvä("Ota töihin", Valittu(p)); });
    yksi("Command5", [](const Peli& p) { return Näkyvä("Erota", Valittu(p)); });
    yksi("Command7", [](const Peli& p) { return Näkyvä("Ylityöt päälle", Valittu(p) && R(p).ylityöNapit); });
    yksi("Command6", [](const Peli& p) { return Näkyvä("Ylityöt pois", Valittu(p) && R(p).ylityöNapit); });
}

}  // namespace tanhua
