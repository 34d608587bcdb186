// The land screen.
#include "Pellot.h"

// own
#include "Pääikkuna.h"
#include "core/ohjaimet.h"
#include "core/pääruutu.h"
#include "land/pellot.h"
#include "land/taulut/pellot.h"
// Qt
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace tanhua::ui {

namespace {
Ohjain O(const Peli& peli, const std::string& nimi) { return LueRuudulta(peli, "Pellot", nimi); }
Ohjain O(const Peli& peli, const QObject* w) { return O(peli, w->objectName().toStdString()); }

// The folder of each picture control.
const char* Kansio(const QString& nimi) {
    if (nimi == "LantaKuva") return "Kuvat/tuotteet/";
    if (nimi == "MetsuriKuva") return "Kuvat/ihmiset/";
    return "Kuvat/maat/";
}
}  // namespace

Pellot::Pellot(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi) : Tausta(vanhempi), peli_(peli), ikkuna_(ikkuna) {
    setObjectName("Pellot");
    AsetaKuva(KuvaJosOn(peli_, "Kuvat/Metsä.jpg"));
    otsikko_ = AiheOtsikko(Sv(peltoteksti::Ruutu), this);
    otsikko_->setObjectName("otsikko");
    ohje_ = OhjeRivi(this);
    sulje_ = new QPushButton(this);
    sulje_->setObjectName("Command1");
    Teksturoi(peli_, sulje_, "nappi2.jpg", 11, 12);
    sulje_->setMinimumSize(140, 40);
    connect(sulje_, &QPushButton::clicked, this, &Pellot::Sulje);

    // The four kinds in a square, each with its name, then the sowing, harvest and forester's pictures.
    QFrame* maat = Paneeli(this, "maat");
    auto* g = new QGridLayout(maat);
    for (int k = 0; k < 4; ++k) {
        maat_[k] = Kuva(("Image" + std::to_string(k)).c_str(), maat, 160);
        g->addWidget(maat_[k], (k / 2) * 2, k % 2, Qt::AlignCenter);
        g->addWidget(Teksti(Sv(MAAKORTIT[k].otsikko), 12, maat), (k / 2) * 2 + 1, k % 2, Qt::AlignCenter);
    }
    auto* alarivi = new QHBoxLayout;
    kuvat_[0] = Kuva("Image4", maat, 90);
    kuvat_[1] = Kuva("Image5", maat, 90);
    metsuriKuva_ = Kuva("MetsuriKuva", maat, 80);
    alarivi->addWidget(kuvat_[0]);
    alarivi->addWidget(kuvat_[1]);
    alarivi->addStretch();
    alarivi->addWidget(metsuriKuva_);
    g->addLayout(alarivi, 4, 0, 1, 2);
    g->setRowStretch(5, 1);

    akkuna_ = Korttipaneeli();
    metsuriValikko_ = MetsuriPaneeli();
    auto* oikea = new QVBoxLayout;
    // The card takes the column's height above the forester's panel, its text the card's slack.
    oikea->addWidget(akkuna_, 1);
    oikea->addWidget(metsuriValikko_);
    oikea->addStretch(0);
    AsetteleAlaruutu(this, otsikko_, maat, oikea, ohje_, sulje_, 1, 1);
}

QLabel* Pellot::Kuva(const char* nimi, QWidget* vanhempi, int koko) {
    auto* l = new QLabel(vanhempi);
    l->setObjectName(nimi);
    l->setMinimumSize(koko, koko * 3 / 4);
    l->setAlignment(Qt::AlignCenter);
    l->setCursor(Qt::PointingHandCursor);
    l->setProperty("koko", koko);
    l->installEventFilter(this);
    return l;
}

QFrame* Pellot::Korttipaneeli() {
    QFrame* p = Paneeli(this, "akkuna");
    auto teksti = [p](const char* nimi, int koko, bool lihava = false) {
        QLabel* l = Teksti("", koko, p, lihava);
        l->setObjectName(nimi);
        return l;
    };
    otsikko2_ = teksti("otsikko2", 16, true);
    korttiKuva_ = new QLabel(p);
    korttiKuva_->setObjectName("KorttiKuva");
    info_ = teksti("info", 10);
    info_->setWordWrap(true);
    info_->setMinimumHeight(64);
    hehtaarit_ = teksti("hehtaarit", 11, true);
    hinta_ = teksti("hinta", 11, true);
    määrä_ = teksti("määrä", 14, true);
    määrä_->setAlignment(Qt::AlignCenter);
    määrä_->setMinimumWidth(44);
    yhteensä_ = teksti("yhteensä", 11, true);
    maavero_ = teksti("Maavero", 11, true);
    tuotto_ = teksti("KK_Tuotto", 11, true);
    lantaKuva_ = new QLabel(p);
    lantaKuva_->setObjectName("LantaKuva");
    miinus_ = AlaruudunNappi(peli_, "miinus", p);
    plus_ = AlaruudunNappi(peli_, "plus", p);
    osta_ = AlaruudunNappi(peli_, "Command7", p);
    myy_ = AlaruudunNappi(peli_, "Command8", p);
    connect(miinus_, &QPushButton::clicked, this, [this] { Toimi(tanhua::miinus); });
    connect(plus_, &QPushButton::clicked, this, [this] { Toimi(tanhua::plus); });
    connect(osta_, &QPushButton::clicked, this, [this] { Toimi(OstaMaata); });
    connect(myy_, &QPushButton::clicked, this, [this] { Toimi(MyyMaata); });
    auto* g = new QGridLayout(p);
    g->setContentsMargins(10, 6, 10, 6);
    g->setVerticalSpacing(2);
    g->addWidget(otsikko2_, 0, 0, 1, 2);
    g->addWidget(korttiKuva_, 0, 2, 2, 1, Qt::AlignRight | Qt::AlignTop);
    g->addWidget(info_, 1, 0, 1, 2, Qt::AlignTop);
    g->setRowStretch(1, 1);
    const std::array<std::pair<const char*, QLabel*>, 5> rivit{{{"Omistuksessa, ha :", hehtaarit_},
                                                                {"Hinta / ha :", hinta_},
                                                                {"Yhteensä :", yhteensä_},
                                                                {"Maavero/kk :", maavero_},
                                                                {"Tuotto / kk :", tuotto_}}};
    for (int i = 0; i < static_cast<int>(rivit.size()); ++i) {
        g->addWidget(Teksti(rivit[i].first, 11, p, false), 2 + i, 0);
        g->addWidget(rivit[i].second, 2 + i, 1);
    }
    g->addWidget(lantaKuva_, 5, 2, 2, 1, Qt::AlignCenter);
    auto* erä = new QHBoxLayout;
    erä->addWidget(Teksti("Määrä :", 11, p, false));
    erä->addWidget(miinus_);
    erä->addWidget(määrä_);
    erä->addWidget(plus_);
    erä->addStretch();
    g->addLayout(erä, 7, 0, 1, 3);
    auto* napit = new QHBoxLayout;
    napit->addWidget(osta_);
    napit->addWidget(myy_);
    g->addLayout(napit, 8, 0, 1, 3);
    p->hide();
    return p;
}

QFrame* Pellot::MetsuriPaneeli() {
    QFrame* p = Paneeli(this, "MetsuriValikko");
    metsuriOtsikko_ = Teksti("", 13, p);
    metsuriOtsikko_->setObjectName("MetsuriOtsikko");
    metsuriInfo_ = Teksti("", 10, p, false);
    metsuriInfo_->setObjectName("MetsuriInfo");
    metsuriInfo_->setWordWrap(true);
    metsuriInfo_->setMinimumHeight(64);
    metsitä_ = new QCheckBox(Sv(peltoteksti::Metsitä), p);
    metsitä_->setObjectName("Metsitä");
    metsitä_->setStyleSheet("color: #24160a; font-size: 11pt;");
    connect(metsitä_, &QCheckBox::clicked, this, [this](bool päällä) {
        ikkuna_.Toimi([this, päällä] { AsetaMetsitä(peli_, päällä); });
    });
    auto* v = new QVBoxLayout(p);
    v->addWidget(metsuriOtsikko_);
    v->addWidget(metsuriInfo_);
    v->addWidget(metsitä_, 0, Qt::AlignLeft);
    p->hide();
    return p;
}

void Pellot::Toimi(void (*f)(Peli&)) {
    ikkuna_.Toimi([this, f] { f(peli_); });
}

void Pellot::Avaa() { AvaaPellot(peli_); }

void Pellot::Päivitä() {
    for (QLabel* l : {maat_[0], maat_[1], maat_[2], maat_[3], kuvat_[0], kuvat_[1], metsuriKuva_})
        NäytäKuva(peli_, l, Kansio(l->objectName()), O(peli_, l), l->property("koko").toInt());
    Näytä(otsikko_, O(peli_, otsikko_));
    Näytä(sulje_, O(peli_, sulje_));

    const Ohjain kortti = O(peli_, "akkuna");
    akkuna_->setVisible(kortti.näkyvissä);
    if (kortti.näkyvissä) {
        for (QWidget* w : std::initializer_list<QWidget*>{otsikko2_, info_, hehtaarit_, hinta_, määrä_, yhteensä_,
                                                          maavero_, tuotto_, miinus_, plus_, osta_, myy_})
            Näytä(w, O(peli_, w));
        NäytäKuva(peli_, korttiKuva_, "Kuvat/maat/", O(peli_, korttiKuva_), 96);
        NäytäKuva(peli_, lantaKuva_, "Kuvat/tuotteet/", O(peli_, lantaKuva_), 56);
    }
    const Ohjain valikko = O(peli_, "MetsuriValikko");
    metsuriValikko_->setVisible(valikko.näkyvissä);
    if (valikko.näkyvissä)
        for (QWidget* w : std::initializer_list<QWidget*>{metsuriOtsikko_, metsuriInfo_, metsitä_}) Näytä(w, O(peli_, w));
    ohje_->setVisible(false);
}

bool Pellot::eventFilter(QObject* kohde, QEvent* tapahtuma) {
    const std::string nimi = kohde->objectName().toStdString();
    if (tapahtuma->type() == QEvent::Enter) {
        ikkuna_.Toimi([this, &nimi] { OsoitinPelloilla(peli_, nimi); });
    } else if (tapahtuma->type() == QEvent::MouseButtonPress) {
        for (int k = 0; k < 4; ++k)
            if (kohde == maat_[k]) ikkuna_.Toimi([this, k] { ValitseMaa(peli_, static_cast<tanhua::Maa>(k)); });
        if (kohde == metsuriKuva_) Toimi(AvaaMetsuriValikko);
        if (kohde == kuvat_[0] && AvaaKylvö) AvaaKylvö();
        if (kohde == kuvat_[1] && AvaaNosto) AvaaNosto();
        return true;
    }
    return Tausta::eventFilter(kohde, tapahtuma);
}

void Pellot::keyPressEvent(QKeyEvent* tapahtuma) {
    if (tapahtuma->key() == Qt::Key_Escape) {
        // With the panel or the card showing, Esc hides both; otherwise it leaves the screen.
        bool suljettu = false;
        ikkuna_.Toimi([this, &suljettu] { suljettu = PellotEsc(peli_); });
        if (suljettu) ikkuna_.PalaaPääruutuun();
        return;
    }
    Tausta::keyPressEvent(tapahtuma);
}

void Pellot::Sulje() {
    ikkuna_.Toimi([this] { SuljePellot(peli_); });
    ikkuna_.PalaaPääruutuun();
}

}  // namespace tanhua::ui
