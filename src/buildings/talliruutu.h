// What the stable screen holds: its two sheets and the month's riding ledger (not saved).
#pragma once

#include <string>
#include <vector>

namespace tanhua {

struct TalliRuutuTila {
    bool auki = false;            // the screen is showing
    bool Hinnasto = false;        // the price sheet, shown and hidden by "Määritä hinnasto"
    bool Ravikustannus = false;   // the race costs, shown while the pointer is on "Osallistu raveihin"
    // Ratsastus: one line a day of lessons, kept while the program runs and emptied at each month end.
    std::vector<std::string> Ratsastus;
};

}  // namespace tanhua
