// The look's rules that a window plays out: the fold of a screen and the music player's choices.
#include <gtest/gtest.h>

#include <fstream>

#include "core/musiikki.h"
#include "core/taitto.h"
#include "tuki/testipeli.h"

namespace tanhua {
namespace {

struct TaittoTapaus { bool pienennys; Lomake lomake; int H, s; bool säästö; std::vector<TaitonKierros> kierrokset;
    int nukkuMs, tapahtumia; };

TEST(Fold, RoundsAndPausesFollowTheSpeedAndTheForm) {
    const TaittoTapaus tapaukset[] = {
        // 600 units at speed 50 close by 100 a round; the round that leaves less than 100 is the last.
        {true, Lomake::Alaruutu, 600, 50, false, {{500, 50}, {400, 100}, {300, 150}, {200, 200}, {100, 250}, {0, 300}}, 0, 51},
        // Opening goes on until the height has passed H, so it overshoots once; the top starts at H \ 2.
        {false, Lomake::Alaruutu, 300, 50, false, {{100, 100}, {200, 50}, {300, 0}, {400, -50}}, 0, 51},
        // A form lower than one round folds in one round and shows no negative height.
        {true, Lomake::Alaruutu, 80, 50, true, {{0, 50}}, 6, 0},
        // An odd speed halves with a cut: 55 \ 2 + 25 = 52.
        {true, Lomake::Pääruutu, 250, 55, false, {{145, 52}, {40, 104}}, 0, 46},
        {false, Lomake::Pääruutu, 100, 0, true, {{50, 25}, {100, 0}, {150, -25}}, 11, 0},
        {true, Lomake::Pääruutu, 100, 100, true, {{0, 75}}, 1, 0},
    };
    for (const TaittoTapaus& t : tapaukset) {
        testi::Testipeli p;
        p.peli.asetukset.Animaatiot = true;
        p.peli.asetukset.AnimNopeus = static_cast<Integer>(t.s);
        p.peli.asetukset.Prosessorisäästö = t.säästö;
        const Taitto taitto = t.pienennys ? KuvanPienennys(p.peli, t.H, 0, t.lomake) : KuvanSuurennus(p.peli, t.H, 0, t.lomake);
        ASSERT_EQ(taitto.kierrokset.size(), t.kierrokset.size()) << t.H << " " << t.s;
        for (std::size_t i = 0; i < t.kierrokset.size(); ++i) {
            EXPECT_EQ(taitto.kierrokset[i].korkeus, t.kierrokset[i].korkeus) << t.H << " round " << i;
            EXPECT_EQ(taitto.kierrokset[i].yläreuna, t.kierrokset[i].yläreuna) << t.H << " round " << i;
        }
        EXPECT_EQ(taitto.nukkuMs, t.nukkuMs) << t.H << " " << t.s;
        EXPECT_EQ(taitto.tapahtumakierroksia, t.tapahtumia) << t.H << " " << t.s;
        p.peli.asetukset.Animaatiot = false;
        EXPECT_TRUE(KuvanPienennys(p.peli, t.H, 0, t.lomake).kierrokset.empty());
        EXPECT_TRUE(KuvanSuurennus(p.peli, t.H, 0, t.lomake).kierrokset.empty());
    }
}

// Channels whose player can't be started.
struct MykätKanavat : TallentavatKanavat {
    void MidiAlusta() override { throw Vika(VIKA_ARVO, "Ei syntetisaattoria"); }
};

class Music : public ::testing::Test {
protected:
    // A program folder with songs: two MIDI files (one in upper case) and a file that isn't one.
    void Kappaleet(std::initializer_list<const char*> nimet) {
        const auto kansio = p.peli.kansiot.ohjelma / "Midi";
        std::filesystem::create_directories(kansio);
        for (const char* nimi : nimet) std::ofstream(kansio / nimi) << "MThd";
        KäynnistäSoitin(p.peli);
        p.Tapahtumat();
    }
    testi::Testipeli p;
};

TEST_F(Music, TheNextSongByRandomNeverTakesTheFirstRowAndByOrderWraps) {
    Kappaleet({"b.mid", "a.MID", "c.mid", "lueminut.txt"});
    ASSERT_EQ(p.peli.soitin.MidiFile, (std::vector<std::string>{"a.MID", "b.mid", "c.mid"}));
    struct {
        bool satunnainen;
        int rivi;
        std::vector<double> arvonnat;
        int seuraava;
    } const tapaukset[] = {
        {true, 1, {0.1, 0.2, 0.9}, 2},  // U(0..2) gives 0 twice, then 2
        {true, 2, {0.5}, 1},            // the same song may come again, or another
        {false, 1, {}, 2},
        {false, 2, {}, 0},              // after the last row the first
    };
    for (const auto& t : tapaukset) {
        p.peli.asetukset.BiisiSatunnainen = t.satunnainen;
        p.peli.soitin.ListIndex = t.rivi;
        for (double r : t.arvonnat) p.peli.arvonta.Jonoon(r);
        DirectXEvent8_DXCallback(p.peli, 1);
        EXPECT_EQ(std::tuple(p.peli.soitin.ListIndex, p.peli.arvonta.JonossaJäljellä()), std::tuple(t.seuraava, 0u));
        const std::string kappale = p.peli.soitin.MidiFile[static_cast<std::size_t>(t.seuraava)];
        EXPECT_EQ(p.Tapahtumat(), (std::vector<std::string>{"MIDI|soita|" + kappale}));
    }
    // Only the end of a song moves the music on.
    DirectXEvent8_DXCallback(p.peli, 2);
    EXPECT_EQ(p.peli.soitin.ListIndex, 0);
    EXPECT_TRUE(p.Tapahtumat().empty());
}

TEST_F(Music, OneSongOrNoneIsPickedWithoutADraw) {
    Kappaleet({"yksi.mid"});
    p.peli.asetukset.Musiikki = true;
    p.peli.arvonta.Jonoon(0.0);
    AloitaMusiikki(p.peli);
    EXPECT_EQ(std::tuple(p.peli.soitin.ListIndex, p.peli.arvonta.JonossaJäljellä(), p.Tapahtumat()),
              std::tuple(0, 1u, (std::vector<std::string>{"MIDI|soita|yksi.mid"})));
}

TEST_F(Music, ThePanelSlidesOnlyWithAnimations) {
    p.peli.asetukset.Animaatiot = true;
    const std::vector<int> ulos = AvaaSoitin(p.peli, 600);
    ASSERT_EQ(ulos.size(), 401u);
    EXPECT_EQ(std::tuple(ulos.front(), ulos.back()), std::tuple(-200, 200));
    EXPECT_TRUE(AvaaSoitin(p.peli, 600).empty()) << "a panel that is out doesn't move";
    const std::vector<int> piiloon = PiilotaSoitin(p.peli, 200);
    EXPECT_EQ(std::tuple(piiloon.back(), piiloon.size()), std::tuple(-101, 301u));
    EXPECT_FALSE(p.peli.soitin.Näkyvissä);
    p.peli.asetukset.Animaatiot = false;
    EXPECT_EQ(AvaaSoitin(p.peli, 600), std::vector<int>{200});
    EXPECT_TRUE(PiilotaSoitin(p.peli, 200).empty());
}

TEST(MusicPlayer, APlayerThatCantStartShowsBothBoxesAndEveryButtonTellsIt) {
    MykätKanavat kanavat;
    testi::Väliaikainen kansio;
    Peli peli(kanavat, Kansiot{kansio.polku(), kansio.polku()});
    KäynnistäSoitin(peli);
    EXPECT_FALSE(peli.soitin.MidiValmis);
    ASSERT_EQ(kanavat.tapahtumat.size(), 2u);
    EXPECT_EQ(kanavat.tapahtumat[0].rfind("LAATIKKO|Tanhua suoritti vikatilan Midien initializoimisessa.\\nVian numero :  380. "
                                          "Vika selite : Ei syntetisaattoria\\n", 0), 0u) << kanavat.tapahtumat[0];
    EXPECT_EQ(kanavat.tapahtumat[1].rfind("LAATIKKO|Tanhua suoritti vikatilan DirectX 8:n latauksessa.\\nVian numero :  380.", 0), 0u);
    EXPECT_EQ(peli.m.VikaPaikka, "Ladattaessa DirectX 8:aa ja midejä.");
    EXPECT_EQ(peli.m.VikaLaskuri, 0) << "the player's boxes never count as the game's failures";
    kanavat.tapahtumat.clear();
    SoitinArvo(peli);
    SoitinStop(peli);
    EXPECT_EQ(kanavat.tapahtumat, (std::vector<std::string>{
                                      "LAATIKKO|Midejä ei saatu alustettua. Midit eivät ehkä tule toimimaan oikein."}));
}

}  // namespace
}  // namespace tanhua
