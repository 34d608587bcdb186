// The month end: the herd ages and breeds, the accounts are settled, the calendar turns.
#pragma once

namespace tanhua {

struct Peli;

void Kuukaudenvaihde(Peli& peli);
// "Sulje raportti": closes the monthly report and gives the main screen back.
void SuljeRaportti(Peli& peli);
// Moves this month's sales to last month's.
void TyhjennäTulot(Peli& peli);

}  // namespace tanhua
