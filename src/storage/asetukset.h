// The installation's settings (Asetukset.dat) and the name of the last saved farm (Savetus.dat).
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "../core/laskenta.h"
#include "../core/peli.h"

namespace tanhua {

struct Peli;
struct Asetukset;
struct Kansiot;

// The nine lines of Asetukset.dat in the file's order: a Boolean or the one number, AnimNopeus.
struct AsetusRivi {
    std::string_view nimi;
    Boolean Asetukset::*totuus;  // null for the number
    std::string_view otsikko;    // the settings tool's label
    std::string_view vihje;      // and its one-line hint
};
extern const std::array<AsetusRivi, 9> ASETUSRIVIT;

// Reads the nine settings; a missing file tells the player and leaves every setting off.
void LueAsetukset(Peli& peli);
// Reads the last saved farm's name into the start screen; a missing file tells the player.
void LueSavetus(Peli& peli);

// One line of the file into its setting by the game's own rules: "True"/"False" or a whole number
// for a Boolean, a number that fits for AnimNopeus. A line that doesn't convert raises failure 13
// (or 6 for a number past its width).
void LueAsetusrivi(Asetukset& a, std::size_t rivi, const std::string& teksti);

// What the settings tool reads of a file: each line into `a` as the game would read it; a line the
// game would refuse, or one that is missing, is left at `oletus`. Returns those lines' numbers (from 1).
std::vector<int> JäsennäAsetukset(const std::string& teksti, const Asetukset& oletus, Asetukset& a);

// The settings tool's one line about a file the game would not read whole: which lines were bad and
// that the installation's values stand in their place; empty when every line was good.
std::string HuonotRivit(const std::vector<int>& huonot, bool puuttuu);

// The settings tool's view of an installation: the values the game would use (the shipped value
// in place of a line it would refuse), the values a fresh installation ships, and the note.
struct Asetustila {
    Asetukset arvot;
    Asetukset oletukset;
    std::string huomautus;  // empty when the game reads the file whole
};
Asetustila LueAsetustila(const Kansiot& kansiot);
// Writes the data folder's Asetukset.dat whole; false, with the old file kept, when it can't.
bool KirjoitaAsetukset(const Kansiot& kansiot, const Asetukset& a);

// A setting as its line stands in the file: "True"/"False", or the number.
std::string AsetusTekstinä(const Asetukset& a, std::size_t rivi);
// The whole file: the nine lines, each ended CR LF, nothing else.
std::string AsetuksetTekstinä(const Asetukset& a);
// A value typed for a setting: "True"/"False" for a Boolean, a whole number 0 to 100 for AnimNopeus.
// Returns the reason when it is refused, empty when it was set.
std::string AsetaAsetus(Asetukset& a, std::size_t rivi, const std::string& arvo);
// The line of a setting by its name; ASETUSRIVIT.size() when there is none.
std::size_t AsetusNimellä(std::string_view nimi);

}  // namespace tanhua
