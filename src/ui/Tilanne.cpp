// The Tilanne screen.
#include "Tilanne.h"

// own
#include "Pääikkuna.h"
#include "career/tilanne.h"
#include "core/alku.h"
#include "storage/tallennus.h"
// Qt
#include <QEvent>
#include <QFontDatabase>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>
#include <QVBoxLayout>
// std
#include <algorithm>

namespace tanhua::ui {

namespace {
Ohjain O(const Peli& peli, const QObject* w) { return LueRuudulta(peli, "Tilanne", w->objectName().toStdString()); }
}  // namespace

PainettuAlue::PainettuAlue(const char* nimi, int koko, QWidget* vanhempi) : QFrame(vanhempi), koko_(koko) {
    setObjectName(nimi);
    setMinimumSize(300, 300);
}

void PainettuAlue::AsetaRivit(const std::vector<std::string>& rivit) {
    QStringList uudet;
    for (const std::string& r : rivit) uudet << Q(r);
    if (uudet == rivit_) return;
    rivit_ = uudet;
    update();
}

void PainettuAlue::AsetaTausta(const QPixmap& kuva) {
    tausta_ = kuva;
    update();
}

void PainettuAlue::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF arkki = QRectF(rect()).adjusted(1, 1, -1, -1);
    if (!tausta_.isNull()) {
        p.save();
        QPainterPath reuna;
        reuna.addRoundedRect(arkki, 10, 10);
        p.setClipPath(reuna);
        p.drawPixmap(rect(), tausta_.scaled(size(), Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation));
        p.restore();
    }
    // A light sheet over the picture so the print reads.
    p.setPen(QPen(QColor(107, 74, 34), 2));
    p.setBrush(QColor(255, 250, 235, tausta_.isNull() ? 230 : 190));
    p.drawRoundedRect(arkki, 10, 10);
    // The print keeps to the sheet: the widest line makes the letters smaller until it fits.
    QFont fontti = font();
    fontti.setPointSize(koko_);
    auto leveys = [this](const QFont& f) {
        int suurin = 0;
        for (const QString& rivi : rivit_) suurin = std::max(suurin, QFontMetrics(f).horizontalAdvance(rivi));
        return suurin;
    };
    while (fontti.pointSize() > 6 && leveys(fontti) > width() - 28) fontti.setPointSize(fontti.pointSize() - 1);
    p.setFont(fontti);
    p.setClipRect(arkki.adjusted(4, 4, -4, -4));
    p.setPen(QColor(36, 22, 10));
    const int rivinKorkeus = p.fontMetrics().height();
    int y = 12 + p.fontMetrics().ascent();
    for (const QString& rivi : rivit_) {
        p.drawText(14, y, rivi);
        y += rivinKorkeus;
    }
}

QPushButton* Tilanne::Nappi(const char* nimi, QWidget* vanhempi) {
    auto* n = new QPushButton(vanhempi);
    n->setObjectName(nimi);
    Teksturoi(peli_, n, "nappi2.jpg", 11, 12);
    n->setMinimumHeight(34);
    n->setProperty("ohje", nimi);
    n->installEventFilter(this);
    return n;
}

