// The installation's settings (Asetukset.dat) and the name of the last saved farm (Savetus.dat).
#pragma once

namespace tanhua {

struct Peli;

// Reads the nine settings; a missing file tells the player and leaves every setting off.
void LueAsetukset(Peli& peli);
// Reads the last saved farm's name into the start screen; a missing file tells the player.
void LueSavetus(Peli& peli);

}  // namespace tanhua
