// The runner's operations of the save panel: saving and opening a farm by name, and the start
// screen's "Jatka tilannetta".
#include <string>
#include <vector>

#include "core/alku.h"
#include "skripti.h"
#include "storage/tallennus.h"

namespace tanhua {

namespace {

// A button of the panel with the name typed into Kohde first; none leaves the box empty.
Toiminto NimelläNappi(bool (*nappi)(Peli&)) {
    return Toiminto{0, 1, [nappi](Peli& peli, const std::vector<std::string>& a) {
                        peli.tilanneruutu.Kohde = a.empty() ? std::string() : a[0];
                        nappi(peli);
                    }};
}

}  // namespace

void TilanteenToiminnot(Toimintoluettelo& t) {
    t["Tilanne.Tallenna"] = NimelläNappi(TallennaNappi);
    t["Tilanne.AvaaTilanne"] = NimelläNappi(AvaaNappi);
    Toiminto jatka = Pelkkä([](Peli& peli) { JatkaTilannetta(peli); });
    jatka.tilaton = true;
    t["JatkaTilannetta"] = jatka;
}

}  // namespace tanhua
