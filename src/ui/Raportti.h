// The report screen: a printed page (the month's report, the market report) and "Sulje raportti".
#pragma once

#include <functional>
#include <vector>

// own
#include "core/peli.h"
// Qt
#include <QFont>
#include <QPushButton>
#include <QRect>
#include <QWidget>

namespace tanhua::ui {

class Raportti : public QWidget {
public:
    Raportti(Peli& peli, QWidget* vanhempi);
    void Tulosta(const RaporttiSivu& sivu);
    const RaporttiSivu& Sivu() const { return sivu_; }
    QPushButton* Command1() const { return sulje_; }

    // Where the page's print stands: the two leaves of the book, clear of the fold, and each
    // line's place on its leaf (a rule from its column to the leaf's edge). The lines fill the
    // left leaf and go on on the right one; the letters get smaller until the widest line fits.
    struct Taitto {
        QRect vasen, oikea;
        QFont otsikonFontti, fontti;
        QRect otsikko;
        std::vector<QRect> rivit;  // in the order of the page's lines
    };
    Taitto Asettele() const;

    // What the frame does once "Sulje raportti" has closed the page.
    std::function<void()> Suljettu;

protected:
    void keyPressEvent(QKeyEvent* tapahtuma) override;

protected:
    void paintEvent(QPaintEvent* tapahtuma) override;
    void resizeEvent(QResizeEvent* tapahtuma) override;

private:
    Peli& peli_;
    RaporttiSivu sivu_;
    QPushButton* sulje_;
    QPixmap tausta_;
};

}  // namespace tanhua::ui
