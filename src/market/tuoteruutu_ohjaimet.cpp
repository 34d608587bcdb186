// The controls of the product screen as the player sees them.
#include <functional>

#include "core/ohjaimet.h"
#include "core/peli.h"
#include "myynti.h"
#include "taulut/tuoteruutu.h"

namespace tanhua {

namespace {

const TuoteRuutuTila& R(const Peli& p) { return p.tuoteruutu; }
bool KorttiAuki(const Peli& p) { return R(p).akkuna && R(p).tuote >= 0; }

Ohjain Kuvana(std::string_view tiedosto, std::string_view vihje = {}) {
    Ohjain o = Näkyvä(std::string(tiedosto));
    o.vihje = std::string(vihje);
    return o;
}

// A label of the card: out of sight with the card.
Ohjain Kortilla(const Peli& p, const std::function<std::string()>& teksti, bool käytössä = true) {
    return KorttiAuki(p) ? Näkyvä(teksti(), käytössä) : Piilossa();
}

// A stock as the labels show it: the Single's text.
std::string Määrä(double x) { return Str(CSng(x)); }

}  // namespace

std::string AsetuksenNimi(std::size_t k) {
    return k == Rehu ? std::string("OstaRehu") : "Myy" + std::string(TUOTETAULU[k].avain);
}

void TuoteruudunOhjaimet(Ohjainluettelo& l) {
    const RuudunOhjaimet yksi(l, "Tuotteet");
    constexpr int N = static_cast<int>(TUOTTEITA);

    // The shelf: a picture and a stock for each product, in the products' order.
    yksi.Taulukko("Kuva", N, 0, [](const Peli&, int k) {
        const TuoteRivi& t = TUOTETAULU[static_cast<std::size_t>(k)];
        return Kuvana(t.kuva, t.nimi);
    });
    yksi.Taulukko("Varasto", N, 0,
                  [](const Peli& p, int k) { return Näkyvä(Määrä(R(p).varasto[static_cast<std::size_t>(k)])); });
    yksi("aihe", [](const Peli& p) { return Näkyvä(R(p).aihe); });
    yksi("Ohje", [](const Peli& p) { return JosNäkyy(p.m.OhjeetPäällä, [&] { return R(p).ohje; }); });
    yksi("Command1", [](const Peli&) { return Näkyvä("Takaisin"); });

    // The card: its name and picture, how the price is made up, its buttons and its further box.
    yksi("akkuna", [](const Peli& p) { return Kortilla(p, [&] { return R(p).nimi; }); });
    yksi("KorttiKuva", [](const Peli& p) {
        return KorttiAuki(p) ? Kuvana(TUOTETAULU[static_cast<std::size_t>(R(p).tuote)].kuva) : Piilossa();
    });
    yksi("hinta", [](const Peli& p) { return Kortilla(p, [&] { return Str(R(p).hinta); }); });
    yksi("kurssi", [](const Peli& p) { return Kortilla(p, [&] { return Str(R(p).kurssi); }); });
    yksi("vAika", [](const Peli& p) { return Kortilla(p, [&] { return R(p).vAika; }); });
    yksi("yhinta", [](const Peli& p) { return Kortilla(p, [&] { return Str(R(p).yhinta); }); });
    yksi("kpl", [](const Peli& p) { return Kortilla(p, [&] { return Määrä(R(p).kpl); }); });
    yksi("Yhthinta", [](const Peli& p) { return Kortilla(p, [&] { return Str(R(p).Yhthinta); }); });
    yksi("Command2", [](const Peli& p) { return Kortilla(p, [] { return "Myy"; }); });
    yksi("Command6", [](const Peli& p) { return Kortilla(p, [] { return "Myy 1/2"; }); });
    yksi("Command3", [](const Peli& p) { return Kortilla(p, [] { return "Osta"; }, R(p).ostaKäytössä); });
    yksi("Tuotelisäasetus",
         [](const Peli& p) { return Valinta(R(p).lisäasetus, KorttiAuki(p) && R(p).lisäasetusNäkyy); });

    // The accountant: the picture and the settings panel it opens.
    yksi("KirjanpitäjäKuva", [](const Peli& p) {
        return R(p).kirjanpitäjäKuva ? Kuvana("kirjanpitäjä.jpg") : Piilossa();
    });
    yksi("Taulu", [](const Peli& p) {
        return JosNäkyy(R(p).taulu, [] { return std::string(tuoteruutu::TAULUN_OTSIKKO); });
    });
    for (std::size_t k = 0; k < TUOTTEITA; ++k) {
        yksi(AsetuksenNimi(k), [k](const Peli& p) { return Valinta(p.m.Tuotteet.Myy[k] == 1, R(p).taulu); });
        yksi(AsetuksenNimi(k) + "Tyyli",
             [k](const Peli& p) { return JosNäkyy(R(p).taulu, [&] { return p.m.Tuotteet.MyyTyyli[k]; }); });
    }
    yksi("rulla", [](const Peli& p) { return Valinta(p.m.Tuotteet.rulla == 1, R(p).taulu); });
    yksi("MyyntiAika", [](const Peli& p) {
        return JosNäkyy(R(p).taulu, [&] { return std::string(tuoteruutu::MYYNTIAJAT[p.m.Tuotteet.rulla == 1 ? 1 : 0]); });
    });
}

}  // namespace tanhua
