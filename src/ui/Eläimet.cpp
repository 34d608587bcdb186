// The animal screen: pictures and counters of the herd, the card, the slaughter orders.
#include "Eläimet.h"

// own
#include "Pääikkuna.h"
#include "animals/kauppa.h"
#include "core/ohjaimet.h"
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
Ohjain Lue(const Peli& peli, const std::string& nimi) { return LueRuudulta(peli, "Eläimet", nimi); }
void Näytä(const Peli& peli, QWidget* w, const std::string& nimi) { ui::Näytä(w, Lue(peli, nimi)); }

QString Väri(std::uint32_t v) {
    return QString("rgb(%1,%2,%3)").arg(v & 0xFF).arg((v >> 8) & 0xFF).arg((v >> 16) & 0xFF);
}
}  // namespace

Eläimet::Eläimet(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi)
    : Tausta(vanhempi), peli_(peli), ikkuna_(ikkuna) {
    setObjectName("Eläimet");
    setMouseTracking(true);
    AsetaKuva(KuvaJosOn(peli_, "Kuvat/mökki.jpg"));

    aihe_ = AiheOtsikko(Sv(AIHE_RUUTU), this);
    ohje_ = OhjeRivi(this);
    takaisin_ = new QPushButton("Takaisin", this);
    takaisin_->setObjectName("Command1");
    Teksturoi(peli_, takaisin_, "nappi2.jpg", 11, 12);
    takaisin_->setMinimumSize(140, 40);
    takaisin_->installEventFilter(this);
    connect(takaisin_, &QPushButton::clicked, this, &Eläimet::Sulje);

    teuraskuva_ = new QLabel(this);
    teuraskuva_->setObjectName("Teuraskuva");
    teuraskuva_->setPixmap(Sovita(KuvaJosOn(peli_, "Kuvat/ihmiset/teurastaja.jpg"), 50, 50));
    teuraskuva_->setCursor(Qt::PointingHandCursor);
    teuraskuva_->installEventFilter(this);
    nahkurikuva_ = new QLabel(this);
    nahkurikuva_->setObjectName("NahkuriKuva");
    nahkurikuva_->setPixmap(Sovita(KuvaJosOn(peli_, "Kuvat/ihmiset/nahkuri.jpg"), 50, 50));
    nahkurikuva_->setCursor(Qt::PointingHandCursor);
    nahkurikuva_->installEventFilter(this);
    teuras_ = Teuraspaneeli(false);
    nylky_ = Teuraspaneeli(true);

    auto* oikea = new QVBoxLayout;
    akkuna_ = Korttipaneeli();
    oikea->addWidget(akkuna_);
    oikea->addWidget(teuras_);
    oikea->addWidget(nylky_);
    oikea->addStretch();
    // The slaughterer and the tanner stand in the header row beside the title.
    auto* otsikko = new QWidget(this);
    auto* henkilöt = new QHBoxLayout(otsikko);
    henkilöt->setContentsMargins(0, 0, 0, 0);
    henkilöt->setSpacing(10);
    henkilöt->addWidget(aihe_);
    henkilöt->addSpacing(20);
    teuraskuva_->setParent(otsikko);
    nahkurikuva_->setParent(otsikko);
    henkilöt->addWidget(teuraskuva_);
    henkilöt->addWidget(nahkurikuva_);
    AsetteleAlaruutu(this, otsikko, Kortisto(), oikea, ohje_, takaisin_, 1, 1);

    kohdistin_ = new QLabel(this);
    kohdistin_->setObjectName("Kohdistin");
    kohdistin_->setAttribute(Qt::WA_TransparentForMouseEvents);
    // The marker lies over the picture under the pointer on purpose.
    kohdistin_->setProperty("päällä", true);
    kohdistin_->hide();
}

