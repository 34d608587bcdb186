// A game for tests with recording channels and a temporary data folder.
#include "testipeli.h"

#include <atomic>
#include <fstream>
#include <unistd.h>

#include "core/alku.h"

namespace tanhua::testi {

namespace fs = std::filesystem;

Väliaikainen::Väliaikainen() {
    static std::atomic<int> laskuri{0};
    polku_ = fs::temp_directory_path() /
             ("tanhua-testi-" + std::to_string(::getpid()) + "-" + std::to_string(laskuri++));
    fs::remove_all(polku_);
    fs::create_directories(polku_);
}

Väliaikainen::~Väliaikainen() {
    std::error_code virhe;
    fs::remove_all(polku_, virhe);
}

Testipeli::Testipeli() : peli(kanavat, Kansiot{kansio.polku() / "ohjelma", kansio.polku() / "Data"}), m(peli.m) {
    fs::create_directories(peli.kansiot.data);
}

void Testipeli::Aloita(const std::string& nimi, int taso, int tavoite, bool tähdet) {
    peli.alku.Nimesi = nimi;
    peli.alku.VTaso = taso;
    peli.alku.Lista = tavoite;
    peli.alku.TP_Valinta = tähdet;
    AloitaUusi(peli);
    kanavat.tapahtumat.clear();
}

std::vector<std::string> Testipeli::Tapahtumat() {
    std::vector<std::string> t;
    t.swap(kanavat.tapahtumat);
    return t;
}

void Testipeli::KirjoitaData(const std::string& nimi, const std::string& sisältö) {
    std::ofstream(peli.kansiot.data / nimi, std::ios::binary) << sisältö;
}

}  // namespace tanhua::testi
