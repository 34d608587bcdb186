// The Message box: text with its shadow, "Kyllä"/"Ei" or "Sulje", the keys K and E.
#include "Message.h"

// own
#include "Kuvat.h"
#include "core/viestit.h"
// Qt
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace tanhua::ui {

Message::Message(Peli& peli, QWidget* vanhempi) : QWidget(vanhempi), peli_(peli) {
    setObjectName("Message");
    setWindowTitle("Tanhua");
    hide();
    resize(560, 300);
    // The shade over the screen under the box: it takes the clicks meant for the screen.
    suoja_ = new QWidget(vanhempi);
    suoja_->setObjectName("MessageSuoja");
    suoja_->setAttribute(Qt::WA_StyledBackground);
    suoja_->setStyleSheet("#MessageSuoja { background: rgba(20, 14, 6, 70); }");
    suoja_->hide();
    for (int i = 1; i >= 0; --i) {
        txt_[i] = new QLabel(this);
        txt_[i]->setWordWrap(true);
        txt_[i]->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        QFont f = txt_[i]->font();
        f.setPointSize(12);
        f.setBold(true);
        txt_[i]->setFont(f);
        // Txt(1) is the shadow of Txt(0).
        txt_[i]->setStyleSheet(i == 0 ? "color: #1d1306;" : "color: rgba(255,255,255,170);");
    }
    txt_[1]->setProperty("päällä", true);  // the shadow lies under the text on purpose
    kyllä_ = new QPushButton("Kyllä", this);
    ei_ = new QPushButton("Ei", this);
    sulje_ = new QPushButton("Sulje", this);
    kyllä_->setObjectName("kyllä");
    ei_->setObjectName("ei");
    sulje_->setObjectName("sulje");
    auto* napit = new QHBoxLayout;
    napit->addStretch();
    for (QPushButton* n : {kyllä_, ei_, sulje_}) {
        Teksturoi(peli_, n, "nappi2.jpg", 10, 12);
        n->setAutoDefault(true);
        n->setMinimumSize(110, 34);
        napit->addWidget(n);
    }
    napit->addStretch();
    auto* asettelu = new QVBoxLayout(this);
    asettelu->addStretch();
    asettelu->addLayout(napit);
    connect(kyllä_, &QPushButton::clicked, this, [this] { Vastaa(KYLLÄ); });
    connect(ei_, &QPushButton::clicked, this, [this] { Vastaa(EI); });
    connect(sulje_, &QPushButton::clicked, this, [this] { Vastaa(VASTATTU); });
    ArvoTausta();
    EstäToisto(this);
}

void Message::ArvoTausta() {
    tausta_ = KuvaJosOn(peli_, ulkoasu_.bounded(2) == 0 ? "Kuvat/peltosumu.jpg" : "Kuvat/peltosumu2.jpg");
    update();
}

void Message::AsetteleTeksti() {
    // A long text starts higher: the top is four tenths down less a little for each character.
    const int pituus = QString::fromStdString(peli_.näkymä.MsgTeksti).size();
    const int yläreuna = std::max(8, height() / 10 * 4 - pituus * 3 * height() / 3000 - 40);
    const int korkeus = std::max(40, height() - yläreuna - 70);
    txt_[0]->setGeometry(24, yläreuna, width() - 48, korkeus);
    txt_[1]->setGeometry(26, yläreuna + 2, width() - 48, korkeus);
}

void Message::Valmistele(const std::string& teksti, int tyyli) {
    peli_.näkymä.MsgTeksti = teksti;
    for (QLabel* l : txt_) l->setText(QString::fromStdString(teksti));
    kyllä_->setVisible(tyyli == 1);
    ei_->setVisible(tyyli == 1);
    sulje_->setVisible(tyyli != 1);
    (tyyli == 1 ? kyllä_ : sulje_)->setFocus();
    AsetteleTeksti();
}

std::string Message::Kysy(const std::string& teksti, int tyyli) {
    Valmistele(teksti, tyyli);
    peli_.näkymä.MsgVastaus.clear();
    QEventLoop silmukka;
    silmukka_ = &silmukka;
    show();
    (tyyli == 1 ? kyllä_ : sulje_)->setFocus();
    silmukka.exec();
    silmukka_ = nullptr;
    hide();
    if (peli_.näkymä.MsgVastaus.empty()) peli_.näkymä.MsgVastaus = tyyli == 1 ? EI : VASTATTU;
    return peli_.näkymä.MsgVastaus;
}

void Message::Vastaa(const char* vastaus) {
    // The click's sound is the game's: Kysy plays it once the answer is back.
    peli_.näkymä.MsgVastaus = vastaus;
    hide();
    if (silmukka_) silmukka_->quit();
    ArvoTausta();  // a new background for the next time
}

void Message::keyPressEvent(QKeyEvent* tapahtuma) {
    // K and E answer in both styles; in style 0 they close the box as "Sulje" would.
    if (tapahtuma->key() == Qt::Key_K) return Vastaa(KYLLÄ);
    if (tapahtuma->key() == Qt::Key_E) return Vastaa(EI);
    // Esc is the box's own close button.
    if (tapahtuma->key() == Qt::Key_Escape) return Vastaa(sulje_->isVisible() ? VASTATTU : EI);
    QWidget::keyPressEvent(tapahtuma);
}

void Message::showEvent(QShowEvent* tapahtuma) {
    // In the middle of the canvas, over the shade.
    if (const QWidget* alla = parentWidget()) {
        move((alla->width() - width()) / 2, (alla->height() - height()) / 2);
        suoja_->setGeometry(alla->rect());
    }
    suoja_->show();
    suoja_->raise();
    raise();
    QWidget::showEvent(tapahtuma);
}

void Message::hideEvent(QHideEvent* tapahtuma) {
    suoja_->hide();
    QWidget::hideEvent(tapahtuma);
}

bool Message::focusNextPrevChild(bool seuraava) {
    QList<QPushButton*> napit;
    for (QPushButton* n : {kyllä_, ei_, sulje_})
        if (n->isVisible()) napit << n;
    if (napit.isEmpty()) return false;
    const int nyt = std::max<qsizetype>(0, napit.indexOf(qobject_cast<QPushButton*>(focusWidget())));
    napit[(nyt + (seuraava ? 1 : napit.size() - 1)) % napit.size()]->setFocus(seuraava ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void Message::resizeEvent(QResizeEvent* tapahtuma) {
    QWidget::resizeEvent(tapahtuma);
    AsetteleTeksti();
}

void Message::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (tausta_.isNull()) p.fillRect(rect(), QColor(214, 222, 206));
    else p.drawPixmap(rect(), tausta_);
    p.fillRect(rect().adjusted(12, 12, -12, -60), QColor(255, 255, 255, 90));
}

}  // namespace tanhua::ui
