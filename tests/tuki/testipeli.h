// A game for tests: recording channels, a data folder of its own, and helpers to start a farm.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "core/peli.h"
#include "sim/tallentava.h"

namespace tanhua {

// The recorded events of a case, as the channels wrote them.
using Tapahtumat = std::vector<std::string>;

}  // namespace tanhua

namespace tanhua::testi {

// A fresh, empty folder under the system's temporary folder, removed with the object.
class Väliaikainen {
public:
    Väliaikainen();
    ~Väliaikainen();
    const std::filesystem::path& polku() const { return polku_; }

private:
    std::filesystem::path polku_;
};

struct Testipeli {
    Testipeli();
    // Starts a farm as the start screen does.
    void Aloita(const std::string& nimi = "Testi", int taso = 1, int tavoite = 0, bool tähdet = true);
    // The recorded events since the last call, emptied; the click that follows an answered box
    // is left out.
    std::vector<std::string> Tapahtumat();
    // Writes a file into the data folder.
    void KirjoitaData(const std::string& nimi, const std::string& sisältö);

    Väliaikainen kansio;
    TallentavatKanavat kanavat;
    Peli peli;
    Muuttujat& m;
};

// A farm just started at the given difficulty, Normaali unless told.
struct Aloitettu : Testipeli {
    explicit Aloitettu(int taso = 1) { Aloita("Testi", taso); }
};

}  // namespace tanhua::testi
