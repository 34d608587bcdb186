// The product screen: stocks, the card, the accountant's panel.
#include "Tuotteet.h"

// own
#include "Pääikkuna.h"
#include "market/myynti.h"
#include "core/ohjaimet.h"
#include "market/taulut/tuoteruutu.h"
// Qt
#include <QAbstractButton>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace tanhua::ui {

namespace {
// What a control of the screen shows, as the library works it out.
Ohjain Lue(const Peli& peli, const std::string& nimi) { return LueRuudulta(peli, "Tuotteet", nimi); }
void Näytä(const Peli& peli, QWidget* w, const std::string& nimi) { ui::Näytä(w, Lue(peli, nimi)); }

std::string Nro(const char* nimi, int i) { return std::string(nimi) + "(" + std::to_string(i) + ")"; }
}  // namespace

Tuotteet::Tuotteet(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi)
    : Tausta(vanhempi), peli_(peli), ikkuna_(ikkuna) {
    setObjectName("Tuotteet");
    setMouseTracking(true);
    AsetaKuva(KuvaJosOn(peli_, "Kuvat/Tuotteet.jpg"));
    aihe_ = AiheOtsikko(Sv(tuoteruutu::AIHE_RUUTU), this);
    ohje_ = OhjeRivi(this);
    sulje_ = new QPushButton("Takaisin", this);
    sulje_->setObjectName("Command1");
    Teksturoi(peli_, sulje_, "nappi2.jpg", 11, 12);
    sulje_->setMinimumSize(140, 40);
    sulje_->setProperty("kohde", static_cast<int>(TuoteKohde::Command1));
    sulje_->installEventFilter(this);
    connect(sulje_, &QPushButton::clicked, this, &Tuotteet::Sulje);
    kirjanpitäjä_ = new QLabel(this);
    kirjanpitäjä_->setObjectName("KirjanpitäjäKuva");
    kirjanpitäjä_->setPixmap(Sovita(KuvaJosOn(peli_, "Kuvat/ihmiset/kirjanpitäjä.jpg"), 84, 84));
    kirjanpitäjä_->setCursor(Qt::PointingHandCursor);
    kirjanpitäjä_->setProperty("kohde", static_cast<int>(TuoteKohde::KirjanpitäjäKuva));
    kirjanpitäjä_->installEventFilter(this);
    akkuna_ = Korttipaneeli();
    taulu_ = Kirjanpitäjänpaneeli();

    // The card above the accountant's panel; the accountant's picture sits under the shelf, so
    // both panels fit the column at once.
    auto* oikea = new QVBoxLayout;
    oikea->addWidget(akkuna_);
    oikea->addWidget(taulu_);
    oikea->addStretch();
    QWidget* hylly = Hylly();
    auto* hyllynRuudukko = static_cast<QGridLayout*>(hylly->layout());
    hyllynRuudukko->addWidget(kirjanpitäjä_, 8, 0, 1, 2, Qt::AlignLeft | Qt::AlignBottom);
    hyllynRuudukko->setRowStretch(8, 1);
    AsetteleAlaruutu(this, aihe_, hylly, oikea, ohje_, sulje_, 1, 1);
}

QWidget* Tuotteet::Hylly() {
    QFrame* hylly = Paneeli(this, "hylly");
    auto* g = new QGridLayout(hylly);
    g->setSpacing(4);
    for (int k = 0; k < static_cast<int>(TUOTTEITA); ++k) {
        kuvat_[k] = new QLabel(hylly);
        const Ohjain kuva = Lue(peli_, Nro("Kuva", k));
        kuvat_[k]->setObjectName(QString::fromStdString(Nro("Kuva", k)));
        kuvat_[k]->setPixmap(Sovita(KuvaJosOn(peli_, "Kuvat/tuotteet/" + kuva.arvo), 58, 58));
        kuvat_[k]->setProperty("tiedosto", QString::fromStdString(kuva.arvo));
        kuvat_[k]->setAlignment(Qt::AlignCenter);
        kuvat_[k]->setCursor(Qt::PointingHandCursor);
        kuvat_[k]->setToolTip(QString::fromStdString(kuva.vihje));
        kuvat_[k]->setProperty("tuote", k);
        kuvat_[k]->setProperty("kohde", static_cast<int>(TuoteKohde::Kuva));
        kuvat_[k]->installEventFilter(this);
        varastot_[k] = Teksti("", 10, hylly);
        varastot_[k]->setObjectName(QString::fromStdString(Nro("Varasto", k)));
        varastot_[k]->setAlignment(Qt::AlignCenter);
        const int rivinro = (k / 5) * 2, sarake = k % 5;
        g->addWidget(kuvat_[k], rivinro, sarake);
        g->addWidget(varastot_[k], rivinro + 1, sarake);
    }
    return hylly;
}

