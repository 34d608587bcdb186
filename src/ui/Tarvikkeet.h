// The supplies shop: the general supplies, the devices, the owned list; buying and selling.
#pragma once

// own
#include "Kuvat.h"
#include "core/peli.h"
// Qt
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace tanhua::ui {

class Pääikkuna;

class Tarvikkeet : public Tausta {
public:
    Tarvikkeet(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi);

    void Avaa();
    void Päivitä();

    QPushButton* Command3() const { return lisälaitteet_; }
    QPushButton* Command4() const { return yleiset_; }
    QPushButton* Command6() const { return omat_; }
    QPushButton* Command5() const { return toiminto_; }
    QPushButton* Command1() const { return sulje_; }
    QListWidget* Lista() const { return lista_; }
    QLabel* hinta() const { return hinta_; }

private:
    void Sulje();

    Peli& peli_;
    Pääikkuna& ikkuna_;
    QLabel *aihe_, *ohje_, *otsikko_, *info_, *nimi_, *hinta_;
    QListWidget* lista_;
    QPushButton *yleiset_, *lisälaitteet_, *omat_, *toiminto_, *sulje_;
};

}  // namespace tanhua::ui
