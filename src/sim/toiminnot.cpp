// The operations a script can call, by their names in the game.
#include <map>
#include <stdexcept>


#include "buildings/rakennukset.h"
#include "buildings/rakentaminen.h"
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

Toiminto Painallus(std::string ohjain, void (*f)(Peli&)) {
    return Toiminto{0, 0, [ohjain = std::move(ohjain), f](Peli& peli, const std::vector<std::string>&) {
                        VaadiPainettava(peli, ohjain);
                        f(peli);
                    }};
}

Toiminto EscNäppäin(bool (*esc)(Peli&)) {
    return Toiminto{0, 0, [esc](Peli& peli, const std::vector<std::string>&) {
                        if (esc(peli)) PalaaPääruutuun(peli);
                    }};
}

bool Kytkin(const std::string& sana, const std::string& mikä) {
    if (sana == "1" || sana == "on" || sana == "True") return true;
    if (sana == "0" || sana == "off" || sana == "False") return false;
    throw std::runtime_error(mikä + " is 1 or 0 (on or off): '" + sana + "'");
}

Toiminto Pelkkä(void (*f)(Peli&)) {
    return Toiminto{0, 0, [f](Peli& peli, const std::vector<std::string>&) { f(peli); }};
}

namespace {
// The way between the main screen and a sub-screen, as the window's frame takes it: the main
// screen's button opens (a button the stars lock is not there to press), the main screen hides,
// the screen's own opening work runs and the money plate shows; leaving brings the main screen back,
// which is where the herd's condition is worked out again.
struct Ruutu {
    const char* nimi;
    const char* nappi;  // its button on the main screen
};
constexpr Ruutu ALARUUDUT[] = {{"Eläimet", "Tanhua.Command1"},  {"Rakennukset", "Tanhua.Command2"},
                               {"Tuotteet", "Tanhua.Command3"}, {"Pankki", "Tanhua.Command6"},
                               {"Työvoima", "Tanhua.Command8"}, {"Tarvikkeet", "Tanhua.Command9"},
                               {"Pellot", "Tanhua.Command5"},
                               {"Käyrät", "Tanhua.Stat"},
                               {"Hevostalli", "Tanhua.Hepotalli"},
                               {"Sopimukset", "Tanhua.Command10"}};

struct Poistuminen {
    const char* toiminto;
    bool (*sulkee)(const Peli&);  // whether the press leaves the screen, judged before it
};
bool Aina(const Peli&) { return true; }
const Poistuminen POISTUMISET[] = {
    {"Eläimet.Takaisin", Aina},
    {"Tuotteet.Sulje", Aina},
    {"Rakennukset.Sulje", Aina},
    {"Työvoima.Takaisin", Aina},
    {"Pankki.Sulje", Aina},
    {"Tarvikkeet.Sulje", Aina},
    {"Pellot.Sulje", Aina},
    {"Käyrät.Sulje", Aina},
    {"Käyrät.Command2", Aina},
    {"Hevostalli.Sulje", Aina},
    // A call open on the contracts screen keeps the player there.
    {"Sopimukset.Sulje", [](const Peli& p) { return !p.sopimusruutu.Puhelussa; }},
};

void Siirtymät(Toimintoluettelo& t) {
    for (const Ruutu& r : ALARUUDUT) {
        Toiminto& avaa = t.at(std::string(r.nimi) + ".Avaa");
        avaa.aja = [työ = avaa.aja, nappi = std::string(r.nappi)](Peli& peli, const std::vector<std::string>& a) {
            VaadiPainettava(peli, nappi);
            AvaaAlaruutu(peli, [&] { työ(peli, a); });
        };
    }
    for (const Poistuminen& p : POISTUMISET) {
        Toiminto& sulje = t.at(p.toiminto);
        sulje.aja = [työ = sulje.aja, sulkee = p.sulkee](Peli& peli, const std::vector<std::string>& a) {
            const bool poistuu = sulkee(peli);
            työ(peli, a);
            if (poistuu) PalaaPääruutuun(peli);
        };
    }
}

// The start screen's operations need no farm.
Toiminto Aloitusruudun(void (*f)(Peli&)) {
    Toiminto t = Pelkkä(f);
    t.tilaton = true;
    return t;
}
}  // namespace

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
        // The main screen shown again: the star locks of its buttons, the herd, the figures.
        {"PalaaPääruutuun", Pelkkä(PalaaPääruutuun)},
        // The start screen
        {"Tanhua.NäytäTähti", Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
             if (a[0].size() != 1 || a[0][0] < '0' || a[0][0] > '4')
                 throw std::runtime_error("a star is 0 to 4: '" + a[0] + "'");
             VaadiPainettava(peli, "Tanhua.TP_Kuva(" + a[0] + ")");
             NäytäTähti(peli, a[0][0] - '0');
         }}},
        {"Tanhua.Lopetus", Toiminto{0, 0, [](Peli& peli, const std::vector<std::string>&) {
             VaadiPainettava(peli, "Tanhua.Lopetus");
             if (LopetaKysymys(peli)) Lopeta(peli);
         }}},
        {"Alku.NostaVaikeustasoa", Aloitusruudun(NostaVaikeustasoa)},
        {"Alku.LaskeVaikeustasoa", Aloitusruudun(LaskeVaikeustasoa)},
        };
        EläintenToiminnot(t);
        EläinkaupanToiminnot(t);
        MarkkinoidenToiminnot(t);
        TyövoimanToiminnot(t);
        RakennustenToiminnot(t);
        PankinToiminnot(t);
        TarvikkeidenToiminnot(t);
        TilanteenToiminnot(t);
        MaidenToiminnot(t);
        KäyrienToiminnot(t);
        RavienToiminnot(t);
        TallinToiminnot(t);
        SoittimenToiminnot(t);
        SopimustenToiminnot(t);
        Siirtymät(t);
        return t;
    }();
    return toiminnot;
}

}  // namespace tanhua
