// The settings tool's window: a check box and its hint for each setting, the speed slider, and
// "Tallenna", "Peruuta" and "Oletukset".
#include "Asetukset.h"

// Qt
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace tanhua::ui {

namespace {
constexpr std::size_t NOPEUS = 2;  // AnimNopeus, the one number among the nine
constexpr std::size_t ANIMAATIOT = 1;
}  // namespace

AsetusIkkuna::AsetusIkkuna(const Peli& peli, QWidget* vanhempi)
    : Tausta(vanhempi), peli_(peli), tila_(LueAsetustila(peli.kansiot)) {
    setObjectName("Asetukset");
    setWindowTitle("Tanhuan asetukset");
    AsetaKuva(KuvaJosOn(peli_, "Kuvat/Sattumat/Pako.jpg"));
    auto* kortti = new QFrame(this);
    kortti->setObjectName("kortti");
    kortti->setStyleSheet("#kortti { background: rgba(255, 250, 235, 230); border: 3px solid #6b4a22;"
                          " border-radius: 14px; } QLabel, QCheckBox { color: #24160a; }");
    auto* ruudukko = new QGridLayout(kortti);
    ruudukko->addWidget(Teksti("Tanhuan asetukset", 16, kortti), 0, 0, 1, 2);
    int rivi = 1;
    for (std::size_t i = 0; i < ASETUSRIVIT.size(); ++i, rivi += 2) {
        const AsetusRivi& r = ASETUSRIVIT[i];
        if (i == NOPEUS) {
            ruudukko->addWidget(Teksti(Sv(r.otsikko), 11, kortti), rivi, 0);
            auto* liuku = new QHBoxLayout;
            nopeus_ = new QSlider(Qt::Horizontal, kortti);
            nopeus_->setObjectName(QString::fromUtf8(r.nimi.data(), static_cast<int>(r.nimi.size())));
            nopeus_->setRange(0, 100);
            nopeusluku_ = Teksti("", 11, kortti);
            nopeusluku_->setMinimumWidth(36);
            liuku->addWidget(nopeus_, 1);
            liuku->addWidget(nopeusluku_);
            ruudukko->addLayout(liuku, rivi, 1);
            connect(nopeus_, &QSlider::valueChanged, this, [this](int arvo) { nopeusluku_->setNum(arvo); });
        } else {
            valinnat_[i] = new QCheckBox(Sv(r.otsikko), kortti);
            valinnat_[i]->setObjectName(QString::fromUtf8(r.nimi.data(), static_cast<int>(r.nimi.size())));
            valinnat_[i]->setStyleSheet("font-size: 11pt; font-weight: bold;");
            ruudukko->addWidget(valinnat_[i], rivi, 0, 1, 2);
        }
        QLabel* vihje = Teksti(Sv(r.vihje), 9, kortti, false);
        vihje->setWordWrap(true);
        ruudukko->addWidget(vihje, rivi + 1, 0, 1, 2);
    }
    connect(valinnat_[ANIMAATIOT], &QCheckBox::toggled, nopeus_, &QSlider::setEnabled);

    huomautus_ = Teksti("", 10, kortti, false);
    huomautus_->setObjectName("huomautus");
    huomautus_->setWordWrap(true);
    huomautus_->setStyleSheet("color: #a02000; font-size: 10pt;");
    ruudukko->addWidget(huomautus_, rivi++, 0, 1, 2);
    QLabel* seuraava = Teksti("Peli ottaa uudet asetukset käyttöön, kun sen alkuruutu seuraavan kerran latautuu.", 9,
                              kortti, false);
    seuraava->setWordWrap(true);
    ruudukko->addWidget(seuraava, rivi++, 0, 1, 2);

    tallenna_ = new QPushButton("Tallenna", kortti);
    peruuta_ = new QPushButton("Peruuta", kortti);
    oletukset_ = new QPushButton("Oletukset", kortti);
    auto* napit = new QHBoxLayout;
    for (QPushButton* n : {oletukset_, peruuta_, tallenna_}) {
        Teksturoi(peli_, n, "nappi.jpg", 11, 12);
        n->setMinimumSize(120, 38);
        napit->addWidget(n);
    }
    ruudukko->addLayout(napit, rivi, 0, 1, 2);
    tallenna_->setDefault(true);
    connect(tallenna_, &QPushButton::clicked, this, &AsetusIkkuna::Talleta);
    connect(peruuta_, &QPushButton::clicked, this, &QWidget::close);
    connect(oletukset_, &QPushButton::clicked, this, [this] { Näytä(tila_.oletukset); });

    auto* pää = new QHBoxLayout(this);
    pää->addStretch();
    pää->addWidget(kortti);
    pää->addStretch();
    huomautus_->setText(QString::fromStdString(tila_.huomautus));
    huomautus_->setVisible(!tila_.huomautus.empty());
    Näytä(tila_.arvot);
}

void AsetusIkkuna::Näytä(const Asetukset& a) {
    for (std::size_t i = 0; i < ASETUSRIVIT.size(); ++i)
        if (valinnat_[i]) valinnat_[i]->setChecked(a.*ASETUSRIVIT[i].totuus);
    // A value past the slider's ends, which the game would still read, shows at the nearest end.
    nopeus_->setValue(a.AnimNopeus);
    nopeusluku_->setNum(nopeus_->value());
    nopeus_->setEnabled(a.Animaatiot);
}

Asetukset AsetusIkkuna::Valitut() const {
    Asetukset a;
    for (std::size_t i = 0; i < ASETUSRIVIT.size(); ++i)
        if (valinnat_[i]) a.*ASETUSRIVIT[i].totuus = valinnat_[i]->isChecked();
    Aseta(a.AnimNopeus, nopeus_->value());
    return a;
}

void AsetusIkkuna::Talleta() {
    if (!KirjoitaAsetukset(peli_.kansiot, Valitut())) {
        huomautus_->setText("Asetuksia ei voitu tallentaa: tarkista, että datakansioon voi kirjoittaa.");
        huomautus_->show();
        return;
    }
    close();
}

void AsetusIkkuna::keyPressEvent(QKeyEvent* tapahtuma) {
    if (tapahtuma->key() == Qt::Key_Escape) return (void)close();
    if (tapahtuma->key() == Qt::Key_Return || tapahtuma->key() == Qt::Key_Enter) return Talleta();
    Tausta::keyPressEvent(tapahtuma);
}

}  // namespace tanhua::ui
