// The herd: hygiene, output, feeding, ageing, breeding and automatic slaughter.
// These steps keep their place in the day; their rules come with the subsystem.
#include "eläimet.h"

namespace tanhua {

void EläintenKunto(Peli& /*peli*/) {}
void EläintenTuotanto(Peli& /*peli*/) {}
void Ruokinta(Peli& /*peli*/) {}
void Vanhentuminen(Peli& /*peli*/) {}
void Lisääntyminen(Peli& /*peli*/) {}

}  // namespace tanhua
namespace tanhua { void TyhjennäSyönnit(Peli& /*peli*/) {} }
