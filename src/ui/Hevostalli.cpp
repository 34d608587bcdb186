// The stable screen.
#include "Hevostalli.h"

// own
#include "Pääikkuna.h"
#include "buildings/talli.h"
#include "buildings/taulut/talli.h"
#include "core/ohjaimet.h"
// Qt
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace tanhua::ui {

namespace {
// A control of the screen as the game says it shows.
Ohjain O(const Peli& peli, const QObject* w) { return LueRuudulta(peli, "Hevostalli", w->objectName().toStdString()); }

QLabel* Luku(const char* nimi, QWidget* vanhempi) {
    QLabel* l = Teksti("", 14, vanhempi);
    l->setObjectName(nimi);
    return l;
}
}  // namespace

Hevostalli::Hevostalli(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi)
    : Tausta(vanhempi), peli_(peli), ikkuna_(ikkuna) {
    setObjectName("Hevostalli");
    setMouseTracking(true);
    AsetaKuva(KuvaJosOn(peli_, "Kuvat/PeltoTaloja.jpg"));
    aihe_ = AiheOtsikko("Hevostalli", this);
    ohje_ = OhjeRivi(this);
    sulje_ = new QPushButton(this);
    sulje_->setObjectName("Command1");
    Teksturoi(peli_, sulje_, "nappi2.jpg", 11, 12);
    sulje_->setMinimumSize(140, 40);
    connect(sulje_, &QPushButton::clicked, this, &Hevostalli::Sulje);

    // The stable's figures, the month's ledger and the two buttons on the left.
    QFrame* talli = Paneeli(this, "talli");
    laidun_ = Luku("Laidunz", talli);
    hevoset_ = Luku("Hevonenz", talli);
    kapasiteetti_ = Luku("KapasiteettiZ", talli);
    tunnit_ = Luku("tunnitz", talli);
    ratsastus_ = new QListWidget(talli);
    ratsastus_->setObjectName("Ratsastus");
    ratsastus_->setFocusPolicy(Qt::NoFocus);
    ratsastus_->setSelectionMode(QAbstractItemView::NoSelection);
    ratsastus_->setStyleSheet("QListWidget { font-size: 11pt; background: rgba(255, 255, 255, 120);"
                              " border: 1px solid #6b4a22; border-radius: 4px; }");
    hinnasto_ = AlaruudunNappi(peli_, "Command3", talli);
    ravit_ = AlaruudunNappi(peli_, "Command2", talli);
    ravit_->setMouseTracking(true);
    ravit_->installEventFilter(this);
    connect(hinnasto_, &QPushButton::clicked, this, [this] { ikkuna_.Toimi([this] { VaihdaHinnasto(peli_); }); });
    // The notice, then the race screen; its close button comes back here.
    connect(ravit_, &QPushButton::clicked, this, [this] { ikkuna_.AvaaRavit(this); });
    auto* g = new QGridLayout(talli);
    g->addWidget(Teksti("Laidunta, ha :", 12, talli, false), 0, 0);
    g->addWidget(laidun_, 0, 1);
    g->addWidget(Teksti("Hevosia :", 12, talli, false), 1, 0);
    g->addWidget(hevoset_, 1, 1);
    g->addWidget(Teksti("Laitumen käyttöaste, % :", 12, talli, false), 2, 0);
    g->addWidget(kapasiteetti_, 2, 1);
    g->addWidget(Teksti("Ratsastustulot tässä kuussa :", 12, talli, false), 3, 0);
    g->addWidget(tunnit_, 3, 1);
    g->addWidget(Teksti("Ratsastustunnit :", 12, talli), 4, 0, 1, 2);
    g->addWidget(ratsastus_, 5, 0, 1, 2);
    g->addWidget(hinnasto_, 6, 0);
    g->addWidget(ravit_, 6, 1);
    g->setRowStretch(5, 1);

    // The price sheet and the race costs on the right.
    hinnastoLappu_ = HinnastoLappu();
    ravikustannus_ = Teksti("", 11, this, false);
    ravikustannus_->setObjectName("Ravikustannus");
    ravikustannus_->setStyleSheet("color: #24160a; font-size: 11pt; font-family: monospace;"
                                  " background: rgba(255, 250, 235, 235); border: 2px solid #6b4a22;"
                                  " border-radius: 8px; padding: 8px;");
    ravikustannus_->hide();
    auto* oikea = new QVBoxLayout;
    oikea->addSpacing(50);  // below the money plate
    oikea->addWidget(hinnastoLappu_);
    oikea->addWidget(ravikustannus_);
    oikea->addStretch();
    AsetteleAlaruutu(this, aihe_, talli, oikea, ohje_, sulje_);
}

QFrame* Hevostalli::HinnastoLappu() {
    QFrame* p = Paneeli(this, "Hinnasto");
    const QString vihje = Sv(tallit::HinnastoVihje);
    p->setToolTip(vihje);
    QLabel* otsikko = Teksti(Sv(tallit::TunninHinta), 13, p);
    otsikko->setObjectName("otsikko");
    rulla_ = new QSlider(Qt::Horizontal, p);
    rulla_->setObjectName("rulla");
    rulla_->setRange(0, RULLA_MAX);
    rulla_->setPageStep(1);
    rulla_->setTickPosition(QSlider::TicksBelow);
    rulla_->setToolTip(vihje);
    connect(rulla_, &QSlider::valueChanged, this,
            [this](int arvo) { ikkuna_.Toimi([this, arvo] { AsetaRulla(peli_, arvo); }); });
    summa_ = Teksti("", 15, p);
    summa_->setObjectName("summa");
    auto* g = new QGridLayout(p);
    g->addWidget(otsikko, 0, 0, 1, 3);
    g->addWidget(rulla_, 1, 0, 1, 3);
    g->addWidget(Teksti(Sv(tallit::TuntiMaksaa), 12, p, false), 2, 0);
    g->addWidget(summa_, 2, 1);
    p->hide();
    return p;
}

void Hevostalli::Avaa() { AvaaHevostalli(peli_); }

void Hevostalli::Päivitä() {
    for (QLabel* l : {laidun_, hevoset_, kapasiteetti_, tunnit_, summa_, ravikustannus_}) Näytä(l, O(peli_, l));
    for (QPushButton* b : {hinnasto_, ravit_, sulje_}) Näytä(b, O(peli_, b));
    // The crowding's colour: green, yellow from 75, red at a full pasture.
    if (const Ohjain c = O(peli_, kapasiteetti_); c.väri)
        kapasiteetti_->setStyleSheet(QString("color: rgb(%1,%2,%3); font-size: 16pt; font-weight: bold;")
                                         .arg(*c.väri & 0xFF)
                                         .arg((*c.väri >> 8) & 0xFF)
                                         .arg((*c.väri >> 16) & 0xFF));
    const QStringList rivit = Q(O(peli_, ratsastus_).arvo).split('|', Qt::SkipEmptyParts);
    QStringList nyt;
    for (int i = 0; i < ratsastus_->count(); ++i) nyt << ratsastus_->item(i)->text();
    if (nyt != rivit) {
        ratsastus_->clear();
        ratsastus_->addItems(rivit);
        ratsastus_->scrollToBottom();
    }
    const Ohjain hinnasto = O(peli_, hinnastoLappu_);
    hinnastoLappu_->setVisible(hinnasto.näkyvissä);
    if (hinnasto.näkyvissä) {
        const QSignalBlocker esto(rulla_);
        rulla_->setValue(std::stoi(O(peli_, rulla_).arvo));
    }
    ohje_->setVisible(false);
}

bool Hevostalli::eventFilter(QObject* kohde, QEvent* tapahtuma) {
    // The pointer on the race button shows what a race day would cost; leaving it hides the sheet.
    if (kohde == ravit_ && (tapahtuma->type() == QEvent::Enter || tapahtuma->type() == QEvent::Leave)) {
        const bool napilla = tapahtuma->type() == QEvent::Enter;
        ikkuna_.Toimi([this, napilla] { OsoitinRaveihin(peli_, napilla); });
    }
    return Tausta::eventFilter(kohde, tapahtuma);
}

void Hevostalli::Sulje() {
    ikkuna_.Toimi([this] { SuljeHevostalli(peli_); });
    ikkuna_.PalaaPääruutuun();
}

}  // namespace tanhua::ui
