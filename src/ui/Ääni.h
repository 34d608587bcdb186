// Wave sounds of the folder Äänet, played through SDL2_mixer without blocking the window.
#pragma once

// std
#include <filesystem>
#include <map>
#include <string>

struct Mix_Chunk;

namespace tanhua::ui {

class ÄäniSoitin {
public:
    explicit ÄäniSoitin(std::filesystem::path ohjelmakansio) : kansio_(std::move(ohjelmakansio)) {}
    ~ÄäniSoitin();
    ÄäniSoitin(const ÄäniSoitin&) = delete;
    ÄäniSoitin& operator=(const ÄäniSoitin&) = delete;

    // Whether an output device opens; asked once, then remembered.
    bool Laite();
    // Plays Äänet/<nimi>.wav on a free channel and returns at once; a file that isn't found
    // plays nothing and says nothing.
    void Soita(const std::string& nimi);

private:
    std::filesystem::path kansio_;
    int tila_ = -1;  // -1 not asked, 0 no device, 1 open
    std::map<std::string, Mix_Chunk*> äänet_;
};

}  // namespace tanhua::ui
