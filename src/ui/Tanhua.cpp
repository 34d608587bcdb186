// The main screen: the farm at a glance and the way to every other screen.
#include "Tanhua.h"

// own
#include "Player.h"
#include "core/pääruutu.h"
#include "core/sää.h"
// Qt
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>
// std
#include <tuple>

namespace tanhua::ui {

QRect MittariKuva::Kehys() const {
    // Room above the frame for a bar that runs over: the frame is the lower two thirds.
    const int yläosa = height() / 3;
    return QRect(4, yläosa, width() - 8, height() - yläosa - 4);
}

int MittariKuva::Palkki() const { return Kehys().height() * p_ / 100; }

void MittariKuva::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRect kehys = Kehys();
    p.setPen(QPen(QColor(60, 40, 20), 2));
    p.setBrush(QColor(255, 255, 255, 150));
    p.drawRoundedRect(kehys, 4, 4);
    const int korkeus = Palkki();
    if (korkeus > 0) {
        // Not held to the frame: an over-full store reaches above it.
        QRect palkki(kehys.left() + 3, kehys.bottom() - korkeus, kehys.width() - 6, korkeus);
        p.setPen(Qt::NoPen);
        p.setBrush(väri_);
        p.drawRect(palkki);
    }
}

Tanhua::Tanhua(Peli& peli, QWidget* vanhempi) : Tausta(vanhempi), peli_(peli) {
    setObjectName("Tanhua");
    setFocusPolicy(Qt::StrongFocus);

    // Cash, turnover, date, season, weather and version in one panel at the top left.
    QWidget* tiedot = Paneeli(this, "tiedot");
    auto* t = new QGridLayout(tiedot);
    t->addWidget(Teksti("Raha:", 12, tiedot), 0, 0);
    rahaz_ = Teksti("", 18, tiedot);
    rahaz_->setObjectName("Rahaz");
    t->addWidget(rahaz_, 0, 1);
    liikevaihtoOtsikko_ = Teksti("Liikevaihto :", 11, tiedot, false);
    liikevaihtoz_ = Teksti("", 12, tiedot);
    liikevaihtoz_->setObjectName("liikevaihtoz");
    t->addWidget(liikevaihtoOtsikko_, 1, 0);
    t->addWidget(liikevaihtoz_, 1, 1);
    t->addWidget(Teksti("Päivämäärä :", 11, tiedot, false), 2, 0);
    // The date as its three figures with dots between.
    auto* pr = new QHBoxLayout;
    pr->setSpacing(0);
    const std::array<const char*, 3> päiväysNimet{"Päiväz", "Kuukausiz", "Vuosiz"};
    for (std::size_t i = 0; i < 3; ++i) {
        if (i > 0) pr->addWidget(Teksti(".", 13, tiedot));
        päiväys_[i] = Teksti("", 13, tiedot);
        päiväys_[i]->setObjectName(päiväysNimet[i]);
        pr->addWidget(päiväys_[i]);
        Ohje("Image2", päiväys_[i]);
    }
    pr->addStretch();
    t->addLayout(pr, 2, 1);
    vuodenaikaz_ = Teksti("", 13, tiedot);
    vuodenaikaz_->setObjectName("Vuodenaikaz");
    t->addWidget(vuodenaikaz_, 3, 1);
    asteLuku_ = Teksti("", 14, tiedot);
    asteLuku_->setObjectName("AsteLuku");
    t->addWidget(asteLuku_, 4, 1);
    sää_ = new QLabel(tiedot);
    sää_->setObjectName("Sää");
    t->addWidget(sää_, 3, 0, 2, 1, Qt::AlignCenter);
    Ohje("Image2", vuodenaikaz_);
    versio_ = Teksti("", 8, tiedot, false);
    versio_->setObjectName("Versio");
    t->addWidget(versio_, 5, 0);

    // The four gauges.
    QWidget* mittarit = Paneeli(this, "mittarit");
    mittarit->setToolTip("");
    auto* m = new QGridLayout(mittarit);
    const std::array<std::pair<const char*, QColor>, 4> tiedotMittareista{
        std::pair{"Rehu", QColor(200, 160, 40)}, std::pair{"Varasto", QColor(70, 120, 200)},
        std::pair{"Navetta", QColor(170, 70, 50)}, std::pair{"Hygienia", QColor(60, 160, 80)}};
    const std::array<const char*, 4> vihjeet{"Rehun määrä suhteessa siilon kokoon",
                                            "Tuotteiden määrä suhteessa varaston kokoon",
                                            "Eläinten määrä suhteessa navetan kokoon", ""};
    for (int i = 0; i < 4; ++i) {
        mittarit_[i] = new MittariKuva(tiedotMittareista[i].second, mittarit);
        mittarit_[i]->setObjectName(QString("Mittari%1").arg(i + 1));
        mittarit_[i]->setToolTip(vihjeet[i]);
        m->addWidget(mittarit_[i], 0, i);
        m->addWidget(Teksti(tiedotMittareista[i].first, 9, mittarit, false), 1, i, Qt::AlignHCenter);
    }
    Ohje("Image1", mittarit);

    // Stars.
    QWidget* tähtirivi = new QWidget(this);
    auto* tr = new QHBoxLayout(tähtirivi);
    const char* järjestys[] = {"Ensimmäinen", "Toinen", "Kolmas", "Neljäs", "Viides"};
    for (int i = 0; i < 5; ++i) {
        tähdet_[i] = new QLabel(tähtirivi);
        tähdet_[i]->setObjectName(QString("TP_Kuva%1").arg(i));
        tähdet_[i]->setToolTip(QString(järjestys[i]) + " tähti. Klikkaa tähteä nähdäksesti mitä sinun on "
                               "saavutettava, jotta tilasi ansaitsee kyseisen tähden.");
        tähdet_[i]->setProperty("tähti", i);
        tähdet_[i]->setCursor(Qt::PointingHandCursor);
        tähdet_[i]->installEventFilter(this);
        tr->addWidget(tähdet_[i]);
    }

    // The event list.
    lista_ = new QListWidget(this);
    lista_->setObjectName("Lista");
    lista_->setToolTip("Ilmoitus lista");
    // The list is a page of the game's notebook: paper, a serif hand, the newest line in ink, no
    // selection bar of the toolkit's own.
    lista_->setStyleSheet("QListWidget { background: rgba(250, 243, 222, 232); border: 2px solid #6b4a22;"
                          " border-radius: 6px; font-family: 'DejaVu Serif'; font-size: 11pt; color: #3b2a14;"
                          " padding: 4px; }"
                          " QListWidget::item { border-bottom: 1px solid rgba(107, 74, 34, 60); padding: 1px 2px; }"
                          " QListWidget::item:selected { background: transparent; color: #1f1408; font-weight: bold; }");
    lista_->setFocusPolicy(Qt::NoFocus);
    lista_->setMaximumSize(640, 240);

    // The hint line.
    ohje_ = OhjeRivi(this);

    // The buttons of the screens built so far, the next day and the quit.
    command1_ = new QPushButton("Eläimet", this);
    command1_->setToolTip("Eläinten osto, myynti ja teurastus");
    command2_ = new QPushButton("Rakennukset", this);
    command2_->setToolTip("Jalostus rakennukset");
    command3_ = new QPushButton("Tuotteet", this);
    command3_->setToolTip("Ostettavat ja myytävät tuotteet");
    command6_ = new QPushButton("Pankkiasiat", this);
    command6_->setToolTip("Laina ja talletus");
    command8_ = new QPushButton("Työvoima", this);
    command8_->setToolTip("Työntekijöiden palkkaaminen");
    command9_ = new QPushButton("Tarvikkeet", this);
    command9_->setToolTip("Lisä tarvikkeet");
    command4_ = new QPushButton("Seuraava päivä", this);
    command4_->setToolTip("Päivän kulutus (Enter pohjassa pikavalinta)");
    lopetus_ = new QPushButton("Lopeta peli", this);
    lopetus_->setToolTip("Lopeta pelaaminen");
    const std::array<std::pair<QPushButton*, const char*>, 8> napit{
        std::pair{command1_, "Command1"}, std::pair{command2_, "Command2"}, std::pair{command3_, "Command3"},
        std::pair{command6_, "Command6"}, std::pair{command8_, "Command8"}, std::pair{command9_, "Command9"},
        std::pair{command4_, "Command4"}, std::pair{lopetus_, "Lopetus"}};
    for (auto [nappi, nimi] : napit) {
        nappi->setObjectName(nimi);
        Teksturoi(peli_, nappi, "nappi.jpg", 12, 14);
        nappi->setMinimumSize(150, 40);
        Ohje(nimi, nappi);
        nappi->installEventFilter(this);
    }
    Ohje("Rahaz", rahaz_);
    Ohje("liikevaihtoz", liikevaihtoz_);
    connect(command1_, &QPushButton::clicked, this, [this] { if (AvaaEläimet) AvaaEläimet(); });
    connect(command3_, &QPushButton::clicked, this, [this] { if (AvaaTuotteet) AvaaTuotteet(); });
    connect(command2_, &QPushButton::clicked, this, [this] { if (AvaaRakennukset) AvaaRakennukset(); });
    connect(command6_, &QPushButton::clicked, this, [this] { if (AvaaPankki) AvaaPankki(); });
    connect(command9_, &QPushButton::clicked, this, [this] { if (AvaaTarvikkeet) AvaaTarvikkeet(); });
    connect(command8_, &QPushButton::clicked, this, [this] { if (AvaaTyövoima) AvaaTyövoima(); });
    connect(command4_, &QPushButton::clicked, this, [this] { if (SeuraavaPäivä) SeuraavaPäivä(); });
    connect(lopetus_, &QPushButton::clicked, this, [this] { if (Lopeta) Lopeta(); });
    // The land screen's button, locked by the stars as the supplies' button is.
    command5_ = new QPushButton("Maa alueet", this);
    command5_->setObjectName("Command5");
    command5_->setToolTip("Metsä ja pelto omistukset");
    Teksturoi(peli_, command5_, "nappi.jpg", 12, 14);
    command5_->setMinimumSize(150, 40);
    Ohje("Command5", command5_);
    connect(command5_, &QPushButton::clicked, this, [this] { if (AvaaPellot) AvaaPellot(); });
    // The statistics screen's button.
    stat_ = new QPushButton("Statistiikka", this);
    stat_->setObjectName("Stat");
    stat_->setToolTip("Statistiikkaa menestyksestäsi");
    Teksturoi(peli_, stat_, "nappi.jpg", 12, 14);
    stat_->setMinimumSize(150, 40);
    Ohje("Stat", stat_);
    stat_->installEventFilter(this);
    connect(stat_, &QPushButton::clicked, this, [this] { if (AvaaKäyrät) AvaaKäyrät(); });
    // The Tilanne screen's button: the score, the saves and retirement.
    command7_ = new QPushButton("Tilanne", this);
    command7_->setObjectName("Command7");
    command7_->setToolTip("Tilanteen tallentaminen sekä eläke");
    Teksturoi(peli_, command7_, "nappi.jpg", 12, 14);
    command7_->setMinimumSize(150, 40);
    Ohje("Command7", command7_);
    command7_->installEventFilter(this);
    connect(command7_, &QPushButton::clicked, this, [this] { if (AvaaTilanne) AvaaTilanne(); });

    // The stable's button, shown only with a stable and a mare.
    hepotalli_ = new QPushButton("Hevostalli", this);
    hepotalli_->setObjectName("Hepotalli");
    hepotalli_->setToolTip("Hevosten tulot ja tunnit");
    Teksturoi(peli_, hepotalli_, "nappi.jpg", 12, 14);
    hepotalli_->setMinimumSize(150, 40);
    Ohje("Hepotalli", hepotalli_);
    hepotalli_->hide();
    connect(hepotalli_, &QPushButton::clicked, this, [this] { if (AvaaHevostalli) AvaaHevostalli(); });
    // The contracts: their button, and the phone on the top row while a request waits.
    command10_ = new QPushButton("Sopimukset", this);
    command10_->setObjectName("Command10");
    Teksturoi(peli_, command10_, "nappi.jpg", 12, 14);
    command10_->setMinimumSize(150, 40);
    Ohje("Command10", command10_);
    command10_->installEventFilter(this);
    connect(command10_, &QPushButton::clicked, this, [this] { if (AvaaSopimukset) AvaaSopimukset(); });
    puhelin_ = new QLabel(this);
    puhelin_->setObjectName("Puhelin");
    puhelin_->setFixedSize(72, 72);
    puhelin_->setAlignment(Qt::AlignCenter);
    puhelin_->setCursor(Qt::PointingHandCursor);
    puhelin_->hide();
    Ohje("Puhelin", puhelin_);

    // Layout: information left, gauges right, list in the middle, buttons along the bottom.
    auto* ylä = new QHBoxLayout;
    ylä->addWidget(tiedot, 0, Qt::AlignTop);
    ylä->addStretch();
    ylä->addWidget(tähtirivi, 0, Qt::AlignTop);
    ylä->addStretch();
    ylä->addWidget(puhelin_, 0, Qt::AlignTop);
    ylä->addWidget(mittarit, 0, Qt::AlignTop);
    auto* keski = new QHBoxLayout;
    keski->addStretch();
    keski->addWidget(lista_, 2, Qt::AlignTop);
    keski->addStretch();
    // The screens' buttons in three rows of four, each in a cell of its own; the next day and the
    // quit in the fifth column. The columns share the width by fixed parts, so a button shown or
    // hidden (the stable's) moves none of the others.
    auto* ala = new QGridLayout;
    ala->setHorizontalSpacing(8);
    ala->setVerticalSpacing(6);
    const std::array<QPushButton*, 11> ruudut{command1_, command2_, command3_, command5_,  command6_, command8_,
                                              command9_, stat_,     command10_, command7_, hepotalli_};
    for (std::size_t i = 0; i < ruudut.size(); ++i) {
        ruudut[i]->setMinimumWidth(130);
        ruudut[i]->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        ala->addWidget(ruudut[i], static_cast<int>(i / 4), static_cast<int>(i % 4));
    }
    for (QPushButton* nappi : {command4_, lopetus_}) {
        nappi->setMinimumWidth(130);
        nappi->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    }
    ala->addWidget(command4_, 0, 4);
    ala->addWidget(lopetus_, 2, 4);
    // The next day's column a little wider, for its longer caption.
    for (int sarake = 0; sarake < 4; ++sarake) ala->setColumnStretch(sarake, 4);
    ala->setColumnStretch(4, 5);
    auto* pää = new QVBoxLayout(this);
    pää->setContentsMargins(18, 18, 18, 18);
    pää->addLayout(ylä);
    pää->addLayout(keski, 1);
    pää->addWidget(ohje_);
    pää->addLayout(ala);

    // The music player's badge beside the stars; its panel comes out over the screen.
    playerLogo_ = new QLabel(this);
    playerLogo_->setObjectName("PlayerLogo");
    playerLogo_->setCursor(Qt::PointingHandCursor);
    playerLogo_->installEventFilter(this);
    ylä->insertWidget(3, playerLogo_, 0, Qt::AlignTop);
    player_ = new Player(peli_, this);
    // The panel slides out over the screen's controls on purpose.
    player_->setProperty("päällä", true);
}

