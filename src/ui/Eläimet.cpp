// The animal screen: pictures and counters of the herd, the card, the slaughter orders.
#include "Eläimet.h"

// own
#include "Pääikkuna.h"
#include "animals/kauppa.h"
// Qt
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace tanhua::ui {

namespace {
std::string KortinKuva(int kortti) {
    const KorttiRivi& k = KORTIT[kortti];
    const LajiRivi& laji = LAJITAULU[k.laji];
    return "Kuvat/Eläimet/" + std::string(k.luokka == Naaras ? laji.kuvaNaaras : laji.kuvaUros);
}

QString Luku(long long x) { return QString::fromStdString(Str(x)); }
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
    teuraskuva_->setPixmap(KuvaJosOn(peli_, "Kuvat/ihmiset/teurastaja.jpg").scaled(84, 84, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    teuraskuva_->setCursor(Qt::PointingHandCursor);
    teuraskuva_->installEventFilter(this);
    nahkurikuva_ = new QLabel(this);
    nahkurikuva_->setObjectName("NahkuriKuva");
    nahkurikuva_->setPixmap(KuvaJosOn(peli_, "Kuvat/ihmiset/nahkuri.jpg").scaled(84, 84, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    nahkurikuva_->setCursor(Qt::PointingHandCursor);
    nahkurikuva_->installEventFilter(this);
    teuras_ = Teuraspaneeli(false);
    nylky_ = Teuraspaneeli(true);

    auto* oikea = new QVBoxLayout;
    akkuna_ = Korttipaneeli();
    oikea->addWidget(akkuna_);
    auto* henkilöt = new QHBoxLayout;
    henkilöt->addWidget(teuraskuva_);
    henkilöt->addWidget(nahkurikuva_);
    henkilöt->addStretch();
    oikea->addLayout(henkilöt);
    oikea->addWidget(teuras_);
    oikea->addWidget(nylky_);
    oikea->addStretch();
    AsetteleAlaruutu(this, aihe_, Kortisto(), oikea, ohje_, takaisin_);

    kohdistin_ = new QLabel(this);
    kohdistin_->setObjectName("Kohdistin");
    kohdistin_->setAttribute(Qt::WA_TransparentForMouseEvents);
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
    QLabel* nuoret = Teksti("Nuoret / Poikaset", 11, kortisto);
    nuoret->setProperty("kohde", static_cast<int>(EläinKohde::Nuoret));
    nuoret->installEventFilter(this);
    g->addWidget(nuoret, 0, 4, 1, 2);
    for (int kortti = 0; kortti < 12; ++kortti) {
        const int rivi = 1 + kortti / 2, sarake = (kortti % 2) * 2;
        kuvat_[kortti] = new QLabel(kortisto);
        kuvat_[kortti]->setObjectName(QString("Kuva%1").arg(kortti));
        kuvat_[kortti]->setPixmap(tanhua::ui::Kuva(peli_, KortinKuva(kortti)).scaled(64, 64, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        kuvat_[kortti]->setFixedSize(68, 68);
        kuvat_[kortti]->setAlignment(Qt::AlignCenter);
        kuvat_[kortti]->setCursor(Qt::PointingHandCursor);
        kuvat_[kortti]->setToolTip(QString::fromUtf8(KORTIT[kortti].otsikko.data(), KORTIT[kortti].otsikko.size()));
        kuvat_[kortti]->setProperty("kortti", kortti);
        kuvat_[kortti]->setProperty("kohde", static_cast<int>(EläinKohde::Kuva));
        kuvat_[kortti]->installEventFilter(this);
        laskurit_[kortti] = Teksti("", 14, kortisto);
        laskurit_[kortti]->setProperty("kortti", kortti);
        laskurit_[kortti]->setProperty("kohde", static_cast<int>(EläinKohde::Laskuri));
        laskurit_[kortti]->installEventFilter(this);
        g->addWidget(kuvat_[kortti], rivi, sarake);
        g->addWidget(laskurit_[kortti], rivi, sarake + 1);
    }
    // The young and the cubs of each species, in the rows of their parents.
    const std::array<Laji, 6> järjestys{Nauta, Lammas, Sika, Kana, Kettu, Hevonen};
    for (int i = 0; i < 6; ++i) {
        nuoret_[i] = Teksti("", 11, kortisto, false);
        poikaset_[i] = Teksti("", 11, kortisto, false);
        nuoret_[i]->setProperty("laji", static_cast<int>(järjestys[i]));
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
    korttikuva_ = new QLabel(p);
    info_ = Teksti("", 10, p, false);
    info_->setWordWrap(true);
    info_->setMinimumHeight(70);
    ostohinta_ = Teksti("", 11, p, false);
    myyntihinta_ = Teksti("", 11, p, false);
    liha_ = Teksti("", 11, p, false);
    määrä_ = Teksti("", 14, p);
    määrä_->setObjectName("määrä");
    määrä_->setAlignment(Qt::AlignCenter);
    yhtosto_ = Teksti("", 11, p);
    yhtmyynti_ = Teksti("", 11, p);
    miinus_ = new QPushButton("-", p);
    plus_ = new QPushButton("+", p);
    osta_ = new QPushButton("Osta", p);
    myy_ = new QPushButton("Myy", p);
    teurasta_ = new QPushButton("Teurasta", p);
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
    auto* g = new QGridLayout(p);
    g->addWidget(otsikko_, 0, 0, 1, 2);
    g->addWidget(korttikuva_, 0, 2, 2, 1, Qt::AlignRight);
    g->addWidget(info_, 1, 0, 1, 2);
    g->addWidget(ostohinta_, 2, 0, 1, 3);
    g->addWidget(myyntihinta_, 3, 0, 1, 3);
    g->addWidget(liha_, 4, 0, 1, 3);
    auto* erä = new QHBoxLayout;
    erä->addWidget(Teksti("Määrä :", 11, p, false));
    erä->addWidget(miinus_);
    erä->addWidget(määrä_);
    erä->addWidget(plus_);
    g->addLayout(erä, 5, 0, 1, 3);
    g->addWidget(yhtosto_, 6, 0, 1, 3);
    g->addWidget(yhtmyynti_, 7, 0, 1, 3);
    auto* toiminnot = new QHBoxLayout;
    toiminnot->addWidget(osta_);
    toiminnot->addWidget(myy_);
    toiminnot->addWidget(teurasta_);
    g->addLayout(toiminnot, 8, 0, 1, 3);
    p->hide();
    return p;
}

QFrame* Eläimet::Teuraspaneeli(bool nylky) {
    QFrame* p = Paneeli(this, nylky ? "Nylky" : "Teuras");
    auto* g = new QGridLayout(p);
    int rivi = 0;
    for (int i = 0; i < 5; ++i) {
        if (TEURASLAATIKOT[i].nylky != nylky) continue;
        const auto& teksti = TEURASLAATIKOT[i].kuvateksti;
        laatikot_[i] = new QCheckBox(QString::fromUtf8(teksti.data(), teksti.size()), p);
        laatikot_[i]->setObjectName(QString("Teuras%1").arg(i));
        laatikot_[i]->setStyleSheet("color: #24160a;");
        g->addWidget(laatikot_[i], rivi, 0);
        connect(laatikot_[i], &QCheckBox::toggled, this, [this, i](bool päällä) {
            Aseta(peli_.m.Eläimet.Teuras[i], päällä ? 1 : 0);
        });
        for (int j = 0; j < 2; ++j) {
            const int raja = 2 * i + j;
            rajat_[raja] = new QLineEdit(p);
            rajat_[raja]->setObjectName(QString("Teuras%1Raja").arg(QString::fromUtf8(TEURASRAJAT[raja].data(), TEURASRAJAT[raja].size())));
            rajat_[raja]->setMaximumWidth(60);
            rajat_[raja]->setToolTip(QString::fromUtf8(KORTIT[0].otsikko.data(), 0) +
                                     QString::fromUtf8(TEURASRAJAT[raja].data(), TEURASRAJAT[raja].size()));
            g->addWidget(rajat_[raja], rivi, 1 + j);
            connect(rajat_[raja], &QLineEdit::editingFinished, this, [this, raja] {
                const std::string teksti = rajat_[raja]->text().toStdString();
                ikkuna_.Toimi([this, raja, teksti] { TeurasRajaMuuttui(peli_, raja, teksti); });
            });
        }
        ++rivi;
    }
    p->hide();
    return p;
}

void Eläimet::Avaa() {
    AvaaEläimet(peli_);
    for (int i = 0; i < 5; ++i) {
        const QSignalBlocker esto(laatikot_[i]);
        laatikot_[i]->setChecked(peli_.m.Eläimet.Teuras[i] == 1);
    }
}

void Eläimet::Päivitä() {
    const Muuttujat& m = peli_.m;
    const EläinRuutuTila& t = peli_.eläinruutu;
    for (int kortti = 0; kortti < 12; ++kortti)
        laskurit_[kortti]->setText(Luku(m.El[KORTIT[kortti].laji][KORTIT[kortti].luokka]));
    for (int i = 0; i < 6; ++i) {
        const int laji = nuoret_[i]->property("laji").toInt();
        nuoret_[i]->setText(Luku(m.El[laji][Nuori]));
        poikaset_[i]->setText(Luku(m.El[laji][Poikanen]));
    }
    aikuisia_->setText("Aikuisia :" + Luku(t.aikuisia));
    pienet_->setText("Pieniä :" + Luku(t.pienet));
    aihe_->setText(QString::fromStdString(t.aihe));
    ohje_->setVisible(m.OhjeetPäällä);
    ohje_->setText(QString::fromStdString(t.ohje));
    akkuna_->setVisible(t.kortti >= 0);
    if (t.kortti >= 0) {
        otsikko_->setText(QString::fromStdString(t.otsikko));
        korttikuva_->setPixmap(KuvaJosOn(peli_, KortinKuva(t.kortti)).scaled(96, 96, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        info_->setText(QString::fromStdString(t.info));
        ostohinta_->setText("Ostohinta :" + Luku(t.ostohinta));
        myyntihinta_->setText("Myyntihinta :" + Luku(t.myyntihinta));
        liha_->setText("Lihaa :" + Luku(t.liha) + " kg");
        määrä_->setText(QString::number(t.määrä));
        yhtosto_->setText("Yhteensä osto :" + Luku(t.yhtosto));
        yhtmyynti_->setText("Yhteensä myynti :" + Luku(t.yhtmyynti));
    }
    teuraskuva_->setVisible(t.teuraskuva);
    nahkurikuva_->setVisible(t.nahkurikuva);
    teuras_->setVisible(t.teurasAuki);
    nylky_->setVisible(t.nylkyAuki);
    for (int i = 0; i < 5; ++i) {
        const std::uint32_t väri = t.laatikonVäri[i];
        laatikot_[i]->setStyleSheet(väri == 0 ? QString("color: #24160a;")
                                              : QString("color: #24160a; background: rgb(%1,%2,%3);")
                                                    .arg(väri & 0xFF).arg((väri >> 8) & 0xFF).arg((väri >> 16) & 0xFF));
    }
    for (int raja = 0; raja < 10; ++raja)
        if (!rajat_[raja]->hasFocus()) rajat_[raja]->setText(QString::fromStdString(m.Eläimet.TeurasRaja[raja]));
    if (t.kohdistin >= 0) {
        QLabel* kuva = kuvat_[t.kohdistin];
        kohdistin_->setPixmap(KuvaJosOn(peli_, "Kuvat/Kohdistin.gif").scaled(kuva->size()));
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
            // The staff pictures open their panels.
            (kohde == teuraskuva_ ? peli_.eläinruutu.teurasAuki : peli_.eläinruutu.nylkyAuki) = true;
            Päivitä();
            return true;
        }
    }
    if (tapahtuma->type() == QEvent::KeyPress && kohde == takaisin_) {
        // On the close button any key hides an open card, and otherwise closes the screen.
        if (peli_.eläinruutu.kortti >= 0) {
            peli_.eläinruutu.kortti = -1;
            Päivitä();
        } else {
            Sulje();
        }
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
        if (peli_.eläinruutu.kortti >= 0) {
            peli_.eläinruutu.kortti = -1;
            Päivitä();
        } else {
            Sulje();
        }
        return;
    }
    Tausta::keyPressEvent(tapahtuma);
}

void Eläimet::Sulje() {
    ikkuna_.Toimi([this] {
        tanhua::Takaisin(peli_);
    });
    ikkuna_.PalaaPääruutuun();
}

}  // namespace tanhua::ui
