// The staff screen's two gauges: the words of motivation and of stress by their figure.
#pragma once

#include <array>
#include <limits>
#include <string_view>

namespace tanhua {

// A band of a gauge: the smallest figure it takes, and its word.
struct MittarinTaso {
    int alkaen;
    std::string_view sana;
};

// Motivation by m, the rounded fifteenth of the seventeen motivations; highest band first.
inline constexpr std::array MOTIVAATIOTASOT{
    MittarinTaso{5, "Todella hyvä"},
    MittarinTaso{2, "Hyvä"},
    MittarinTaso{-2, "Normaali"},
    MittarinTaso{-5, "Huono"},
    MittarinTaso{std::numeric_limits<int>::min(), "Surkea!"},
};

// Stress by the number of jobs without overtime; highest band first.
inline constexpr std::array STRESSITASOT{
    MittarinTaso{13, "Rento meininki"},
    MittarinTaso{9, "Ei stressiä"},
    MittarinTaso{6, "Lievä stressi"},
    MittarinTaso{std::numeric_limits<int>::min(), "Burnout!"},
};

}  // namespace tanhua
