// The start screen: the player's name, the goal, the difficulty and the two options; a new farm or the last one.
#pragma once

#include <functional>

// own
#include "Kuvat.h"
#include "core/peli.h"
// Qt
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>

namespace tanhua::ui {

class Alku : public Tausta {
public:
    Alku(Peli& peli, QWidget* vanhempi);

    // Shows the controls as the start-up left them (Viime, the enabled continue button).
    void Päivitä();
    // The loading panel's text and bar.
    void Lataus(const std::string& texti, int palkki);

    QLineEdit* Nimesi() const { return nimesi_; }
    QListWidget* Lista() const { return lista_; }
    QPushButton* Command1() const { return command1_; }
    QPushButton* Command2() const { return command2_; }
    QPushButton* Command3() const { return command3_; }
    QPushButton* Command4() const { return command4_; }
    QCheckBox* Ohjeita() const { return ohjeita_; }
    QCheckBox* TP_Valinta() const { return tp_; }
    QLabel* VTaso() const { return vtaso_; }

    // What the frame does when a farm stands, when the last one is asked for, and on Esc.
    std::function<void()> Aloitettu, JatkaPyydetty, Lopetettu;

protected:
    bool eventFilter(QObject* kohde, QEvent* tapahtuma) override;
    void keyPressEvent(QKeyEvent* tapahtuma) override;

private:
    void AloitaUusi();
    void SiirräValinnat();

    Peli& peli_;
    QLineEdit* nimesi_;
    QListWidget* lista_;
    QLabel *vtaso_, *viime_, *texti_;
    QPushButton *command1_, *command2_, *command3_, *command4_;
    QCheckBox *ohjeita_, *tp_;
    QWidget* lataus_;
    QProgressBar* palkki_;
};

}  // namespace tanhua::ui
