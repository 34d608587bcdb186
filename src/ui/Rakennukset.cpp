// The building screen.
#include "Rakennukset.h"

// own
#include "Pääikkuna.h"
#include "buildings/rakentaminen.h"
#include "core/viestit.h"
// Qt
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace tanhua::ui {

namespace {
std::string Kuvatiedosto(std::size_t kohde) {
    const std::string_view kuva =
        kohde < RAKENNUKSIA ? RAKENNUSTAULU[kohde].kuva : TILATAULU[kohde - RAKENNUKSIA].kuva;
    return "Kuvat/Rakennukset/" + std::string(kuva);
}
}  // namespace

Rakennukset::Rakennukset(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi)
    : Tausta(vanhempi), peli_(peli), ikkuna_(ikkuna) {
    setObjectName("Rakennukset");
    AsetaKuva(KuvaJosOn(peli_, "Kuvat/varasto.jpg"));
    aihe_ = AiheOtsikko("Rakennukset", this);
    ohje_ = OhjeRivi(this);
    sulje_ = new QPushButton("Takaisin", this);
    sulje_->setObjectName("Command1");
    Teksturoi(peli_, sulje_, "nappi2.jpg", 11, 12);
    sulje_->setMinimumSize(140, 40);
    connect(sulje_, &QPushButton::clicked, this, &Rakennukset::Sulje);

    QFrame* kortti = Paneeli(this, "tilaus");
    nimi_ = Teksti("", 16, kortti);
    korttikuva_ = new QLabel(kortti);
    taso_ = Teksti("", 12, kortti);
    info_ = Teksti("", 10, kortti, false);
    info_->setWordWrap(true);
    info_->setMinimumHeight(90);
    hinta_ = Teksti("", 12, kortti);
    hinta_->setObjectName("hintanäky");
    kesto_ = Teksti("", 11, kortti, false);
    kesto_->setObjectName("Kesto");
    määrä_ = Teksti("", 13, kortti);
    määrä_->setAlignment(Qt::AlignCenter);
    miinus_ = new QPushButton("-", kortti);
    plus_ = new QPushButton("+", kortti);
    tilaa_ = new QPushButton("Rakenna", kortti);
    const std::array<std::pair<QPushButton*, const char*>, 3> napit{
        std::pair{miinus_, "määrämiinus"}, std::pair{plus_, "määräplus"}, std::pair{tilaa_, "Command2"}};
    for (auto [nappi, nimi] : napit) {
        nappi->setObjectName(nimi);
        Teksturoi(peli_, nappi, "nappi2.jpg", 11, 12);
        nappi->setMinimumHeight(34);
    }
    connect(miinus_, &QPushButton::clicked, this, [this] { ikkuna_.Toimi([this] { AskelMäärä(peli_, -1); }); });
    connect(plus_, &QPushButton::clicked, this, [this] { ikkuna_.Toimi([this] { AskelMäärä(peli_, 1); }); });
    connect(tilaa_, &QPushButton::clicked, this, [this] {
        ikkuna_.Toimi([this] {
            TilaaKohde(peli_);
            NäytäRaha(peli_);
        });
    });
    auto* g = new QGridLayout(kortti);
    g->addWidget(nimi_, 0, 0, 1, 2);
    g->addWidget(korttikuva_, 0, 2, 3, 1, Qt::AlignRight | Qt::AlignTop);
    g->addWidget(taso_, 1, 0, 1, 2);
    g->addWidget(info_, 3, 0, 1, 3);
    g->addWidget(Teksti("Hinta :", 11, kortti, false), 4, 0);
    g->addWidget(hinta_, 4, 1, 1, 2);
    g->addWidget(Teksti("Kesto :", 11, kortti, false), 5, 0);
    g->addWidget(kesto_, 5, 1, 1, 2);
    auto* koko = new QHBoxLayout;
    koko->addWidget(Teksti("Määrä :", 11, kortti, false));
    koko->addWidget(miinus_);
    koko->addWidget(määrä_);
    koko->addWidget(plus_);
    g->addLayout(koko, 6, 0, 1, 3);
    g->addWidget(tilaa_, 7, 0, 1, 3);

    QFrame* koot = Paneeli(this, "koot");
    navettaz_ = Teksti("", 11, koot);
    siiloz_ = Teksti("", 11, koot);
    varastoz_ = Teksti("", 11, koot);
    auto* k = new QGridLayout(koot);
    k->addWidget(Teksti("Navetta :", 11, koot, false), 0, 0);
    k->addWidget(navettaz_, 0, 1);
    k->addWidget(Teksti("Siilo :", 11, koot, false), 1, 0);
    k->addWidget(siiloz_, 1, 1);
    k->addWidget(Teksti("Varasto :", 11, koot, false), 2, 0);
    k->addWidget(varastoz_, 2, 1);

    auto* oikea = new QVBoxLayout;
    oikea->addWidget(kortti);
    oikea->addWidget(koot);
    oikea->addStretch();
    AsetteleAlaruutu(this, aihe_, Työmaat(), oikea, ohje_, sulje_);
}

QWidget* Rakennukset::Työmaat() {
    QFrame* työmaat = Paneeli(this, "tyomaat");
    auto* g = new QGridLayout(työmaat);
    g->setSpacing(4);
    // The three stores first, then the thirteen buildings.
    for (std::size_t paikka = 0; paikka < TYÖMAITA; ++paikka) {
        const std::size_t kohde = paikka < TILOJA ? RAKENNUKSIA + paikka : paikka - TILOJA;
        kuvat_[kohde] = new QLabel(työmaat);
        kuvat_[kohde]->setPixmap(KuvaJosOn(peli_, Kuvatiedosto(kohde)).scaled(96, 72, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        kuvat_[kohde]->setAlignment(Qt::AlignCenter);
        kuvat_[kohde]->setCursor(Qt::PointingHandCursor);
        const KatalogiRivi& rivi = RAKENNUSKATALOGI[kohde];
        kuvat_[kohde]->setToolTip(Sv(rivi.vihjeOtsikko) + (rivi.vihje.empty() ? QString() : "\n" + Sv(rivi.vihje)));
        kuvat_[kohde]->setProperty("kohde", static_cast<int>(kohde));
        kuvat_[kohde]->installEventFilter(this);
        päivät_[kohde] = Teksti("", 9, työmaat);
        päivät_[kohde]->setAlignment(Qt::AlignCenter);
        päivät_[kohde]->setProperty("kohde", static_cast<int>(kohde));
        päivät_[kohde]->installEventFilter(this);
        const int rivinro = static_cast<int>(paikka / 4) * 2, sarake = static_cast<int>(paikka % 4);
        g->addWidget(kuvat_[kohde], rivinro, sarake);
        g->addWidget(päivät_[kohde], rivinro + 1, sarake);
    }
    return työmaat;
}

void Rakennukset::Avaa() { AvaaRakennukset(peli_); }

void Rakennukset::Päivitä() {
    const RakennusRuutuTila& t = peli_.rakennusruutu;
    for (std::size_t kohde = 0; kohde < TYÖMAITA; ++kohde) {
        päivät_[kohde]->setText(QString::fromStdString(t.päivät[kohde]));
        päivät_[kohde]->setVisible(t.päivätNäkyvät[kohde]);
        päivät_[kohde]->setStyleSheet(t.päivätPunaisella[kohde] ? "color: rgb(200,0,0); font-weight: bold;"
                                                                 : "color: #24160a; font-weight: bold;");
    }
    navettaz_->setText(QString::fromStdString(t.navettaz));
    siiloz_->setText(QString::fromStdString(t.siiloz));
    varastoz_->setText(QString::fromStdString(t.varastoz));
    const bool valittu = t.kohde >= 0;
    nimi_->setText(valittu ? Sv(RAKENNUSKATALOGI[t.kohde].avain) : QString("Valitse rakennus"));
    korttikuva_->setPixmap(valittu ? KuvaJosOn(peli_, Kuvatiedosto(t.kohde)).scaled(128, 96, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                                   : QPixmap());
    taso_->setText(QString::fromStdString(t.taso));
    info_->setText(QString::fromStdString(t.info));
    hinta_->setText(valittu ? QString::fromStdString(Str(t.hinta)) : QString());
    kesto_->setText(valittu ? QString::fromStdString(Str(t.Kesto)) + " päivää" : QString());
    määrä_->setText(valittu ? QString::number(t.määrä) : QString());
    plus_->setEnabled(t.askeleetKäytössä);
    miinus_->setEnabled(t.askeleetKäytössä);
    tilaa_->setText(QString::fromStdString(t.Command2));
    tilaa_->setEnabled(t.Command2Käytössä);
    ohje_->setVisible(peli_.m.OhjeetPäällä);
    ohje_->setText(QString::fromStdString(t.ohje));
}

bool Rakennukset::eventFilter(QObject* kohde, QEvent* tapahtuma) {
    if (tapahtuma->type() == QEvent::MouseButtonPress && kohde->property("kohde").isValid()) {
        // A click on a day label acts as a click on the target's picture.
        const auto valinta = static_cast<std::size_t>(kohde->property("kohde").toInt());
        ikkuna_.Toimi([this, valinta] { ValitseKohde(peli_, valinta); });
        return true;
    }
    return Tausta::eventFilter(kohde, tapahtuma);
}

void Rakennukset::keyPressEvent(QKeyEvent* tapahtuma) {
    if (tapahtuma->key() == Qt::Key_Escape) return Sulje();
    Tausta::keyPressEvent(tapahtuma);
}

void Rakennukset::Sulje() {
    ikkuna_.Toimi([this] {
        SoitaÄäni(peli_, "klik");
        SuljeRakennukset(peli_);
    });
    ikkuna_.PalaaPääruutuun();
}

}  // namespace tanhua::ui