QWidget* Eläimet::Kortisto() {
    QFrame* kortisto = Paneeli(this, "kortisto");
    auto* g = new QGridLayout(kortisto);
    g->setHorizontalSpacing(10);
    g->setVerticalSpacing(2);
    g->addWidget(Teksti("Naaraat", 11, kortisto), 0, 0, 1, 2);
    QLabel* urokset = Teksti("Urokset", 11, kortisto);
    urokset->setProperty("kohde", static_cast<int>(EläinKohde::Urokset));
    urokset->installEventFilter(this);
    g->addWidget(urokset, 0, 2, 1, 2);
    QLabel* nuoret = Teksti("Nuoret / Poikaset", 10, kortisto);
    nuoret->setProperty("kohde", static_cast<int>(EläinKohde::Nuoret));
    nuoret->installEventFilter(this);
    g->addWidget(nuoret, 0, 4, 1, 2);
    for (int kortti = 0; kortti < 12; ++kortti) {
        const int rivi = 1 + kortti / 2, sarake = (kortti % 2) * 2;
        kuvat_[kortti] = new QLabel(kortisto);
        kuvat_[kortti]->setObjectName(QString("Kuva(%1)").arg(kortti));
        const Ohjain kuva = Lue(peli_, "Kuva(" + std::to_string(kortti) + ")");
        kuvat_[kortti]->setPixmap(Sovita(tanhua::ui::Kuva(peli_, "Kuvat/Eläimet/" + kuva.arvo), 64, 64));
        kuvat_[kortti]->setProperty("tiedosto", QString::fromStdString(kuva.arvo));
        kuvat_[kortti]->setFixedSize(68, 68);
        kuvat_[kortti]->setAlignment(Qt::AlignCenter);
        kuvat_[kortti]->setCursor(Qt::PointingHandCursor);
        kuvat_[kortti]->setToolTip(QString::fromStdString(kuva.vihje));
        kuvat_[kortti]->setProperty("kortti", kortti);
        kuvat_[kortti]->setProperty("kohde", static_cast<int>(EläinKohde::Kuva));
        kuvat_[kortti]->installEventFilter(this);
        laskurit_[kortti] = Teksti("", 14, kortisto);
        laskurit_[kortti]->setObjectName(QString("Laskuri(%1)").arg(kortti));
        laskurit_[kortti]->setProperty("kortti", kortti);
        laskurit_[kortti]->setProperty("kohde", static_cast<int>(EläinKohde::Laskuri));
        laskurit_[kortti]->installEventFilter(this);
        g->addWidget(kuvat_[kortti], rivi, sarake);
        g->addWidget(laskurit_[kortti], rivi, sarake + 1);
    }
    // The young and the cubs of each species, in the rows of their parents.
    for (int i = 0; i < 6; ++i) {
        nuoret_[i] = Teksti("", 11, kortisto, false);
        nuoret_[i]->setObjectName(QString("Nuoret(%1)").arg(i));
        poikaset_[i] = Teksti("", 11, kortisto, false);
        poikaset_[i]->setObjectName(QString("Poikaset(%1)").arg(i));
        g->addWidget(nuoret_[i], 1 + i, 4);
        g->addWidget(poikaset_[i], 1 + i, 5);
    }
    aikuisia_ = Teksti("", 11, kortisto);
    aikuisia_->setObjectName("Aikuisia_Eläimiä");
    pienet_ = Teksti("", 11, kortisto);
    pienet_->setObjectName("Pienet_Eläimet");
    g->addWidget(aikuisia_, 7, 0, 1, 4);
    g->addWidget(pienet_, 7, 4, 1, 2);
    return kortisto;
}

