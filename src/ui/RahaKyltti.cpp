// The money plate "Rahatilanteesi" in the top right corner of the sub-screens.
#include "RahaKyltti.h"

// own
#include "Kuvat.h"
// Qt
#include <QPainter>
#include <QVBoxLayout>

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
    auto* asettelu = new QVBoxLayout(this);
    asettelu->setContentsMargins(14, 6, 14, 6);
    asettelu->setSpacing(0);
    asettelu->addWidget(otsikko);
    asettelu->addWidget(käteinen);
    asettelu->addWidget(rahatilaz_);
    setFixedSize(220, 78);
}

void RahaKyltti::Päivitä() { rahatilaz_->setText(QString::fromStdString(peli_.näkymä.lukemat.Rahatilaz)); }

void RahaKyltti::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (tausta_.isNull()) p.fillRect(rect(), QColor(200, 160, 80));
    else p.drawPixmap(rect(), tausta_);
}

}  // namespace tanhua::ui
