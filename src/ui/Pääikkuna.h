// The game's window: the start screen, the main screen, the sub-screens, the report and the overlays.
#pragma once

// own
#include "Alku.h"
#include "Kangas.h"
#include "Message.h"
#include "Pohja.h"
#include "RahaKyltti.h"
#include "Raportti.h"
#include "Tanhua.h"
#include "ikkuna.h"
#include "core/peli.h"
#include "core/taitto.h"
// Qt
#include <QApplication>
#include <QMainWindow>
#include <QStackedWidget>
#include <functional>

namespace tanhua::ui {

class Eläimet;
class Tuotteet;
class Työvoima;
class Rakennukset;
class Pankki;
class Tarvikkeet;
class Pellot;
class Kylvö;
class Nosto;
class Käyrät;
class Ravit;
class Hevostalli;
class Sopimukset;
class Tilanne;
class Topten;

class Pääikkuna : public QMainWindow {
public:
    explicit Pääikkuna(Peli& peli);

    // The start-up of the start screen: reads the last save's name and the settings.
    void Käynnistä();

    // Runs a player's action under the window's own failure handler and refreshes what is shown.
    void Toimi(const std::function<void()>& toiminto);
    // Brings the visible screen up to date with the record.
    void Päivitä();

    void AvaaRuutu(QWidget* ruutu);
    void PalaaPääruutuun();
    // After a box or window closes: the next-day button takes the focus on the main screen, else the
    // widget that had it before gets it back.
    void PalautaKohdistus(QWidget* ennen);
    void SeuraavaPäivä();
    void Lopeta();
    // The logo sequence of the program's start, on the backdrop.
    void NäytäLogo();
    // The music player's notice that a song has played to its end.
    void KappaleLoppui();
    // The music player's panel comes out from its badge, or slides away.
    void AvaaSoitin();
    void PiilotaSoitin();
    // "Pörssikurssit": the market report over the bank, which goes back to the bank when closed.
    void NäytäPörssiraportti();

    Alku* alku() const { return alku_; }
    Tanhua* tanhua() const { return tanhua_; }
    Raportti* raportti() const { return raportti_; }
    ikkuna* uutiset() const { return uutiset_; }
    RahaKyltti* rahaKyltti() const { return kyltti_; }
    Message* message() const { return message_; }
    Pohja* pohja() const { return pohja_; }
    Eläimet* eläimet() const { return eläimet_; }
    Tuotteet* tuotteet() const { return tuotteet_; }
    Työvoima* työvoima() const { return työvoima_; }
    Rakennukset* rakennukset() const { return rakennukset_; }
    Pankki* pankki() const { return pankki_; }
    Tarvikkeet* tarvikkeet() const { return tarvikkeet_; }
    Pellot* pellot() const { return pellot_; }
    Kylvö* kylvö() const { return kylvö_; }
    Nosto* nosto() const { return nosto_; }
    Käyrät* käyrät() const { return käyrät_; }
    Ravit* ravit() const { return ravit_; }
    // The stable's "Osallistu raveihin": the notice, then the race screen fresh; closing it goes back
    // to `paluu` (the stable), or to the main screen without one.
    void AvaaRavit(QWidget* paluu = nullptr);
    Hevostalli* hevostalli() const { return hevostalli_; }
    Sopimukset* sopimukset() const { return sopimukset_; }
    Tilanne* tilanne() const { return tilanne_; }
    Topten* topten() const { return topten_; }
    QStackedWidget* pino() const { return pino_; }
    // The 800 x 600 canvas that holds every screen, and the view that scales it to the window.
    QWidget* sisältö() const { return sisältö_; }
    Kangas* kangas() const { return kangas_; }
    // `Resoluutio800`: on, the game takes the whole screen; F11 switches at any time.
    void AsetaNäyttö();
    void AsetaKokoNäyttö(bool koko);
    Peli& peli() { return peli_; }

    // The month end's snapshot of the window, for the statistics screen.
    QPixmap KuukaudenvaihdeKuva;

    // Tests and the screenshot mode answer the quit question without a person.
    std::function<void()> lopetus = [] { QApplication::quit(); };

protected:
    void resizeEvent(QResizeEvent* tapahtuma) override;
    void closeEvent(QCloseEvent* tapahtuma) override;
    bool eventFilter(QObject* kohde, QEvent* tapahtuma) override;

private:
    bool OnAlaruutu(QWidget* ruutu) const;
    // The Tilanne and top-ten screens lead to each other, and the story keeps its screen up.
    QWidget* UranRuutu(QWidget* nyt);
    void LataaKursorit();
    QWidget* KursorinLomake(std::string_view lomake) const;
    void AsetaKursorit();
    void MittakaavaMuuttui();
    // A screen folding to its middle line (or opening from it) by the rounds the rules give.
    void Taita(QWidget* lomake, const Taitto& taitto);
    // One form folds away and the next opens from its middle line, as every way to a screen and back does.
    void TaitaToiseen(QWidget* pois, QWidget* esiin);

    Peli& peli_;
    QWidget* sisältö_;
    Kangas* kangas_;
    // The forms that took the game's pointer, given it again at each new scale.
    std::vector<QWidget*> kursorilliset_;
    QStackedWidget* pino_;
    Alku* alku_;
    Tanhua* tanhua_;
    Raportti* raportti_;
    Eläimet* eläimet_;
    Tuotteet* tuotteet_;
    Työvoima* työvoima_;
    Rakennukset* rakennukset_;
    Pankki* pankki_;
    Tarvikkeet* tarvikkeet_;
    // The land screen and the sowing and harvest screens that open from its pictures.
    Pellot* pellot_;
    Kylvö* kylvö_;
    Nosto* nosto_;
    Käyrät* käyrät_;
    Ravit* ravit_;
    QWidget* raviPaluu_ = nullptr;
    Hevostalli* hevostalli_;
    Sopimukset* sopimukset_;
    Tilanne* tilanne_;
    Topten* topten_;
    ikkuna* uutiset_;
    RahaKyltti* kyltti_;
    Message* message_;
    Pohja* pohja_ = nullptr;
};

}  // namespace tanhua::ui
