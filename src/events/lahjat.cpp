// Spoilage of stock in a dirty store, and gifts from relatives.
#include "perheet.h"
#include "taulut/kuvat.h"
#include "taulut/lahjat.h"
#include "taulut/pilaantuminen.h"

namespace tanhua::sattumat {

Tulos Pilaantuminen(Peli& peli) {
    Muuttujat& m = peli.m;
    // Certain below hygiene 20, else one chance in Hygienia \ 10.
    if (peli.arvonta.D(JakoKok(m.Hygienia, 10)) + 1 >= 2) return std::nullopt;
    const PilaantumisRivi& rivi = PILAANTUMINEN[Rivi(peli, 9)];
    Single& varasto = m.Var[rivi.tuote];
    if (!(varasto > 0)) return std::nullopt;  // nothing there to spoil: nothing told
    Aseta(varasto, 0);
    return Kertomus(rivi.rivi, sattumakuva::Pilaantunut, std::string(rivi.teksti));
}

namespace {
// The gift's own draws and effect; false when an animal gift finds no room in the barn.
bool AnnaLahja(Peli& peli, int numero, const Laskurit& laskurit) {
    Muuttujat& m = peli.m;
    auto D = [&](double x) { return static_cast<double>(peli.arvonta.D(x)); };
    auto eläimiä = [&](Laji laji, double n) {
        if (!(static_cast<double>(laskurit.VapaatPaikat) - n > 0)) return false;
        Lisää(m.El[laji][Naaras], n);
        return true;
    };
    // One more animal for a farmer short of cash.
    auto montako = [&] { return D(3) + 1 + (m.Raha < 1000 ? 1 : 0); };
    switch (numero) {
        case 9: Lisää(m.Var[Vaate], D(5) + 2); return true;
        case 10: Lisää(m.Var[Liha], D(20) + 1); return true;
        case 11: Lisää(m.Var[Lauta], D(19) + 2); return true;
        case 12:
            Lisää(m.Var[Maito], D(5) + 1);
            Lisää(m.Var[Juusto], D(3) + 1);
            Lisää(m.Var[Leipä], D(4) + 1);
            return true;
        case 13: Lisää(m.Var[Leipä], D(15) + 1); return true;
        case 14: Lisää(m.Var[Vihannes], D(14) + 2); return true;
        case 15: return eläimiä(Kana, montako());
        case 16: return eläimiä(Lammas, 1);
        case 17: return eläimiä(Sika, montako());
        default: return eläimiä(Kettu, montako());
    }
}
}  // namespace

Tulos Lahja(Peli& peli, int numero, const Laskurit& laskurit) {
    const Muuttujat& m = peli.m;
    // A rich farmer gets no gifts: the deposit and the cash together.
    if (!(static_cast<double>(m.Tili) + m.Raha < 100000)) return std::nullopt;
    std::string_view kuva = peli.arvonta.D(2) == 0 ? sattumakuva::Suku : sattumakuva::Suku2;
    if (numero == 10) kuva = sattumakuva::Metsästäjä;
    const std::string_view antaja = ANTAJAT[Rivi(peli, 12)];
    if (!AnnaLahja(peli, numero, laskurit)) return std::nullopt;
    const std::string teksti = std::string(antaja) + std::string(LAHJATEKSTIT[numero - ENSIMMÄINEN_LAHJA]);
    return Kertomus(teksti, kuva, teksti);
}

}  // namespace tanhua::sattumat
