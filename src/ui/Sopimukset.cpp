// The contracts screen.
#include "Sopimukset.h"

// own
#include "Pääikkuna.h"
#include "contracts/sopimukset.h"
#include "core/ohjaimet.h"
// Qt
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace tanhua::ui {

namespace {
Ohjain O(const Peli& peli, const QObject* w) {
    return LueRuudulta(peli, "Sopimukset", w->objectName().toStdString());
}

QPushButton* Nappi(const Peli& peli, const char* nimi, QWidget* vanhempi, int koko = 11) {
    auto* n = new QPushButton(vanhempi);
    n->setObjectName(nimi);
    Teksturoi(peli, n, "nappi2.jpg", koko, koko + 1);
    n->setMinimumHeight(32);
    return n;
}

constexpr std::array<const char*, 6> SARAKKEET{"tuotez", "hintaz", "määräz", "sakkoz", "bonusz", "kestoz"};
constexpr std::array<const char*, 6> OTSAKKEET{"Tuote", "Maksu", "Määrä", "Sakko", "Bonus", "Kesto"};
}  // namespace

Sopimukset::Sopimukset(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi)
    : Tausta(vanhempi), peli_(peli), ikkuna_(ikkuna) {
    setObjectName("Sopimukset");
    AsetaKuva(KuvaJosOn(peli_, "Kuvat/Sopimukset.jpg"));
    aihe_ = AiheOtsikko("Sopimukset", this);
    sulje_ = Nappi(peli_, "Command1", this);
    sulje_->setMinimumSize(140, 40);
    connect(sulje_, &QPushButton::clicked, this, &Sopimukset::Sulje);

    // The panel of the two sheets' buttons, on its barley field.
    auto* paneeli = new Tausta(this);
    paneeli->setObjectName("paneeli");
    paneeli->AsetaKuva(KuvaJosOn(peli_, "Kuvat/OhraPelto2.jpg"));
    paneeli->setFixedWidth(200);
    uudet_ = Nappi(peli_, "Command5", paneeli, 10);
    sopimukset_ = Nappi(peli_, "Command6", paneeli, 10);
    connect(uudet_, &QPushButton::clicked, this, [this] { Toimi(UudetSopimukset); });
    connect(sopimukset_, &QPushButton::clicked, this, [this] { Toimi(NäytäSopimukset); });
    auto* p = new QVBoxLayout(paneeli);
    p->setContentsMargins(12, 16, 12, 16);
    p->addWidget(uudet_);
    p->addWidget(sopimukset_);
    p->addStretch();

    tarjouslappu_ = Tarjouslappu();
    sopimuslappu_ = Sopimuslappu();
    auto* lappuset = new QVBoxLayout;
    lappuset->addWidget(tarjouslappu_, 3);
    lappuset->addWidget(sopimuslappu_, 2);
    lappuset->addStretch(0);

    QHBoxLayout* ylä = OtsikkoRivi(aihe_);
    auto* keski = new QHBoxLayout;
    keski->addWidget(paneeli);
    keski->addLayout(lappuset, 1);
    auto* ala = new QHBoxLayout;
    ala->addStretch();
    ala->addWidget(sulje_);
    auto* pää = new QVBoxLayout(this);
    pää->setContentsMargins(16, 12, 16, 12);
    pää->addLayout(ylä);
    pää->addLayout(keski, 1);
    pää->addLayout(ala);
}

QFrame* Sopimukset::Tarjouslappu() {
    QFrame* p = Paneeli(this, "Tarjouslappu");
    auto* otsikko = Teksti("", 14, p);
    otsikko->setObjectName("otsikko");
    lista_ = new QListWidget(p);
    lista_->setObjectName("Sopimuksia");
    lista_->setFixedWidth(130);
    lista_->setStyleSheet("QListWidget { font-size: 12pt; background: rgba(255,255,255,150); border: 1px solid #8a5a2b; }");
    connect(lista_, &QListWidget::itemClicked, this, [this](QListWidgetItem* rivi) {
        const int i = lista_->row(rivi);
        ikkuna_.Toimi([this, i] { ValitseTarjous(peli_, i); });
    });
    // The offer's text with its shadow two pixels behind it.
    auto* teksti = new QWidget(p);
    auto* t = new QGridLayout(teksti);
    t->setContentsMargins(0, 0, 0, 0);
    for (int i = 1; i >= 0; --i) {
        infoa_[i] = new QLabel(teksti);
        infoa_[i]->setObjectName(QString("infoa%1").arg(i));
        infoa_[i]->setWordWrap(true);
        infoa_[i]->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        // Both take the same width, so the shadow breaks its lines where the text does.
        infoa_[i]->setStyleSheet(i == 0 ? "color: #24160a; font-size: 10pt; margin: 0 1px 1px 0;"
                                        : "color: rgba(150, 120, 70, 90); font-size: 10pt; margin: 1px 0 0 1px;");
        t->addWidget(infoa_[i], 0, 0);
    }
    infoa_[1]->setProperty("päällä", true);  // the shadow lies under the text on purpose
    hyväksy_ = Nappi(peli_, "Command3", p);
    hylkää_ = Nappi(peli_, "Command2", p);
    suljeTarjoukset_ = Nappi(peli_, "Command9", p);
    connect(hyväksy_, &QPushButton::clicked, this, [this] { Toimi(HyväksyTarjous); });
    connect(hylkää_, &QPushButton::clicked, this, [this] { Toimi(HylkääTarjous); });
    connect(suljeTarjoukset_, &QPushButton::clicked, this, [this] { Toimi(SuljeTarjoukset); });
    auto* g = new QGridLayout(p);
    g->addWidget(otsikko, 0, 0, 1, 4);
    g->addWidget(lista_, 1, 0, 2, 1);
    g->addWidget(teksti, 1, 1, 1, 3);
    g->setRowStretch(1, 1);
    g->addWidget(hyväksy_, 2, 1);
    g->addWidget(hylkää_, 2, 2);
    g->addWidget(suljeTarjoukset_, 2, 3);
    p->hide();
    return p;
}

QFrame* Sopimukset::Sopimuslappu() {
    QFrame* p = Paneeli(this, "Sopimuslappu");
    auto* otsikko = Teksti("", 14, p);
    otsikko->setObjectName("otsikko");
    auto* g = new QGridLayout(p);
    g->setHorizontalSpacing(10);
    g->setVerticalSpacing(4);
    g->addWidget(otsikko, 0, 0, 1, 6);
    for (int s = 0; s < 6; ++s) g->addWidget(Teksti(OTSAKKEET[s], 10, p), 1, s);
    for (int i = 0; i < SOPIMUSPAIKKOJA; ++i)
        for (int s = 0; s < 6; ++s) {
            QLabel* l = Teksti("", 10, p, s == 0);
            l->setObjectName(QString("s%1%2").arg(i + 1).arg(SARAKKEET[s]));
            // A click on a product chooses the contract to cancel.
            if (s == 0) {
                l->setCursor(Qt::PointingHandCursor);
                l->setProperty("paikka", i);
                l->installEventFilter(this);
                l->setMinimumWidth(70);
            }
            paikat_[i][s] = l;
            g->addWidget(l, 2 + i, s);
        }
    yhttulot_ = Teksti("", 11, p);
    yhttulot_->setObjectName("yhttulot");
    läpi_ = Teksti("", 11, p);
    läpi_->setObjectName("sopimusläpiz");
    epä_ = Teksti("", 11, p);
    epä_->setObjectName("sopimusepäz");
    peruttava_ = Teksti("", 11, p);
    peruttava_->setObjectName("Peruttava");
    peru_ = Nappi(peli_, "Command7", p);
    suljeSopimukset_ = Nappi(peli_, "Command8", p);
    connect(peru_, &QPushButton::clicked, this, [this] { Toimi(PeruSopimus); });
    connect(suljeSopimukset_, &QPushButton::clicked, this, [this] { Toimi(SuljeSopimuslappu); });
    g->addWidget(Teksti("Tulot yhteensä / kk :", 10, p, false), 5, 0, 1, 2);
    g->addWidget(yhttulot_, 5, 2);
    g->addWidget(Teksti("Onnistuneet :", 10, p, false), 6, 0, 1, 2);
    g->addWidget(läpi_, 6, 2);
    g->addWidget(Teksti("Epäonnistuneet :", 10, p, false), 6, 3, 1, 2);
    g->addWidget(epä_, 6, 5);
    g->addWidget(Teksti("Peruttava :", 10, p, false), 7, 0);
    g->addWidget(peruttava_, 7, 1, 1, 2);
    g->addWidget(peru_, 7, 3, 1, 2);
    g->addWidget(suljeSopimukset_, 7, 5);
    g->setRowStretch(8, 1);
    p->hide();
    return p;
}

void Sopimukset::Toimi(void (*f)(Peli&)) {
    ikkuna_.Toimi([this, f] { f(peli_); });
}

void Sopimukset::Avaa() { AvaaSopimukset(peli_); }

void Sopimukset::Päivitä() {
    const SopimusRuutuTila& r = peli_.sopimusruutu;
    tarjouslappu_->setVisible(r.Tarjouslappu);
    sopimuslappu_->setVisible(r.Sopimuslappu);
    for (QFrame* lappu : {tarjouslappu_, sopimuslappu_})
        lappu->findChild<QLabel*>("otsikko")->setText(Q(O(peli_, lappu).arvo));
    // The list shows the waiting requests, the one on the line selected.
    const auto& rivit = peli_.näkymä.Sopimuksia;
    {
        const QSignalBlocker esto(lista_);
        lista_->clear();
        for (const std::string& rivi : rivit) lista_->addItem(Q(rivi));
        lista_->setCurrentRow(r.Puhelussa ? r.indeksi : -1);
        if (!r.Puhelussa) lista_->clearSelection();
    }
    lista_->setVisible(r.Tarjouslappu);
    for (int i = 0; i < 2; ++i) Näytä(infoa_[i], LueRuudulta(peli_, "Sopimukset", "infoa(" + std::to_string(i) + ")"));
    for (auto& rivi : paikat_)
        for (QLabel* l : rivi) Näytä(l, O(peli_, l));
    for (QLabel* l : {yhttulot_, läpi_, epä_, peruttava_}) Näytä(l, O(peli_, l));
    for (QPushButton* b : {uudet_, sopimukset_, sulje_, hyväksy_, hylkää_, suljeTarjoukset_, peru_, suljeSopimukset_})
        Näytä(b, O(peli_, b));
}

bool Sopimukset::eventFilter(QObject* kohde, QEvent* tapahtuma) {
    if (tapahtuma->type() == QEvent::MouseButtonPress && kohde->property("paikka").isValid()) {
        const int paikka = kohde->property("paikka").toInt();
        ikkuna_.Toimi([this, paikka] { ValitsePeruttava(peli_, paikka); });
        return true;
    }
    return Tausta::eventFilter(kohde, tapahtuma);
}

void Sopimukset::Sulje() {
    // A call keeps the player on the screen until it is answered.
    bool suljettu = false;
    ikkuna_.Toimi([this, &suljettu] { suljettu = SuljeSopimukset(peli_); });
    if (suljettu) ikkuna_.PalaaPääruutuun();
}

}  // namespace tanhua::ui
