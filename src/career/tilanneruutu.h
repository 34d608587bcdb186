// What the Tilanne screen and the top-ten screen show while they are open (not saved).
#pragma once

#include <array>
#include <string>
#include <vector>

#include "../core/laskenta.h"

namespace tanhua {

// The top-ten screen: the title, the ten rows, and the new result with its name.
struct ToptenRuutuTila {
    bool auki = false;
    std::string otsikko;               // the title of the mode's list
    std::array<std::string, 11> n{};   // names; 1..10 the rows, 0 the new entry (n0, Text1)
    std::array<std::string, 11> p{};   // results as text; 1..10 the rows, 0 the new result
    std::string p0Tag;                 // the position found, by Str; empty when none
};

// The Tilanne screen: the score printed on it, the save panel akkuna, the story Tarina.
struct TilanneRuutuTila {
    bool auki = false;                    // the screen is showing
    std::string Kohde;                    // the name typed or picked
    std::vector<std::string> Tiedostot;   // the .sav files of the data folder, as listed
    std::string Valittu;                  // the file last clicked in the list
    bool akkuna = false;                  // the save and open panel
    std::vector<std::string> Alue;        // the score report printed on the screen
    bool Tarina = false;                  // the story is showing
    std::vector<std::string> TarinaRivit; // its printed lines
    // The career has ended (retired, or the goal reached): the lists' close writes and ends.
    bool Päättynyt = false;
    Single Pisteet = 0;                   // the score as LaskePisteet last worked it out
    std::string Ohje;                     // the hint line, while hints are on
    ToptenRuutuTila Topten;
};

}  // namespace tanhua
