// The bank: the loan and the deposit with their sheet, the insurance sheet and the market report.
#pragma once

// own
#include "Kuvat.h"
#include "core/peli.h"
// Qt
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <array>

namespace tanhua::ui {

class Pääikkuna;

class Pankki : public Tausta {
public:
    Pankki(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi);

    void Avaa();
    void Päivitä();

    QPushButton* Command2() const { return otaLainaa_; }
    QPushButton* Command4() const { return talleta_; }
    QPushButton* Command6() const { return pörssi_; }
    QPushButton* Command8() const { return vahvista_; }
    QPushButton* vaku() const { return vaku_; }
    QLineEdit* summa() const { return summa_; }
    QCheckBox* Vakuutus(int v) const { return vakuutukset_[v]; }
    QLabel* lainaz() const { return lainaz_; }
    QLabel* Vakusummaz() const { return vakusumma_; }
    QPushButton* Command1() const { return sulje_; }

protected:
    bool eventFilter(QObject* kohde, QEvent* tapahtuma) override;
    void keyPressEvent(QKeyEvent* tapahtuma) override;

private:
    QFrame* Lappu();
    QFrame* VakuLappu();
    void Toimi(void (*f)(Peli&));
    void Sulje();

    Peli& peli_;
    Pääikkuna& ikkuna_;
    QLabel *aihe_, *ohje_, *lainaz_, *tiliz_, *maksuaikaz_;
    QFrame *lappu_, *vakuLappu_;
    QLabel *otsikko_, *teksti_, *aikaz_, *prossa_, *yksikkö_, *vakuOtsikko_, *vakusumma_, *vakuinfo_;
    QLineEdit* summa_;
    QPushButton *otaLainaa_, *maksa_, *talleta_, *nosta_, *pörssi_, *vaku_, *sulje_;
    QPushButton *aikaAlas_, *aikaYlös_, *vahvista_, *suljeLappu_, *suljeVaku_;
    std::array<QCheckBox*, VAKUUTUKSIA> vakuutukset_{};
    std::array<QLabel*, VAKUUTUKSIA> maksut_{};
};

}  // namespace tanhua::ui
