// The sowing screen: the three crops with their card, the plan's areas, the boxes and the cost sheet.
#pragma once

// own
#include "Kuvat.h"
#include "core/peli.h"
// Qt
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
// std
#include <array>
#include <functional>

namespace tanhua::ui {

class Pääikkuna;

class Kylvö : public Tausta {
public:
    Kylvö(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi);

    void Avaa();
    void Päivitä();

    QLabel* Kuva(int k) const { return kuvat_[k]; }
    QLabel* Ala(int k) const { return alat_[k]; }
    QPushButton* plus() const { return plus_; }
    QPushButton* Command3() const { return hyväksy_; }
    QPushButton* Command2() const { return aloita_; }
    QPushButton* Command1() const { return peruuta_; }
    QCheckBox* Myrkytetään() const { return laatikot_[1]; }

    // The frame's way back to the land screen, once the plan is sown or dropped.
    std::function<void()> Palaa;

protected:
    bool eventFilter(QObject* kohde, QEvent* tapahtuma) override;

private:
    QFrame* Korttipaneeli();
    void Toimi(const std::function<void()>& f);

    Peli& peli_;
    Pääikkuna& ikkuna_;
    std::array<QLabel*, 3> kuvat_{}, alat_{};
    std::array<QCheckBox*, 3> laatikot_{};  // Lannoitetaan, Myrkytetään, Ojitetaan
    QLabel *kylvetään_, *eikylvetä_, *kustannukset_;
    QFrame* akkuna_;
    QLabel *otsikko_, *info_, *siemen_, *yksikkö_, *kulu_, *hinta_, *määrä_, *yhteensä_;
    QPushButton *plus_, *miinus_, *hyväksy_, *aloita_, *peruuta_;
};

}  // namespace tanhua::ui
