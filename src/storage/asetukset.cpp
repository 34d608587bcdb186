// Asetukset.dat: nine lines read once at start; Savetus.dat: the name of the last saved farm.
#include "asetukset.h"

#include "../core/peli.h"
#include "../core/viestit.h"
#include "../core/vikatila.h"
#include "tiedostot.h"

namespace tanhua {

void LueAsetukset(Peli& peli) {
    Asetukset& a = peli.asetukset;
    a = Asetukset{};
    const auto sisältö = LueTiedosto(DataTiedosto(peli.kansiot, "Asetukset.dat"));
    if (!sisältö) {
        Ilmoita(peli,
                "Tanhua ei löytänyt \\Data kansiosta Asetukset.dat tiedostoa. Tähän ei ole muuta syytä, kuin "
                "että olet poistanut sen jotenkin, tai tiedoston lataamisessa on tullut virheitä. Jos tämä "
                "virhesanoma ei poistu jatkossa, asenna tanhua uudelleen ja ota yhteyttä pelin tekijään.");
        return;
    }
    const std::vector<std::string> rivit = Rivit(*sisältö);
    // Each line is read on its own: a line that doesn't convert is reported, and on "go on"
    // the next line is read.
    std::size_t seuraava = 0;
    auto rivi = [&]() -> const std::string& {
        if (seuraava >= rivit.size()) NostaVika(VIKA_TIEDOSTO_LOPPUI);
        return rivit[seuraava++];
    };
    auto totuus = [&](Boolean& kohde) { return [&] { kohde = TekstiTotuudeksi(rivi()); }; };
    Vartioitu(peli, paikka::AlkuLataus, {
        totuus(a.Resoluutio800),
        totuus(a.Animaatiot),
        [&] { Aseta(a.AnimNopeus, TekstiLuvuksi(rivi())); },
        totuus(a.Kursorit),
        totuus(a.Musiikki),
        totuus(a.BiisiSatunnainen),
        totuus(a.Autotallennus),
        totuus(a.Äänitehosteet),
        totuus(a.Prosessorisäästö),
    });
}

void LueSavetus(Peli& peli) {
    peli.alku.Viime.clear();
    const auto sisältö = LueTiedosto(DataTiedosto(peli.kansiot, "Savetus.dat"));
    if (!sisältö) {
        Ilmoita(peli,
                "Tanhua ei löytänyt edellisen tilanteen tallennus tiedostoa. Älä yritä tällä kertaa jatkaa "
                "edellistä tilannetta, vaan jos haluat avata tilanteen avaa se itse pelin aikana ja tallenna "
                "uudestaan. Tämän jälkeen tätä virhesanomaa ei pitäisi tulla. Jos saat ilmoituksen kuitenkin "
                "jatkossakin. Ota yhteyttä pelin tekijään.");
        return;
    }
    const auto rivit = Rivit(*sisältö);
    if (!rivit.empty()) peli.alku.Viime = Cp1252ToUtf8(rivit.front());
}

}  // namespace tanhua
