// The window driven as a player drives it: the start screen, the main screen, the two trade screens,
// the Message box's keys, the month's report, the way back from every screen.
#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <sstream>

#include "core/kentät.h"
#include "core/viestit.h"
#include "ikkuna.h"
#include "sim/skripti.h"
#include "ui/Eläimet.h"
#include "ui/Pankki.h"
#include "ui/Tuotteet.h"

namespace tanhua::ui {
namespace {

using testi::Ikkuna;

TEST(Window, StartsANewFarmFromTheStartScreenAndRefusesAnEmptyName) {
    Ikkuna i;
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->alku());
    EXPECT_FALSE(i.w->alku()->Command2()->isEnabled()) << "no farm saved yet";
    i.VastaaNäppäimellä(Qt::Key_K);
    QTest::mouseClick(i.w->alku()->Command1(), Qt::LeftButton);
    EXPECT_EQ(i.peli.näkymä.MsgTeksti, "Et voi aloittaa uutta tilannetta, ennenkuin kirjoitat nimesi.");
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->alku());
    QTest::mouseClick(i.w->alku()->Command3(), Qt::LeftButton);  // Vaikea
    EXPECT_EQ(i.w->alku()->VTaso()->text(), "Vaikea");
    QTest::mouseClick(i.w->alku()->Command3(), Qt::LeftButton);  // stays at the end
    EXPECT_EQ(i.w->alku()->VTaso()->text(), "Vaikea");
    i.Aloita("Matti");
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua());
    EXPECT_EQ(i.peli.m.PelaajanNimi, "Matti");
    EXPECT_EQ(i.w->tanhua()->Rahaz()->text(), "8000");
    EXPECT_TRUE(i.w->tanhua()->Command4()->hasFocus()) << "the next-day button holds the focus";
}

TEST(Window, TheMessageBoxAnswersToKAndEInBothStyles) {
    struct Tapaus { int tyyli; Qt::Key näppäin; const char* vastaus; };
    for (const Tapaus& c : {Tapaus{1, Qt::Key_K, "Kyllä"}, {1, Qt::Key_E, "Ei"}, {0, Qt::Key_K, "Kyllä"},
                            {0, Qt::Key_E, "Ei"}}) {
        Ikkuna i;
        i.VastaaNäppäimellä(c.näppäin);
        EXPECT_EQ(i.w->message()->Kysy("Kysymys?", c.tyyli), c.vastaus);
        EXPECT_FALSE(i.w->message()->isVisible());
    }
    Ikkuna i;
    QTimer::singleShot(0, [&] {
        EXPECT_FALSE(i.w->message()->kyllä()->isVisible());
        QTest::mouseClick(i.w->message()->sulje(), Qt::LeftButton);
    });
    EXPECT_EQ(i.w->message()->Kysy("Ilmoitus", 0), "vastattu");
}

TEST(Window, EnterOnTheNextDayButtonRunsADay) {
    Ikkuna i;
    i.Aloita();
    QTest::keyClick(i.w->tanhua()->Command4(), Qt::Key_Return);
    QTest::keyClick(i.w->tanhua()->Command4(), Qt::Key_Enter);
    EXPECT_EQ(i.peli.m.Päivä, 3);
}

