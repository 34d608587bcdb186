// What the bank screen shows while it is open: the three labels, the loan and deposit sheet
// Lappu, and the insurance sheet VakuLappu (not saved).
#pragma once

#include <string>

namespace tanhua {

struct PankkiRuutuTila {
    bool auki = false;          // the screen is showing

    // The labels of the screen: the loan, the deposit and the months free of repayment, as
    // the numbers are put into a label (no leading blank).
    std::string lainaz, tiliz, Maksuaikaz;

    // The sheet Lappu, for a loan or a deposit.
    bool Lappu = false;
    std::string otsikko;        // "Ota lainaa" or "Talleta rahaa"; the confirm acts by it
    std::string teksti;         // the sheet's text: its help, then what was done
    std::string summa;          // the sum box, as typed or as the bank puts it
    int aika = 0;               // the period: an index of MAKSUAJAT
    std::string aikaz;          // the period's label ("6 kk", "1 vuosi", "2 vuotta")
    std::string prossa;         // the rate the period gives, per mille a month
    bool aikaNäkyvissä = true;  // the period controls (aika, prossa, Command9, Command10)
    bool Command8 = true;       // the confirm button; a granted loan disables it until Command7

    // The insurance sheet. The five boxes and their premium labels are in the record
    // (Muuttujat::Pankki), as they are saved with the farm.
    bool VakuLappu = false;
    std::string Vakusummaz;     // the sum of the ticked premiums
    std::string Vakuinfo;       // the pointer text of a box, "" when cleared
};

}  // namespace tanhua
