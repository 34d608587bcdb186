// The money plate "Rahatilanteesi" in the top right corner of the sub-screens.
#include "RahaKyltti.h"

// own
#include "Kuvat.h"
// Qt
#include <QGridLayout>
#include <QPainter>

namespace tanhua::ui {

RahaKyltti::RahaKyltti(Peli& peli, QWidget* vanhempi) : QFrame(vanhempi), peli_(peli) {
    setObjectName("RahaKyltti");
    setToolTip("Rahatilanteesi");
    tausta_ = KuvaJosOn(peli_, "Kuvat/rahakyltti.jpg");
    auto* otsikko = new QLabel("Rahatilanteesi", this);
    auto* käteinen = new QLabel("Käteinen :", this);
    rahatilaz_ = new QLabel(this);
    rahatilaz_->setObjectName("Rahatilaz");
    otsikko->setStyleSheet("color: #3a2308; font-weight: bold; font-size: 9pt;");
    käteinen->setStyleSheet("color: #3a2308; font-size: 10pt;");
    rahatilaz_->setStyleSheet("color: #1a1004; font-weight: bold; font-size: 14pt;");
    // The heading on the first line, "Käteinen :" and the cash beside it on the second: low enough
    // to sit in a sub-screen's header row beside the title.
    auto* asettelu = new QGridLayout(this);
    asettelu->setContentsMargins(16, 5, 16, 5);
    asettelu->setSpacing(0);
    asettelu->addWidget(otsikko, 0, 0, 1, 2);
    asettelu->addWidget(käteinen, 1, 0, Qt::AlignBottom);
    asettelu->addWidget(rahatilaz_, 1, 1, Qt::AlignRight | Qt::AlignBottom);
    setFixedSize(LEVEYS, KORKEUS);
}

void RahaKyltti::Päivitä() { rahatilaz_->setText(QString::fromStdString(peli_.näkymä.lukemat.Rahatilaz)); }

void RahaKyltti::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (tausta_.isNull()) p.fillRect(rect(), QColor(200, 160, 80));
    else p.drawPixmap(rect(), tausta_);
}

}  // namespace tanhua::ui
