// The money plate: cash beside the sub-screens.
#pragma once

// own
#include "core/peli.h"
// Qt
#include <QFrame>
#include <QLabel>

namespace tanhua::ui {

class RahaKyltti : public QFrame {
public:
    RahaKyltti(Peli& peli, QWidget* vanhempi);
    // The plate's size on the 800 x 600 canvas: each sub-screen keeps this much room at the right
    // of its header row, so the plate never covers a card.
    static constexpr int LEVEYS = 220;
    static constexpr int KORKEUS = 56;
    // Shows Rahatilaz as the last Päivitälukemat or NäytäRaha set it.
    void Päivitä();
    QLabel* Rahatilaz() const { return rahatilaz_; }

protected:
    void paintEvent(QPaintEvent* tapahtuma) override;

private:
    Peli& peli_;
    QLabel* rahatilaz_;
    QPixmap tausta_;
};

}  // namespace tanhua::ui
