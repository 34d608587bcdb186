// Screenshots of every screen and dialog in a realistic state, and the timing of a day's press.
#include "Kuvakaappaukset.h"

// own
#include "Eläimet.h"
#include "Pääikkuna.h"
#include "QtKanavat.h"
#include "Tuotteet.h"
#include "Pankki.h"
#include "Tarvikkeet.h"
#include "Sopimukset.h"
#include "contracts/sopimukset.h"
#include "Asetukset.h"
#include "Rakennukset.h"
#include "Työvoima.h"
#include "Pellot.h"
#include "Kylvö.h"
#include "land/kylvö.h"
#include "land/pellot.h"
#include "Käyrät.h"
#include "Ravit.h"
#include "racing/ravit.h"
#include "stats/käyrät.h"
#include "Hevostalli.h"
#include "buildings/talli.h"
#include "workforce/neuvottelut.h"
#include "Tilanne.h"
#include "Topten.h"
#include "career/tilanne.h"
#include "storage/tallennus.h"
#include "storage/topten.h"
#include "animals/kauppa.h"
#include "buildings/rakentaminen.h"
#include "buildings/tarvikkeet.h"
#include "finance/pankki.h"
#include "workforce/työvoima.h"
#include "core/kuukausi.h"
#include "core/päivä.h"
#include "core/viestit.h"
#include "events/sattumat.h"
#include "market/markkinat.h"
#include "market/myynti.h"
#include "storage/tiedostot.h"
// Qt
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPainter>
#include <QTemporaryDir>
// std
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

namespace tanhua::ui {

namespace {
// The window's channels, but every question is answered at once as a player pressing the
// default would, so that the run needs nobody at the keyboard.
class Automaatti : public QtKanavat {
public:
    using QtKanavat::QtKanavat;
    std::string Kysy(const std::string& teksti, int tyyli) override {
        if (kysyttäessä) return kysyttäessä(teksti, tyyli);
        return tyyli == 1 ? EI : VASTATTU;
    }
    // A shot taken while a question is open, with the answer it gives.
    std::function<std::string(const std::string&, int)> kysyttäessä;
    void Laatikko(const std::string&) override {}
    std::string Kehote(const std::string&, const std::string& oletus) override { return oletus; }
    std::string KehoteOtsikolla(const std::string&, const std::string&, const std::string& oletus) override {
        return oletus;
    }
    bool Vikalaatikko(const std::string&, int, const std::string&) override { return true; }
    void Ääni(const std::string&) override {}
    bool ÄäniLaite() override { return true; }
};

struct Näyttämö {
    explicit Näyttämö(const Kansiot& alku, QSize koko = QSize(1024, 768)) : kansiot{alku.ohjelma, std::filesystem::path(väliaikainen.path().toStdString()) / "Data"},
                                               kanavat(kansiot.ohjelma), peli(kanavat, kansiot), ikkuna(peli) {
        AlustaDatakansio(kansiot);
        kanavat.Liitä(&ikkuna);
        ikkuna.lopetus = [] {};
        ikkuna.resize(koko);
        ikkuna.show();
        ikkuna.Käynnistä();
    }
    void Odota() {
        for (int i = 0; i < 5; ++i) QApplication::processEvents();
    }
    void AloitaTila(const char* nimi) {
        ikkuna.alku()->Nimesi()->setText(nimi);
        ikkuna.alku()->Command1()->click();
        Odota();
    }

