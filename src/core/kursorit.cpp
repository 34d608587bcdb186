// The game's own pointer on its forms.
#include "core/kursorit.h"

#include <string>

#include "core/laskenta.h"
#include "core/peli.h"
#include "core/vikatila.h"

namespace tanhua {

void LataaKursorit(Peli& peli, const std::function<void(std::string_view lomake)>& lataa) {
    if (!peli.asetukset.Kursorit) return;
    for (const std::string_view lomake : KURSORIN_LOMAKKEET) {
        OmallaLaatikolla(
            peli, "Alku formi. Ladattaessa kursoreita", [&] { lataa(lomake); },
            [](const Vika&) {
                return std::string(
                    "Tanhua ei löytänyt \\kuvat kansiosta kursoria, tarkasta ettei ole poistanut tai muokannut "
                    "sitä. Jotta peli saadaan toimimaan asenna se uudelleen tai palauta tiedosto. Ongelman "
                    "jatkuessa ota asetuksista pelin oma kursori pois käytöstä");
            });
    }
    Aseta(peli.m.VikaLaskuri, 0);
}

}  // namespace tanhua
