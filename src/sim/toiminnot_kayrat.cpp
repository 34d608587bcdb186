// The runner's operations of the statistics screen: the curves, the two tables and the month's
// picture. The runner takes no snapshot of a screen, so the picture's button shows the notice.
#include <string>

#include "skripti.h"
#include "stats/käyrät.h"

namespace tanhua {

namespace {
// The close button is there to press only while the screen shows.
void Sulje(Peli& peli) {
    if (!peli.käyrätruutu.auki) Ohita();
    VaadiPainettava(peli, "Käyrät.Command2");
    SuljeKäyrät(peli);
}
}  // namespace

void KäyrienToiminnot(Toimintoluettelo& t) {
    t["Käyrät.Avaa"] = Pelkkä(AvaaKäyrät);
    t["Käyrät.Sulje"] = Pelkkä(Sulje);
    t["Käyrät.Command2"] = Pelkkä(Sulje);
    for (std::size_t k = 0; k < KÄYRIÄ; ++k) {
        const std::string nappi = "Käyrät." + std::string(KÄYRÄTAULU[k].nappi);
        t[nappi] = Toiminto{0, 0, [nappi, k](Peli& peli, const std::vector<std::string>&) {
                                VaadiPainettava(peli, nappi);
                                PiirräKäyrä(peli, static_cast<Käyrä>(k));
                            }};
    }
    t["Käyrät.Command8"] = Painallus("Käyrät.Command8", TuotteidenBrutto);
    t["Käyrät.Command9"] = Painallus("Käyrät.Command9", TuotteidenNetto);
    t["Käyrät.Command10"] = Painallus("Käyrät.Command10", [](Peli& peli) { NäytäKuukausikuva(peli, false); });
}

}  // namespace tanhua
