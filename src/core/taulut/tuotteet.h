// The twenty products: keys, shown names, base price rules, store weights and pictures.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tanhua {

enum Tuote : std::size_t {
    Maito, Liha, Villa, Muna, Turkki, Rehu, Puu, Lauta, Vihannes, Juusto,
    Jauho, Vilja, Lanta, Leipä, Vaate, Makkara, Leivos, Marja, Viini, Hunaja,
    TUOTTEITA
};

struct TuoteRivi {
    std::string_view avain;      // the key of the family names: Var_<avain>, Kurssi_<avain>
    std::string_view nimi;       // shown on the product screen
    std::string_view listaNimi;  // shown in lists where it differs
    int hinta0;                  // base price at difficulty 0
    int hintaPerTaso;            // added for each step of difficulty
    double paino;                // weight in the store load; 0 for feed and flour
    std::string_view kuva;       // under Kuvat/tuotteet/
};

inline constexpr std::array TUOTETAULU{
    //        key         shown          in lists      v=0  per v  weight  picture
    TuoteRivi{"Maito",    "Maito",       "Maito",       5,   -1,   1.0,   "maito.jpg"},     // 0
    TuoteRivi{"Liha",     "Liha",        "Liha",        16,  -2,   1.0,   "liha.jpg"},      // 1
    TuoteRivi{"Villa",    "Villa",       "Villa",       5,   -1,   1.0,   "villa.jpg"},     // 2
    TuoteRivi{"Muna",     "Kananmuna",   "Kananmuna",   4,   -1,   0.5,   "muna.jpg"},      // 3
    TuoteRivi{"Turkki",   "Turkki",      "Turkki",      1500, -10, 1.0,   "turkki.jpg"},    // 4
    TuoteRivi{"Rehu",     "Rehu",        "Rehu",        3,   1,    0.0,   "rehu.jpg"},      // 5 held in the silo
    TuoteRivi{"Puu",      "Puu",         "Raakapuu",    125, -4,   1.0,   "puu.jpg"},       // 6
    TuoteRivi{"Lauta",    "Lauta",       "Lauta",       135, -4,   1.0,   "lauta.jpg"},     // 7
    TuoteRivi{"Vihannes", "Vihannes",    "Vihannes",    14,  -2,   1.0,   "vihannes.jpg"},  // 8
    TuoteRivi{"Juusto",   "Juusto",      "Juusto",      53,  -3,   1.0,   "juusto.jpg"},    // 9
    TuoteRivi{"Jauho",    "Jauho",       "Jauho",       12,  -2,   0.0,   "jauho.jpg"},     // 10 never fills the store
    TuoteRivi{"Vilja",    "Vilja",       "Vilja",       5,   -1,   0.5,   "vilja.jpg"},     // 11
    TuoteRivi{"Lanta",    "Lannoite",    "Lanta",       3,   -1,   1.0,   "lanta.jpg"},     // 12
    TuoteRivi{"Leipä",    "Leipä",       "Leipä",       34,  -3,   1.0,   "leipä.jpg"},     // 13
    TuoteRivi{"Vaate",    "Vaate",       "Vaate",       60,  -3,   1.0,   "vaate.jpg"},     // 14
    TuoteRivi{"Makkara",  "Makkara",     "Makkara",     25,  -2,   1.0,   "makkara.jpg"},   // 15
    TuoteRivi{"Leivos",   "Leivos",      "Leivos",      40,  -3,   1.0,   "leivos.jpg"},    // 16
    TuoteRivi{"Marja",    "Marja",       "Marja",       10,  -2,   1.0,   "marja.jpg"},     // 17
    TuoteRivi{"Viini",    "Viini",       "Viini",       30,  -3,   1.0,   "viini.jpg"},     // 18
    TuoteRivi{"Hunaja",   "Hunaja",      "Hunaja",      23,  -3,   1.0,   "hunaja.jpg"},    // 19
};
static_assert(TUOTETAULU.size() == TUOTTEITA);

}  // namespace tanhua
