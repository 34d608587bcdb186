// The statistics screen: six monthly curves, two tables of last month's products, the month's picture.
#pragma once

// own
#include "Kuvat.h"
#include "core/peli.h"
#include "stats/käyrät.h"
// Qt
#include <QLabel>
#include <QPushButton>
#include <array>

namespace tanhua::ui {

class Pääikkuna;

// The plot Taulu: paints the library's curve (its lines in the plot's units, scaled to the widget,
// so it stays sharp at any size) or its printed table.
class KäyräTaulu : public QWidget {
public:
    KäyräTaulu(const Peli& peli, QWidget* vanhempi);

protected:
    void paintEvent(QPaintEvent* tapahtuma) override;

private:
    const Peli& peli_;
};

// The small preview of a monthly list beside its button.
class Esikatselu : public QWidget {
public:
    Esikatselu(const Peli& peli, Käyrä käyrä, QWidget* vanhempi);

protected:
    void paintEvent(QPaintEvent* tapahtuma) override;

private:
    const Peli& peli_;
    Käyrä käyrä_;
};

class Käyrät : public Tausta {
public:
    Käyrät(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi);

    void Avaa();
    void Päivitä();

    QPushButton* Command(int n) const { return napit_[static_cast<std::size_t>(n)]; }
    KäyräTaulu* Taulu() const { return taulu_; }
    QWidget* Kuva() const { return kuva_; }

protected:
    void keyPressEvent(QKeyEvent* tapahtuma) override;
    bool eventFilter(QObject* kohde, QEvent* tapahtuma) override;
    void resizeEvent(QResizeEvent* tapahtuma) override;

private:
    void Sulje();

    Peli& peli_;
    Pääikkuna& ikkuna_;
    std::array<QPushButton*, 11> napit_{};  // Command1 .. Command10 by number; 0 unused
    std::array<Esikatselu*, KÄYRIÄ> esikatselut_{};
    QLabel *otsikko_, *maximi_, *puoli_, *minimi_, *aika1_, *aika2_, *aika3_, *ilmoitus_;
    KäyräTaulu* taulu_;
    QWidget* kuva_;  // KuukaudenvaihdeKuva over the whole screen
};

}  // namespace tanhua::ui
