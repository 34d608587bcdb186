// The bank: one loan, one deposit account, five insurance policies, and the month's interest,
// instalment and premiums.
#pragma once

#include <string>

#include "../core/laskenta.h"
#include "../core/state.h"
#include "pankkiruutu.h"

namespace tanhua {

struct Peli;

// Interest and the instalment of the loan, then the deposit's interest. Returns the instalment p.
Long LainaKuukausi(Peli& peli);
// Recomputes the five premium labels from the farm as it stands.
void PäivitäVakuutus(Peli& peli);
// Vakuutusmaksut: the premiums of the ticked boxes, as the labels hold them.
void LaskeVaku(Peli& peli);

// The supplies the farm owns.
int OmistetutTarvikkeet(const Muuttujat& m);
// LainaRaja: the most the bank lends, thirty for each unit of buildings, land (counted twice),
// owned supplies and kept contracts.
Long LainaRaja(const Muuttujat& m);
// The rate a period gives at the farm's difficulty, per mille a month.
int LainanKorko(const Muuttujat& m, int aika);

// The screen opens with a click (the main screen's Command6), with no sheet showing: the loan,
// the deposit and the months free.
void AvaaPankki(Peli& peli);
// Command1: the screen closes; a market report still over it goes with it.
void SuljePankki(Peli& peli);
// Esc: with a sheet showing, hides both sheets (enabling Command8 again); otherwise closes the screen.
// True when the screen was left.
bool PankkiEsc(Peli& peli);

void OtaLainaa(Peli& peli);         // Command2: a fresh loan sheet, unless a loan is open
void LyhennäMaksuaikaa(Peli& peli); // Command9: one period shorter, stopping at "6 kk"
void PidennäMaksuaikaa(Peli& peli); // Command10: one period longer, stopping at "2 vuotta"
// The text typed into the sheet's sum box.
void KirjoitaSumma(Peli& peli, const std::string& teksti);
// Command8: grants the loan or takes the deposit as the sheet's title says. A sum that isn't
// a number shows the bank's own failure box and leaves the money as it was; a loan of nothing or
// less is refused.
void VahvistaLappu(Peli& peli);
void SuljeLappu(Peli& peli);        // Command7: hides the sheet, enables Command8 again
void MaksaLaina(Peli& peli);        // Command3: repays the whole loan
void TalletaRahaa(Peli& peli);      // Command4: the deposit sheet, with half the cash offered
void NostaTalletukset(Peli& peli);  // Command5: the whole deposit back into cash

// vaku: fresh premiums and their sum, the loan sheet hidden, the insurance sheet shown.
void AvaaVakuutukset(Peli& peli);
void SuljeVakuutukset(Peli& peli);  // Command11
// A click on a policy's box that leaves it ticked (päällä) or cleared.
void VaihdaVakuutus(Peli& peli, Vakuutus v, bool päällä);
// The pointer on a policy's box shows its text in Vakuinfo; on Vakuinfo itself (-1) clears it.
void OsoitinVakuutukseen(Peli& peli, int v);

}  // namespace tanhua
