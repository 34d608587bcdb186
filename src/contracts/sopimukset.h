// Supply contracts: the phone offers of the day, the contracts screen, the month's delivery.
#pragma once

#include <optional>
#include <string>

#include "../core/state.h"
#include "sopimusruutu.h"
#include "taulut/sopimukset.h"

namespace tanhua {

struct Peli;

// The day's call request: U(0..8), and only at 0 before day 10 the product U(0..17); then U(0..24),
// whose 0, or any day after 16, drops the oldest request.
void Sopimustarjous(Peli& peli);
// The month's delivery of the three contracts, slot 1 first.
void SopimusKuukausi(Peli& peli);
// At the month end, one chance in three that the waiting offers are withdrawn.
void TarjousSiivous(Peli& peli);

// Whether the farm can make the row's product today, and its base amount a0.
bool TarjousEhto(const Muuttujat& m, const TarjousRivi& rivi);
double PerusMäärä(const Muuttujat& m, const TarjousRivi& rivi);
// An offer leaves the list (entry `indeksi`, from 0): a call on it ends, a call on a later one
// keeps its entry.
void PoistaTarjous(Peli& peli, std::size_t indeksi);
// The call ends: no terms, no offer under discussion, the labels blank.
void LopetaPuhelu(SopimusRuutuTila& r);

// The row of the offer table a product's name stands for; none for a name no buyer asks for.
std::optional<TarjousRivi> TarjousNimellä(const std::string& tuote);
// The terms drawn for one call. Whole numbers; the penalty is worked in 32 bits.
struct Ehdot {
    Long A = 0, H = 0, P = 0, K = 0;
    std::string ostaja1, ostaja2;
};
// Draws the terms of an offer from the farm as it stands: seven draws, failure 6 when the penalty
// doesn't fit 32 bits.
Ehdot ArvoEhdot(Peli& peli, const TarjousRivi& rivi);
// The offer's text of the two labels: the terms, the stock, and while it is short the days left.
std::string Tarjousteksti(const Muuttujat& m, const TarjousRivi& rivi, const Ehdot& e);

// The slot view: pay and amount with " /KK" when above 0, the bonus, the length in years and months.
std::string Kuukausiluku(Long luku);
Long Bonus(Long sakko);
std::string Kestoteksti(Long kesto);

// The screen opens (the main screen's Command10, or a click on the phone): the phone hides.
void AvaaSopimukset(Peli& peli);
// Command1: leaves the screen; refused during a call. True when the screen was left.
bool SuljeSopimukset(Peli& peli);
// Sopimuksia_Click: entry `indeksi` of the list (from 0) picked: a call opens with fresh terms.
void ValitseTarjous(Peli& peli, int indeksi);
void HyväksyTarjous(Peli& peli);  // Command3
void HylkääTarjous(Peli& peli);   // Command2
void UudetSopimukset(Peli& peli);   // Command5: the offers' sheet with its help text
void NäytäSopimukset(Peli& peli);   // Command6: the slots' sheet
void SuljeTarjoukset(Peli& peli);   // Command9: refused during a call
void SuljeSopimuslappu(Peli& peli); // Command8
// A click on slot `paikka`'s product (0..2): chosen for cancelling; refused during a call.
void ValitsePeruttava(Peli& peli, int paikka);
// Command7 "Peru sopimus": asks, and on "Kyllä" pays the penalty and frees the slot.
void PeruSopimus(Peli& peli);

}  // namespace tanhua