TEST(Window, BuysAndSellsOnTheAnimalScreen) {
    Ikkuna i;
    i.Aloita();
    Aseta(i.peli.m.Koko_Navetta, 15);
    QTest::mouseClick(i.w->tanhua()->Command1(), Qt::LeftButton);
    ASSERT_EQ(i.w->pino()->currentWidget(), i.w->eläimet());
    EXPECT_TRUE(i.w->rahaKyltti()->isVisible());
    Eläimet* e = i.w->eläimet();
    QTest::mouseClick(e->Kuva(6), Qt::LeftButton);  // Kana
    EXPECT_TRUE(e->akkuna()->isVisible());
    QTest::mouseClick(e->Plus(), Qt::LeftButton);
    EXPECT_EQ(e->määrä()->text(), "10");
    QTest::mouseClick(e->Osta(), Qt::LeftButton);
    EXPECT_EQ(i.peli.m.El[Kana][Naaras], 10);
    EXPECT_EQ(i.peli.m.Raha, 5000);
    EXPECT_EQ(e->Laskuri(6)->text(), " 10");
    EXPECT_EQ(i.w->rahaKyltti()->Rahatilaz()->text(), " 5000") << "the plate shows Str of the cash";
    QTest::mouseClick(e->Miinus(), Qt::LeftButton);
    QTest::mouseClick(e->Myy(), Qt::LeftButton);
    EXPECT_EQ(i.peli.m.El[Kana][Naaras], 9);
    EXPECT_EQ(i.peli.m.Raha, 5300);
    // A refusal: a second lot of ten doesn't fit in the barn of fifteen.
    QTest::mouseClick(e->Plus(), Qt::LeftButton);
    i.VastaaNäppäimellä(Qt::Key_K);
    QTest::mouseClick(e->Osta(), Qt::LeftButton);
    EXPECT_EQ(i.peli.näkymä.MsgTeksti, "Sinulla ei ole tilaa navetassasi.");
    EXPECT_EQ(i.peli.m.El[Kana][Naaras], 9);
    QTest::mouseClick(e->Takaisin(), Qt::LeftButton);
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua());
    EXPECT_FALSE(i.w->rahaKyltti()->isVisible());
}

TEST(Window, SellsAndBuysFeedOnTheProductScreen) {
    Ikkuna i;
    i.Aloita();
    Aseta(i.peli.m.Var[Maito], 20);
    QTest::mouseClick(i.w->tanhua()->Command3(), Qt::LeftButton);
    ASSERT_EQ(i.w->pino()->currentWidget(), i.w->tuotteet());
    Tuotteet* t = i.w->tuotteet();
    QTest::mouseClick(t->Kuva(Maito), Qt::LeftButton);
    EXPECT_TRUE(t->akkuna()->isVisible());
    EXPECT_FALSE(t->Command3()->isEnabled()) << "only feed can be bought";
    const float raha = i.peli.m.Raha;
    QTest::mouseClick(t->Command2(), Qt::LeftButton);
    EXPECT_EQ(i.peli.m.Var[Maito], 0);
    EXPECT_GT(i.peli.m.Raha, raha);
    EXPECT_EQ(t->Varasto(Maito)->text(), " 0");
    QTest::mouseClick(t->Kuva(Rehu), Qt::LeftButton);
    EXPECT_TRUE(t->Command3()->isEnabled());
    QTest::mouseClick(t->Command3(), Qt::LeftButton);
    EXPECT_EQ(i.peli.m.Var[Rehu], i.peli.m.Koko_Siilo) << "the silo is filled";
    QTest::keyClick(t, Qt::Key_Escape);  // hides the card
    EXPECT_FALSE(t->akkuna()->isVisible());
    QTest::keyClick(t, Qt::Key_Escape);  // leaves the screen
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua());
}

TEST(Window, TheMarketReportOverTheBankGoesBackToTheBank) {
    Ikkuna i;
    i.Aloita();
    QTest::mouseClick(i.w->tanhua()->Command6(), Qt::LeftButton);
    ASSERT_EQ(i.w->pino()->currentWidget(), i.w->pankki());
    Pankki* p = i.w->pankki();
    QTest::mouseClick(p->Command2(), Qt::LeftButton);
    QTest::mouseClick(p->Command6(), Qt::LeftButton);
    ASSERT_EQ(i.w->pino()->currentWidget(), i.w->raportti());
    EXPECT_EQ(i.w->raportti()->Sivu().fonttikoko, 10);
    QTest::mouseClick(i.w->raportti()->Command1(), Qt::LeftButton);
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->pankki()) << "the market report goes back to the bank";
    QTest::keyClick(p, Qt::Key_Escape);  // hides the sheet
    QTest::keyClick(p, Qt::Key_Escape);  // leaves the bank
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua());
}

