// The top-ten screen: the list of the game mode over a barley field, and the way out of a career.
#pragma once

// own
#include "Kuvat.h"
#include "core/peli.h"
// Qt
#include <QLabel>
#include <QPushButton>
// std
#include <array>

namespace tanhua::ui {

class Pääikkuna;

class Topten : public Tausta {
public:
    Topten(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi);

    void Päivitä();

    QPushButton* Command1() const { return sulje_; }
    QPushButton* Command2() const { return tyhjennä_; }
    QLabel* n(int rivi) const { return n_[rivi - 1]; }
    QLabel* p(int rivi) const { return p_[rivi - 1]; }

private:
    Peli& peli_;
    Pääikkuna& ikkuna_;
    QLabel* otsikko_;
    std::array<QLabel*, 10> n_{}, p_{};
    QPushButton *sulje_, *tyhjennä_;
};

}  // namespace tanhua::ui