    QTemporaryDir väliaikainen;
    Kansiot kansiot;
    Automaatti kanavat;
    Peli peli;
    Pääikkuna ikkuna;
};

bool Tallenna(QWidget* w, const QDir& kansio, const char* nimi) {
    QApplication::processEvents();
    const bool ok = w->grab().save(kansio.filePath(nimi));
    std::printf("%s %s\n", ok ? "wrote" : "FAILED", kansio.filePath(nimi).toStdString().c_str());
    return ok;
}

// The window with the Message box open over its middle, as the player sees a question: the box lies
// on the canvas, so the window's picture has it.
bool TallennaKysymyksenKanssa(Pääikkuna& w, const QDir& kansio, const char* nimi) {
    w.message()->show();
    const bool ok = Tallenna(&w, kansio, nimi);
    w.message()->hide();
    return ok;
}

bool KuvaaSattumat(Näyttämö& n, const QDir& kansio) {
    Pääikkuna& w = n.ikkuna;
    Peli& peli = n.peli;
    bool ok = true;
    Aseta(peli.m.Koko_Navetta, std::max<Single>(peli.m.Koko_Navetta, 60));
    // No wage talks, the day's draw, number 20; the barn, the second picture, its loss and claim.
    for (double r : {0.5, 0.0, 19.5 / 60, 0.1, 0.7, 0.5, 0.3}) peli.arvonta.Jonoon(r);
    tanhua::Sattumat(peli);
    ok &= Tallenna(&w, kansio, "30-Sattuma.png");
    w.uutiset()->Command1()->click();

    const std::string uhkaus = "Maksa suojeluraha, niin navettasi ei syty niin herkästi tuleen";
    Kerro(peli, "Kuvat/sattumat/alamaailma.jpg", uhkaus);
    w.message()->Valmistele(uhkaus + "\nMaksatko " + Str(1480.0f) + " ?", 1);
    const bool tallennettu = TallennaKysymyksenKanssa(w, kansio, "31-Suojeluraha.png");
    w.uutiset()->Command1()->click();
    return ok && tallennettu;
}
}  // namespace

namespace {
bool KäyrätJaRavit(Näyttämö& n, const QDir& kansio) {
    Pääikkuna& w = n.ikkuna;
    Peli& peli = n.peli;
    bool ok = true;
    // Cash and a fuller silo for the two years.
    Aseta(peli.m.Koko_Siilo, 2000);
    Aseta(peli.m.Var[Rehu], 2000);
    Aseta(peli.m.Raha, peli.m.Raha + 40000);
    while (peli.m.Vuosi < 1982 || peli.m.Kuukausi < 6) {
        w.SeuraavaPäivä();
        if (peli.näkymä.RaporttiAuki) w.raportti()->Command1()->click();
        if (peli.näkymä.IkkunaNäkyvissä) w.uutiset()->Command1()->click();
    }
    w.AvaaRuutu(w.käyrät());
    PiirräKäyrä(peli, KäyräRaha);
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "26-Kayrat-Rahatila.png");
    TuotteidenNetto(peli);
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "27-Kayrat-Taulu.png");
    w.käyrät()->Command(2)->click();

    w.AvaaRavit();
    LyöVetoa(peli);
    ValitseVetolaji(peli, vetolaji::Voittajaveto);
    NäytäRivi(peli, 0);
    ValitseKerroin(peli, 3);
    for (int i = 0; i < 3; ++i) NostaPanosta(peli);
    HyväksyKuponki(peli);
    LyöVetoa(peli);
    ValitseVetolaji(peli, vetolaji::Trio);
    NäytäRivi(peli, 1);
    for (int rivi : {2, 6, 0}) MerkitseHevonen(peli, rivi);
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "28-Ravit.png");
    w.ravit()->Command(1)->click();
    return ok;
}

// The production panels: a dairy slowed on its slider, a feed plant after a month's work, and the
// packing plant with its conveyor. The three buildings are chosen unbuilt first, as a player
// ordering them would, which starts them at full output.
bool KuvaaTuotanto(Näyttämö& n, const QDir& kansio) {
    Pääikkuna& w = n.ikkuna;
    Peli& peli = n.peli;
    Muuttujat& m = peli.m;
    bool ok = true;
    if (peli.näkymä.RaporttiAuki) w.raportti()->Command1()->click();
    for (const Rakennus r : {Meijeri, Rehuntuotanto, Pakkaamo}) {
        ValitseKohde(peli, r);
        Aseta(m.Rak[r], 2);
    }
    Aseta(m.Raha, 500000);
    Aseta(m.Pelto, 20);
    Aseta(m.Koko_Varasto, 20000);
    Aseta(m.Var[Vilja], 4000);
    Aseta(m.Var[Maito], 1500);
    Aseta(m.El[Nauta][Naaras], 12);
    Aseta(m.Työ[Meijerityöntekijä], 3);
    Aseta(m.Työ[Varastotyöntekijä], 2);
    Aseta(m.Tarv[Liukuhihna], true);
    AsetaAutomyynti(peli, Juusto, true);
    // A fresh month, worked to its 28th day without reaching the month end.
    Aseta(m.Päivä, 1);
    for (int i = 0; i < 27; ++i) {
        w.SeuraavaPäivä();
        if (peli.näkymä.IkkunaNäkyvissä) w.uutiset()->Command1()->click();
    }
    w.AvaaRuutu(w.rakennukset());
    ValitseKohde(peli, Meijeri);
    AsetaTuotanto(peli, 7);
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "20-Rakennukset-Meijeri.png");
    ValitseKohde(peli, Rehuntuotanto);
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "21-Rakennukset-Rehuntuotanto.png");
    ValitseKohde(peli, Pakkaamo);
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "22-Rakennukset-Pakkaamo.png");
    w.rakennukset()->Command1()->click();
    return ok;
}
}  // namespace

namespace {
// The land screen's pictures (below).
bool Maakuvat(Pääikkuna& w, Peli& peli, const QDir& kansio);
}  // namespace

