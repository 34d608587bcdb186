// Pictures and looks of the window: the program folder's pictures by name, the game's fonts and buttons.
#pragma once

// own
#include "Kangas.h"
#include "core/ohjaimet.h"
#include "core/peli.h"
// Qt
#include <QPixmap>
#include <QBoxLayout>
#include <QFrame>
#include <QLayout>
#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <QString>
// std
#include <string>
#include <string_view>

namespace tanhua::ui {

// A picture of the program folder by the game's name ("Kuvat/sattumat/joulu.jpg", "\kuvat\nappi.jpg"),
// found without regard to case. A missing or unreadable file is failure 53.
QPixmap Kuva(const Peli& peli, const std::string& polku);
// The same, or an empty pixmap when the file is missing (for looks that may fall away).
QPixmap KuvaJosOn(const Peli& peli, const std::string& polku);

QString Q(const std::string& s);
std::string S(const QString& s);

// Gives a button the texture of the program folder (nappi.jpg or nappi2.jpg) and the game's font;
// the font grows to the hover size while the pointer is over it.
void Teksturoi(const Peli& peli, QPushButton* nappi, const char* tekstuuri, int perusKoko, int hoverKoko);

// A button of a sub-screen: named, with the sub-screens' paper texture, at least 34 units high.
QPushButton* AlaruudunNappi(const Peli& peli, const QString& nimi, QWidget* vanhempi);
// A label of the game's text colour at a point size, bold unless told.
QLabel* Teksti(const QString& teksti, int koko, QWidget* vanhempi, bool lihava = true);
// A light, rounded panel over a backdrop, named for its control.
QFrame* Paneeli(QWidget* vanhempi, const char* nimi);
// The hint line Ohje of a screen.
QLabel* OhjeRivi(QWidget* vanhempi);
// The label aihe that names what the pointer is over.
QLabel* AiheOtsikko(const QString& teksti, QWidget* vanhempi);
// The frame of a sub-screen: the label aihe at the top (room left for the money plate), the main
// panel left and the column of panels right, the hint line and the close button at the bottom.
// The two columns share the width as `vasenOsuus` to `oikeaOsuus` whatever they show, so opening
// a card never moves the other panels.
void AsetteleAlaruutu(QWidget* ruutu, QWidget* aihe, QWidget* vasen, QLayout* oikea, QLabel* ohje, QPushButton* sulje,
                      int vasenOsuus = 3, int oikeaOsuus = 2);
// The header row of a sub-screen: its title at the left and, at the right, the room of the money
// plate, as high as the plate, so that what comes below starts under it.
QHBoxLayout* OtsikkoRivi(QWidget* aihe);
// A control of a screen as the game reads it (screen "Eläimet", control "Kuva(3)"); a name the
// screen doesn't register reads as hidden.
Ohjain LueRuudulta(const Peli& peli, std::string_view ruutu, const std::string& nimi);
// A widget takes its control: a check box its state, a label or button its text, and whether it
// shows and takes clicks.
void Näytä(QWidget* w, const Ohjain& o);
// A picture label takes its control: shown or not, the file of the folder ("Kuvat/sää/") scaled to
// `koko` pixels when it is given, its hint, and the file's name kept on the label.
void NäytäKuva(const Peli& peli, QLabel* l, const std::string& kansio, const Ohjain& o, int koko = 0);

// The toolkit's own texts in Finnish ("Kyllä" and "Ei" on its boxes), from its translation when the
// machine has it. Called once, after the application is made.
void SuomennaTyökalut();

// A key held down repeats; a repeat never answers a box, closes a report or a news window: only a
// fresh press does. Installed on the widget and on each of its buttons.
void EstäToisto(QWidget* w);

// A text of a table as Qt text.
QString Sv(std::string_view s);

// A widget that paints a picture scaled to cover it, behind its children.
class Tausta : public QWidget {
public:
    explicit Tausta(QWidget* vanhempi = nullptr) : QWidget(vanhempi) {}
    void AsetaKuva(const QPixmap& kuva) {
        kuva_ = kuva;
        update();
    }

protected:
    void paintEvent(QPaintEvent* tapahtuma) override;

private:
    QPixmap kuva_;
};

}  // namespace tanhua::ui
