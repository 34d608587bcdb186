// The race-betting screen.
#include "Ravit.h"

// own
#include "Pääikkuna.h"
#include "core/ohjaimet.h"
#include "racing/ravit.h"
// Qt
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>
// std
#include <cmath>

namespace tanhua::ui {

namespace {
Ohjain O(const Peli& peli, const QObject* w) {
    // A member of an array is named "RaviNimi3" on screen and "RaviNimi(3)" in the game.
    const QString nimi = w->objectName();
    const QVariant indeksi = w->property("indeksi");
    const std::string ohjain = indeksi.isValid() ? S(w->property("taulukko").toString()) + "(" +
                                                       std::to_string(indeksi.toInt()) + ")"
                                                 : S(nimi);
    return LueRuudulta(peli, "Ravit", ohjain);
}

QPushButton* Nappi(const Peli& peli, const QString& nimi, QWidget* vanhempi, int leveys = 120) {
    auto* n = new QPushButton(vanhempi);
    n->setObjectName(nimi);
    Teksturoi(peli, n, "nappi2.jpg", 11, 12);
    n->setMinimumSize(leveys, 32);
    return n;
}

// A row's name or odds: flat text that takes a click.
QPushButton* Rivinappi(const char* taulukko, int i, QWidget* vanhempi) {
    auto* n = new QPushButton(vanhempi);
    n->setObjectName(QString("%1%2").arg(taulukko).arg(i));
    n->setProperty("taulukko", taulukko);
    n->setProperty("indeksi", i);
    n->setFlat(true);
    n->setCursor(Qt::PointingHandCursor);
    n->setStyleSheet("QPushButton { color: #24160a; font-size: 11pt; text-align: left; padding: 2px 6px;"
                     " border: none; border-bottom: 1px dotted #8a6a3a; } QPushButton:hover { color: #a0301a; }");
    return n;
}
}  // namespace

TulosLappu::TulosLappu(const Peli& peli, QWidget* vanhempi) : QWidget(vanhempi), peli_(peli) {
    setObjectName("Tulos");
    setMinimumSize(380, 330);
    // The sheet paints every pixel itself, so a new sheet repaints only the sheet, not the backdrop.
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void TulosLappu::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), QColor(252, 248, 232));
    p.setPen(QPen(QColor(107, 74, 34), 2));
    p.drawRect(rect().adjusted(1, 1, -1, -1));
    QFont f = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    f.setPointSize(8);
    p.setFont(f);
    const QFontMetrics mitat(f);
    int y = 10 + mitat.ascent();
    for (const RaporttiRivi& rivi : peli_.raviruutu.tulos) {
        p.setPen(QColor(rivi.väri & 0xFF, (rivi.väri >> 8) & 0xFF, (rivi.väri >> 16) & 0xFF));
        p.drawText(14 + rivi.sarake * mitat.horizontalAdvance('0'), y, Q(rivi.teksti));
        y += mitat.lineSpacing();
    }
}

Maalaus::Maalaus(const char* nimi, std::function<void(QPainter&, QWidget&)> maalaa, QWidget* vanhempi)
    : QWidget(vanhempi), maalaa_(std::move(maalaa)) {
    setObjectName(nimi);
}

void Maalaus::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    maalaa_(p, *this);
}

Ravit::Ravit(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi) : Tausta(vanhempi), peli_(peli), ikkuna_(ikkuna) {
    setObjectName("Ravit");
    AsetaKuva(KuvaJosOn(peli_, "Kuvat/PeltoTaloja.jpg"));
    for (int n : {1, 2, 4, 5, 6, 7, 8, 9, 10}) napit_[static_cast<std::size_t>(n)] = Nappi(peli_, QString("Command%1").arg(n), this);
    kuponki_ = Kuponki();
    tulos_ = new TulosLappu(peli_, this);
    napit_[8]->setParent(tulos_);
    auto* tl = new QVBoxLayout(tulos_);
    tl->addStretch();
    tl->addWidget(napit_[8], 0, Qt::AlignRight);

    connect(napit_[2], &QPushButton::clicked, this, [this] { Toimi([this] { LyöVetoa(peli_); }); });
    connect(napit_[1], &QPushButton::clicked, this, [this] {
        Toimi([this] { SuljeRavit(peli_); });
        if (Suljettu) Suljettu();
    });
    connect(napit_[8], &QPushButton::clicked, this, [this] { Toimi([this] { SuljeTulos(peli_); }); });

    auto* ylä = new QHBoxLayout;
    ylä->addWidget(AiheOtsikko("Ravit", this));
    ylä->addSpacing(12);
    ylä->addWidget(napit_[2]);
    ylä->addStretch();
    ylä->addSpacing(240);  // room for the money plate
    auto* keski = new QHBoxLayout;
    keski->addWidget(kuponki_, 3);
    keski->addWidget(tulos_, 2, Qt::AlignTop);
    auto* ala = new QHBoxLayout;
    ala->addStretch();
    ala->addWidget(napit_[1]);
    auto* pää = new QVBoxLayout(this);
    pää->setContentsMargins(16, 12, 16, 12);
    pää->addLayout(ylä);
    pää->addLayout(keski, 1);
    pää->addLayout(ala);
}

