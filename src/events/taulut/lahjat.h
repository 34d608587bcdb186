// Gifts from relatives: who gives, and what each gift number gives behind the giver's name.
#pragma once

#include <array>
#include <string_view>

namespace tanhua {

inline constexpr std::array<std::string_view, 12> ANTAJAT{
    "Mummosi",  "Setäsi",    "Serkkusi", "Veljesi",  // 0..3
    "Kaverisi", "Enosi",     "Siskosi",  "Naapurisi",  // 4..7
    "Tätisi",   "Vaarisi",   "Sukulaisesi", "Tuttavasi",  // 8..11
};

// The first gift number and its texts, the gift numbers in order.
inline constexpr int ENSIMMÄINEN_LAHJA = 9;
inline constexpr std::array<std::string_view, 10> LAHJATEKSTIT{
    " kutoi sinulle villapaitoja",                        // 9
    " oli käynyt hirvimetsällä ja antoi sinulle lihaa",   // 10
    " toi sinulle ylimääräisiä lautoja.",                 // 11
    " kävi sinulle kaupassa.",                            // 12
    " oli leiponut sinulle leipää.",                      // 13
    " keräsi sinulle vihanneksia.",                       // 14
    " antoi sinulle kanoja.",                             // 15
    " antoi sinulle lampaan.",                            // 16
    " antoi sinulle sikojaan.",                           // 17
    " antoi sinulle kettujaan.",                          // 18
};

}  // namespace tanhua
