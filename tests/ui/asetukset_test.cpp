// The settings tool: what it writes the game reads, a bad argument changes nothing, and its window.
#include <gtest/gtest.h>

#include <QTest>

#include <cstdio>
#include <fstream>
#include <string>

#include "storage/asetukset.h"
#include "storage/tiedostot.h"
#include "tuki/testipeli.h"
#include "ui/Asetukset.h"

namespace tanhua::ui {
namespace {

namespace fs = std::filesystem;

struct Tuloste {
    int tila;
    std::string teksti;
};

Tuloste Aja(const std::string& komento) {
    Tuloste t{0, ""};
    FILE* putki = popen((komento + " 2>/dev/null").c_str(), "r");
    char puskuri[512];
    while (std::fgets(puskuri, sizeof puskuri, putki)) t.teksti += puskuri;
    t.tila = WEXITSTATUS(pclose(putki));
    return t;
}

TEST(SettingsTool, WhatItWritesTheGameReadsBack) {
    tanhua::testi::Väliaikainen kansio;
    const std::string data = " --data-dir " + (kansio.polku() / "Data").string();
    const std::string lista = Aja(TANHUA_ASETUKSET_EXE + data + " --list").teksti;
    for (std::size_t i = 0; i < ASETUSRIVIT.size(); ++i) {
        // A value other than the one the installation ships.
        const std::string nimi(ASETUSRIVIT[i].nimi);
        const bool päällä = lista.find(nimi + "=True\n") != std::string::npos;
        const std::string arvo = ASETUSRIVIT[i].totuus ? (päällä ? "False" : "True") : "37";
        ASSERT_EQ(Aja(TANHUA_ASETUKSET_EXE + data + " " + nimi + "=" + arvo).tila, 0) << nimi;
        const std::string dump = Aja("echo dump | " + std::string(TANHUA_SIM_EXE) + data).teksti;
        EXPECT_NE(dump.find("\n" + nimi + "=" + arvo + "\n"), std::string::npos) << nimi << "=" << arvo;
    }
}

TEST(SettingsTool, ABadArgumentIsRefusedAndTheFileStaysByteForByte) {
    tanhua::testi::Väliaikainen kansio;
    const std::string data = " --data-dir " + (kansio.polku() / "Data").string();
    ASSERT_EQ(Aja(TANHUA_ASETUKSET_EXE + data + " --list").tila, 0);
    const auto ennen = LueTiedosto(kansio.polku() / "Data" / "Asetukset.dat");
    ASSERT_TRUE(ennen);
    for (const char* väärä : {"Musiikki=Joo", "AnimNopeus=101", "Musiikit=True", "Musiikki=False AnimNopeus=x",
                             "--data-dir"}) {
        EXPECT_EQ(Aja(TANHUA_ASETUKSET_EXE + data + " " + väärä).tila, 2) << väärä;
        EXPECT_EQ(LueTiedosto(kansio.polku() / "Data" / "Asetukset.dat"), ennen) << väärä;
    }
}

struct Työkalu {
    Työkalu() : kansiot{TANHUA_PROGRAM_DIR, kansio.polku() / "Data"}, peli(kanavat, kansiot) { AlustaDatakansio(kansiot); }
    std::string Rivi(std::size_t n) const {
        const auto rivit = Rivit(*LueTiedosto(kansiot.data / "Asetukset.dat"));
        return rivit.at(n - 1);
    }
    tanhua::testi::Väliaikainen kansio;
    Kansiot kansiot;
    TallentavatKanavat kanavat;
    Peli peli;
};

TEST(SettingsTool, TheWindowSavesOnTallennaAndNothingOnPeruuta) {
    Työkalu t;
    {
        AsetusIkkuna w(t.peli);
        w.show();
        w.Valinta(4)->setChecked(false);  // Musiikki
        w.Valinta(1)->setChecked(false);  // Animaatiot: the speed greys out
        EXPECT_FALSE(w.Nopeus()->isEnabled());
        QTest::mouseClick(w.Oletukset(), Qt::LeftButton);  // the shipped values back
        EXPECT_TRUE(w.Valinta(4)->isChecked());
        EXPECT_TRUE(w.Nopeus()->isEnabled());
        w.Valinta(4)->setChecked(false);
        QTest::mouseClick(w.Peruuta(), Qt::LeftButton);
    }
    EXPECT_EQ(t.Rivi(5), "True") << "Peruuta writes nothing";
    {
        AsetusIkkuna w(t.peli);
        w.show();
        w.Valinta(4)->setChecked(false);
        QTest::keyClick(&w, Qt::Key_Return);  // Enter is Tallenna
        EXPECT_FALSE(w.isVisible());
    }
    EXPECT_EQ(t.Rivi(5), "False");
}

TEST(SettingsTool, ABrokenFileIsShownWithItsNoteAndRepairedBySaving) {
    Työkalu t;
    std::ofstream(t.kansiot.data / "Asetukset.dat", std::ios::binary) << "False\r\nehkä\r\n";
    AsetusIkkuna w(t.peli);
    w.show();
    EXPECT_TRUE(w.Huomautus()->isVisible());
    EXPECT_EQ(S(w.Huomautus()->text()),
              "Asetukset.dat: rivit 2, 3, 4, 5, 6, 7, 8, 9 eivät kelvanneet pelille; niiden tilalla ovat asennuksen "
              "arvot.");
    QTest::mouseClick(w.Tallenna(), Qt::LeftButton);
    Asetukset luettu;
    EXPECT_TRUE(JäsennäAsetukset(*LueTiedosto(t.kansiot.data / "Asetukset.dat"), Asetukset{}, luettu).empty());
    EXPECT_EQ(t.Rivi(2), "True") << "the shipped value stands for the bad line";
}

}  // namespace
}  // namespace tanhua::ui
