// The backdrop Pohja and the logo sequence at the start of the program.
#pragma once

// own
#include "core/peli.h"
// Qt
#include <QLabel>
#include <QWidget>

namespace tanhua::ui {

class Pohja : public QWidget {
public:
    Pohja(const Peli& peli, QWidget* vanhempi);

    // The logo sequence: a fade from black to white, the maker's mark, the game's word mark, and a
    // fade back to black; a key or a click skips the rest. Returns when it is over and hides.
    void Logo();
    // The still of the sequence with both pictures up, for the screenshots.
    void NäytäKuvat();

protected:
    void keyPressEvent(QKeyEvent* tapahtuma) override;
    void mousePressEvent(QMouseEvent* tapahtuma) override;
    void paintEvent(QPaintEvent* tapahtuma) override;
    void resizeEvent(QResizeEvent* tapahtuma) override;

private:
    void Asettele();
    // Lets the window paint and take input for the time given; false once skipped.
    bool Odota(int millisekuntia);
    bool Häivytä(int alku, int loppu);

    const Peli& peli_;
    QLabel *logo_, *software_;
    int harmaa_ = 0;
    bool ohitettu_ = false;
};

}  // namespace tanhua::ui
