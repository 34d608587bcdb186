// tanhua-asetukset: the installation's nine settings, changed in a small window or on the command
// line. The game itself only reads Asetukset.dat; this is the outside tool that writes it.
// own
#include "Asetukset.h"
#include "storage/asetukset.h"
#include "storage/tiedostot.h"
// Qt
#include <QApplication>
// std
#include <cstdio>
#include <iostream>
#include <string>
#include <vector>

namespace {

// The tool plays no farm: nothing is asked or told through the game's channels.
class Hiljaiset : public tanhua::Kanavat {
public:
    std::string Kysy(const std::string&, int tyyli) override { return tyyli == 1 ? tanhua::EI : tanhua::VASTATTU; }
    void Kerro(const std::string&, const std::string&) override {}
    void ListaRivi(const std::string&) override {}
    void Raportti(const tanhua::RaporttiSivu&) override {}
    void Loppu() override {}
    void Laatikko(const std::string&) override {}
    std::string Kehote(const std::string&, const std::string& oletus) override { return oletus; }
    void Ääni(const std::string&) override {}
    bool Vikalaatikko(const std::string&, int, const std::string&) override { return true; }
};

void Käyttö(std::FILE* ulos) {
    std::fprintf(ulos,
                 "usage: tanhua-asetukset [--data-dir DIR] [--program-dir DIR] [--list | NAME=VALUE ...]\n"
                 "Changes the nine settings of Tanhua's Asetukset.dat, which the game reads when its start\n"
                 "screen loads. Without arguments a window opens.\n"
                 "  --list        prints the settings as NAME=VALUE lines in the file's order, as the game\n"
                 "                would read them; a note on a line the game would refuse goes to stderr\n"
                 "  NAME=VALUE    sets those settings and writes the file, without a window. A Boolean is\n"
                 "                True or False, AnimNopeus a whole number from 0 to 100. A bad name or\n"
                 "                value is told, the status is 2 and the file stays as it was.\n"
                 "Names: Resoluutio800 Animaatiot AnimNopeus Kursorit Musiikki BiisiSatunnainen\n"
                 "       Autotallennus Äänitehosteet Prosessorisäästö\n");
}

int Listaa(const tanhua::Asetustila& tila) {
    for (std::size_t i = 0; i < tanhua::ASETUSRIVIT.size(); ++i)
        std::cout << tanhua::ASETUSRIVIT[i].nimi << '=' << tanhua::AsetusTekstinä(tila.arvot, i) << '\n';
    if (!tila.huomautus.empty()) std::cerr << tila.huomautus << '\n';
    return 0;
}

int AsetaKomennolla(const tanhua::Kansiot& kansiot, tanhua::Asetustila tila, const std::vector<std::string>& muutokset) {
    // Every change is checked before the file is touched.
    for (const std::string& m : muutokset) {
        const auto yhtä = m.find('=');
        const std::string nimi = m.substr(0, yhtä);
        const std::size_t rivi = tanhua::AsetusNimellä(nimi);
        if (yhtä == std::string::npos || rivi == tanhua::ASETUSRIVIT.size()) {
            std::cerr << "tanhua-asetukset: '" << nimi << "' is not one of the nine settings\n";
            return 2;
        }
        const std::string syy = tanhua::AsetaAsetus(tila.arvot, rivi, m.substr(yhtä + 1));
        if (!syy.empty()) {
            std::cerr << "tanhua-asetukset: " << syy << '\n';
            return 2;
        }
    }
    if (!tanhua::KirjoitaAsetukset(kansiot, tila.arvot)) {
        std::cerr << "tanhua-asetukset: cannot write Asetukset.dat in " << kansiot.data << '\n';
        return 1;
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    tanhua::Kansiot kansiot{tanhua::Ohjelmakansio(TANHUA_PROGRAM_DIR), tanhua::OletusDatakansio()};
    bool lista = false;
    std::vector<std::string> muutokset;
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        if (a == "--data-dir" || a == "--program-dir") {
            if (i + 1 >= argc || argv[i + 1][0] == '\0') {
                std::fprintf(stderr, "tanhua-asetukset: %s needs a folder\n", a.c_str());
                return 2;
            }
            (a == "--data-dir" ? kansiot.data : kansiot.ohjelma) = argv[++i];
        } else if (a == "-h" || a == "--help") {
            Käyttö(stdout);
            return 0;
        } else if (a == "--list") {
            lista = true;
        } else if (a.find('=') != std::string::npos && a[0] != '-') {
            muutokset.push_back(a);
        } else {
            std::fprintf(stderr, "tanhua-asetukset: unknown argument '%s'\n", a.c_str());
            Käyttö(stderr);
            return 2;
        }
    }
    // The data folder is found, made and seeded as the game does it.
    tanhua::AlustaDatakansio(kansiot);
    const tanhua::Asetustila tila = tanhua::LueAsetustila(kansiot);
    if (lista) return Listaa(tila);
    if (!muutokset.empty()) return AsetaKomennolla(kansiot, tila, muutokset);

    QApplication sovellus(argc, argv);
    QApplication::setApplicationName("Tanhuan asetukset");
    tanhua::ui::SuomennaTyökalut();
    Hiljaiset kanavat;
    tanhua::Peli peli(kanavat, kansiot);
    tanhua::ui::AsetusIkkuna ikkuna(peli);
    ikkuna.show();
    return QApplication::exec();
}
