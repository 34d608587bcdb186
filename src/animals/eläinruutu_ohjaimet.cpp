// The controls of the animal screen as the player sees them.
#include <array>
#include <functional>

#include "core/ohjaimet.h"
#include "core/peli.h"
#include "kauppa.h"

namespace tanhua {

namespace {

// The rows of the young and the cubs, in the order of the kinds' pictures.
constexpr std::array<Laji, 6> PIENTEN_RIVIT{Nauta, Lammas, Sika, Kana, Kettu, Hevonen};
// The order boxes by name, in the record's order.
constexpr std::array<const char*, 5> LAATIKOT{"TeurasLehmä", "TeurasLammas", "TeurasSika", "TeurasKana", "TeurasKettu"};

const EläinRuutuTila& R(const Peli& p) { return p.eläinruutu; }
bool KorttiAuki(const Peli& p) { return R(p).kortti >= 0; }
bool PaneeliAuki(const Peli& p, int laatikko) {
    return TEURASLAATIKOT[static_cast<std::size_t>(laatikko)].nylky ? R(p).nylkyAuki : R(p).teurasAuki;
}

Ohjain Kuvana(std::string tiedosto, std::string vihje = {}) {
    Ohjain o = Näkyvä(std::move(tiedosto));
    o.vihje = std::move(vihje);
    return o;
}

// A label of the card: out of sight with the card.
Ohjain Kortilla(const Peli& p, const std::function<std::string()>& teksti) {
    return KorttiAuki(p) ? Näkyvä(teksti()) : Piilossa();
}

}  // namespace

std::string EläimenKuva(int kortti) {
    const KorttiRivi& k = KORTIT[static_cast<std::size_t>(kortti)];
    const LajiRivi& laji = LAJITAULU[k.laji];
    return std::string(k.luokka == Naaras ? laji.kuvaNaaras : laji.kuvaUros);
}

void EläinruudunOhjaimet(Ohjainluettelo& l) {
    const RuudunOhjaimet yksi(l, "Eläimet");
    auto joukko = [&yksi](const char* nimi, int koko, std::function<Ohjain(const Peli&, int)> f) {
        yksi.Taulukko(nimi, koko, 0, std::move(f));
    };

    // The herd: a picture and an adult counter for each card, the young and the cubs by kind, the sums.
    joukko("Kuva", 12, [](const Peli&, int i) {
        return Kuvana(EläimenKuva(i), std::string(KORTIT[static_cast<std::size_t>(i)].otsikko));
    });
    joukko("Laskuri", 12, [](const Peli& p, int i) {
        const KorttiRivi& k = KORTIT[static_cast<std::size_t>(i)];
        return Näkyvä(Str(p.m.El[k.laji][k.luokka]));
    });
    joukko("Nuoret", 6, [](const Peli& p, int i) { return Näkyvä(Str(p.m.El[PIENTEN_RIVIT[i]][Nuori])); });
    joukko("Poikaset", 6, [](const Peli& p, int i) { return Näkyvä(Str(p.m.El[PIENTEN_RIVIT[i]][Poikanen])); });
    yksi("Aikuisia_Eläimiä", [](const Peli& p) { return Näkyvä("Aikuisia :" + Str(R(p).aikuisia)); });
    yksi("Pienet_Eläimet", [](const Peli& p) { return Näkyvä("Pieniä :" + Str(R(p).pienet)); });
    yksi("aihe", [](const Peli& p) { return Näkyvä(R(p).aihe); });
    yksi("Ohje", [](const Peli& p) { return JosNäkyy(p.m.OhjeetPäällä, [&] { return R(p).ohje; }); });
    yksi("Kohdistin", [](const Peli& p) { return R(p).kohdistin >= 0 ? Kuvana("Kohdistin.gif") : Piilossa(); });
    yksi("Command1", [](const Peli&) { return Näkyvä("Takaisin"); });

    // The card.
    yksi("akkuna", [](const Peli& p) { return Kortilla(p, [&] { return R(p).otsikko; }); });
    yksi("KorttiKuva", [](const Peli& p) { return KorttiAuki(p) ? Kuvana(EläimenKuva(R(p).kortti)) : Piilossa(); });
    yksi("Info", [](const Peli& p) { return Kortilla(p, [&] { return R(p).info; }); });
    yksi("Ostohinta", [](const Peli& p) { return Kortilla(p, [&] { return "Ostohinta :" + Str(R(p).ostohinta); }); });
    yksi("Myyntihinta",
         [](const Peli& p) { return Kortilla(p, [&] { return "Myyntihinta :" + Str(R(p).myyntihinta); }); });
    yksi("Lihaa", [](const Peli& p) { return Kortilla(p, [&] { return "Lihaa :" + Str(R(p).liha) + " kg"; }); });
    yksi("määrä", [](const Peli& p) { return Kortilla(p, [&] { return std::to_string(R(p).määrä); }); });
    yksi("yhtosto", [](const Peli& p) { return Kortilla(p, [&] { return "Yhteensä osto :" + Str(R(p).yhtosto); }); });
    yksi("yhtmyynti",
         [](const Peli& p) { return Kortilla(p, [&] { return "Yhteensä myynti :" + Str(R(p).yhtmyynti); }); });
    yksi("määrämiinus", [](const Peli& p) { return Kortilla(p, [] { return "-"; }); });
    yksi("määräplus", [](const Peli& p) { return Kortilla(p, [] { return "+"; }); });
    yksi("Command2", [](const Peli& p) { return Kortilla(p, [] { return "Teurasta"; }); });
    yksi("Command3", [](const Peli& p) { return Kortilla(p, [] { return "Myy"; }); });
    yksi("Command4", [](const Peli& p) { return Kortilla(p, [] { return "Osta"; }); });

    // The butcher and the tanner: their pictures, their panels with the order boxes and the limits.
    yksi("Teuraskuva", [](const Peli& p) { return R(p).teuraskuva ? Kuvana("teurastaja.jpg") : Piilossa(); });
    yksi("NahkuriKuva", [](const Peli& p) { return R(p).nahkurikuva ? Kuvana("nahkuri.jpg") : Piilossa(); });
    yksi("Teuras", [](const Peli& p) { return JosNäkyy(R(p).teurasAuki, [] { return "Teurastamo"; }); });
    yksi("Nylky", [](const Peli& p) { return JosNäkyy(R(p).nylkyAuki, [] { return "Nahkuri"; }); });
    for (int b = 0; b < static_cast<int>(LAATIKOT.size()); ++b) {
        yksi(LAATIKOT[static_cast<std::size_t>(b)], [b](const Peli& p) {
            Ohjain o = Valinta(p.m.Eläimet.Teuras[static_cast<std::size_t>(b)] == 1, PaneeliAuki(p, b));
            o.väri = TeuraslaatikonVäri(p, b);
            return o;
        });
        for (int j = 0; j < 2; ++j) {
            const int raja = 2 * b + j;
            const std::string nimi = "Teuras" + std::string(TEURASRAJAT[static_cast<std::size_t>(raja)]) + "Raja";
            yksi(nimi.c_str(), [b, raja](const Peli& p) {
                return JosNäkyy(PaneeliAuki(p, b), [&] { return p.m.Eläimet.TeurasRaja[static_cast<std::size_t>(raja)]; });
            });
        }
    }
}

}  // namespace tanhua
