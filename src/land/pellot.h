// The land screen Pellot: the four cards with their trade, the forester's panel and the pointer texts.
#pragma once

#include <string>

#include "../core/laskenta.h"
#include "../core/taulut/maat.h"
#include "peltoruutu.h"

namespace tanhua {

struct Peli;
struct Muuttujat;

// The hectares of a kind.
Single& Hehtaarit(Muuttujat& m, Maa maa);
Single Hehtaarit(const Muuttujat& m, Maa maa);
// A kind by its card title or key ("Laidunmaa" or "Laidun"); -1 for none.
int MaaNimellä(const std::string& nimi);

// The card's figures as the player reads them.
double KortinMaavero(const Muuttujat& m, Maa maa);  // Round(H² × the card's factor, 2)
std::string KKTuotto(const Muuttujat& m, Maa maa);   // the month's yield, "(Talvi!)" or "-"
// The manure picture of the field card: while manure goes to the fields.
bool LantaKuvassa(const Peli& peli);
// MetsuriKuva: shown while a sawmill stands and a forester is employed.
bool MetsuriKuvassa(const Muuttujat& m);

// The main screen's Command5 opens the screen ("klik"); without fields the sowing pictures hide.
void AvaaPellot(Peli& peli);
// Command1: the screen closes ("klik").
void SuljePellot(Peli& peli);
// Esc: with the forester's panel or the card showing, hides both; otherwise closes the screen.
// True when the screen was left.
bool PellotEsc(Peli& peli);

// ValitseMaa: a land picture clicked opens its card with the lot at 1.
void ValitseMaa(Peli& peli, Maa maa);
void plus(Peli& peli);    // the lot one step up along 1, 10, 100
void miinus(Peli& peli);  // and down
// Command7 "Osta": refused while the lot costs more than the cash (equal money buys).
void OstaMaata(Peli& peli);
// Command8 "Myy": refused without enough land, or when it would leave a stable without pasture.
void MyyMaata(Peli& peli);

// A click on MetsuriKuva opens the forester's panel; Metsitä is its box "Istuta automaattisesti".
void AvaaMetsuriValikko(Peli& peli);
void AsetaMetsitä(Peli& peli, bool päällä);

// The pointer over a control ("Image0" .. "Image5", "MetsuriKuva") names it in otsikko; true when
// the control has a text.
bool OsoitinPelloilla(Peli& peli, const std::string& ohjain);

}  // namespace tanhua