namespace {
// Every screen and dialog in a window of the size given.
bool KuvaaKaikki(const Kansiot& kansiot, const QDir& kansio, QSize koko) {
    Näyttämö n(kansiot, koko);
    Pääikkuna& w = n.ikkuna;
    Peli& peli = n.peli;
    bool ok = true;
    n.ikkuna.alku()->Nimesi()->setText("Matti");
    ok &= Tallenna(&w, kansio, "01-Alku.png");

    // A farm of a few weeks: hens, a cock, a cow and a bull; the accountant keeps the silo.
    peli.alku.Ohjeita = true;
    n.ikkuna.alku()->Ohjeita()->setChecked(true);
    n.AloitaTila("Matti");
    Aseta(peli.m.Raha, 30000);
    for (const char* eläin : {"Kana", "Kana", "Kana", "Kana", "Kukko", "Lehmä", "Sonni"}) {
        ValitseEläin(peli, KorttiNimellä(eläin));
        Osta(peli);
    }
    Aseta(peli.m.Työ[Kirjanpitäjä], 1);
    Aseta(peli.m.Koko_Siilo, 600);
    Aseta(peli.m.Var[Rehu], 600);
    AsetaAutomyynti(peli, Rehu, true);
    AsetaAutomyynti(peli, Muna, true);
    for (int i = 0; i < 11; ++i) w.SeuraavaPäivä();
    // A day with news in the event list: the store has filled up with milk.
    Aseta(peli.m.Var[Maito], peli.m.Koko_Varasto);
    w.SeuraavaPäivä();
    ok &= Tallenna(&w, kansio, "02-Tanhua.png");
    Aseta(peli.m.Var[Maito], 0);

    // The music player's panel out over the main screen with its playlist; then the logo's still.
    w.AvaaSoitin();
    ok &= Tallenna(&w, kansio, "18-Player.png");
    w.PiilotaSoitin();
    w.pohja()->setGeometry(w.rect());
    w.pohja()->NäytäKuvat();
    w.pohja()->show();
    w.pohja()->raise();
    ok &= Tallenna(&w, kansio, "19-Pohja-logo.png");
    w.pohja()->hide();

    w.AvaaRuutu(w.eläimet());
    ValitseEläin(peli, KorttiNimellä("Lehmä"));
    OsoitinEläinruudulla(peli, EläinKohde::Kuva, KorttiNimellä("Lehmä"));
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "03-Eläimet.png");
    w.eläimet()->Takaisin()->click();

