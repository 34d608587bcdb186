// The channels in the window.
#include "QtKanavat.h"

// own
#include "Pääikkuna.h"
// Qt
#include <QApplication>
#include <QEventLoop>
#include <QPointer>
#include <QInputDialog>
#include <QMessageBox>
#include <optional>

namespace tanhua::ui {

std::string QtKanavat::Kysy(const std::string& teksti, int tyyli) {
    const QPointer<QWidget> ennen = QApplication::focusWidget();
    const std::string vastaus = ikkuna_->message()->Kysy(teksti, tyyli);
    ikkuna_->PalautaKohdistus(ennen);
    return vastaus;
}

void QtKanavat::Kerro(const std::string& kuva, const std::string& teksti) { ikkuna_->uutiset()->Näytä(kuva, teksti); }

void QtKanavat::OdotaIkkunaa() {
    // The contract notices wait, letting the window live, until the news window is closed.
    QEventLoop silmukka;
    auto aiempi = ikkuna_->uutiset()->Suljettu;
    ikkuna_->uutiset()->Suljettu = [&](const QString& paluu) {
        if (aiempi) aiempi(paluu);
        silmukka.quit();
    };
    if (ikkuna_->uutiset()->isVisible()) silmukka.exec();
    ikkuna_->uutiset()->Suljettu = aiempi;
}

void QtKanavat::ListaRivi(const std::string&) { ikkuna_->tanhua()->Päivitä(); }

void QtKanavat::Raportti(const RaporttiSivu& sivu) {
    ikkuna_->raportti()->Tulosta(sivu);
    ikkuna_->pino()->setCurrentWidget(ikkuna_->raportti());
}

void QtKanavat::Loppu() { ikkuna_->lopetus(); }

namespace {
// The system's boxes are windows of their own, outside the canvas: their text grows with the canvas'
// scale so that they read as the game does on a large screen.
void Mitoita(QWidget* laatikko, const Pääikkuna* ikkuna) {
    const double mittakaava = ikkuna ? ikkuna->kangas()->Mittakaava() : 1.0;
    if (mittakaava <= 1.0) return;
    QFont f = laatikko->font();
    f.setPointSizeF(f.pointSizeF() * mittakaava);
    laatikko->setFont(f);
}

// A prompt for one line of text; the default when it is cancelled.
std::optional<QString> Rivikehote(Pääikkuna* ikkuna, const std::string& otsikko, const std::string& kysymys,
                            const std::string& oletus) {
    QInputDialog kehote(ikkuna);
    kehote.setWindowTitle(QString::fromStdString(otsikko));
    kehote.setLabelText(QString::fromStdString(kysymys));
    kehote.setTextValue(QString::fromStdString(oletus));
    Mitoita(&kehote, ikkuna);
    if (kehote.exec() != QDialog::Accepted) return std::nullopt;
    return kehote.textValue();
}
}  // namespace

void QtKanavat::Laatikko(const std::string& teksti) {
    QMessageBox laatikko(QMessageBox::Information, "Tanhua", QString::fromStdString(teksti), QMessageBox::Ok, ikkuna_);
    Mitoita(&laatikko, ikkuna_);
    laatikko.exec();
}

std::string QtKanavat::Kehote(const std::string& kysymys, const std::string& oletus) {
    const std::optional<QString> vastaus = Rivikehote(ikkuna_, "Tanhua", kysymys, oletus);
    return vastaus ? vastaus->toStdString() : oletus;
}

std::string QtKanavat::KehoteOtsikolla(const std::string& kysymys, const std::string& otsikko,
                                       const std::string& oletus) {
    // A cancelled prompt gives nothing, as the player typed nothing.
    const std::optional<QString> vastaus = Rivikehote(ikkuna_, otsikko, kysymys, oletus);
    return vastaus ? vastaus->toStdString() : std::string();
}

void QtKanavat::Ääni(const std::string& nimi) { soitin_.Soita(nimi); }

bool QtKanavat::ÄäniLaite() { return soitin_.Laite(); }

void QtKanavat::MidiAlusta() {
    soitin_.AvaaMidi();
    // A song's end reaches the game on the window's thread, as the player's notice.
    soitin_.KappaleLoppui = [this] {
        if (ikkuna_) ikkuna_->KappaleLoppui();
    };
}

void QtKanavat::MidiSoita(const std::string& tiedosto) { soitin_.SoitaMidi(tiedosto); }

void QtKanavat::MidiPysäytä() { soitin_.PysäytäMidi(); }

void QtKanavat::MidiLopeta() { soitin_.SuljeMidi(); }

bool QtKanavat::Vikalaatikko(const std::string&, int, const std::string& teksti) {
    QMessageBox laatikko(QMessageBox::Critical, "VikaTila", QString::fromStdString(teksti),
                         QMessageBox::Yes | QMessageBox::No, ikkuna_);
    laatikko.setObjectName("VikaTila");
    Mitoita(&laatikko, ikkuna_);
    return laatikko.exec() == QMessageBox::Yes;
}

void QtKanavat::Kuvakaappaus() {
    // The month's picture is the canvas as it stands, the report over the main screen, at the canvas'
    // own size: the margins around it are no part of the game.
    ikkuna_->pino()->setCurrentWidget(ikkuna_->raportti());
    ikkuna_->KuukaudenvaihdeKuva = ikkuna_->sisältö()->grab();
}

void QtKanavat::Lataus(const std::string& texti, int palkki) { ikkuna_->alku()->Lataus(texti, palkki); }

}  // namespace tanhua::ui
