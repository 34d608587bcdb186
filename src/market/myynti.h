// Sale and purchase of products: the product card, the hand sales, feed, the accountant's sale.
#pragma once

#include <cstddef>
#include <string>

#include "../core/taulut/tuotteet.h"

namespace tanhua {

struct Peli;
struct Muuttujat;

// What the pointer can be over on the product screen.
enum class TuoteKohde { Ruutu, Kuva, Command2, Command6, Command3, KirjanpitäjäKuva, Command1 };

// A product by its key ("Maito", "Muna") or its shown name ("Kananmuna", "Lannoite"); -1 when none.
int TuoteNimellä(const std::string& nimi);

// The season offset of a sale by the season of the record; manure has none here.
int Kausilisä(const Muuttujat& m, Tuote k);
// The offset the card shows in its unit price: manure's own, else the season offset.
int KortinLisä(const Muuttujat& m, Tuote k);

// The screen opens: base prices, stocks, the accountant's picture, the product pictures, the welcome hint.
void AvaaTuotteet(Peli& peli);
// Shows all stocks; a stock found below 0 is set to 0.
void PäivitäTuotteet(Peli& peli);

// A click on a product's picture: opens its card.
void AvaaTuote(Peli& peli, Tuote k);
void MyyKaikki(Peli& peli);   // Command2
void MyyPuolet(Peli& peli);   // Command6
void OstaRehua(Peli& peli);   // Command3, the feed card only
// The further check box of the open card (manure to the fields, boards to the buildings).
void Tuotelisäasetus(Peli& peli, bool päällä);

// The name of a product's check box on the accountant's panel: Myy<key>, or OstaRehu for feed;
// its style button adds "Tyyli".
std::string AsetuksenNimi(std::size_t k);

// The accountant's panel and its settings.
void KirjanpitäjäKuva(Peli& peli);                        // opens and closes the panel
void AsetaAutomyynti(Peli& peli, Tuote k, bool päällä);   // a product's check box (OstaRehu for feed)
void KäännäTyyli(Peli& peli, Tuote k);                    // "Kaikki" <-> "Puolet"
void AsetaMyyntiaika(Peli& peli, int rulla);              // 0 "joka kuukausi", 1 "joka viikko"

// The pointer moved over something on the screen (k for a product's picture).
void OsoitinTuoteruudulla(Peli& peli, TuoteKohde kohde, int k = -1);
// Esc: hides the card and the panel when either shows, else leaves the screen (true then).
bool TuotteetEsc(Peli& peli);
// Command1: leaves the screen.
void SuljeTuotteet(Peli& peli);

// The accountant's run on the sale days: the products by their boxes, then the silo.
void AutoMyynti(Peli& peli);

}  // namespace tanhua
