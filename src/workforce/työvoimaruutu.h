// What the staff screen holds while it is open: the job list, the chosen job and its labels (not saved).
#pragma once

#include <string>

#include "../core/laskenta.h"
#include "../core/taulut/työvoima.h"

namespace tanhua {

// The job list itself is not held here: the screen fills it by the stars at each opening, and the
// stars only change on a day's press, while the screen is closed, so the list a player sees is always
// TarjolleTyöläiset of the farm as it stands.
struct TyövoimaRuutuTila {
    // The chosen job: an index of TYÖLÄISTAULU, -1 before the player has chosen one.
    // Reopening the screen keeps the choice and its labels.
    int valittu = -1;
    std::string työ;         // the job's name
    std::string kuva;        // its picture, under the program folder
    std::string info;        // its text
    Long palkka = 0;         // the base wage
    Long työmies = 0;        // the head count; firing is guarded by this figure
    Long palk = 0;           // the wage the job is paid

    // The overtime answer YliTyö ("Kyllä", "Ei" or "Ei voida määrittää") and its two buttons
    // (Command7 on, Command6 off).
    std::string YliTyö;
    bool ylityöNapit = true;

    // The wage slider mittari: the wage less the base wage, -1000..1000, small step 10, large 100.
    static constexpr Integer MITTARI_MIN = -1000, MITTARI_MAX = 1000;
    static constexpr Integer MITTARI_PIENI = 10, MITTARI_SUURI = 100;
    Integer mittari = 0;
    bool mittariKäytössä = true;

    Single yhtpalk = 0;      // the month's wage sum, shown after a hire or a wage change
    Long Työläisiä = 0;      // all workers of the seventeen jobs

    // The two gauges of motivation and stress ("" while blank).
    std::string Moti;
    std::string Stres;
};

}  // namespace tanhua
