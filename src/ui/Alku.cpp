// The start screen and its loading panel.
#include "Alku.h"

// own
#include "core/alku.h"
#include "core/vikatila.h"
// Qt
#include <QApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QThread>
#include <QVBoxLayout>

namespace tanhua::ui {

namespace {
// The load of a new farm ticks this many times on the bar after its first 50 units.
constexpr int kLatausTikit = 38;
}  // namespace

Alku::Alku(Peli& peli, QWidget* vanhempi) : Tausta(vanhempi), peli_(peli) {
    setObjectName("Alku");
    AsetaKuva(KuvaJosOn(peli_, "Kuvat/Sattumat/Pako.jpg"));

    auto* kortti = new QFrame(this);
    kortti->setObjectName("kortti");
    kortti->setStyleSheet("#kortti { background: rgba(255, 250, 235, 225); border: 3px solid #6b4a22;"
                          " border-radius: 14px; } QLabel, QCheckBox { color: #24160a; font-size: 11pt; }");
    kortti->setMaximumWidth(560);
    auto* logo = new QLabel(kortti);
    logo->setObjectName("Picture1");
    const QPixmap merkki = KuvaJosOn(peli_, "Kuvat/ahmasofta.jpg");
    logo->setPixmap(Sovita(merkki, merkki.width() * 90 / std::max(1, merkki.height()), 90));
    logo->setAlignment(Qt::AlignCenter);

    nimesi_ = new QLineEdit(kortti);
    nimesi_->setObjectName("Nimesi");
    nimesi_->setPlaceholderText("Kirjoita nimesi");
    nimesi_->setStyleSheet("font-size: 13pt; padding: 4px;");
    lista_ = new QListWidget(kortti);
    lista_->setObjectName("Lista");
    for (const char* rivi : TAVOITELISTA) lista_->addItem(rivi);
    lista_->setFixedHeight(84);
    lista_->setStyleSheet("font-size: 11pt;");
    vtaso_ = new QLabel(kortti);
    vtaso_->setObjectName("VTaso");
    vtaso_->setStyleSheet("font-size: 13pt; font-weight: bold;");
    command3_ = new QPushButton("Nosta vaikeustasoa", kortti);
    command4_ = new QPushButton("Laske vaikeustasoa", kortti);
    ohjeita_ = new QCheckBox("Pelaan peliä ensimmäistä kertaa ja haluan ohjeita", kortti);
    ohjeita_->setObjectName("Ohjeita");
    tp_ = new QCheckBox("Käytä pelissä tähtipisteytysjärjestelmää", kortti);
    tp_->setObjectName("TP_Valinta");
    tp_->setChecked(true);
    command1_ = new QPushButton("Aloita uusi tilanne", kortti);
    command2_ = new QPushButton("Jatka tilannetta", kortti);
    viime_ = new QLabel(kortti);
    viime_->setObjectName("Viime");
    const std::array<std::pair<QPushButton*, const char*>, 4> napit{
        std::pair{command1_, "Command1"}, std::pair{command2_, "Command2"}, std::pair{command3_, "Command3"},
        std::pair{command4_, "Command4"}};
    for (auto [nappi, nimi] : napit) {
        nappi->setObjectName(nimi);
        Teksturoi(peli_, nappi, "nappi.jpg", 11, 12);
        nappi->setMinimumHeight(38);
        nappi->installEventFilter(this);
    }
    for (QWidget* w : std::initializer_list<QWidget*>{nimesi_, lista_, ohjeita_, tp_}) w->installEventFilter(this);

    // The loading panel that replaces the controls while a farm loads.
    lataus_ = new QWidget(kortti);
    lataus_->setObjectName("Lataus");
    texti_ = new QLabel(lataus_);
    texti_->setObjectName("Texti");
    palkki_ = new QProgressBar(lataus_);
    palkki_->setObjectName("palkki");
    palkki_->setRange(0, 50 + 120 * kLatausTikit);
    palkki_->setTextVisible(false);
    auto* la = new QVBoxLayout(lataus_);
    la->addWidget(texti_);
    la->addWidget(palkki_);
    lataus_->hide();

    auto* taso = new QHBoxLayout;
    taso->addWidget(command4_);
    taso->addWidget(vtaso_, 1, Qt::AlignCenter);
    taso->addWidget(command3_);
    auto* jatka = new QHBoxLayout;
    jatka->addWidget(command2_);
    jatka->addWidget(viime_, 1);
    auto* k = new QVBoxLayout(kortti);
    k->setContentsMargins(24, 18, 24, 18);
    k->addWidget(logo);
    k->addWidget(new QLabel("Nimesi :", kortti));
    k->addWidget(nimesi_);
    k->addWidget(new QLabel("Tavoite :", kortti));
    k->addWidget(lista_);
    k->addWidget(new QLabel("Vaikeustaso :", kortti));
    k->addLayout(taso);
    k->addWidget(ohjeita_);
    k->addWidget(tp_);
    k->addWidget(command1_);
    k->addLayout(jatka);
    k->addWidget(lataus_);
    auto* pää = new QHBoxLayout(this);
    pää->addStretch();
    pää->addWidget(kortti, 0, Qt::AlignVCenter);
    pää->addStretch();

    connect(command1_, &QPushButton::clicked, this, &Alku::AloitaUusi);
    connect(nimesi_, &QLineEdit::returnPressed, this, &Alku::AloitaUusi);
    connect(command2_, &QPushButton::clicked, this, [this] { if (JatkaPyydetty) JatkaPyydetty(); });
    connect(command3_, &QPushButton::clicked, this, [this] {
        NostaVaikeustasoa(peli_);
        Päivitä();
    });
    connect(command4_, &QPushButton::clicked, this, [this] {
        LaskeVaikeustasoa(peli_);
        Päivitä();
    });
    connect(lista_, &QListWidget::currentRowChanged, this, [this](int rivi) {
        if (rivi >= 0) peli_.alku.Lista = rivi;
    });
    // What the player types and ticks is the start screen's state at once, as the game reads it.
    connect(nimesi_, &QLineEdit::textChanged, this, [this](const QString& t) { peli_.alku.Nimesi = t.toStdString(); });
    connect(ohjeita_, &QCheckBox::toggled, this, [this](bool päällä) { peli_.alku.Ohjeita = päällä; });
    connect(tp_, &QCheckBox::toggled, this, [this](bool päällä) { peli_.alku.TP_Valinta = päällä; });
}

void Alku::Päivitä() {
    const AlkuRuutu& a = peli_.alku;
    auto lue = [this](const char* nimi) { return LueRuudulta(peli_, "Alku", nimi); };
    if (nimesi_->text().toStdString() != a.Nimesi) nimesi_->setText(QString::fromStdString(a.Nimesi));
    for (auto [w, nimi] : {std::pair<QWidget*, const char*>{vtaso_, "VTaso"}, {viime_, "Viime"}, {ohjeita_, "Ohjeita"},
                           {tp_, "TP_Valinta"}, {command1_, "Command1"}, {command2_, "Command2"}, {command3_, "Command3"},
                           {command4_, "Command4"}})
        ui::Näytä(w, lue(nimi));
    if (lista_->currentRow() != a.Lista) lista_->setCurrentRow(a.Lista);
    nimesi_->setFocus();
}

void Alku::SiirräValinnat() {
    AlkuRuutu& a = peli_.alku;
    a.Nimesi = nimesi_->text().toStdString();
    a.Lista = std::max(0, lista_->currentRow());
    a.Ohjeita = ohjeita_->isChecked();
    a.TP_Valinta = tp_->isChecked();
}

void Alku::Lataus(const std::string& texti, int palkki) {
    if (!lataus_->isVisible()) lataus_->show();
    texti_->setText(QString::fromStdString(texti));
    palkki_->setValue(std::min(palkki, palkki_->maximum()));
    // The bar steps visibly; with the processor saving on, the load waits a moment each tick.
    if (const int tauko = LatauksenTauko(peli_.asetukset); tauko > 0) {
        QThread::msleep(static_cast<unsigned long>(tauko));
        QApplication::processEvents();
    }
}

void Alku::AloitaUusi() {
    SiirräValinnat();
    if (!tanhua::AloitaUusi(peli_)) {
        Päivitä();
        return;
    }
    if (Aloitettu) Aloitettu();
}

bool Alku::eventFilter(QObject* kohde, QEvent* tapahtuma) {
    if (tapahtuma->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(tapahtuma)->key() == Qt::Key_Escape) {
        if (Lopetettu) Lopetettu();
        return true;
    }
    return Tausta::eventFilter(kohde, tapahtuma);
}

void Alku::keyPressEvent(QKeyEvent* tapahtuma) {
    if (tapahtuma->key() == Qt::Key_Escape) {
        if (Lopetettu) Lopetettu();
        return;
    }
    Tausta::keyPressEvent(tapahtuma);
}

}  // namespace tanhua::ui
