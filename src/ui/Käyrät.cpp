// The statistics screen.
#include "Käyrät.h"

// own
#include "Pääikkuna.h"
#include "core/ohjaimet.h"
// Qt
#include <QEvent>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace tanhua::ui {

namespace {
Ohjain O(const Peli& peli, const QObject* w) { return LueRuudulta(peli, "Käyrät", w->objectName().toStdString()); }

QColor Väri(std::uint32_t v) { return QColor(v & 0xFF, (v >> 8) & 0xFF, (v >> 16) & 0xFF); }

// The order of the buttons down the left side: the curves with their previews, then the tables.
constexpr std::array<Käyrä, KÄYRIÄ> JÄRJESTYS{KäyräRaha, KäyräLV, KäyräNetto, KäyräPalkat, KäyräEläimet,
                                              KäyräRakennukset};
}  // namespace

KäyräTaulu::KäyräTaulu(const Peli& peli, QWidget* vanhempi) : QWidget(vanhempi), peli_(peli) {
    setObjectName("Taulu");
    setMinimumSize(360, 240);
    // The plot paints every pixel itself, so a new curve repaints only the plot, not the backdrop.
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void KäyräTaulu::paintEvent(QPaintEvent*) {
    const KäyrätRuutuTila& r = peli_.käyrätruutu;
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), QColor(255, 253, 246));
    p.setPen(QPen(QColor(107, 74, 34), 2));
    p.drawRect(rect().adjusted(1, 1, -1, -1));
    if (!r.taulu.empty()) {
        // A printed table: a tab column is a character's width.
        QFont f = QFontDatabase::systemFont(QFontDatabase::FixedFont);
        f.setPointSize(11);
        p.setFont(f);
        const QFontMetrics mitat(f);
        int y = 6 + mitat.ascent();
        for (const RaporttiRivi& rivi : r.taulu) {
            p.setPen(Väri(rivi.väri));
            p.drawText(8 + rivi.sarake * mitat.horizontalAdvance('0'), y, Q(rivi.teksti));
            y += mitat.lineSpacing();
        }
        return;
    }
    // The scale's guide lines at the top, the half and zero.
    p.setPen(QPen(QColor(190, 175, 150), 1, Qt::DashLine));
    for (int i = 0; i <= 2; ++i) p.drawLine(0, height() * i / 2, width(), height() * i / 2);
    if (r.janat.empty()) return;
    // The curve in the plot's own units, scaled to the widget; anything below zero is out of sight.
    p.setClipRect(rect());
    p.scale(width() / static_cast<double>(TAULU_LEVEYS), height() / static_cast<double>(TAULU_KORKEUS));
    p.setPen(QPen(Väri(PUNAINEN), 1.0, Qt::SolidLine, Qt::RoundCap));
    for (const Jana& j : r.janat) p.drawLine(QPointF(j.x1, j.y1), QPointF(j.x2, j.y2));
}

Esikatselu::Esikatselu(const Peli& peli, Käyrä käyrä, QWidget* vanhempi)
    : QWidget(vanhempi), peli_(peli), käyrä_(käyrä) {
    setObjectName(Sv(KÄYRÄTAULU[käyrä].nimi));
    setFixedSize(90, 30);
}

void Esikatselu::paintEvent(QPaintEvent*) {
    const std::vector<double> arvot = tanhua::Esikatselu(peli_.m, käyrä_);
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(107, 74, 34), 1));
    p.setBrush(QColor(255, 253, 246, 200));
    p.drawRoundedRect(rect().adjusted(0, 0, -1, -1), 4, 4);
    if (arvot.size() < 2) return;
    const auto [pienin, suurin] = std::minmax_element(arvot.begin(), arvot.end());
    const double väli = *suurin > *pienin ? *suurin - *pienin : 1;
    QPolygonF viiva;
    for (std::size_t i = 0; i < arvot.size(); ++i)
        viiva << QPointF(3 + (width() - 6) * static_cast<double>(i) / static_cast<double>(arvot.size() - 1),
                         height() - 4 - (height() - 8) * (arvot[i] - *pienin) / väli);
    p.setPen(QPen(Väri(PUNAINEN), 1.5));
    p.drawPolyline(viiva);
}

