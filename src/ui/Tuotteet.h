// The product screen: the twenty stocks, the card to sell or buy feed, the accountant's sale settings.
#pragma once

// own
#include "Kuvat.h"
#include "core/peli.h"
// Qt
#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <array>

namespace tanhua::ui {

class Pääikkuna;

class Tuotteet : public Tausta {
public:
    Tuotteet(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi);

    void Avaa();
    void Päivitä();

    QLabel* Kuva(int k) const { return kuvat_[k]; }
    QLabel* Varasto(int k) const { return varastot_[k]; }
    QFrame* akkuna() const { return akkuna_; }
    QFrame* Taulu() const { return taulu_; }
    QPushButton* Command1() const { return sulje_; }
    QPushButton* Command2() const { return myyKaikki_; }
    QPushButton* Command3() const { return osta_; }
    QPushButton* Command6() const { return myyPuolet_; }
    QLabel* KirjanpitäjäKuva() const { return kirjanpitäjä_; }
    QCheckBox* Myy(int k) const { return myy_[k]; }
    QPushButton* Tyyli(int k) const { return tyyli_[k]; }
    QCheckBox* rulla() const { return rulla_; }
    QLabel* Yhthinta() const { return yhthinta_; }
    QLabel* aihe() const { return aihe_; }

protected:
    bool eventFilter(QObject* kohde, QEvent* tapahtuma) override;
    void keyPressEvent(QKeyEvent* tapahtuma) override;
    void mouseMoveEvent(QMouseEvent* tapahtuma) override;

private:
    QWidget* Hylly();
    QFrame* Korttipaneeli();
    QFrame* Kirjanpitäjänpaneeli();
    void Sulje();

    Peli& peli_;
    Pääikkuna& ikkuna_;
    std::array<QLabel*, TUOTTEITA> kuvat_{}, varastot_{};
    QLabel *aihe_, *ohje_, *kirjanpitäjä_;
    QFrame *akkuna_, *taulu_;
    QLabel *nimi_, *korttikuva_, *hinta_, *kurssi_, *vAika_, *yhinta_, *kpl_, *yhthinta_, *myyntiAika_;
    QCheckBox* lisäasetus_;
    QPushButton *myyKaikki_, *myyPuolet_, *osta_, *sulje_;
    std::array<QCheckBox*, TUOTTEITA> myy_{};
    std::array<QPushButton*, TUOTTEITA> tyyli_{};
    QCheckBox* rulla_;
};

}  // namespace tanhua::ui
