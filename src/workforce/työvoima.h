// The staff screen: the job list by stars, choosing a job, hiring and firing, the wage slider and overtime.
#pragma once

#include <string_view>
#include <vector>

#include "../core/laskenta.h"
#include "../core/taulut/työvoima.h"

namespace tanhua {

struct Peli;
struct Muuttujat;

// A job by its name ("Meijerityöntekijä"); -1 when there is none.
int TyöläinenNimellä(std::string_view nimi);

// The jobs on offer in the screen's order: all seventeen without the star lock, otherwise those
// the farm's stars have opened.
std::vector<Työläinen> TarjolleTyöläiset(const Muuttujat& m);

// The room a job's building gives: two workers a level; -1 for a job without a cap.
Long TyöpaikkojaRakennuksessa(const Muuttujat& m, Työläinen k);

// Whether a job is on the list the stars give the screen now.
bool Tarjolla(const Muuttujat& m, Työläinen k);
// Whether the slider moves the job's wage: not for the tanner and the dog, nor while a wage agreed
// this month is locked.
bool MittariLiikkuu(const Muuttujat& m, Työläinen k);
// Whether the overtime buttons work for the job.
bool YlityöAsetettavissa(Työläinen k);

// AvaaTyövoima: the screen opens with a click: the staff total and the gauges are shown.
void AvaaTyövoima(Peli& peli);

// Lista_Click: a job is chosen: its labels, picture and text, the overtime answer, and the slider
// put at the wage's difference from the base (which moves the wage if the slider moves).
void ValitseTyöläinen(Peli& peli, Työläinen k);

// mittari: the slider is set to a value (by the player or by the screen). A change of its value
// sets the chosen job's wage to the base plus the value.
void AsetaMittari(Peli& peli, Integer arvo);
// The player drags the slider: nothing while it is disabled.
void SiirräMittaria(Peli& peli, Integer arvo);

void OtaTöihin(Peli& peli);     // Command3: hire one worker of the chosen job
void Erota(Peli& peli);         // Command5: fire one worker, who may sue
void YlityöPäälle(Peli& peli);  // Command7
void YlityöPois(Peli& peli);    // Command6

// Lasketyöläiset: the staff total of the screen.
void Lasketyöläiset(Peli& peli);

// Command1: leaves the screen; hygiene is worked out again for a change of cleaners.
void SuljeTyövoima(Peli& peli);

// The motivation and stress gauges of the screen.
void Motilasku(Peli& peli);
void Stressilasku(Peli& peli);

}  // namespace tanhua
