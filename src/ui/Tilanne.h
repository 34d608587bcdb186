// The Tilanne screen: where the career stands, the save and open panel, retirement and the story.
#pragma once

// own
#include "Kuvat.h"
#include "core/peli.h"
// Qt
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
// std
#include <string>
#include <vector>

namespace tanhua::ui {

class Pääikkuna;

// A printed area: lines of text as the game prints them, on a light sheet over the backdrop.
class PainettuAlue : public QFrame {
public:
    PainettuAlue(const char* nimi, int koko, QWidget* vanhempi);
    void AsetaRivit(const std::vector<std::string>& rivit);
    void AsetaTausta(const QPixmap& kuva);
    const QStringList& Rivit() const { return rivit_; }

protected:
    void paintEvent(QPaintEvent* tapahtuma) override;

private:
    QStringList rivit_;
    QPixmap tausta_;
    int koko_;  // the print's point size
};

class Tilanne : public Tausta {
public:
    Tilanne(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi);

    // The opening work of the main screen's Command7: a backdrop for the print area, the score.
    void Avaa();
    void Päivitä();

    QPushButton* Command1() const { return avaaTallenna_; }
    QPushButton* Command3() const { return sulje_; }
    QPushButton* Command4() const { return eläke_; }
    QPushButton* Command5() const { return tallenna_; }
    QPushButton* Command6() const { return avaa_; }
    QPushButton* Command8() const { return listat_; }
    QPushButton* Poista() const { return poista_; }
    QPushButton* Command2() const { return suljePaneeli_; }
    QPushButton* TarinaSulje() const { return tarinaSulje_; }
    QLineEdit* Kohde() const { return kohde_; }
    QListWidget* File1() const { return tiedostot_; }
    PainettuAlue* Alue() const { return alue_; }
    PainettuAlue* Tarina() const { return tarina_; }

protected:
    bool eventFilter(QObject* kohde, QEvent* tapahtuma) override;
    void keyPressEvent(QKeyEvent* tapahtuma) override;

private:
    QFrame* Paneeli();
    QPushButton* Nappi(const char* nimi, QWidget* vanhempi);
    void Toimi(void (*f)(Peli&));
    void Sulje();
    void UusiTilanne();

    Peli& peli_;
    Pääikkuna& ikkuna_;
    QLabel *aihe_, *ohje_;
    PainettuAlue *alue_, *tarina_;
    QFrame* akkuna_;
    QLineEdit* kohde_;
    QListWidget* tiedostot_;
    QPushButton *avaaTallenna_, *sulje_, *eläke_, *listat_, *uusi_, *tallenna_, *avaa_, *poista_, *suljePaneeli_,
        *tarinaSulje_;
};

}  // namespace tanhua::ui
