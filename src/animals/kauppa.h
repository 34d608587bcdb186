// Animal trade and slaughter: the cards, buying, selling, slaughter and the automatic slaughter orders.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "../core/laskenta.h"
#include "taulut/kortit.h"

namespace tanhua {

struct Peli;
struct Muuttujat;

// A card by its title ("Uros Kettu") or the key of its counter ("KettuUros"); -1 when there is none.
int KorttiNimellä(std::string_view nimi);
// A limit field by its name ("Sonni", "KettuUros" or the whole "TeurasSonniRaja"); -1 when there is none.
int TeurasRajaNimellä(std::string_view nimi);

// The whole number a limit field holds; failure 13 when it holds no number.
double TeurasRaja(const Muuttujat& m, int raja);

// The file of a card's picture, under Kuvat/Eläimet/.
std::string EläimenKuva(int kortti);

// The adult counter of a card.
Long& KortinPäät(Muuttujat& m, int kortti);

// The screen opens: counters, the butcher's and the tanner's pictures, the label and the welcome hint.
void AvaaEläimet(Peli& peli);
// Refreshes the two sums under the counters and the staff pictures.
void PäivitäEläinruutu(Peli& peli);

// A click on a kind's picture: opens its card with the totals of the lot.
void ValitseEläin(Peli& peli, int kortti);
// The lot steppers: 1, 10, 100 and back.
void määräplus(Peli& peli);
void määrämiinus(Peli& peli);

void Osta(Peli& peli);       // Command4
void Myy(Peli& peli);        // Command3
void Teurasta(Peli& peli);   // Command2

// A limit field changed to the text typed: a number becomes its whole part, not below 0; a text
// that is no number is refused with a message and the field keeps what it held. True when taken.
bool TeurasRajaMuuttui(Peli& peli, int raja, const std::string& teksti);
// The refusal of a limit that is no number.
inline constexpr std::string_view RAJA_EI_LUKU = "Teurasrajan pitää olla luku.";

// An order's check box clicked on its panel.
void AsetaTeuraslaatikko(Peli& peli, int laatikko, bool päällä);
// The butcher's picture opens the panel Teuras, the tanner's the panel Nylky.
void AvaaTeuraspaneeli(Peli& peli, bool nylky);
// The colour an order's box shows: marked after a purchase past its limit, else the panel's own.
std::uint32_t TeuraslaatikonVäri(const Peli& peli, int laatikko);

// Leaves the screen: the panels close, the order boxes get their colour back, hygiene is worked out.
void Takaisin(Peli& peli);
// Esc, or any key on the close button: hides an open card, otherwise leaves the screen. True when
// the screen was left.
bool EläimetEsc(Peli& peli);

// The pointer moved over something on the screen (kortti for a picture or a counter).
void OsoitinEläinruudulla(Peli& peli, EläinKohde kohde, int kortti = -1);

// The butcher's and the tanner's daily slaughter by the orders of the animal screen.
void AutoTeurastus(Peli& peli);

// The colour a purchase past an order's limit gives to the order's box.
std::uint32_t YlitettyRajaVäri();

}  // namespace tanhua
