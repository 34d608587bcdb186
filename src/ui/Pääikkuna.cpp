// The game's window: one frame whose pages are the screens, with the news window and the money plate on top.
#include "Pääikkuna.h"

// own
#include "Eläimet.h"
#include "Kuvat.h"
#include "Tuotteet.h"
#include "Työvoima.h"
#include "Rakennukset.h"
#include "Pankki.h"
#include "Tarvikkeet.h"
#include "Pellot.h"
#include "Kylvö.h"
#include "Nosto.h"
#include "Käyrät.h"
#include "Ravit.h"
#include "racing/ravit.h"
#include "Hevostalli.h"
#include "Tilanne.h"
#include "Topten.h"
#include "Player.h"
#include "core/musiikki.h"
#include "Sopimukset.h"
#include "market/markkinat.h"
#include "core/alku.h"
#include "core/kursorit.h"
#include "core/päivä.h"
#include "core/pääruutu.h"
#include "core/tähdet.h"
#include "core/vikatila.h"
#include "core/viestit.h"
// Qt
#include <QCloseEvent>
#include <cmath>
#include <QCoreApplication>
#include <QThread>
#include <QGuiApplication>
#include <QScreen>
#include <QKeyEvent>

namespace tanhua::ui {

Pääikkuna::Pääikkuna(Peli& peli) : peli_(peli) {
    setWindowTitle("Tanhua");
    // Every screen is laid out on the 800 x 600 canvas; the view scales it to the window. Below scale 1
    // the smallest texts of the screens would no longer be readable, so the window keeps that size.
    setMinimumSize(KANKAAN_LEVEYS, KANKAAN_KORKEUS);
    sisältö_ = new QWidget;
    sisältö_->setObjectName("Kangas");
    pino_ = new QStackedWidget(sisältö_);
    pino_->setGeometry(0, 0, KANKAAN_LEVEYS, KANKAAN_KORKEUS);
    kangas_ = new Kangas(sisältö_, this);
    kangas_->MittakaavaMuuttui = [this](double) { MittakaavaMuuttui(); };
    setCentralWidget(kangas_);
    alku_ = new Alku(peli_, pino_);
    tanhua_ = new Tanhua(peli_, pino_);
    raportti_ = new Raportti(peli_, pino_);
    eläimet_ = new Eläimet(peli_, *this, pino_);
    tuotteet_ = new Tuotteet(peli_, *this, pino_);
    työvoima_ = new Työvoima(peli_, *this, pino_);
    rakennukset_ = new Rakennukset(peli_, *this, pino_);
    pankki_ = new Pankki(peli_, *this, pino_);
    tarvikkeet_ = new Tarvikkeet(peli_, *this, pino_);
    hevostalli_ = new Hevostalli(peli_, *this, pino_);
    for (QWidget* ruutu : std::initializer_list<QWidget*>{alku_, tanhua_, raportti_, eläimet_, tuotteet_, työvoima_,
                                                          rakennukset_, pankki_, tarvikkeet_, hevostalli_})
        pino_->addWidget(ruutu);
    pellot_ = new Pellot(peli_, *this, pino_);
    kylvö_ = new Kylvö(peli_, *this, pino_);
    nosto_ = new Nosto(peli_, *this, pino_);
    for (QWidget* ruutu : std::initializer_list<QWidget*>{pellot_, kylvö_, nosto_}) pino_->addWidget(ruutu);
    // The contracts screen, opened by its button or the ringing phone.
    sopimukset_ = new Sopimukset(peli_, *this, pino_);
    pino_->addWidget(sopimukset_);
    tanhua_->AvaaSopimukset = [this] { AvaaRuutu(sopimukset_); };
    käyrät_ = new Käyrät(peli_, *this, pino_);
    ravit_ = new Ravit(peli_, *this, pino_);
    pino_->addWidget(käyrät_);
    pino_->addWidget(ravit_);
    tilanne_ = new Tilanne(peli_, *this, pino_);
    topten_ = new Topten(peli_, *this, pino_);
    pino_->addWidget(tilanne_);
    pino_->addWidget(topten_);
    uutiset_ = new ikkuna(peli_, pino_);
    kyltti_ = new RahaKyltti(peli_, pino_);
    kyltti_->hide();
    // The plate's place at the canvas' top right, which every sub-screen's header row leaves free.
    kyltti_->move(KANKAAN_LEVEYS - kyltti_->width() - 12, 12);
    message_ = new Message(peli_, sisältö_);
    pohja_ = new Pohja(peli_, this);

    alku_->Aloitettu = [this] {
        AsetaNäyttö();
        LataaKursorit();
        pino_->setCurrentWidget(tanhua_);
        PalaaPääruutuun();
    };
    alku_->Lopetettu = [this] { lopetus(); };
    alku_->JatkaPyydetty = [this] {
        bool avattu = false;
        Toimi([&] { avattu = JatkaTilannetta(peli_); });
        if (avattu) {
            AsetaNäyttö();
            LataaKursorit();
            pino_->setCurrentWidget(tanhua_);
            PalaaPääruutuun();
        } else {
            alku_->Päivitä();
        }
    };
    tanhua_->SeuraavaPäivä = [this] { SeuraavaPäivä(); };
    tanhua_->Lopeta = [this] { Lopeta(); };
    tanhua_->NäytäTähti = [this](int tähti) { Toimi([this, tähti] { tanhua::NäytäTähti(peli_, tähti); }); };
    // The music player: its badge opens the panel, whose buttons run the player's rules.
    tanhua_->AvaaSoitin = [this] { AvaaSoitin(); };
    Player* soitin = tanhua_->player();
    soitin->Arvo = [this] { Toimi([this] { SoitinArvo(peli_); }); };
    soitin->Seuraava = [this] { Toimi([this] { SoitinSeuraava(peli_); }); };
    soitin->Stop = [this] { Toimi([this] { SoitinStop(peli_); }); };
    soitin->Piilota = [this] { PiilotaSoitin(); };
    tanhua_->AvaaEläimet = [this] { AvaaRuutu(eläimet_); };
    tanhua_->AvaaTuotteet = [this] { AvaaRuutu(tuotteet_); };
    tanhua_->AvaaTyövoima = [this] { AvaaRuutu(työvoima_); };
    tanhua_->AvaaRakennukset = [this] { AvaaRuutu(rakennukset_); };
    tanhua_->AvaaPankki = [this] { AvaaRuutu(pankki_); };
    tanhua_->AvaaTarvikkeet = [this] { AvaaRuutu(tarvikkeet_); };
    tanhua_->AvaaPellot = [this] { AvaaRuutu(pellot_); };
    // The land screen's two pictures lead on to the sowing and harvest screens, which come back to it.
    auto alaruudulle = [this](QWidget* ruutu, const std::function<void()>& avaa) {
        Toimi(avaa);
        pino_->setCurrentWidget(ruutu);
        Päivitä();
    };
    pellot_->AvaaKylvö = [this, alaruudulle] { alaruudulle(kylvö_, [this] { kylvö_->Avaa(); }); };
    pellot_->AvaaNosto = [this, alaruudulle] { alaruudulle(nosto_, [this] { nosto_->Avaa(); }); };
    kylvö_->Palaa = nosto_->Palaa = [this] {
        pino_->setCurrentWidget(pellot_);
        Päivitä();
    };
    tanhua_->AvaaKäyrät = [this] { AvaaRuutu(käyrät_); };
    ravit_->Suljettu = [this] {
        if (raviPaluu_) {
            TaitaToiseen(ravit_, raviPaluu_);
        } else {
            PalaaPääruutuun();
        }
    };
    tanhua_->AvaaHevostalli = [this] { AvaaRuutu(hevostalli_); };
    tanhua_->AvaaTilanne = [this] { AvaaRuutu(tilanne_); };
    raportti_->Suljettu = [this] {
        // The market report goes back to the bank, the month's report to the main screen.
        if (peli_.pankkiruutu.auki) {
            pino_->setCurrentWidget(pankki_);
            Päivitä();
            return;
        }
        pino_->setCurrentWidget(tanhua_);
        PalaaPääruutuun();
    };
    // The news window goes back where it was opened from: the staff screen, or the main screen.
    uutiset_->Suljettu = [this](const QString& paluu) {
        if (paluu == "Työvoima") pino_->setCurrentWidget(työvoima_);
        else if (pino_->currentWidget() != tanhua_ && OnAlaruutu(pino_->currentWidget())) PalaaPääruutuun();
        Päivitä();
        PalautaKohdistus(nullptr);
    };

    // The field around the canvas, and F11 between a window and the whole screen.
    kangas_->AsetaReunakuva(KuvaJosOn(peli_, "Kuvat/OhraPelto2.jpg"));
    // F11 is heard wherever the focus is: on a screen of the canvas, in a box or on the logo.
    qApp->installEventFilter(this);

    // The largest 4:3 window that takes no more than 85 % of the screen, but never below the canvas.
    QSize koko(1024, 768);
    if (const QScreen* näyttö = QGuiApplication::primaryScreen()) {
        const QSize ala = näyttö->availableSize() * 0.85;
        koko = QSize(KANKAAN_LEVEYS, KANKAAN_KORKEUS).scaled(ala, Qt::KeepAspectRatio)
                   .expandedTo(QSize(KANKAAN_LEVEYS, KANKAAN_KORKEUS));
    }
    resize(koko);
}

void Pääikkuna::AsetaKokoNäyttö(bool koko) {
    // The desktop's display mode is never changed: the whole screen is the window without its frame,
    // and the canvas scales to it.
    if (koko == isFullScreen()) return;
    if (koko) showFullScreen();
    else showNormal();
}

void Pääikkuna::AsetaNäyttö() {
    if (peli_.asetukset.Resoluutio800) AsetaKokoNäyttö(true);
}

void Pääikkuna::MittakaavaMuuttui() {
    // Pictures are made again at the new resolution, and the pointer grows with the canvas.
    AsetaKursorit();
    Päivitä();
}

void Pääikkuna::LataaKursorit() {
    // The pitchfork goes to the forms the game names, each from the file, so a missing file tells
    // the player once a form.
    kursorilliset_.clear();
    tanhua::LataaKursorit(peli_, [this](std::string_view lomake) {
        Kuva(peli_, "Kuvat/talikko.ico");
        if (QWidget* w = KursorinLomake(lomake)) kursorilliset_.push_back(w);
    });
    AsetaKursorit();
}

QWidget* Pääikkuna::KursorinLomake(std::string_view lomake) const {
    // "ikkuna" is the start screen's panel, which lives on the start screen here.
    const std::pair<std::string_view, QWidget*> lomakkeet[] = {
        {"Alku", alku_},         {"ikkuna", alku_},       {"Eläimet", eläimet_},     {"Tanhua", tanhua_},
        {"Hevostalli", hevostalli_}, {"Käyrät", käyrät_}, {"Message", message_},     {"Pankki", pankki_},
        {"Pellot", pellot_},     {"Pohja", pohja_},       {"RahaKyltti", kyltti_},   {"Rakennukset", rakennukset_},
        {"Raportti", raportti_}, {"Tilanne", tilanne_},   {"Topten", topten_},       {"Tuotteet", tuotteet_},
        {"Työvoima", työvoima_}};
    for (const auto& [nimi, w] : lomakkeet)
        if (nimi == lomake) return w;
    return nullptr;
}

void Pääikkuna::AsetaKursorit() {
    // The pointer is 32 units of the canvas, its tip the hot spot: it grows with the scale.
    if (kursorilliset_.empty()) return;
    const QPixmap talikko = KuvaJosOn(peli_, "Kuvat/talikko.ico");
    if (talikko.isNull()) return;
    const double suhde = devicePixelRatioF();
    const int koko = static_cast<int>(std::lround(32 * kangas_->Mittakaava() * suhde));
    QPixmap kuva = talikko.scaled(koko, koko, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    kuva.setDevicePixelRatio(suhde);
    const QCursor kursori(kuva, 0, 0);
    for (QWidget* w : kursorilliset_) w->setCursor(kursori);
}

void Pääikkuna::NäytäLogo() {
    pohja_->setGeometry(rect());
    pohja_->Logo();
}

void Pääikkuna::KappaleLoppui() { Toimi([this] { DirectXEvent8_DXCallback(peli_, 1); }); }

void Pääikkuna::AvaaSoitin() {
    Player* soitin = tanhua_->player();
    std::vector<int> askeleet;
    Toimi([&] { askeleet = tanhua::AvaaSoitin(peli_, tanhua_->height()); });
    if (!askeleet.empty()) {
        soitin->move(tanhua_->width() / 3, askeleet.front());
        soitin->show();
        soitin->raise();
        soitin->Liuku(askeleet);
    }
    soitin->raise();
    Päivitä();
}

void Pääikkuna::PiilotaSoitin() {
    Player* soitin = tanhua_->player();
    std::vector<int> askeleet;
    Toimi([&] { askeleet = tanhua::PiilotaSoitin(peli_, soitin->y()); });
    soitin->Liuku(askeleet);
    Päivitä();
    PalautaKohdistus(nullptr);
}

void Pääikkuna::Taita(QWidget* lomake, const Taitto& taitto) {
    const QRect koko = lomake->geometry();
    for (const TaitonKierros& k : taitto.kierrokset) {
        lomake->setGeometry(koko.x(), k.yläreuna, koko.width(), k.korkeus);
        lomake->repaint();
        if (taitto.nukkuMs > 0) {
            QThread::msleep(static_cast<unsigned long>(taitto.nukkuMs));
            QCoreApplication::processEvents();
        } else {
            for (int i = 0; i < taitto.tapahtumakierroksia; ++i) QCoreApplication::processEvents();
        }
    }
}

void Pääikkuna::Käynnistä() {
    pino_->setCurrentWidget(alku_);
    AlkuLataus(peli_);
    alku_->Päivitä();
}

void Pääikkuna::Toimi(const std::function<void()>& toiminto) {
    // A failure with no handler of its own is caught here and reported with an unknown place.
    Vartioitu(peli_, "", {toiminto});
    Päivitä();
}

void Pääikkuna::Päivitä() {
    QWidget* nyt = UranRuutu(pino_->currentWidget());
    if (nyt == tanhua_) {
        Päivitälukemat(peli_);
        tanhua_->Päivitä();
        tanhua_->setEnabled(peli_.näkymä.PääruutuKäytössä);
    } else if (nyt == eläimet_) {
        eläimet_->Päivitä();
    } else if (nyt == tuotteet_) {
        tuotteet_->Päivitä();
    } else if (nyt == työvoima_) {
        työvoima_->Päivitä();
    } else if (nyt == rakennukset_) {
        rakennukset_->Päivitä();
    } else if (nyt == pankki_) {
        pankki_->Päivitä();
    } else if (nyt == tarvikkeet_) {
        tarvikkeet_->Päivitä();
    } else if (nyt == pellot_) {
        pellot_->Päivitä();
    } else if (nyt == kylvö_) {
        kylvö_->Päivitä();
    } else if (nyt == nosto_) {
        nosto_->Päivitä();
    } else if (nyt == käyrät_) {
        käyrät_->Päivitä();
    } else if (nyt == ravit_) {
        ravit_->Päivitä();
    } else if (nyt == hevostalli_) {
        hevostalli_->Päivitä();
    } else if (nyt == sopimukset_) {
        sopimukset_->Päivitä();
    } else if (nyt == tilanne_) {
        tilanne_->Päivitä();
    } else if (nyt == topten_) {
        topten_->Päivitä();
    }
    const bool alaruutu = OnAlaruutu(nyt);
    kyltti_->setVisible(alaruutu);
    if (alaruutu) {
        kyltti_->Päivitä();
        kyltti_->raise();
    }
    if (uutiset_->isVisible()) uutiset_->raise();
}

void Pääikkuna::AvaaRuutu(QWidget* ruutu) {
    Toimi([&] {
        AvaaAlaruutu(peli_, [&] {
            if (ruutu == eläimet_) eläimet_->Avaa();
            if (ruutu == tuotteet_) tuotteet_->Avaa();
            if (ruutu == työvoima_) työvoima_->Avaa();
            if (ruutu == rakennukset_) rakennukset_->Avaa();
            if (ruutu == pankki_) pankki_->Avaa();
            if (ruutu == tarvikkeet_) tarvikkeet_->Avaa();
            if (ruutu == pellot_) pellot_->Avaa();
            if (ruutu == käyrät_) käyrät_->Avaa();
            if (ruutu == hevostalli_) hevostalli_->Avaa();
            if (ruutu == sopimukset_) sopimukset_->Avaa();
            if (ruutu == tilanne_) tilanne_->Avaa();
        });
    });
    TaitaToiseen(tanhua_, ruutu);
}

void Pääikkuna::AvaaRavit(QWidget* paluu) {
    raviPaluu_ = paluu;
    Toimi([this] { tanhua::AvaaRavit(peli_); });
    TaitaToiseen(pino_->currentWidget(), ravit_);
}

void Pääikkuna::TaitaToiseen(QWidget* pois, QWidget* esiin) {
    // The form going away folds to its middle line and stays small; the next opens from that line;
    // then the first gets its size back while hidden (PalautaKoko, for the main form). The main form
    // pauses by its own counts.
    const QRect sivu = pois->geometry();
    const auto lomake = [this](const QWidget* w) { return w == tanhua_ ? Lomake::Pääruutu : Lomake::Alaruutu; };
    pois->setEnabled(false);
    Taita(pois, KuvanPienennys(peli_, sivu.height(), sivu.y(), lomake(pois)));
    pino_->setCurrentWidget(esiin);
    // The main screen is brought up to date by the way back's own operation, after its fold.
    if (esiin == tanhua_) kyltti_->hide();
    else Päivitä();
    esiin->setEnabled(false);
    Taita(esiin, KuvanSuurennus(peli_, sivu.height(), sivu.y(), lomake(esiin)));
    for (QWidget* w : {pois, esiin}) {
        w->setGeometry(sivu);
        w->setEnabled(w != tanhua_ || peli_.näkymä.PääruutuKäytössä);
    }
}

void Pääikkuna::PalautaKohdistus(QWidget* ennen) {
    activateWindow();
    if (pino_->currentWidget() == tanhua_ && tanhua_->isEnabled()) tanhua_->Command4()->setFocus();
    else if (ennen && ennen->isVisible()) ennen->setFocus();
}

void Pääikkuna::PalaaPääruutuun() {
    // A screen folds away to its middle line and the main form opens from it; from the main form,
    // the report or the career's screens the main form simply comes up.
    QWidget* ruutu = pino_->currentWidget();
    if (OnAlaruutu(ruutu)) TaitaToiseen(ruutu, tanhua_);
    else pino_->setCurrentWidget(tanhua_);
    Toimi([this] { tanhua::PalaaPääruutuun(peli_); });
    PalautaKohdistus(nullptr);
}

void Pääikkuna::SeuraavaPäivä() {
    // The day has its own handler; the report of a month end disables the main screen.
    if (!peli_.näkymä.PääruutuKäytössä) return;
    tanhua::SeuraavaPäivä(peli_);
    if (peli_.näkymä.RaporttiAuki) {
        pino_->setCurrentWidget(raportti_);
        raportti_->setFocus();
    }
    Päivitä();
    uutiset_->setVisible(peli_.näkymä.IkkunaNäkyvissä);
    if (pino_->currentWidget() == tanhua_ && tanhua_->isEnabled()) tanhua_->Command4()->setFocus();
}

void Pääikkuna::NäytäPörssiraportti() {
    Toimi([this] { PörssiRaportti(peli_); });
    if (peli_.näkymä.RaporttiAuki) {
        pino_->setCurrentWidget(raportti_);
        kyltti_->hide();
    }
}

void Pääikkuna::Lopeta() {
    Toimi([&] {
        if (LopetaKysymys(peli_)) tanhua::Lopeta(peli_);
    });
}

bool Pääikkuna::OnAlaruutu(QWidget* ruutu) const {
    return ruutu == eläimet_ || ruutu == tuotteet_ || ruutu == työvoima_ || ruutu == rakennukset_ || ruutu == pankki_ ||
           ruutu == tarvikkeet_ || ruutu == käyrät_ || ruutu == hevostalli_ || ruutu == sopimukset_ ||
           ruutu == tilanne_ || ruutu == pellot_ || ruutu == kylvö_ || ruutu == nosto_;
}

QWidget* Pääikkuna::UranRuutu(QWidget* nyt) {
    const TilanneRuutuTila& t = peli_.tilanneruutu;
    QWidget* oikea = nyt;
    if (t.Topten.auki && !t.auki && (nyt == tilanne_ || nyt == tanhua_)) oikea = topten_;
    else if (t.auki && !t.Topten.auki && (nyt == topten_ || (nyt == tanhua_ && t.Tarina))) oikea = tilanne_;
    if (oikea != nyt) pino_->setCurrentWidget(oikea);
    return oikea;
}


void Pääikkuna::resizeEvent(QResizeEvent* tapahtuma) {
    // The canvas keeps its size whatever the window's; only the logo's backdrop covers the window.
    QMainWindow::resizeEvent(tapahtuma);
    if (pohja_ && pohja_->isVisible()) pohja_->setGeometry(rect());
}

bool Pääikkuna::eventFilter(QObject* kohde, QEvent* tapahtuma) {
    if (tapahtuma->type() == QEvent::KeyPress) {
        const auto* näppäin = static_cast<QKeyEvent*>(tapahtuma);
        if (näppäin->key() == Qt::Key_F11) {
            if (!näppäin->isAutoRepeat()) AsetaKokoNäyttö(!isFullScreen());
            return true;
        }
    }
    return QMainWindow::eventFilter(kohde, tapahtuma);
}

void Pääikkuna::closeEvent(QCloseEvent* tapahtuma) {
    // Closing the window ends the game with no question and no save.
    tapahtuma->accept();
}

}  // namespace tanhua::ui