TEST(Window, AnOverFullStoreReachesAboveItsGaugesFrame) {
    Ikkuna i;
    i.Aloita();
    i.peli.m.Var[Maito] = 150;
    i.w->Päivitä();
    const auto& mittarit = i.w->tanhua()->Mittarit();
    EXPECT_EQ(mittarit[1]->p(), 150);
    EXPECT_GT(mittarit[1]->Palkki(), mittarit[1]->height() * 2 / 3 - 4);
}

TEST(Window, EscAsksBeforeQuitting) {
    for (const auto& [näppäin, lopetetaan] : {std::pair{Qt::Key_E, false}, std::pair{Qt::Key_K, true}}) {
        Ikkuna i;
        i.Aloita();
        i.VastaaNäppäimellä(näppäin);
        QTest::keyClick(i.w->tanhua()->Command4(), Qt::Key_Escape);
        EXPECT_EQ(i.peli.näkymä.MsgTeksti, "Oletko varma että lopetat pelin suoraan ilman eläkkeelle siirtymistä?");
        EXPECT_EQ(i.lopetettu, lopetetaan);
    }
}

// A key as a held key sends it again: a repeat.
void Toisto(QWidget* w, Qt::Key näppäin) {
    QKeyEvent painallus(QEvent::KeyPress, näppäin, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(w, &painallus);
}

TEST(Window, AHeldKeyStopsAtWhatThePlayerMustSeeAndAFreshPressGoesOn) {
    Ikkuna i;
    i.Aloita();
    // The month's report stops the days while it shows: a held Enter doesn't close it; a fresh one
    // does, and the day button has the focus.
    Aseta(i.peli.m.Päivä, 30);
    QTest::keyClick(i.w->tanhua()->Command4(), Qt::Key_Return);
    ASSERT_EQ(i.w->pino()->currentWidget(), i.w->raportti());
    EXPECT_EQ(i.w->raportti()->Sivu().otsikko, "Matti - Kuukausiraportti :  31. 6. 1980");
    i.w->SeuraavaPäivä();
    EXPECT_EQ(i.peli.m.Päivä, 1);
    Toisto(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->raportti());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua());
    EXPECT_TRUE(i.w->tanhua()->isEnabled());
    EXPECT_TRUE(i.w->tanhua()->Command4()->hasFocus());
    EXPECT_EQ(i.peli.m.Kuukausi, 7);
    // A news window: a held Enter stops there, a fresh press runs the next day.
    Kerro(i.peli, "", "Uutinen");
    const int päivä = i.peli.m.Päivä;
    Toisto(i.w->tanhua()->Command4(), Qt::Key_Return);
    EXPECT_EQ(i.peli.m.Päivä, päivä);
    QTest::keyClick(i.w->tanhua()->Command4(), Qt::Key_Return);
    EXPECT_EQ(i.peli.m.Päivä, päivä + 1);
    // A box: a held K answers nothing, a fresh K answers.
    bool aukiToistonJälkeen = false;
    QTimer::singleShot(0, [&] {
        Toisto(i.w->message(), Qt::Key_K);
        aukiToistonJälkeen = i.w->message()->isVisible();
        QTest::keyClick(i.w->message(), Qt::Key_K);
    });
    EXPECT_EQ(i.w->message()->Kysy("Kysymys?", 1), "Kyllä");
    EXPECT_TRUE(aukiToistonJälkeen);
}

