// Pictures and looks of the window.
#include "Kuvat.h"

// own
#include "Kangas.h"
#include "RahaKyltti.h"
#include "storage/tiedostot.h"
// Qt
#include <QEvent>
#include <QHash>
#include <QBoxLayout>
#include <QCheckBox>
#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QImageReader>
#include <QPainter>

namespace tanhua::ui {

QString Q(const std::string& s) { return QString::fromStdString(s); }
std::string S(const QString& s) { return s.toStdString(); }

namespace {
constexpr qreal KUVIEN_PIKSELISUHDE = 2;

QHash<QString, QPixmap>& Välimuisti() {
    static QHash<QString, QPixmap> kuvat;
    return kuvat;
}
}  // namespace

QPixmap Kuva(const Peli& peli, const std::string& polku) {
    const auto tiedosto = EtsiTiedosto(peli.kansiot.ohjelma, polku);
    if (!tiedosto) NostaVika(VIKA_EI_TIEDOSTOA);
    const QString avain = QString::fromStdString(tiedosto->string());
    auto& kuvat = Välimuisti();
    if (auto it = kuvat.find(avain); it != kuvat.end()) return *it;
    QPixmap kuva(avain);
    if (kuva.isNull()) NostaVika(VIKA_TIEDOSTONIMI);
    // The program folder's pictures are drawn at two pixels a unit of the canvas: a picture keeps its
    // size on the screens and has the pixels to stay sharp when the canvas is scaled up.
    kuva.setDevicePixelRatio(KUVIEN_PIKSELISUHDE);
    kuvat.insert(avain, kuva);
    return kuva;
}

QPixmap KuvaJosOn(const Peli& peli, const std::string& polku) {
    try {
        return Kuva(peli, polku);
    } catch (const Vika&) {
        return {};
    }
}

namespace {
// Grows the font of a button while the pointer is over it. The filter keeps its own button and
// touches it only on the pointer's entering and leaving: other events, such as the focus-out that
// comes while the button is being destroyed, reach it when the object is no longer a button.
class Hover : public QObject {
public:
    Hover(QPushButton* nappi, int perus, int hover) : QObject(nappi), nappi_(nappi), perus_(perus), hover_(hover) {}
    bool eventFilter(QObject* kohde, QEvent* tapahtuma) override {
        const QEvent::Type tyyppi = tapahtuma->type();
        if (kohde == nappi_ && (tyyppi == QEvent::Enter || tyyppi == QEvent::Leave)) {
            QFont f = nappi_->font();
            f.setPointSize(tyyppi == QEvent::Enter ? hover_ : perus_);
            nappi_->setFont(f);
        }
        return false;
    }

private:
    QPushButton* nappi_;
    int perus_, hover_;
};
}  // namespace

void Teksturoi(const Peli& peli, QPushButton* nappi, const char* tekstuuri, int perusKoko, int hoverKoko) {
    const auto tiedosto = EtsiTiedosto(peli.kansiot.ohjelma, std::string("Kuvat/") + tekstuuri);
    QString tyyli = "QPushButton { color: #2b1a0c; font-weight: bold; border: 2px solid #5a3b1c; border-radius: 6px;"
                    " padding: 4px 10px;";
    if (tiedosto) tyyli += " border-image: url('" + QString::fromStdString(tiedosto->string()) + "') 0 0 0 0 stretch stretch;";
    else tyyli += " background: #e8d5a8;";
    tyyli += " } QPushButton:disabled { color: #8a7a66; } QPushButton:focus { border-color: #b03a1a; }"
             " QPushButton:pressed { padding-top: 6px; }";
    nappi->setStyleSheet(tyyli);
    QFont f = nappi->font();
    f.setPointSize(perusKoko);
    nappi->setFont(f);
    nappi->setCursor(Qt::PointingHandCursor);
    nappi->installEventFilter(new Hover(nappi, perusKoko, hoverKoko));
}

QLabel* Teksti(const QString& teksti, int koko, QWidget* vanhempi, bool lihava) {
    auto* l = new QLabel(teksti, vanhempi);
    l->setStyleSheet(QString("color: #24160a; font-size: %1pt; %2").arg(koko).arg(lihava ? "font-weight: bold;" : ""));
    return l;
}

QPushButton* AlaruudunNappi(const Peli& peli, const QString& nimi, QWidget* vanhempi) {
    auto* n = new QPushButton(vanhempi);
    n->setObjectName(nimi);
    Teksturoi(peli, n, "nappi2.jpg", 11, 12);
    n->setMinimumHeight(34);
    return n;
}

QFrame* Paneeli(QWidget* vanhempi, const char* nimi) {
    auto* f = new QFrame(vanhempi);
    f->setObjectName(nimi);
    f->setStyleSheet(QString("#%1 { background: rgba(255, 250, 235, 228); border: 2px solid #6b4a22;"
                             " border-radius: 10px; }").arg(nimi));
    return f;
}

QLabel* OhjeRivi(QWidget* vanhempi) {
    auto* l = new QLabel(vanhempi);
    l->setObjectName("Ohje");
    l->setWordWrap(true);
    l->setStyleSheet("color: #1f1408; font-size: 10pt; background: rgba(255, 250, 220, 215); border-radius: 6px;"
                     " padding: 6px;");
    return l;
}

QLabel* AiheOtsikko(const QString& teksti, QWidget* vanhempi) {
    auto* l = new QLabel(teksti, vanhempi);
    l->setObjectName("aihe");
    l->setStyleSheet("color: #24160a; font-size: 16pt; font-weight: bold; background: rgba(255,250,235,200);"
                     " border-radius: 8px; padding: 4px 10px;");
    return l;
}

QHBoxLayout* OtsikkoRivi(QWidget* aihe) {
    auto* ylä = new QHBoxLayout;
    ylä->setContentsMargins(0, 0, 0, 0);
    ylä->addWidget(aihe, 0, Qt::AlignLeft | Qt::AlignVCenter);
    ylä->addStretch();
    // The plate stands 12 units from the canvas's right edge, the screens' margin is 16.
    ylä->addSpacerItem(new QSpacerItem(RahaKyltti::LEVEYS - 4, RahaKyltti::KORKEUS, QSizePolicy::Fixed,
                                       QSizePolicy::Fixed));
    return ylä;
}

void AsetteleAlaruutu(QWidget* ruutu, QWidget* aihe, QWidget* vasen, QLayout* oikea, QLabel* ohje, QPushButton* sulje,
                      int vasenOsuus, int oikeaOsuus) {
    // The right column in a widget of its own, so that both columns can ignore what their contents
    // would like and keep their share.
    auto* oikeaSarake = new QWidget(ruutu);
    oikeaSarake->setObjectName("oikeaSarake");
    oikeaSarake->setLayout(oikea);
    oikea->setContentsMargins(0, 0, 0, 0);
    for (QWidget* sarake : {vasen, oikeaSarake}) {
        QSizePolicy p = sarake->sizePolicy();
        p.setHorizontalPolicy(QSizePolicy::Ignored);
        p.setHorizontalStretch(sarake == vasen ? vasenOsuus : oikeaOsuus);
        sarake->setSizePolicy(p);
    }
    auto* keski = new QHBoxLayout;
    keski->addWidget(vasen, vasenOsuus);
    keski->addWidget(oikeaSarake, oikeaOsuus);
    auto* ala = new QHBoxLayout;
    ala->addWidget(ohje, 1);
    ala->addStretch(0);
    sulje->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    ala->addWidget(sulje, 0, Qt::AlignBottom);
    auto* pää = new QVBoxLayout(ruutu);
    pää->setContentsMargins(16, 12, 16, 12);
    pää->addLayout(OtsikkoRivi(aihe));
    pää->addLayout(keski, 1);
    pää->addLayout(ala);
}

QString Sv(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<int>(s.size())); }

