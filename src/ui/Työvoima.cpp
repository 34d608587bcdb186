// The staff screen.
#include "Työvoima.h"

// own
#include "Pääikkuna.h"
#include "core/ohjaimet.h"
#include "workforce/työvoima.h"
// Qt
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace tanhua::ui {

namespace {
// A control of the screen as the game says it shows.
Ohjain O(const Peli& peli, const char* nimi) { return LueRuudulta(peli, "Työvoima", nimi); }
QString Arvo(const Peli& peli, const char* nimi) { return QString::fromStdString(O(peli, nimi).arvo); }
void Näytä(const Peli& peli, QWidget* w, const char* nimi) { ui::Näytä(w, O(peli, nimi)); }
}  // namespace

Työvoima::Työvoima(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi)
    : Tausta(vanhempi), peli_(peli), ikkuna_(ikkuna) {
    setObjectName("Työvoima");
    AsetaKuva(KuvaJosOn(peli_, "Kuvat/kirkonkylä.jpg"));
    aihe_ = AiheOtsikko("Työvoima", this);
    ohje_ = OhjeRivi(this);
    sulje_ = new QPushButton(this);
    sulje_->setObjectName("Command1");
    Teksturoi(peli_, sulje_, "nappi2.jpg", 11, 12);
    sulje_->setMinimumSize(140, 40);
    connect(sulje_, &QPushButton::clicked, this, &Työvoima::Sulje);

    // The job list on the left.
    QFrame* vasen = Paneeli(this, "lista");
    lista_ = new QListWidget(vasen);
    lista_->setObjectName("Lista");
    // A list on the panel's paper: the chosen row marked in the game's ink, not the toolkit's blue bar.
    lista_->setStyleSheet("QListWidget { font-size: 12pt; background: transparent; border: none; color: #24160a; }"
                          " QListWidget::item { padding: 1px 4px; }"
                          " QListWidget::item:selected { background: rgba(176, 120, 50, 70); color: #1f1408;"
                          " font-weight: bold; border-radius: 4px; }"
                          " QListWidget::item:hover { background: rgba(176, 120, 50, 35); }");
    työläisiä_ = Teksti("", 11, vasen);
    työläisiä_->setObjectName("Työläisiä");
    yhtpalk_ = Teksti("", 11, vasen);
    yhtpalk_->setObjectName("yhtpalk");
    auto* v = new QVBoxLayout(vasen);
    v->addWidget(Teksti("Työpaikat :", 12, vasen));
    v->addWidget(lista_, 1);
    auto* summat = new QGridLayout;
    summat->addWidget(Teksti("Työntekijöitä yhteensä :", 11, vasen), 0, 0);
    summat->addWidget(työläisiä_, 0, 1);
    summat->addWidget(Teksti("Palkat yhteensä :", 11, vasen), 1, 0);
    summat->addWidget(yhtpalk_, 1, 1);
    summat->addWidget(Teksti("/ kk", 11, vasen), 1, 2);
    v->addLayout(summat);
    connect(lista_, &QListWidget::currentRowChanged, this, [this](int rivi) {
        const auto tarjolla = TarjolleTyöläiset(peli_.m);
        if (rivi < 0 || rivi >= static_cast<int>(tarjolla.size())) return;
        if (peli_.työvoimaruutu.valittu == static_cast<int>(tarjolla[rivi])) return;
        const Työläinen k = tarjolla[rivi];
        ikkuna_.Toimi([this, k] { ValitseTyöläinen(peli_, k); });
    });

    // The chosen job on the right.
    QFrame* kortti = Paneeli(this, "tyokortti");
    työ_ = Teksti("", 16, kortti);
    työ_->setObjectName("työ");
    kuva_ = new QLabel(kortti);
    kuva_->setObjectName("Kuva");
    info_ = Teksti("", 10, kortti, false);
    info_->setObjectName("info");
    info_->setWordWrap(true);
    info_->setMinimumHeight(60);
    palkka_ = Teksti("", 11, kortti, false);
    palkka_->setObjectName("palkka");
    työmies_ = Teksti("", 11, kortti, false);
    työmies_->setObjectName("työmies");
    palk_ = Teksti("", 12, kortti);
    palk_->setObjectName("palk");
    yliTyö_ = Teksti("", 11, kortti, false);
    yliTyö_->setObjectName("YliTyö");
    moti_ = Teksti("", 12, kortti);
    moti_->setObjectName("Moti");
    stres_ = Teksti("", 12, kortti);
    stres_->setObjectName("Stres");
    mittari_ = new QSlider(Qt::Horizontal, kortti);
    mittari_->setObjectName("mittari");
    mittari_->setRange(TyövoimaRuutuTila::MITTARI_MIN, TyövoimaRuutuTila::MITTARI_MAX);
    mittari_->setSingleStep(TyövoimaRuutuTila::MITTARI_PIENI);
    mittari_->setPageStep(TyövoimaRuutuTila::MITTARI_SUURI);
    connect(mittari_, &QSlider::valueChanged, this, [this](int arvo) {
        ikkuna_.Toimi([this, arvo] { SiirräMittaria(peli_, CInt(arvo)); });
    });
    ota_ = new QPushButton(kortti);
    erota_ = new QPushButton(kortti);
    ylityöPäälle_ = new QPushButton(kortti);
    ylityöPois_ = new QPushButton(kortti);
    const std::array<std::pair<QPushButton*, const char*>, 4> napit{
        std::pair{ota_, "Command3"}, std::pair{erota_, "Command5"}, std::pair{ylityöPäälle_, "Command7"},
        std::pair{ylityöPois_, "Command6"}};
    for (auto [nappi, nimi] : napit) {
        nappi->setObjectName(nimi);
        Teksturoi(peli_, nappi, "nappi2.jpg", 11, 12);
        nappi->setMinimumHeight(34);
    }
    auto toimi = [this](void (*f)(Peli&)) { return [this, f] { ikkuna_.Toimi([this, f] { f(peli_); NäytäRaha(peli_); }); }; };
    connect(ota_, &QPushButton::clicked, this, toimi(OtaTöihin));
    connect(erota_, &QPushButton::clicked, this, toimi(Erota));
    connect(ylityöPäälle_, &QPushButton::clicked, this, toimi(YlityöPäälle));
    connect(ylityöPois_, &QPushButton::clicked, this, toimi(YlityöPois));
    auto* g = new QGridLayout(kortti);
    g->addWidget(työ_, 0, 0, 1, 2);
    g->addWidget(kuva_, 0, 2, 3, 1, Qt::AlignRight | Qt::AlignTop);
    g->addWidget(info_, 1, 0, 1, 2);
    g->addWidget(Teksti("Peruspalkka :", 11, kortti, false), 3, 0);
    g->addWidget(palkka_, 3, 1);
    g->addWidget(Teksti("Palkka / kk :", 11, kortti, false), 4, 0);
    g->addWidget(palk_, 4, 1);
    g->addWidget(mittari_, 5, 0, 1, 3);
    g->addWidget(Teksti("Työntekijöitä :", 11, kortti, false), 6, 0);
    g->addWidget(työmies_, 6, 1);
    g->addWidget(Teksti("Ylityöt :", 11, kortti, false), 7, 0);
    g->addWidget(yliTyö_, 7, 1);
    auto* palkkaus = new QHBoxLayout;
    palkkaus->addWidget(ota_);
    palkkaus->addWidget(erota_);
    g->addLayout(palkkaus, 8, 0, 1, 3);
    auto* ylityöt = new QHBoxLayout;
    ylityöt->addWidget(ylityöPäälle_);
    ylityöt->addWidget(ylityöPois_);
    g->addLayout(ylityöt, 9, 0, 1, 3);
    // The two gauges of the whole staff under the chosen job's card.
    g->addWidget(Teksti("Motivaatio :", 11, kortti, false), 10, 0);
    g->addWidget(moti_, 10, 1, 1, 2);
    g->addWidget(Teksti("Stressi :", 11, kortti, false), 11, 0);
    g->addWidget(stres_, 11, 1, 1, 2);
    // The card takes the column's height and the job's text the card's slack, so the figures and
    // the buttons stand at the same place for every job.
    g->setRowStretch(1, 1);
    info_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* oikea = new QVBoxLayout;
    oikea->addWidget(kortti, 1);
    AsetteleAlaruutu(this, aihe_, vasen, oikea, ohje_, sulje_, 1, 1);
}

void Työvoima::Avaa() {
    AvaaTyövoima(peli_);
    // The rules open the screen with the card empty until a job is clicked. The window shows the
    // first job of the list at once, by the same click a player would make, so the screen never
    // opens on a blank card; the record follows the click's own rules, and the runner, which has
    // no screen to look at, opens it empty.
    if (peli_.työvoimaruutu.valittu < 0)
        if (const auto tarjolla = TarjolleTyöläiset(peli_.m); !tarjolla.empty()) ValitseTyöläinen(peli_, tarjolla.front());
}

void Työvoima::Päivitä() {
    const TyövoimaRuutuTila& t = peli_.työvoimaruutu;
    {
        const QSignalBlocker esto(lista_);
        const QStringList rivit = Arvo(peli_, "Lista").split('|', Qt::SkipEmptyParts);
        QStringList nyt;
        for (int i = 0; i < lista_->count(); ++i) nyt << lista_->item(i)->text();
        if (nyt != rivit) {
            lista_->clear();
            lista_->addItems(rivit);
        }
        lista_->setCurrentRow(rivit.indexOf(Arvo(peli_, "työ")));
    }
    for (auto [l, nimi] : {std::pair{työläisiä_, "Työläisiä"}, std::pair{yhtpalk_, "yhtpalk"}, std::pair{työ_, "työ"},
                           std::pair{info_, "info"}, std::pair{palkka_, "palkka"}, std::pair{työmies_, "työmies"},
                           std::pair{palk_, "palk"}, std::pair{yliTyö_, "YliTyö"}, std::pair{moti_, "Moti"},
                           std::pair{stres_, "Stres"}})
        Näytä(peli_, l, nimi);
    for (auto [b, nimi] : {std::pair{ota_, "Command3"}, std::pair{erota_, "Command5"}, std::pair{ylityöPäälle_, "Command7"},
                           std::pair{ylityöPois_, "Command6"}, std::pair{sulje_, "Command1"}})
        Näytä(peli_, b, nimi);
    kuva_->setPixmap(t.kuva.empty() ? QPixmap()
                                    : Sovita(KuvaJosOn(peli_, t.kuva), 96, 96));
    const Ohjain mittari = O(peli_, "mittari");
    {
        const QSignalBlocker esto(mittari_);
        mittari_->setValue(std::stoi(mittari.arvo));
    }
    mittari_->setEnabled(mittari.käytössä);
    ohje_->setVisible(peli_.m.OhjeetPäällä && !peli_.näkymä.Ohje.empty());
}

void Työvoima::keyPressEvent(QKeyEvent* tapahtuma) {
    // The staff screen has no key of its own for closing.
    Tausta::keyPressEvent(tapahtuma);
}

void Työvoima::Sulje() {
    ikkuna_.Toimi([this] { SuljeTyövoima(peli_); });
    ikkuna_.PalaaPääruutuun();
}

}  // namespace tanhua::ui
