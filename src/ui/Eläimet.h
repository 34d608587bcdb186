// The animal screen: the twelve kinds with their counters, the card to buy, sell and slaughter, the orders.
#pragma once

// own
#include "Kuvat.h"
#include "core/peli.h"
// Qt
#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <array>

namespace tanhua::ui {

class Pääikkuna;

class Eläimet : public Tausta {
public:
    Eläimet(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi);

    // The screen opens: counters, staff pictures, the welcome hint.
    void Avaa();
    // Reads the record and the screen's state onto the widgets.
    void Päivitä();

    QLabel* Kuva(int kortti) const { return kuvat_[kortti]; }
    QLabel* Laskuri(int kortti) const { return laskurit_[kortti]; }
    QFrame* akkuna() const { return akkuna_; }
    QPushButton* Osta() const { return osta_; }
    QPushButton* Myy() const { return myy_; }
    QPushButton* Teurasta() const { return teurasta_; }
    QPushButton* Plus() const { return plus_; }
    QPushButton* Miinus() const { return miinus_; }
    QPushButton* Takaisin() const { return takaisin_; }
    QLabel* Teuraskuva() const { return teuraskuva_; }
    QLabel* NahkuriKuva() const { return nahkurikuva_; }
    QFrame* TeurasPaneeli() const { return teuras_; }
    QFrame* NylkyPaneeli() const { return nylky_; }
    QCheckBox* Laatikko(int i) const { return laatikot_[i]; }
    QLineEdit* Raja(int i) const { return rajat_[i]; }
    QLabel* aihe() const { return aihe_; }
    QLabel* määrä() const { return määrä_; }

protected:
    bool eventFilter(QObject* kohde, QEvent* tapahtuma) override;
    void keyPressEvent(QKeyEvent* tapahtuma) override;
    void mouseMoveEvent(QMouseEvent* tapahtuma) override;

private:
    QWidget* Kortisto();
    QFrame* Korttipaneeli();
    QFrame* Teuraspaneeli(bool nylky);
    void Sulje();
    void Esc();

    Peli& peli_;
    Pääikkuna& ikkuna_;
    std::array<QLabel*, 12> kuvat_{}, laskurit_{};
    std::array<QLabel*, 6> nuoret_{}, poikaset_{};
    QLabel *aikuisia_, *pienet_, *aihe_, *ohje_, *kohdistin_;
    QFrame* akkuna_;
    QLabel *otsikko_, *korttikuva_, *info_, *ostohinta_, *myyntihinta_, *liha_, *määrä_, *yhtosto_, *yhtmyynti_;
    QPushButton *osta_, *myy_, *teurasta_, *plus_, *miinus_, *takaisin_;
    QLabel *teuraskuva_, *nahkurikuva_;
    QFrame *teuras_, *nylky_;
    std::array<QCheckBox*, 5> laatikot_{};
    std::array<QLineEdit*, 10> rajat_{};
};

}  // namespace tanhua::ui
