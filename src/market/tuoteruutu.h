// What the product screen holds while it is open: the chosen card and its figures (not saved).
#pragma once

#include <array>
#include <string>

#include "../core/laskenta.h"
#include "../core/taulut/tuotteet.h"

namespace tanhua {

struct TuoteRuutuTila {
    // The screen has been opened (its prices worked out) and not yet left.
    bool auki = false;
    // The open card: a product of Tuote, -1 before the player has chosen one.
    int tuote = -1;
    bool akkuna = false;          // the card's panel is showing
    std::string nimi;             // the card's name ("Kananmuna", "Lannoite", ...)

    // The card's figures as its labels show them.
    Integer hinta = 0;            // base price
    Integer kurssi = 0;           // market index
    std::string vAika = "0";      // the season offset as a signed text
    double yhinta = 0;            // unit price: base price + index + offset
    double kpl = 0;               // the stock
    double Yhthinta = 0;          // the total; the cost of filling the silo on the feed card
    bool ostaKäytössä = false;    // "Osta" is enabled on the feed card only

    // The further check box of the manure card and, with a carpenter, of the board card.
    bool lisäasetusNäkyy = false;
    std::string lisäasetusTeksti;
    bool lisäasetus = false;

    // The stock labels of the twenty products.
    std::array<double, TUOTTEITA> varasto{};

    // The accountant's picture and the settings panel it opens.
    bool kirjanpitäjäKuva = false;
    bool taulu = false;

    // The label that names what the pointer is over, and the hint line.
    std::string aihe = "Tuotteet : ";
    std::string ohje;
};

}  // namespace tanhua
