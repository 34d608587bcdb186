// Every picture the game's own tables name is in the built program folder, found as the game finds it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/sää.h"
#include "core/state.h"
#include "core/taulut/taustat.h"
#include "storage/tiedostot.h"

namespace tanhua {
namespace {

TEST(ProgramFolder, EveryPictureOfTheTablesIsThere) {
    std::vector<std::string> nimet;
    for (const TuoteRivi& r : TUOTETAULU) nimet.push_back("\\kuvat\\tuotteet\\" + std::string(r.kuva));
    for (const LajiRivi& r : LAJITAULU) {
        nimet.push_back("\\Kuvat\\Eläimet\\" + std::string(r.kuvaNaaras));
        nimet.push_back("\\Kuvat\\Eläimet\\" + std::string(r.kuvaUros));
    }
    for (const RakennusRivi& r : RAKENNUSTAULU) nimet.push_back("\\Kuvat\\Rakennukset\\" + std::string(r.kuva));
    for (const TilaRivi& r : TILATAULU) nimet.push_back("\\Kuvat\\Rakennukset\\" + std::string(r.kuva));
    for (const MaaRivi& r : MAATAULU) nimet.push_back("\\kuvat\\maat\\" + std::string(r.kuva));
    for (const SääRivi& r : SÄÄKUVAT) nimet.push_back("\\kuvat\\sää\\" + std::string(r.tiedosto));
    for (const char* tausta : TAUSTAKUVAT) nimet.push_back("\\Kuvat\\" + std::string(tausta));
    for (const char* vuodenaika : {"Talvi", "Kevät", "Kesä", "Syksy"}) nimet.push_back("\\Kuvat\\" + std::string(vuodenaika) + ".jpg");
    for (const char* muu : {"\\Kuvat\\Sattumat\\Pako.jpg", "\\kuvat\\nappi.jpg", "\\kuvat\\nappi2.jpg",
                            "\\kuvat\\peltosumu.jpg", "\\kuvat\\peltosumu2.jpg", "\\Kuvat\\Kirja.jpg",
                            "\\Kuvat\\sattumat\\joulu.jpg", "\\Kuvat\\sattumat\\tuomari.jpg", "\\Kuvat\\Tähti.gif",
                            "\\Kuvat\\Tähti2.gif", "\\kuvat\\Kohdistin.gif", "\\kuvat\\rahakyltti.jpg",
                            "\\Kuvat\\mökki.jpg", "\\Kuvat\\Tuotteet.jpg", "\\kuvat\\talikko.ico"})
        nimet.push_back(muu);
    for (const char* ääni : {"klik1", "klik2", "klik3", "siirto", "virhe", "Koputus", "Kärpänen", "Sairas", "Kolina", "Tuli"})
        nimet.push_back("\\Äänet\\" + std::string(ääni) + ".wav");
    for (const char* data : {"\\Data\\Asetukset.dat", "\\Data\\Savetus.dat"}) nimet.push_back(data);
    int puuttuu = 0;
    for (const std::string& nimi : nimet) {
        if (!EtsiTiedosto(TANHUA_PROGRAM_DIR, nimi)) {
            ADD_FAILURE() << "missing " << nimi;
            ++puuttuu;
        }
    }
    EXPECT_EQ(puuttuu, 0);
    EXPECT_GT(nimet.size(), 100u);
}

TEST(ProgramFolder, NamesAreFoundWhateverTheirCase) {
    for (const char* nimi : {"kuvat/SATTUMAT/pako.JPG", "\\KUVAT\\eläimet\\lehmä.gif", "äänet\\KLIK1.WAV"})
        EXPECT_TRUE(EtsiTiedosto(TANHUA_PROGRAM_DIR, nimi).has_value()) << nimi;
    EXPECT_FALSE(EtsiTiedosto(TANHUA_PROGRAM_DIR, "Kuvat/ei-ole.jpg").has_value());
}

}  // namespace
}  // namespace tanhua
