// The trial betting screen of the harness races: no bet costs anything, no win pays anything and
// nothing of it is saved; the farm's cash is never touched.
#pragma once

#include <string>
#include <string_view>

#include "../core/laskenta.h"
#include "raviruutu.h"
#include "taulut/ravit.h"

namespace tanhua {

struct Peli;

// The way in from the stable ("Osallistu raveihin"): the notice box, then the screen opens fresh.
void AvaaRavit(Peli& peli);
// Command1 "Sulje": back to the stable.
void SuljeRavit(Peli& peli);

// Command2 "Lyö vetoa": the coupon shows, the bet kind is "Trio" and the names are let go.
void LyöVetoa(Peli& peli);
// Command5 "V75", Command10 "Trio", Command9 "Voittajaveto": the races are drawn anew from the names
// file, the kind is set and the marks are emptied. A missing file (or one without a name) is refused
// with its box and changes nothing.
void ValitseVetolaji(Peli& peli, std::string_view laji);
// Rivi(i), i 0 to 6: the race into the ten rows.
void NäytäRivi(Peli& peli, int rivi);
// RaviNimi(i): marks the horse of row i as the bet kind says.
void MerkitseHevonen(Peli& peli, int rivi);
// Kerroin(i): in "Voittajaveto" the row's box alone gets "X"; the marks are not stored.
void ValitseKerroin(Peli& peli, int rivi);
void LaskePanosta(Peli& peli);  // Command6 "-"
void NostaPanosta(Peli& peli);  // Command7 "+"
// Command4 "Hyväksy kuponki": the kind's test, then the drawn result sheet on Tulos.
void HyväksyKuponki(Peli& peli);
// Command8 "sulje": hides the sheet.
void SuljeTulos(Peli& peli);

// The odds text of a place from its two draws: D(3) and D(9).
std::string Kerrointeksti(long long kokonaiset, long long kymmenykset);

// The figures of an accepted coupon, as the sheet prints them.
struct RaviTulos {
    Long W = 0, P = 0, T = 0, c5 = 0, c6 = 0, c7 = 0;
    Single p7 = 0, p6 = 0, p5 = 0;
    int potti = -1;  // the row of the pool table that held, -1 for none
};
// The pools from the turnover and the winners at each level: the plain shares, then the first row
// of the pool table that holds.
void JaaPotit(RaviTulos& t);

}  // namespace tanhua