Käyrät::Käyrät(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi) : Tausta(vanhempi), peli_(peli), ikkuna_(ikkuna) {
    setObjectName("Käyrät");
    setFocusPolicy(Qt::StrongFocus);
    AsetaKuva(KuvaJosOn(peli_, "Kuvat/Käyrät.jpg"));
    for (int n = 1; n <= 10; ++n) {
        auto* b = new QPushButton(this);
        b->setObjectName(QString("Command%1").arg(n));
        Teksturoi(peli_, b, "nappi3.jpg", 11, 12);
        b->setMinimumSize(190, 34);
        napit_[static_cast<std::size_t>(n)] = b;
    }
    for (std::size_t k = 0; k < KÄYRIÄ; ++k) {
        const Käyrä käyrä = static_cast<Käyrä>(k);
        QPushButton* b = napit_[static_cast<std::size_t>(KÄYRÄTAULU[k].nappi.back() - '0')];
        connect(b, &QPushButton::clicked, this, [this, käyrä] { ikkuna_.Toimi([this, käyrä] { PiirräKäyrä(peli_, käyrä); }); });
    }
    connect(napit_[8], &QPushButton::clicked, this, [this] { ikkuna_.Toimi([this] { TuotteidenBrutto(peli_); }); });
    connect(napit_[9], &QPushButton::clicked, this, [this] { ikkuna_.Toimi([this] { TuotteidenNetto(peli_); }); });
    connect(napit_[10], &QPushButton::clicked, this, [this] {
        ikkuna_.Toimi([this] { NäytäKuukausikuva(peli_, !ikkuna_.KuukaudenvaihdeKuva.isNull()); });
    });
    connect(napit_[2], &QPushButton::clicked, this, &Käyrät::Sulje);

    // The buttons down the left, each curve with its preview.
    QFrame* vasen = Paneeli(this, "napit");
    auto* v = new QGridLayout(vasen);
    int rivi = 0;
    for (Käyrä k : JÄRJESTYS) {
        esikatselut_[k] = new Esikatselu(peli_, k, vasen);
        v->addWidget(napit_[static_cast<std::size_t>(KÄYRÄTAULU[k].nappi.back() - '0')], rivi, 0);
        v->addWidget(esikatselut_[k], rivi++, 1);
    }
    for (int n : {8, 9, 10}) v->addWidget(napit_[static_cast<std::size_t>(n)], rivi++, 0, 1, 2);
    v->setRowStretch(rivi, 1);

    // The plot with its scale on the left and the time axis below.
    QFrame* kaavio = Paneeli(this, "kaavio");
    otsikko_ = Teksti("", 15, kaavio);
    otsikko_->setObjectName("otsikko");
    auto tekstiksi = [kaavio](const char* nimi, int koko) {
        QLabel* l = Teksti("", koko, kaavio, false);
        l->setObjectName(nimi);
        return l;
    };
    maximi_ = tekstiksi("Maximi", 10);
    puoli_ = tekstiksi("Puoli", 10);
    minimi_ = tekstiksi("Minimi", 10);
    aika1_ = tekstiksi("aika1", 10);
    aika2_ = tekstiksi("aika2", 10);
    aika3_ = tekstiksi("aika3", 10);
    for (QLabel* l : {maximi_, puoli_, minimi_}) l->setAlignment(Qt::AlignRight);
    taulu_ = new KäyräTaulu(peli_, kaavio);
    ilmoitus_ = Teksti("", 12, taulu_);
    ilmoitus_->setObjectName("Ilmoitusteksti");
    ilmoitus_->setWordWrap(true);
    ilmoitus_->setAlignment(Qt::AlignCenter);
    auto* il = new QVBoxLayout(taulu_);
    il->addWidget(ilmoitus_, 0, Qt::AlignCenter);
    auto* g = new QGridLayout(kaavio);
    g->addWidget(otsikko_, 0, 0, 1, 4);
    auto* asteikko = new QVBoxLayout;
    asteikko->addWidget(maximi_, 0, Qt::AlignTop | Qt::AlignRight);
    asteikko->addStretch();
    asteikko->addWidget(puoli_, 0, Qt::AlignRight);
    asteikko->addStretch();
    asteikko->addWidget(minimi_, 0, Qt::AlignBottom | Qt::AlignRight);
    g->addLayout(asteikko, 1, 0);
    g->addWidget(taulu_, 1, 1, 1, 3);
    g->addWidget(aika1_, 2, 1, Qt::AlignLeft);
    g->addWidget(aika2_, 2, 2, Qt::AlignHCenter);
    g->addWidget(aika3_, 2, 3, Qt::AlignRight);
    g->setRowStretch(1, 1);
    g->setColumnStretch(1, 1);
    g->setColumnStretch(2, 1);
    g->setColumnStretch(3, 1);

    QHBoxLayout* ylä = OtsikkoRivi(AiheOtsikko("Statistiikka", this));
    auto* keski = new QHBoxLayout;
    keski->addWidget(vasen);
    keski->addWidget(kaavio, 1);
    auto* ala = new QHBoxLayout;
    ala->addStretch();
    napit_[2]->setMinimumSize(140, 40);
    ala->addWidget(napit_[2]);
    auto* pää = new QVBoxLayout(this);
    pää->setContentsMargins(16, 12, 16, 12);
    pää->addLayout(ylä);
    pää->addLayout(keski, 1);
    pää->addLayout(ala);

    // The month's picture over the whole screen: a click or a key on it hides it.
    auto* kuva = new QLabel(this);
    kuva->setAlignment(Qt::AlignCenter);
    kuva_ = kuva;
    kuva_->setObjectName("KuukaudenvaihdeKuva");
    kuva_->setStyleSheet("background: rgb(20, 16, 10);");
    kuva_->setFocusPolicy(Qt::StrongFocus);
    kuva_->installEventFilter(this);
    kuva_->hide();
}

