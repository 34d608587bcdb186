// The controls of the stable screen as the player sees them.
#include <string>

#include "core/ohjaimet.h"
#include "core/peli.h"
#include "talli.h"
#include "taulut/talli.h"

namespace tanhua {

namespace {
const TalliRuutuTila& R(const Peli& p) { return p.talliruutu; }

// A control of the price sheet: out of sight while the sheet is hidden.
Ohjain Hinnastolla(const Peli& p, std::string arvo) { return R(p).Hinnasto ? Näkyvä(std::move(arvo)) : Piilossa(); }
}  // namespace

void HevostalliruudunOhjaimet(Ohjainluettelo& l) {
    const RuudunOhjaimet yksi(l, "Hevostalli");
    // The figures are those of the farm as it stands: the screen shows them on each activation and
    // nothing on it changes them.
    yksi("Laidunz", [](const Peli& p) { return Näkyvä(Luku(p.m.Laidun)); });
    yksi("Hevonenz", [](const Peli& p) {
        return Näkyvä(Luku(static_cast<long long>(p.m.El[Hevonen][Uros]) + p.m.El[Hevonen][Naaras]));
    });
    yksi("KapasiteettiZ", [](const Peli& p) {
        const int c = KapasiteettiLuku(p.m);
        Ohjain o = Näkyvä(std::to_string(c));
        o.väri = KapasiteettiVäri(c);
        return o;
    });
    yksi("tunnitz", [](const Peli& p) { return Näkyvä(Luku(p.m.RatsastusTulot)); });
    yksi("Ratsastus", [](const Peli& p) {
        std::string t;
        for (const std::string& rivi : R(p).Ratsastus) t += (t.empty() ? "" : "|") + rivi;
        return Näkyvä(t);
    });

    yksi("Command1", [](const Peli&) { return Näkyvä(std::string(tallit::Takaisin)); });
    yksi("Command2", [](const Peli&) { return Näkyvä(std::string(tallit::Raveihin)); });
    yksi("Command3", [](const Peli&) { return Näkyvä(std::string(tallit::Hinnasto)); });

    // The price sheet: its heading with the tool text, the slider and the hour price.
    yksi("Hinnasto", [](const Peli& p) {
        Ohjain o = Hinnastolla(p, std::string(tallit::TunninHinta));
        if (o.näkyvissä) o.vihje = std::string(tallit::HinnastoVihje);
        return o;
    });
    yksi("rulla", [](const Peli& p) { return Hinnastolla(p, std::to_string(p.m.Hevostalli_rulla)); });
    yksi("summa", [](const Peli& p) { return Hinnastolla(p, Luku(p.m.TuntiHinta)); });

    // The race costs, shown while the pointer is on the race button.
    yksi("Ravikustannus", [](const Peli& p) {
        if (!R(p).Ravikustannus) return Piilossa();
        std::string t;
        for (std::string_view rivi : tallit::Ravikustannus) t += (t.empty() ? "" : "\n") + std::string(rivi);
        return Näkyvä(t);
    });
}

}  // namespace tanhua
