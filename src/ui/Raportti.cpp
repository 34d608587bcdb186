// The report screen: lines printed on the page in their colours at their tab columns.
#include "Raportti.h"

// own
#include "Kuvat.h"
#include "core/kuukausi.h"
// Qt
#include <QFontDatabase>
#include <QKeyEvent>
#include <QPainter>

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

void Raportti::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (tausta_.isNull()) p.fillRect(rect(), QColor(238, 226, 196));
    else p.drawPixmap(rect(), tausta_);
    // The page of the book: the lines stand on the left leaf.
    const QRect lehti(width() / 14, height() / 12, width() * 6 / 14, height() * 10 / 12);
    QFont otsikko = font();
    otsikko.setPointSize(13);
    otsikko.setBold(true);
    p.setFont(otsikko);
    p.setPen(QColor(60, 30, 10));
    p.drawText(lehti.adjusted(0, 0, width() / 3, 0), Qt::AlignLeft | Qt::AlignTop,
               QString::fromStdString(sivu_.otsikko));
    QFont f = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    f.setPointSize(sivu_.fonttikoko);
    p.setFont(f);
    const QFontMetrics mitat(f);
    int y = lehti.top() + 40 + mitat.ascent();
    for (const RaporttiRivi& rivi : sivu_.rivit) {
        p.setPen(QColor(rivi.väri & 0xFF, (rivi.väri >> 8) & 0xFF, (rivi.väri >> 16) & 0xFF));
        // A tab column is a character's width.
        p.drawText(lehti.left() + rivi.sarake * mitat.horizontalAdvance('0'), y, QString::fromStdString(rivi.teksti));
        y += mitat.lineSpacing();
    }
}

}  // namespace tanhua::ui
