// The Tilanne screen's own steps: opening and closing, the save and open panel with its list of
// saves, deleting a save, and the hint line.
#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

#include "../core/peli.h"
#include "../core/viestit.h"
#include "../storage/tiedostot.h"
#include "tilanne.h"

namespace tanhua {

namespace {

struct Ohje {
    const char* kontrolli;
    const char* teksti;
};
constexpr std::array<Ohje, 8> OHJEET{{
    {"Tervetuloa", "Tervetuloa tilanne valikkoon"},
    {"Command1", "Tilanteen avaus ja tallennus valikosta voit ladata vanhan tilanteesi tai tallentaa nykyisen "
                 "tilanteesi, jotta voit jatkaa sitä ensikerralla."},
    {"Command2", "Valikko sulkee tilanteen avauksen ja tallentamis valikon."},
    {"Command3", "Sulje tilanne valikko ja palaa takaisin tanhuan pää valikkoon."},
    {"Command4", "Tämä valikko on vaihe jota sinun ei tässä vaiheessa kannata miettiä. Eläkkeelle jäänti laskee "
                 "vuosien tuotannot ja pisteyttää menestyksesti. Lopuksi verrataan pääsetkö parhaiden farmareiden "
                 "joukkoon listoille."},
    {"Command5", "Valikko tallentaa nykyisen tilanteesi. Muista kirjoittaa tilanteelle nimi tai valita listasta "
                 "korvattava tilanne."},
    {"Command6", "Tilanteen avauksella voit jatkaa tallennettuja tilanteitasi. Muista että menetät nykyisen "
                 "tilanteesi jos avaat nyt eri tilanteen."},
    {"Command8", "Ennätys listoista näet eläkkeelle jääneiden farmareiden listan. Parhaat farmarit pääsevät "
                 "parhaiden joukkoon."},
}};

bool Listalla(const TilanneRuutuTila& r, const std::string& tiedosto) {
    const std::string haettu = PienetKirjaimet(tiedosto);
    return std::any_of(r.Tiedostot.begin(), r.Tiedostot.end(),
                       [&](const std::string& s) { return PienetKirjaimet(s) == haettu; });
}

// Deletes a save's .sav; a file that is gone and any other failure have their own boxes, and the
// game goes on.
void PoistaTiedosto(Peli& peli, const std::string& tiedosto) {
    std::error_code virhe;
    const bool poistettu = !tiedosto.empty() && std::filesystem::remove(DataTiedosto(peli.kansiot, tiedosto), virhe);
    if (poistettu) return;
    if (!virhe || virhe == std::errc::no_such_file_or_directory) {
        peli.kanavat.Laatikko("Tilannetta ei löydetty Data/ kansiosta jostain kumman syystä. Peli ohittaa vian "
                              "itsestään. Vian jatkuessa ota yhteyytä tekijään.");
        return;
    }
    const int numero = virhe == std::errc::permission_denied ? 75 : 53;
    peli.kanavat.Laatikko("Tanhua suoritti odottamattoman vian numero : " + Str(numero) +
                          " poistettaessa vanhaa tilannetta. Peli ratkaisi ongelman itse, mutta ongelman jatkuessa on "
                          "syytä ottaa yhteyttä pelin tekijään.");
}

}  // namespace

const std::string& TilanneOhje(const std::string& kontrolli) {
    static const std::string tyhjä;
    static const std::array<std::string, OHJEET.size()> tekstit = [] {
        std::array<std::string, OHJEET.size()> t;
        for (std::size_t i = 0; i < OHJEET.size(); ++i) t[i] = OHJEET[i].teksti;
        return t;
    }();
    for (std::size_t i = 0; i < OHJEET.size(); ++i)
        if (kontrolli == OHJEET[i].kontrolli) return tekstit[i];
    return tyhjä;
}

void OsoitinTilanteessa(Peli& peli, const std::string& kontrolli) {
    const std::string& t = TilanneOhje(kontrolli);
    if (peli.m.OhjeetPäällä && !t.empty()) peli.tilanneruutu.Ohje = t;
}

void AvaaTilanneRuutu(Peli& peli) {
    TilanneRuutuTila& r = peli.tilanneruutu;
    SoitaÄäni(peli, "klik");
    r.auki = true;
    r.akkuna = false;
    r.Ohje.clear();
    OsoitinTilanteessa(peli, "Tervetuloa");
    LaskePisteet(peli);
}

bool SuljeTilanneRuutu(Peli& peli) {
    TilanneRuutuTila& r = peli.tilanneruutu;
    // The way back from the story to play is closed.
    if (r.Tarina) return false;
    SoitaÄäni(peli, "klik");
    r.auki = false;
    r.akkuna = false;
    return true;
}

bool TilanneEsc(Peli& peli) {
    if (peli.tilanneruutu.akkuna) {
        SuljePaneeli(peli);
        return false;
    }
    return SuljeTilanneRuutu(peli);
}

void AvaaPaneeli(Peli& peli) {
    TilanneRuutuTila& r = peli.tilanneruutu;
    r.Tiedostot = TilanneTiedostot(peli);
    r.Valittu.clear();
    r.akkuna = true;
}

void SuljePaneeli(Peli& peli) {
    peli.tilanneruutu.akkuna = false;
    LaskePisteet(peli);
}

void ValitseTiedosto(Peli& peli, const std::string& tiedosto) {
    TilanneRuutuTila& r = peli.tilanneruutu;
    r.Valittu = tiedosto;
    r.Kohde = tiedosto.substr(0, tiedosto.find('.'));
}

void PoistaTilanne(Peli& peli) {
    TilanneRuutuTila& r = peli.tilanneruutu;
    if (r.Kohde.empty()) return;
    r.Tiedostot = TilanneTiedostot(peli);
    if (Listalla(r, r.Kohde + ".sav")) {
        if (!KysyKyllä(peli, "Olet poistamassa tilanteen " + r.Kohde + "\n\nJatketaanko?")) return;
        PoistaTiedosto(peli, r.Kohde + ".sav");
    } else {
        // A name not on the list: the file picked in the list goes at once.
        PoistaTiedosto(peli, r.Valittu);
        r.Valittu.clear();
    }
    r.Tiedostot = TilanneTiedostot(peli);
}

}  // namespace tanhua