void Tausta::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (kuva_.isNull()) {
        p.fillRect(rect(), QColor(40, 60, 30));
        return;
    }
    // Scaled to cover, cropped in the middle: a backdrop never shows bars.
    const QSize koko = kuva_.size().scaled(size(), Qt::KeepAspectRatioByExpanding);
    const QRect kohde((width() - koko.width()) / 2, (height() - koko.height()) / 2, koko.width(), koko.height());
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.drawPixmap(kohde, kuva_);
}

Ohjain LueRuudulta(const Peli& peli, std::string_view ruutu, const std::string& nimi) {
    return LueOhjain(peli, std::string(ruutu) + "." + nimi).value_or(Piilossa());
}

void NäytäKuva(const Peli& peli, QLabel* l, const std::string& kansio, const Ohjain& o, int koko) {
    l->setVisible(o.näkyvissä);
    if (!o.näkyvissä) return;
    const QPixmap kuva = KuvaJosOn(peli, kansio + o.arvo);
    l->setPixmap(koko > 0 ? Sovita(kuva, koko, koko) : kuva);
    if (!o.vihje.empty()) l->setToolTip(Q(o.vihje));
    l->setProperty("tiedosto", Q(o.arvo));
}

void Näytä(QWidget* w, const Ohjain& o) {
    if (auto* c = qobject_cast<QCheckBox*>(w)) {
        const QSignalBlocker esto(c);
        c->setChecked(o.arvo == "True");
    } else if (auto* l = qobject_cast<QLabel*>(w)) {
        l->setText(Q(o.arvo));
    } else if (auto* b = qobject_cast<QAbstractButton*>(w)) {
        b->setText(Q(o.arvo));
    }
    w->setVisible(o.näkyvissä);
    w->setEnabled(o.käytössä);
}

namespace {
class ToistonEsto : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* kohde, QEvent* tapahtuma) override {
        if (tapahtuma->type() == QEvent::KeyPress || tapahtuma->type() == QEvent::KeyRelease)
            if (static_cast<QKeyEvent*>(tapahtuma)->isAutoRepeat()) return true;
        return QObject::eventFilter(kohde, tapahtuma);
    }
};
}  // namespace

void EstäToisto(QWidget* w) {
    auto* esto = new ToistonEsto(w);
    w->installEventFilter(esto);
    for (QAbstractButton* nappi : w->findChildren<QAbstractButton*>()) nappi->installEventFilter(esto);
}

void SuomennaTyökalut() {
    static QTranslator kääntäjä;
    if (kääntäjä.load(QLocale(QLocale::Finnish, QLocale::Finland), "qtbase", "_",
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&kääntäjä);
}

}  // namespace tanhua::ui
