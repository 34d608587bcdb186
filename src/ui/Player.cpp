// The music player's panel: a small wooden-framed card over the main screen with the playlist.
#include "Player.h"

// own
#include "Kuvat.h"
// Qt
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

namespace tanhua::ui {

Player::Player(Peli& peli, QWidget* vanhempi) : QFrame(vanhempi), peli_(peli) {
    setObjectName("Player");
    setFixedSize(300, 280);
    tausta_ = KuvaJosOn(peli_, "Kuvat/Valotausta1.jpg");

    otsikko_ = Teksti("", 12, this);
    otsikko_->setObjectName("Caption");
    otsikko_->setAlignment(Qt::AlignCenter);
    soittolista_ = Teksti("", 10, this);
    soittolista_->setObjectName("Label1");
    soivaBiisi_ = Teksti("", 10, this, false);
    soivaBiisi_->setObjectName("SoivaBiisi");
    lista_ = new QListWidget(this);
    lista_->setObjectName("MidiFile");
    lista_->setSelectionMode(QAbstractItemView::SingleSelection);
    // The list shows the song playing; a row is chosen with the buttons, as the player's rules say.
    lista_->setFocusPolicy(Qt::NoFocus);
    lista_->setAttribute(Qt::WA_TransparentForMouseEvents);
    lista_->setStyleSheet("QListWidget { background: rgba(255, 252, 240, 220); border: 1px solid #6b4a22;"
                          " font-size: 10pt; } QListWidget::item:selected { background: #c98c3a; color: white; }");

    arvo_ = new QPushButton(this);
    arvo_->setObjectName("cmdPlayer1");
    seuraava_ = new QPushButton(this);
    seuraava_->setObjectName("cmdPlayer2");
    stoppi_ = new QPushButton(this);
    stoppi_->setObjectName("stoppi");
    piilota_ = new QPushButton(this);
    piilota_->setObjectName("cmdPlayer3");
    for (QPushButton* nappi : {arvo_, seuraava_, stoppi_, piilota_}) {
        Teksturoi(peli_, nappi, "nappi2.jpg", 10, 11);
        nappi->installEventFilter(this);
    }
    connect(arvo_, &QPushButton::clicked, this, [this] { if (Arvo) Arvo(); });
    connect(seuraava_, &QPushButton::clicked, this, [this] { if (Seuraava) Seuraava(); });
    connect(stoppi_, &QPushButton::clicked, this, [this] { if (Stop) Stop(); });
    connect(piilota_, &QPushButton::clicked, this, [this] { if (Piilota) Piilota(); });

    auto* napit = new QGridLayout;
    napit->addWidget(arvo_, 0, 0);
    napit->addWidget(seuraava_, 0, 1);
    napit->addWidget(stoppi_, 1, 0);
    napit->addWidget(piilota_, 1, 1);
    auto* pää = new QVBoxLayout(this);
    pää->setContentsMargins(12, 10, 12, 12);
    pää->addWidget(otsikko_);
    pää->addWidget(soivaBiisi_);
    pää->addWidget(soittolista_);
    pää->addWidget(lista_, 1);
    pää->addLayout(napit);
    hide();
}

void Player::Päivitä() {
    auto lue = [this](const std::string& nimi) { return LueRuudulta(peli_, "Player", nimi); };
    Näytä(otsikko_, lue("Caption"));
    Näytä(soittolista_, lue("Label1"));
    Näytä(soivaBiisi_, lue("SoivaBiisi"));
    const std::array<std::pair<QPushButton*, const char*>, 4> napit{
        {{arvo_, "cmdPlayer1"}, {seuraava_, "cmdPlayer2"}, {stoppi_, "stoppi"}, {piilota_, "cmdPlayer3"}}};
    for (auto [nappi, nimi] : napit) {
        const Ohjain o = lue(nimi);
        Näytä(nappi, o);
        nappi->setToolTip(Q(o.vihje));
    }
    const Ohjain lista = lue("MidiFile");
    QStringList rivit;
    for (const std::string& kappale : peli_.soitin.MidiFile) rivit << Q(kappale);
    QStringList nyt;
    for (int i = 0; i < lista_->count(); ++i) nyt << lista_->item(i)->text();
    if (nyt != rivit) {
        lista_->clear();
        lista_->addItems(rivit);
    }
    lista_->setCurrentRow(peli_.soitin.ListIndex);
    lista_->setVisible(lista.näkyvissä);
    setVisible(peli_.soitin.Näkyvissä);
}

void Player::paintEvent(QPaintEvent*) {
    // The light backdrop of the player, framed in the game's wood brown.
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    QPainterPath reuna;
    reuna.addRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 8, 8);
    p.setClipPath(reuna);
    if (!tausta_.isNull())
        p.drawPixmap(rect(), tausta_.scaled(size() * devicePixelRatioF(), Qt::KeepAspectRatioByExpanding,
                                            Qt::SmoothTransformation));
    else
        p.fillRect(rect(), QColor(255, 250, 235));
    p.fillRect(rect(), QColor(255, 250, 235, 110));
    p.setClipping(false);
    p.setPen(QPen(QColor(0x6b, 0x4a, 0x22), 3));
    p.drawPath(reuna);
}

void Player::Liuku(const std::vector<int>& yläreunat) {
    // One unit a step; the steps are paced so the slide can be seen, and the window paints between.
    QElapsedTimer kello;
    kello.start();
    for (std::size_t i = 0; i < yläreunat.size(); ++i) {
        move(x(), yläreunat[i]);
        QCoreApplication::processEvents();
        while (kello.nsecsElapsed() < static_cast<qint64>(i + 1) * 1'000'000) QCoreApplication::processEvents();
    }
}

bool Player::eventFilter(QObject* kohde, QEvent* tapahtuma) {
    // Esc in any control of the panel hides it.
    if (tapahtuma->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(tapahtuma)->key() == Qt::Key_Escape) {
        if (Piilota) Piilota();
        return true;
    }
    return QFrame::eventFilter(kohde, tapahtuma);
}

void Player::keyPressEvent(QKeyEvent* tapahtuma) {
    if (tapahtuma->key() == Qt::Key_Escape) {
        if (Piilota) Piilota();
        return;
    }
    QFrame::keyPressEvent(tapahtuma);
}

}  // namespace tanhua::ui