QFrame* Ravit::Kuponki() {
    QFrame* k = Paneeli(this, "Picture1");
    otsikko_ = Teksti("", 14, k);
    otsikko_->setObjectName("otsikko");
    vetolaji_ = Teksti("", 14, k);
    vetolaji_->setObjectName("Vetolaji");
    for (int n : {5, 10, 9}) {
        napit_[static_cast<std::size_t>(n)]->setParent(k);
        Teksturoi(peli_, napit_[static_cast<std::size_t>(n)], "nappi2.jpg", 10, 11);
        napit_[static_cast<std::size_t>(n)]->setMinimumWidth(n == 9 ? 124 : 70);
        const int n2 = n;
        connect(napit_[static_cast<std::size_t>(n)], &QPushButton::clicked, this, [this, n2] {
            const std::string_view laji = n2 == 5 ? vetolaji::V75 : n2 == 10 ? vetolaji::Trio : vetolaji::Voittajaveto;
            Toimi([this, laji] { ValitseVetolaji(peli_, laji); });
        });
    }
    // The race bar marks the race on view.
    riviNro_ = new Maalaus("RiviNro", [this](QPainter& p, QWidget&) {
        const QPushButton* b = rivit_[std::min<std::size_t>(peli_.raviruutu.RiviNro, RIVINAPPEJA - 1)];
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(176, 58, 26, 170));
        p.drawRoundedRect(QRectF(b->geometry()).adjusted(-3, -3, 3, 3), 6, 6);
    }, k);
    auto* rb = new QHBoxLayout(riviNro_);
    rb->setContentsMargins(4, 4, 4, 4);
    for (int i = 0; i < RIVINAPPEJA; ++i) {
        rivit_[static_cast<std::size_t>(i)] = Nappi(peli_, QString("Rivi%1").arg(i), riviNro_, 40);
        rivit_[static_cast<std::size_t>(i)]->setProperty("taulukko", "Rivi");
        rivit_[static_cast<std::size_t>(i)]->setProperty("indeksi", i);
        connect(rivit_[static_cast<std::size_t>(i)], &QPushButton::clicked, this, [this, i] { Toimi([this, i] { NäytäRivi(peli_, i); }); });
        rb->addWidget(rivit_[static_cast<std::size_t>(i)]);
    }
    auto* rivit = new QGridLayout;
    rivit->addWidget(Teksti("Hevonen", 10, k, false), 0, 1);
    rivit->addWidget(Teksti("Kerroin", 10, k, false), 0, 2);
    for (int i = 0; i < RIVEJÄ; ++i) {
        const auto j = static_cast<std::size_t>(i);
        nimet_[j] = Rivinappi("RaviNimi", i, k);
        kertoimet_[j] = Rivinappi("Kerroin", i, k);
        ruudut_[j] = Teksti("", 12, k);
        ruudut_[j]->setObjectName(QString("Ruutu%1").arg(i));
        ruudut_[j]->setProperty("taulukko", "Ruutu");
        ruudut_[j]->setProperty("indeksi", i);
        ruudut_[j]->setFixedSize(30, 26);
        ruudut_[j]->setAlignment(Qt::AlignCenter);
        ruudut_[j]->setStyleSheet("color: #a0301a; font-size: 13pt; font-weight: bold; background: white;"
                                  " border: 2px solid #6b4a22; border-radius: 3px;");
        connect(nimet_[j], &QPushButton::clicked, this, [this, i] { Toimi([this, i] { MerkitseHevonen(peli_, i); }); });
        connect(kertoimet_[j], &QPushButton::clicked, this, [this, i] { Toimi([this, i] { ValitseKerroin(peli_, i); }); });
        rivit->addWidget(ruudut_[j], i + 1, 0);
        rivit->addWidget(nimet_[j], i + 1, 1);
        rivit->addWidget(kertoimet_[j], i + 1, 2);
    }
    rivit->setColumnStretch(1, 1);

    // The stake: "-", the box, "+", and the pile of coins it makes.
    panosz_ = Teksti("", 14, k);
    panosz_->setObjectName("Panosz");
    panosz_->setMinimumWidth(90);
    panosz_->setAlignment(Qt::AlignCenter);
    panosz_->setStyleSheet("color: #24160a; font-size: 14pt; font-weight: bold; background: white;"
                           " border: 2px solid #6b4a22; border-radius: 4px; padding: 2px;");
    panos_ = new Maalaus("Panos", [this](QPainter& p, QWidget& w) {
        // One coin for each power of ten of the stake, so the pile grows with each step up.
        const double panos = peli_.raviruutu.Panos;
        const int kolikoita = panos < 1 ? 0 : static_cast<int>(std::log10(panos)) + 1;
        p.setPen(QPen(QColor(120, 86, 20), 1));
        p.setBrush(QColor(226, 184, 70));
        for (int i = 0; i < kolikoita; ++i) p.drawEllipse(QRectF(4, w.height() - 12 - i * 7.0, 30, 10));
    }, k);
    panos_->setFixedSize(38, 44);
    for (int n : {6, 7, 4}) napit_[static_cast<std::size_t>(n)]->setParent(k);
    napit_[6]->setMinimumWidth(40);
    napit_[7]->setMinimumWidth(40);
    connect(napit_[6], &QPushButton::clicked, this, [this] { Toimi([this] { LaskePanosta(peli_); }); });
    connect(napit_[7], &QPushButton::clicked, this, [this] { Toimi([this] { NostaPanosta(peli_); }); });
    connect(napit_[4], &QPushButton::clicked, this, [this] { Toimi([this] { HyväksyKuponki(peli_); }); });
    nimiMäärä_ = Teksti("", 9, k, false);
    nimiMäärä_->setObjectName("NimiMäärä");

    auto* lajit = new QHBoxLayout;
    lajit->addWidget(napit_[5]);
    lajit->addWidget(napit_[10]);
    lajit->addWidget(napit_[9]);
    lajit->addStretch();
    lajit->addWidget(vetolaji_);
    auto* panos = new QHBoxLayout;
    panos->addWidget(Teksti("Panos :", 12, k));
    panos->addWidget(napit_[6]);
    panos->addWidget(panosz_);
    panos->addWidget(napit_[7]);
    panos->addWidget(panos_);
    panos->addStretch();
    auto* nimiä = new QHBoxLayout;
    nimiä->addWidget(Teksti("Nimilistan viimeinen nro :", 9, k, false));
    nimiä->addWidget(nimiMäärä_);
    nimiä->addStretch();
    nimiä->addWidget(napit_[4]);
    auto* v = new QVBoxLayout(k);
    v->addLayout(lajit);
    v->addWidget(riviNro_);
    v->addWidget(otsikko_);
    v->addLayout(rivit);
    v->addLayout(panos);
    v->addLayout(nimiä);
    return k;
}

void Ravit::Toimi(const std::function<void()>& f) { ikkuna_.Toimi(f); }

void Ravit::Päivitä() {
    const RaviRuutuTila& r = peli_.raviruutu;
    kuponki_->setVisible(r.Picture1);
    tulos_->setVisible(r.Tulos);
    for (QPushButton* b : napit_)
        if (b) Näytä(b, O(peli_, b));
    for (QLabel* l : {otsikko_, vetolaji_, panosz_, nimiMäärä_}) Näytä(l, O(peli_, l));
    for (int i = 0; i < RIVINAPPEJA; ++i) Näytä(rivit_[static_cast<std::size_t>(i)], O(peli_, rivit_[static_cast<std::size_t>(i)]));
    for (std::size_t j = 0; j < RIVEJÄ; ++j) {
        Näytä(nimet_[j], O(peli_, nimet_[j]));
        Näytä(kertoimet_[j], O(peli_, kertoimet_[j]));
        Näytä(ruudut_[j], O(peli_, ruudut_[j]));
    }
    riviNro_->update();
    panos_->update();
    tulos_->update();
}

}  // namespace tanhua::ui
