// The building screen and the supplies shop in the window show what the game's controls read.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QTest>

#include "buildings/taulut/rakennuskatalogi.h"
#include "core/ohjaimet.h"
#include "storage/tiedostot.h"
#include "tuki/testipeli.h"
#include "ui/Kuvat.h"
#include "ui/Pääikkuna.h"
#include "ui/QtKanavat.h"
#include "ui/Rakennukset.h"
#include "ui/Tanhua.h"
#include "ui/Tarvikkeet.h"

namespace tanhua::ui {
namespace {

// A window on a fresh data folder with a farm started from the start screen.
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

// Every control the game registers for the screen against the widget of the same name: a
// picture's tip, a label's or button's text, a list's rows, and whether each shows and takes clicks.
void VertaaRuutua(const Peli& peli, QWidget* ruutu, const std::string& ruudunNimi) {
    int verrattu = 0;
    for (const auto& [nimi, kuvaus] : Ohjaimet()) {
        if (nimi.rfind(ruudunNimi + ".", 0) != 0) continue;
        const std::string lyhyt = nimi.substr(ruudunNimi.size() + 1);
        for (int k = 0; k < std::max(kuvaus.koko, 1); ++k) {
            const std::string numero = kuvaus.koko ? std::to_string(kuvaus.alku + k) : "";
            const Ohjain o = *LueOhjain(peli, kuvaus.koko ? nimi + "(" + numero + ")" : nimi);
            QWidget* w = ruutu->findChild<QWidget*>(QString::fromStdString(lyhyt + numero));
            const std::string tunnus = lyhyt + numero;
            if (!w) {
                EXPECT_FALSE(o.näkyvissä) << tunnus << " has no widget but shows";
                continue;
            }
            ++verrattu;
            EXPECT_EQ(w->isVisible(), o.näkyvissä) << tunnus;
            if (!o.näkyvissä) continue;
            EXPECT_EQ(w->isEnabled(), o.käytössä) << tunnus;
            if (auto* lista = qobject_cast<QListWidget*>(w)) {
                QStringList rivit;
                for (int i = 0; i < lista->count(); ++i) rivit << lista->item(i)->text();
                EXPECT_EQ(S(rivit.join('|')), o.arvo) << tunnus;
            } else if (auto* nappi = qobject_cast<QAbstractButton*>(w)) {
                EXPECT_EQ(S(nappi->text()), o.arvo) << tunnus;
            } else if (auto* label = qobject_cast<QLabel*>(w)) {
                if (lyhyt == "Picture") EXPECT_EQ(S(label->toolTip()), o.vihje) << tunnus;
                else EXPECT_EQ(S(label->text()), o.arvo) << tunnus;
            }
        }
    }
    EXPECT_GE(verrattu, 10) << ruudunNimi;
}

TEST(Screens, TheBuildingScreenShowsItsControlsAsTheGameReadsThem) {
    Ikkuna i;
    // One star: the sawmill is locked over its running order, the mill has an order, the barn two.
    i.peli.m.Tähdet = 1;
    i.peli.m.Raha = 500000;
    i.peli.m.Rak[Mylly] = 2;
    i.peli.m.RakAika[Saha] = 12;
    i.peli.m.RakAika[Mylly] = 30;
    QTest::mouseClick(i.w->tanhua()->Command2(), Qt::LeftButton);
    Rakennukset* r = i.w->rakennukset();
    ASSERT_EQ(i.w->pino()->currentWidget(), r);
    QTest::mouseClick(r->Kuva(Työmaa(Navetta)), Qt::LeftButton);
    QTest::mouseClick(r->Plus(), Qt::LeftButton);
    QTest::mouseClick(r->Command2(), Qt::LeftButton);
    VertaaRuutua(i.peli, r, "Rakennukset");
    EXPECT_EQ(r->findChild<QLabel*>("RakenneSahaz")->text(), "Lukittu");
    EXPECT_EQ(r->findChild<QLabel*>("RakenneNavettaz")->text(), "50 päivää");
    EXPECT_EQ(r->Command2()->text(), "Laajenna");
    EXPECT_EQ(r->hintanäky()->text(), " 20000");

    // A built building chosen: its production panel takes the text's place and the level shows.
    QTest::mouseClick(r->findChild<QLabel*>("RakenneMyllyz"), Qt::LeftButton);
    i.peli.m.RakAika[Mylly] = 0;
    QTest::mouseClick(r->Kuva(Mylly), Qt::LeftButton);
    VertaaRuutua(i.peli, r, "Rakennukset");
    EXPECT_FALSE(r->findChild<QLabel*>("info")->isVisible());
    EXPECT_EQ(r->findChild<QLabel*>("taso")->text(), "2 / 5");
    EXPECT_FALSE(r->Plus()->isEnabled());
}

TEST(Screens, TheSuppliesShopShowsItsControlsAsTheGameReadsThem) {
    Ikkuna i;
    i.peli.m.Tähdet = 1;
    i.peli.m.Raha = 30000;
    i.w->PalaaPääruutuun();
    QTest::mouseClick(i.w->tanhua()->Command9(), Qt::LeftButton);
    Tarvikkeet* t = i.w->tarvikkeet();
    ASSERT_EQ(i.w->pino()->currentWidget(), t);
    QTest::mouseClick(t->Command3(), Qt::LeftButton);
    t->Lista()->setCurrentRow(8);  // Kirnu
    QTest::mouseClick(t->Command5(), Qt::LeftButton);
    QTest::mouseClick(t->Command4(), Qt::LeftButton);
    t->Lista()->setCurrentRow(5);  // Kaivo
    QTest::mouseClick(t->Command5(), Qt::LeftButton);
    QTest::mouseClick(t->Command6(), Qt::LeftButton);
    t->Lista()->setCurrentRow(1);
    VertaaRuutua(i.peli, t, "Tarvikkeet");
    EXPECT_EQ(t->Lista()->count(), 2);
    EXPECT_EQ(t->Lista()->currentItem()->text(), "Kaivo");
    EXPECT_EQ(t->hinta()->text(), "6000");
    EXPECT_EQ(t->Command5()->text(), "Myy");
    EXPECT_EQ(i.peli.m.Raha, 7000);
}

}  // namespace
}  // namespace tanhua::ui
