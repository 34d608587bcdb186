// The news window: a picture and a text about what has happened, closed with "Sulje".
#pragma once

#include <functional>

// own
#include "core/peli.h"
// Qt
#include <QFrame>
#include <QLabel>
#include <QPushButton>

namespace tanhua::ui {

class ikkuna : public QFrame {
public:
    ikkuna(Peli& peli, QWidget* vanhempi);

    // Puts the picture and the text in and shows the window; the game goes on at once.
    void Näytä(const std::string& kuva, const std::string& teksti);
    QPushButton* Command1() const { return sulje_; }
    QLabel* Tapahtuma() const { return tapahtuma_; }
    QLabel* kuva() const { return kuva_; }

    // Shown again after a day: the picture follows the game's, which the day's events may have
    // blanked without telling anything.
    void setVisible(bool näkyvissä) override;

    // Closed: PaluuLomake tells where to go back ("Työvoima" or "" for the main screen).
    std::function<void(const QString&)> Suljettu;

private:
    void Sulje();
    void AsetaKuva(const std::string& kuva);

    Peli& peli_;
    QLabel* kuva_;
    QLabel* tapahtuma_;
    QPushButton* sulje_;
    std::string näytettyKuva_;
};

}  // namespace tanhua::ui