QFrame* Eläimet::Korttipaneeli() {
    QFrame* p = Paneeli(this, "akkuna");
    otsikko_ = Teksti("", 16, p);
    otsikko_->setObjectName("otsikko");
    korttikuva_ = new QLabel(p);
    korttikuva_->setObjectName("KorttiKuva");
    info_ = Teksti("", 9, p, false);
    info_->setObjectName("Info");
    info_->setWordWrap(true);

    info_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    ostohinta_ = Teksti("", 11, p, false);
    ostohinta_->setObjectName("Ostohinta");
    myyntihinta_ = Teksti("", 11, p, false);
    myyntihinta_->setObjectName("Myyntihinta");
    liha_ = Teksti("", 11, p, false);
    liha_->setObjectName("Lihaa");
    määrä_ = Teksti("", 14, p);
    määrä_->setObjectName("määrä");
    määrä_->setAlignment(Qt::AlignCenter);
    yhtosto_ = Teksti("", 10, p);
    yhtosto_->setObjectName("yhtosto");
    yhtmyynti_ = Teksti("", 10, p);
    yhtmyynti_->setObjectName("yhtmyynti");
    miinus_ = new QPushButton(p);
    plus_ = new QPushButton(p);
    osta_ = new QPushButton(p);
    myy_ = new QPushButton(p);
    teurasta_ = new QPushButton(p);
    const std::array<std::pair<QPushButton*, const char*>, 5> napit{
        std::pair{miinus_, "määrämiinus"}, std::pair{plus_, "määräplus"}, std::pair{osta_, "Command4"},
        std::pair{myy_, "Command3"}, std::pair{teurasta_, "Command2"}};
    for (auto [nappi, nimi] : napit) {
        nappi->setObjectName(nimi);
        Teksturoi(peli_, nappi, "nappi2.jpg", 11, 12);
        nappi->setMinimumHeight(34);
    }
    auto toimi = [this](void (*f)(Peli&)) { return [this, f] { ikkuna_.Toimi([this, f] { f(peli_); }); }; };
    connect(miinus_, &QPushButton::clicked, this, toimi(määrämiinus));
    connect(plus_, &QPushButton::clicked, this, toimi(määräplus));
    connect(osta_, &QPushButton::clicked, this, toimi([](Peli& p) { tanhua::Osta(p); NäytäRaha(p); }));
    connect(myy_, &QPushButton::clicked, this, toimi([](Peli& p) { tanhua::Myy(p); NäytäRaha(p); }));
    connect(teurasta_, &QPushButton::clicked, this, toimi([](Peli& p) { tanhua::Teurasta(p); NäytäRaha(p); }));
    // The prices beside the picture, the text under them across the card, the lot and the sums
    // two to a row: the card and both slaughter panels fit the column together.
    auto* g = new QGridLayout(p);
    g->setVerticalSpacing(2);
    g->setContentsMargins(10, 6, 10, 6);
    g->addWidget(otsikko_, 0, 0, 1, 2);
    g->addWidget(korttikuva_, 0, 2, 3, 1, Qt::AlignRight | Qt::AlignTop);
    g->addWidget(ostohinta_, 1, 0, 1, 2);
    g->addWidget(myyntihinta_, 2, 0, 1, 2);
    g->addWidget(info_, 3, 0, 1, 3, Qt::AlignTop);
    // Room for five lines of text, the longest kind's: the figures below stand still from kind to kind.
    QFont infonFontti = info_->font();
    infonFontti.setPointSize(9);
    g->setRowMinimumHeight(3, 5 * QFontMetrics(infonFontti).lineSpacing() + 4);
    g->addWidget(liha_, 4, 0);
    auto* erä = new QHBoxLayout;
    erä->addWidget(Teksti("Määrä :", 11, p, false));
    erä->addWidget(miinus_);
    erä->addWidget(määrä_);
    erä->addWidget(plus_);
    g->addLayout(erä, 4, 1, 1, 2);
    g->addWidget(yhtosto_, 5, 0);
    g->addWidget(yhtmyynti_, 5, 1, 1, 2);
    g->setColumnStretch(0, 1);
    g->setColumnStretch(1, 1);
    auto* toiminnot = new QHBoxLayout;
    toiminnot->addWidget(osta_);
    toiminnot->addWidget(myy_);
    toiminnot->addWidget(teurasta_);
    g->addLayout(toiminnot, 6, 0, 1, 3);
    p->hide();
    return p;
}

