// The sowing screen Kylvö and the harvest screen Nosto for strawberries, potatoes and rape. Play
// never opens them (their pictures on the land screen start hidden), but they work once entered.
#pragma once

#include <string>

#include "../core/taulut/maat.h"

namespace tanhua {

struct Peli;

// Image4 on the land screen: the plan opens with its areas and sheet.
void AvaaKylvö(Peli& peli);
// PäivitäMäärät: the planned hectares together, and the field left unplanned.
void PäivitäMäärät(Peli& peli);
// The cost sheet Kustannukset, rebuilt line by line at each change of the plan.
void KylvönKustannukset(Peli& peli);
// A crop's picture opens its card with no hectares on it.
void ValitseKasvi(Peli& peli, Kasvi kasvi);
void KylvöPlus(Peli& peli);    // plus: one hectare more while unplanned field remains
void KylvöMiinus(Peli& peli);  // miinus: one less, down to 0
// Command3 "Hyväksy": the card's hectares go onto the plan.
void HyväksyKasvi(Peli& peli);
// A click on a crop's area clears it from the plan.
void NollaaAla(Peli& peli, Kasvi kasvi);
// The three boxes; each change rebuilds the sheet.
void AsetaLannoitetaan(Peli& peli, bool päällä);
void AsetaMyrkytetään(Peli& peli, bool päällä);
void AsetaOjitetaan(Peli& peli, bool päällä);
// Command2 "Aloita kylväminen": refused when the plan costs more than the cash; otherwise the crop
// goes into the ground, the harvest picture shows and the game returns to the land screen.
void AloitaKylväminen(Peli& peli);
// Command1 "Peruuta kylvö": the plan is cleared and the game returns.
void PeruutaKylvö(Peli& peli);

// Image5: the estimate and the harvest's costs are worked out as the screen opens.
void AvaaNosto(Peli& peli);
// LaskeNosto: each crop's hectares, kilos, price and sum, and the costs C of the harvest.
void LaskeNosto(Peli& peli);
void NostoLaske(Peli& peli);         // Command3 "laske": the figures again
void NostoKustannukset(Peli& peli);  // Command4 "Kustannukset": the figures and the sheet
// Command2 "Korjaa sato": the gross figure is paid (it can be negative), the crop is gone.
void KorjaaSato(Peli& peli);
// Command1 "Peru sadon korjuu": back with no change.
void PeruSadonKorjuu(Peli& peli);

}  // namespace tanhua
