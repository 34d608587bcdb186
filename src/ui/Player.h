// The music player's panel on the main screen: the playlist and its four buttons.
#pragma once

#include <functional>
#include <vector>

// own
#include "core/peli.h"
// Qt
#include <QFrame>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace tanhua::ui {

class Player : public QFrame {
public:
    Player(Peli& peli, QWidget* vanhempi);

    // Reads the list, its row and the buttons from the player's controls.
    void Päivitä();
    // Moves the panel through the tops the rules give, one step at a time, letting the window paint.
    void Liuku(const std::vector<int>& yläreunat);

    QPushButton* cmdPlayer1() const { return arvo_; }
    QPushButton* cmdPlayer2() const { return seuraava_; }
    QPushButton* stoppi() const { return stoppi_; }
    QPushButton* cmdPlayer3() const { return piilota_; }
    QListWidget* MidiFile() const { return lista_; }

    // What the frame runs for the buttons, under its failure handler.
    std::function<void()> Arvo, Seuraava, Stop, Piilota;

protected:
    void keyPressEvent(QKeyEvent* tapahtuma) override;
    void paintEvent(QPaintEvent* tapahtuma) override;
    bool eventFilter(QObject* kohde, QEvent* tapahtuma) override;

private:
    Peli& peli_;
    QLabel *otsikko_, *soittolista_, *soivaBiisi_;
    QListWidget* lista_;
    QPushButton *arvo_, *seuraava_, *stoppi_, *piilota_;
    QPixmap tausta_;
};

}  // namespace tanhua::ui
