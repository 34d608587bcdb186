// The building screen.
#include "Rakennukset.h"

// own
#include "Pääikkuna.h"
#include "buildings/rakentaminen.h"
#include "core/ohjaimet.h"
#include "core/viestit.h"
// Qt
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace tanhua::ui {

std::string Rakennukset::PäiväLabel(std::size_t kohde) {
    return "Rakenne" + std::string(RAKENNUSKATALOGI[kohde].avain) + "z";
}

namespace {
// A control of this screen as the game reads it.
Ohjain Lue(const Peli& peli, const std::string& nimi) { return LueRuudulta(peli, "Rakennukset", nimi); }

std::string Kuvatiedosto(const Peli& peli, std::size_t kohde) {
    return "Kuvat/Rakennukset/" + Lue(peli, "Picture(" + std::to_string(KuvanNumero(kohde)) + ")").arvo;
}

}  // namespace

Rakennukset::Rakennukset(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi)
    : Tausta(vanhempi), peli_(peli), ikkuna_(ikkuna) {
    setObjectName("Rakennukset");
    AsetaKuva(KuvaJosOn(peli_, "Kuvat/varasto.jpg"));
    aihe_ = AiheOtsikko("Rakennukset", this);
    ohje_ = OhjeRivi(this);
    sulje_ = new QPushButton(Q(Lue(peli_, "Command1").arvo), this);
    sulje_->setObjectName("Command1");
    Teksturoi(peli_, sulje_, "nappi2.jpg", 11, 12);
    sulje_->setMinimumSize(140, 40);
    connect(sulje_, &QPushButton::clicked, this, &Rakennukset::Sulje);

    QFrame* kortti = Paneeli(this, "tilaus");
    nimi_ = Teksti("", 14, kortti);
    korttikuva_ = new QLabel(kortti);
    taso_ = Teksti("", 12, kortti);
    info_ = Teksti("", 9, kortti, false);
    info_->setWordWrap(true);
    // Room for the feed plant's seven lines, the longest panel.
    info_->setMinimumHeight(112);
    nimi_->setObjectName("Kohde");
    taso_->setObjectName("taso");
    info_->setObjectName("info");
    hinta_ = Teksti("", 12, kortti);
    hinta_->setObjectName("hintanäky");
    kesto_ = Teksti("", 11, kortti, false);
    kesto_->setObjectName("Kesto");
    määrä_ = Teksti("", 13, kortti);
    määrä_->setObjectName("määrä");
    määrä_->setAlignment(Qt::AlignCenter);
    miinus_ = new QPushButton(kortti);
    plus_ = new QPushButton(kortti);
    tilaa_ = new QPushButton(kortti);
    const std::array<std::pair<QPushButton*, const char*>, 3> napit{
        std::pair{miinus_, "määrämiinus"}, std::pair{plus_, "määräplus"}, std::pair{tilaa_, "Command2"}};
    for (auto [nappi, nimi] : napit) {
        nappi->setObjectName(nimi);
        Teksturoi(peli_, nappi, "nappi2.jpg", 11, 12);
        nappi->setMinimumHeight(34);
    }
    connect(miinus_, &QPushButton::clicked, this, [this] { ikkuna_.Toimi([this] { AskelMäärä(peli_, -1); }); });
    connect(plus_, &QPushButton::clicked, this, [this] { ikkuna_.Toimi([this] { AskelMäärä(peli_, 1); }); });
    // The production panel's pictures and slider.
    raaka_ = new QLabel(kortti);
    raaka_->setObjectName("RaakaKuva");
    tuote_ = new QLabel(kortti);
    tuote_->setObjectName("TuoteKuva");
    tuotanto_ = new QSlider(Qt::Horizontal, kortti);
    tuotanto_->setObjectName("Rakennus_Tuotanto");
    tuotanto_->setRange(0, TUOTANTO_ASKELIA);
    tuotanto_->setPageStep(1);
    tuotanto_->setTickPosition(QSlider::TicksBelow);
    prosentti_ = Teksti("", 11, kortti);
    prosentti_->setObjectName("Prosentti");
    prosentti_->setMinimumWidth(48);
    // A move takes effect at once.
    connect(tuotanto_, &QSlider::valueChanged, this,
            [this](int arvo) { ikkuna_.Toimi([this, arvo] { AsetaTuotanto(peli_, arvo); }); });
    connect(tilaa_, &QPushButton::clicked, this, [this] {
        ikkuna_.Toimi([this] {
            TilaaKohde(peli_);
            NäytäRaha(peli_);
        });
    });
    auto* g = new QGridLayout(kortti);
    g->setVerticalSpacing(4);  // room for a production panel's lines at 800 x 600
    g->addWidget(nimi_, 0, 0, 1, 2);
    g->addWidget(korttikuva_, 0, 2, 3, 1, Qt::AlignRight | Qt::AlignTop);
    g->addWidget(taso_, 1, 0);
    // The panel's raw stock and product sit beside the level, right above the panel's lines.
    auto* kuvat = new QHBoxLayout;
    kuvat->addWidget(raaka_);
    kuvat->addWidget(tuote_);
    kuvat->addStretch();
    g->addLayout(kuvat, 1, 1, 2, 1);
    g->addWidget(info_, 3, 0, 1, 3);
    auto* liuku = new QHBoxLayout;
    liuku->addWidget(tuotanto_, 1);
    liuku->addWidget(prosentti_);
    g->addLayout(liuku, 8, 0, 1, 3);
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
    navettaz_->setObjectName("navettaz");
    siiloz_->setObjectName("siiloz");
    varastoz_->setObjectName("varastoz");
    auto* k = new QGridLayout(koot);
    k->addWidget(Teksti("Navetta :", 11, koot, false), 0, 0);
    k->addWidget(navettaz_, 0, 1);
    k->addWidget(Teksti("Siilo :", 11, koot, false), 1, 0);
    k->addWidget(siiloz_, 1, 1);
    k->addWidget(Teksti("Varasto :", 11, koot, false), 2, 0);
    k->addWidget(varastoz_, 2, 1);

    // The order card takes the column's height and its text the card's slack: the figures, the
    // button and the slider stand at the card's foot whatever is chosen, and keep their room
    // while the slider is hidden, so nothing moves when another target is chosen.
    g->setRowStretch(3, 1);
    info_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    for (QWidget* w : std::initializer_list<QWidget*>{tuotanto_, prosentti_, raaka_, tuote_}) {
        QSizePolicy p = w->sizePolicy();
        p.setRetainSizeWhenHidden(true);
        w->setSizePolicy(p);
    }
    auto* oikea = new QVBoxLayout;
    oikea->addWidget(kortti, 1);
    oikea->addWidget(koot);
    AsetteleAlaruutu(this, aihe_, Työmaat(), oikea, ohje_, sulje_);
}

QWidget* Rakennukset::Työmaat() {
    QFrame* työmaat = Paneeli(this, "tyomaat");
    auto* g = new QGridLayout(työmaat);
    g->setSpacing(4);
    // Picture1 to Picture16: the three stores first, then the thirteen buildings.
    for (std::size_t paikka = 0; paikka < TYÖMAITA; ++paikka) {
        const std::size_t kohde = TYÖMAIDEN_JÄRJESTYS[paikka];
        const Ohjain kuva = Lue(peli_, "Picture(" + std::to_string(paikka + 1) + ")");
        kuvat_[kohde] = new QLabel(työmaat);
        kuvat_[kohde]->setObjectName(QString("Picture%1").arg(paikka + 1));
        kuvat_[kohde]->setPixmap(Sovita(KuvaJosOn(peli_, Kuvatiedosto(peli_, kohde)), 96, 72));
        kuvat_[kohde]->setAlignment(Qt::AlignCenter);
        kuvat_[kohde]->setCursor(Qt::PointingHandCursor);
        kuvat_[kohde]->setToolTip(Q(kuva.vihje));
        kuvat_[kohde]->setProperty("kohde", static_cast<int>(kohde));
        kuvat_[kohde]->installEventFilter(this);
        päivät_[kohde] = Teksti("", 9, työmaat);
        päivät_[kohde]->setObjectName(Q(PäiväLabel(kohde)));
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
    for (std::size_t kohde = 0; kohde < TYÖMAITA; ++kohde) {
        const Ohjain päivät = Lue(peli_, PäiväLabel(kohde));
        Näytä(päivät_[kohde], päivät);
        päivät_[kohde]->setToolTip(Q(päivät.vihje));
        const std::uint32_t väri = päivät.väri.value_or(MUSTA);
        päivät_[kohde]->setStyleSheet(QString("color: rgb(%1,%2,%3); font-weight: bold;")
                                          .arg(väri & 0xFF).arg((väri >> 8) & 0xFF).arg((väri >> 16) & 0xFF));
    }
    Näytä(navettaz_, Lue(peli_, "navettaz"));
    Näytä(siiloz_, Lue(peli_, "siiloz"));
    Näytä(varastoz_, Lue(peli_, "varastoz"));
    const RakennusRuutuTila& t = peli_.rakennusruutu;
    korttikuva_->setPixmap(t.kohde >= 0 ? Sovita(KuvaJosOn(peli_, Kuvatiedosto(peli_, t.kohde)), 112, 84)
                                        : QPixmap());
    Näytä(nimi_, Lue(peli_, "Kohde"));
    Näytä(taso_, Lue(peli_, "taso"));
    Näytä(info_, Lue(peli_, "info"));
    NäytäKuva(peli_, raaka_, "Kuvat/tuotteet/", Lue(peli_, "RaakaKuva"), 36);
    NäytäKuva(peli_, tuote_, "Kuvat/tuotteet/", Lue(peli_, "TuoteKuva"), 36);
    const Ohjain tuotanto = Lue(peli_, "Rakennus_Tuotanto");
    if (tuotanto.näkyvissä) {
        const QSignalBlocker esto(tuotanto_);
        tuotanto_->setValue(std::stoi(tuotanto.arvo));
    }
    tuotanto_->setToolTip(Q(tuotanto.vihje));
    tuotanto_->setVisible(tuotanto.näkyvissä);
    tuotanto_->setEnabled(tuotanto.käytössä);
    Näytä(prosentti_, Lue(peli_, "Prosentti"));
    Näytä(hinta_, Lue(peli_, "hintanäky"));
    Näytä(kesto_, Lue(peli_, "Kesto"));
    Näytä(määrä_, Lue(peli_, "määrä"));
    Näytä(plus_, Lue(peli_, "määräplus"));
    Näytä(miinus_, Lue(peli_, "määrämiinus"));
    Näytä(tilaa_, Lue(peli_, "Command2"));
    Näytä(ohje_, Lue(peli_, "Ohje"));
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
    ikkuna_.Toimi([this] { SuljeRakennukset(peli_); });
    ikkuna_.PalaaPääruutuun();
}

}  // namespace tanhua::ui
