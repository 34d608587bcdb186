// The land screen: the four kinds of land with their card, and the forester's panel.
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

class Pellot : public Tausta {
public:
    Pellot(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi);

    void Avaa();
    void Päivitä();

    QLabel* Maa(int k) const { return maat_[k]; }
    QLabel* Image4() const { return kuvat_[0]; }
    QLabel* Image5() const { return kuvat_[1]; }
    QLabel* MetsuriKuva() const { return metsuriKuva_; }
    QPushButton* plus() const { return plus_; }
    QPushButton* Command7() const { return osta_; }
    QPushButton* Command8() const { return myy_; }
    QPushButton* Command1() const { return sulje_; }
    QCheckBox* Metsitä() const { return metsitä_; }

    // What the frame does when a picture leads on to the sowing or the harvest screen.
    std::function<void()> AvaaKylvö, AvaaNosto;

protected:
    bool eventFilter(QObject* kohde, QEvent* tapahtuma) override;
    void keyPressEvent(QKeyEvent* tapahtuma) override;

private:
    QFrame* Korttipaneeli();
    QFrame* MetsuriPaneeli();
    QLabel* Kuva(const char* nimi, QWidget* vanhempi, int koko);
    void Toimi(void (*f)(Peli&));
    void Sulje();

    Peli& peli_;
    Pääikkuna& ikkuna_;
    QLabel *otsikko_, *ohje_, *metsuriKuva_;
    std::array<QLabel*, 4> maat_{};
    std::array<QLabel*, 2> kuvat_{};  // Image4, Image5
    QFrame *akkuna_, *metsuriValikko_;
    QLabel *otsikko2_, *korttiKuva_, *info_, *hehtaarit_, *hinta_, *määrä_, *yhteensä_, *maavero_, *tuotto_, *lantaKuva_;
    QLabel *metsuriOtsikko_, *metsuriInfo_;
    QCheckBox* metsitä_;
    QPushButton *plus_, *miinus_, *osta_, *myy_, *sulje_;
};

}  // namespace tanhua::ui
