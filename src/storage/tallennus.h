// Saving and opening a farm by name.
#pragma once

#include <string>

namespace tanhua {

struct Peli;

// Writes the farm as the situation of the given name.
void TallennaTilanne(Peli& peli, const std::string& nimi);
// Opens the situation of the given name into the farm record, under its own failure handler.
void AvaaTilanne(Peli& peli, const std::string& nimi);

}  // namespace tanhua