TEST(Window, TheDayButtonGetsTheFocusBackAfterEveryBoxWindowAndScreen) {
    Ikkuna i;
    i.Aloita();
    QPushButton* päivä = i.w->tanhua()->Command4();
    // A box asked over the main screen.
    i.VastaaNäppäimellä(Qt::Key_E);
    QTest::mouseClick(i.w->tanhua()->Lopetus(), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_TRUE(päivä->hasFocus()) << "after a box";
    // The news window closed by its button.
    Kerro(i.peli, "", "Uutinen");
    i.w->uutiset()->show();
    QTest::mouseClick(i.w->uutiset()->findChild<QPushButton*>("Command1"), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_TRUE(päivä->hasFocus()) << "after the news window";
    // A screen left by its button.
    QTest::mouseClick(i.w->tanhua()->Command6(), Qt::LeftButton);
    QTest::mouseClick(i.w->pankki()->Command1(), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_TRUE(päivä->hasFocus()) << "after a screen";
}

TEST(Window, TheToolkitsBoxesSpeakFinnish) {
    QMessageBox laatikko(QMessageBox::Critical, "VikaTila", "Vika", QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(laatikko.button(QMessageBox::Yes)->text().remove('&'), "Kyllä");
    EXPECT_EQ(laatikko.button(QMessageBox::No)->text().remove('&'), "Ei");
}

// Every value of the record and the settings, and the next draw, as one text to compare.
std::string Tila(Peli& peli) {
    std::string t;
    for (const Kenttä& k : Kentät(peli)) t += k.nimi + "=" + KentänArvo(k) + "\n";
    return t + "seuraava arvonta=" + std::to_string(peli.arvonta.r()) + "\n";
}

TEST(Window, TheWindowAndTheRunnerPlayTheSameFarmFromTheSameDraws) {
    // With the sounds on every click takes a draw: opening and leaving a screen, a box's answer.
    tanhua::testi::Väliaikainen kansio;
    Ajuri ajuri(Kansiot{TANHUA_PROGRAM_DIR, kansio.polku() / "Data"});
    std::istringstream skripti(
        "new Matti Vapaa 1 on\nset Äänitehosteet True\ncall Eläimet.Avaa\ncall Eläimet.ValitseEläin Kana\n"
        "call Eläimet.Osta Kana 1\ncall Eläimet.Takaisin\nanswer Ei\ncall Tanhua.Lopetus\n"
        "answer Kyllä\ncall Tanhua.NäytäTähti 0\ncall Pankki.Avaa\ncall Pankki.Sulje\ndays 3\n");
    std::ostringstream ulos, virheet;
    ASSERT_EQ(ajuri.Aja(skripti, ulos, virheet), 0) << virheet.str();

    Ikkuna i;
    i.peli.asetukset.Äänitehosteet = true;
    i.Aloita("Matti");
    QTest::mouseClick(i.w->tanhua()->Command1(), Qt::LeftButton);
    Eläimet* e = i.w->eläimet();
    QTest::mouseClick(e->Kuva(6), Qt::LeftButton);  // Kana
    QTest::mouseClick(e->Osta(), Qt::LeftButton);
    QTest::mouseClick(e->Takaisin(), Qt::LeftButton);
    i.VastaaNäppäimellä(Qt::Key_E);
    QTest::mouseClick(i.w->tanhua()->Lopetus(), Qt::LeftButton);
    i.VastaaNäppäimellä(Qt::Key_K);
    QTest::mouseClick(i.w->tanhua()->findChild<QLabel*>("TP_Kuva0"), Qt::LeftButton);
    QTest::mouseClick(i.w->tanhua()->Command6(), Qt::LeftButton);
    QTest::mouseClick(i.w->pankki()->Command1(), Qt::LeftButton);
    for (int päivä = 0; päivä < 3; ++päivä) QTest::keyClick(i.w->tanhua()->Command4(), Qt::Key_Return);

    EXPECT_EQ(i.peli.m.El[Kana][Naaras], 1);
    EXPECT_EQ(Tila(i.peli), Tila(ajuri.peli()));
}

}  // namespace
}  // namespace tanhua::ui