Tilanne::Tilanne(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi) : Tausta(vanhempi), peli_(peli), ikkuna_(ikkuna) {
    setObjectName("Tilanne");
    AsetaKuva(KuvaJosOn(peli_, "Kuvat/iltapelto.jpg"));
    aihe_ = AiheOtsikko("Tilanne", this);
    ohje_ = OhjeRivi(this);
    sulje_ = Nappi("Command3", this);
    sulje_->setMinimumSize(140, 40);
    connect(sulje_, &QPushButton::clicked, this, &Tilanne::Sulje);

    // The print area with the score; the story lies over it once it is told.
    QWidget* vasen = new QWidget(this);
    auto* v = new QGridLayout(vasen);
    v->setContentsMargins(0, 0, 0, 0);
    alue_ = new PainettuAlue("Alue", 11, vasen);
    tarina_ = new PainettuAlue("Tarina", 10, vasen);
    tarina_->setMinimumSize(0, 0);
    tarinaSulje_ = Nappi("TarinaSulje", tarina_);
    auto* t = new QVBoxLayout(tarina_);
    t->addStretch();
    t->addWidget(tarinaSulje_, 0, Qt::AlignRight);
    connect(tarinaSulje_, &QPushButton::clicked, this, [this] { Toimi(SuljeTarina); });
    v->addWidget(alue_, 0, 0);
    v->addWidget(tarina_, 0, 0);
    tarina_->hide();

    auto* oikea = new QVBoxLayout;
    QFrame* napit = tanhua::ui::Paneeli(this, "napit");
    auto* n = new QVBoxLayout(napit);
    avaaTallenna_ = Nappi("Command1", napit);
    eläke_ = Nappi("Command4", napit);
    listat_ = Nappi("Command8", napit);
    uusi_ = Nappi("Command10", napit);
    for (QPushButton* b : {avaaTallenna_, eläke_, listat_, uusi_}) n->addWidget(b);
    connect(avaaTallenna_, &QPushButton::clicked, this, [this] { Toimi(AvaaPaneeli); });
    connect(eläke_, &QPushButton::clicked, this, [this] { Toimi(JääEläkkeelle); });
    connect(listat_, &QPushButton::clicked, this, [this] { Toimi(EnnätysListat); });
    connect(uusi_, &QPushButton::clicked, this, &Tilanne::UusiTilanne);
    akkuna_ = Paneeli();
    // The buttons above the save panel, which takes the rest of the column for its list.
    n->setContentsMargins(10, 8, 10, 8);
    n->setSpacing(6);
    oikea->addWidget(napit);
    oikea->addWidget(akkuna_, 1);
    oikea->addStretch(0);
    AsetteleAlaruutu(this, aihe_, vasen, oikea, ohje_, sulje_);
}

QFrame* Tilanne::Paneeli() {
    QFrame* p = tanhua::ui::Paneeli(this, "akkuna");
    auto* g = new QGridLayout(p);
    g->setContentsMargins(10, 8, 10, 8);
    g->setVerticalSpacing(4);
    g->addWidget(Teksti("Tilanteen nimi :", 11, p, false), 0, 0, 1, 2);
    kohde_ = new QLineEdit(p);
    kohde_->setObjectName("Kohde");
    kohde_->setStyleSheet("font-size: 12pt; padding: 3px;");
    connect(kohde_, &QLineEdit::textEdited, this, [this](const QString& teksti) { peli_.tilanneruutu.Kohde = S(teksti); });
    tiedostot_ = new QListWidget(p);
    tiedostot_->setObjectName("File1");
    tiedostot_->setStyleSheet("font-size: 11pt;");
    tiedostot_->setMinimumHeight(60);
    connect(tiedostot_, &QListWidget::itemClicked, this, [this](QListWidgetItem* rivi) {
        const std::string tiedosto = S(rivi->text());
        ikkuna_.Toimi([this, tiedosto] { ValitseTiedosto(peli_, tiedosto); });
    });
    tallenna_ = Nappi("Command5", p);
    avaa_ = Nappi("Command6", p);
    poista_ = Nappi("Poista", p);
    suljePaneeli_ = Nappi("Command2", p);
    connect(tallenna_, &QPushButton::clicked, this, [this] { Toimi([](Peli& peli) { TallennaNappi(peli); }); });
    connect(avaa_, &QPushButton::clicked, this, [this] { Toimi([](Peli& peli) { AvaaNappi(peli); }); });
    connect(poista_, &QPushButton::clicked, this, [this] { Toimi(PoistaTilanne); });
    connect(suljePaneeli_, &QPushButton::clicked, this, [this] { Toimi(SuljePaneeli); });
    connect(kohde_, &QLineEdit::returnPressed, tallenna_, &QPushButton::click);
    g->addWidget(kohde_, 1, 0, 1, 2);
    g->addWidget(tiedostot_, 2, 0, 1, 2);
    g->addWidget(tallenna_, 3, 0);
    g->addWidget(avaa_, 3, 1);
    g->addWidget(poista_, 4, 0);
    g->addWidget(suljePaneeli_, 4, 1);
    p->hide();
    return p;
}

