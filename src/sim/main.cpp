// tanhua-sim: runs a script of commands against the game, headless.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "skripti.h"
#include "storage/tiedostot.h"

namespace {
void Käyttö() {
    std::cerr << "usage: tanhua-sim [--data-dir DIR] [--program-dir DIR] [SCRIPT]\n"
                 "Runs SCRIPT, or standard input, one command a line. See docs/tanhua-sim.md.\n";
}
}  // namespace

int main(int argc, char** argv) {
    tanhua::Kansiot kansiot{tanhua::Ohjelmakansio(TANHUA_PROGRAM_DIR), tanhua::OletusDatakansio()};
    std::string skripti;
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        if (a == "--data-dir" || a == "--program-dir") {
            if (i + 1 >= argc || argv[i + 1][0] == '\0') {
                std::cerr << "tanhua-sim: " << a << " needs a folder\n";
                Käyttö();
                return 2;
            }
            (a == "--data-dir" ? kansiot.data : kansiot.ohjelma) = argv[++i];
        } else if (a == "-h" || a == "--help") {
            Käyttö();
            return 0;
        } else if (!a.empty() && a[0] == '-' && a != "-") {
            std::cerr << "tanhua-sim: unknown option '" << a << "'\n";
            Käyttö();
            return 2;
        } else if (skripti.empty()) {
            skripti = a;
        } else {
            Käyttö();
            return 2;
        }
    }
    tanhua::Ajuri ajuri(kansiot);
    if (skripti.empty() || skripti == "-") return ajuri.Aja(std::cin, std::cout, std::cerr);
    if (std::filesystem::is_directory(skripti)) {
        std::cerr << "tanhua-sim: '" << skripti << "' is a folder, not a script\n";
        return 2;
    }
    std::ifstream tiedosto(skripti);
    if (!tiedosto) {
        std::cerr << "tanhua-sim: cannot open script '" << skripti << "'\n";
        return 2;
    }
    return ajuri.Aja(tiedosto, std::cout, std::cerr);
}