QFrame* Tuotteet::Korttipaneeli() {
    QFrame* p = Paneeli(this, "akkuna");
    nimi_ = Teksti("", 16, p);
    nimi_->setObjectName("otsikko");
    korttikuva_ = new QLabel(p);
    korttikuva_->setObjectName("KorttiKuva");
    hinta_ = Teksti("", 11, p, false);
    hinta_->setObjectName("hinta");
    kurssi_ = Teksti("", 11, p, false);
    kurssi_->setObjectName("kurssi");
    vAika_ = Teksti("", 11, p, false);
    vAika_->setObjectName("vAika");
    yhinta_ = Teksti("", 11, p, false);
    yhinta_->setObjectName("yhinta");
    kpl_ = Teksti("", 11, p, false);
    kpl_->setObjectName("kpl");
    yhthinta_ = Teksti("", 13, p);
    yhthinta_->setObjectName("Yhthinta");
    lisäasetus_ = new QCheckBox(p);
    lisäasetus_->setObjectName("Tuotelisäasetus");
    lisäasetus_->setStyleSheet("color: #24160a;");
    myyKaikki_ = new QPushButton(p);
    myyKaikki_->setObjectName("Command2");
    myyKaikki_->setToolTip("Myy kaikki tuotteet");
    myyKaikki_->setProperty("kohde", static_cast<int>(TuoteKohde::Command2));
    myyPuolet_ = new QPushButton(p);
    myyPuolet_->setObjectName("Command6");
    myyPuolet_->setToolTip("Myy puolet valitsemastasi tuotteista");
    myyPuolet_->setProperty("kohde", static_cast<int>(TuoteKohde::Command6));
    osta_ = new QPushButton(p);
    osta_->setObjectName("Command3");
    osta_->setToolTip("Ostaa kyseistä tuotetta");
    osta_->setProperty("kohde", static_cast<int>(TuoteKohde::Command3));
    for (QPushButton* n : {myyKaikki_, myyPuolet_, osta_}) {
        Teksturoi(peli_, n, "nappi2.jpg", 11, 12);
        n->setMinimumHeight(34);
        n->installEventFilter(this);
    }
    auto toimi = [this](void (*f)(Peli&)) { return [this, f] { ikkuna_.Toimi([this, f] { f(peli_); NäytäRaha(peli_); }); }; };
    connect(myyKaikki_, &QPushButton::clicked, this, toimi(MyyKaikki));
    connect(myyPuolet_, &QPushButton::clicked, this, toimi(MyyPuolet));
    connect(osta_, &QPushButton::clicked, this, toimi(OstaRehua));
    connect(lisäasetus_, &QCheckBox::clicked, this, [this](bool päällä) {
        ikkuna_.Toimi([this, päällä] { Tuotelisäasetus(peli_, päällä); });
    });
    auto* g = new QGridLayout(p);
    g->setVerticalSpacing(1);
    g->setContentsMargins(10, 6, 10, 6);
    g->addWidget(nimi_, 0, 0, 1, 2);
    g->addWidget(korttikuva_, 0, 2, 4, 1, Qt::AlignRight | Qt::AlignTop);
    const std::array<std::pair<const char*, QLabel*>, 6> rivit{
        std::pair{"Perushinta:", hinta_}, std::pair{"Pörssikurssi:", kurssi_}, std::pair{"Vuodenaika :", vAika_},
        std::pair{"Yhteishinta:", yhinta_}, std::pair{"x Tuotteita :", kpl_}, std::pair{"Yhteensä :", yhthinta_}};
    for (int i = 0; i < 6; ++i) {
        g->addWidget(Teksti(rivit[i].first, 11, p, false), 1 + i, 0);
        g->addWidget(rivit[i].second, 1 + i, 1);
    }
    g->addWidget(lisäasetus_, 7, 0, 1, 3);
    auto* napit = new QHBoxLayout;
    napit->addWidget(myyKaikki_);
    napit->addWidget(myyPuolet_);
    napit->addWidget(osta_);
    g->addLayout(napit, 8, 0, 1, 3);
    p->hide();
    return p;
}

