// The main screen: cash, date, weather, gauges, stars, the event list and the next-day button.
#pragma once

#include <functional>

// own
#include "Kuvat.h"
#include "core/peli.h"
// Qt
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <array>

namespace tanhua::ui {

// One gauge: a bar growing up from the bottom of its frame; an over-full value reaches above it.
class MittariKuva : public QWidget {
public:
    MittariKuva(QColor väri, QWidget* vanhempi) : QWidget(vanhempi), väri_(väri) { setMinimumSize(34, 150); }
    void Aseta(const Mittari& mittari) {
        if (mittari.piirretään) p_ = mittari.p;
        update();
    }
    int p() const { return p_; }
    // The bar's height in pixels for the frame's inner height, as the gauge draws it.
    int Palkki() const;

protected:
    void paintEvent(QPaintEvent* tapahtuma) override;

private:
    QRect Kehys() const;
    QColor väri_;
    int p_ = 0;
};

class Tanhua : public Tausta {
public:
    Tanhua(Peli& peli, QWidget* vanhempi);

    // Reads the figures of the record (Päivitälukemat) onto the screen.
    void Päivitä();

    QPushButton* Command1() const { return command1_; }
    QPushButton* Command2() const { return command2_; }
    QPushButton* Command3() const { return command3_; }
    QPushButton* Command6() const { return command6_; }
    QPushButton* Command8() const { return command8_; }
    QPushButton* Command9() const { return command9_; }
    QPushButton* Command5() const { return command5_; }
    QPushButton* Command7() const { return command7_; }
    QPushButton* Command4() const { return command4_; }
    QPushButton* Lopetus() const { return lopetus_; }
    QPushButton* Stat() const { return stat_; }
    QPushButton* Hepotalli() const { return hepotalli_; }
    QLabel* Rahaz() const { return rahaz_; }
    QListWidget* Lista() const { return lista_; }
    const std::array<MittariKuva*, 4>& Mittarit() const { return mittarit_; }
    QLabel* PlayerLogo() const { return playerLogo_; }
    class Player* player() const { return player_; }
    // The contracts: the button and the phone that rings while an offer waits.
    QPushButton* Command10() const { return command10_; }
    QLabel* Puhelin() const { return puhelin_; }
    std::function<void()> AvaaSopimukset;

    // What the frame does for the buttons of the main screen.
    std::function<void()> AvaaEläimet, AvaaRakennukset, AvaaTuotteet, AvaaPankki, AvaaTyövoima, AvaaTarvikkeet,
        SeuraavaPäivä, Lopeta;
    std::function<void()> AvaaPellot;
    std::function<void()> AvaaHevostalli;
    std::function<void()> AvaaTilanne;
    std::function<void(int)> NäytäTähti;  // a click on star 0..4
    std::function<void()> AvaaKäyrät;     // "Statistiikka"
    std::function<void()> AvaaSoitin;     // a click on the music player's badge

protected:
    void keyPressEvent(QKeyEvent* tapahtuma) override;
    bool eventFilter(QObject* kohde, QEvent* tapahtuma) override;

private:
    void Ohje(const char* kontrolli, QWidget* w);

    Peli& peli_;
    // Every widget is built in the constructor; until then the event filter meets only null pointers.
    QLabel *sää_ = nullptr, *rahaz_ = nullptr, *liikevaihtoz_ = nullptr, *liikevaihtoOtsikko_ = nullptr,
           *vuodenaikaz_ = nullptr, *asteLuku_ = nullptr, *versio_ = nullptr, *ohje_ = nullptr;
    std::array<QLabel*, 3> päiväys_{};  // Päiväz, Kuukausiz, Vuosiz
    std::array<QLabel*, 5> tähdet_{};
    std::array<MittariKuva*, 4> mittarit_{};
    QListWidget* lista_ = nullptr;
    QPushButton *command1_ = nullptr, *command2_ = nullptr, *command3_ = nullptr, *command6_ = nullptr,
                *command8_ = nullptr, *command9_ = nullptr, *command4_ = nullptr, *lopetus_ = nullptr;
    QPushButton* hepotalli_ = nullptr;  // the stable, shown with a stable and a mare
    QPushButton* command7_ = nullptr;
    std::string tausta_;
    QPushButton* command5_ = nullptr;  // "Maa alueet"
    QPushButton* stat_ = nullptr;
    QLabel* playerLogo_ = nullptr;
    class Player* player_ = nullptr;
    QPushButton* command10_ = nullptr;
    QLabel* puhelin_ = nullptr;
    bool puhelinIso_ = false;  // grown while the pointer is over it
    void NäytäPuhelin();
};

}  // namespace tanhua::ui
