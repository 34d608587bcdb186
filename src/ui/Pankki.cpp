// The bank screen.
#include "Pankki.h"

// own
#include "Pääikkuna.h"
#include "core/ohjaimet.h"
#include "finance/pankki.h"
#include "finance/taulut/pankki.h"
#include "market/markkinat.h"
// Qt
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace tanhua::ui {

namespace {
// A control of the screen as the game says it shows.
Ohjain O(const Peli& peli, const QObject* w) { return LueRuudulta(peli, "Pankki", w->objectName().toStdString()); }

}  // namespace

Pankki::Pankki(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi) : Tausta(vanhempi), peli_(peli), ikkuna_(ikkuna) {
    setObjectName("Pankki");
    AsetaKuva(KuvaJosOn(peli_, "Kuvat/pankki.jpg"));
    aihe_ = AiheOtsikko("Pankki", this);
    ohje_ = OhjeRivi(this);
    sulje_ = new QPushButton(this);
    sulje_->setObjectName("Command1");
    Teksturoi(peli_, sulje_, "nappi2.jpg", 11, 12);
    sulje_->setMinimumSize(140, 40);
    connect(sulje_, &QPushButton::clicked, this, &Pankki::Sulje);

    QFrame* tili = Paneeli(this, "tili");
    lainaz_ = Teksti("", 16, tili);
    lainaz_->setObjectName("lainaz");
    tiliz_ = Teksti("", 16, tili);
    tiliz_->setObjectName("tiliz");
    maksuaikaz_ = Teksti("", 14, tili);
    maksuaikaz_->setObjectName("Maksuaikaz");
    otaLainaa_ = AlaruudunNappi(peli_, "Command2", tili);
    maksa_ = AlaruudunNappi(peli_, "Command3", tili);
    talleta_ = AlaruudunNappi(peli_, "Command4", tili);
    nosta_ = AlaruudunNappi(peli_, "Command5", tili);
    pörssi_ = AlaruudunNappi(peli_, "Command6", tili);
    vaku_ = AlaruudunNappi(peli_, "vaku", tili);
    connect(otaLainaa_, &QPushButton::clicked, this, [this] { Toimi(OtaLainaa); });
    connect(maksa_, &QPushButton::clicked, this, [this] { Toimi(MaksaLaina); });
    connect(talleta_, &QPushButton::clicked, this, [this] { Toimi(TalletaRahaa); });
    connect(nosta_, &QPushButton::clicked, this, [this] { Toimi(NostaTalletukset); });
    connect(vaku_, &QPushButton::clicked, this, [this] { Toimi(AvaaVakuutukset); });
    connect(pörssi_, &QPushButton::clicked, this, [this] { ikkuna_.NäytäPörssiraportti(); });
    // The account's figures at the top of the card, its six buttons filling the rest in pairs.
    auto* g = new QGridLayout(tili);
    g->setContentsMargins(12, 14, 12, 18);
    g->setHorizontalSpacing(10);
    g->setVerticalSpacing(10);
    g->addWidget(Teksti("Laina :", 12, tili, false), 0, 0);
    g->addWidget(lainaz_, 0, 1);
    g->addWidget(Teksti("Lyhennysvapaata, kk :", 12, tili, false), 1, 0);
    g->addWidget(maksuaikaz_, 1, 1);
    g->addWidget(Teksti("Talletukset :", 12, tili, false), 2, 0);
    g->addWidget(tiliz_, 2, 1);
    g->addWidget(otaLainaa_, 3, 0);
    g->addWidget(maksa_, 3, 1);
    g->addWidget(talleta_, 4, 0);
    g->addWidget(nosta_, 4, 1);
    g->addWidget(pörssi_, 5, 0);
    g->addWidget(vaku_, 5, 1);
    // The three pairs share the card's height below the figures.
    for (QPushButton* nappi : {otaLainaa_, maksa_, talleta_, nosta_, pörssi_, vaku_}) {
        nappi->setMinimumHeight(52);
        nappi->setMaximumHeight(84);
        nappi->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    }
    g->setRowMinimumHeight(2, 40);
    for (int rivi = 3; rivi <= 5; ++rivi) g->setRowStretch(rivi, 1);

    lappu_ = Lappu();
    vakuLappu_ = VakuLappu();
    // A sheet, when one is open, takes the whole right column; with both open, the insurances' longer
    // list takes the larger share.
    auto* oikea = new QVBoxLayout;
    oikea->addWidget(lappu_, 2);
    oikea->addWidget(vakuLappu_, 3);
    AsetteleAlaruutu(this, aihe_, tili, oikea, ohje_, sulje_, 6, 5);
}

QFrame* Pankki::Lappu() {
    QFrame* p = Paneeli(this, "Lappu");
    otsikko_ = Teksti("", 15, p);
    otsikko_->setObjectName("otsikko");
    teksti_ = Teksti("", 10, p, false);
    teksti_->setObjectName("teksti");
    teksti_->setWordWrap(true);
    summa_ = new QLineEdit(p);
    summa_->setObjectName("summa");
    summa_->setStyleSheet("font-size: 13pt; padding: 3px;");
    connect(summa_, &QLineEdit::textEdited, this, [this](const QString& teksti) {
        KirjoitaSumma(peli_, teksti.toStdString());
    });
    aikaz_ = Teksti("", 12, p);
    aikaz_->setObjectName("aika");
    prossa_ = Teksti("", 12, p);
    prossa_->setObjectName("prossa");
    yksikkö_ = Teksti("‰ / kk", 12, p);
    aikaAlas_ = AlaruudunNappi(peli_, "Command9", p);
    aikaYlös_ = AlaruudunNappi(peli_, "Command10", p);
    vahvista_ = AlaruudunNappi(peli_, "Command8", p);
    suljeLappu_ = AlaruudunNappi(peli_, "Command7", p);
    connect(aikaAlas_, &QPushButton::clicked, this, [this] { Toimi(LyhennäMaksuaikaa); });
    connect(aikaYlös_, &QPushButton::clicked, this, [this] { Toimi(PidennäMaksuaikaa); });
    connect(vahvista_, &QPushButton::clicked, this, [this] { Toimi(VahvistaLappu); });
    connect(suljeLappu_, &QPushButton::clicked, this, [this] { Toimi(SuljeLappu); });
    connect(summa_, &QLineEdit::returnPressed, vahvista_, &QPushButton::click);
    auto* g = new QGridLayout(p);
    // Both sheets may be open at once in the right column: each keeps to what it needs.
    g->setContentsMargins(14, 8, 14, 10);
    g->setVerticalSpacing(6);
    g->addWidget(otsikko_, 0, 0, 1, 4);
    g->addWidget(teksti_, 1, 0, 1, 4);
    teksti_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // The explanation gives way first when the insurances' sheet shares the column.
    teksti_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    teksti_->setStyleSheet(teksti_->styleSheet().replace("10pt", "11pt"));
    g->setRowStretch(1, 1);
    for (QPushButton* nappi : {vahvista_, suljeLappu_}) nappi->setMinimumHeight(36);
    g->addWidget(Teksti("Summa :", 11, p, false), 2, 0);
    g->addWidget(summa_, 2, 1, 1, 3);
    g->addWidget(aikaAlas_, 3, 0);
    g->addWidget(aikaz_, 3, 1, Qt::AlignCenter);
    g->addWidget(aikaYlös_, 3, 2);
    auto* korko = new QHBoxLayout;
    korko->addWidget(prossa_);
    korko->addWidget(yksikkö_);
    g->addLayout(korko, 3, 3);
    g->addWidget(vahvista_, 4, 0, 1, 2);
    g->addWidget(suljeLappu_, 4, 2, 1, 2);
    p->hide();
    return p;
}

QFrame* Pankki::VakuLappu() {
    QFrame* p = Paneeli(this, "VakuLappu");
    auto* g = new QGridLayout(p);
    vakuOtsikko_ = Teksti("", 14, p);
    g->addWidget(vakuOtsikko_, 0, 0, 1, 2);
    g->setContentsMargins(14, 6, 14, 8);
    g->setVerticalSpacing(2);
    // The heading, and under it the line that asks for ticks, each across the sheet.
    g->addWidget(Teksti(Sv(pankkiteksti::Vakuutukset), 11, p), 1, 0, 1, 2);
    g->addWidget(Teksti(Sv(pankkiteksti::Rastita), 10, p, false), 2, 0, 1, 2);
    for (int v = 0; v < static_cast<int>(VAKUUTUKSIA); ++v) {
        const VakuutusRivi& rivi = VAKUUTUSTAULU[v];
        vakuutukset_[v] = new QCheckBox(Sv(rivi.nimi), p);
        vakuutukset_[v]->setObjectName(Sv(rivi.laatikko));
        vakuutukset_[v]->setStyleSheet("color: #24160a;");
        vakuutukset_[v]->setProperty("vakuutus", v);
        vakuutukset_[v]->installEventFilter(this);
        maksut_[v] = Teksti("", 11, p);
        maksut_[v]->setObjectName(Sv(rivi.maksu));
        g->addWidget(vakuutukset_[v], 3 + v, 0);
        g->addWidget(maksut_[v], 3 + v, 1, Qt::AlignRight);
        connect(vakuutukset_[v], &QCheckBox::clicked, this, [this, v](bool päällä) {
            ikkuna_.Toimi([this, v, päällä] { VaihdaVakuutus(peli_, static_cast<tanhua::Vakuutus>(v), päällä); });
        });
    }
    vakusumma_ = Teksti("", 12, p);
    vakusumma_->setObjectName("Vakusummaz");
    vakuinfo_ = Teksti("", 10, p, false);
    vakuinfo_->setObjectName("Vakuinfo");
    vakuinfo_->setWordWrap(true);

    vakuinfo_->setProperty("vakuutus", -1);
    vakuinfo_->installEventFilter(this);
    suljeVaku_ = AlaruudunNappi(peli_, "Command11", p);
    connect(suljeVaku_, &QPushButton::clicked, this, [this] { Toimi(SuljeVakuutukset); });
    // The sum sits in the blanks of its line, before "/ kk".
    const QString summarivi = Sv(pankkiteksti::VakuSumma);
    auto* summa = new QHBoxLayout;
    summa->addWidget(Teksti(summarivi.left(summarivi.indexOf(':') + 1), 11, p, false));
    summa->addStretch();
    summa->addWidget(vakusumma_);
    summa->addWidget(Teksti(summarivi.mid(summarivi.lastIndexOf('/')), 11, p, false));
    g->addLayout(summa, 8, 0, 1, 2);
    g->addWidget(vakuinfo_, 9, 0, 1, 2, Qt::AlignTop);
    g->setRowStretch(9, 1);
    suljeVaku_->setMinimumHeight(34);
    g->addWidget(suljeVaku_, 10, 0, 1, 2);
    p->hide();
    return p;
}

void Pankki::Toimi(void (*f)(Peli&)) {
    ikkuna_.Toimi([this, f] {
        f(peli_);
        NäytäRaha(peli_);
    });
}

void Pankki::Avaa() { AvaaPankki(peli_); }

void Pankki::Päivitä() {
    const PankkiRuutuTila& t = peli_.pankkiruutu;
    lappu_->setVisible(t.Lappu);
    vakuLappu_->setVisible(t.VakuLappu);
    // With both sheets open in the column, the loan's explanation keeps to two lines.
    teksti_->setMaximumHeight(t.Lappu && t.VakuLappu ? teksti_->fontMetrics().lineSpacing() * 2 : QWIDGETSIZE_MAX);
    vakuOtsikko_->setText(QString::fromStdString(LueOhjain(peli_, "Pankki.VakuLappu")->arvo));
    // Every named label and button shows its control: text, whether it shows, whether it can be clicked.
    for (QLabel* l : {lainaz_, tiliz_, maksuaikaz_, otsikko_, teksti_, aikaz_, prossa_, vakusumma_, vakuinfo_}) {
        const Ohjain o = O(peli_, l);
        l->setText(QString::fromStdString(o.arvo));
        if (l->parentWidget() == lappu_) l->setVisible(o.näkyvissä);
    }
    yksikkö_->setVisible(t.aikaNäkyvissä);
    for (QLabel* l : maksut_) l->setText(QString::fromStdString(O(peli_, l).arvo));
    for (QPushButton* b : {otaLainaa_, maksa_, talleta_, nosta_, pörssi_, vaku_, sulje_, aikaAlas_, aikaYlös_, vahvista_,
                           suljeLappu_, suljeVaku_}) {
        const Ohjain o = O(peli_, b);
        if (!o.näkyvissä) {
            b->setVisible(false);
            continue;
        }
        b->setText(QString::fromStdString(o.arvo));
        b->setEnabled(o.käytössä);
        b->setVisible(true);
    }
    const Ohjain summa = O(peli_, summa_);
    if (summa.näkyvissä && summa_->text().toStdString() != summa.arvo) summa_->setText(QString::fromStdString(summa.arvo));
    for (QCheckBox* c : vakuutukset_) {
        const Ohjain o = O(peli_, c);
        if (o.näkyvissä) c->setChecked(o.arvo == "True");
    }
    ohje_->setVisible(false);
}

bool Pankki::eventFilter(QObject* kohde, QEvent* tapahtuma) {
    if (tapahtuma->type() == QEvent::Enter && kohde->property("vakuutus").isValid()) {
        const int v = kohde->property("vakuutus").toInt();
        ikkuna_.Toimi([this, v] { OsoitinVakuutukseen(peli_, v); });
    }
    return Tausta::eventFilter(kohde, tapahtuma);
}

void Pankki::keyPressEvent(QKeyEvent* tapahtuma) {
    if (tapahtuma->key() == Qt::Key_Escape) {
        // With a sheet showing, Esc hides both sheets; otherwise it leaves the bank.
        bool suljettu = false;
        ikkuna_.Toimi([this, &suljettu] { suljettu = PankkiEsc(peli_); });
        if (suljettu) ikkuna_.PalaaPääruutuun();
        return;
    }
    Tausta::keyPressEvent(tapahtuma);
}

void Pankki::Sulje() {
    ikkuna_.Toimi([this] { SuljePankki(peli_); });
    ikkuna_.PalaaPääruutuun();
}

}  // namespace tanhua::ui
