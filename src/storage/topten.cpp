// The top-ten lists of the three game modes: reading, placing the retiring player, writing, and
// emptying them back to their default rows.
#include "topten.h"

#include <filesystem>
#include <system_error>

#include "../career/tilanne.h"
#include "../core/peli.h"
#include "../core/pääruutu.h"
#include "../core/viestit.h"
#include "../core/vikatila.h"
#include "tiedostot.h"

namespace tanhua {

namespace {

constexpr int LISTAN_RIVEJÄ = 10;
constexpr std::string_view PAIKKA_NÄYTÄ = "Topten listat";
constexpr std::string_view PAIKKA_LASKE = "Top ten listaan pääsy";

// The list's failures show one box, the first time in a run of the operation; the work goes on.
struct ListanViat {
    Peli& peli;
    std::string_view paikka;
    bool näytetty = false;

    template <class F>
    bool operator()(F&& askel) {
        try {
            askel();
            return true;
        } catch (...) {
            peli.m.VikaPaikka = std::string(paikka);
            if (!näytetty) {
                näytetty = true;
                Ilmoita(peli, "Tanhua suoritti virhetilan. Todennäköisesti topten listaa on muokattu, tai "
                              "tiedostossa esiintyi lukema, jota tanhua ei voinut lukea. Liika pistemäärä saattaa "
                              "aiheuttaa tämän.");
            }
            return false;
        }
    }
};

const ToptenLista& Lista(const std::string& moodi) {
    for (const ToptenLista& l : TOPTEN_LISTAT)
        if (l.moodi == moodi) return l;
    return TOPTEN_LISTAT[0];
}

std::filesystem::path Tiedosto(const Peli& peli, std::string_view nimi) { return DataTiedosto(peli.kansiot, nimi); }

// The lines unshifted, as Windows-1252 bytes with CR LF.
std::string Tavuina(const std::vector<std::string>& rivit) {
    std::string t;
    for (const std::string& r : rivit) t += Utf8ToCp1252(r) + "\r\n";
    return t;
}

void Kirjoita(const std::filesystem::path& polku, const std::string& tavut) {
    if (!KirjoitaKokonaan(polku, tavut)) NostaVika(75);
}

double Tulos(const std::string& teksti) { return Int(TekstiLuvuksi(teksti)); }

// Reading, common to both: the mode (put right when empty), the title, the rows from the file.
void Lue(Peli& peli, ListanViat& viat) {
    Muuttujat& m = peli.m;
    ToptenRuutuTila& t = peli.tilanneruutu.Topten;
    if (m.PeliMoodi.empty()) {
        Ilmoita(peli, "Nyt on jotain kummaa tapahtunut (virhe). Pelimode on tyhjä eikä ole tallenntunut. Pelimoodi "
                      "on nyt muutettu normaaliksi vapaa ura moodiksi");
        m.PeliMoodi = "Vapaa";
    }
    const ToptenLista& lista = Lista(m.PeliMoodi);
    t.otsikko = std::string(lista.otsikko);
    viat([&] {
        const auto tavut = LueTiedosto(Tiedosto(peli, lista.tiedosto));
        if (!tavut) NostaVika(VIKA_EI_TIEDOSTOA);
        const std::vector<std::string> rivit = ListanRivit(*tavut);
        // The scratch copy stays behind for the next user to overwrite.
        Kirjoita(Tiedosto(peli, "temp.dat"), Tavuina(rivit));
        for (int i = 0; i < 2 * LISTAN_RIVEJÄ && i < static_cast<int>(rivit.size()); ++i)
            (i < LISTAN_RIVEJÄ ? t.n[i + 1] : t.p[i - LISTAN_RIVEJÄ + 1]) = rivit[i];
        if (rivit.size() < 2 * LISTAN_RIVEJÄ) NostaVika(VIKA_TIEDOSTO_LOPPUI);
    });
}

std::vector<std::string> Rivit(const ToptenRuutuTila& t) {
    std::vector<std::string> rivit;
    for (int i = 1; i <= LISTAN_RIVEJÄ; ++i) rivit.push_back(t.n[i]);
    for (int i = 1; i <= LISTAN_RIVEJÄ; ++i) rivit.push_back(t.p[i]);
    return rivit;
}

}  // namespace

std::vector<std::string> ListanRivit(const std::string& tiedosto) {
    std::vector<std::string> rivit = Rivit(tiedosto);
    for (std::string& r : rivit) {
        for (char& c : r) c = static_cast<char>(static_cast<unsigned char>(c) - 1);
        r = Cp1252ToUtf8(r);
    }
    return rivit;
}

std::string ListaTiedostoksi(const std::vector<std::string>& rivit) {
    std::string ulos;
    for (const std::string& r : rivit) {
        for (char c : Utf8ToCp1252(r)) {
            const auto tavu = static_cast<unsigned char>(c);
            ulos += static_cast<char>(tavu < 0x20 ? ' ' + 1 : tavu + 1);
        }
        ulos += "\r\n";
    }
    return ulos;
}

int ListanPaikka(const std::array<std::string, 11>& p, double uusi, bool pienempiParempi) {
    std::array<double, LISTAN_RIVEJÄ + 1> rivi{};
    for (int i = 1; i <= LISTAN_RIVEJÄ; ++i) rivi[i] = Tulos(p[i]);
    const double u = Int(uusi);
    // A row at least as good as the result stays above it; an equal one too.
    auto yllä = [&](double r) { return pienempiParempi ? r <= u : r >= u; };
    for (int k = 1; k <= LISTAN_RIVEJÄ + 1; ++k) {
        bool sopii = true;
        for (int i = 1; i <= LISTAN_RIVEJÄ; ++i) sopii = sopii && (i < k ? yllä(rivi[i]) : !yllä(rivi[i]));
        if (sopii) return k;
    }
    // The rows are out of order around the result: no position is found.
    NostaVika(VIKA_TYYPPI);
}

std::string UusiTulos(const Peli& peli) {
    const Muuttujat& m = peli.m;
    if (m.PeliMoodi == "Miljoona") {
        const double päivät = 1980.0 - ((1980.0 - m.Vuosi) * 365 + m.Kuukausi * 30.0 + m.Päivä);
        return Luku(päivät);
    }
    return Str(CSng(Int(peli.tilanneruutu.Pisteet)));
}

void NäytäListat(Peli& peli) {
    ListanViat viat{peli, PAIKKA_NÄYTÄ};
    Lue(peli, viat);
    peli.m.VikaLaskuri = 0;
}

void LaskeListat(Peli& peli) {
    Muuttujat& m = peli.m;
    ToptenRuutuTila& t = peli.tilanneruutu.Topten;
    ListanViat viat{peli, PAIKKA_LASKE};
    Lue(peli, viat);
    const ToptenLista& lista = Lista(m.PeliMoodi);
    t.p0Tag.clear();
    t.n[0].clear();
    int paikka = 0;
    viat([&] {
        t.p[0] = UusiTulos(peli);
        paikka = ListanPaikka(t.p, TekstiLuvuksi(t.p[0]), lista.pienempiParempi);
        t.p0Tag = Str(paikka);
    });
    if (paikka > LISTAN_RIVEJÄ) {
        Ilmoita(peli, "Harmi, et päässyt Topten listalle");
        return;
    }
    if (paikka >= 1) {
        // Cancelling the prompt leaves an empty name in the row.
        t.n[0] = peli.kanavat.KehoteOtsikolla("Onneksi olkoon, pääsit Top 10 joukkoon. Kirjoita nimesi",
                                              "Top 10 Farmari", m.PelaajanNimi);
        for (int i = LISTAN_RIVEJÄ; i > paikka; --i) {
            t.n[i] = t.n[i - 1];
            t.p[i] = t.p[i - 1];
        }
        t.n[paikka] = t.n[0];
        t.p[paikka] = t.p[0];
    }
    m.VikaLaskuri = 0;
}

void SuljeTopten(Peli& peli) {
    TilanneRuutuTila& r = peli.tilanneruutu;
    ToptenRuutuTila& t = r.Topten;
    if (!r.Päättynyt) {
        t.auki = false;
        r.auki = true;
        LaskePisteet(peli);
        return;
    }
    r.Tarina = false;
    ListanViat viat{peli, PAIKKA_LASKE};
    viat([&] {
        const std::vector<std::string> rivit = Rivit(t);
        Kirjoita(Tiedosto(peli, "temp.dat"), Tavuina(rivit));
        Kirjoita(Tiedosto(peli, Lista(peli.m.PeliMoodi).tiedosto), ListaTiedostoksi(rivit));
    });
    t.auki = false;
    Lopeta(peli);
}

void TyhjennäListat(Peli& peli) {
    if (!KysyKyllä(peli, "Olet tyhjentämässä ennätyslistoja!\n\nJatkamalla kaikki ennätykset menetetään\n\n      "
                         "Oletko asiasta täysin varma ?"))
        return;
    std::vector<std::string> rivit(LISTAN_RIVEJÄ, "Testi");
    for (int tulos = 100; tulos >= 10; tulos -= 10) rivit.push_back(std::to_string(tulos));
    try {
        const auto temp = Tiedosto(peli, "temp.dat");
        Kirjoita(temp, Tavuina(rivit));
        for (const ToptenLista& l : TOPTEN_LISTAT) Kirjoita(Tiedosto(peli, l.tiedosto), ListaTiedostoksi(rivit));
        std::error_code virhe;
        std::filesystem::remove(temp, virhe);
    } catch (...) {
        Ilmoita(peli, "TopTen sub:issa häiriö tyhjennettäessä listoja. Ilmoita asiasta pelin tekijälle.");
    }
    NäytäListat(peli);
}

}  // namespace tanhua