void Tanhua::Ohje(const char* kontrolli, QWidget* w) {
    w->setProperty("ohje", kontrolli);
    w->installEventFilter(this);
}

bool Tanhua::eventFilter(QObject* kohde, QEvent* tapahtuma) {
    if (tapahtuma->type() == QEvent::Enter && peli_.m.OhjeetPäällä) {
        const QVariant kontrolli = kohde->property("ohje");
        if (kontrolli.isValid()) {
            peli_.näkymä.Ohje = Ohjeteksti(kontrolli.toString().toStdString());
            ohje_->setText(QString::fromStdString(peli_.näkymä.Ohje));
        }
    }
    if (tapahtuma->type() == QEvent::MouseButtonPress && kohde == playerLogo_) {
        if (AvaaSoitin && playerLogo_->isEnabled()) AvaaSoitin();
        return true;
    }
    // The phone grows a tenth under the pointer and opens the contracts when clicked.
    if (kohde == puhelin_) {
        if (tapahtuma->type() == QEvent::Enter || tapahtuma->type() == QEvent::Leave) {
            puhelinIso_ = tapahtuma->type() == QEvent::Enter;
            NäytäPuhelin();
        }
        if (tapahtuma->type() == QEvent::MouseButtonPress) {
            if (AvaaSopimukset) AvaaSopimukset();
            return true;
        }
    }
    if (tapahtuma->type() == QEvent::MouseButtonPress && kohde->property("tähti").isValid()) {
        if (NäytäTähti) NäytäTähti(kohde->property("tähti").toInt());
        return true;
    }
    // Enter held down on the next-day button runs day after day.
    if (tapahtuma->type() == QEvent::KeyPress && kohde == command4_) {
        auto* näppäin = static_cast<QKeyEvent*>(tapahtuma);
        if (näppäin->key() == Qt::Key_Return || näppäin->key() == Qt::Key_Enter) {
            // A held key runs day after day but stops at a news window; a fresh press goes on.
            const bool pysähdy = näppäin->isAutoRepeat() && peli_.näkymä.IkkunaNäkyvissä;
            if (isEnabled() && !pysähdy) command4_->click();
            return true;
        }
    }
    if (tapahtuma->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(tapahtuma)->key() == Qt::Key_Escape) {
        if (Lopeta) Lopeta();
        return true;
    }
    return Tausta::eventFilter(kohde, tapahtuma);
}

