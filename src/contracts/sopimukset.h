// Supply contracts: the phone offers of the day, the month's delivery, the withdrawal of offers.
#pragma once

namespace tanhua {

struct Peli;

void Sopimustarjous(Peli& peli);
// The month's delivery of the three contracts.
void SopimusKuukausi(Peli& peli);
// At the month end, one chance in three that the waiting offers are withdrawn.
void TarjousSiivous(Peli& peli);

}  // namespace tanhua
