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
using testi::Klikkaa;
using Play = testi::Pelissä;

TEST(Window, StartsANewFarmFromTheStartScreenAndRefusesAnEmptyName) {
    Ikkuna i;
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->alku());
    EXPECT_FALSE(i.w->alku()->Command2()->isEnabled()) << "no farm saved yet";
    i.VastaaNäppäimellä(Qt::Key_K);
    Klikkaa({i.w->alku()->Command1()});
    EXPECT_EQ(i.peli.näkymä.MsgTeksti, "Et voi aloittaa uutta tilannetta, ennenkuin kirjoitat nimesi.");
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->alku());
    Klikkaa({i.w->alku()->Command3()});  // Vaikea
    EXPECT_EQ(i.w->alku()->VTaso()->text(), "Vaikea");
    Klikkaa({i.w->alku()->Command3()});  // stays at the end
    EXPECT_EQ(i.w->alku()->VTaso()->text(), "Vaikea");
    i.Aloita("Matti");
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua());
    EXPECT_EQ(i.peli.m.PelaajanNimi, "Matti");
    EXPECT_EQ(i.w->tanhua()->Rahaz()->text(), "8000");
    EXPECT_TRUE(i.w->tanhua()->Command4()->hasFocus()) << "the next-day button holds the focus";
    // Either Enter key on the next-day button runs a day.
    QTest::keyClick(i.w->tanhua()->Command4(), Qt::Key_Return);
    QTest::keyClick(i.w->tanhua()->Command4(), Qt::Key_Enter);
    EXPECT_EQ(i.peli.m.Päivä, 3);
    // The star lock's two buttons tell the star that opens them, and lose the line once it is earned.
    for (const int tähtiä : {0, 1}) {
        Aseta(i.peli.m.TähtiLukitus, true);
        Aseta(i.peli.m.Tähdet, tähtiä);
        i.w->PalaaPääruutuun();
        const QString lukko = tähtiä ? "" : "\nLukittu. Avautuu, kun tilallasi on 1 tähti.";
        EXPECT_EQ(i.w->tanhua()->Command9()->toolTip(), "Lisä tarvikkeet" + lukko);
        EXPECT_EQ(i.w->tanhua()->Command5()->toolTip(), "Metsä ja pelto omistukset" + lukko);
        EXPECT_EQ(i.w->tanhua()->Command9()->isEnabled(), tähtiä == 1);
    }
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
        Klikkaa({i.w->message()->sulje()});
    });
    EXPECT_EQ(i.w->message()->Kysy("Ilmoitus", 0), "vastattu");
}

TEST_F(Play, BuysAndSellsOnTheAnimalScreen) {
    Aseta(m.Koko_Navetta, 15);
    Klikkaa({i.w->tanhua()->Command1()});
    ASSERT_EQ(i.w->pino()->currentWidget(), i.w->eläimet());
    EXPECT_TRUE(i.w->rahaKyltti()->isVisible());
    Eläimet* e = i.w->eläimet();
    Klikkaa({e->Kuva(6)});  // Kana
    EXPECT_TRUE(e->akkuna()->isVisible());
    Klikkaa({e->Plus()});
    EXPECT_EQ(e->määrä()->text(), "10");
    Klikkaa({e->Osta()});
    EXPECT_EQ(std::tuple(m.El[Kana][Naaras], m.Raha), std::tuple(10, 5000.0f));
    EXPECT_EQ(e->Laskuri(6)->text(), " 10");
    EXPECT_EQ(i.w->rahaKyltti()->Rahatilaz()->text(), " 5000") << "the plate shows Str of the cash";
    Klikkaa({e->Miinus(), e->Myy()});
    EXPECT_EQ(std::tuple(m.El[Kana][Naaras], m.Raha), std::tuple(9, 5300.0f));
    // A refusal: a second lot of ten doesn't fit in the barn of fifteen.
    Klikkaa({e->Plus()});
    i.VastaaNäppäimellä(Qt::Key_K);
    Klikkaa({e->Osta()});
    EXPECT_EQ(i.peli.näkymä.MsgTeksti, "Sinulla ei ole tilaa navetassasi.");
    EXPECT_EQ(m.El[Kana][Naaras], 9);
    Klikkaa({e->Takaisin()});
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua());
    EXPECT_FALSE(i.w->rahaKyltti()->isVisible());
}

TEST_F(Play, SellsAndBuysFeedOnTheProductScreen) {
    Aseta(m.Var[Maito], 20);
    Klikkaa({i.w->tanhua()->Command3()});
    ASSERT_EQ(i.w->pino()->currentWidget(), i.w->tuotteet());
    Tuotteet* t = i.w->tuotteet();
    Klikkaa({t->Kuva(Maito)});
    EXPECT_TRUE(t->akkuna()->isVisible());
    EXPECT_FALSE(t->Command3()->isEnabled()) << "only feed can be bought";
    const float raha = m.Raha;
    Klikkaa({t->Command2()});
    EXPECT_EQ(m.Var[Maito], 0);
    EXPECT_GT(m.Raha, raha);
    EXPECT_EQ(t->Varasto(Maito)->text(), " 0");
    Klikkaa({t->Kuva(Rehu)});
    EXPECT_TRUE(t->Command3()->isEnabled());
    Klikkaa({t->Command3()});
    EXPECT_EQ(m.Var[Rehu], m.Koko_Siilo) << "the silo is filled";
    QTest::keyClick(t, Qt::Key_Escape);  // hides the card
    EXPECT_FALSE(t->akkuna()->isVisible());
    QTest::keyClick(t, Qt::Key_Escape);  // leaves the screen
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua());
}

