// The game's canvas, scaled to the window.
#include "Kangas.h"

// Qt
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QPainter>
#include <QResizeEvent>
// std
#include <algorithm>
#include <cmath>

namespace tanhua::ui {

namespace {
double tarkkuus_ = 1.0;
}

double Piirtotarkkuus() { return tarkkuus_; }
void AsetaPiirtotarkkuus(double tarkkuus) { tarkkuus_ = tarkkuus > 0 ? tarkkuus : 1.0; }

QPixmap Sovita(const QPixmap& kuva, int leveys, int korkeus) {
    if (kuva.isNull()) return kuva;
    const double t = Piirtotarkkuus();
    QPixmap tulos = kuva.scaled(static_cast<int>(std::lround(leveys * t)), static_cast<int>(std::lround(korkeus * t)),
                                Qt::KeepAspectRatio, Qt::SmoothTransformation);
    tulos.setDevicePixelRatio(t);
    return tulos;
}

Kangas::Kangas(QWidget* sisältö, QWidget* vanhempi) : QGraphicsView(vanhempi), sisältö_(sisältö) {
    sisältö_->setFixedSize(KANKAAN_LEVEYS, KANKAAN_KORKEUS);
    auto* näyttämö = new QGraphicsScene(this);
    näyttämö->setSceneRect(0, 0, KANKAAN_LEVEYS, KANKAAN_KORKEUS);
    sijainen_ = näyttämö->addWidget(sisältö_);
    sijainen_->setPos(0, 0);
    setScene(näyttämö);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlignment(Qt::AlignCenter);
    // Text and pictures are drawn at the screen's resolution through the scale: smooth, never blocky.
    setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
    setCacheMode(QGraphicsView::CacheBackground);
    setBackgroundBrush(QColor(58, 92, 38));
    setFocusPolicy(Qt::StrongFocus);
}

void Kangas::AsetaReunakuva(const QPixmap& kuva) {
    reunakuva_ = kuva;
    resetCachedContent();
    viewport()->update();
}

void Kangas::Sovita() {
    const QSize ala = viewport()->size();
    const double uusi = std::max(0.05, std::min(ala.width() / double(KANKAAN_LEVEYS), ala.height() / double(KANKAAN_KORKEUS)));
    setTransform(QTransform::fromScale(uusi, uusi));
    centerOn(KANKAAN_LEVEYS / 2.0, KANKAAN_KORKEUS / 2.0);
    if (uusi != mittakaava_) {
        mittakaava_ = uusi;
        AsetaPiirtotarkkuus(uusi * devicePixelRatioF());
        if (MittakaavaMuuttui) MittakaavaMuuttui(uusi);
    }
}

void Kangas::resizeEvent(QResizeEvent* tapahtuma) {
    QGraphicsView::resizeEvent(tapahtuma);
    Sovita();
}

void Kangas::drawBackground(QPainter* p, const QRectF& alue) {
    // The margins show the field: the picture covers the whole view, under the canvas.
    if (reunakuva_.isNull()) return QGraphicsView::drawBackground(p, alue);
    p->save();
    p->resetTransform();
    const QSize koko = reunakuva_.size().scaled(viewport()->size(), Qt::KeepAspectRatioByExpanding);
    const QRect kohde((viewport()->width() - koko.width()) / 2, (viewport()->height() - koko.height()) / 2,
                      koko.width(), koko.height());
    p->drawPixmap(kohde, reunakuva_);
    // A shade over the margins keeps the eye on the game, which covers its own part of the view.
    p->fillRect(viewport()->rect(), QColor(20, 14, 6, 90));
    p->restore();
}

}  // namespace tanhua::ui
