// The Message box: a question or a notice that waits for the player's answer.
#pragma once

// own
#include "core/peli.h"
// Qt
#include <QEventLoop>
#include <QWidget>
#include <QLabel>
#include <QPushButton>
#include <QRandomGenerator>

namespace tanhua::ui {

// The box lies on the canvas over the screen it speaks to, with a shade over the rest that takes the
// clicks; it waits in an event loop of its own, so it scales with the canvas like every screen.
class Message : public QWidget {
public:
    Message(Peli& peli, QWidget* vanhempi);

    // Shows the box with its text and style (0: "Sulje", 1: "Kyllä"/"Ei") and waits in its own
    // event loop until it is answered; returns "Kyllä", "Ei" or "vastattu".
    std::string Kysy(const std::string& teksti, int tyyli);
    // Puts the text in and shows the buttons of the style, without waiting (Kysy's first half).
    void Valmistele(const std::string& teksti, int tyyli);

    QPushButton* kyllä() const { return kyllä_; }
    QPushButton* ei() const { return ei_; }
    QPushButton* sulje() const { return sulje_; }
    QLabel* teksti() const { return txt_[0]; }

protected:
    void keyPressEvent(QKeyEvent* tapahtuma) override;
    void resizeEvent(QResizeEvent* tapahtuma) override;
    void paintEvent(QPaintEvent* tapahtuma) override;
    void showEvent(QShowEvent* tapahtuma) override;
    void hideEvent(QHideEvent* tapahtuma) override;
    // Tab keeps to the box's own buttons.
    bool focusNextPrevChild(bool seuraava) override;

private:
    void Vastaa(const char* vastaus);
    void ArvoTausta();
    void AsetteleTeksti();

    Peli& peli_;
    QLabel* txt_[2];
    QPushButton *kyllä_, *ei_, *sulje_;
    QPixmap tausta_;
    QWidget* suoja_;
    QEventLoop* silmukka_ = nullptr;
    // The background is only a look: it comes from the window's own draws, never the game's.
    QRandomGenerator ulkoasu_{20260601};
};

}  // namespace tanhua::ui
