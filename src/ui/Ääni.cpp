// Wave sounds through SDL2_mixer.
#include "Ääni.h"

// own
#include "storage/tiedostot.h"
// SDL
#include <SDL.h>
#include <SDL_mixer.h>

namespace tanhua::ui {

ÄäniSoitin::~ÄäniSoitin() {
    for (auto& [nimi, ääni] : äänet_)
        if (ääni) Mix_FreeChunk(ääni);
    if (tila_ == 1) {
        Mix_CloseAudio();
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    }
}

bool ÄäniSoitin::Laite() {
    if (tila_ < 0) {
        tila_ = 0;
        if (SDL_InitSubSystem(SDL_INIT_AUDIO) == 0) {
            if (Mix_OpenAudio(22050, MIX_DEFAULT_FORMAT, 2, 1024) == 0) {
                Mix_AllocateChannels(16);
                tila_ = 1;
            } else {
                SDL_QuitSubSystem(SDL_INIT_AUDIO);
            }
        }
    }
    return tila_ == 1;
}

void ÄäniSoitin::Soita(const std::string& nimi) {
    if (!Laite()) return;
    auto it = äänet_.find(nimi);
    if (it == äänet_.end()) {
        Mix_Chunk* ääni = nullptr;
        if (const auto tiedosto = EtsiTiedosto(kansio_, "Äänet/" + nimi + ".wav"))
            ääni = Mix_LoadWAV(tiedosto->string().c_str());
        it = äänet_.emplace(nimi, ääni).first;
    }
    if (it->second) Mix_PlayChannel(-1, it->second, 0);
}

}  // namespace tanhua::ui
