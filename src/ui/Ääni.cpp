// Wave sounds and songs through SDL2_mixer.
#include "Ääni.h"

// own
#include "core/laskenta.h"
#include "storage/tiedostot.h"
// Qt
#include <QSocketNotifier>
// SDL
#include <SDL.h>
#include <SDL_mixer.h>
// POSIX
#include <fcntl.h>
#include <unistd.h>

namespace tanhua::ui {

ÄäniSoitin::ÄäniSoitin(std::filesystem::path ohjelmakansio) : kansio_(std::move(ohjelmakansio)) {}

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
// The player whose songs' ends the mixer reports; the mixer has one music channel. Read on the
// mixer's thread, so it is atomic: a second player may open while a song of the first is ending.
std::atomic<ÄäniSoitin*> midiSoitin{nullptr};

[[noreturn]] void MikserinVika(int numero) { throw Vika(numero, Mix_GetError()); }
}  // namespace

void ÄäniSoitin::AvaaMidi() {
    if (!Laite()) throw Vika(VIKA_ARVO, "Äänilaitetta ei saatu avattua: " + std::string(SDL_GetError()));
    if ((Mix_Init(MIX_INIT_MID) & MIX_INIT_MID) == 0) MikserinVika(VIKA_ARVO);
    if (putki_[0] < 0) {
        if (pipe2(putki_, O_NONBLOCK | O_CLOEXEC) != 0)
            throw Vika(VIKA_ARVO, "Kappaleiden loppujen putkea ei saatu auki");
        ilmoittaja_ = std::make_unique<QSocketNotifier>(putki_[0], QSocketNotifier::Read);
        QObject::connect(ilmoittaja_.get(), &QSocketNotifier::activated, [this] { LueLoput(); });
    }
    // The pipe stands before the hook does: the mixer's lock, taken to set the hook, orders the two.
    midiSoitin = this;
    Mix_HookMusicFinished(&ÄäniSoitin::LoppuKoukku);
}

void ÄäniSoitin::LoppuKoukku() {
    // On the mixer's thread, or inside a halt: only a song that played out and wasn't replaced is told.
    // The count is read before the playing flag is taken. A stop on the window's thread clears the
    // flag first and counts after, so a flag still set means the count read is older than any stop
    // racing this end: the notice then arrives with a stale count and is dropped.
    ÄäniSoitin* s = midiSoitin;
    if (!s) return;
    const unsigned sukupolvi = s->sukupolvi_.load();
    if (!s->soi_.exchange(false)) return;
    // A pipe holds thousands of counts; one that didn't fit would only lose a notice, never block.
    [[maybe_unused]] const ssize_t kirjoitettu = write(s->putki_[1], &sukupolvi, sizeof sukupolvi);
}

void ÄäniSoitin::LueLoput() {
    unsigned sukupolvi = 0;
    while (read(putki_[0], &sukupolvi, sizeof sukupolvi) == static_cast<ssize_t>(sizeof sukupolvi)) {
        // A song started or stopped since the end was written makes it stale. Telling it may start
        // the next song, which makes any later count in the pipe stale too.
        if (sukupolvi == sukupolvi_.load() && KappaleLoppui) KappaleLoppui();
    }
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
    if (midiSoitin.load() == this) {
        Mix_HookMusicFinished(nullptr);
        midiSoitin = nullptr;
    }
    // No end can be written now: the hook is gone, and setting it waited for a running one.
    ilmoittaja_.reset();
    for (int& pää : putki_) {
        if (pää >= 0) close(pää);
        pää = -1;
    }
}

}  // namespace tanhua::ui