QFrame* Tuotteet::Kirjanpitäjänpaneeli() {
    QFrame* p = Paneeli(this, "Taulu");
    auto* g = new QGridLayout(p);
    g->setVerticalSpacing(0);
    g->setContentsMargins(10, 6, 10, 6);
    QLabel* otsikko = Teksti(Sv(tuoteruutu::TAULUN_OTSIKKO), 11, p);
    otsikko->setObjectName("otsikko");
    g->addWidget(otsikko, 0, 0, 1, 4);
    int rivi = 1;
    for (int k = 0; k < static_cast<int>(TUOTTEITA); ++k) {
        const QString nimi = k == Rehu ? QString("Osta rehua") : Sv(TUOTETAULU[k].listaNimi);
        myy_[k] = new QCheckBox(nimi, p);
        myy_[k]->setObjectName(QString::fromStdString(AsetuksenNimi(static_cast<std::size_t>(k))));
        myy_[k]->setStyleSheet("color: #24160a;");
        tyyli_[k] = new QPushButton(p);
        tyyli_[k]->setObjectName(myy_[k]->objectName() + "Tyyli");
        tyyli_[k]->setFlat(true);
        tyyli_[k]->setStyleSheet("color: #24160a; text-decoration: underline;");
        const int sarake = (k % 2) * 2;
        g->addWidget(myy_[k], rivi + k / 2, sarake);
        g->addWidget(tyyli_[k], rivi + k / 2, sarake + 1);
        connect(myy_[k], &QCheckBox::clicked, this, [this, k](bool päällä) {
            ikkuna_.Toimi([this, k, päällä] { AsetaAutomyynti(peli_, static_cast<Tuote>(k), päällä); });
        });
        connect(tyyli_[k], &QPushButton::clicked, this, [this, k] {
            ikkuna_.Toimi([this, k] { KäännäTyyli(peli_, static_cast<Tuote>(k)); });
        });
    }
    rulla_ = new QCheckBox(p);
    rulla_->setObjectName("rulla");
    myyntiAika_ = Teksti("", 11, p);
    myyntiAika_->setObjectName("MyyntiAika");
    g->addWidget(Teksti("Myynti :", 11, p, false), 12, 0);
    g->addWidget(rulla_, 12, 1);
    g->addWidget(myyntiAika_, 12, 2, 1, 2);
    connect(rulla_, &QCheckBox::clicked, this, [this](bool päällä) {
        ikkuna_.Toimi([this, päällä] { AsetaMyyntiaika(peli_, päällä ? 1 : 0); });
    });
    p->hide();
    return p;
}

void Tuotteet::Avaa() { AvaaTuotteet(peli_); }