void Käyrät::Avaa() { AvaaKäyrät(peli_); }

void Käyrät::Päivitä() {
    for (QLabel* l : {otsikko_, maximi_, puoli_, minimi_, aika1_, aika2_, aika3_, ilmoitus_}) Näytä(l, O(peli_, l));
    for (std::size_t n = 1; n < napit_.size(); ++n) Näytä(napit_[n], O(peli_, napit_[n]));
    for (Esikatselu* e : esikatselut_) {
        e->setVisible(O(peli_, e).näkyvissä);
        e->update();
    }
    taulu_->update();
    const bool kuva = O(peli_, kuva_).näkyvissä;
    if (kuva && !kuva_->isVisible()) {
        const QPixmap& p = ikkuna_.KuukaudenvaihdeKuva;
        static_cast<QLabel*>(kuva_)->setPixmap(Sovita(p, width(), height()));
        kuva_->setGeometry(rect());
        kuva_->show();
        kuva_->raise();
        kuva_->setFocus();
    } else if (!kuva && kuva_->isVisible()) {
        kuva_->hide();
        setFocus();
    }
}

void Käyrät::resizeEvent(QResizeEvent* tapahtuma) {
    Tausta::resizeEvent(tapahtuma);
    kuva_->setGeometry(rect());
}

bool Käyrät::eventFilter(QObject* kohde, QEvent* tapahtuma) {
    if (kohde == kuva_ && (tapahtuma->type() == QEvent::MouseButtonPress || tapahtuma->type() == QEvent::KeyPress)) {
        ikkuna_.Toimi([this] { PiilotaKuukausikuva(peli_); });
        return true;
    }
    return Tausta::eventFilter(kohde, tapahtuma);
}

void Käyrät::keyPressEvent(QKeyEvent* tapahtuma) {
    if (tapahtuma->key() == Qt::Key_Escape) {
        bool suljettu = false;
        ikkuna_.Toimi([this, &suljettu] { suljettu = KäyrätEsc(peli_); });
        if (suljettu) ikkuna_.PalaaPääruutuun();
        return;
    }
    Tausta::keyPressEvent(tapahtuma);
}

void Käyrät::Sulje() {
    ikkuna_.Toimi([this] { SuljeKäyrät(peli_); });
    ikkuna_.PalaaPääruutuun();
}

}  // namespace tanhua::ui
