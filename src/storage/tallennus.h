// Saving and opening a farm by name: the .sav of shifted value lines and its .fxf seal.
#pragma once

#include <string>
#include <vector>

#include "../career/tilanneruutu.h"

namespace tanhua {

struct Peli;

// The farm's values as the save's lines, before the shift: one text a line, in the file's order.
std::vector<std::string> TilanteenRivit(const Peli& peli);

// The bytes of a .sav for the lines: Windows-1252, every byte one up, CR LF not shifted.
std::string SiirretytRivit(const std::vector<std::string>& rivit);
// The .sav's bytes back to the lines: every byte one down, then read as Windows-1252.
std::vector<std::string> PalautetutRivit(const std::string& sav);

// Writes the farm as the situation of the given name: .sav, then its seal in .fxf, then
// Savetus.dat unless the name is "Autosave". A step that fails is reported; on "go on" the next
// step runs.
void TallennaTilanne(Peli& peli, const std::string& nimi);
// Opens the situation of the given name into the farm record. A missing or wrong seal refuses it
// and ends the program: false. A value that doesn't read is reported, and on "go on" the next
// value is read. True when the seal held.
bool AvaaTilanne(Peli& peli, const std::string& nimi);

// The text of the refused open.
std::string AvausKiellettyTeksti();

// The .sav files of the data folder, sorted.
std::vector<std::string> TilanneTiedostot(const Peli& peli);
// The save button: checks the name, asks before overwriting, saves and tells. True when saved.
bool TallennaNappi(Peli& peli);
// The open button: checks the name, opens, and brings the screen's figures up to date. True
// when opened.
bool AvaaNappi(Peli& peli);

}  // namespace tanhua
