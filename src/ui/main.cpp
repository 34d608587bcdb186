// tanhua: the game in its window. Also writes screenshots of every screen and measures a day's press.
// own
#include "Kuvakaappaukset.h"
#include "Kuvat.h"
#include "Pääikkuna.h"
#include "QtKanavat.h"
#include "storage/tiedostot.h"
// Qt
#include <QApplication>
#include <QDir>
#include <QLockFile>
// std
#include <cstdio>
#include <cstring>
#include <string>

int main(int argc, char** argv) {
    tanhua::Kansiot kansiot{tanhua::Ohjelmakansio(TANHUA_PROGRAM_DIR), tanhua::OletusDatakansio()};
    std::string kuvakansio, vertailu;
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        if (a == "--data-dir" && i + 1 < argc) kansiot.data = argv[++i];
        else if (a == "--program-dir" && i + 1 < argc) kansiot.ohjelma = argv[++i];
        else if (a == "--screenshots" && i + 1 < argc) kuvakansio = argv[++i];
        else if (a == "--benchmark") vertailu = "1";
        else if (a == "-h" || a == "--help") {
            std::printf("usage: tanhua [--data-dir DIR] [--program-dir DIR] [--screenshots DIR] [--benchmark]\n");
            return 0;
        }
    }
    const bool ilmanNäyttöä = !kuvakansio.empty() || !vertailu.empty();
    if (ilmanNäyttöä && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication sovellus(argc, argv);
    QApplication::setApplicationName("Tanhua");
    tanhua::ui::SuomennaTyökalut();

    if (!ilmanNäyttöä) {
        // A second instance of the game ends at once.
        static QLockFile lukko(QDir::temp().filePath("tanhua.lock"));
        if (!lukko.tryLock(0)) return 0;
    }
    if (!kuvakansio.empty()) return tanhua::ui::KirjoitaKuvakaappaukset(kansiot, kuvakansio);
    if (!vertailu.empty()) return tanhua::ui::MittaaPäivä(kansiot);

    tanhua::AlustaDatakansio(kansiot);
    tanhua::ui::QtKanavat kanavat(kansiot.ohjelma);
    tanhua::Peli peli(kanavat, kansiot);
    tanhua::ui::Pääikkuna ikkuna(peli);
    kanavat.Liitä(&ikkuna);
    ikkuna.show();
    ikkuna.NäytäLogo();
    ikkuna.Käynnistä();
    return QApplication::exec();
}
