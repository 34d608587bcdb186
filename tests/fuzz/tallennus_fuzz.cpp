// Feeds the save reader arbitrary bytes: once as a .sav behind a seal that matches it, so every
// line reaches the readers of the fields, and once as the .fxf of a fixed save, so the seal check
// meets any bytes. Short files, letters, numbers past their width and huge list counts end in the
// failure reporter or the refusal; nothing may escape, hang or allocate without bound.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

#include "core/peli.h"
#include "sim/tallentava.h"
#include "storage/sinetti.h"
#include "storage/tallennus.h"

namespace {

namespace fs = std::filesystem;

const fs::path& Datakansio() {
    static const fs::path kansio = [] {
        fs::path k = fs::temp_directory_path() / ("tanhua-fuzz-tallennus-" + std::to_string(getpid()));
        fs::create_directories(k);
        return k;
    }();
    return kansio;
}

void Kirjoita(const char* nimi, const std::string& sisältö) {
    std::ofstream(Datakansio() / nimi, std::ios::binary).write(sisältö.data(),
                                                               static_cast<std::streamsize>(sisältö.size()));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string tavut(reinterpret_cast<const char*>(data), size);
    tanhua::TallentavatKanavat kanavat;
    tanhua::Peli peli(kanavat, tanhua::Kansiot{TANHUA_PROGRAM_DIR, Datakansio()});

    Kirjoita("Sumea.sav", tavut);
    Kirjoita("Sumea.fxf", tanhua::TiedostonSinetti(Datakansio() / "Sumea.sav") + "\r\n");
    tanhua::AvaaTilanne(peli, "Sumea");

    Kirjoita("Sinetti.sav", "!2/6!\r\n");
    Kirjoita("Sinetti.fxf", tavut);
    tanhua::AvaaTilanne(peli, "Sinetti");
    return 0;
}
