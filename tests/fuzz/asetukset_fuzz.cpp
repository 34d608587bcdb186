// Feeds the start screen's two small files, Asetukset.dat and Savetus.dat, with arbitrary bytes.
// A line that doesn't convert goes to the failure reporter; nothing may escape it.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

#include "core/peli.h"
#include "sim/tallentava.h"
#include "storage/asetukset.h"

namespace {

namespace fs = std::filesystem;

const fs::path& Datakansio() {
    static const fs::path kansio = [] {
        fs::path k = fs::temp_directory_path() / ("tanhua-fuzz-asetukset-" + std::to_string(getpid()));
        fs::create_directories(k);
        return k;
    }();
    return kansio;
}

void Kirjoita(const char* nimi, const std::uint8_t* data, std::size_t size) {
    std::ofstream(Datakansio() / nimi, std::ios::binary).write(reinterpret_cast<const char*>(data),
                                                               static_cast<std::streamsize>(size));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Kirjoita("Asetukset.dat", data, size);
    Kirjoita("Savetus.dat", data, size);
    tanhua::TallentavatKanavat kanavat;
    tanhua::Peli peli(kanavat, tanhua::Kansiot{TANHUA_PROGRAM_DIR, Datakansio()});
    tanhua::LueAsetukset(peli);
    tanhua::LueSavetus(peli);
    return 0;
}
