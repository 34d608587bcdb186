// The music player across threads: a thousand songs started and stopped, their ends reported on the
// mixer's thread and told on the window's thread. Built under ThreadSanitizer where it runs.

// own
#include "pieni_fontti.h"
#include "ui/Ääni.h"
// Qt
#include <QCoreApplication>
// SDL
#include <SDL_mixer.h>
// std
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>
// POSIX
#include <unistd.h>
// GoogleTest
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

constexpr int SOITTOJA = 1000;

// A folder of the test's own under the system's temporary folder, removed with the object.
struct Kansio {
    fs::path polku = fs::temp_directory_path() / ("tanhua-saikeet-" + std::to_string(::getpid()));
    Kansio() { fs::create_directories(polku); }
    ~Kansio() {
        std::error_code virhe;
        fs::remove_all(polku, virhe);
    }
};

std::vector<std::string> Kappaleet() {
    std::vector<std::string> kappaleet;
    for (const auto& e : fs::directory_iterator(fs::path(TANHUA_PROGRAM_DIR) / "Midi"))
        if (e.path().extension() == ".mid") kappaleet.push_back(e.path().string());
    std::sort(kappaleet.begin(), kappaleet.end());
    return kappaleet;
}

// The window's thread lets the posted notices through until `valmis` holds or the time is up.
template <class Ehto>
bool Odota(Ehto valmis, std::chrono::milliseconds aika) {
    const auto raja = std::chrono::steady_clock::now() + aika;
    while (!valmis()) {
        if (std::chrono::steady_clock::now() > raja) return false;
        QCoreApplication::processEvents();
        std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
    return true;
}

// How a song leaves the mixer in one round.
enum class Loppu {
    Pysäytys,           // the player's stop: the mixer calls the end hook inside the halt, on this thread
    LoppuunSoitto,      // the song ends on the mixer's thread: told once, on this thread
    LoppuJaPysäytys,    // a stop races the mixer's end: never told
    LoppuJaUusiKappale  // the next song starts while the last one ends: the old end is never told
};
constexpr Loppu LOPUT[] = {Loppu::Pysäytys, Loppu::LoppuunSoitto, Loppu::LoppuJaPysäytys, Loppu::LoppuJaUusiKappale};

}  // namespace

TEST(MusicThreads, AThousandSongsStartAndStopAndEachEndIsToldOnce) {
    // The disk driver into /dev/null needs no sound card and, with one millisecond between its
    // buffers, runs the mixer's thread far faster than the songs' own time, so ends come at once.
    const Kansio kansio;
    const fs::path fontti = kansio.polku / "pieni.sf2";
    tanhua::testi::KirjoitaPieniFontti(fontti);
    setenv("SDL_AUDIODRIVER", "disk", 1);
    setenv("SDL_DISKAUDIOFILE", "/dev/null", 1);
    setenv("SDL_DISKAUDIODELAY", "1", 1);
    setenv("SDL_SOUNDFONTS", fontti.c_str(), 1);
    setenv("SDL_FORCE_SOUNDFONTS", "1", 1);  // the distribution's own default would come first

    int argc = 1;
    char nimi[] = "tanhua_thread_tests";
    char* argv[] = {nimi, nullptr};
    QCoreApplication sovellus(argc, argv);

    const std::vector<std::string> kappaleet = Kappaleet();
    ASSERT_GE(kappaleet.size(), 2u) << "the program folder's Midi holds the songs";

    tanhua::ui::ÄäniSoitin soitin(TANHUA_PROGRAM_DIR);
    ASSERT_NO_THROW(soitin.AvaaMidi());
    int kerrottu = 0;  // touched only on this thread: a notice told on the mixer's would be a race
    soitin.KappaleLoppui = [&] { ++kerrottu; };

    int soitettu = 0, alkoi = 0, loppuunSoitettu = 0;
    const auto soita = [&] {
        soitin.SoitaMidi(kappaleet[static_cast<std::size_t>(soitettu) % kappaleet.size()]);
        ++soitettu;
        if (Mix_PlayingMusic()) ++alkoi;
    };
    // A song brought to its end by the mixer itself: a fade of a millisecond ends it in the next
    // buffer, and the mixer reports it as a song that played out.
    const auto loppu = [] { return Mix_FadeOutMusic(1) == 1; };

    for (int kierros = 0; soitettu < SOITTOJA; ++kierros) {
        const Loppu tapa = LOPUT[kierros % std::size(LOPUT)];
        const int ennen = kerrottu;
        soita();
        switch (tapa) {
            case Loppu::Pysäytys:
                soitin.PysäytäMidi();
                break;
            case Loppu::LoppuunSoitto:
                ASSERT_TRUE(loppu());
                ASSERT_TRUE(Odota([&] { return kerrottu > ennen; }, std::chrono::seconds(5)))
                    << "round " << kierros << ": the end never reached the window's thread";
                ++loppuunSoitettu;
                break;
            case Loppu::LoppuJaPysäytys:
                ASSERT_TRUE(loppu());
                // Waits of 0 to 0.9 ms around the mixer's millisecond between buffers, so the stop
                // lands before, during and after the mixer's end in turn.
                std::this_thread::sleep_for(std::chrono::microseconds(kierros % 7 * 150));
                soitin.PysäytäMidi();
                break;
            case Loppu::LoppuJaUusiKappale:
                ASSERT_TRUE(loppu());
                std::this_thread::sleep_for(std::chrono::microseconds(kierros % 7 * 150));
                soita();
                soitin.PysäytäMidi();
                break;
        }
        // Whatever the mixer wrote is in the pipe by now (its end hook runs under the lock the stop
        // takes); letting it through shows whether it was told.
        QCoreApplication::processEvents();
        const int odotettu = ennen + (tapa == Loppu::LoppuunSoitto ? 1 : 0);
        ASSERT_EQ(kerrottu, odotettu) << "round " << kierros;
        ASSERT_FALSE(Mix_PlayingMusic()) << "round " << kierros;
    }
    // Nothing left in the pipe tells a late end.
    Odota([] { return false; }, std::chrono::milliseconds(50));

    EXPECT_EQ(alkoi, soitettu) << "every song started";
    EXPECT_GE(soitettu, SOITTOJA);
    EXPECT_EQ(kerrottu, loppuunSoitettu);
    EXPECT_GE(loppuunSoitettu, SOITTOJA / 5);
    soitin.SuljeMidi();
}