QFrame* Eläimet::Teuraspaneeli(bool nylky) {
    QFrame* p = Paneeli(this, nylky ? "Nylky" : "Teuras");
    auto* g = new QGridLayout(p);
    g->setContentsMargins(10, 6, 10, 6);
    g->setVerticalSpacing(2);
    g->setColumnStretch(0, 1);
    QLabel* otsikko = Teksti("", 12, p);
    otsikko->setObjectName("otsikko");
    g->addWidget(otsikko, 0, 0, 1, 3);
    int rivi = 1;
    static constexpr std::array<const char*, 5> NIMET{"TeurasLehmä", "TeurasLammas", "TeurasSika", "TeurasKana",
                                                      "TeurasKettu"};
    for (int i = 0; i < 5; ++i) {
        if (TEURASLAATIKOT[i].nylky != nylky) continue;
        const auto& teksti = TEURASLAATIKOT[i].kuvateksti;
        laatikot_[i] = new QCheckBox(QString::fromUtf8(teksti.data(), teksti.size()), p);
        laatikot_[i]->setObjectName(NIMET[i]);
        // The rule's sentence is long: the box takes the room there is and its hint tells it whole.
        laatikot_[i]->setToolTip(laatikot_[i]->text());
        laatikot_[i]->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        g->addWidget(laatikot_[i], rivi, 0);
        connect(laatikot_[i], &QCheckBox::toggled, this, [this, i](bool päällä) {
            ikkuna_.Toimi([this, i, päällä] { AsetaTeuraslaatikko(peli_, i, päällä); });
        });
        for (int j = 0; j < 2; ++j) {
            const int raja = 2 * i + j;
            rajat_[raja] = new QLineEdit(p);
            rajat_[raja]->setObjectName(QString("Teuras%1Raja").arg(QString::fromUtf8(TEURASRAJAT[raja].data(), TEURASRAJAT[raja].size())));
            rajat_[raja]->setMaximumWidth(60);
            g->addWidget(rajat_[raja], rivi, 1 + j);
            connect(rajat_[raja], &QLineEdit::editingFinished, this, [this, raja] {
                const std::string teksti = rajat_[raja]->text().toStdString();
                ikkuna_.Toimi([this, raja, teksti] { TeurasRajaMuuttui(peli_, raja, teksti); });
                // A refused text gives way to what the field holds.
                rajat_[raja]->setText(QString::fromStdString(Lue(peli_, rajat_[raja]->objectName().toStdString()).arvo));
            });
        }
        ++rivi;
    }
    p->hide();
    return p;
}

void Eläimet::Avaa() { AvaaEläimet(peli_); }

void Eläimet::Päivitä() {
    const EläinRuutuTila& t = peli_.eläinruutu;
    for (int kortti = 0; kortti < 12; ++kortti)
        Näytä(peli_, laskurit_[kortti], "Laskuri(" + std::to_string(kortti) + ")");
    for (int i = 0; i < 6; ++i) {
        Näytä(peli_, nuoret_[i], "Nuoret(" + std::to_string(i) + ")");
        Näytä(peli_, poikaset_[i], "Poikaset(" + std::to_string(i) + ")");
    }
    Näytä(peli_, aikuisia_, "Aikuisia_Eläimiä");
    Näytä(peli_, pienet_, "Pienet_Eläimet");
    Näytä(peli_, aihe_, "aihe");
    Näytä(peli_, ohje_, "Ohje");
    Näytä(peli_, takaisin_, "Command1");

    const Ohjain kortti = Lue(peli_, "akkuna");
    akkuna_->setVisible(kortti.näkyvissä);
    if (kortti.näkyvissä) {
        otsikko_->setText(QString::fromStdString(kortti.arvo));
        NäytäKuva(peli_, korttikuva_, "Kuvat/Eläimet/", Lue(peli_, "KorttiKuva"), 72);
        const std::array<std::pair<QWidget*, const char*>, 12> kortilla{
            std::pair<QWidget*, const char*>{info_, "Info"}, {ostohinta_, "Ostohinta"}, {myyntihinta_, "Myyntihinta"},
            {liha_, "Lihaa"}, {määrä_, "määrä"}, {yhtosto_, "yhtosto"}, {yhtmyynti_, "yhtmyynti"},
            {miinus_, "määrämiinus"}, {plus_, "määräplus"}, {osta_, "Command4"}, {myy_, "Command3"},
            {teurasta_, "Command2"}};
        for (auto [w, nimi] : kortilla) Näytä(peli_, w, nimi);
    }

    for (auto [kuva, nimi] : {std::pair{teuraskuva_, "Teuraskuva"}, std::pair{nahkurikuva_, "NahkuriKuva"}}) {
        const Ohjain o = Lue(peli_, nimi);
        kuva->setVisible(o.näkyvissä);
        kuva->setProperty("tiedosto", QString::fromStdString(o.arvo));
    }
    for (auto [paneeli, nimi] : {std::pair{teuras_, "Teuras"}, std::pair{nylky_, "Nylky"}}) {
        const Ohjain o = Lue(peli_, nimi);
        paneeli->setVisible(o.näkyvissä);
        paneeli->findChild<QLabel*>("otsikko")->setText(QString::fromStdString(o.arvo));
    }
    for (int i = 0; i < 5; ++i) {
        const Ohjain o = Lue(peli_, laatikot_[i]->objectName().toStdString());
        const QSignalBlocker esto(laatikot_[i]);
        laatikot_[i]->setChecked(o.arvo == "True");
        laatikot_[i]->setProperty("väri", o.väri.value_or(0));
        laatikot_[i]->setStyleSheet("color: #24160a; background: " + Väri(o.väri.value_or(0)) + ";");
    }
    for (int raja = 0; raja < 10; ++raja)
        if (!rajat_[raja]->hasFocus())
            rajat_[raja]->setText(QString::fromStdString(Lue(peli_, rajat_[raja]->objectName().toStdString()).arvo));

    const Ohjain kohdistin = Lue(peli_, "Kohdistin");
    if (kohdistin.näkyvissä && t.kohdistin >= 0) {
        QLabel* kuva = kuvat_[t.kohdistin];
        kohdistin_->setPixmap(Sovita(KuvaJosOn(peli_, "Kuvat/" + kohdistin.arvo), kuva->width(), kuva->height()));
        kohdistin_->setProperty("tiedosto", QString::fromStdString(kohdistin.arvo));
        kohdistin_->setGeometry(QRect(kuva->mapTo(this, QPoint(0, 0)), kuva->size()));
        kohdistin_->show();
        kohdistin_->raise();
    } else {
        kohdistin_->hide();
    }
}

