// The runner's operations of the Tilanne screen (the score, the save panel, retirement and the
// story), of the top-ten screen, and the start screen's "Jatka tilannetta". The screen's presses
// need it showing, as only the main screen's Tilanne button reaches them.
#include <algorithm>
#include <string>
#include <vector>

#include "career/tilanne.h"
#include "core/alku.h"
#include "core/pääruutu.h"
#include "skripti.h"
#include "storage/tallennus.h"
#include "storage/topten.h"

namespace tanhua {

namespace {

// A control of the Tilanne screen is there to press only while the screen shows, and then only
// when it is in sight and on (the panel's buttons while the panel is open, none but the story's own
// Sulje while the story shows).
void Tilanteessa(const Peli& peli, const std::string& ohjain) {
    if (!peli.tilanneruutu.auki) Ohita();
    VaadiPainettava(peli, ohjain);
}

Toiminto TilanteenNappi(const char* ohjain, void (*f)(Peli&)) {
    return Toiminto{0, 0, [ohjain, f](Peli& peli, const std::vector<std::string>&) {
                        Tilanteessa(peli, ohjain);
                        f(peli);
                    }};
}

// A button of the panel with the name typed into Kohde first; none leaves the box empty.
Toiminto NimelläNappi(const char* ohjain, bool (*nappi)(Peli&)) {
    return Toiminto{0, 1, [ohjain, nappi](Peli& peli, const std::vector<std::string>& a) {
                        Tilanteessa(peli, ohjain);
                        peli.tilanneruutu.Kohde = a.empty() ? std::string() : a[0];
                        nappi(peli);
                    }};
}

// A button of the top-ten screen, pressed only while the screen shows.
Toiminto ToptenNappi(const char* ohjain, void (*f)(Peli&)) {
    return Toiminto{0, 0, [ohjain, f](Peli& peli, const std::vector<std::string>&) {
                        if (!peli.tilanneruutu.Topten.auki) Ohita();
                        VaadiPainettava(peli, ohjain);
                        f(peli);
                    }};
}

}  // namespace

void TilanteenToiminnot(Toimintoluettelo& t) {
    t["Tilanne.Tallenna"] = NimelläNappi("Tilanne.Command5", TallennaNappi);
    t["Tilanne.AvaaTilanne"] = NimelläNappi("Tilanne.Command6", AvaaNappi);
    t["Tilanne.Poista"] = NimelläNappi("Tilanne.Poista", [](Peli& peli) {
        PoistaTilanne(peli);
        return true;
    });
    // Command10 "Uusi tilanne": asks, then the farm is given up for the start screen.
    t["Tilanne.UusiTilanne"] = TilanteenNappi("Tilanne.Command10", [](Peli& peli) { UusiTilanne(peli); });
    Toiminto jatka = Pelkkä([](Peli& peli) { JatkaTilannetta(peli); });
    jatka.tilaton = true;
    t["JatkaTilannetta"] = jatka;

    // The main screen's Command7: the main screen hides, the score is printed.
    t["Tilanne.Avaa"] = Toiminto{0, 0, [](Peli& peli, const std::vector<std::string>&) {
                                     VaadiPainettava(peli, "Tanhua.Command7");
                                     AvaaAlaruutu(peli, [&] { AvaaTilanneRuutu(peli); });
                                 }};
    t["Tilanne.Sulje"] = Toiminto{0, 0, [](Peli& peli, const std::vector<std::string>&) {
                                      Tilanteessa(peli, "Tilanne.Command3");
                                      if (SuljeTilanneRuutu(peli)) PalaaPääruutuun(peli);
                                  }};
    t["Tilanne.Esc"] = Toiminto{0, 0, [](Peli& peli, const std::vector<std::string>&) {
                                    if (!peli.tilanneruutu.auki) Ohita();
                                    if (TilanneEsc(peli)) PalaaPääruutuun(peli);
                                }};
    t["Tilanne.AvaaTallenna"] = TilanteenNappi("Tilanne.Command1", AvaaPaneeli);
    t["Tilanne.SuljePaneeli"] = TilanteenNappi("Tilanne.Command2", SuljePaneeli);
    // A click on a file of the panel's list; a file not listed can't be clicked.
    t["Tilanne.ValitseTiedosto"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                                Tilanteessa(peli, "Tilanne.File1");
                                                const auto& lista = peli.tilanneruutu.Tiedostot;
                                                if (std::find(lista.begin(), lista.end(), a[0]) == lista.end()) Ohita();
                                                ValitseTiedosto(peli, a[0]);
                                            }};
    t["Tilanne.JääEläkkeelle"] = TilanteenNappi("Tilanne.Command4", JääEläkkeelle);
    t["Tilanne.SuljeTarina"] = TilanteenNappi("Tilanne.TarinaSulje", SuljeTarina);
    t["Tilanne.EnnätysListat"] = TilanteenNappi("Tilanne.Command8", EnnätysListat);
    t["Topten.Sulje"] = ToptenNappi("Topten.Command1", SuljeTopten);
    t["Topten.TyhjennäListat"] = ToptenNappi("Topten.Command2", TyhjennäListat);

    // The steps by their own names.
    t["LaskePisteet"] = Pelkkä(LaskePisteet);
    t["LoppuJuttu"] = Pelkkä(LoppuJuttu);
    t["NäytäListat"] = Pelkkä(NäytäListat);
    t["LaskeListat"] = Pelkkä(LaskeListat);
}

}  // namespace tanhua
