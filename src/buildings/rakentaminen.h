// The building screen: choosing a target, the size steps, ordering work and the day labels.
#pragma once

#include <cstddef>
#include <string_view>

#include "../core/laskenta.h"
#include "rakennusruutu.h"
#include "taulut/rakennuskatalogi.h"

namespace tanhua {

struct Peli;
struct Muuttujat;

// A target by its key (Saha, Navetta, ...); -1 when there is none.
int KohdeNimellä(std::string_view nimi);

// True when the stars of the farm keep this building from being ordered. Stores never lock.
bool TähtiLukitsee(const Muuttujat& m, std::size_t kohde);

// The price of one order of a target at a step: a store's step price, or a building's price
// raised for the level it already has.
double TilauksenHinta(const Muuttujat& m, std::size_t kohde, int askel);
// The days of one order: a store's order on a running one takes half the days.
Integer TilauksenKesto(const Muuttujat& m, std::size_t kohde, int askel);

// Whether Command2 can be pressed for a target: a store always, a building below level 5.
bool TilausKäytössä(const Muuttujat& m, std::size_t kohde);
// The number of a target's picture, Picture1 (Navetta) to Picture16 (Pakkaamo), in the order the
// work orders are counted down.
int KuvanNumero(std::size_t kohde);

// The screen opens with a click: the three sizes, the day labels and the first-timer's hint.
void AvaaRakennukset(Peli& peli);
// The close button: a click, and the screen closes.
void SuljeRakennukset(Peli& peli);

// A click on a target's picture or its day label.
void ValitseKohde(Peli& peli, std::size_t kohde);
// The size steppers (+1, -1); 0 only works out the days again.
void AskelMäärä(Peli& peli, int delta);
// Command2, "Rakenna" or "Laajenna": pays and gives the work order, or refuses.
void TilaaKohde(Peli& peli);
// Refreshes the sixteen day labels and the star locks over them.
void NäytäTyömaat(Peli& peli);

// The production slider Rakennus_Tuotanto (0 to 10) shows for a chosen building that has a
// percentage, from level 1; it stays usable while an expansion runs.
bool TuotantoNäkyy(const Peli& peli);
// A move of the slider: the chosen building's percentage becomes ten times the value, at once.
void AsetaTuotanto(Peli& peli, int arvo);
inline constexpr int TUOTANTO_ASKELIA = 10;

}  // namespace tanhua
