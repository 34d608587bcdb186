// The statistics screen: the six monthly curves, the two tables of last month's products and the
// month's picture.
#pragma once

#include <string>
#include <vector>

#include "../core/laskenta.h"
#include "../core/state.h"
#include "käyrätruutu.h"
#include "taulut/käyrät.h"

namespace tanhua {

struct Peli;

// The screen opens with a click (the main screen's Stat): the time axis from 1.6.1980 to today,
// the net curve's button enabled only with a bookkeeper, the plot empty.
void AvaaKäyrät(Peli& peli);
// Command2 "Sulje": a click, and the screen closes.
void SuljeKäyrät(Peli& peli);
// Esc: with the month's picture showing, any key hides it; otherwise the screen closes. True when
// the screen was left.
bool KäyrätEsc(Peli& peli);

// A curve's button (Command1, Command3 to Command7): "siirto", the heading, the scale and the red
// line, under the button's own failure handler. An item that isn't a number is failure 13; going
// on leaves it out of the line.
void PiirräKäyrä(Peli& peli, Käyrä käyrä);
// Command8 and Command9: last month's products, gross and net, printed on Taulu.
void TuotteidenBrutto(Peli& peli);
void TuotteidenNetto(Peli& peli);
// Command10: the month's picture when the window has taken one (kuvaOtettu), else the notice.
void NäytäKuukausikuva(Peli& peli, bool kuvaOtettu);
// A click or a key on the picture hides it.
void PiilotaKuukausikuva(Peli& peli);

// The middle of the time axis: half the years since 1980 as whole months' worth, ties to even.
std::string Aika2(Integer vuosi);
// The scale top for the largest item's floor (0 or more): the first rung not below it, else the top.
double AsteikonKatto(const KäyräRivi& rivi, double suurin);
struct AsteikonTekstit {
    std::string Maximi, Puoli, Minimi;
};
AsteikonTekstit Asteikkotekstit(Asteikko asteikko, double T);
// The list's items as numbers for a small preview beside its button: an item that isn't a number
// counts as 0 there (only drawing the curve reports it).
std::vector<double> Esikatselu(const Muuttujat& m, Käyrä käyrä);
// A product's net income of last month, as the net table shows it (a Single).
Single TuotteenNetto(const Muuttujat& m, Tuote tuote);

}  // namespace tanhua