TEST_F(Play, TheMarketReportOverTheBankGoesBackToTheBank) {
    Klikkaa({i.w->tanhua()->Command6()});
    ASSERT_EQ(i.w->pino()->currentWidget(), i.w->pankki());
    Pankki* p = i.w->pankki();
    Klikkaa({p->Command2(), p->Command6()});
    ASSERT_EQ(i.w->pino()->currentWidget(), i.w->raportti());
    EXPECT_EQ(i.w->raportti()->Sivu().fonttikoko, 10);
    Klikkaa({i.w->raportti()->Command1()});
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->pankki()) << "the market report goes back to the bank";
    QTest::keyClick(p, Qt::Key_Escape);  // hides the sheet
    QTest::keyClick(p, Qt::Key_Escape);  // leaves the bank
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua());
}

TEST_F(Play, AnOverFullStoreReachesAboveItsGaugesFrame) {
    m.Var[Maito] = 150;
    i.w->Päivitä();
    const auto& mittarit = i.w->tanhua()->Mittarit();
    EXPECT_EQ(mittarit[1]->p(), 150);
    EXPECT_GT(mittarit[1]->Palkki(), mittarit[1]->height() * 2 / 3 - 4);
}

// A key as a held key sends it again: a repeat.
void Toisto(QWidget* w, Qt::Key näppäin) {
    QKeyEvent painallus(QEvent::KeyPress, näppäin, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(w, &painallus);
}

TEST_F(Play, AHeldKeyStopsAtWhatThePlayerMustSeeAndAFreshPressGoesOn) {
    // The month's report stops the days while it shows: a held Enter doesn't close it; a fresh one
    // does, and the day button has the focus.
    Aseta(m.Päivä, 30);
    QTest::keyClick(i.w->tanhua()->Command4(), Qt::Key_Return);
    ASSERT_EQ(i.w->pino()->currentWidget(), i.w->raportti());
    EXPECT_EQ(i.w->raportti()->Sivu().otsikko, "Matti - Kuukausiraportti :  31. 6. 1980");
    i.w->SeuraavaPäivä();
    EXPECT_EQ(m.Päivä, 1);
    Toisto(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->raportti());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(i.w->pino()->currentWidget(), i.w->tanhua());
    EXPECT_TRUE(i.w->tanhua()->isEnabled());
    EXPECT_TRUE(i.w->tanhua()->Command4()->hasFocus());
    EXPECT_EQ(m.Kuukausi, 7);
    // A news window: a held Enter stops there, a fresh press runs the next day.
    Kerro(i.peli, "", "Uutinen");
    const int päivä = m.Päivä;
    Toisto(i.w->tanhua()->Command4(), Qt::Key_Return);
    EXPECT_EQ(m.Päivä, päivä);
    QTest::keyClick(i.w->tanhua()->Command4(), Qt::Key_Return);
    EXPECT_EQ(m.Päivä, päivä + 1);
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

TEST_F(Play, EscAsksBeforeQuittingAndTheDayButtonGetsTheFocusBackAfterEveryBoxWindowAndScreen) {
    QPushButton* päivä = i.w->tanhua()->Command4();
    // Esc asks over the main screen; "Ei" keeps the game.
    i.VastaaNäppäimellä(Qt::Key_E);
    QTest::keyClick(päivä, Qt::Key_Escape);
    EXPECT_EQ(i.peli.näkymä.MsgTeksti, "Oletko varma että lopetat pelin suoraan ilman eläkkeelle siirtymistä?");
    EXPECT_FALSE(i.lopetettu);
    QApplication::processEvents();
    EXPECT_TRUE(päivä->hasFocus()) << "after a box";
    // The news window closed by its button.
    Kerro(i.peli, "", "Uutinen");
    i.w->uutiset()->show();
    Klikkaa({i.w->uutiset()->findChild<QPushButton*>("Command1")});
    QApplication::processEvents();
    EXPECT_TRUE(päivä->hasFocus()) << "after the news window";
    // A screen left by its button.
    Klikkaa({i.w->tanhua()->Command6(), i.w->pankki()->Command1()});
    QApplication::processEvents();
    EXPECT_TRUE(päivä->hasFocus()) << "after a screen";
    // "Kyllä" ends the game.
    i.VastaaNäppäimellä(Qt::Key_K);
    QTest::keyClick(päivä, Qt::Key_Escape);
    EXPECT_TRUE(i.lopetettu);
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
    // With the sounds on every click takes a draw: opening and leaving a screen, a box's answer. A click
    // that didn't reach the game (the star's box too) would leave the draws apart.
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
    Klikkaa({i.w->tanhua()->Command1()});
    Eläimet* e = i.w->eläimet();
    Klikkaa({e->Kuva(6), e->Osta(), e->Takaisin()});  // one hen
    i.VastaaNäppäimellä(Qt::Key_E);
    Klikkaa({i.w->tanhua()->Lopetus()});
    i.VastaaNäppäimellä(Qt::Key_K);
    Klikkaa({i.w->tanhua()->findChild<QLabel*>("TP_Kuva0")});
    Klikkaa({i.w->tanhua()->Command6(), i.w->pankki()->Command1()});
    for (int päivä = 0; päivä < 3; ++päivä) QTest::keyClick(i.w->tanhua()->Command4(), Qt::Key_Return);

    EXPECT_EQ(i.peli.m.El[Kana][Naaras], 1);
    EXPECT_EQ(Tila(i.peli), Tila(ajuri.peli()));
}

}  // namespace
}  // namespace tanhua::ui
