// The animal and the product screen show what their controls say, for a farm in the middle of a game.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "core/ohjaimet.h"
#include "storage/tiedostot.h"
#include "tuki/testipeli.h"
#include "ui/Eläimet.h"
#include "ui/Pääikkuna.h"
#include "ui/QtKanavat.h"
#include "ui/Tanhua.h"
#include "ui/Tuotteet.h"

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

// What a widget shows, written as the runner writes its control.
std::string Näyttää(QWidget* w, const Ohjain& o) {
    if (const QVariant tiedosto = w->property("tiedosto"); tiedosto.isValid()) {
        EXPECT_EQ(w->toolTip().toStdString(), o.vihje) << w->objectName().toStdString();
        return tiedosto.toString().toStdString();
    }
    if (auto* c = qobject_cast<QCheckBox*>(w)) {
        if (o.väri) {
            EXPECT_EQ(c->property("väri").toUInt(), *o.väri) << c->objectName().toStdString();
        }
        return c->isChecked() ? "True" : "False";
    }
    if (auto* b = qobject_cast<QAbstractButton*>(w)) return b->text().toStdString();
    if (auto* e = qobject_cast<QLineEdit*>(w)) return e->text().toStdString();
    if (auto* l = qobject_cast<QLabel*>(w)) return l->text().toStdString();
    // A panel shows its heading.
    auto* otsikko = w->findChild<QLabel*>("otsikko", Qt::FindDirectChildrenOnly);
    return otsikko ? otsikko->text().toStdString() : "";
}

// Every control of the screen against the widget of the same name; returns how many were shown.
int Vertaa(const Peli& peli, QWidget* ruutu) {
    const std::string etuliite = ruutu->objectName().toStdString() + ".";
    int näkyviä = 0;
    for (const auto& [nimi, kuvaus] : Ohjaimet()) {
        if (nimi.rfind(etuliite, 0) != 0) continue;
        for (int i = 0; i < std::max(kuvaus.koko, 1); ++i) {
            std::string jäsen = nimi.substr(etuliite.size());
            if (kuvaus.koko > 0) jäsen += "(" + std::to_string(kuvaus.alku + i) + ")";
            const Ohjain o = *LueOhjain(peli, etuliite + jäsen);
            QWidget* w = ruutu->findChild<QWidget*>(QString::fromStdString(jäsen));
            if (!w) {
                ADD_FAILURE() << "no widget for " << jäsen;
                continue;
            }
            EXPECT_EQ(w->isVisible(), o.näkyvissä) << jäsen;
            if (!o.näkyvissä) continue;
            ++näkyviä;
            EXPECT_EQ(w->isEnabled(), o.käytössä) << jäsen;
            EXPECT_EQ(Näyttää(w, o), o.arvo) << jäsen;
        }
    }
    return näkyviä;
}

TEST(ScreensShowTheirControls, TheAnimalScreenWithACardAndBothPanels) {
    Ikkuna i;
    Muuttujat& m = i.peli.m;
    m.OhjeetPäällä = true;
    Aseta(m.Koko_Navetta, 100);
    Aseta(m.Rak[Teurastamo], 1);
    Aseta(m.Työ[Teurastaja], 1);
    Aseta(m.Työ[Nahkuri], 1);
    m.El[Kana] = {12, 3, 4, 2};
    m.El[Kettu][Poikanen] = 5;
    m.Eläimet.Teuras = {0, 0, 0, 1, 0};
    m.Eläimet.TeurasRaja[7] = "2";
    QTest::mouseClick(i.w->tanhua()->Command1(), Qt::LeftButton);
    Eläimet* e = i.w->eläimet();
    QTest::mouseClick(e->Kuva(7), Qt::LeftButton);  // Kukko
    QTest::mouseClick(e->Plus(), Qt::LeftButton);
    QTest::mouseClick(e->Osta(), Qt::LeftButton);   // twelve cocks: past the limit of 2
    QTest::mouseClick(e->NahkuriKuva(), Qt::LeftButton);
    ASSERT_TRUE(e->TeurasPaneeli()->isVisible());
    EXPECT_EQ(e->findChild<QLabel*>("yhtosto")->text(), "Yhteensä osto : 5000");
    EXPECT_GT(Vertaa(i.peli, e), 60);
    QTest::keyClick(e, Qt::Key_Escape);  // hides the card
    EXPECT_FALSE(e->akkuna()->isVisible());
    Vertaa(i.peli, e);
}

TEST(ScreensShowTheirControls, TheProductScreenWithTheManureCardAndTheAccountantsPanel) {
    Ikkuna i;
    Muuttujat& m = i.peli.m;
    Aseta(m.Työ[Kirjanpitäjä], 1);
    Aseta(m.Var[Lanta], 12.5);
    m.Tuotteet.Myy[Muna] = 1;
    m.Tuotteet.MyyTyyli[Muna] = "Puolet";
    QTest::mouseClick(i.w->tanhua()->Command3(), Qt::LeftButton);
    Tuotteet* t = i.w->tuotteet();
    QTest::mouseClick(t->Kuva(Lanta), Qt::LeftButton);
    QTest::mouseClick(t->KirjanpitäjäKuva(), Qt::LeftButton);
    ASSERT_TRUE(t->Taulu()->isVisible());
    EXPECT_EQ(t->findChild<QLabel*>("MyyntiAika")->text(), "joka viikko");
    EXPECT_GT(Vertaa(i.peli, t), 80);
    QTest::mouseClick(t->Kuva(Rehu), Qt::LeftButton);
    EXPECT_TRUE(t->Command3()->isEnabled());
    Vertaa(i.peli, t);
}

}  // namespace
}  // namespace tanhua::ui
