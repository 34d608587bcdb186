// The seal of a save: the checksum's hexadecimal text mixed with the program's key.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace tanhua {

inline constexpr std::string_view SINETTI_AVAIN = "KQTV27";

// Each character of the text XOR a character of the key: the first text character meets the
// key's second, and the key's first comes up at the key's length. The result may hold any
// control character, a line feed or a NUL too.
std::string Sinetti(std::string_view teksti, std::string_view avain);

// The checksum as upper-case hexadecimal: no leading zeros, 8 digits when negative.
std::string HeksaTeksti(std::int32_t arvo);

// The seal of a save file as it stands on disk (CRC-32 of its bytes, an absent file as empty).
std::string TiedostonSinetti(const std::filesystem::path& sav);

}  // namespace tanhua
