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
