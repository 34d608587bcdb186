// The window's tests run on the offscreen platform with the dummy sound driver: no display, no sound card.
#include <gtest/gtest.h>

#include <QApplication>

#include "ui/Kuvat.h"

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("SDL_AUDIODRIVER")) qputenv("SDL_AUDIODRIVER", "dummy");
    QApplication sovellus(argc, argv);
    tanhua::ui::SuomennaTyökalut();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
