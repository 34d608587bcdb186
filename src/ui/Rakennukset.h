// The building screen: the sixteen targets with their work orders, the chosen target's order panel.
#pragma once

// own
#include "Kuvat.h"
#include "core/peli.h"
// Qt
#include <QLabel>
#include <QPushButton>
#include <QSlider>
// std
#include <array>
#include <string>

namespace tanhua::ui {

class Pääikkuna;

class Rakennukset : public Tausta {
public:
    Rakennukset(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi);

    void Avaa();
    void Päivitä();

    QLabel* Kuva(std::size_t kohde) const { return kuvat_[kohde]; }
    QLabel* Päivät(std::size_t kohde) const { return päivät_[kohde]; }
    QPushButton* Command2() const { return tilaa_; }
    QPushButton* Plus() const { return plus_; }
    QPushButton* Miinus() const { return miinus_; }
    QPushButton* Command1() const { return sulje_; }
    QLabel* hintanäky() const { return hinta_; }
    QSlider* Rakennus_Tuotanto() const { return tuotanto_; }
    QLabel* Prosentti() const { return prosentti_; }
    // A target's day label by its name on the screen ("RakenneSahaz").
    static std::string PäiväLabel(std::size_t kohde);

protected:
    bool eventFilter(QObject* kohde, QEvent* tapahtuma) override;
    void keyPressEvent(QKeyEvent* tapahtuma) override;

private:
    QWidget* Työmaat();
    void Sulje();

    Peli& peli_;
    Pääikkuna& ikkuna_;
    std::array<QLabel*, TYÖMAITA> kuvat_{}, päivät_{};
    QLabel *aihe_, *ohje_, *navettaz_, *siiloz_, *varastoz_;
    QLabel *nimi_, *korttikuva_, *taso_, *info_, *hinta_, *kesto_, *määrä_;
    QPushButton *tilaa_, *plus_, *miinus_, *sulje_;
    QLabel *raaka_, *tuote_, *prosentti_;  // the production panel's pictures and percentage
    QSlider* tuotanto_;
};

}  // namespace tanhua::ui
