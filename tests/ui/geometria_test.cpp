// Every screen and dialog at 800 x 600: no control runs off the canvas or out of its panel, no two
// controls that sit side by side cover each other, the money plate covers nothing, and opening a
// card leaves the screen's other panels where they were.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "animals/kauppa.h"
#include "buildings/rakentaminen.h"
#include "buildings/talli.h"
#include "buildings/tarvikkeet.h"
#include "career/tilanne.h"
#include "contracts/sopimukset.h"
#include "core/viestit.h"
#include "finance/pankki.h"
#include "land/kylvö.h"
#include "land/pellot.h"
#include "market/markkinat.h"
#include "market/myynti.h"
#include "racing/ravit.h"
#include "stats/käyrät.h"
#include "storage/topten.h"
#include "workforce/työvoima.h"
#include "ui/Eläimet.h"
#include "ui/Hevostalli.h"
#include "ui/Kylvö.h"
#include "ui/Käyrät.h"
#include "ui/Nosto.h"
#include "ui/Pankki.h"
#include "ui/Pellot.h"
#include "ui/Player.h"
#include "ui/Rakennukset.h"
#include "ui/Raportti.h"
#include "ui/Ravit.h"
#include "ui/Sopimukset.h"
#include "ui/Tarvikkeet.h"
#include "ui/Tilanne.h"
#include "ui/Topten.h"
#include "ui/Tuotteet.h"
#include "ui/Työvoima.h"
#include "ikkuna.h"

