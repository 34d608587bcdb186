// The contracts screen: the call requests with the buyer's terms, and the three contract slots.
#pragma once

// own
#include "Kuvat.h"
#include "core/peli.h"
// Qt
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
// std
#include <array>

namespace tanhua::ui {

class Pääikkuna;

class Sopimukset : public Tausta {
public:
    Sopimukset(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi);

    void Avaa();
    void Päivitä();

    QListWidget* Sopimuksia() const { return lista_; }
    QPushButton* Command1() const { return sulje_; }
    QPushButton* Command2() const { return hylkää_; }
    QPushButton* Command3() const { return hyväksy_; }
    QPushButton* Command5() const { return uudet_; }
    QPushButton* Command6() const { return sopimukset_; }
    QPushButton* Command7() const { return peru_; }
    QLabel* Tuote(int paikka) const { return paikat_[paikka][0]; }
    QLabel* infoa() const { return infoa_[0]; }

protected:
    bool eventFilter(QObject* kohde, QEvent* tapahtuma) override;

private:
    QFrame* Tarjouslappu();
    QFrame* Sopimuslappu();
    void Toimi(void (*f)(Peli&));
    void Sulje();

    Peli& peli_;
    Pääikkuna& ikkuna_;
    QLabel* aihe_;
    QFrame *tarjouslappu_, *sopimuslappu_;
    QListWidget* lista_;
    std::array<QLabel*, 2> infoa_{};  // the text and its shadow
    QLabel *yhttulot_, *läpi_, *epä_, *peruttava_;
    std::array<std::array<QLabel*, 6>, SOPIMUSPAIKKOJA> paikat_{};  // tuotez .. kestoz of each slot
    QPushButton *uudet_, *sopimukset_, *sulje_, *hyväksy_, *hylkää_, *suljeTarjoukset_, *peru_, *suljeSopimukset_;
};

}  // namespace tanhua::ui
