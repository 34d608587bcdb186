// The staff screen: the job list, the chosen job's picture and text, hiring, firing, the wage slider, overtime.
#pragma once

// own
#include "Kuvat.h"
#include "core/peli.h"
// Qt
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>

namespace tanhua::ui {

class Pääikkuna;

class Työvoima : public Tausta {
public:
    Työvoima(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi);

    void Avaa();
    void Päivitä();

    QListWidget* Lista() const { return lista_; }
    QPushButton* Command3() const { return ota_; }
    QPushButton* Command5() const { return erota_; }
    QPushButton* Command7() const { return ylityöPäälle_; }
    QPushButton* Command6() const { return ylityöPois_; }
    QPushButton* Command1() const { return sulje_; }
    QSlider* mittari() const { return mittari_; }
    QLabel* työmies() const { return työmies_; }
    QLabel* palk() const { return palk_; }

protected:
    void keyPressEvent(QKeyEvent* tapahtuma) override;

private:
    void Sulje();

    Peli& peli_;
    Pääikkuna& ikkuna_;
    QListWidget* lista_;
    QLabel *aihe_, *ohje_, *työ_, *kuva_, *info_, *palkka_, *työmies_, *palk_, *yliTyö_, *yhtpalk_, *työläisiä_,
        *moti_, *stres_;
    QPushButton *ota_, *erota_, *ylityöPäälle_, *ylityöPois_, *sulje_;
    QSlider* mittari_;
};

}  // namespace tanhua::ui
