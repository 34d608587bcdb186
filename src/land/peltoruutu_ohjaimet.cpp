// The controls of the land screen as the player sees them.
#include <string>

#include "core/ohjaimet.h"
#include "core/peli.h"
#include "pellot.h"
#include "taulut/pellot.h"

namespace tanhua {

namespace {
const PeltoRuutuTila& R(const Peli& p) { return p.peltoruutu; }
bool Kortti(const Peli& p) { return R(p).kortti >= 0; }
Maa MaaLaji(const Peli& p) { return static_cast<Maa>(R(p).kortti); }

// A picture: its file and, where it has one, its hint.
Ohjain Kuva(std::string_view tiedosto, std::string_view vihje = {}) {
    Ohjain o = Näkyvä(std::string(tiedosto));
    o.vihje = std::string(vihje);
    return o;
}
}  // namespace

void PeltoruudunOhjaimet(Ohjainluettelo& l) {
    const RuudunOhjaimet yksi(l, "Pellot");
    yksi("otsikko", [](const Peli& p) { return Näkyvä(R(p).otsikko); });
    for (std::size_t k = 0; k < MAITA; ++k)
        yksi("Image" + std::to_string(k), [k](const Peli&) { return Kuva(MAATAULU[k].kuva); });
    yksi("Image4", [](const Peli& p) { return R(p).Image4 ? Kuva("kylvö.jpg") : Piilossa(); });
    yksi("Image5", [](const Peli& p) { return R(p).Image5 ? Kuva("nosto.jpg") : Piilossa(); });
    yksi("Command1", [](const Peli&) { return Näkyvä("Takaisin"); });

    // The card akkuna; all of it hidden while no card is open.
    auto kortilla = [&yksi](const char* nimi, std::function<std::string(const Peli&)> arvo) {
        yksi(nimi, [arvo](const Peli& p) { return Kortti(p) ? Näkyvä(arvo(p)) : Piilossa(); });
    };
    kortilla("akkuna", [](const Peli& p) { return std::string(MAAKORTIT[MaaLaji(p)].otsikko); });
    kortilla("otsikko2", [](const Peli& p) { return std::string(MAAKORTIT[MaaLaji(p)].otsikko); });
    kortilla("info", [](const Peli& p) { return std::string(MAAKORTIT[MaaLaji(p)].info); });
    kortilla("KorttiKuva", [](const Peli& p) { return std::string(MAATAULU[MaaLaji(p)].kuva); });
    kortilla("hehtaarit", [](const Peli& p) { return Luku(Hehtaarit(p.m, MaaLaji(p))); });
    kortilla("hinta", [](const Peli& p) { return Luku(R(p).hinta); });
    kortilla("määrä", [](const Peli& p) { return Luku(R(p).määrä); });
    kortilla("yhteensä", [](const Peli& p) { return Luku(R(p).yhteensä); });
    kortilla("Maavero", [](const Peli& p) { return Luku(KortinMaavero(p.m, MaaLaji(p))); });
    kortilla("KK_Tuotto", [](const Peli& p) { return KKTuotto(p.m, MaaLaji(p)); });
    kortilla("plus", [](const Peli&) { return std::string("+"); });
    kortilla("miinus", [](const Peli&) { return std::string("-"); });
    kortilla("Command7", [](const Peli&) { return std::string("Osta"); });
    kortilla("Command8", [](const Peli&) { return std::string("Myy"); });
    yksi("LantaKuva", [](const Peli& p) {
        return LantaKuvassa(p) ? Kuva("lanta.jpg", peltoteksti::LantaVihje) : Piilossa();
    });

    // The forester's picture and panel.
    yksi("MetsuriKuva", [](const Peli& p) { return MetsuriKuvassa(p.m) ? Kuva("metsuri.jpg") : Piilossa(); });
    auto paneelissa = [&yksi](const char* nimi, std::string_view teksti) {
        yksi(nimi, [teksti](const Peli& p) {
            return R(p).MetsuriValikko ? Näkyvä(std::string(teksti)) : Piilossa();
        });
    };
    paneelissa("MetsuriValikko", peltoteksti::MetsuriOtsikko);
    paneelissa("MetsuriOtsikko", peltoteksti::MetsuriOtsikko);
    paneelissa("MetsuriInfo", peltoteksti::MetsuriInfo);
    yksi("Metsitä", [](const Peli& p) { return Valinta(p.m.Pellot_Metsitä == 1, R(p).MetsuriValikko); });
}

}  // namespace tanhua
