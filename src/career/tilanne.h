// The Tilanne screen: where the career stands (the score), the save panel, retirement and the
// life story told when a goal is reached or the farmer retires.
#pragma once

#include <string>
#include <vector>

#include "../core/laskenta.h"
#include "tilanneruutu.h"

namespace tanhua {

struct Peli;
struct Muuttujat;

// The amount text of the score report: the plain number below a million (negative too), then
// millions to two decimals and milliards to one.
std::string MääräTeksti(double x);

// The score: net cash and holdings summed step by step in Single, less the start by difficulty,
// divided and floored (so -0.6 is -1).
Single Pisteet(const Muuttujat& m, int tarvikkeita);
// LaskePisteet: works out Pisteet, prints the 14 lines of the report on the screen (printed area
// "Tilanne").
void LaskePisteet(Peli& peli);
// The lines LaskePisteet prints, for the record as it stands and the score given.
std::vector<std::string> PisteRaportti(const Muuttujat& m, int tarvikkeita, Single pisteet);

// The life story's lines for the record and the score.
std::vector<std::string> TarinanRivit(const Muuttujat& m, Single pisteet);
// LoppuJuttu: prints the story on Tarina (printed area "Tarina") and shows it. In "Vapaa" with the
// story already showing it does nothing.
void LoppuJuttu(Peli& peli);
// The goal "Miljoona" reached: the Tilanne screen shows over the main screen and the story is told.
void MiljoonaSaavutettu(Peli& peli);

// The main screen's Command7: the screen shows and LaskePisteet prints.
void AvaaTilanneRuutu(Peli& peli);
// Command3 "Sulje": closes the screen with its click, but not while the story shows. True when left.
bool SuljeTilanneRuutu(Peli& peli);
// Esc: with the panel showing acts as the panel's Sulje, else as the screen's. True when left.
bool TilanneEsc(Peli& peli);
// Command1 "Avaa/Tallenna": the save panel with the saves listed.
void AvaaPaneeli(Peli& peli);
// Command2 "Sulje" of the panel: hides it and prints the score again.
void SuljePaneeli(Peli& peli);
// A click on a file of the list: Kohde takes its name up to the first dot.
void ValitseTiedosto(Peli& peli, const std::string& tiedosto);
// Poista: deletes the .sav of Kohde after the question, or the file picked in the list at once
// when Kohde is not on the list. The seal stays.
void PoistaTilanne(Peli& peli);
// Command4 "Jää eläkkeelle": asks, then tells the story.
void JääEläkkeelle(Peli& peli);
// The story's Sulje: the screen hides and the lists take the result (LaskeListat).
void SuljeTarina(Peli& peli);
// Command8 "Ennätys listat": the screen hides and the list of the mode shows.
void EnnätysListat(Peli& peli);

// The hint line's texts by control name ("Tervetuloa" for the welcome).
const std::string& TilanneOhje(const std::string& kontrolli);
// The pointer over a control: its hint in Ohje, while hints are on.
void OsoitinTilanteessa(Peli& peli, const std::string& kontrolli);

}  // namespace tanhua
