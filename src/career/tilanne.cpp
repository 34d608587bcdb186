// The life story told when the farmer retires or the goal is reached, and the retirement itself.
#include "tilanne.h"

#include <span>

#include "../core/kanavat.h"
#include "../core/peli.h"
#include "../core/pääruutu.h"
#include "../core/viestit.h"
#include "../storage/topten.h"
#include "taulut/tarina.h"

namespace tanhua {

namespace {

using tarina::Rivi;

// Every row of a table that holds for x, with x joined where the row places it.
void Rivit(std::vector<std::string>& ulos, std::span<const Rivi> taulu, double x, const std::string& arvo) {
    for (const Rivi& r : taulu)
        if (r.väli.Sisältää(x)) ulos.push_back(std::string(r.alku) + (r.arvolla ? arvo : "") + std::string(r.loppu));
}

// The first row that holds, or nothing.
std::string Ensimmäinen(std::span<const Rivi> taulu, double x) {
    for (const Rivi& r : taulu)
        if (r.väli.Sisältää(x)) return std::string(r.alku);
    return "";
}

long long Summa(std::initializer_list<long long> luvut) {
    long long s = 0;
    for (long long l : luvut) s += l;
    return s;
}

std::string Tulosrivi(const Muuttujat& m, Single pisteet) {
    if (m.PeliMoodi == "Miljoona")
        return m.Raha < 1000000 ? std::string(tarina::MILJOONA_EI) : Ensimmäinen(tarina::TULOS_MILJOONA, m.Vuosi);
    if (m.PeliMoodi == "10 vuotta") return Ensimmäinen(tarina::TULOS_10V, pisteet);
    return Ensimmäinen(tarina::TULOS_VAPAA, pisteet);
}

std::string_view Tavoite(const std::string& moodi) {
    if (moodi == "Miljoona") return tarina::TAVOITE_MILJOONA;
    if (moodi == "10 vuotta") return tarina::TAVOITE_10V;
    return tarina::TAVOITE_VAPAA;
}

}  // namespace

std::vector<std::string> TarinanRivit(const Muuttujat& m, Single pisteet) {
    std::vector<std::string> t{"", std::string(10, ' ') + "Sinun tarinasi:", ""};
    t.push_back("    Aloitit maatalous uran vuonna 1980 ja jäit");
    t.push_back("   eläkkeelle vuonna " + Str(m.Vuosi) + ". Tavoitteenasi oli ");
    t.push_back("        " + std::string(Tavoite(m.PeliMoodi)));
    t.push_back("          ja näiden " + Str(static_cast<long long>(m.Vuosi) - 1980) + " vuoden");
    t.push_back("  aikana " + Tulosrivi(m, pisteet));
    if (m.PeliMoodi != "Miljoona") {
        const Single raha = CSng(static_cast<double>(m.Raha) - m.Laina + m.Tili);
        // At 0 or below no word fits, and the slot stays empty.
        t.push_back("  Rahaa sinulle jäi kouraan " + Ensimmäinen(tarina::RAHASANA, raha) + " " + Luku(raha) + " yhteensä.");
    }
    const auto& e = m.El;
    const long long a = Summa({e[Kana][Uros], e[Kana][Naaras], e[Sika][Naaras], e[Sika][Uros], e[Lammas][Naaras],
                               e[Lammas][Uros], e[Nauta][Naaras], e[Nauta][Uros], e[Kettu][Naaras], e[Kettu][Uros],
                               e[Hevonen][Naaras], e[Hevonen][Uros]});
    Rivit(t, tarina::ELÄIMET, static_cast<double>(a), Luku(a));
    // The story's buildings leave out the bee garden and the packing plant.
    long long b = 0;
    for (Rakennus r : {Saha, Ompelimo, Meijeri, Kasvihuone, Mylly, Leipomo, Teurastamo, Rehuntuotanto, Hevostalli,
                       Marjatarha, Viinitehdas})
        b += m.Rak[r];
    Rivit(t, tarina::RAKENNUKSET, static_cast<double>(b), Luku(b));
    const Single l = CSng(static_cast<double>(m.Metsä) + m.Pelto + m.Joutomaa);
    Rivit(t, tarina::MAA, l, Luku(l));
    long long s = 0;
    for (Työläinen k : {Puutarhuri, Metsuri, Teurastaja, Meijerityöntekijä, Ompelija, Leipuri, Kirvesmies, Tallimestari,
                        Mylläri, Siivooja, Kirjanpitäjä, Vahtikoira, Viinimestari})
        s += m.Työ[k];
    Rivit(t, tarina::TYÖNTEKIJÄT, static_cast<double>(s), Luku(s));
    Rivit(t, tarina::LOPPUTUOMIO, pisteet, "");
    t.push_back("");
    t.push_back("       Loppu.......");
    return t;
}

void LoppuJuttu(Peli& peli) {
    TilanneRuutuTila& r = peli.tilanneruutu;
    if (peli.m.PeliMoodi == "Vapaa" && r.Tarina) return;
    r.TarinaRivit.clear();
    r.Tarina = true;
    r.Päättynyt = true;
    r.TarinaRivit = TarinanRivit(peli.m, r.Pisteet);
    RaporttiSivu alue{"Tarina", 12, {}};
    for (const std::string& rivi : r.TarinaRivit) alue.rivit.push_back({MUSTA, 0, rivi});
    peli.kanavat.Alue(alue);
}

void MiljoonaSaavutettu(Peli& peli) {
    // The screen shows over the main screen with the score of the last visit (0 if none).
    if (!peli.tilanneruutu.auki) AvaaAlaruutu(peli, [&] { peli.tilanneruutu.auki = true; });
    LoppuJuttu(peli);
}

void JääEläkkeelle(Peli& peli) {
    if (!KysyKyllä(peli, "Haluatko varmasti siirtyä eläkkeelle?")) return;
    LoppuJuttu(peli);
    peli.tilanneruutu.Päättynyt = true;
}

void SuljeTarina(Peli& peli) {
    TilanneRuutuTila& r = peli.tilanneruutu;
    try {
        r.auki = false;
        r.Topten.auki = true;
        LaskeListat(peli);
    } catch (...) {
        Ilmoita(peli,
            "Häiriö Tilanne sub:issa mentäessä TopTen subin listojen laskuun. Ilmoita asiasta pelin tekijälle.");
    }
}

void EnnätysListat(Peli& peli) {
    peli.tilanneruutu.auki = false;
    peli.tilanneruutu.Topten.auki = true;
    NäytäListat(peli);
}

}  // namespace tanhua
