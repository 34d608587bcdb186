// Feeds one top-ten list file arbitrary bytes and plays the end of a career on it: the list shown,
// the result placed with a name that holds a tab, the list written back. Rows of letters, huge
// numbers and short files end in the list's own failure box; nothing may escape, hang or allocate
// without bound. The game mode, and so the file, is chosen when the target is built.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>

#include "core/peli.h"
#include "sim/tallentava.h"
#include "storage/topten.h"

namespace {

namespace fs = std::filesystem;

const fs::path& Datakansio() {
    static const fs::path kansio = [] {
        fs::path k = fs::temp_directory_path() / ("tanhua-fuzz-topten-" + std::to_string(getpid()));
        fs::create_directories(k);
        return k;
    }();
    return kansio;
}

const tanhua::ToptenLista& Lista() {
    for (const tanhua::ToptenLista& l : tanhua::TOPTEN_LISTAT)
        if (l.moodi == TANHUA_FUZZ_MOODI) return l;
    return tanhua::TOPTEN_LISTAT[0];
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string tavut(reinterpret_cast<const char*>(data), size);
    const fs::path tiedosto = Datakansio() / std::string(Lista().tiedosto);
    std::ofstream(tiedosto, std::ios::binary).write(tavut.data(), static_cast<std::streamsize>(tavut.size()));

    tanhua::TallentavatKanavat kanavat;
    kanavat.vastaukset = {"Nimi\tjossa sarkain"};
    tanhua::Peli peli(kanavat, tanhua::Kansiot{TANHUA_PROGRAM_DIR, Datakansio()});
    peli.m.PeliMoodi = TANHUA_FUZZ_MOODI;
    peli.m.Vuosi = 1984;
    peli.m.Kuukausi = 3;
    peli.m.Päivä = 12;
    peli.tilanneruutu.Pisteet = 55;
    tanhua::NäytäListat(peli);
    tanhua::LaskeListat(peli);
    peli.tilanneruutu.Päättynyt = true;
    tanhua::SuljeTopten(peli);
    // Whatever the file held, what was written back is twenty whole lines: no name breaks it.
    std::ifstream luku(tiedosto, std::ios::binary);
    const std::string kirjoitettu((std::istreambuf_iterator<char>(luku)), std::istreambuf_iterator<char>());
    if (tanhua::ListanRivit(kirjoitettu).size() != 20) std::abort();
    return 0;
}