    w.AvaaRuutu(w.tuotteet());
    AvaaTuote(peli, Maito);
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "04-Tuotteet.png");
    AvaaTuote(peli, Rehu);
    KirjanpitäjäKuva(peli);
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "05-Tuotteet-Kirjanpitäjä.png");
    w.tuotteet()->Command1()->click();

    w.AvaaRuutu(w.rakennukset());
    ValitseKohde(peli, KohdeNimellä("Navetta"));
    AskelMäärä(peli, 1);
    TilaaKohde(peli);
    ValitseKohde(peli, KohdeNimellä("Teurastamo"));
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "13-Rakennukset.png");
    w.rakennukset()->Command1()->click();

    w.AvaaRuutu(w.työvoima());
    ValitseTyöläinen(peli, Siivooja);
    OtaTöihin(peli);
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "14-Työvoima.png");
    w.työvoima()->Command1()->click();

    w.AvaaRuutu(w.pankki());
    AvaaVakuutukset(peli);
    VaihdaVakuutus(peli, VakuutusPalo, true);
    OtaLainaa(peli);
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "15-Pankki.png");
    w.pankki()->Command1()->click();

    Aseta(peli.m.TähtiLukitus, false);  // the shop opens without stars for the picture
    w.AvaaRuutu(w.tarvikkeet());
    NäytäLisälaitteet(peli);
    ValitseTarvike(peli, Lypsykone);
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "16-Tarvikkeet.png");
    w.tarvikkeet()->Command1()->click();
    Aseta(peli.m.TähtiLukitus, true);

    // The contracts: the phone ringing, a call with its terms, and the three slots taken.
    peli.näkymä.Sopimuksia = {"Maito", "Muna"};
    peli.näkymä.Puhelin = true;
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "23-Tanhua-Puhelin.png");
    w.AvaaRuutu(w.sopimukset());
    UudetSopimukset(peli);
    ValitseTarjous(peli, 0);
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "24-Sopimukset-Puhelu.png");
    HylkääTarjous(peli);
    const std::array<Sopimus, SOPIMUSPAIKKOJA> paikat{Sopimus{"Maito", 450, 2700, 3600, 17},
                                                     Sopimus{"Muna", 120, 480, 640, 9},
                                                     Sopimus{"Puu", 30, 1800, 2400, 12}};
    peli.m.Sop = paikat;
    SuljeTarjoukset(peli);
    NäytäSopimukset(peli);
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "25-Sopimukset-Paikat.png");
    w.sopimukset()->Command1()->click();
    // The month end that follows has no contract notice to wait for.
    peli.m.Sop = {};
    peli.näkymä.Sopimuksia.clear();
    peli.näkymä.Puhelin = false;

    while (!peli.näkymä.RaporttiAuki) w.SeuraavaPäivä();
    ok &= Tallenna(&w, kansio, "06-Raportti.png");
    w.raportti()->Command1()->click();

    PörssiRaportti(peli);
    w.pino()->setCurrentWidget(w.raportti());
    ok &= Tallenna(&w, kansio, "07-Pörssikurssit.png");
    SuljeRaportti(peli);
    w.PalaaPääruutuun();

    // Christmas brings the news window.
    Aseta(peli.m.Kuukausi, 12);
    AsetaVuodenaika(peli.m);
    Aseta(peli.m.Päivä, 23);
    Aseta(peli.m.Raha, 1500);
    w.SeuraavaPäivä();
    ok &= Tallenna(&w, kansio, "08-ikkuna.png");
    w.uutiset()->Command1()->click();

    w.message()->Valmistele("Menetät nykyisen tilanteesi. Oletko aivan varma?", 1);
    ok &= TallennaKysymyksenKanssa(w, kansio, "09-Message-Kyllä-Ei.png");
    w.message()->Valmistele("Rahasi eivät riitä!\n\nRahatilanteesi on  1500\nEläin maksaa  5000\nSinulta puuttuu  3500", 0);
    ok &= TallennaKysymyksenKanssa(w, kansio, "10-Message-Sulje.png");

    w.AvaaRuutu(w.eläimet());
    ok &= Tallenna(w.rahaKyltti(), kansio, "11-RahaKyltti.png");
    w.eläimet()->Takaisin()->click();

    QMessageBox vika(QMessageBox::Critical, "VikaTila",
                     "Jossain kohtaa pelissä esiintyi vika, mutta peli yrittää itse ratkaista ongelman.\n"
                     "Jos ohjelma kaatuu seuraavaksi, voit jatkaa tilannettasi lataamalla Autosave.sav tilanteen.",
                     QMessageBox::Yes | QMessageBox::No, &w);
    vika.show();
    ok &= Tallenna(&vika, kansio, "12-VikaTila.png");

    // The day's events: a barn fire with its line in the list, then the caller's demand with the
    // question over it.
    vika.hide();
    ok &= KuvaaSattumat(n, kansio);

    // The settings tool beside the game, on the same data folder.
    AsetusIkkuna asetukset(peli);
    asetukset.resize(800, 760);
    asetukset.show();
    ok &= Tallenna(&asetukset, kansio, "17-Asetukset.png");
    asetukset.hide();

    ok &= KuvaaTuotanto(n, kansio);

    // A riding stable of five horses on three hectares with two masters: two weeks of lessons in the
    // ledger and the price list open.
    Aseta(peli.m.Rak[Rakennus::Hevostalli], 1);
    Aseta(peli.m.Laidun, 3);
    Aseta(peli.m.El[Hevonen][Naaras], 4);
    Aseta(peli.m.El[Hevonen][Uros], 1);
    Aseta(peli.m.Työ[Tallimestari], 2);
    Aseta(peli.m.Palkka[Tallimestari], 6400);
    peli.m.Ylityö[Tallimestari] = true;
    Aseta(peli.m.Raha, 60000);
    Aseta(peli.m.Var[Rehu], peli.m.Koko_Siilo);
    Aseta(peli.m.Kuukausi, 6);
    AsetaVuodenaika(peli.m);
    Aseta(peli.m.Päivä, 1);
    for (int i = 0; i < 14; ++i) {
        w.SeuraavaPäivä();
        if (peli.näkymä.RaporttiAuki) w.raportti()->Command1()->click();
        if (w.uutiset()->isVisible()) w.uutiset()->Command1()->click();
    }
    w.AvaaRuutu(w.hevostalli());
    VaihdaHinnasto(peli);
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "32-Hevostalli.png");
    w.hevostalli()->Command1()->click();

    // The staff screen with both gauges: a well-paid staff, some of it on overtime; every job listed.
    Aseta(peli.m.TähtiLukitus, false);
    w.AvaaRuutu(w.työvoima());
    for (Työläinen k : {Kirjanpitäjä, Siivooja}) {
        ValitseTyöläinen(peli, k);
        OtaTöihin(peli);
        SiirräMittaria(peli, 800);
    }
    YlityöPäälle(peli);
    ValitseTyöläinen(peli, Tallimestari);
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "33-Tyovoima-mittarit.png");
    w.työvoima()->Command1()->click();
    Aseta(peli.m.TähtiLukitus, true);

    // A wage talk: the cleaners, paid under their base, open the news window and state their demand.
    Aseta(peli.m.Palkka[Siivooja], 2500);
    Aseta(peli.m.Palkka[Tallimestari], 7000);
    for (int job = 0; job < 12; ++job)
        for (double r : {.99, .99, .99}) peli.arvonta.Jonoon(r);
    for (double r : {0.0, .9, .5}) peli.arvonta.Jonoon(r);
    bool kuvattu = false;
    n.kanavat.kysyttäessä = [&](const std::string& teksti, int tyyli) {
        if (!kuvattu && tyyli == 1) {
            kuvattu = true;
            w.message()->Valmistele(teksti, tyyli);
            ok &= TallennaKysymyksenKanssa(w, kansio, "34-Palkkaneuvottelu.png");
        }
        return std::string(tyyli == 1 ? KYLLÄ : VASTATTU);
    };
    w.Toimi([&] { Palkkaneuvottelut(peli); });
    n.kanavat.kysyttäessä = nullptr;
    ok &= kuvattu;
    ok &= Maakuvat(w, peli, kansio);
    // Two years of the farm in the curves, last month's net table, and a coupon at the races.
    ok &= KäyrätJaRavit(n, kansio);

    // The Tilanne screen: the score, then the panel with two saves listed, the story, the list.
    w.PalaaPääruutuun();
    TallennaTilanne(peli, "Kesä1980");
    TallennaTilanne(peli, "Joulu");
    w.AvaaRuutu(w.tilanne());
    ok &= Tallenna(&w, kansio, "35-Tilanne.png");
    AvaaPaneeli(peli);
    ValitseTiedosto(peli, "Joulu.sav");
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "36-Tilanne-Tallenna.png");
    SuljePaneeli(peli);
    LoppuJuttu(peli);
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "37-Tarina.png");
    peli.tilanneruutu.Pisteet = 75;
    SuljeTarina(peli);
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "38-Topten.png");
    return ok;
}

