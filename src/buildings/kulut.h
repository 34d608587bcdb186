// The day's electricity and water bills, and the packing plant's capacity and factor.
#pragma once

namespace tanhua {

struct Peli;
struct Muuttujat;

// The weather's factors of the bills: cold drives electricity, warmth water; each at least 1.
double Sähkökerroin(const Muuttujat& m);  // SF = (40 - Lämpötila) x 0.06
double Vesikerroin(const Muuttujat& m);   // VF = (Lämpötila + 32) x 0.05

void PakkaamoPäivä(Peli& peli);
void PäiväKulut(Peli& peli);

}  // namespace tanhua