void Tanhua::keyPressEvent(QKeyEvent* tapahtuma) {
    if (tapahtuma->key() == Qt::Key_Escape) {
        if (Lopeta) Lopeta();
        return;
    }
    Tausta::keyPressEvent(tapahtuma);
}

void Tanhua::Päivitä() {
    const Lukemat& l = peli_.näkymä.lukemat;
    auto lue = [this](const std::string& nimi) { return LueRuudulta(peli_, "Tanhua", nimi); };
    const std::array<std::pair<QWidget*, const char*>, 15> ohjaimet{{
        {rahaz_, "Rahaz"}, {liikevaihtoz_, "liikevaihtoz"}, {päiväys_[0], "Päiväz"}, {päiväys_[1], "Kuukausiz"},
        {päiväys_[2], "Vuosiz"}, {vuodenaikaz_, "Vuodenaikaz"}, {asteLuku_, "AsteLuku"}, {versio_, "Versio"},
        {command1_, "Command1"}, {command2_, "Command2"}, {command3_, "Command3"}, {command6_, "Command6"},
        {command8_, "Command8"}, {command9_, "Command9"}, {command4_, "Command4"},
    }};
    for (auto [w, nimi] : ohjaimet) Näytä(w, lue(nimi));
    Näytä(lopetus_, lue("Lopetus"));
    Näytä(command5_, lue("Command5"));
    // The two buttons the star lock keeps closed tell, under their own tip, the star that opens them.
    for (auto [nappi, nimi, vihje] : {std::tuple{command5_, "Command5", "Metsä ja pelto omistukset"},
                                      std::tuple{command9_, "Command9", "Lisä tarvikkeet"}}) {
        const std::string lukko = lue(nimi).vihje;
        nappi->setToolTip(lukko.empty() ? QString(vihje) : QString(vihje) + "\n" + Q(lukko));
    }
    Näytä(stat_, lue("Stat"));
    Näytä(hepotalli_, lue("Hepotalli"));
    Näytä(command7_, lue("Command7"));
    liikevaihtoOtsikko_->setVisible(liikevaihtoz_->isVisibleTo(this));
    if (const Ohjain aste = lue("AsteLuku"); aste.väri)
        asteLuku_->setStyleSheet(QString("color: rgb(%1,%2,%3); font-size: 14pt; font-weight: bold;")
                                     .arg(*aste.väri & 0xFF)
                                     .arg((*aste.väri >> 8) & 0xFF)
                                     .arg((*aste.väri >> 16) & 0xFF));
    NäytäKuva(peli_, sää_, "Kuvat/sää/", lue("Sää"));
    for (int i = 0; i < 4; ++i) mittarit_[i]->Aseta(l.mittarit[i]);
    for (int i = 0; i < 5; ++i) NäytäKuva(peli_, tähdet_[i], "Kuvat/", lue("TP_Kuva(" + std::to_string(i) + ")"));
    if (tausta_ != l.Tausta) {
        tausta_ = l.Tausta;
        AsetaKuva(KuvaJosOn(peli_, l.Tausta));
    }
    const auto& rivit = peli_.näkymä.Lista;
    if (lista_->count() != static_cast<int>(rivit.size()) ||
        (!rivit.empty() && lista_->item(lista_->count() - 1)->text() != QString::fromStdString(rivit.back()))) {
        lista_->clear();
        for (const std::string& rivi : rivit) lista_->addItem(QString::fromStdString(rivi));
    }
    lista_->setVisible(lue("Lista").näkyvissä);
    if (lista_->count() > 0) lista_->setCurrentRow(lista_->count() - 1);
    Näytä(ohje_, lue("Ohje"));
    const Ohjain logo = lue("PlayerLogo");
    NäytäKuva(peli_, playerLogo_, "Kuvat/", logo, 48);
    playerLogo_->setEnabled(logo.käytössä);
    player_->Päivitä();
    Näytä(command10_, lue("Command10"));
    NäytäPuhelin();
}

void Tanhua::NäytäPuhelin() {
    const int koko = puhelinIso_ ? 70 : 64;  // 64 pixels, a tenth more under the pointer
    const Ohjain o = LueRuudulta(peli_, "Tanhua", "Puhelin");
    NäytäKuva(peli_, puhelin_, "Kuvat/", o, koko);
    puhelin_->setEnabled(o.käytössä);
}

}  // namespace tanhua::ui
