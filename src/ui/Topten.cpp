// The top-ten screen. It has no Esc: the list is left only by its buttons.
#include "Topten.h"

// own
#include "Pääikkuna.h"
#include "storage/topten.h"
// Qt
#include <QGridLayout>
#include <QVBoxLayout>

namespace tanhua::ui {

Topten::Topten(Peli& peli, Pääikkuna& ikkuna, QWidget* vanhempi) : Tausta(vanhempi), peli_(peli), ikkuna_(ikkuna) {
    setObjectName("Topten");
    AsetaKuva(KuvaJosOn(peli_, "Kuvat/OhraPelto2.jpg"));
    QFrame* lista = Paneeli(this, "lista");
    lista->setMinimumWidth(480);
    auto* g = new QGridLayout(lista);
    g->setContentsMargins(24, 16, 24, 16);
    g->setHorizontalSpacing(24);
    otsikko_ = Teksti("", 16, lista);
    otsikko_->setObjectName("otsikko");
    otsikko_->setAlignment(Qt::AlignCenter);
    g->addWidget(otsikko_, 0, 0, 1, 3);
    for (int i = 0; i < 10; ++i) {
        g->addWidget(Teksti(QString("%1.").arg(i + 1), 13, lista), i + 1, 0, Qt::AlignRight);
        n_[i] = Teksti("", 13, lista, false);
        n_[i]->setObjectName(QString("n%1").arg(i + 1));
        n_[i]->setTextFormat(Qt::PlainText);
        p_[i] = Teksti("", 13, lista);
        p_[i]->setObjectName(QString("p%1").arg(i + 1));
        p_[i]->setTextFormat(Qt::PlainText);
        p_[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        g->addWidget(n_[i], i + 1, 1);
        g->addWidget(p_[i], i + 1, 2);
    }
    g->setColumnStretch(1, 1);
    sulje_ = new QPushButton(lista);
    sulje_->setObjectName("Command1");
    tyhjennä_ = new QPushButton(lista);
    tyhjennä_->setObjectName("Command2");
    for (QPushButton* b : {sulje_, tyhjennä_}) {
        Teksturoi(peli_, b, "nappi2.jpg", 11, 12);
        b->setMinimumSize(150, 36);
    }
    g->addWidget(tyhjennä_, 11, 0, 1, 2, Qt::AlignLeft);
    g->addWidget(sulje_, 11, 2, Qt::AlignRight);
    connect(sulje_, &QPushButton::clicked, this, [this] { ikkuna_.Toimi([this] { SuljeTopten(peli_); }); });
    connect(tyhjennä_, &QPushButton::clicked, this, [this] { ikkuna_.Toimi([this] { TyhjennäListat(peli_); }); });
    auto* pää = new QVBoxLayout(this);
    pää->addStretch();
    pää->addWidget(lista, 0, Qt::AlignHCenter);
    pää->addStretch();
}

void Topten::Päivitä() {
    auto lue = [this](const std::string& nimi) { return LueRuudulta(peli_, "Topten", nimi); };
    Näytä(otsikko_, lue("otsikko"));
    for (int i = 0; i < 10; ++i) {
        Näytä(n_[i], lue("n" + std::to_string(i + 1)));
        Näytä(p_[i], lue("p" + std::to_string(i + 1)));
    }
    Näytä(sulje_, lue("Command1"));
    Näytä(tyhjennä_, lue("Command2"));
}

}  // namespace tanhua::ui
