// Saving and opening a farm by name. The file format arrives with the save screen; until then no
// situation is written, and opening one reports that its file can't be read.
#include "tallennus.h"

#include "../core/peli.h"
#include "../core/vikatila.h"
#include "tiedostot.h"

namespace tanhua {

void TallennaTilanne(Peli& /*peli*/, const std::string& /*nimi*/) {}

void AvaaTilanne(Peli& peli, const std::string& nimi) {
    Vartioitu(peli, paikka::Avaus, {[&] {
        if (!EtsiTiedosto(peli.kansiot.data, nimi + ".sav")) NostaVika(VIKA_EI_TIEDOSTOA);
        NostaVika(VIKA_TIEDOSTONIMI);
    }});
}

}  // namespace tanhua
