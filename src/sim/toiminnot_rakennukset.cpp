// The runner's operations of the building screen and the work orders.
#include <stdexcept>
#include <string>

#include "buildings/rakennukset.h"
#include "buildings/rakentaminen.h"
#include "skripti.h"

namespace tanhua {

namespace {

std::size_t KohdeSanasta(const std::string& sana) {
    const int kohde = KohdeNimellä(sana);
    if (kohde < 0)
        throw std::runtime_error("unknown building '" + sana +
                                 "': give its key (Navetta, Siilo, Varasto, Saha, Kasvihuone, ..., Pakkaamo)");
    return static_cast<std::size_t>(kohde);
}

void VaadiAuki(const Peli& peli) {
    if (!peli.rakennusruutu.auki)
        throw std::runtime_error("the building screen is not open: call Rakennukset.Avaa first");
}

// Sets a store's step as the steppers would, without their sounds.
void AsetaMäärä(Peli& peli, const std::string& sana) {
    RakennusRuutuTila& r = peli.rakennusruutu;
    const KatalogiRivi& rivi = RAKENNUSKATALOGI[static_cast<std::size_t>(r.kohde)];
    for (int i = 0; i < rivi.askelia; ++i) {
        if (std::to_string(rivi.määrät[static_cast<std::size_t>(i)]) == sana) {
            r.askel = i;
            r.määrä = rivi.määrät[static_cast<std::size_t>(i)];
            Aseta(r.hinta, TilauksenHinta(peli.m, static_cast<std::size_t>(r.kohde), i));
            AskelMäärä(peli, 0);
            return;
        }
    }
    std::string askeleet;
    for (int i = 0; i < rivi.askelia; ++i)
        askeleet += (i ? ", " : "") + std::to_string(rivi.määrät[static_cast<std::size_t>(i)]);
    throw std::runtime_error("the size of " + std::string(rivi.avain) + " is one of " + askeleet + ": '" + sana + "'");
}

Toiminto Auki(void (*f)(Peli&)) {
    return Toiminto{0, 0, [f](Peli& peli, const std::vector<std::string>&) {
                        VaadiAuki(peli);
                        f(peli);
                    }};
}

}  // namespace

void RakennustenToiminnot(Toimintoluettelo& t) {
    t["TyömaaPäivä"] = Pelkkä(TyömaaPäivä);
    t["Rakennukset.Avaa"] = Pelkkä(AvaaRakennukset);
    t["Rakennukset.Sulje"] = Auki(SuljeRakennukset);
    t["Rakennukset.NäytäTyömaat"] = Auki(NäytäTyömaat);
    t["Rakennukset.Valitse"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                            VaadiAuki(peli);
                                            ValitseKohde(peli, KohdeSanasta(a[0]));
                                        }};
    t["Rakennukset.määräplus"] = Auki([](Peli& peli) { AskelMäärä(peli, 1); });
    t["Rakennukset.määrämiinus"] = Auki([](Peli& peli) { AskelMäärä(peli, -1); });
    // With a target named its picture is clicked first; with a size the step is set to it.
    // Without arguments the button takes the target that is chosen.
    t["Rakennukset.Rakenna"] = Toiminto{0, 2, [](Peli& peli, const std::vector<std::string>& a) {
                                            VaadiAuki(peli);
                                            if (!a.empty()) ValitseKohde(peli, KohdeSanasta(a[0]));
                                            if (a.size() > 1) AsetaMäärä(peli, a[1]);
                                            TilaaKohde(peli);
                                        }};
}

}  // namespace tanhua
