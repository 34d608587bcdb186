// The contracts screen: a call to a buyer with its terms drawn there and then, the answer, the
// three slots and the cancelling of a contract.
#include "../core/peli.h"
#include "../core/pääruutu.h"
#include "../core/viestit.h"
#include "../core/vikatila.h"
#include "sopimukset.h"

namespace tanhua {

namespace {

std::string Teksti(std::string_view t) { return std::string(t); }

// The slots' sheet shown afresh: nothing chosen for cancelling.
void PäivitäPaikat(SopimusRuutuTila& r) {
    r.Peruttava.clear();
    r.peruttavaPaikka = -1;
    r.peruttavaSakko = 0;
}

}  // namespace

void LopetaPuhelu(SopimusRuutuTila& r) {
    r.Puhelussa = false;
    r.indeksi = -1;
    r.tuote.clear();
    r.A = r.H = r.P = r.K = 0;
    r.infoa.clear();
}

void PoistaTarjous(Peli& peli, std::size_t indeksi) {
    auto& lista = peli.näkymä.Sopimuksia;
    if (indeksi >= lista.size()) return;
    lista.erase(lista.begin() + static_cast<std::ptrdiff_t>(indeksi));
    SopimusRuutuTila& r = peli.sopimusruutu;
    if (!r.Puhelussa) return;
    if (r.indeksi == static_cast<int>(indeksi)) LopetaPuhelu(r);
    else if (r.indeksi > static_cast<int>(indeksi)) --r.indeksi;
}

Ehdot ArvoEhdot(Peli& peli, const TarjousRivi& rivi) {
    const Muuttujat& m = peli.m;
    Arvonta& arvonta = peli.arvonta;
    const double a0 = PerusMäärä(m, rivi);
    const double u0 = Yksikköhinta(m, rivi.tuote);
    Ehdot e;
    // The buyer wants 0.5 to 1.7 times the base amount and pays 0.5 to 1.6 times the market price,
    // both stored whole (a half to the even one) and at least 1.
    Long a = CLng(static_cast<double>(arvonta.U(5, 17)) * 0.1 * a0);
    Long v = CLng(static_cast<double>(arvonta.U(5, 16)) * 0.1 * u0);
    if (v < 1) v = 1;
    if (a < 1) a = 1;
    // The penalty is worked in 32 bits, left to right, as 2v x 2a x 30 \ 3: a farm big enough to pass
    // the range raises failure 6 here, before any more is drawn.
    Long t = CLng(2.0 * v);
    t = CLng(t * 2.0);
    t = CLng(static_cast<double>(t) * a);
    t = CLng(t * 30.0);
    e.P = JakoKok(t, 3);
    e.K = CLng(static_cast<double>(arvonta.U(6, 17)));
    e.ostaja1 = Teksti(OSTAJA_ALKU[static_cast<std::size_t>(arvonta.U(0, 5))]);
    e.ostaja2 = Teksti(OSTAJA_LOPPU[static_cast<std::size_t>(arvonta.U(0, 4))]);
    // Thirty days of a, and up to a tenth of a day more; the pay is the price of the whole amount
    // and a small extra.
    e.A = CLng(Int(a * 0.1 * arvonta.r()) + 30.0 * a);
    e.H = CLng(Int(v * 0.1 * arvonta.r()) + static_cast<double>(v) * e.A);
    return e;
}

std::string Tarjousteksti(const Muuttujat& m, const TarjousRivi& rivi, const Ehdot& e) {
    const std::string& w2 = e.ostaja2;
    const std::string tuote(rivi.teksti);
    std::string t = e.ostaja1 + " " + w2 + " on valmis tekemään kanssasi " + tuote + "-sopimuksen. " + w2 +
                    " haluaa, että tuotat kuukaudessa " + Str(e.A) + " kyseistä tuotetta. " + w2 +
                    " on valmis maksamaan sinulle " + Str(e.H) +
                    "/kk kyseisestä tuotannosta. Jos et pysty tuottamaan määräajassa sovittua määrää tuotteita, tai "
                    "purat sopimuksen joudut maksamaan sopimus sakkoa " +
                    Str(e.P) + ". Jos taas pystyt tuottamaan koko " + Str(e.K) + " kuukauden ajan tuotetta maksaa " +
                    w2 + " sinulle " + Str(Bonus(e.P)) + " bonusta .Sopimuksen kesto on " + Str(e.K) + " kk.";
    const Single varasto = m.Var[rivi.tuote];
    t += "\r\n\r\nSinulla on varastossa tuotetta " + Str(varasto) + " kpl.";
    const int päiviä = 30 - m.Päivä;
    if (static_cast<double>(varasto) < e.A && päiviä > 1)
        t += "\r\nSinulla on " + Str(päiviä) + " päivää aikaa saada " + Str(CSng(e.A - static_cast<double>(varasto))) +
             " tuotetta, ennen sopimuksen alkamista.";
    return t;
}

std::string Kuukausiluku(Long luku) { return std::to_string(luku) + (luku > 0 ? " /KK" : ""); }

std::string Kestoteksti(Long kesto) {
    if (kesto == 0) return "0";
    if (kesto < 12) return std::to_string(kesto) + " kk";
    // A year exactly is "1 v " with its blank and nothing after it.
    if (kesto == 12) return "1 v ";
    return "1 v " + std::to_string(kesto - 12) + " kk";
}

void AvaaSopimukset(Peli& peli) {
    SoitaÄäni(peli, "klik");
    peli.näkymä.Puhelin = false;
    peli.sopimusruutu.auki = true;
}

bool SuljeSopimukset(Peli& peli) {
    SopimusRuutuTila& r = peli.sopimusruutu;
    // A call can only end in an answer.
    if (r.Puhelussa) {
        Kieltäydy(peli, Teksti(sopimusteksti::Yhteydessä));
        return false;
    }
    SoitaÄäni(peli, "klik");
    r.auki = false;
    return true;
}

void ValitseTarjous(Peli& peli, int indeksi) {
    SopimusRuutuTila& r = peli.sopimusruutu;
    const auto& lista = peli.näkymä.Sopimuksia;
    if (indeksi < 0 || indeksi >= static_cast<int>(lista.size())) return;
    SoitaÄäni(peli, "siirto");
    if (r.Puhelussa) {
        // Another buyer must wait; the same one is already on the line.
        if (indeksi != r.indeksi) Kieltäydy(peli, Teksti(sopimusteksti::Yhteydessä));
        return;
    }
    const std::string tuote = lista[static_cast<std::size_t>(indeksi)];
    const auto rivi = TarjousNimellä(tuote);
    if (!rivi) return;
    // A failure while the terms are drawn (a farm too big for 32 bits) is reported once and leaves no
    // call open: the terms are stored only when every one of them was drawn.
    Vartioitu(peli, "", {[&] {
                  const Ehdot e = ArvoEhdot(peli, *rivi);
                  r.infoa = Tarjousteksti(peli.m, *rivi, e);
                  r.tuote = tuote;
                  r.A = e.A;
                  r.H = e.H;
                  r.P = e.P;
                  r.K = e.K;
                  r.indeksi = indeksi;
                  r.Puhelussa = true;
              }});
}

void HyväksyTarjous(Peli& peli) {
    SopimusRuutuTila& r = peli.sopimusruutu;
    SoitaÄäni(peli, "klik");
    if (!r.Puhelussa) return;
    Sopimus* vapaa = nullptr;
    for (Sopimus& s : peli.m.Sop)
        if (s.Tuote.empty()) {
            vapaa = &s;
            break;
        }
    // The call stays open: the player may still reject.
    if (vapaa == nullptr) {
        Kieltäydy(peli, Teksti(sopimusteksti::KolmeJo));
        return;
    }
    *vapaa = Sopimus{r.tuote, r.A, r.H, r.P, r.K};
    Ilmoita(peli, "Teit juuri " + r.tuote + " sopimuksen.");
    PoistaTarjous(peli, static_cast<std::size_t>(r.indeksi));
    PäivitäPaikat(r);
}

void HylkääTarjous(Peli& peli) {
    SopimusRuutuTila& r = peli.sopimusruutu;
    SoitaÄäni(peli, "klik");
    // A rejection is free.
    if (r.Puhelussa) PoistaTarjous(peli, static_cast<std::size_t>(r.indeksi));
}

void UudetSopimukset(Peli& peli) {
    SopimusRuutuTila& r = peli.sopimusruutu;
    r.Tarjouslappu = true;
    // During a call the labels keep the buyer's terms.
    if (!r.Puhelussa)
        r.infoa = Teksti(peli.näkymä.Sopimuksia.empty() ? sopimusteksti::EiTarjouksia : sopimusteksti::Tarjouksia);
}

void NäytäSopimukset(Peli& peli) {
    peli.sopimusruutu.Sopimuslappu = true;
    PäivitäPaikat(peli.sopimusruutu);
}

void SuljeTarjoukset(Peli& peli) {
    SopimusRuutuTila& r = peli.sopimusruutu;
    if (r.Puhelussa) {
        Kieltäydy(peli, Teksti(sopimusteksti::Parhaillaan));
        return;
    }
    r.Tarjouslappu = false;
}

void SuljeSopimuslappu(Peli& peli) { peli.sopimusruutu.Sopimuslappu = false; }

void ValitsePeruttava(Peli& peli, int paikka) {
    SopimusRuutuTila& r = peli.sopimusruutu;
    if (paikka < 0 || paikka >= SOPIMUSPAIKKOJA) return;
    SoitaÄäni(peli, "siirto");
    // The penalty of the call and the one of the contract to cancel are never mixed.
    if (r.Puhelussa) {
        Kieltäydy(peli, Teksti(sopimusteksti::Parhaillaan));
        return;
    }
    const Sopimus& s = peli.m.Sop[static_cast<std::size_t>(paikka)];
    r.Peruttava = s.Tuote;
    r.peruttavaPaikka = s.Tuote.empty() ? -1 : paikka;
    r.peruttavaSakko = s.Sakko;
}

void PeruSopimus(Peli& peli) {
    SopimusRuutuTila& r = peli.sopimusruutu;
    Muuttujat& m = peli.m;
    SoitaÄäni(peli, "klik");
    if (r.Puhelussa) {
        Kieltäydy(peli, Teksti(sopimusteksti::Parhaillaan));
        return;
    }
    if (r.Peruttava.empty() || r.peruttavaPaikka < 0) return;
    Sopimus& s = m.Sop[static_cast<std::size_t>(r.peruttavaPaikka)];
    // The chosen contract has ended since it was clicked: there is nothing left to cancel.
    if (s.Tuote != r.Peruttava || s.Sakko != r.peruttavaSakko) {
        PäivitäPaikat(r);
        return;
    }
    SoitaÄäni(peli, "virhe");
    if (!KysyKyllä(peli, "Olet perumassa " + r.Peruttava +
                             "-sopimusta. Tämä tarkoittaa sitä, että sinun on maksettava rikkomissakkoa " +
                             Str(r.peruttavaSakko) + ". Oletko varma sopimuksen perumisesta ?"))
        return;
    // The month's contract money isn't touched: a cancelling is paid from cash alone.
    Lisää(m.Raha, -static_cast<double>(r.peruttavaSakko));
    s = Sopimus{};
    Lisää(m.SopimuksiaEpä, 1);
    PäivitäPaikat(r);
    NäytäRaha(peli);
}

}  // namespace tanhua
