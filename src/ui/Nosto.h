// The harvest screen: the estimate of the crop, the harvest's cost sheet, and the harvest itself.
#pragma once

// own
#include "Kuvat.h"
#include "core/peli.h"
// Qt
#include <QLabel>
#include <QPushButton>
// std
#include <array>
#include <functional>

namespace tanhua::ui {

class Pääikkuna;

class Nosto : public Tausta {
public:
    Nosto(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi);

    void Avaa();
    void Päivitä();

    QPushButton* Command4() const { return kustannukset_; }
    QPushButton* Command2() const { return korjaa_; }
    QPushButton* Command1() const { return peru_; }

    // The frame's way back to the land screen.
    std::function<void()> Palaa;

private:
    void Toimi(void (*f)(Peli&));

    Peli& peli_;
    Pääikkuna& ikkuna_;
    std::array<std::array<QLabel*, 4>, 3> rivit_{};  // Ala, Sato, Hinta, Summa of each crop
    QLabel *otsikko_, *yhteensä_, *arkki_;
    QPushButton *laske_, *kustannukset_, *korjaa_, *peru_;
};

}  // namespace tanhua::ui
