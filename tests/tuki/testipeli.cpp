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
    // The click of the box's answer belongs to the box, not to the rule under test: it is left out
    // here and heard in the runner's transcripts.
    std::vector<std::string> t;
    for (std::size_t i = 0; i < kanavat.tapahtumat.size(); ++i) {
        const std::string& e = kanavat.tapahtumat[i];
        const bool vastauksenKlik = i > 0 && e.rfind("ÄÄNI|klik", 0) == 0 &&
                                    kanavat.tapahtumat[i - 1].rfind("VIESTI|", 0) == 0;
        if (!vastauksenKlik) t.push_back(e);
    }
    kanavat.tapahtumat.clear();
    return t;
}

void Testipeli::KirjoitaData(const std::string& nimi, const std::string& sisältö) {
    std::ofstream(peli.kansiot.data / nimi, std::ios::binary) << sisältö;
}

}  // namespace tanhua::testi
