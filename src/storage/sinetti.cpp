#include "sinetti.h"

#include "crc.h"

namespace tanhua {

std::string Sinetti(std::string_view teksti, std::string_view avain) {
    std::string tulos(teksti);
    if (avain.empty()) return tulos;
    for (std::size_t i = 1; i <= teksti.size(); ++i)
        tulos[i - 1] = static_cast<char>(static_cast<unsigned char>(teksti[i - 1]) ^
                                         static_cast<unsigned char>(avain[i % avain.size()]));
    return tulos;
}

std::string HeksaTeksti(std::int32_t arvo) {
    static constexpr char NUMEROT[] = "0123456789ABCDEF";
    std::uint32_t u = static_cast<std::uint32_t>(arvo);
    std::string t;
    do {
        t.insert(t.begin(), NUMEROT[u & 0xFu]);
        u >>= 4;
    } while (u != 0);
    return t;
}

std::string TiedostonSinetti(const std::filesystem::path& sav) {
    clsCRC crc;
    crc.Algorithm(clsCRC::CRC32);
    return Sinetti(HeksaTeksti(crc.CalculateFile(sav)), SINETTI_AVAIN);
}

}  // namespace tanhua
