// The work-order indices of the three stores, shared by the building tests.
#pragma once

#include <cstddef>

#include "buildings/taulut/rakennuskatalogi.h"

namespace tanhua {

inline constexpr std::size_t NAVETTA = Työmaa(Navetta);
inline constexpr std::size_t SIILO = Työmaa(Siilo);
inline constexpr std::size_t VARASTO = Työmaa(Varasto);

}  // namespace tanhua
