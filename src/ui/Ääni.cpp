// Wave sounds and songs through SDL2_mixer.
#include "Ääni.h"

// own
#include "core/laskenta.h"
#include "storage/tiedostot.h"
// Qt
#include <QCoreApplication>
#include <QMetaObject>
// SDL
#include <SDL.h>
#include <SDL_mixer.h>

namespace tanhua::ui {

ÄäniSoitin::~ÄäniSoitin() {
    SuljeMidi();
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

namespace {
// The player whose songs' ends the mixer reports; the mixer has one music channel.
ÄäniSoitin* midiSoitin = nullptr;

[[noreturn]] void MikserinVika(int numero) { throw Vika(numero, Mix_GetError()); }
}  // namespace

void ÄäniSoitin::AvaaMidi() {
    if (!Laite()) throw Vika(VIKA_ARVO, "Äänilaitetta ei saatu avattua: " + std::string(SDL_GetError()));
    if ((Mix_Init(MIX_INIT_MID) & MIX_INIT_MID) == 0) MikserinVika(VIKA_ARVO);
    midiSoitin = this;
    Mix_HookMusicFinished(&ÄäniSoitin::LoppuKoukku);
}

void ÄäniSoitin::LoppuKoukku() {
    // On the mixer's thread, or inside a halt: only a song that played out and wasn't replaced is told.
    ÄäniSoitin* s = midiSoitin;
    if (!s || !s->soi_.exchange(false)) return;
    const unsigned sukupolvi = s->sukupolvi_.load();
    QMetaObject::invokeMethod(qApp, [s, sukupolvi] {
        if (midiSoitin == s && s->sukupolvi_.load() == sukupolvi && s->KappaleLoppui) s->KappaleLoppui();
    }, Qt::QueuedConnection);
}

void ÄäniSoitin::SoitaMidi(const std::string& tiedosto) {
    PysäytäMidi();
    Mix_Music* uusi = Mix_LoadMUS(tiedosto.c_str());
    if (!uusi) MikserinVika(VIKA_EI_TIEDOSTOA);
    if (kappale_) Mix_FreeMusic(kappale_);
    kappale_ = uusi;
    ++sukupolvi_;
    soi_ = true;
    if (Mix_PlayMusic(kappale_, 0) != 0) {
        soi_ = false;
        MikserinVika(VIKA_ARVO);
    }
}

void ÄäniSoitin::PysäytäMidi() {
    // A stop is no song's end: the hook the halt calls finds nothing playing.
    soi_ = false;
    ++sukupolvi_;
    if (tila_ == 1) Mix_HaltMusic();
}

void ÄäniSoitin::SuljeMidi() {
    PysäytäMidi();
    if (kappale_) Mix_FreeMusic(kappale_);
    kappale_ = nullptr;
    if (midiSoitin == this) {
        Mix_HookMusicFinished(nullptr);
        midiSoitin = nullptr;
    }
}

}  // namespace tanhua::ui
