// The supplies shop.
#include "Tarvikkeet.h"

// own
#include "Pääikkuna.h"
#include "buildings/tarvikkeet.h"
#include "core/ohjaimet.h"
// Qt
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
// std
#include <algorithm>

namespace tanhua::ui {

namespace {
// A control of this screen as the game reads it.
Ohjain Lue(const Peli& peli, const char* nimi) { return LueRuudulta(peli, "Tarvikkeet", nimi); }
}  // namespace

Tarvikkeet::Tarvikkeet(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi)
    : Tausta(vanhempi), peli_(peli), ikkuna_(ikkuna) {
    setObjectName("Tarvikkeet");
    AsetaKuva(KuvaJosOn(peli_, "Kuvat/Kylväminen.jpg"));
    aihe_ = AiheOtsikko("Tarvikkeet", this);
    ohje_ = OhjeRivi(this);
    sulje_ = new QPushButton(this);
    sulje_->setObjectName("Command1");
    Teksturoi(peli_, sulje_, "nappi2.jpg", 11, 12);
    sulje_->setMinimumSize(140, 40);
    connect(sulje_, &QPushButton::clicked, this, &Tarvikkeet::Sulje);

    QFrame* vasen = Paneeli(this, "kauppa");
    yleiset_ = new QPushButton(vasen);
    lisälaitteet_ = new QPushButton(vasen);
    omat_ = new QPushButton(vasen);
    const std::array<std::pair<QPushButton*, const char*>, 3> napit{
        std::pair{yleiset_, "Command4"}, std::pair{lisälaitteet_, "Command3"}, std::pair{omat_, "Command6"}};
    for (auto [nappi, nimi] : napit) {
        nappi->setObjectName(nimi);
        Teksturoi(peli_, nappi, "nappi2.jpg", 11, 12);
        nappi->setMinimumHeight(34);
    }
    auto toimi = [this](void (*f)(Peli&)) { return [this, f] { ikkuna_.Toimi([this, f] { f(peli_); }); }; };
    connect(yleiset_, &QPushButton::clicked, this, toimi(NäytäYleiset));
    connect(lisälaitteet_, &QPushButton::clicked, this, toimi(NäytäLisälaitteet));
    connect(omat_, &QPushButton::clicked, this, toimi(NäytäOmat));
    otsikko_ = Teksti("", 15, vasen);
    otsikko_->setObjectName("otsikko");
    lista_ = new QListWidget(vasen);
    lista_->setObjectName("Lista");
    // A list on the panel's paper: the chosen row marked in the game's ink, not the toolkit's blue bar.
    lista_->setStyleSheet("QListWidget { font-size: 12pt; background: transparent; border: none; color: #24160a; }"
                          " QListWidget::item { padding: 1px 4px; }"
                          " QListWidget::item:selected { background: rgba(176, 120, 50, 70); color: #1f1408;"
                          " font-weight: bold; border-radius: 4px; }"
                          " QListWidget::item:hover { background: rgba(176, 120, 50, 35); }");
    connect(lista_, &QListWidget::currentRowChanged, this, [this](int rivi) {
        const auto& näkyvä = peli_.tarvikeruutu.Lista;
        if (rivi < 0 || rivi >= static_cast<int>(näkyvä.size()) || peli_.tarvikeruutu.valittu == näkyvä[rivi]) return;
        const TarvikeRivinro valinta = näkyvä[rivi];
        ikkuna_.Toimi([this, valinta] { ValitseTarvike(peli_, valinta); });
    });
    auto* listanapit = new QHBoxLayout;
    listanapit->addWidget(yleiset_);
    listanapit->addWidget(lisälaitteet_);
    listanapit->addWidget(omat_);
    auto* v = new QVBoxLayout(vasen);
    v->addLayout(listanapit);
    v->addWidget(otsikko_);
    v->addWidget(lista_, 1);

    QFrame* kortti = Paneeli(this, "tarvike");
    nimi_ = Teksti("", 15, kortti);
    nimi_->setWordWrap(true);
    nimi_->setObjectName("nimi");
    info_ = Teksti("", 10, kortti, false);
    info_->setObjectName("info");
    info_->setWordWrap(true);
    info_->setMinimumHeight(80);
    hinta_ = Teksti("", 13, kortti);
    hinta_->setObjectName("hinta");
    toiminto_ = new QPushButton(kortti);
    toiminto_->setObjectName("Command5");
    Teksturoi(peli_, toiminto_, "nappi2.jpg", 11, 12);
    toiminto_->setMinimumHeight(36);
    connect(toiminto_, &QPushButton::clicked, this, [this] {
        ikkuna_.Toimi([this] {
            Command5Tarvikkeet(peli_);
            NäytäRaha(peli_);
        });
    });
    auto* g = new QGridLayout(kortti);
    g->addWidget(nimi_, 0, 0, 1, 2);
    g->addWidget(info_, 1, 0, 1, 2);
    g->addWidget(Teksti(TarvikeRuutuTila::HINTA_OTSIKKO, 11, kortti, false), 2, 0);
    g->addWidget(hinta_, 2, 1);
    g->addWidget(toiminto_, 3, 0, 1, 2);
    // The card takes the column's height and the supply's text the card's slack: the price and
    // the button stay at the card's foot for every supply.
    g->setRowStretch(1, 1);
    info_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* oikea = new QVBoxLayout;
    oikea->addWidget(kortti, 1);
    AsetteleAlaruutu(this, aihe_, vasen, oikea, ohje_, sulje_);
}

void Tarvikkeet::Avaa() { AvaaTarvikkeet(peli_); }

void Tarvikkeet::Päivitä() {
    const TarvikeRuutuTila& t = peli_.tarvikeruutu;
    Näytä(yleiset_, Lue(peli_, "Command4"));
    Näytä(lisälaitteet_, Lue(peli_, "Command3"));
    Näytä(omat_, Lue(peli_, "Command6"));
    Näytä(otsikko_, Lue(peli_, "otsikko"));
    {
        const QSignalBlocker esto(lista_);
        const Ohjain lista = Lue(peli_, "Lista");
        lista_->clear();
        if (!t.Lista.empty()) lista_->addItems(Q(lista.arvo).split('|'));
        const auto valittu = std::find(t.Lista.begin(), t.Lista.end(), t.valittu);
        lista_->setCurrentRow(valittu == t.Lista.end() ? -1 : static_cast<int>(valittu - t.Lista.begin()));
        lista_->setEnabled(lista.käytössä);
    }
    Näytä(nimi_, Lue(peli_, "nimi"));
    Näytä(info_, Lue(peli_, "info"));
    Näytä(hinta_, Lue(peli_, "hinta"));
    Näytä(toiminto_, Lue(peli_, "Command5"));
    toiminto_->setToolTip(QString::fromStdString(t.Command5Ohje));
    Näytä(sulje_, Lue(peli_, "Command1"));
    ohje_->setVisible(false);
}

void Tarvikkeet::Sulje() {
    // The shop has no key of its own for closing; its button takes the player back.
    ikkuna_.Toimi([this] { SuljeTarvikkeet(peli_); });
    ikkuna_.PalaaPääruutuun();
}

}  // namespace tanhua::ui