void Tuotteet::Päivitä() {
    for (int k = 0; k < static_cast<int>(TUOTTEITA); ++k) Näytä(peli_, varastot_[k], Nro("Varasto", k));
    Näytä(peli_, aihe_, "aihe");
    Näytä(peli_, ohje_, "Ohje");
    Näytä(peli_, sulje_, "Command1");
    const Ohjain kortti = Lue(peli_, "akkuna");
    akkuna_->setVisible(kortti.näkyvissä);
    if (kortti.näkyvissä) {
        nimi_->setText(QString::fromStdString(kortti.arvo));
        NäytäKuva(peli_, korttikuva_, "Kuvat/tuotteet/", Lue(peli_, "KorttiKuva"), 80);
        const std::array<std::pair<QWidget*, const char*>, 10> kortilla{
            std::pair<QWidget*, const char*>{hinta_, "hinta"}, {kurssi_, "kurssi"}, {vAika_, "vAika"},
            {yhinta_, "yhinta"}, {kpl_, "kpl"}, {yhthinta_, "Yhthinta"}, {myyKaikki_, "Command2"},
            {myyPuolet_, "Command6"}, {osta_, "Command3"}, {lisäasetus_, "Tuotelisäasetus"}};
        for (auto [w, nimi] : kortilla) Näytä(peli_, w, nimi);
        lisäasetus_->setText(QString::fromStdString(peli_.tuoteruutu.lisäasetusTeksti));
    }
    const Ohjain kirjanpitäjä = Lue(peli_, "KirjanpitäjäKuva");
    kirjanpitäjä_->setVisible(kirjanpitäjä.näkyvissä);
    kirjanpitäjä_->setProperty("tiedosto", QString::fromStdString(kirjanpitäjä.arvo));
    taulu_->setVisible(Lue(peli_, "Taulu").näkyvissä);
    if (taulu_->isVisibleTo(this)) {
        for (int k = 0; k < static_cast<int>(TUOTTEITA); ++k) {
            Näytä(peli_, myy_[k], myy_[k]->objectName().toStdString());
            Näytä(peli_, tyyli_[k], tyyli_[k]->objectName().toStdString());
        }
        Näytä(peli_, rulla_, "rulla");
        Näytä(peli_, myyntiAika_, "MyyntiAika");
    }
}

bool Tuotteet::eventFilter(QObject* kohde, QEvent* tapahtuma) {
    const QVariant kohdeTyyppi = kohde->property("kohde");
    if (tapahtuma->type() == QEvent::Enter && kohdeTyyppi.isValid()) {
        const auto mikä = static_cast<TuoteKohde>(kohdeTyyppi.toInt());
        const int k = kohde->property("tuote").isValid() ? kohde->property("tuote").toInt() : -1;
        ikkuna_.Toimi([&] { OsoitinTuoteruudulla(peli_, mikä, k); });
    }
    if (tapahtuma->type() == QEvent::MouseButtonPress && kohdeTyyppi.isValid()) {
        const auto mikä = static_cast<TuoteKohde>(kohdeTyyppi.toInt());
        if (mikä == TuoteKohde::Kuva) {
            const int k = kohde->property("tuote").toInt();
            ikkuna_.Toimi([&] { AvaaTuote(peli_, static_cast<Tuote>(k)); });
            return true;
        }
        if (mikä == TuoteKohde::KirjanpitäjäKuva) {
            ikkuna_.Toimi([&] { tanhua::KirjanpitäjäKuva(peli_); });
            return true;
        }
    }
    return Tausta::eventFilter(kohde, tapahtuma);
}

void Tuotteet::mouseMoveEvent(QMouseEvent* tapahtuma) {
    if (childAt(tapahtuma->position().toPoint()) == nullptr)
        ikkuna_.Toimi([this] { OsoitinTuoteruudulla(peli_, TuoteKohde::Ruutu); });
    Tausta::mouseMoveEvent(tapahtuma);
}

void Tuotteet::keyPressEvent(QKeyEvent* tapahtuma) {
    if (tapahtuma->key() == Qt::Key_Escape) {
        // With the card or the panel showing, Esc hides both; otherwise it leaves the screen.
        bool suljettu = false;
        ikkuna_.Toimi([this, &suljettu] { suljettu = TuotteetEsc(peli_); });
        if (suljettu) ikkuna_.PalaaPääruutuun();
        return;
    }
    Tausta::keyPressEvent(tapahtuma);
}

void Tuotteet::Sulje() {
    ikkuna_.Toimi([this] { SuljeTuotteet(peli_); });
    ikkuna_.PalaaPääruutuun();
}

}  // namespace tanhua::ui
