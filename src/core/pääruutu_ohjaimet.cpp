// The controls of the main screen as the player sees them.
#include <array>

#include "ohjaimet.h"
#include "peli.h"
#include "sää.h"
#include "tähdet.h"

namespace tanhua {

namespace {
// The screens' buttons with their captions; the whole screen is disabled while the report is open.
struct Nappi {
    const char* nimi;
    const char* teksti;
};
constexpr std::array<Nappi, 8> NAPIT{{
    {"Command1", "Eläimet"},
    {"Command2", "Rakennukset"},
    {"Command3", "Tuotteet"},
    {"Command4", "Seuraava päivä"},
    {"Command6", "Pankkiasiat"},
    {"Command8", "Työvoima"},
    {"Command9", "Tarvikkeet"},
    {"Lopetus", "Lopeta peli"},
}};

constexpr std::array<const char*, 5> TÄHTIEN_JÄRJESTYS{"Ensimmäinen", "Toinen", "Kolmas", "Neljäs", "Viides"};

const Lukemat& L(const Peli& p) { return p.näkymä.lukemat; }

Ohjain Teksti(std::string t) { return Näkyvä(std::move(t)); }

// A button the star lock keeps closed until the first star says so in its hint.
Ohjain TähtienLukitsema(const Peli& p, const char* teksti, bool auki) {
    Ohjain o = Näkyvä(teksti, p.näkymä.PääruutuKäytössä && auki);
    if (!auki) o.vihje = LukonVihje(1);
    return o;
}
}  // namespace

void PääruudunOhjaimet(Ohjainluettelo& l) {
    const RuudunOhjaimet yksi(l, "Tanhua");
    yksi("Rahaz", [](const Peli& p) { return Teksti(L(p).Rahaz); });
    yksi("liikevaihtoz", [](const Peli& p) {
        return JosNäkyy(L(p).liikevaihtoNäkyy, [&] { return L(p).liikevaihtoz; });
    });
    yksi("Päiväz", [](const Peli& p) { return Teksti(L(p).Päiväz); });
    yksi("Kuukausiz", [](const Peli& p) { return Teksti(L(p).Kuukausiz); });
    yksi("Vuosiz", [](const Peli& p) { return Teksti(L(p).Vuosiz); });
    yksi("Vuodenaikaz", [](const Peli& p) { return Teksti(L(p).Vuodenaikaz); });
    yksi("Sää", [](const Peli& p) {
        if (L(p).sää < 0) return Piilossa();
        Ohjain o = Teksti(SÄÄKUVAT[L(p).sää].tiedosto);
        o.vihje = SÄÄKUVAT[L(p).sää].vihje;
        return o;
    });
    yksi("AsteLuku", [](const Peli& p) {
        const LämpötilaNäyttö a = AsteLuku(p.m.Lämpötila);
        Ohjain o = Teksti(a.teksti);
        o.väri = RGB(a.r, a.g, a.b);
        return o;
    });
    for (int i = 0; i < 4; ++i)
        yksi("Mittari" + std::to_string(i + 1),
             [i](const Peli& p) { return Teksti(std::to_string(L(p).mittarit[i].p)); });
    yksi.Taulukko("TP_Kuva", 5, 0, [](const Peli& p, int i) {
        if (!L(p).tähdetNäkyvät) return Piilossa();
        Ohjain o = Teksti(i < L(p).tähtiä ? "Tähti.gif" : "Tähti2.gif");
        o.vihje = std::string(TÄHTIEN_JÄRJESTYS[i]) +
                  " tähti. Klikkaa tähteä nähdäksesti mitä sinun on saavutettava, jotta tilasi ansaitsee kyseisen tähden.";
        return o;
    });
    yksi("Lista", [](const Peli& p) {
        const Näkymä& n = p.näkymä;
        if (!n.ListaNäkyvissä || n.Lista.empty()) return Piilossa();
        std::string t;
        for (const std::string& rivi : n.Lista) t += (t.empty() ? "" : "|") + rivi;
        return Teksti(t);
    });
    yksi("Versio", [](const Peli& p) { return Teksti(L(p).Versio); });
    yksi("Ohje", [](const Peli& p) { return JosNäkyy(p.m.OhjeetPäällä, [&] { return p.näkymä.Ohje; }); });
    // The stable's button: shown with a stable and a mare, disabled with the rest while the report is open.
    yksi("Hepotalli", [](const Peli& p) {
        return p.näkymä.Hepotalli ? Näkyvä("Hevostalli", p.näkymä.PääruutuKäytössä) : Piilossa();
    });
    for (const Nappi& n : NAPIT) {
        const std::string nimi = n.nimi;
        const char* teksti = n.teksti;
        yksi(n.nimi, [nimi, teksti](const Peli& p) {
            if (nimi == "Command9") return TähtienLukitsema(p, teksti, p.näkymä.Command9Käytössä);
            return Näkyvä(teksti, p.näkymä.PääruutuKäytössä);
        });
    }
    // The land screen's button, locked by the stars as the supplies' button is.
    yksi("Command5", [](const Peli& p) { return TähtienLukitsema(p, "Maa alueet", p.näkymä.Command5Käytössä); });

    // The contracts: the button, and the phone that rings while an offer waits.
    yksi("Command10", [](const Peli& p) { return Näkyvä("Sopimukset", p.näkymä.PääruutuKäytössä); });
    yksi("Puhelin", [](const Peli& p) {
        if (!p.näkymä.Puhelin) return Piilossa();
        Ohjain o = Näkyvä("Puhelin.gif", p.näkymä.PääruutuKäytössä);
        o.vihje = "Sinulle on jätetty soittopyyntö sopimuksesta";
        return o;
    });
    // The statistics screen's button.
    yksi("Stat", [](const Peli& p) { return Näkyvä("Statistiikka", p.näkymä.PääruutuKäytössä); });
    // The Tilanne screen's button: where the career stands, the saves and retirement.
    yksi("Command7", [](const Peli& p) { return Näkyvä("Tilanne", p.näkymä.PääruutuKäytössä); });
}

}  // namespace tanhua