void Tilanne::Toimi(void (*f)(Peli&)) { ikkuna_.Toimi([this, f] { f(peli_); }); }

void Tilanne::Avaa() {
    // The print area's backdrop only chooses a look: the window's own draw, not the game's.
    const int n = QRandomGenerator::global()->bounded(1, 6);
    alue_->AsetaTausta(KuvaJosOn(peli_, "Kuvat/Valotausta" + std::to_string(n) + ".jpg"));
    AvaaTilanneRuutu(peli_);
}

void Tilanne::Päivitä() {
    const TilanneRuutuTila& t = peli_.tilanneruutu;
    alue_->AsetaRivit(t.Alue);
    tarina_->AsetaRivit(t.TarinaRivit);
    tarina_->setVisible(t.Tarina);
    alue_->setVisible(!t.Tarina);
    akkuna_->setVisible(t.akkuna);
    for (QPushButton* b : {avaaTallenna_, sulje_, eläke_, listat_, uusi_, tallenna_, avaa_, poista_, suljePaneeli_,
                           tarinaSulje_}) {
        const Ohjain o = O(peli_, b);
        b->setVisible(o.näkyvissä);
        if (!o.näkyvissä) continue;
        b->setText(Q(o.arvo));
        b->setEnabled(o.käytössä);
    }
    if (t.akkuna) {
        if (S(kohde_->text()) != t.Kohde) kohde_->setText(Q(t.Kohde));
        QStringList rivit;
        for (const std::string& s : t.Tiedostot) rivit << Q(s);
        QStringList nyt;
        for (int i = 0; i < tiedostot_->count(); ++i) nyt << tiedostot_->item(i)->text();
        if (nyt != rivit) {
            tiedostot_->clear();
            tiedostot_->addItems(rivit);
        }
    }
    const Ohjain ohje = O(peli_, ohje_);
    ohje_->setVisible(ohje.näkyvissä);
    ohje_->setText(Q(ohje.arvo));
}

bool Tilanne::eventFilter(QObject* kohde, QEvent* tapahtuma) {
    if (tapahtuma->type() == QEvent::Enter && peli_.m.OhjeetPäällä) {
        const QVariant kontrolli = kohde->property("ohje");
        if (kontrolli.isValid() && !TilanneOhje(S(kontrolli.toString())).empty()) {
            OsoitinTilanteessa(peli_, S(kontrolli.toString()));
            Päivitä();
        }
    }
    return Tausta::eventFilter(kohde, tapahtuma);
}

void Tilanne::keyPressEvent(QKeyEvent* tapahtuma) {
    if (tapahtuma->key() == Qt::Key_Escape) {
        // With the panel showing, Esc closes it; otherwise it leaves the screen, unless the story shows.
        bool suljettu = false;
        ikkuna_.Toimi([this, &suljettu] { suljettu = TilanneEsc(peli_); });
        if (suljettu) ikkuna_.PalaaPääruutuun();
        return;
    }
    Tausta::keyPressEvent(tapahtuma);
}

void Tilanne::Sulje() {
    bool suljettu = false;
    ikkuna_.Toimi([this, &suljettu] { suljettu = SuljeTilanneRuutu(peli_); });
    if (suljettu) ikkuna_.PalaaPääruutuun();
}

void Tilanne::UusiTilanne() {
    bool uusi = false;
    ikkuna_.Toimi([this, &uusi] { uusi = tanhua::UusiTilanne(peli_); });
    if (!uusi) return;
    // The farm is thrown away: the start screen again.
    ikkuna_.pino()->setCurrentWidget(ikkuna_.alku());
    ikkuna_.alku()->Päivitä();
    ikkuna_.Päivitä();  // the money plate goes with the farm
}

}  // namespace tanhua::ui