// The main screen after a year on a small farm of hens, cows and sheep, as the README shows it.
bool KuvaaVuosi(const Kansiot& kansiot, const QDir& kansio, QSize koko) {
    Näyttämö n(kansiot, koko);
    Peli& peli = n.peli;
    n.AloitaTila("Matti");
    Aseta(peli.m.Raha, 30000);
    for (const char* eläin : {"Kana", "Kana", "Kana", "Kana", "Kukko", "Lehmä", "Lehmä", "Sonni", "Lammas", "Pässi"}) {
        ValitseEläin(peli, KorttiNimellä(eläin));
        Osta(peli);
    }
    Aseta(peli.m.Työ[Kirjanpitäjä], 1);
    for (Tuote t : {Rehu, Muna, Maito, Villa}) AsetaAutomyynti(peli, t, true);
    while (peli.m.Vuosi == 1980 || peli.m.Kuukausi < 6) {
        n.ikkuna.SeuraavaPäivä();
        if (peli.näkymä.RaporttiAuki) n.ikkuna.raportti()->Command1()->click();
        if (n.ikkuna.uutiset()->isVisible()) n.ikkuna.uutiset()->Command1()->click();
    }
    return Tallenna(&n.ikkuna, kansio, "42-Tanhua-vuosi.png");
}
}  // namespace

int KirjoitaKuvakaappaukset(const Kansiot& kansiot, const std::string& polku) {
    // Every screen at the canvas' own size and at a full-HD window, each size in a folder of its own.
    bool ok = true;
    for (const QSize koko : {QSize(800, 600), QSize(1920, 1080)}) {
        QDir kansio(QString::fromStdString(polku));
        const QString alikansio = QString("%1x%2").arg(koko.width()).arg(koko.height());
        if (!kansio.mkpath(alikansio) || !kansio.cd(alikansio)) {
            std::fprintf(stderr, "tanhua: cannot make the folder %s/%s\n", polku.c_str(), alikansio.toStdString().c_str());
            return 2;
        }
        ok &= KuvaaKaikki(kansiot, kansio, koko);
        ok &= KuvaaVuosi(kansiot, kansio, koko);
    }
    return ok ? 0 : 1;
}

