// Wave sounds of the folder Äänet, played through SDL2_mixer without blocking the window.
#pragma once

// std
#include <atomic>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>

struct Mix_Chunk;
typedef struct _Mix_Music Mix_Music;
class QSocketNotifier;

namespace tanhua::ui {

class ÄäniSoitin {
public:
    explicit ÄäniSoitin(std::filesystem::path ohjelmakansio);
    ~ÄäniSoitin();
    ÄäniSoitin(const ÄäniSoitin&) = delete;
    ÄäniSoitin& operator=(const ÄäniSoitin&) = delete;

    // Whether an output device opens; asked once, then remembered.
    bool Laite();
    // Plays Äänet/<nimi>.wav on a free channel and returns at once; a file that isn't found
    // plays nothing and says nothing.
    void Soita(const std::string& nimi);

    // The songs: MIDI through the mixer's synthesiser and a General MIDI soundfont (SDL_SOUNDFONTS
    // names another). AvaaMidi throws a Vika when the device or the synthesiser can't be had.
    void AvaaMidi();
    // Plays a song once from its start; throws a Vika when it can't be loaded.
    void SoitaMidi(const std::string& tiedosto);
    void PysäytäMidi();
    void SuljeMidi();
    // Called on the window's thread when a song has played to its end (never after a stop), from
    // the window's event loop, which the mixer's thread wakes through a pipe.
    std::function<void()> KappaleLoppui;

private:
    static void LoppuKoukku();
    // On the window's thread: the ends the mixer wrote into the pipe, each told if still current.
    void LueLoput();
    std::filesystem::path kansio_;
    Mix_Music* kappale_ = nullptr;
    // Counts the songs started; the end of one is told only if no other has started since.
    std::atomic<unsigned> sukupolvi_{0};
    std::atomic<bool> soi_{false};
    int tila_ = -1;  // -1 not asked, 0 no device, 1 open
    // The mixer's thread tells a song's end by writing its count into this pipe: a write neither
    // allocates nor waits, and the window's event loop wakes on the read end.
    int putki_[2] = {-1, -1};
    std::unique_ptr<QSocketNotifier> ilmoittaja_;
    std::map<std::string, Mix_Chunk*> äänet_;
};

}  // namespace tanhua::ui
