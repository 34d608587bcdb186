// The report screen: a printed page (the month's report, the market report) and "Sulje raportti".
#pragma once

#include <functional>

// own
#include "core/peli.h"
// Qt
#include <QPushButton>
#include <QWidget>

namespace tanhua::ui {

class Raportti : public QWidget {
public:
    Raportti(Peli& peli, QWidget* vanhempi);
    void Tulosta(const RaporttiSivu& sivu);
    const RaporttiSivu& Sivu() const { return sivu_; }
    QPushButton* Command1() const { return sulje_; }

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
