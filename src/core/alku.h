// The start screen's rules: start-up, a new farm and its load, and throwing a farm away.
#pragma once

#include <array>
#include <string>

namespace tanhua {

struct Peli;

// The goal list of the start screen and what each row means.
inline constexpr std::array<const char*, 3> TAVOITELISTA{
    "Vapaa ura, ei rajoituksia", "Kerää miljoonasta käteistä", "10 vuoden omaisuuden keruu"};
inline constexpr std::array<const char*, 3> PELIMOODIT{"Vapaa", "Miljoona", "10 vuotta"};
inline constexpr std::array<const char*, 3> VAIKEUSTASOT{"Helppo", "Normaali", "Vaikea"};

struct Asetukset;
// The pause of the loading bar's tick in milliseconds: 15 - AnimNopeus \ 10 with the processor
// saving on, none without it.
int LatauksenTauko(const Asetukset& asetukset);

// Start-up of the start screen: version, the last saved farm, the settings.
void AlkuLataus(Peli& peli);
// "Nosta vaikeustasoa" and "Laske vaikeustasoa": a step of the difficulty; at an end nothing happens.
void NostaVaikeustasoa(Peli& peli);
void LaskeVaikeustasoa(Peli& peli);
// "Aloita uusi tilanne": checks the name and runs the load. Returns true when a farm was started.
bool AloitaUusi(Peli& peli);
// The load of a new farm with its progress texts.
void UusiTilanneLataus(Peli& peli);
// "Jatka tilannetta": opens the last saved farm. Returns true when a farm stands.
bool JatkaTilannetta(Peli& peli);
// Every screen back to its start: the main screen's list and news, the start screen, the sub-screens' choices.
void NollaaRuudut(Peli& peli);
// "Uusi tilanne": asks, then throws the farm away and goes back to the start screen.
bool UusiTilanne(Peli& peli);

}  // namespace tanhua
