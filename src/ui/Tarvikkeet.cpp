// The supplies shop.
#include "Tarvikkeet.h"

// own
#include "Pääikkuna.h"
#include "buildings/tarvikkeet.h"
// Qt
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace tanhua::ui {

Tarvikkeet::Tarvikkeet(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi)
    : Tausta(vanhempi), peli_(peli), ikkuna_(ikkuna) {
    setObjectName("Tarvikkeet");
    AsetaKuva(KuvaJosOn(peli_, "Kuvat/Kylväminen.jpg"));
    aihe_ = AiheOtsikko("Tarvikkeet", this);
    ohje_ = OhjeRivi(this);
    sulje_ = new QPushButton("Takaisin", this);
    sulje_->setObjectName("Command1");
    Teksturoi(peli_, sulje_, "nappi2.jpg", 11, 12);
    sulje_->setMinimumSize(140, 40);
    connect(sulje_, &QPushButton::clicked, this, &Tarvikkeet::Sulje);

    QFrame* vasen = Paneeli(this, "kauppa");
    yleiset_ = new QPushButton("Tarvikkeet", vasen);
    lisälaitteet_ = new QPushButton("Lisälaitteet", vasen);
    omat_ = new QPushButton("Ostetut laitteet", vasen);
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
    lista_ = new QListWidget(vasen);
    lista_->setObjectName("Lista");
    lista_->setStyleSheet("QListWidget { font-size: 12pt; background: transparent; border: none; }");
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
    info_ = Teksti("", 10, kortti, false);
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
    auto* oikea = new QVBoxLayout;
    oikea->addWidget(kortti);
    oikea->addStretch();
    AsetteleAlaruutu(this, aihe_, vasen, oikea, ohje_, sulje_);
}

void Tarvikkeet::Avaa() { AvaaTarvikkeet(peli_); }

void Tarvikkeet::Päivitä() {
    const TarvikeRuutuTila& t = peli_.tarvikeruutu;
    otsikko_->setText(QString::fromStdString(t.otsikko));
    {
        const QSignalBlocker esto(lista_);
        lista_->clear();
        int valittuRivi = -1;
        for (std::size_t i = 0; i < t.Lista.size(); ++i) {
            lista_->addItem(Sv(TarvikkeenNimi(t.Lista[i])));
            if (t.Lista[i] == t.valittu) valittuRivi = static_cast<int>(i);
        }
        lista_->setCurrentRow(valittuRivi);
    }
    nimi_->setText(QString::fromStdString(t.nimi));
    info_->setText(QString::fromStdString(t.info));
    hinta_->setText(QString::fromStdString(t.hinta));
    toiminto_->setText(QString::fromStdString(t.Command5));
    toiminto_->setToolTip(QString::fromStdString(t.Command5Ohje));
    ohje_->setVisible(false);
}

void Tarvikkeet::Sulje() {
    // The shop has no key of its own for closing; its button takes the player back.
    ikkuna_.Toimi([this] { SuljeTarvikkeet(peli_); });
    ikkuna_.PalaaPääruutuun();
}

}  // namespace tanhua::ui
