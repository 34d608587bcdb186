// The channels through which the game asks and tells the player: one small interface.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tanhua {

// Answers of the Message box.
inline constexpr const char* KYLLÄ = "Kyllä";
inline constexpr const char* EI = "Ei";
inline constexpr const char* VASTATTU = "vastattu";  // the answer of "Sulje"

inline constexpr std::uint32_t RGB(int r, int g, int b) {
    return static_cast<std::uint32_t>(r) | (static_cast<std::uint32_t>(g) << 8) |
           (static_cast<std::uint32_t>(b) << 16);
}
inline constexpr std::uint32_t MUSTA = RGB(0, 0, 0);
inline constexpr std::uint32_t PUNAINEN = RGB(180, 0, 0);

// One printed line of a report page: its colour, its tab column and its text.
struct RaporttiRivi {
    std::uint32_t väri = MUSTA;
    int sarake = 5;
    std::string teksti;
};

struct RaporttiSivu {
    std::string otsikko;  // the title bar
    int fonttikoko = 12;
    std::vector<RaporttiRivi> rivit;
};

class Kanavat {
public:
    virtual ~Kanavat() = default;

    // The Message box: style 0 has "Sulje", style 1 "Kyllä" and "Ei". Waits for the answer
    // and returns "Kyllä", "Ei" or "vastattu".
    virtual std::string Kysy(const std::string& teksti, int tyyli) = 0;
    // The news window: a picture (a path under the program folder, empty for the blank one) and a text.
    virtual void Kerro(const std::string& kuva, const std::string& teksti) = 0;
    // The waiting form of the contract notices: returns once the player has closed the news window.
    virtual void OdotaIkkunaa() {}
    // A line of the event list.
    virtual void ListaRivi(const std::string& rivi) = 0;
    // A report page, printed whole.
    virtual void Raportti(const RaporttiSivu& sivu) = 0;
    // A printed area of a screen (statistics table, race sheet, score report, life story): its name
    // as the title and its lines, printed whole as a report page is. The window's screens draw their
    // areas themselves; the runner tells them.
    virtual void Alue(const RaporttiSivu& /*alue*/) {}
    // The game ends the program (the quit, the retirement): the window closes.
    virtual void Loppu() = 0;
    // The plain system box with one OK button.
    virtual void Laatikko(const std::string& teksti) = 0;
    // A text prompt; returns what the player typed, or the default.
    virtual std::string Kehote(const std::string& kysymys, const std::string& oletus) = 0;
    // A text prompt with a title of its own; empty when the player cancels it.
    virtual std::string KehoteOtsikolla(const std::string& kysymys, const std::string& /*otsikko*/,
                                        const std::string& oletus) {
        return Kehote(kysymys, oletus);
    }
    // Plays a wave sound by its file name without extension (klik2, virhe, Koputus, ...).
    virtual void Ääni(const std::string& nimi) = 0;
    // Whether a wave output device is there at all.
    virtual bool ÄäniLaite() { return true; }
    // The music player: opens it (a failure is thrown as a Vika with its number and text), plays a
    // song file once in the background (throws when it can't), stops the song, closes the player.
    // A song's end comes back as DirectXEvent8_DXCallback on the game's own thread.
    virtual void MidiAlusta() {}
    virtual void MidiSoita(const std::string& /*tiedosto*/) {}
    virtual void MidiPysäytä() {}
    virtual void MidiLopeta() {}
    // The failure box "VikaTila" with Yes and No; true is Yes (go on).
    virtual bool Vikalaatikko(const std::string& paikka, int numero, const std::string& teksti) = 0;
    // The month end's snapshot of the screen, kept for the statistics screen.
    virtual void Kuvakaappaus() {}
    // Progress of the loading panel: its text and the bar's units.
    virtual void Lataus(const std::string& /*texti*/, int /*palkki*/) {}
};

}  // namespace tanhua
