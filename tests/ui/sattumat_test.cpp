// The day's events in the window: the list line, the news window's picture and text, and the
// caller's question answered with the keys.
#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>

#include "events/sattumat.h"
#include "ikkuna.h"
#include "ui/ikkuna.h"

namespace tanhua::ui {
namespace {

using testi::Ikkuna;
using testi::VertaaRuutua;
using WindowEvents = testi::Pelissä;

void Jonoon(Peli& peli, std::initializer_list<double> arvot) {
    for (double a : arvot) peli.arvonta.Jonoon(a);
}

TEST_F(WindowEvents, AForcedEventShowsItsLinePictureAndText) {
    Aseta(m.Koko_Navetta, 1000);
    Aseta(m.Raha, 20000);
    // No wage talks, the day's draw hits, number 20: a barn fire.
    Jonoon(i.peli, {0.5, 0, 19.5 / 60, 0.1, 0.7, 0.5, 0.1});
    tanhua::Sattumat(i.peli);
    i.w->uutiset()->setVisible(i.peli.näkymä.IkkunaNäkyvissä);
    EXPECT_TRUE(i.w->uutiset()->isVisible());
    EXPECT_EQ(VertaaRuutua(i.peli, i.w->uutiset(), "ikkuna"), 3);
    EXPECT_EQ(i.w->uutiset()->kuva()->property("tiedosto").toString(), "tulipalo2.jpg");
    EXPECT_FALSE(i.w->uutiset()->kuva()->pixmap().isNull());
    EXPECT_EQ(i.w->uutiset()->Tapahtuma()->text(),
              "Navetassasi oli ollut tulipalo, jonka palomiehet kuitenkin saivat sammutettua.");
    auto* lista = i.w->tanhua()->Lista();
    ASSERT_GT(lista->count(), 0);
    EXPECT_EQ(lista->item(lista->count() - 1)->text(), "Sinulla oli syttynyt tulipalo navetassasi!");
    // A later day's draw blanks the picture without a tell; the window shown again follows.
    Jonoon(i.peli, {0.5, 0, 20.5 / 60});  // number 21 is empty
    tanhua::Sattumat(i.peli);
    i.w->uutiset()->setVisible(true);
    EXPECT_TRUE(i.w->uutiset()->kuva()->pixmap().isNull());
    EXPECT_EQ(VertaaRuutua(i.peli, i.w->uutiset(), "ikkuna"), 3);
    // A long text wraps inside the window: the label's whole height fits.
    std::string pitkä;
    for (int k = 0; k < 80; ++k) pitkä += "Pitkä teksti ";
    Kerro(i.peli, "Kuvat/sattumat/tulipalo.jpg", pitkä);
    QLabel* teksti = i.w->uutiset()->Tapahtuma();
    EXPECT_LE(teksti->geometry().bottom(), i.w->uutiset()->height());
    EXPECT_GE(teksti->height(), teksti->heightForWidth(teksti->width()));
}

TEST(CallersQuestion, IsAnsweredWithKOrE) {
    struct Tapaus { Qt::Key näppäin; std::initializer_list<double> arvot; float raha; const char* rivi; };
    for (const Tapaus& c : {Tapaus{Qt::Key_K, {0.5, 0, 50.5 / 60, 0.7, 0.25, 0.3}, 19000, "Maksoit suojelurahaa  1000"},
                            Tapaus{Qt::Key_E, {0.5, 0, 50.5 / 60, 0.7, 0.25, 0.9, 0.5}, 20000, "Kieltäydyit suojelurahasta."}}) {
        Ikkuna i;
        i.Aloita();
        i.peli.asetukset.Äänitehosteet = false;  // the answer's click takes no draw
        Muuttujat& m = i.peli.m;
        Aseta(m.Raha, 20000);
        Aseta(m.Koko_Navetta, 16);
        Aseta(m.Koko_Siilo, 201);
        Aseta(m.Koko_Varasto, 201);
        bool uhkausNäkyvissä = false;
        QTimer::singleShot(0, [&] {
            // The demand stands in the news window while the box asks over it.
            uhkausNäkyvissä = i.w->uutiset()->isVisible() &&
                              i.w->uutiset()->kuva()->property("tiedosto").toString() == "alamaailma.jpg";
        });
        i.VastaaNäppäimellä(c.näppäin);
        Jonoon(i.peli, c.arvot);
        tanhua::Sattumat(i.peli);
        EXPECT_TRUE(uhkausNäkyvissä);
        EXPECT_EQ(m.Raha, c.raha);
        EXPECT_EQ(i.peli.näkymä.Lista.back(), c.rivi);
    }
}

}  // namespace
}  // namespace tanhua::ui