namespace {
// A 600-month cash curve worked out and painted at two window sizes, and a coupon accepted with the
// most participants the draw can give (P = 300 099, 300 105 draws): each within a frame at 60 Hz.
void MittaaKäyräJaKuponki(Näyttämö& n) {
    Peli& peli = n.peli;
    Pääikkuna& w = n.ikkuna;
    peli.m.Käyrät.Rahatila.clear();
    for (int i = 0; i < 600; ++i) peli.m.Käyrät.Rahatila.push_back(Str(5000000.0 + 4000000.0 * std::sin(i / 40.0)));
    w.AvaaRuutu(w.käyrät());
    QElapsedTimer kello;
    for (QSize koko : {QSize(800, 600), QSize(1920, 1080)}) {
        w.resize(koko);
        QApplication::processEvents();
        kello.start();
        PiirräKäyrä(peli, KäyräRaha);
        w.käyrät()->Taulu()->repaint();
        std::printf("A 600-item curve worked out and its plot painted at %dx%d: %.2f ms (a frame is 16.7 ms)\n",
                    koko.width(), koko.height(), static_cast<double>(kello.nsecsElapsed()) / 1e6);
    }
    w.käyrät()->Command(2)->click();
    w.AvaaRavit();
    LyöVetoa(peli);
    peli.raviruutu.Vetolaji = vetolaji::Voittajaveto;
    peli.arvonta.Jonoon(0.5);
    peli.arvonta.Jonoon(0.99999999);  // P = D(300000) + 100 = 300099
    kello.start();
    HyväksyKuponki(peli);
    const double arvonta = static_cast<double>(kello.nsecsElapsed()) / 1e6;
    w.Päivitä();
    w.ravit()->Tulos()->repaint();
    std::printf("A coupon accepted (\"%s\"): %.2f ms, %.2f ms with its sheet painted\n",
                peli.raviruutu.tulos[2].teksti.c_str(), arvonta, static_cast<double>(kello.nsecsElapsed()) / 1e6);
    w.ravit()->Command(1)->click();
    w.resize(1024, 768);
}

// The draws a day would take before its events, found by playing the day on a copy of the farm and
// the generator and then putting both back.
std::vector<double> DrawsBeforeTheEvents(Peli& peli) {
    const Muuttujat farm = peli.m;
    const Näkymä view = peli.näkymä;
    const Arvonta draws = peli.arvonta;
    std::vector<double> before;
    bool reached = false;
    peli.arvonta.seuranta = [&](double r, const std::source_location& where) {
        if (std::string_view(where.file_name()).find("events/") != std::string_view::npos) reached = true;
        if (!reached) before.push_back(r);
    };
    tanhua::SeuraavaPäivä(peli);
    peli.m = farm;
    peli.näkymä = view;
    peli.arvonta = draws;
    return before;
}

// Presses of "Seuraava päivä" on which a barn fire opens the news window with its picture.
void MittaaSattumat(Näyttämö& n) {
    Peli& peli = n.peli;
    std::vector<double> ajat;
    QElapsedTimer kello;
    int paloja = 0;
    while (ajat.size() < 100) {
        if (peli.näkymä.RaporttiAuki) n.ikkuna.raportti()->Command1()->click();
        if (peli.m.Päivä < 2 || peli.m.Päivä > 28) {
            n.ikkuna.SeuraavaPäivä();
            continue;
        }
        for (double r : DrawsBeforeTheEvents(peli)) peli.arvonta.Jonoon(r);
        // No wage talks, the day's draw, number 20, the barn, its picture, loss and claim.
        for (double r : {0.5, 0.0, 19.5 / 60, 0.1, 0.7, 0.5, 0.3}) peli.arvonta.Jonoon(r);
        kello.start();
        n.ikkuna.SeuraavaPäivä();
        n.ikkuna.repaint();
        ajat.push_back(static_cast<double>(kello.nsecsElapsed()) / 1e6);
        if (n.ikkuna.uutiset()->isVisible() && peli.näkymä.IkkunaKuva == "Kuvat/sattumat/tulipalo2.jpg") ++paloja;
        peli.arvonta.TyhjennäJono();
        Aseta(peli.m.Koko_Navetta, 3000);
    }
    std::sort(ajat.begin(), ajat.end());
    std::printf("Seuraava päivä with a barn fire in the news window, %zu presses (%d fires shown):\n", ajat.size(), paloja);
    std::printf("  median %.2f ms, 95th percentile %.2f ms, slowest %.2f ms\n", ajat[ajat.size() / 2],
                ajat[ajat.size() * 95 / 100], ajat.back());
}
// The mean and the slowest of a run of timings, in milliseconds.
void Kerro(const char* mikä, std::vector<double> ajat) {
    std::sort(ajat.begin(), ajat.end());
    double summa = 0;
    for (double t : ajat) summa += t;
    std::printf("  %s: mean %.2f ms, median %.2f ms, slowest %.2f ms\n", mikä, summa / ajat.size(),
                ajat[ajat.size() / 2], ajat.back());
}

// Presses of "Seuraava päivä" with the repaint of the whole window, timed one by one; a report or news
// window a press opens is closed, as a player would close it. The month ends are kept apart as well.
struct Painallusajat {
    std::vector<double> kaikki, kuunvaihteet;
};

Painallusajat Painallukset(Näyttämö& n, int määrä) {
    Painallusajat ajat;
    QElapsedTimer kello;
    for (int päivä = 0; päivä < määrä; ++päivä) {
        kello.start();
        n.ikkuna.SeuraavaPäivä();
        n.ikkuna.repaint();
        const double ms = static_cast<double>(kello.nsecsElapsed()) / 1e6;
        ajat.kaikki.push_back(ms);
        if (n.peli.näkymä.RaporttiAuki) {
            ajat.kuunvaihteet.push_back(ms);
            n.ikkuna.raportti()->Command1()->click();
        }
        if (n.peli.näkymä.IkkunaNäkyvissä) n.ikkuna.uutiset()->Command1()->click();
    }
    std::sort(ajat.kaikki.begin(), ajat.kaikki.end());
    std::sort(ajat.kuunvaihteet.begin(), ajat.kuunvaihteet.end());
    return ajat;
}

// The mean, the median, the 95th percentile and the slowest of a year's sorted presses, and the
// month ends' median and slowest.
void KerroVuosi(const Painallusajat& ajat) {
    const std::vector<double>& a = ajat.kaikki;
    double summa = 0;
    for (double t : a) summa += t;
    std::printf("  mean %.2f ms, median %.2f ms, 95th percentile %.2f ms, slowest %.2f ms\n", summa / a.size(),
                a[a.size() / 2], a[a.size() * 95 / 100], a.back());
    if (!ajat.kuunvaihteet.empty())
        std::printf("  the %zu month ends: median %.2f ms, slowest %.2f ms\n", ajat.kuunvaihteet.size(),
                    ajat.kuunvaihteet[ajat.kuunvaihteet.size() / 2], ajat.kuunvaihteet.back());
}
}  // namespace

