// The news window: black, with the event's picture, its text and "Sulje".
#include "ikkuna.h"

// own
#include "Kuvat.h"
// Qt
#include <QVBoxLayout>
// std
#include <algorithm>
#include <filesystem>

namespace tanhua::ui {

ikkuna::ikkuna(Peli& peli, QWidget* vanhempi) : QFrame(vanhempi), peli_(peli) {
    setObjectName("ikkuna");
    setStyleSheet("#ikkuna { background: black; border: 3px solid #c8a060; border-radius: 8px; }");
    kuva_ = new QLabel(this);
    kuva_->setObjectName("kuva");
    kuva_->setAlignment(Qt::AlignCenter);
    kuva_->setMinimumSize(400, 300);
    tapahtuma_ = new QLabel("Tapahtumat", this);
    tapahtuma_->setObjectName("Tapahtuma");
    tapahtuma_->setWordWrap(true);
    tapahtuma_->setAlignment(Qt::AlignCenter);
    tapahtuma_->setStyleSheet("color: #f4ecd8; font-size: 13pt;");
    sulje_ = new QPushButton("Sulje", this);
    sulje_->setObjectName("Command1");
    Teksturoi(peli_, sulje_, "nappi2.jpg", 10, 12);
    sulje_->setMinimumSize(120, 34);
    auto* asettelu = new QVBoxLayout(this);
    asettelu->addWidget(kuva_, 1);
    asettelu->addWidget(tapahtuma_);
    asettelu->addWidget(sulje_, 0, Qt::AlignHCenter);
    connect(sulje_, &QPushButton::clicked, this, &ikkuna::Sulje);
    EstäToisto(this);
    hide();
}

void ikkuna::AsetaKuva(const std::string& kuva) {
    // An event without a picture of its own shows the blank picture.
    const QPixmap p = kuva.empty() ? QPixmap() : Kuva(peli_, kuva);
    kuva_->setPixmap(p.isNull() ? QPixmap() : Sovita(p, 400, 300));
    kuva_->setProperty("tiedosto", Q(std::filesystem::path(kuva).filename().string()));
    näytettyKuva_ = kuva;
}

void ikkuna::Näytä(const std::string& kuva, const std::string& teksti) {
    AsetaKuva(kuva);
    tapahtuma_->setText(QString::fromStdString(teksti));
    // A long text wraps inside the window, which grows to hold it rather than cut it off.
    // When the text would run past the canvas, the window widens, up to nearly the canvas' width.
    const QWidget* alla = parentWidget();
    int leveys = 480;
    while (layout()->totalHeightForWidth(leveys) > alla->height() - 16 && leveys + 80 <= alla->width() - 16) leveys += 80;
    const int korkeus = std::min(std::max(460, layout()->totalHeightForWidth(leveys)), alla->height());
    resize(leveys, korkeus);
    move((alla->width() - width()) / 2, (alla->height() - height()) / 2);
    show();
    raise();
    // Painted now, before the event's sound starts.
    repaint();
}

void ikkuna::setVisible(bool näkyvissä) {
    // Only a blanking can happen without a tell, so nothing is loaded here.
    if (näkyvissä && peli_.näkymä.IkkunaKuva.empty() && !näytettyKuva_.empty()) AsetaKuva("");
    QFrame::setVisible(näkyvissä);
}

void ikkuna::Sulje() {
    const QString paluu = QString::fromStdString(peli_.näkymä.PaluuLomake);
    hide();
    peli_.näkymä.IkkunaNäkyvissä = false;
    peli_.näkymä.PaluuLomake.clear();
    if (Suljettu) Suljettu(paluu);
}

}  // namespace tanhua::ui
