// The checksum tables are built once, when an algorithm is first used.
#include "crc.h"

#include <array>

#include "tiedostot.h"

namespace tanhua {

namespace {

const std::array<std::uint32_t, 256>& Taulu32() {
    static const std::array<std::uint32_t, 256> taulu = [] {
        std::array<std::uint32_t, 256> t{};
        for (std::uint32_t i = 0; i < 256; ++i) {
            std::uint32_t c = i;
            for (int b = 0; b < 8; ++b) c = (c & 1u) ? (c >> 1) ^ 0xEDB88320u : c >> 1;
            t[i] = c;
        }
        return t;
    }();
    return taulu;
}

const std::array<std::uint16_t, 256>& Taulu16() {
    static const std::array<std::uint16_t, 256> taulu = [] {
        std::array<std::uint16_t, 256> t{};
        for (std::uint32_t i = 0; i < 256; ++i) {
            std::uint32_t c = i << 8;
            for (int b = 0; b < 8; ++b) c = (c & 0x8000u) ? (c << 1) ^ 0x1021u : c << 1;
            t[i] = static_cast<std::uint16_t>(c & 0xFFFFu);
        }
        return t;
    }();
    return taulu;
}

}  // namespace

void clsCRC::Algorithm(int algoritmi) {
    algoritmi_ = algoritmi == CRC16 ? CRC16 : CRC32;
    Clear();
}

void clsCRC::Clear() { rekisteri_ = algoritmi_ == CRC32 ? 0xFFFFFFFFu : 0u; }

std::int32_t clsCRC::AddBytes(std::string_view tavut) {
    if (algoritmi_ == CRC32) {
        const auto& t = Taulu32();
        for (unsigned char b : tavut) rekisteri_ = (rekisteri_ >> 8) ^ t[(rekisteri_ ^ b) & 0xFFu];
    } else {
        const auto& t = Taulu16();
        for (unsigned char b : tavut)
            rekisteri_ = (t[((rekisteri_ >> 8) ^ b) & 0xFFu] ^ ((rekisteri_ & 0xFFu) << 8)) & 0xFFFFu;
    }
    return Value();
}

std::int32_t clsCRC::CalculateBytes(std::string_view tavut) {
    Clear();
    return AddBytes(tavut);
}

std::int32_t clsCRC::CalculateFile(const std::filesystem::path& polku) {
    Clear();
    const auto sisältö = LueTiedosto(polku);
    if (!sisältö || sisältö->empty()) return 0;
    return AddBytes(*sisältö);
}

std::int32_t clsCRC::Value() const {
    if (algoritmi_ == CRC32) return static_cast<std::int32_t>(~rekisteri_);
    return static_cast<std::int32_t>(rekisteri_ & 0xFFFFu);
}

void clsCRC::Value(std::int32_t arvo) {
    if (algoritmi_ == CRC32) rekisteri_ = ~static_cast<std::uint32_t>(arvo);
    else rekisteri_ = static_cast<std::uint32_t>(arvo) & 0xFFFFu;
}

}  // namespace tanhua