void MittaaTallennus(Peli& peli) {
    // Fifty years of month ends: 600 entries in each of the six chart lists.
    KäyrätRuutu& k = peli.m.Käyrät;
    for (auto* lista : {&k.LV, &k.Netto, &k.Rahatila, &k.YHTPalkat, &k.Eläimiä, &k.Rakennuksia}) {
        lista->clear();
        for (int kuukausi = 0; kuukausi < 600; ++kuukausi) lista->push_back(Str(123456.7 + kuukausi * 17));
    }
    std::vector<double> tallennus, avaus;
    QElapsedTimer kello;
    for (int kerta = 0; kerta < 50; ++kerta) {
        kello.start();
        TallennaTilanne(peli, "Mittari");
        tallennus.push_back(static_cast<double>(kello.nsecsElapsed()) / 1e6);
        kello.start();
        AvaaTilanne(peli, "Mittari");
        avaus.push_back(static_cast<double>(kello.nsecsElapsed()) / 1e6);
    }
    std::printf("A 50-year farm (600 entries in each chart list), 50 times each:\n");
    Kerro("TallennaTilanne", tallennus);
    Kerro("AvaaTilanne", avaus);
}
namespace {
// The day on a farm where every chain works: all thirteen buildings at level 5, ten workers in each
// job on overtime, every device owned and raw stock to work on for the whole year.
int MittaaJalostus(const Kansiot& kansiot) {
    Näyttämö n(kansiot);
    n.AloitaTila("Jalostus");
    Muuttujat& m = n.peli.m;
    Aseta(m.Raha, 50000000);
    Aseta(m.Koko_Varasto, 10000000);
    Aseta(m.Koko_Siilo, 1000000);
    Aseta(m.Pelto, 100);
    for (std::size_t r = 0; r < RAKENNUKSIA; ++r) {
        Aseta(m.Rak[r], 5);
        Aseta(m.Tuotanto[r], 100);
    }
    for (std::size_t t = 0; t < TYÖLÄISIÄ; ++t) {
        Aseta(m.Työ[t], 10);
        Aseta(m.Ylityö[t], true);
    }
    for (std::size_t t = 0; t < TARVIKKEITA; ++t) Aseta(m.Tarv[t], true);
    for (const Tuote raaka : {Puu, Maito, Vilja, Villa, Jauho, Muna, Liha, Marja}) Aseta(m.Var[raaka], 500000);
    Aseta(m.Var[Rehu], 500000);
    Aseta(m.El[Nauta][Naaras], 100);
    const Painallusajat ajat = Painallukset(n, 360);
    std::printf("Seuraava päivä with repaint, 360 presses with every building at level 5 and ten workers in each job:\n");
    KerroVuosi(ajat);
    return 0;
}
}  // namespace

namespace {
bool Maakuvat(Pääikkuna& w, Peli& peli, const QDir& kansio) {
    bool ok = true;
    Aseta(peli.m.Raha, 400000);
    Aseta(peli.m.Metsä, 12);
    Aseta(peli.m.Pelto, 8);
    Aseta(peli.m.Laidun, 3);
    peli.m.LantaPeltoon = true;
    Aseta(peli.m.Rak[Saha], 1);
    Aseta(peli.m.Työ[Metsuri], 2);
    Aseta(peli.m.Tähdet, 1);
    w.PalaaPääruutuun();
    w.AvaaRuutu(w.pellot());
    ValitseMaa(peli, MaaPelto);
    plus(peli);
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "39-Pellot.png");
    PellotEsc(peli);
    AvaaMetsuriValikko(peli);
    AsetaMetsitä(peli, true);
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "40-Pellot-Metsuri.png");
    PellotEsc(peli);
    // The sowing screen is closed to play; the picture is taken of it all the same.
    AvaaKylvö(peli);
    ValitseKasvi(peli, Rypsi);
    for (int i = 0; i < 3; ++i) KylvöPlus(peli);
    HyväksyKasvi(peli);
    ValitseKasvi(peli, Mansikka);
    KylvöPlus(peli);
    HyväksyKasvi(peli);
    AsetaLannoitetaan(peli, true);
    AsetaMyrkytetään(peli, true);
    w.pino()->setCurrentWidget(w.kylvö());
    w.Päivitä();
    ok &= Tallenna(&w, kansio, "41-Kylvo.png");
    PeruutaKylvö(peli);
    w.pino()->setCurrentWidget(w.pellot());
    w.pellot()->Command1()->click();
    return ok;
}

