// The game's canvas: every screen is laid out on 800 x 600 units and the canvas is scaled uniformly to
// the window, keeping its proportions, with the field filling the margins.
#pragma once

// Qt
#include <QGraphicsView>
#include <QPixmap>
#include <functional>

class QGraphicsProxyWidget;

namespace tanhua::ui {

// The design size of every screen, in the canvas' units.
inline constexpr int KANKAAN_LEVEYS = 800;
inline constexpr int KANKAAN_KORKEUS = 600;

class Kangas : public QGraphicsView {
public:
    // `sisältö` becomes the canvas: it is fixed to 800 x 600 units and drawn through the view.
    Kangas(QWidget* sisältö, QWidget* vanhempi);

    // How many device-independent pixels one unit of the canvas takes now.
    double Mittakaava() const { return mittakaava_; }
    // The picture that fills the margins around the canvas.
    void AsetaReunakuva(const QPixmap& kuva);

    // Called when the scale changes, so pictures and the pointer can be made again at the new size.
    std::function<void(double)> MittakaavaMuuttui;

protected:
    void resizeEvent(QResizeEvent* tapahtuma) override;
    void drawBackground(QPainter* p, const QRectF& alue) override;

private:
    void Sovita();

    QWidget* sisältö_;
    QGraphicsProxyWidget* sijainen_;
    QPixmap reunakuva_;
    double mittakaava_ = 1.0;
};

// The size a picture is made at for a place of `koko` canvas units: the canvas' scale times the
// screen's pixel ratio, so a picture drawn through the scaled canvas maps one to one to the screen's
// pixels and stays sharp.
double Piirtotarkkuus();
void AsetaPiirtotarkkuus(double tarkkuus);
// A picture scaled to fit `leveys` x `korkeus` units, keeping its proportions, made at the drawing
// resolution.
QPixmap Sovita(const QPixmap& kuva, int leveys, int korkeus);

}  // namespace tanhua::ui
