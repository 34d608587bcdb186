// The logo sequence on the black backdrop: fade in, the maker's mark, the word mark, fade out.
#include "Pohja.h"

// own
#include "Kuvat.h"
// Qt
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPainter>

namespace tanhua::ui {

namespace {
// The fade steps through every grey level; a level a couple of milliseconds keeps the fade
// visible on a machine that would otherwise run through it in an instant.
constexpr int HARMAAN_ASKEL_MS = 2;
}  // namespace

Pohja::Pohja(const Peli& peli, QWidget* vanhempi) : QWidget(vanhempi), peli_(peli) {
    setObjectName("Pohja");
    setFocusPolicy(Qt::StrongFocus);
    logo_ = new QLabel(this);
    logo_->setObjectName("Logo");
    software_ = new QLabel(this);
    software_->setObjectName("software");
    hide();
}

void Pohja::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), QColor(harmaa_, harmaa_, harmaa_));
}

void Pohja::resizeEvent(QResizeEvent*) { Asettele(); }

void Pohja::Asettele() {
    // ahma.jpg centred; software.jpg left of the centre by a quarter of its width, above the middle.
    logo_->adjustSize();
    software_->adjustSize();
    logo_->move((width() - logo_->width()) / 2, (height() - logo_->height()) / 2);
    software_->move(width() / 2 - software_->width() / 4 - 20, height() / 3 - software_->height() / 2 - 10);
}

void Pohja::keyPressEvent(QKeyEvent*) { ohitettu_ = true; }

void Pohja::mousePressEvent(QMouseEvent*) { ohitettu_ = true; }

bool Pohja::Odota(int millisekuntia) {
    QElapsedTimer kello;
    kello.start();
    do QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    while (!ohitettu_ && kello.elapsed() < millisekuntia);
    return !ohitettu_;
}

bool Pohja::Häivytä(int alku, int loppu) {
    const int suunta = loppu > alku ? 1 : -1;
    for (int g = alku;; g += suunta) {
        harmaa_ = g;
        repaint();
        if (!Odota(HARMAAN_ASKEL_MS)) return false;
        if (g == loppu) return true;
    }
}

void Pohja::NäytäKuvat() {
    harmaa_ = 255;
    logo_->setPixmap(KuvaJosOn(peli_, "Kuvat/ahma.jpg"));
    software_->setPixmap(KuvaJosOn(peli_, "Kuvat/software.jpg"));
    Asettele();
    logo_->show();
    software_->show();
    update();
}

void Pohja::Logo() {
    ohitettu_ = false;
    harmaa_ = 0;
    if (parentWidget()) setGeometry(parentWidget()->rect());
    logo_->clear();
    software_->clear();
    show();
    raise();
    setFocus();
    [&] {
        if (!Häivytä(0, 255)) return;
        logo_->setPixmap(KuvaJosOn(peli_, "Kuvat/ahma.jpg"));
        Asettele();
        if (!Odota(400)) return;
        software_->setPixmap(KuvaJosOn(peli_, "Kuvat/software.jpg"));
        Asettele();
        if (!Odota(700)) return;
        logo_->clear();
        software_->clear();
        Häivytä(255, 0);
    }();
    hide();
}

}  // namespace tanhua::ui