// The land's heaviest day: ten foresters with the machine in 500 ha of forest, and 10,000 ha of field
// in June, one draw a hectare.
int MittaaMaat(const Kansiot& kansiot) {
    Näyttämö n(kansiot);
    n.AloitaTila("Metsätila");
    Muuttujat& m = n.peli.m;
    Aseta(m.Raha, 50000000);
    Aseta(m.Koko_Varasto, 1000000);
    Aseta(m.Metsä, 500);
    Aseta(m.Pelto, 10000);
    Aseta(m.Työ[Metsuri], 10);
    m.Tarv[Metsäkone] = true;
    m.LantaPeltoon = true;
    Aseta(m.Var[Lanta], 100000);
    const std::vector<double> ajat = Painallukset(n, 29).kaikki;
    std::printf("Seuraava päivä with repaint, 29 June presses with 500 ha of forest, ten foresters and the machine, "
                "and 10000 ha of field:\n  median %.2f ms, slowest %.2f ms\n",
                ajat[ajat.size() / 2], ajat.back());
    return 0;
}
}  // namespace

int MittaaPäivä(const Kansiot& kansiot) {
    // The same farm's year at the canvas' own size and at a full-HD window.
    for (const QSize koko : {QSize(800, 600), QSize(1920, 1080)}) {
        // From nothing to the start screen: the window with every screen made, the settings and the
        // last save's name read, painted once.
        QElapsedTimer käynnistys;
        käynnistys.start();
        Näyttämö n(kansiot, koko);
        n.ikkuna.repaint();
        std::printf("Start to the start screen at %dx%d: %.0f ms\n", koko.width(), koko.height(),
                    static_cast<double>(käynnistys.nsecsElapsed()) / 1e6);
        n.AloitaTila("Mittari");
        Muuttujat& m = n.peli.m;
        // A thousand animals with room, feed and money enough for a year.
        Aseta(m.Raha, 5000000);
        Aseta(m.Koko_Navetta, 3000);
        Aseta(m.Koko_Siilo, 200000);
        Aseta(m.Koko_Varasto, 200000);
        Aseta(m.Var[Rehu], 150000);
        Aseta(m.El[Kana][Naaras], 500);
        Aseta(m.El[Kana][Uros], 20);
        Aseta(m.El[Nauta][Naaras], 150);
        Aseta(m.El[Nauta][Uros], 10);
        Aseta(m.El[Lammas][Naaras], 150);
        Aseta(m.El[Lammas][Uros], 10);
        Aseta(m.El[Sika][Naaras], 150);
        Aseta(m.El[Sika][Uros], 10);
        Aseta(m.Työ[Kirjanpitäjä], 1);
        // A riding stable of a hundred mares with ten masters holds lessons every day.
        Aseta(m.Rak[Rakennus::Hevostalli], 5);
        Aseta(m.Laidun, 25);
        Aseta(m.El[Hevonen][Naaras], 100);
        Aseta(m.Työ[Tallimestari], 10);
        AsetaAutomyynti(n.peli, Muna, true);
        AsetaAutomyynti(n.peli, Maito, true);
        AsetaAutomyynti(n.peli, Rehu, true);
        // Three contracts running all year on the sheep's wool, which no sale takes.
        // A stock of its own, so that no month breaks one and waits on its notice.
        for (Sopimus& s : m.Sop) s = Sopimus{"Villa", 1, 10, 40, 17};
        Aseta(m.Var[Villa], 100000);
        const Painallusajat ajat = Painallukset(n, 360);
        std::printf("Seuraava päivä with repaint at %dx%d, 360 presses on a farm of 1100 adult animals with a riding "
                    "stable (%.0f at the end):\n", koko.width(), koko.height(), Navettakuorma(m));
        KerroVuosi(ajat);
        if (koko.width() == 1920) {
            MittaaSattumat(n);
            MittaaKäyräJaKuponki(n);
            MittaaTallennus(n.peli);
        }
    }
    const int jalostus = MittaaJalostus(kansiot);
    return jalostus != 0 ? jalostus : MittaaMaat(kansiot);
}

}  // namespace tanhua::ui
