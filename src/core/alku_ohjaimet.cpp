// The controls of the start screen, and of the small windows the channels show: the news window
// and the money plate.
#include <filesystem>

#include "alku.h"
#include "ohjaimet.h"
#include "peli.h"

namespace tanhua {

void AlkuruudunOhjaimet(Ohjainluettelo& l) {
    const RuudunOhjaimet alku(l, "Alku");
    alku("Nimesi", [](const Peli& p) { return Näkyvä(p.alku.Nimesi); });
    alku("Lista", [](const Peli&) {
        std::string rivit;
        for (const char* rivi : TAVOITELISTA) rivit += (rivit.empty() ? "" : "|") + std::string(rivi);
        return Näkyvä(rivit);
    });
    alku("VTaso", [](const Peli& p) { return Näkyvä(VAIKEUSTASOT.at(static_cast<std::size_t>(p.alku.VTaso))); });
    alku("Ohjeita", [](const Peli& p) { return Valinta(p.alku.Ohjeita); });
    alku("TP_Valinta", [](const Peli& p) { return Valinta(p.alku.TP_Valinta); });
    alku("Viime", [](const Peli& p) { return Näkyvä(p.alku.Viime); });
    alku("Command1", [](const Peli&) { return Näkyvä("Aloita uusi tilanne"); });
    // Continuing needs the name of a saved farm.
    alku("Command2", [](const Peli& p) { return Näkyvä("Jatka tilannetta", p.alku.Command2); });
    alku("Command3", [](const Peli&) { return Näkyvä("Nosta vaikeustasoa"); });
    alku("Command4", [](const Peli&) { return Näkyvä("Laske vaikeustasoa"); });

    // The news window: its picture's file (the blank picture has none), its text and its close button.
    const RuudunOhjaimet ikkuna(l, "ikkuna");
    ikkuna("kuva", [](const Peli& p) {
        return JosNäkyy(p.näkymä.IkkunaNäkyvissä,
                        [&] { return std::filesystem::path(p.näkymä.IkkunaKuva).filename().string(); });
    });
    ikkuna("Tapahtuma", [](const Peli& p) { return JosNäkyy(p.näkymä.IkkunaNäkyvissä, [&] { return p.näkymä.IkkunaTeksti; }); });
    ikkuna("Command1", [](const Peli& p) { return JosNäkyy(p.näkymä.IkkunaNäkyvissä, [] { return "Sulje"; }); });

    // The money plate stands beside the sub-screens only.
    const RuudunOhjaimet kyltti(l, "RahaKyltti");
    kyltti("Rahatilaz", [](const Peli& p) {
        return JosNäkyy(!p.näkymä.PääruutuNäkyvissä, [&] { return p.näkymä.lukemat.Rahatilaz; });
    });
}

}  // namespace tanhua
