// Feeds the runner's script reader with arbitrary lines. A bad line may only end in the
// std::runtime_error that names its fault; anything else (another exception, a sanitizer's
// report, a crash) is a fault of the runner or the game.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <string>
#include <unistd.h>

#include "sim/skripti.h"

namespace {

namespace fs = std::filesystem;

// The farm's data folder of this process, made afresh for each input.
const fs::path& Datakansio() {
    static const fs::path kansio = fs::temp_directory_path() / ("tanhua-fuzz-skripti-" + std::to_string(getpid()));
    return kansio;
}

// Whole months of days make an input slow without reaching anything new: a `days` line is held
// to two months, and an input to a few dozen lines.
constexpr long long ENINTÄÄN_PÄIVIÄ = 62;
constexpr int ENINTÄÄN_RIVEJÄ = 64;

bool LiianPitkä(const std::string& rivi) {
    std::vector<std::string> sanat;
    if (!tanhua::Sanat(rivi, sanat) || sanat.size() < 2 || sanat[0] != "days") return false;
    try {
        return std::stoll(sanat[1]) > ENINTÄÄN_PÄIVIÄ;
    } catch (const std::exception&) {
        return false;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::error_code virhe;
    fs::remove_all(Datakansio(), virhe);
    tanhua::Ajuri ajuri(tanhua::Kansiot{TANHUA_PROGRAM_DIR, Datakansio()});
    std::istringstream skripti(std::string(reinterpret_cast<const char*>(data), size));
    std::ostringstream ulos;
    std::string rivi;
    for (int n = 0; n < ENINTÄÄN_RIVEJÄ && std::getline(skripti, rivi); ++n) {
        if (LiianPitkä(rivi)) continue;
        try {
            ajuri.Rivi(rivi, ulos);
        } catch (const std::runtime_error&) {
            // A malformed line: the runner would stop here with status 1.
        }
    }
    return 0;
}
