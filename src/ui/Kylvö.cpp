// The sowing screen.
#include "Kylvö.h"

// own
#include "Pääikkuna.h"
#include "RahaKyltti.h"
#include "core/ohjaimet.h"
#include "land/kylvö.h"
#include "land/taulut/kylvö.h"
// Qt
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace tanhua::ui {

namespace {
Ohjain O(const Peli& peli, const std::string& nimi) { return LueRuudulta(peli, "Kylvö", nimi); }
Ohjain O(const Peli& peli, const QObject* w) { return O(peli, w->objectName().toStdString()); }

QLabel* Nimetty(const char* nimi, int koko, QWidget* vanhempi, bool lihava = true) {
    QLabel* l = Teksti("", koko, vanhempi, lihava);
    l->setObjectName(nimi);
    return l;
}
}  // namespace

Kylvö::Kylvö(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi) : Tausta(vanhempi), peli_(peli), ikkuna_(ikkuna) {
    setObjectName("Kylvö");
    AsetaKuva(KuvaJosOn(peli_, "Kuvat/Kylväminen.jpg"));

    // The crops, each with its planned area; a click on an area clears it.
    QFrame* kasvit = Paneeli(this, "kasvit");
    auto* g = new QGridLayout(kasvit);
    g->setContentsMargins(10, 8, 10, 8);
    g->setHorizontalSpacing(4);
    g->addWidget(Teksti("Kylvettävät kasvit :", 14, kasvit), 0, 0, 1, 3);
    for (int k = 0; k < 3; ++k) {
        kuvat_[k] = new QLabel(kasvit);
        kuvat_[k]->setObjectName(QString("Kuva(%1)").arg(k));
        kuvat_[k]->setCursor(Qt::PointingHandCursor);
        kuvat_[k]->installEventFilter(this);
        alat_[k] = Teksti("", 13, kasvit);
        alat_[k]->setObjectName(QString("Ala(%1)").arg(k));
        alat_[k]->setAlignment(Qt::AlignCenter);
        alat_[k]->setCursor(Qt::PointingHandCursor);
        alat_[k]->setToolTip("Klikkaa nollataksesi");
        alat_[k]->installEventFilter(this);
        g->addWidget(kuvat_[k], 1, k, Qt::AlignCenter);
        g->addWidget(Teksti(Sv(KASVITAULU[k].otsikko), 11, kasvit), 2, k, Qt::AlignCenter);
        g->addWidget(alat_[k], 3, k);
    }
    kylvetään_ = Nimetty("kylvetään", 12, kasvit);
    eikylvetä_ = Nimetty("eikylvetä", 12, kasvit);
    g->addWidget(Teksti("Kylvetään, ha :", 11, kasvit, false), 4, 0, 1, 2);
    g->addWidget(kylvetään_, 4, 2);
    g->addWidget(Teksti("Kylvämättä, ha :", 11, kasvit, false), 5, 0, 1, 2);
    g->addWidget(eikylvetä_, 5, 2);
    const std::array<std::string_view, 3> nimet{kylvöteksti::Lannoitetaan, kylvöteksti::Myrkytetään, kylvöteksti::Ojitetaan};
    const std::array<const char*, 3> ohjaimet{"Lannoitetaan", "Myrkytetään", "Ojitetaan"};
    const std::array<void (*)(Peli&, bool), 3> asetukset{AsetaLannoitetaan, AsetaMyrkytetään, AsetaOjitetaan};
    for (int i = 0; i < 3; ++i) {
        laatikot_[i] = new QCheckBox(Sv(nimet[i]), kasvit);
        laatikot_[i]->setObjectName(ohjaimet[i]);
        laatikot_[i]->setStyleSheet("color: #24160a; font-size: 11pt;");
        connect(laatikot_[i], &QCheckBox::clicked, this,
                [this, f = asetukset[i]](bool päällä) { Toimi([this, f, päällä] { f(peli_, päällä); }); });
        g->addWidget(laatikot_[i], 6 + i, 0, 1, 3);
    }
    g->setRowStretch(9, 1);

    // The cost sheet and the two buttons that leave the screen.
    QFrame* arkki = Paneeli(this, "arkki");
    kustannukset_ = Nimetty("Kustannukset", 10, arkki, false);
    kustannukset_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    aloita_ = AlaruudunNappi(peli_, "Command2", arkki);
    peruuta_ = AlaruudunNappi(peli_, "Command1", arkki);
    connect(aloita_, &QPushButton::clicked, this, [this] { Toimi([this] { AloitaKylväminen(peli_); }); });
    connect(peruuta_, &QPushButton::clicked, this, [this] { Toimi([this] { PeruutaKylvö(peli_); }); });
    auto* a = new QVBoxLayout(arkki);
    a->addWidget(Teksti("Kustannukset :", 13, arkki));
    a->addWidget(kustannukset_, 1);
    a->addWidget(aloita_);
    a->addWidget(peruuta_);

    akkuna_ = Korttipaneeli();
    auto* keski = new QVBoxLayout;
    keski->addWidget(akkuna_);
    keski->addStretch();
    auto* pää = new QHBoxLayout(this);
    pää->setContentsMargins(16, 12 + RahaKyltti::KORKEUS + 8, 16, 12);  // the money plate's row above
    pää->addWidget(kasvit, 4);
    pää->addLayout(keski, 3);
    pää->addWidget(arkki, 3);
}

QFrame* Kylvö::Korttipaneeli() {
    QFrame* p = Paneeli(this, "akkuna");
    otsikko_ = Nimetty("otsikko", 16, p);
    info_ = Nimetty("info", 10, p, false);
    info_->setWordWrap(true);
    siemen_ = Nimetty("siemen", 11, p, false);
    yksikkö_ = Nimetty("yksikkö", 11, p, false);
    kulu_ = Nimetty("kulu", 11, p);
    hinta_ = Nimetty("hinta", 11, p);
    määrä_ = Nimetty("määrä", 14, p);
    määrä_->setAlignment(Qt::AlignCenter);
    määrä_->setMinimumWidth(40);
    yhteensä_ = Nimetty("yhteensä", 11, p);
    miinus_ = AlaruudunNappi(peli_, "miinus", p);
    plus_ = AlaruudunNappi(peli_, "plus", p);
    hyväksy_ = AlaruudunNappi(peli_, "Command3", p);
    connect(miinus_, &QPushButton::clicked, this, [this] { Toimi([this] { KylvöMiinus(peli_); }); });
    connect(plus_, &QPushButton::clicked, this, [this] { Toimi([this] { KylvöPlus(peli_); }); });
    connect(hyväksy_, &QPushButton::clicked, this, [this] { Toimi([this] { HyväksyKasvi(peli_); }); });
    auto* g = new QGridLayout(p);
    g->addWidget(otsikko_, 0, 0, 1, 3);
    g->addWidget(info_, 1, 0, 1, 3);
    g->addWidget(siemen_, 2, 0);
    g->addWidget(kulu_, 2, 1);
    g->addWidget(yksikkö_, 2, 2);
    g->addWidget(Teksti("/ ha", 11, p, false), 2, 3);
    g->addWidget(Teksti("Hinta :", 11, p, false), 3, 0);
    g->addWidget(hinta_, 3, 1);
    g->addWidget(Teksti("Hehtaarit :", 11, p, false), 4, 0);
    auto* erä = new QHBoxLayout;
    erä->addWidget(miinus_);
    erä->addWidget(määrä_);
    erä->addWidget(plus_);
    g->addLayout(erä, 4, 1, 1, 3);
    g->addWidget(Teksti("Siemenet yhteensä :", 11, p, false), 5, 0);
    g->addWidget(yhteensä_, 5, 1, 1, 2);
    g->addWidget(hyväksy_, 6, 0, 1, 4);
    p->hide();
    return p;
}

void Kylvö::Toimi(const std::function<void()>& f) {
    ikkuna_.Toimi(f);
    // Sown or dropped, the plan gives the land screen back.
    if (!peli_.kylvöruutu.auki && Palaa) Palaa();
}

void Kylvö::Avaa() { AvaaKylvö(peli_); }

void Kylvö::Päivitä() {
    for (int k = 0; k < 3; ++k) {
        const std::string n = std::to_string(k);
        NäytäKuva(peli_, kuvat_[k], "Kuvat/maat/", O(peli_, "Kuva(" + n + ")"), 120);
        Näytä(alat_[k], O(peli_, "Ala(" + n + ")"));
    }
    for (QWidget* w : std::initializer_list<QWidget*>{kylvetään_, eikylvetä_, kustannukset_, aloita_, peruuta_,
                                                      laatikot_[0], laatikot_[1], laatikot_[2]})
        Näytä(w, O(peli_, w));
    const Ohjain kortti = O(peli_, "akkuna");
    akkuna_->setVisible(kortti.näkyvissä);
    if (kortti.näkyvissä)
        for (QWidget* w : std::initializer_list<QWidget*>{otsikko_, info_, siemen_, yksikkö_, kulu_, hinta_, määrä_,
                                                          yhteensä_, miinus_, plus_, hyväksy_})
            Näytä(w, O(peli_, w));
}

bool Kylvö::eventFilter(QObject* kohde, QEvent* tapahtuma) {
    if (tapahtuma->type() == QEvent::MouseButtonPress) {
        for (int k = 0; k < 3; ++k) {
            if (kohde == kuvat_[k]) Toimi([this, k] { ValitseKasvi(peli_, static_cast<Kasvi>(k)); });
            if (kohde == alat_[k]) Toimi([this, k] { NollaaAla(peli_, static_cast<Kasvi>(k)); });
        }
        return true;
    }
    return Tausta::eventFilter(kohde, tapahtuma);
}

}  // namespace tanhua::ui
