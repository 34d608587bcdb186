// The checksum a save's seal is made from: CRC-32 (IEEE 802.3, reflected) or CRC-16 (0x1021).
#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

namespace tanhua {

class clsCRC {
public:
    static constexpr int CRC16 = 0;
    static constexpr int CRC32 = 1;

    // 0 for CRC-16, 1 for CRC-32 (the default); a change of algorithm clears the register.
    int Algorithm() const { return algoritmi_; }
    void Algorithm(int algoritmi);

    // Sets the register to its start: all ones for CRC-32, zero for CRC-16.
    void Clear();
    // Adds bytes to the register and returns the value so far.
    std::int32_t AddBytes(std::string_view tavut);
    std::int32_t AddString(std::string_view teksti) { return AddBytes(teksti); }
    // Clears, adds and returns the value.
    std::int32_t CalculateBytes(std::string_view tavut);
    std::int32_t CalculateString(std::string_view teksti) { return CalculateBytes(teksti); }
    // The whole file read as bytes; a missing or empty file gives 0.
    std::int32_t CalculateFile(const std::filesystem::path& polku);

    // CRC-32: the register inverted, as a signed 32-bit number; CRC-16: its low 16 bits.
    std::int32_t Value() const;
    // Sets the value as Value gives it back.
    void Value(std::int32_t arvo);

private:
    int algoritmi_ = CRC32;
    std::uint32_t rekisteri_ = 0xFFFFFFFFu;
};

}  // namespace tanhua
