// The calendar and the day step: SeuraavaPäivä with the goal check and the Christmas gift.
#pragma once

#include <string>

namespace tanhua {

struct Peli;
struct Muuttujat;

// Runs one game day, in its fixed order, under the day's failure handler.
void SeuraavaPäivä(Peli& peli);
// The goal of the career: the million, or the tenth year.
void TavoiteTarkastus(Peli& peli);
// On 24.12. with less than 20000 in cash: a gift of 300 to 3299.
void Joululahja(Peli& peli);

bool OnViikonloppu(int päivä);
// "Talvi" for months 11, 12, 1, 2; "Kevät" 3, 4; "Kesä" 5 to 8; "Syksy" 9, 10.
std::string VuodenaikaKuukaudesta(int kuukausi);
// Sets Vuodenaika from Kuukausi (the main screen's backdrop follows it).
void AsetaVuodenaika(Muuttujat& m);
// The backdrop of the main screen for a season, under the program folder.
std::string VuodenajanTausta(const std::string& vuodenaika);

}  // namespace tanhua
