// The runner's operations of the herd's day and month steps.
#include "animals/eläimet.h"
#include "skripti.h"

namespace tanhua {

void EläintenToiminnot(Toimintoluettelo& t) {
    t["EläintenKunto"] = Pelkkä(EläintenKunto);
    t["EläintenTuotanto"] = Pelkkä(EläintenTuotanto);
    t["Ruokinta"] = Pelkkä(Ruokinta);
    t["Nälkäkuolemat"] = Pelkkä(Nälkäkuolemat);
    t["Vanhentuminen"] = Pelkkä(Vanhentuminen);
    t["Lisääntyminen"] = Pelkkä(Lisääntyminen);
    t["TyhjennäSyönnit"] = Pelkkä(TyhjennäSyönnit);
}

}  // namespace tanhua
