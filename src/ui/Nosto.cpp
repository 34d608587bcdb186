// The harvest screen.
#include "Nosto.h"

// own
#include "Pääikkuna.h"
#include "RahaKyltti.h"
#include "core/ohjaimet.h"
#include "land/kylvö.h"
#include "land/taulut/kylvö.h"
// Qt
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace tanhua::ui {

namespace {
Ohjain O(const Peli& peli, const std::string& nimi) { return LueRuudulta(peli, "Nosto", nimi); }

constexpr std::array<const char*, 4> SARAKKEET{"Ala", "Sato", "Hinta", "Summa"};
}  // namespace

Nosto::Nosto(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi) : Tausta(vanhempi), peli_(peli), ikkuna_(ikkuna) {
    setObjectName("Nosto");
    AsetaKuva(KuvaJosOn(peli_, "Kuvat/OhraPelto2.jpg"));

    QFrame* arvio = Paneeli(this, "arvio");
    auto* g = new QGridLayout(arvio);
    otsikko_ = Teksti("", 15, arvio);
    otsikko_->setObjectName("otsikko");
    g->addWidget(otsikko_, 0, 0, 1, 5);
    const std::array<const char*, 4> otsikot{"Hehtaarit", "Sato, kg", "Hinta / kg", "Summa"};
    for (int s = 0; s < 4; ++s) g->addWidget(Teksti(otsikot[s], 11, arvio), 1, 1 + s);
    for (int k = 0; k < 3; ++k) {
        g->addWidget(Teksti(Sv(KASVITAULU[k].otsikko), 12, arvio), 2 + k, 0);
        for (int s = 0; s < 4; ++s) {
            rivit_[k][s] = Teksti("", 12, arvio, false);
            rivit_[k][s]->setObjectName(QString("%1(%2)").arg(SARAKKEET[s]).arg(k));
            g->addWidget(rivit_[k][s], 2 + k, 1 + s);
        }
    }
    g->addWidget(Teksti(Sv(kylvöteksti::Kokonaistuotanto), 12, arvio), 5, 0, 1, 4);
    yhteensä_ = Teksti("", 13, arvio);
    yhteensä_->setObjectName("yhteensä");
    g->addWidget(yhteensä_, 5, 4);
    laske_ = new QPushButton(arvio);
    laske_->setObjectName("Command3");
    kustannukset_ = new QPushButton(arvio);
    kustannukset_->setObjectName("Command4");
    korjaa_ = new QPushButton(arvio);
    korjaa_->setObjectName("Command2");
    peru_ = new QPushButton(arvio);
    peru_->setObjectName("Command1");
    // Two by two, each caption whole.
    auto* napit = new QGridLayout;
    int n = 0;
    for (QPushButton* b : {laske_, kustannukset_, korjaa_, peru_}) {
        Teksturoi(peli_, b, "nappi2.jpg", 11, 12);
        b->setMinimumHeight(36);
        napit->addWidget(b, n / 2, n % 2);
        ++n;
    }
    g->addLayout(napit, 6, 0, 1, 5);
    g->setRowStretch(7, 1);
    connect(laske_, &QPushButton::clicked, this, [this] { Toimi(NostoLaske); });
    connect(kustannukset_, &QPushButton::clicked, this, [this] { Toimi(NostoKustannukset); });
    connect(korjaa_, &QPushButton::clicked, this, [this] { Toimi(KorjaaSato); });
    connect(peru_, &QPushButton::clicked, this, [this] { Toimi(PeruSadonKorjuu); });

    QFrame* sivu = Paneeli(this, "sivu");
    arkki_ = Teksti("", 10, sivu, false);
    arkki_->setObjectName("Kustannukset");
    arkki_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    auto* v = new QVBoxLayout(sivu);
    v->addWidget(Teksti("Kustannukset :", 13, sivu));
    v->addWidget(arkki_, 1);

    auto* pää = new QHBoxLayout(this);
    pää->setContentsMargins(16, 12 + RahaKyltti::KORKEUS + 8, 16, 12);  // the money plate's row above
    pää->addWidget(arvio, 3);
    pää->addWidget(sivu, 2);
}

void Nosto::Toimi(void (*f)(Peli&)) {
    ikkuna_.Toimi([this, f] { f(peli_); });
    if (!peli_.nostoruutu.auki && Palaa) Palaa();
}

void Nosto::Avaa() { AvaaNosto(peli_); }

void Nosto::Päivitä() {
    for (int k = 0; k < 3; ++k)
        for (int s = 0; s < 4; ++s) Näytä(rivit_[k][s], O(peli_, std::string(SARAKKEET[s]) + "(" + std::to_string(k) + ")"));
    Näytä(otsikko_, O(peli_, "otsikko"));
    Näytä(yhteensä_, O(peli_, "yhteensä"));
    Näytä(arkki_, O(peli_, "Kustannukset"));
    for (QPushButton* b : {laske_, kustannukset_, korjaa_, peru_}) Näytä(b, O(peli_, b->objectName().toStdString()));
}

}  // namespace tanhua::ui
