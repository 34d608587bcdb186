// The riding stable: the pasture's crowding, the month's lessons, the price sheet and the way to the races.
#pragma once

// own
#include "Kuvat.h"
#include "core/peli.h"
// Qt
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>

namespace tanhua::ui {

class Pääikkuna;

class Hevostalli : public Tausta {
public:
    Hevostalli(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi);

    void Avaa();
    void Päivitä();

    QPushButton* Command1() const { return sulje_; }
    QPushButton* Command2() const { return ravit_; }
    QPushButton* Command3() const { return hinnasto_; }
    QSlider* rulla() const { return rulla_; }
    QLabel* KapasiteettiZ() const { return kapasiteetti_; }
    QFrame* Hinnasto() const { return hinnastoLappu_; }
    QListWidget* Ratsastus() const { return ratsastus_; }

protected:
    bool eventFilter(QObject* kohde, QEvent* tapahtuma) override;

private:
    QFrame* HinnastoLappu();
    void Sulje();

    Peli& peli_;
    Pääikkuna& ikkuna_;
    QLabel *aihe_, *ohje_, *laidun_, *hevoset_, *kapasiteetti_, *tunnit_, *summa_, *ravikustannus_;
    QListWidget* ratsastus_;
    QFrame* hinnastoLappu_;
    QSlider* rulla_;
    QPushButton *sulje_, *ravit_, *hinnasto_;
};

}  // namespace tanhua::ui
