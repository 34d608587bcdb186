// The window without a person: a PNG of every screen and dialog, and the time of one day's press.
#pragma once

// own
#include "core/peli.h"
// std
#include <string>

namespace tanhua::ui {

// Plays a small farm and writes a picture of each screen and dialog into the folder. 0 on success.
int KirjoitaKuvakaappaukset(const Kansiot& kansiot, const std::string& kansio);
// Times presses of "Seuraava päivä" with the main screen repainted, on a farm of a thousand animals.
int MittaaPäivä(const Kansiot& kansiot);
// Times saving and opening a farm of fifty years.
void MittaaTallennus(Peli& peli);

}  // namespace tanhua::ui