bool Eläimet::eventFilter(QObject* kohde, QEvent* tapahtuma) {
    const QVariant kohdeTyyppi = kohde->property("kohde");
    if (tapahtuma->type() == QEvent::Enter) {
        EläinKohde mikä = EläinKohde::Ruutu;
        int kortti = kohde->property("kortti").isValid() ? kohde->property("kortti").toInt() : -1;
        if (kohdeTyyppi.isValid()) mikä = static_cast<EläinKohde>(kohdeTyyppi.toInt());
        else if (kohde == takaisin_) mikä = EläinKohde::Takaisin;
        else if (kohde == teuraskuva_) mikä = EläinKohde::Teuraskuva;
        else if (kohde == nahkurikuva_) mikä = EläinKohde::NahkuriKuva;
        ikkuna_.Toimi([&] { OsoitinEläinruudulla(peli_, mikä, kortti); });
    }
    if (tapahtuma->type() == QEvent::MouseButtonPress) {
        if (kohdeTyyppi.isValid() && kohdeTyyppi.toInt() == static_cast<int>(EläinKohde::Kuva)) {
            const int kortti = kohde->property("kortti").toInt();
            ikkuna_.Toimi([&] { ValitseEläin(peli_, kortti); });
            return true;
        }
        if (kohde == teuraskuva_ || kohde == nahkurikuva_) {
            ikkuna_.Toimi([&] { AvaaTeuraspaneeli(peli_, kohde == nahkurikuva_); });
            return true;
        }
    }
    if (tapahtuma->type() == QEvent::KeyPress && kohde == takaisin_) {
        // On the close button any key hides an open card, and otherwise closes the screen.
        Esc();
        return true;
    }
    return Tausta::eventFilter(kohde, tapahtuma);
}

void Eläimet::mouseMoveEvent(QMouseEvent* tapahtuma) {
    if (childAt(tapahtuma->position().toPoint()) == nullptr)
        ikkuna_.Toimi([this] { OsoitinEläinruudulla(peli_, EläinKohde::Ruutu); });
    Tausta::mouseMoveEvent(tapahtuma);
}

void Eläimet::keyPressEvent(QKeyEvent* tapahtuma) {
    if (tapahtuma->key() == Qt::Key_Escape) {
        Esc();
        return;
    }
    Tausta::keyPressEvent(tapahtuma);
}

void Eläimet::Esc() {
    bool suljettu = false;
    ikkuna_.Toimi([this, &suljettu] { suljettu = EläimetEsc(peli_); });
    if (suljettu) ikkuna_.PalaaPääruutuun();
}

void Eläimet::Sulje() {
    ikkuna_.Toimi([this] {
        tanhua::Takaisin(peli_);
    });
    ikkuna_.PalaaPääruutuun();
}

}  // namespace tanhua::ui
