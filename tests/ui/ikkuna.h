// The window's test support: a window on a fresh data folder, and every control of a screen
// compared with the widget that shows it.
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>

#include <initializer_list>
#include <memory>
#include <string>

#include "storage/tiedostot.h"
#include "tuki/testipeli.h"
#include "ui/Pääikkuna.h"
#include "ui/QtKanavat.h"

namespace tanhua::ui::testi {

// A window on a fresh data folder seeded from the built program folder.
struct Ikkuna {
    Ikkuna();
    ~Ikkuna();
    // Starts a farm from the start screen with the name typed and Enter.
    void Aloita(const char* nimi = "Matti");
    // Answers the next Message box with a key once it is open.
    void VastaaNäppäimellä(Qt::Key näppäin);
    // Closes the toolkit's next box (a plain notice) as a player would, once it is open.
    static void SuljeLaatikko();

    tanhua::testi::Väliaikainen kansio;
    Kansiot kansiot;
    QtKanavat kanavat;
    Peli peli;
    std::unique_ptr<Pääikkuna> w;
    QTimer vahti;
    std::string odottamaton;
    bool lopetettu = false;
};

// A farm started from the start screen, as most of the window's tests begin.
struct Pelissä : ::testing::Test {
    Pelissä() { i.Aloita(); }
    Ikkuna i;
    Muuttujat& m = i.peli.m;
};

// Clicks each widget in turn with the left button.
void Klikkaa(std::initializer_list<QWidget*> kohteet);

// Every control the game registers for the screen against the widget of the same name (a member of
// an array as "Kuva(3)" or "Picture3"): shown alike, enabled alike, and showing the same text,
// picture file, state, value or rows. Returns how many controls were shown.
int VertaaRuutua(const Peli& peli, QWidget* ruutu, const std::string& näyttö);

}  // namespace tanhua::ui::testi
