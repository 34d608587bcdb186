// The staff and bank screens in the window show what their controls say, in a farm with workers, a
// loan and a ticked policy: every named control has its widget, shown, enabled and written alike.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSlider>
#include <QTest>

#include "core/ohjaimet.h"
#include "storage/tiedostot.h"
#include "tuki/testipeli.h"
#include "ui/Pankki.h"
#include "ui/Pääikkuna.h"
#include "ui/QtKanavat.h"
#include "ui/Tanhua.h"
#include "ui/Työvoima.h"

namespace tanhua::ui {
namespace {

struct Ikkuna {
    Ikkuna() : kansiot{TANHUA_PROGRAM_DIR, kansio.polku() / "Data"}, kanavat(kansiot.ohjelma), peli(kanavat, kansiot) {
        AlustaDatakansio(kansiot);
        w = std::make_unique<Pääikkuna>(peli);
        kanavat.Liitä(w.get());
        w->resize(1024, 768);
        w->show();
        w->Käynnistä();
        w->alku()->Nimesi()->setText("Matti");
        QTest::keyClick(w->alku()->Nimesi(), Qt::Key_Return);
    }
    testi::Väliaikainen kansio;
    Kansiot kansiot;
    QtKanavat kanavat;
    Peli peli;
    std::unique_ptr<Pääikkuna> w;
};

// What a widget shows, written as its control is.
std::string Näkyy(QWidget* w) {
    if (auto* l = qobject_cast<QListWidget*>(w)) {
        QStringList rivit;
        for (int i = 0; i < l->count(); ++i) rivit << l->item(i)->text();
        return rivit.join('|').toStdString();
    }
    if (auto* c = qobject_cast<QCheckBox*>(w)) return c->isChecked() ? "True" : "False";
    if (auto* b = qobject_cast<QAbstractButton*>(w)) return b->text().toStdString();
    if (auto* s = qobject_cast<QSlider*>(w)) return std::to_string(s->value());
    if (auto* e = qobject_cast<QLineEdit*>(w)) return e->text().toStdString();
    if (auto* l = qobject_cast<QLabel*>(w)) return l->pixmap().isNull() ? l->text().toStdString() : "kuva";
    return "";
}

// Every control of the screen against its widget; returns how many were shown.
int Vertaa(const Peli& peli, QWidget* ruutu, const std::string& näyttö) {
    int näkyviä = 0;
    for (const auto& [nimi, kuvaus] : Ohjaimet()) {
        if (nimi.rfind(näyttö + ".", 0) != 0) continue;
        QWidget* w = ruutu->findChild<QWidget*>(QString::fromStdString(nimi.substr(näyttö.size() + 1)));
        if (!w) {
            ADD_FAILURE() << nimi << " has no widget";
            continue;
        }
        const Ohjain o = *LueOhjain(peli, nimi);
        EXPECT_EQ(w->isVisible(), o.näkyvissä) << nimi;
        if (!o.näkyvissä) continue;
        ++näkyviä;
        EXPECT_EQ(w->isEnabled(), o.käytössä) << nimi;
        if (qobject_cast<QFrame*>(w) && !qobject_cast<QLabel*>(w) && !qobject_cast<QListWidget*>(w)) continue;
        const std::string näkyy = Näkyy(w);
        if (näkyy == "kuva") EXPECT_NE(o.arvo, "") << nimi;  // a picture: its file is named by the control
        else EXPECT_EQ(näkyy, o.arvo) << nimi;
    }
    return näkyviä;
}

TEST(StaffAndBankWindows, TheWidgetsShowWhatTheControlsSay) {
    Ikkuna i;
    Muuttujat& m = i.peli.m;
    m.Tähdet = 2;
    m.Rak[Leipomo] = 1;
    m.Työ[Leipuri] = 1;
    m.Työ[Siivooja] = 3;
    QTest::mouseClick(i.w->tanhua()->Command8(), Qt::LeftButton);
    Työvoima* t = i.w->työvoima();
    ASSERT_EQ(i.w->pino()->currentWidget(), t);
    const auto rivit = t->Lista()->findItems("Leipuri", Qt::MatchExactly);
    ASSERT_EQ(rivit.size(), 1);
    t->Lista()->setCurrentItem(rivit.front());
    QTest::mouseClick(t->Command3(), Qt::LeftButton);
    QTest::mouseClick(t->Command7(), Qt::LeftButton);
    t->mittari()->setValue(370);
    EXPECT_EQ(m.Palkka[Leipuri], 5370);
    EXPECT_EQ(Vertaa(i.peli, t, "Työvoima"), 18);
    EXPECT_EQ(t->palk()->text(), " 5370");
    QTest::mouseClick(t->Command1(), Qt::LeftButton);

    QTest::mouseClick(i.w->tanhua()->Command6(), Qt::LeftButton);
    Pankki* p = i.w->pankki();
    ASSERT_EQ(i.w->pino()->currentWidget(), p);
    QTest::mouseClick(p->Command2(), Qt::LeftButton);
    QTest::keyClicks(p->summa(), "3000");
    QTest::mouseClick(p->Command8(), Qt::LeftButton);
    EXPECT_EQ(m.Laina, 3000);
    // The loan sheet shows with "Hyväksy" off; the insurance sheet's controls are out of sight.
    EXPECT_EQ(Vertaa(i.peli, p, "Pankki"), 20);
    EXPECT_FALSE(p->Command8()->isEnabled());
    QTest::mouseClick(p->vaku(), Qt::LeftButton);
    QTest::mouseClick(p->Vakuutus(VakuutusTyö), Qt::LeftButton);
    EXPECT_EQ(i.peli.pankkiruutu.Vakusummaz, "600");  // five workers and the base
    EXPECT_EQ(Vertaa(i.peli, p, "Pankki"), 24);
    // Esc hides the sheets; the bank opened again shows none and a fresh loan sheet can be confirmed.
    QTest::keyClick(p, Qt::Key_Escape);
    QTest::keyClick(p, Qt::Key_Escape);
    m.Laina = 0;
    QTest::mouseClick(i.w->tanhua()->Command6(), Qt::LeftButton);
    EXPECT_EQ(Vertaa(i.peli, p, "Pankki"), 10);
    QTest::mouseClick(p->Command2(), Qt::LeftButton);
    EXPECT_TRUE(p->Command8()->isEnabled());
}

}  // namespace
}  // namespace tanhua::ui
