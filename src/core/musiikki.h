// Music: the songs of the folder Midi played one after another in the background, and the player
// panel of the main screen. The player itself stands behind the channels; these are its rules.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tanhua {

struct Peli;

// The main screen's load: lists the songs and starts the player, with its two boxes when it
// can't be started; the game goes on without music.
void KäynnistäSoitin(Peli& peli);
// The same, only the first time a farm is started or continued in this run of the program: the
// main form loads once.
void KäynnistäSoitinKerran(Peli& peli);
// Opens the player through the channels; a failure shows its box and gives false.
bool AlustaMidi(Peli& peli);
// Plays the selected row once.
void SoitaMidi(Peli& peli);
// Stops the song at once.
void PysäytäMidi(Peli& peli);
// The program's end: the player is closed.
void LopetaMidi(Peli& peli);
// The next song: a random row other than the first with BiisiSatunnainen on, else the next row
// and row 0 after the last.
void SeuraavaKappale(Peli& peli);
// The player's notice of a song's end. Option 1 moves the music on; none to fetch gives the box.
void DirectXEvent8_DXCallback(Peli& peli, std::optional<int> vaihtoehto);
// The music of a new or continued game, when the setting asks for it.
void AloitaMusiikki(Peli& peli);

// The panel's buttons.
void SoitinArvo(Peli& peli);       // cmdPlayer1 "Arvo"
void SoitinSeuraava(Peli& peli);   // cmdPlayer2
void SoitinStop(Peli& peli);       // stoppi
// cmdPlayer3 "Piilota soitin", and Esc on the panel; the main screen's PlayerLogo. Each gives the
// tops the panel takes, one unit a step: as it hides, with animations on, up from where it is
// until it is above -100 (none with them off: it just goes); as it comes out, with animations on,
// from -200 down to a third of the form's height, or none when it is out already; with them off
// the one top of a third of the height. The panel stands at a third of the form's width.
std::vector<int> PiilotaSoitin(Peli& peli, int yläreuna);
std::vector<int> AvaaSoitin(Peli& peli, int lomakkeenKorkeus);

}  // namespace tanhua
