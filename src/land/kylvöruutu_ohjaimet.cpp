// The controls of the sowing screen Kylvö and the harvest screen Nosto as the player sees them.
#include <string>

#include "core/ohjaimet.h"
#include "core/peli.h"
#include "taulut/kylvö.h"

namespace tanhua {

namespace {
const KylvöRuutuTila& K(const Peli& p) { return p.kylvöruutu; }
const NostoRuutuTila& N(const Peli& p) { return p.nostoruutu; }
const KasviRivi& Kortti(const Peli& p) { return KASVITAULU[static_cast<std::size_t>(K(p).kortti)]; }

std::string Rivit(const std::vector<std::string>& rivit) {
    std::string t;
    for (std::size_t i = 0; i < rivit.size(); ++i) t += (i ? "\n" : "") + rivit[i];
    return t;
}
}  // namespace

void KylvöruudunOhjaimet(Ohjainluettelo& l) {
    const RuudunOhjaimet kylvö(l, "Kylvö");
    kylvö.Taulukko("Kuva", KASVEJA, 0, [](const Peli&, int i) {
        Ohjain o = Näkyvä(std::string(KASVITAULU[static_cast<std::size_t>(i)].kuva));
        o.vihje = std::string(KASVITAULU[static_cast<std::size_t>(i)].otsikko);
        return o;
    });
    kylvö.Taulukko("Ala", KASVEJA, 0,
                   [](const Peli& p, int i) { return Näkyvä(Luku(K(p).ala[static_cast<std::size_t>(i)])); });
    kylvö("kylvetään", [](const Peli& p) { return Näkyvä(Luku(K(p).kylvetään)); });
    kylvö("eikylvetä", [](const Peli& p) { return Näkyvä(Luku(K(p).eikylvetä)); });
    // The crop card; hidden until a crop's picture is clicked.
    auto kortilla = [&kylvö](const char* nimi, std::function<std::string(const Peli&)> arvo) {
        kylvö(nimi, [arvo](const Peli& p) { return K(p).kortti >= 0 ? Näkyvä(arvo(p)) : Piilossa(); });
    };
    kortilla("akkuna", [](const Peli& p) { return std::string(Kortti(p).otsikko); });
    kortilla("otsikko", [](const Peli& p) { return std::string(Kortti(p).otsikko); });
    kortilla("info", [](const Peli& p) { return std::string(Kortti(p).info); });
    kortilla("siemen", [](const Peli& p) { return std::string(Kortti(p).siemen); });
    kortilla("yksikkö", [](const Peli& p) { return std::string(Kortti(p).yksikkö); });
    kortilla("kulu", [](const Peli& p) { return Luku(K(p).kulu); });
    kortilla("hinta", [](const Peli& p) { return Luku(K(p).hinta); });
    kortilla("määrä", [](const Peli& p) { return Luku(K(p).määrä); });
    kortilla("yhteensä", [](const Peli& p) { return Luku(K(p).yhteensä); });
    kortilla("plus", [](const Peli&) { return std::string("+"); });
    kortilla("miinus", [](const Peli&) { return std::string("-"); });
    kortilla("Command3", [](const Peli&) { return std::string(kylvöteksti::Hyväksy); });
    kylvö("Lannoitetaan", [](const Peli& p) { return Valinta(K(p).Lannoitetaan); });
    kylvö("Myrkytetään", [](const Peli& p) { return Valinta(K(p).Myrkytetään); });
    kylvö("Ojitetaan", [](const Peli& p) { return Valinta(K(p).Ojitetaan); });
    kylvö("Kustannukset", [](const Peli& p) { return Näkyvä(Rivit(K(p).Kustannukset)); });
    kylvö("Command2", [](const Peli&) { return Näkyvä(std::string(kylvöteksti::Aloita)); });
    kylvö("Command1", [](const Peli&) { return Näkyvä(std::string(kylvöteksti::Peruuta)); });

    const RuudunOhjaimet nosto(l, "Nosto");
    nosto("otsikko", [](const Peli&) { return Näkyvä(std::string(kylvöteksti::Arvio)); });
    auto rivi = [&nosto](const char* nimi, std::function<std::string(const NostoRivi&)> arvo) {
        nosto.Taulukko(nimi, KASVEJA, 0,
                       [arvo](const Peli& p, int i) { return Näkyvä(arvo(N(p).rivit[static_cast<std::size_t>(i)])); });
    };
    rivi("Ala", [](const NostoRivi& r) { return Luku(r.ha); });
    rivi("Sato", [](const NostoRivi& r) { return Luku(r.kg); });
    rivi("Hinta", [](const NostoRivi& r) { return Luku(r.hinta); });
    rivi("Summa", [](const NostoRivi& r) { return Luku(r.summa); });
    nosto("yhteensä", [](const Peli& p) { return Näkyvä(Luku(N(p).yhteensä)); });
    nosto("Kustannukset", [](const Peli& p) { return Näkyvä(N(p).arkki ? Rivit(N(p).Kustannukset) : ""); });
    nosto("Command3", [](const Peli&) { return Näkyvä(std::string(kylvöteksti::Laske)); });
    nosto("Command4", [](const Peli&) { return Näkyvä(std::string(kylvöteksti::Kustannukset)); });
    nosto("Command2", [](const Peli&) { return Näkyvä(std::string(kylvöteksti::KorjaaSato)); });
    nosto("Command1", [](const Peli&) { return Näkyvä(std::string(kylvöteksti::PeruKorjuu)); });
}

}  // namespace tanhua
