// A soundfont of one short square-wave sample, written for the music player's thread test.
//
// The synthesiser loads its soundfont again with every song, and the General MIDI font of the
// distribution takes tens of milliseconds to read (several times that under ThreadSanitizer); a
// thousand songs through it would make a test of minutes. This font holds one instrument under
// every program and as the drum kit, so every channel of a song has something to play and the
// synthesiser prints no warning.
#pragma once

// std
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

namespace tanhua::testi {

namespace fontti {

// Little-endian fields as the RIFF format stores them.
class Tavut {
public:
    Tavut& u8(std::uint8_t v) {
        b_.push_back(static_cast<char>(v));
        return *this;
    }
    Tavut& u16(std::uint16_t v) { return u8(v & 0xFF).u8(v >> 8); }
    Tavut& u32(std::uint32_t v) { return u16(v & 0xFFFF).u16(v >> 16); }
    // A name field of a fixed width, padded with zero bytes.
    Tavut& nimi(const std::string& n, std::size_t leveys) {
        std::string s = n;
        s.resize(leveys, '\0');
        b_ += s;
        return *this;
    }
    const std::string& str() const { return b_; }

private:
    std::string b_;
};

// A chunk: its four-letter id, its size and its data padded to an even length.
inline std::string Pala(const char* id, const std::string& data) {
    Tavut t;
    t.nimi(id, 4).u32(static_cast<std::uint32_t>(data.size()));
    std::string s = t.str() + data;
    if (data.size() % 2) s.push_back('\0');
    return s;
}

inline std::string Lista(const char* id, const char* tyyppi, const std::string& sisältö) {
    return Pala(id, std::string(tyyppi, 4) + sisältö);
}

// The generator numbers of the format that the font uses.
constexpr std::uint16_t GEN_INSTRUMENTTI = 41, GEN_NÄYTE = 53, GEN_NÄYTETILA = 54;

}  // namespace fontti

// Writes the font to `polku`.
inline void KirjoitaPieniFontti(const std::filesystem::path& polku) {
    using namespace fontti;
    constexpr std::uint32_t NÄYTTEITÄ = 256;  // frames of the wave, looped while a note is held
    // The 128 programs of the melody bank and the drum kit of bank 128, all the one instrument.
    constexpr std::uint16_t OHJELMIA = 128, ESIASETUKSIA = OHJELMIA + 1;

    Tavut ifil;
    ifil.u16(2).u16(1);  // format version 2.01
    const std::string info =
        Pala("ifil", ifil.str()) + Pala("isng", std::string("EMU8000", 8)) + Pala("INAM", std::string("Testi", 6));

    Tavut smpl;
    for (std::uint32_t i = 0; i < NÄYTTEITÄ; ++i) smpl.u16(static_cast<std::uint16_t>(i % 32 < 16 ? 8000 : -8000));
    for (int i = 0; i < 46; ++i) smpl.u16(0);  // the format asks for 46 silent frames after a sample

    // Presets: each has one zone naming instrument 0; the list ends with its terminal record.
    Tavut phdr, pbag, pgen;
    for (std::uint16_t p = 0; p <= ESIASETUKSIA; ++p) {
        const bool loppu = p == ESIASETUKSIA;
        const bool rummut = p == OHJELMIA;
        phdr.nimi(loppu ? "EOP" : "Testi", 20).u16(rummut || loppu ? 0 : p).u16(rummut ? 128 : 0).u16(p);
        phdr.u32(0).u32(0).u32(0);
        pbag.u16(p).u16(0);
        if (!loppu) pgen.u16(GEN_INSTRUMENTTI).u16(0);
    }
    pgen.u16(0).u16(0);
    Tavut ei_modulaattoreita;
    ei_modulaattoreita.u16(0).u16(0).u16(0).u16(0).u16(0);

    // The instrument: one zone, the sample looped.
    Tavut inst, ibag, igen;
    inst.nimi("Testi", 20).u16(0).nimi("EOI", 20).u16(1);
    ibag.u16(0).u16(0).u16(2).u16(0);
    igen.u16(GEN_NÄYTETILA).u16(1).u16(GEN_NÄYTE).u16(0).u16(0).u16(0);

    Tavut shdr;
    shdr.nimi("Testi", 20).u32(0).u32(NÄYTTEITÄ).u32(8).u32(NÄYTTEITÄ - 8).u32(22050).u8(60).u8(0).u16(0).u16(1);
    shdr.nimi("EOS", 20).u32(0).u32(0).u32(0).u32(0).u32(0).u8(0).u8(0).u16(0).u16(0);

    const std::string pdta =
        Pala("phdr", phdr.str()) + Pala("pbag", pbag.str()) + Pala("pmod", ei_modulaattoreita.str()) +
        Pala("pgen", pgen.str()) + Pala("inst", inst.str()) + Pala("ibag", ibag.str()) +
        Pala("imod", ei_modulaattoreita.str()) + Pala("igen", igen.str()) + Pala("shdr", shdr.str());
    const std::string riff = Lista(
        "RIFF", "sfbk",
        Lista("LIST", "INFO", info) + Lista("LIST", "sdta", Pala("smpl", smpl.str())) + Lista("LIST", "pdta", pdta));
    std::ofstream(polku, std::ios::binary) << riff;
}

}  // namespace tanhua::testi
