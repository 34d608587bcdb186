// The controls of the building screen as the player sees them.
#include <algorithm>
#include <string>

#include "../core/kanavat.h"
#include "../core/ohjaimet.h"
#include "../core/peli.h"
#include "../core/tähdet.h"
#include "paneeli.h"
#include "rakentaminen.h"
#include "taulut/paneelit.h"

namespace tanhua {

namespace {

const RakennusRuutuTila& R(const Peli& p) { return p.rakennusruutu; }
bool Valittu(const Peli& p) { return R(p).kohde >= 0; }
// The chosen building, where a building (not a store) is chosen.
Rakennus ValittuRakennus(const Peli& p) { return static_cast<Rakennus>(R(p).kohde); }

// The slider's place for the chosen building's percentage: a tenth of it, held to the scale.
int Liukuarvo(const Peli& p) {
    return std::clamp(p.m.Tuotanto[static_cast<std::size_t>(R(p).kohde)] / 10, 0, TUOTANTO_ASKELIA);
}

// A product picture of the panel, shown with the panel where the building has one.
Ohjain PaneelinKuva(const Peli& p, std::string (*kuva)(Rakennus)) {
    if (!R(p).paneeli) return Piilossa();
    const std::string tiedosto = kuva(ValittuRakennus(p));
    return tiedosto.empty() ? Piilossa() : Näkyvä(tiedosto);
}

// A target's picture: its file, with the pointer's tip under the heading "Rakennus : " and the
// name, or the heading alone where the picture has no tip.
Ohjain Kuva(std::size_t kohde) {
    const std::string_view tiedosto =
        OnVarastotila(kohde) ? TILATAULU[kohde - RAKENNUKSIA].kuva : RAKENNUSTAULU[kohde].kuva;
    Ohjain o = Näkyvä(std::string(tiedosto));
    const KatalogiRivi& rivi = RAKENNUSKATALOGI[kohde];
    // A picture without a tip of its own still tells its name, so no building is a guess.
    o.vihje = rivi.vihjeOtsikko.empty() ? "Rakennus : " + std::string(rivi.avain)
                                        : std::string(rivi.vihjeOtsikko) + "\n" + std::string(rivi.vihje);
    return o;
}


// A target's day label: its days, or "Lukittu" in red over a building the stars lock. Only a
// building's label changes colour; a store's never turns red.
Ohjain PäiväLabel(const Peli& p, std::size_t kohde) {
    if (!R(p).päivätNäkyvät[kohde]) return Piilossa();
    Ohjain o = Näkyvä(R(p).päivät[kohde]);
    if (!OnVarastotila(kohde)) o.väri = R(p).päivätPunaisella[kohde] ? PUNAINEN : MUSTA;
    // "Lukittu" tells in its tip how many stars open the building.
    if (R(p).päivätPunaisella[kohde]) o.vihje = LukonVihje(RAKENNUSKATALOGI[kohde].tähdet);
    return o;
}

}  // namespace

void RakennusruudunOhjaimet(Ohjainluettelo& l) {
    const RuudunOhjaimet yksi(l, "Rakennukset");
    // Picture1 (Navetta) to Picture16 (Pakkaamo), the order the work orders are counted down in.
    yksi.Taulukko("Picture", TYÖMAITA, 1, [](const Peli&, int i) { return Kuva(TYÖMAIDEN_JÄRJESTYS[i - 1]); });
    for (const std::size_t kohde : TYÖMAIDEN_JÄRJESTYS)
        yksi("Rakenne" + std::string(RAKENNUSKATALOGI[kohde].avain) + "z",
             [kohde](const Peli& p) { return PäiväLabel(p, kohde); });

    // The sizes as they stood when the screen was opened.
    yksi("navettaz", [](const Peli& p) { return Näkyvä(R(p).navettaz); });
    yksi("siiloz", [](const Peli& p) { return Näkyvä(R(p).siiloz); });
    yksi("varastoz", [](const Peli& p) { return Näkyvä(R(p).varastoz); });

    // The chosen target's order panel; empty until a target is chosen.
    yksi("Kohde", [](const Peli& p) {
        return Näkyvä(Valittu(p) ? std::string(RAKENNUSKATALOGI[R(p).kohde].avain) : std::string());
    });
    yksi("taso", [](const Peli& p) { return JosNäkyy(!R(p).taso.empty(), [&] { return R(p).taso; }); });
    // From level 1 the building's production panel takes the selection text's place; the
    // work-order text still wins while an order runs.
    yksi("info", [](const Peli& p) {
        return Näkyvä(R(p).paneeli ? RakennusPaneeli(p, ValittuRakennus(p)) : R(p).info);
    });
    // Beside the panel the raw stock's and the product's pictures.
    yksi("RaakaKuva", [](const Peli& p) { return PaneelinKuva(p, RaakaKuva); });
    yksi("TuoteKuva", [](const Peli& p) { return PaneelinKuva(p, TuoteKuva); });
    // The production slider and its percentage, on the eight buildings that have one.
    yksi("Rakennus_Tuotanto", [](const Peli& p) {
        if (!TuotantoNäkyy(p)) return Piilossa();
        Ohjain o = Näkyvä(std::to_string(Liukuarvo(p)));
        o.vihje = std::string(TUOTANTO_VIHJE);
        return o;
    });
    yksi("Prosentti", [](const Peli& p) {
        return JosNäkyy(TuotantoNäkyy(p), [&] { return std::to_string(10 * Liukuarvo(p)) + " %"; });
    });
    yksi("hintanäky", [](const Peli& p) { return Näkyvä(Valittu(p) ? Str(R(p).hinta) : std::string()); });
    yksi("Kesto", [](const Peli& p) { return Näkyvä(Valittu(p) ? Str(R(p).Kesto) + " päivää" : std::string()); });
    yksi("määrä", [](const Peli& p) { return Näkyvä(Valittu(p) ? Luku(R(p).määrä) : std::string()); });
    yksi("määräplus", [](const Peli& p) { return Näkyvä("+", R(p).askeleetKäytössä); });
    yksi("määrämiinus", [](const Peli& p) { return Näkyvä("-", R(p).askeleetKäytössä); });
    yksi("Command2", [](const Peli& p) { return Näkyvä(R(p).Command2, R(p).Command2Käytössä); });
    yksi("Command1", [](const Peli&) { return Näkyvä("Takaisin"); });
    yksi("Ohje", [](const Peli& p) { return JosNäkyy(p.m.OhjeetPäällä, [&] { return R(p).ohje; }); });
}

}  // namespace tanhua
