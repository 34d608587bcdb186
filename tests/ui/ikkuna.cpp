// The window's test support.
#include "ikkuna.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSlider>

#include "core/ohjaimet.h"
#include "ui/Kuvat.h"

namespace tanhua::ui::testi {

Ikkuna::Ikkuna() : kansiot{TANHUA_PROGRAM_DIR, kansio.polku() / "Data"}, kanavat(kansiot.ohjelma), peli(kanavat, kansiot) {
    AlustaDatakansio(kansiot);
    w = std::make_unique<Pääikkuna>(peli);
    kanavat.Liitä(w.get());
    w->lopetus = [this] { lopetettu = true; };
    w->resize(1024, 768);
    w->show();
    // A box nobody expected is closed by the watchdog, and the test fails instead of hanging.
    vahti.setInterval(1500);
    QObject::connect(&vahti, &QTimer::timeout, [this] {
        if (w->message()->isVisible()) {
            odottamaton = peli.näkymä.MsgTeksti;
            QTest::keyClick(w->message(), Qt::Key_E);
        }
    });
    vahti.start();
    w->Käynnistä();
}

Ikkuna::~Ikkuna() { EXPECT_EQ(odottamaton, "") << "a Message box nobody answered"; }

void Ikkuna::Aloita(const char* nimi) {
    w->alku()->Nimesi()->setText(nimi);
    QTest::keyClick(w->alku()->Nimesi(), Qt::Key_Return);
}

void Ikkuna::VastaaNäppäimellä(Qt::Key näppäin) {
    QTimer::singleShot(0, [this, näppäin] { QTest::keyClick(w->message(), näppäin); });
}

void Ikkuna::SuljeLaatikko() {
    QTimer::singleShot(0, [] {
        if (QWidget* laatikko = QApplication::activeModalWidget()) laatikko->close();
    });
}

void Klikkaa(std::initializer_list<QWidget*> kohteet) {
    for (QWidget* w : kohteet) QTest::mouseClick(w, Qt::LeftButton);
}

namespace {
// What a widget shows, written as the runner writes its control.
std::string Näyttää(QWidget* w, const Ohjain& o, const std::string& tunnus) {
    if (const QVariant tiedosto = w->property("tiedosto"); tiedosto.isValid()) {
        EXPECT_EQ(S(w->toolTip()), o.vihje) << tunnus;
        return S(tiedosto.toString());
    }
    if (auto* l = qobject_cast<QListWidget*>(w)) {
        QStringList rivit;
        for (int i = 0; i < l->count(); ++i) rivit << l->item(i)->text();
        return S(rivit.join('|'));
    }
    if (auto* c = qobject_cast<QCheckBox*>(w)) {
        if (o.väri) {
            EXPECT_EQ(c->property("väri").toUInt(), *o.väri) << tunnus;
        }
        return c->isChecked() ? "True" : "False";
    }
    if (auto* b = qobject_cast<QAbstractButton*>(w)) return S(b->text());
    if (auto* s = qobject_cast<QSlider*>(w)) return std::to_string(s->value());
    if (auto* e = qobject_cast<QLineEdit*>(w)) return S(e->text());
    if (auto* l = qobject_cast<QLabel*>(w)) {
        if (l->pixmap().isNull()) return S(l->text());
        // A picture that doesn't keep its file's name: it has one, and its hint is the tool tip.
        EXPECT_NE(o.arvo, "") << tunnus;
        if (!o.vihje.empty()) {
            EXPECT_EQ(S(l->toolTip()), o.vihje) << tunnus;
        }
        return o.arvo;
    }
    // A panel or sheet shows its heading where it has one.
    auto* otsikko = w->findChild<QLabel*>("otsikko", Qt::FindDirectChildrenOnly);
    return otsikko ? S(otsikko->text()) : o.arvo;
}
}  // namespace

int VertaaRuutua(const Peli& peli, QWidget* ruutu, const std::string& näyttö) {
    int näkyviä = 0;
    for (const auto& [nimi, kuvaus] : Ohjaimet()) {
        if (nimi.rfind(näyttö + ".", 0) != 0) continue;
        const std::string lyhyt = nimi.substr(näyttö.size() + 1);
        for (int i = 0; i < std::max(kuvaus.koko, 1); ++i) {
            const std::string numero = kuvaus.koko ? std::to_string(kuvaus.alku + i) : "";
            const std::string tunnus = kuvaus.koko ? lyhyt + "(" + numero + ")" : lyhyt;
            const Ohjain o = *LueOhjain(peli, näyttö + "." + tunnus);
            QWidget* w = ruutu->findChild<QWidget*>(Q(tunnus));
            if (!w && kuvaus.koko) w = ruutu->findChild<QWidget*>(Q(lyhyt + numero));
            if (!w) {
                EXPECT_FALSE(o.näkyvissä) << tunnus << " shows but has no widget";
                continue;
            }
            EXPECT_EQ(w->isVisible(), o.näkyvissä) << tunnus;
            if (!o.näkyvissä) continue;
            ++näkyviä;
            EXPECT_EQ(w->isEnabled(), o.käytössä) << tunnus;
            EXPECT_EQ(Näyttää(w, o, tunnus), o.arvo) << tunnus;
        }
    }
    return näkyviä;
}

}  // namespace tanhua::ui::testi
