// The race-betting screen: a trial coupon on harness races and its drawn result sheet.
#pragma once

#include <functional>

// own
#include "Kuvat.h"
#include "core/peli.h"
// Qt
#include <QLabel>
#include <QPushButton>
#include <array>

namespace tanhua::ui {

class Pääikkuna;

// The result sheet Tulos: the printed lines on a paper slip, with its close button.
class TulosLappu : public QWidget {
public:
    TulosLappu(const Peli& peli, QWidget* vanhempi);

protected:
    void paintEvent(QPaintEvent* tapahtuma) override;

private:
    const Peli& peli_;
};

// A widget that paints beneath its children: the race bar marks the race on view, the stake shows
// its pile of coins.
class Maalaus : public QWidget {
public:
    Maalaus(const char* nimi, std::function<void(QPainter&, QWidget&)> maalaa, QWidget* vanhempi);

protected:
    void paintEvent(QPaintEvent* tapahtuma) override;

private:
    std::function<void(QPainter&, QWidget&)> maalaa_;
};

class Ravit : public Tausta {
public:
    Ravit(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi);

    void Päivitä();

    QPushButton* Command(int n) const { return napit_[static_cast<std::size_t>(n)]; }
    QPushButton* Rivi(int i) const { return rivit_[static_cast<std::size_t>(i)]; }
    QPushButton* RaviNimi(int i) const { return nimet_[static_cast<std::size_t>(i)]; }
    QPushButton* Kerroin(int i) const { return kertoimet_[static_cast<std::size_t>(i)]; }
    TulosLappu* Tulos() const { return tulos_; }

    // Where the close button goes back to (the stable), told by the frame.
    std::function<void()> Suljettu;

private:
    QFrame* Kuponki();
    void Toimi(const std::function<void()>& f);

    Peli& peli_;
    Pääikkuna& ikkuna_;
    std::array<QPushButton*, 11> napit_{};  // Command1 .. Command10 by number; 0 and 3 unused
    std::array<QPushButton*, RIVINAPPEJA> rivit_{};
    std::array<QPushButton*, RIVEJÄ> nimet_{}, kertoimet_{};
    std::array<QLabel*, RIVEJÄ> ruudut_{};
    QFrame* kuponki_;
    QLabel *otsikko_, *vetolaji_, *panosz_, *nimiMäärä_;
    QWidget *riviNro_, *panos_;
    TulosLappu* tulos_;
};

}  // namespace tanhua::ui
