// The runner's operations of the riding stable and its screen, and of the staff's motivation and
// wage talks. The stable's presses need the screen open, as only its button reaches them.
#include <stdexcept>
#include <string>

#include "buildings/talli.h"
#include "buildings/taulut/talli.h"
#include "skripti.h"
#include "workforce/neuvottelut.h"
#include "workforce/palkat.h"

namespace tanhua {

namespace {
// A press of one of the stable's controls: skipped while the screen isn't showing, or while the
// control is out of sight.
void Tallissa(const Peli& peli, const std::string& ohjain) {
    if (!peli.talliruutu.auki) Ohita();
    VaadiPainettava(peli, "Hevostalli." + ohjain);
}

Toiminto TallinNappi(const char* ohjain, void (*f)(Peli&)) {
    return Toiminto{0, 0, [ohjain, f](Peli& peli, const std::vector<std::string>&) {
                        Tallissa(peli, ohjain);
                        f(peli);
                    }};
}
}  // namespace

void TallinToiminnot(Toimintoluettelo& t) {
    t["RatsastusPäivä"] = Pelkkä(RatsastusPäivä);
    t["Hevostalli.Avaa"] = Pelkkä(AvaaHevostalli);
    t["Hevostalli.Sulje"] = TallinNappi("Command1", SuljeHevostalli);
    t["Hevostalli.Hinnasto"] = TallinNappi("Command3", VaihdaHinnasto);
    t["Hevostalli.OsallistuRaveihin"] = TallinNappi("Command2", OsallistuRaveihin);
    // The price slider moved to a step; a step outside the slider is a malformed line.
    t["Hevostalli.rulla"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                         const int rulla = static_cast<int>(Luku(a[0], "the price slider", 0, RULLA_MAX));
                                         Tallissa(peli, "rulla");
                                         AsetaRulla(peli, rulla);
                                     }};
    // The pointer on the race button, or back on the screen itself.
    t["Hevostalli.Osoita"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                          if (a[0] != "Command2" && a[0] != "Hevostalli")
                                              throw std::runtime_error("the pointer is on Command2 or Hevostalli: '" +
                                                                       a[0] + "'");
                                          if (!peli.talliruutu.auki) Ohita();
                                          OsoitinRaveihin(peli, a[0] == "Command2");
                                      }};

    t["LaskeMotivaatio"] = Pelkkä(LaskeMotivaatio);
    t["Palkkaneuvottelut"] = Pelkkä(Palkkaneuvottelut);
}

}  // namespace tanhua
