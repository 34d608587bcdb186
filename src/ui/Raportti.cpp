// The report screen: lines printed on the page in their colours at their tab columns.
#include "Raportti.h"

// own
#include "Kuvat.h"
#include "core/kuukausi.h"
// Qt
#include <QFontDatabase>
#include <QKeyEvent>
#include <QPainter>
// std
#include <algorithm>

namespace tanhua::ui {

Raportti::Raportti(Peli& peli, QWidget* vanhempi) : QWidget(vanhempi), peli_(peli) {
    setObjectName("Raportti");
    tausta_ = KuvaJosOn(peli_, "Kuvat/Kirja.jpg");
    sulje_ = new QPushButton("Sulje raportti", this);
    sulje_->setObjectName("Command1");
    sulje_->setToolTip("Sulkee raportin ja palaa takaisin peliin");
    Teksturoi(peli_, sulje_, "nappi2.jpg", 10, 12);
    sulje_->setMinimumSize(160, 36);
    connect(sulje_, &QPushButton::clicked, this, [this] {
        SuljeRaportti(peli_);
        if (Suljettu) Suljettu();
    });
    // Enter closes the report, but only a fresh press: a held key stops here for the player to read.
    setFocusPolicy(Qt::StrongFocus);
    EstäToisto(this);
}

void Raportti::keyPressEvent(QKeyEvent* tapahtuma) {
    if (tapahtuma->key() == Qt::Key_Return || tapahtuma->key() == Qt::Key_Enter) return sulje_->click();
    QWidget::keyPressEvent(tapahtuma);
}

void Raportti::Tulosta(const RaporttiSivu& sivu) {
    sivu_ = sivu;
    setWindowTitle(QString::fromStdString(sivu.otsikko));
    update();
}

void Raportti::resizeEvent(QResizeEvent*) {
    sulje_->move(width() - sulje_->width() - 30, height() - sulje_->height() - 24);
}

namespace {
// A line made only of underscores is the page's rule.
bool OnViiva(const std::string& teksti) {
    return !teksti.empty() && teksti.find_first_not_of('_') == std::string::npos;
}
}  // namespace

Raportti::Taitto Raportti::Asettele() const {
    Taitto t;
    // The two leaves of the open book, each kept clear of the fold in the middle.
    const int reuna = width() / 14, taite = width() / 2, väli = width() / 40;
    t.vasen = QRect(reuna, height() / 12, taite - väli - reuna, height() * 10 / 12);
    t.oikea = QRect(taite + väli, t.vasen.top(), t.vasen.width(), t.vasen.height());
    // The title keeps to the left leaf: a long name makes its letters smaller, and a very long one
    // breaks onto a second line.
    const QString otsikko = QString::fromStdString(sivu_.otsikko);
    t.otsikonFontti = font();
    t.otsikonFontti.setPointSize(13);
    t.otsikonFontti.setBold(true);
    while (t.otsikonFontti.pointSize() > 9 &&
           QFontMetrics(t.otsikonFontti).horizontalAdvance(otsikko) > t.vasen.width())
        t.otsikonFontti.setPointSize(t.otsikonFontti.pointSize() - 1);
    const QFontMetrics om(t.otsikonFontti);
    t.otsikko = om.boundingRect(t.vasen, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, otsikko);

    t.fontti = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    t.fontti.setPointSize(sivu_.fonttikoko);
    auto leveys = [this](const QFontMetrics& m) {
        int suurin = 0;
        for (const RaporttiRivi& rivi : sivu_.rivit)
            if (!OnViiva(rivi.teksti))
                suurin = std::max(suurin, rivi.sarake * m.horizontalAdvance('0') +
                                              m.horizontalAdvance(QString::fromStdString(rivi.teksti)));
        return suurin;
    };
    while (t.fontti.pointSize() > 6 && leveys(QFontMetrics(t.fontti)) > t.vasen.width())
        t.fontti.setPointSize(t.fontti.pointSize() - 1);
    const QFontMetrics m(t.fontti);
    QRect lehti = t.vasen;
    int yläreuna = std::max(lehti.top() + 40, t.otsikko.bottom() + 8);
    for (const RaporttiRivi& rivi : sivu_.rivit) {
        if (yläreuna + m.height() > lehti.bottom() && lehti == t.vasen) {
            lehti = t.oikea;
            yläreuna = lehti.top();
        }
        // A tab column is a character's width.
        const int x = lehti.left() + rivi.sarake * m.horizontalAdvance('0');
        const int loppu = OnViiva(rivi.teksti) ? lehti.right()
                                               : x + m.horizontalAdvance(QString::fromStdString(rivi.teksti));
        t.rivit.emplace_back(QPoint(x, yläreuna), QPoint(std::max(x, loppu), yläreuna + m.height() - 1));
        yläreuna += m.lineSpacing();
    }
    return t;
}

void Raportti::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (tausta_.isNull()) p.fillRect(rect(), QColor(238, 226, 196));
    else p.drawPixmap(rect(), tausta_);
    const Taitto t = Asettele();
    p.setFont(t.otsikonFontti);
    p.setPen(QColor(60, 30, 10));
    p.drawText(t.vasen, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, QString::fromStdString(sivu_.otsikko));
    p.setFont(t.fontti);
    const QFontMetrics m(t.fontti);
    for (std::size_t i = 0; i < sivu_.rivit.size(); ++i) {
        const RaporttiRivi& rivi = sivu_.rivit[i];
        const QRect& alue = t.rivit[i];
        const QColor väri(rivi.väri & 0xFF, (rivi.väri >> 8) & 0xFF, (rivi.väri >> 16) & 0xFF);
        const int pohja = alue.top() + m.ascent();
        if (OnViiva(rivi.teksti)) {
            // The rule is drawn across its leaf, where the underscores would stand.
            p.setPen(QPen(väri, 1));
            p.drawLine(alue.left(), pohja + m.underlinePos(), alue.right(), pohja + m.underlinePos());
        } else {
            p.setPen(väri);
            p.drawText(alue.left(), pohja, QString::fromStdString(rivi.teksti));
        }
    }
}

}  // namespace tanhua::ui