namespace tanhua::ui {
namespace {

using testi::Ikkuna;
using testi::Klikkaa;

// A widget as a failure names it: its object name, or its class where it has none.
std::string Nimi(const QWidget* w) {
    return w->objectName().isEmpty() ? w->metaObject()->className() : w->objectName().toStdString();
}

// The toolkit's own parts of a control (a list's viewport and bars, a slider's handle) are the
// control's business, not the screen's.
bool Kokonainen(const QWidget* w) {
    return qobject_cast<const QAbstractScrollArea*>(w) || qobject_cast<const QAbstractSpinBox*>(w) ||
           qobject_cast<const QComboBox*>(w) || qobject_cast<const QAbstractSlider*>(w);
}

// The children the player sees: shown, not a window of their own, not the toolkit's innards.
std::vector<QWidget*> NäkyvätLapset(const QWidget* vanhempi) {
    std::vector<QWidget*> lapset;
    for (QWidget* w : vanhempi->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (w->isVisible() && !w->isWindow() && !w->objectName().startsWith("qt_") && !w->size().isEmpty())
            lapset.push_back(w);
    return lapset;
}

// A widget laid over its siblings on purpose (the marker over a picture, the player panel over the
// main screen) carries the property "päällä".
bool Päällä(const QWidget* w) { return w->property("päällä").toBool(); }

QRect Kankaalla(const QWidget* w, const QWidget* kangas) { return {w->mapTo(kangas, QPoint(0, 0)), w->size()}; }

struct Tarkastus {
    explicit Tarkastus(Ikkuna& i) : i(i) {
        i.w->resize(800, 600);
        // The walk answers what the screens ask on the way: "Kyllä" to a question, the default to
        // the toolkit's boxes. The window's watchdog, which would race it for a question, stands down.
        i.vahti.stop();
        vastaaja.setInterval(100);
        QObject::connect(&vastaaja, &QTimer::timeout, [&i] {
            if (i.w->message()->isVisible()) QTest::keyClick(i.w->message(), Qt::Key_K);
            else if (auto* kysely = qobject_cast<QDialog*>(QApplication::activeModalWidget())) kysely->accept();
        });
        vastaaja.start();
    }

    // Checks the screen on top of the stack as it is now.
    void Ruutu(const std::string& tila) { Alue(tila, i.w->pino()->currentWidget()); }

    // Checks one widget (a screen, a panel over it, a box) and everything shown in it.
    void Alue(const std::string& tila, QWidget* alue) {
        i.w->Päivitä();
        QApplication::processEvents();
        ASSERT_EQ(i.w->sisältö()->size(), QSize(800, 600));
        ASSERT_EQ(i.w->pino()->geometry(), QRect(0, 0, 800, 600));
        Tallenna(tila, alue);
        QWidget* kangas = i.w->sisältö();
        const QRect rajat = kangas->rect();
        EXPECT_TRUE(rajat.contains(Kankaalla(alue, kangas))) << tila << ": " << Nimi(alue) << " runs off the 800 x 600 canvas";
        Lapset(tila, alue, kangas);
        if (QWidget* kyltti = i.w->rahaKyltti(); kyltti->isVisible()) Kyltti(tila, alue, kyltti);
    }

    // The geometry of a screen's panels and buttons, to compare before and after a card opens.
    static std::map<const QWidget*, QRect> Paikat(QWidget* ruutu) {
        std::map<const QWidget*, QRect> paikat;
        for (QWidget* w : ruutu->findChildren<QWidget*>()) {
            const bool paneeli = qobject_cast<QFrame*>(w) && !qobject_cast<QLabel*>(w);
            if (w->isVisible() && (paneeli || qobject_cast<QAbstractButton*>(w))) paikat[w] = Kankaalla(w, ruutu);
        }
        return paikat;
    }
    // Everything shown both times stands where it stood.
    static void EiSiirry(const std::string& tila, const std::map<const QWidget*, QRect>& ennen, QWidget* ruutu) {
        QApplication::processEvents();
        for (const auto& [w, paikka] : Paikat(ruutu)) {
            const auto vanha = ennen.find(w);
            if (vanha != ennen.end()) {
                EXPECT_EQ(vanha->second, paikka) << tila << ": " << Nimi(w) << " moved when the card opened";
            }
        }
    }

    Ikkuna& i;
    QTimer vastaaja;

private:
    void Lapset(const std::string& tila, QWidget* vanhempi, QWidget* kangas) {
        const std::vector<QWidget*> lapset = NäkyvätLapset(vanhempi);
        for (std::size_t a = 0; a < lapset.size(); ++a) {
            QWidget* w = lapset[a];
            if (!kangas->rect().contains(Kankaalla(w, kangas)))
                ADD_FAILURE() << tila << ": " << Nimi(w) << " runs off the 800 x 600 canvas";
            else if (!vanhempi->rect().contains(w->geometry()))
                ADD_FAILURE() << tila << ": " << Nimi(w) << " runs out of " << Nimi(vanhempi);
            // A button shows its whole caption, a one-line label its whole text: the padding of
            // the game's buttons may give way, the letters may not.
            if (auto* nappi = qobject_cast<QPushButton*>(w); nappi && !nappi->text().isEmpty()) {
                const int teksti = nappi->fontMetrics().horizontalAdvance(nappi->text());
                if (teksti > nappi->contentsRect().width() - 4)
                    ADD_FAILURE() << tila << ": the caption of " << Nimi(w) << " \"" << nappi->text().toStdString()
                                  << "\" is cut";
            }
            if (auto* l = qobject_cast<QLabel*>(w); l && !l->wordWrap() && !l->text().contains('\n') &&
                                                    l->textFormat() != Qt::RichText && !l->text().contains('<')) {
                const int teksti = l->fontMetrics().horizontalAdvance(l->text());
                if (teksti > l->contentsRect().width() + 1)
                    ADD_FAILURE() << tila << ": the text of " << Nimi(w) << " \"" << l->text().toStdString()
                                  << "\" is cut";
            }
            for (std::size_t b = a + 1; b < lapset.size(); ++b)
                if (!Päällä(w) && !Päällä(lapset[b]) && w->geometry().intersects(lapset[b]->geometry()))
                    ADD_FAILURE() << tila << ": " << Nimi(w) << " and " << Nimi(lapset[b]) << " overlap in "
                                  << Nimi(vanhempi);
            if (!Kokonainen(w)) Lapset(tila, w, kangas);
        }
    }

    void Kyltti(const std::string& tila, QWidget* ruutu, QWidget* kyltti) {
        const QRect laatta = Kankaalla(kyltti, i.w->sisältö());
        for (QWidget* w : ruutu->findChildren<QWidget*>())
            if (w->isVisible() && !w->isWindow() && Kankaalla(w, i.w->sisältö()).intersects(laatta))
                ADD_FAILURE() << tila << ": the money plate covers " << Nimi(w);
    }

    // With TANHUA_GEOMETRIA set to a folder, each state is saved there as a picture to look at.
    static void Tallenna(const std::string& tila, QWidget* alue) {
        const QString kansio = qEnvironmentVariable("TANHUA_GEOMETRIA");
        if (kansio.isEmpty()) return;
        QDir().mkpath(kansio);
        QWidget* kuvattava = alue->isWindow() ? alue : alue->window();
        kuvattava->grab().save(QDir(kansio).filePath(QString::fromStdString(tila) + ".png"));
    }
};

// A farm a player has run for a while: stock in the store, cash, some of everything built.
Ikkuna& Tila(Ikkuna& i) {
    i.Aloita();
    Muuttujat& m = i.peli.m;
    m.OhjeetPäällä = true;
    Aseta(m.Raha, 250000);
    Aseta(m.Tähdet, 2);
    Aseta(m.Koko_Navetta, 100);
    Aseta(m.Koko_Varasto, 20000);
    Aseta(m.Var[Maito], 1234);
    Aseta(m.Var[Rehu], 500);
    Aseta(m.El[Nauta][Naaras], 12);
    Aseta(m.Työ[Kirjanpitäjä], 1);
    Aseta(m.Pelto, 20);
    Aseta(m.Metsä, 10);
    for (const Rakennus r : {Meijeri, Teurastamo, Rakennus::Hevostalli}) Aseta(m.Rak[r], 1);
    return i;
}

// Each walk starts on that farm at 800 x 600.
struct Geometry : ::testing::Test {
    // Opens the screen from the main screen and checks it, then each of its cards in turn; opening a
    // card moves nothing of the screen.
    void Korteittain(QWidget* ruutu, const std::string& nimi, std::size_t kortteja,
                     const std::function<void(std::size_t)>& valitse) {
        i.w->PalaaPääruutuun();
        i.w->AvaaRuutu(ruutu);
        ASSERT_EQ(i.w->pino()->currentWidget(), ruutu);
        t.Ruutu(nimi);
        const auto ennen = Tarkastus::Paikat(ruutu);
        for (std::size_t k = 0; k < kortteja; ++k) {
            valitse(k);
            t.Ruutu(nimi + "-" + std::to_string(k));
        }
        Tarkastus::EiSiirry(nimi, ennen, ruutu);
    }

    // Each step, then the screen as it stands, checked under the step's name.
    void Vaiheittain(std::initializer_list<std::pair<std::string, std::function<void()>>> vaiheet) {
        for (const auto& [tila, vaihe] : vaiheet) {
            vaihe();
            t.Ruutu(tila);
        }
    }

    Ikkuna i;
    Tarkastus t{Tila(i)};
};

TEST(StartScreenGeometry, FitsTheCanvas) {
    Ikkuna i;
    Tarkastus(i).Ruutu("Alku");
}

TEST_F(Geometry, TheMainScreenItsPlayerAndTheNewsWindow) {
    t.Ruutu("Tanhua");
    i.w->AvaaSoitin();
    t.Ruutu("Tanhua-Player");
    i.w->PiilotaSoitin();
    Kerro(i.peli, "Kuvat/sattumat/Onnittelu.jpg", "Onnea! Tilasi on kasvanut ja naapurit ovat kateellisia.");
    t.Alue("ikkuna", i.w->uutiset());
    i.w->uutiset()->Command1()->click();
}

TEST_F(Geometry, TheMessageBoxOfBothKinds) {
    for (const auto& [tyyli, teksti] : {std::pair{1, "Menetät nykyisen tilanteesi. Oletko aivan varma?"},
                                        std::pair{0, "Rahasi eivät riitä!\n\nRahatilanteesi on  1500\nEläin maksaa "
                                                     " 5000\nSinulta puuttuu  3500"}}) {
        i.w->message()->Valmistele(teksti, tyyli);
        i.w->message()->show();
        t.Alue("Message-" + std::to_string(tyyli), i.w->message());
        i.w->message()->hide();
    }
}

TEST_F(Geometry, TheAnimalsProductsBuildingsStaffAndLandWithEachCard) {
    Korteittain(i.w->eläimet(), "Eläimet", 12, [&](std::size_t k) { ValitseEläin(i.peli, static_cast<int>(k)); });
    for (const bool nylky : {false, true}) {
        AvaaTeuraspaneeli(i.peli, nylky);
        t.Ruutu(nylky ? "Eläimet-Nahkuri" : "Eläimet-Teurastamo");
        AvaaTeuraspaneeli(i.peli, nylky);
    }
    Korteittain(i.w->tuotteet(), "Tuotteet", TUOTTEITA,
                [&](std::size_t k) { AvaaTuote(i.peli, static_cast<Tuote>(k)); });
    KirjanpitäjäKuva(i.peli);
    t.Ruutu("Tuotteet-Kirjanpitäjä");
    Korteittain(i.w->rakennukset(), "Rakennukset", TYÖMAITA, [&](std::size_t k) { ValitseKohde(i.peli, k); });
    Korteittain(i.w->työvoima(), "Työvoima", TYÖLÄISIÄ, [&](std::size_t k) {
        // The staff's screen opens on the first job's card, not an empty one.
        if (k == 0) {
            EXPECT_EQ(i.w->työvoima()->findChild<QLabel*>("työ")->text(), "Kirjanpitäjä");
        }
        ValitseTyöläinen(i.peli, static_cast<Työläinen>(k));
    });
    Korteittain(i.w->pellot(), "Pellot", MAITA, [&](std::size_t k) { ValitseMaa(i.peli, static_cast<Maa>(k)); });
    AvaaMetsuriValikko(i.peli);
    t.Ruutu("Pellot-Metsuri");
    i.w->pellot()->AvaaKylvö();
    t.Ruutu("Kylvö");
    i.w->kylvö()->Palaa();
    i.w->pellot()->AvaaNosto();
    t.Ruutu("Nosto");
}

TEST_F(Geometry, TheBankWithEachSheetAndTheMarketReport) {
    i.w->AvaaRuutu(i.w->pankki());
    t.Ruutu("Pankki");
    const auto ennen = Tarkastus::Paikat(i.w->pankki());
    // Both sheets can be open at once: they share the right column.
    Vaiheittain({{"Pankki-Laina", [&] { OtaLainaa(i.peli); }},
                 {"Pankki-Talletus", [&] { SuljeLappu(i.peli); TalletaRahaa(i.peli); }},
                 {"Pankki-Vakuutukset", [&] { SuljeLappu(i.peli); AvaaVakuutukset(i.peli); }},
                 {"Pankki-Laina-Vakuutukset", [&] { OtaLainaa(i.peli); }}});
    SuljeLappu(i.peli);
    Tarkastus::EiSiirry("Pankki", ennen, i.w->pankki());
    SuljeVakuutukset(i.peli);
    i.w->NäytäPörssiraportti();
    t.Ruutu("Pörssikurssit");
}

TEST_F(Geometry, TheSuppliesWithEachList) {
    Aseta(i.peli.m.TähtiLukitus, false);
    i.w->AvaaRuutu(i.w->tarvikkeet());
    t.Ruutu("Tarvikkeet");
    const auto ennen = Tarkastus::Paikat(i.w->tarvikkeet());
    int n = 0;
    for (void (*lista)(Peli&) : {NäytäYleiset, NäytäLisälaitteet}) {
        lista(i.peli);
        for (const TarvikeRivinro rivi : std::vector(i.peli.tarvikeruutu.Lista)) {
            ValitseTarvike(i.peli, rivi);
            t.Ruutu("Tarvikkeet-" + std::to_string(n++));
        }
    }
    Tarkastus::EiSiirry("Tarvikkeet", ennen, i.w->tarvikkeet());
}

TEST_F(Geometry, TheStableTheContractsTheCouponTheCurvesAndTheCareerScreens) {
    Vaiheittain({{"Hevostalli", [&] { i.w->AvaaRuutu(i.w->hevostalli()); }},
                 {"Sopimukset", [&] { i.w->AvaaRuutu(i.w->sopimukset()); }},
                 {"Sopimukset-Tarjoukset", [&] { UudetSopimukset(i.peli); }},
                 {"Sopimukset-Paikat",
                  [&] {
                      i.peli.m.Sop = {Sopimus{"Maito", 450, 2700, 3600, 17}, Sopimus{"Muna", 120, 480, 640, 9},
                                      Sopimus{"Puu", 30, 1800, 2400, 12}};
                      SuljeTarjoukset(i.peli); NäytäSopimukset(i.peli);
                  }},
                 {"Ravit", [&] { i.w->AvaaRavit(); }},
                 {"Ravit-Kuponki", [&] {
                      LyöVetoa(i.peli);
                      ValitseVetolaji(i.peli, vetolaji::Trio);
                      NäytäRivi(i.peli, 1);
                  }}});
    Korteittain(i.w->käyrät(), "Käyrät", KÄYRIÄ, [&](std::size_t k) { PiirräKäyrä(i.peli, static_cast<Käyrä>(k)); });
    Vaiheittain({{"Käyrät-Brutto", [&] { TuotteidenBrutto(i.peli); }},
                 {"Käyrät-Netto", [&] { TuotteidenNetto(i.peli); }},
                 {"Tilanne", [&] { i.w->PalaaPääruutuun(); Klikkaa({i.w->tanhua()->Command7()}); }},
                 {"Tilanne-Paneeli", [&] { AvaaPaneeli(i.peli); }},
                 {"Tilanne-Tarina", [&] { SuljePaneeli(i.peli); Klikkaa({i.w->tilanne()->Command4()}); }},
                 {"Topten", [&] { SuljeTarina(i.peli); EnnätysListat(i.peli); }}});
}

TEST_F(Geometry, TheMonthReport) {
    Aseta(i.peli.m.Päivä, 29);
    while (!i.peli.näkymä.RaporttiAuki) i.w->SeuraavaPäivä();
    t.Ruutu("Raportti");
    Raportti* r = i.w->raportti();
    // The month's page, then a page longer than a leaf with a line wider than one: every line,
    // the rule too, stays on its leaf and off the fold; the long page goes on on the right leaf.
    RaporttiSivu pitkä = r->Sivu();
    pitkä.otsikko = "Matti Meikäläinen Ylä-Tanhuan Tilalta - Kuukausiraportti :  30. 6. 1980";
    for (int n = 0; n < 40; ++n) pitkä.rivit.push_back({MUSTA, 5, "Omaisuus, kiinteistö- ja maavero : - " + std::to_string(n)});
    for (const RaporttiSivu& sivu : {r->Sivu(), pitkä}) {
        r->Tulosta(sivu);
        const Raportti::Taitto taitto = r->Asettele();
        const int taite = r->width() / 2;
        EXPECT_LT(taitto.vasen.right(), taite);
        EXPECT_GT(taitto.oikea.left(), taite);
        EXPECT_TRUE(taitto.vasen.contains(taitto.otsikko)) << "the title crosses the fold";
        ASSERT_EQ(taitto.rivit.size(), sivu.rivit.size());
        bool oikealla = false;
        for (std::size_t n = 0; n < sivu.rivit.size(); ++n) {
            const QRect& rivi = taitto.rivit[n];
            EXPECT_TRUE(taitto.vasen.contains(rivi) || taitto.oikea.contains(rivi))
                << "line " << n << " \"" << sivu.rivit[n].teksti << "\" leaves its leaf";
            oikealla |= taitto.oikea.contains(rivi);
        }
        EXPECT_EQ(oikealla, sivu.rivit.size() > 30) << "only a long page goes on on the right leaf";
    }
}

}  // namespace
}  // namespace tanhua::ui
