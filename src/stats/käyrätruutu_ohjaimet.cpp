// The controls of the statistics screen as the player sees them.
#include <string>

#include "../core/ohjaimet.h"
#include "../core/peli.h"
#include "käyrät.h"

namespace tanhua {

namespace {
const KäyrätRuutuTila& R(const Peli& p) { return p.käyrätruutu; }
// The month's picture covers the screen: nothing under it takes a click until it is hidden.
bool Vapaa(const Peli& p) { return !R(p).kuva; }

// What lies on the plot: the last curve's scale, or the table's line count.
std::string TaulullaOn(const KäyrätRuutuTila& r) {
    if (!r.taulu.empty()) return "taulu " + std::to_string(r.taulu.size()) + " riviä";
    if (r.T == 0) return "";
    return "käyrä T=" + Luku(static_cast<long long>(r.T)) + " U=" + Luku(static_cast<long long>(r.U)) +
           " S=" + Luku(static_cast<long long>(r.S)) + " janoja=" + std::to_string(r.janat.size());
}
}  // namespace

void KäyrätruudunOhjaimet(Ohjainluettelo& l) {
    const RuudunOhjaimet yksi(l, "Käyrät");
    yksi("aika1", [](const Peli& p) { return Näkyvä(R(p).aika1); });
    yksi("aika2", [](const Peli& p) { return Näkyvä(R(p).aika2); });
    yksi("aika3", [](const Peli& p) { return Näkyvä(R(p).aika3); });
    yksi("otsikko", [](const Peli& p) { return Näkyvä(R(p).otsikko); });
    yksi("Maximi", [](const Peli& p) { return Näkyvä(R(p).Maximi); });
    yksi("Puoli", [](const Peli& p) { return Näkyvä(R(p).Puoli); });
    yksi("Minimi", [](const Peli& p) { return Näkyvä(R(p).Minimi); });
    yksi("Taulu", [](const Peli& p) { return Näkyvä(TaulullaOn(R(p))); });
    yksi("Ilmoitusteksti", [](const Peli& p) {
        return JosNäkyy(R(p).Ilmoitusteksti, [] { return std::string(käyrätteksti::EiKuvaa); });
    });
    yksi("KuukaudenvaihdeKuva", [](const Peli& p) { return JosNäkyy(R(p).kuva, [] { return "KuukaudenvaihdeKuva"; }); });

    for (std::size_t k = 0; k < KÄYRIÄ; ++k) {
        const KäyräRivi& rivi = KÄYRÄTAULU[k];
        const bool netto = k == KäyräNetto;
        yksi(rivi.nappi, [&rivi, netto](const Peli& p) {
            return Näkyvä(std::string(rivi.teksti), Vapaa(p) && (!netto || R(p).Command5));
        });
    }
    yksi("Command2", [](const Peli& p) { return Näkyvä("Sulje", Vapaa(p)); });
    yksi("Command8", [](const Peli& p) { return Näkyvä("Tuotteiden brutto", Vapaa(p)); });
    yksi("Command9", [](const Peli& p) { return Näkyvä("Tuotteiden Netto", Vapaa(p)); });
    yksi("Command10", [](const Peli& p) { return Näkyvä("Kuukauden vaihde", Vapaa(p)); });

    // The six monthly lists, items joined by "|" without Str's blank, each shown beside its button as a
    // small preview; the net list is out of sight while its button is off.
    for (std::size_t k = 0; k < KÄYRIÄ; ++k) {
        const KäyräRivi& rivi = KÄYRÄTAULU[k];
        const bool netto = k == KäyräNetto;
        yksi(rivi.nimi, [&rivi, netto](const Peli& p) {
            if (netto && !R(p).Command5) return Piilossa();
            const std::vector<std::string>& lista = p.m.Käyrät.*rivi.lista;
            std::string t;
            for (std::size_t i = 0; i < lista.size(); ++i) t += (i ? "|" : "") + Suoraan(lista[i]);
            return Näkyvä(t);
        });
    }
}

}  // namespace tanhua
