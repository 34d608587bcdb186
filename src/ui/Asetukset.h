// The settings tool's window: the nine settings of the installation, saved for the game's next start.
#pragma once

#include <array>

// own
#include "Kuvat.h"
#include "storage/asetukset.h"
// Qt
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>

namespace tanhua::ui {

class AsetusIkkuna : public Tausta {
public:
    // `peli` gives the folders and the pictures; the tool plays no farm.
    explicit AsetusIkkuna(const Peli& peli, QWidget* vanhempi = nullptr);

    QCheckBox* Valinta(std::size_t rivi) const { return valinnat_.at(rivi); }
    QSlider* Nopeus() const { return nopeus_; }
    QLabel* Huomautus() const { return huomautus_; }
    QPushButton* Tallenna() const { return tallenna_; }
    QPushButton* Peruuta() const { return peruuta_; }
    QPushButton* Oletukset() const { return oletukset_; }

protected:
    void keyPressEvent(QKeyEvent* tapahtuma) override;

private:
    // Shows values on the controls; the speed slider is greyed while the animations are off.
    void Näytä(const Asetukset& a);
    Asetukset Valitut() const;
    void Talleta();

    const Peli& peli_;
    Asetustila tila_;
    std::array<QCheckBox*, 9> valinnat_{};  // by line; the speed's line has none
    QSlider* nopeus_;
    QLabel *nopeusluku_, *huomautus_;
    QPushButton *tallenna_, *peruuta_, *oletukset_;
};

}  // namespace tanhua::ui
