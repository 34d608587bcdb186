// The supplies shop: the three shop lists and the owned list, choosing, buying and selling.
#pragma once

#include <string>
#include <string_view>

#include "../core/laskenta.h"
#include "tarvikeruutu.h"

namespace tanhua {

struct Peli;
struct Muuttujat;

// A row by its key ("Lypsykone"), its shown name ("Pakkaamon liukuhihna") or "Aura"; -1 when none.
TarvikeRivinro TarvikeNimellä(std::string_view nimi);
// The shown name of a row.
std::string_view TarvikkeenNimi(TarvikeRivinro rivi);
// The text shown on choosing a row ("" for the plough).
std::string_view TarvikkeenTeksti(TarvikeRivinro rivi);
// The buying price, and the sale price Int(price x 0.75).
Long TarvikkeenHinta(TarvikeRivinro rivi);
Long TarvikkeenMyyntihinta(TarvikeRivinro rivi);

// The main screen's supplies button is open: always without the star lock, else from the first star.
bool TarvikkeetAuki(const Muuttujat& m);

// Opening a saved farm: the four lists are emptied and filled from the flags in catalogue order,
// owned items to Tavarat; the plough row does not come back.
void RakennaTarvikelistat(Peli& peli);

// An owned item leaves the farm (sold or broken): the flag is cleared, the item goes to the end of
// its shop list and out of Tavarat and of the list shown.
void PalautaKauppaan(Peli& peli, Tarvike k);

// The lists brought in step with the flags: an item whose flag changed meanwhile is moved to its
// right list (a broken one to the end of its shop list, keeping the others' order), and the list
// shown is filled again.
void TäsmääTarvikelistat(Peli& peli);
// The screen opens with a click and brings its lists in step with the flags.
void AvaaTarvikkeet(Peli& peli);
// Command1: leaves the screen.
void SuljeTarvikkeet(Peli& peli);

// The list buttons: Command4 "Tarvikkeet", Command3 "Lisälaitteet", Command2 "Työkoneet" and
// Command6 "Ostetut laitteet".
void NäytäYleiset(Peli& peli);
void NäytäLisälaitteet(Peli& peli);
void NäytäTyökoneet(Peli& peli);
void NäytäOmat(Peli& peli);

// Lista_Click: a row of the list shown is chosen.
void ValitseTarvike(Peli& peli, TarvikeRivinro rivi);

// Command5: buys when it reads "Osta", sells when it reads "Myy".
void Command5Tarvikkeet(Peli& peli);
void OstaTarvike(Peli& peli);
void MyyTarvike(Peli& peli);

}  // namespace tanhua
