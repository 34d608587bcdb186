// Every picture and sound the game's own tables name is in the built program folder, found as the game finds it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/päivä.h"
#include "core/sää.h"
#include "core/state.h"
#include "core/taulut/taustat.h"
#include "events/taulut/kuvat.h"
#include "storage/tiedostot.h"

namespace tanhua {
namespace {

TEST(ProgramFolder, EveryPictureAndSoundOfTheTablesIsThere) {
    std::vector<std::string> nimet;
    for (const TuoteRivi& r : TUOTETAULU) nimet.push_back("\\kuvat\\tuotteet\\" + std::string(r.kuva));
    for (const LajiRivi& r : LAJITAULU)
        for (std::string_view kuva : {r.kuvaNaaras, r.kuvaUros}) nimet.push_back("\\Kuvat\\Eläimet\\" + std::string(kuva));
    for (const RakennusRivi& r : RAKENNUSTAULU) nimet.push_back("\\Kuvat\\Rakennukset\\" + std::string(r.kuva));
    for (const TilaRivi& r : TILATAULU) nimet.push_back("\\Kuvat\\Rakennukset\\" + std::string(r.kuva));
    for (const MaaRivi& r : MAATAULU) nimet.push_back("\\kuvat\\maat\\" + std::string(r.kuva));
    for (const SääRivi& r : SÄÄKUVAT) nimet.push_back("\\kuvat\\sää\\" + std::string(r.tiedosto));
    for (const char* tausta : TAUSTAKUVAT) nimet.push_back("\\Kuvat\\" + std::string(tausta));
    for (const char* vuodenaika : {"Talvi", "Kevät", "Kesä", "Syksy"}) nimet.push_back(VuodenajanTausta(vuodenaika));
    for (std::string_view kuva : sattumakuva::KAIKKI) nimet.push_back("\\Kuvat\\sattumat\\" + std::string(kuva));
    for (std::string_view ääni : sattumaääni::KAIKKI) nimet.push_back("\\Äänet\\" + std::string(ääni) + ".wav");
    for (const std::string& nimi : nimet) EXPECT_TRUE(EtsiTiedosto(TANHUA_PROGRAM_DIR, nimi).has_value()) << nimi;
    // Names are found whatever their case, and a missing one isn't.
    EXPECT_TRUE(EtsiTiedosto(TANHUA_PROGRAM_DIR, "kuvat/SATTUMAT/pako.JPG").has_value());
    EXPECT_FALSE(EtsiTiedosto(TANHUA_PROGRAM_DIR, "Kuvat/ei-ole.jpg").has_value());
}

}  // namespace
}  // namespace tanhua
