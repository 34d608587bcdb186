// The product screen: opening it, the product card, selling by hand, buying feed, the settings
// of the accountant's panel and the hints.
#include <string>

#include "../core/peli.h"
#include "../core/perushinnat.h"
#include "../core/viestit.h"
#include "../core/vikatila.h"
#include "../storage/tiedostot.h"
#include "myynti.h"
#include "taulut/tuoteruutu.h"

namespace tanhua {

namespace {

using namespace tuoteruutu;

constexpr std::string_view KUVAN_LATAUS = "Tuotteiden kuvan lataus";

int Vuodenajan(const Muuttujat& m) {
    for (std::size_t i = 0; i < VUODENAJAT.size(); ++i)
        if (m.Vuodenaika == VUODENAJAT[i]) return static_cast<int>(i);
    return -1;
}

std::string Etumerkillä(int lisä) { return lisä > 0 ? "+" + std::to_string(lisä) : std::to_string(lisä); }

// Draws the card of product k from the record as it stands now.
void PiirräKortti(Peli& peli, Tuote k) {
    const Muuttujat& m = peli.m;
    TuoteRuutuTila& r = peli.tuoteruutu;
    const int lisä = KortinLisä(m, k);
    r.tuote = static_cast<int>(k);
    r.akkuna = true;
    r.nimi = std::string(TUOTETAULU[k].nimi);
    r.hinta = m.PerusHinta[k];
    r.kurssi = m.Kurssi[k];
    r.vAika = Etumerkillä(lisä);
    r.yhinta = static_cast<double>(r.hinta) + r.kurssi + lisä;
    r.kpl = m.Var[k];
    if (k == Rehu)
        r.Yhthinta = Round(r.yhinta * (static_cast<double>(m.Koko_Siilo) - m.Var[Rehu]));
    else if (k == Lanta)
        r.Yhthinta = (static_cast<double>(r.hinta) + r.kurssi) * r.kpl;  // the total goes by the market price
    else
        r.Yhthinta = r.yhinta * r.kpl;
    if (r.Yhthinta < 0) r.Yhthinta = 0;
    r.ostaKäytössä = k == Rehu;
    r.lisäasetusNäkyy = false;
    r.lisäasetusTeksti.clear();
    if (k == Lanta) {
        r.lisäasetusNäkyy = true;
        r.lisäasetusTeksti = std::string(LISÄ_LANTA);
        r.lisäasetus = m.LantaPeltoon;
    } else if (k == Lauta && m.Työ[Kirvesmies] > 0) {
        r.lisäasetusNäkyy = true;
        r.lisäasetusTeksti = std::string(LISÄ_LAUTA);
        r.lisäasetus = m.LautaRakennukseen;
    }
}

// After a sale or a purchase the card's stock and total read 0 until it is opened again.
void NollaaKortti(TuoteRuutuTila& r) {
    r.kpl = 0;
    r.Yhthinta = 0;
}

// The packing plant takes a hand sale while it is under its month's limit.
void PakkaamonOsuus(Muuttujat& m, double summa, double määrä) {
    if (m.PakkaamoKäsitelty < m.PakkaamoMax) {
        Lisää(m.PakkaamoTulot, summa * m.PakkaamoKerroin);
        Lisää(m.PakkaamoKäsitelty, määrä);
    }
}

// a / b as the game divides: failure 11 for a zero divisor.
double Jaa(double a, double b) {
    if (b == 0) NostaVika(VIKA_NOLLAJAKO);
    return a / b;
}

}  // namespace

int TuoteNimellä(const std::string& nimi) {
    for (std::size_t k = 0; k < TUOTTEITA; ++k)
        if (nimi == TUOTETAULU[k].avain || nimi == TUOTETAULU[k].nimi) return static_cast<int>(k);
    return -1;
}

int Kausilisä(const Muuttujat& m, Tuote k) {
    const int kausi = Vuodenajan(m);
    return kausi < 0 ? 0 : KAUSILISÄT[k][static_cast<std::size_t>(kausi)];
}

int KortinLisä(const Muuttujat& m, Tuote k) {
    if (k != Lanta) return Kausilisä(m, k);
    const int kausi = Vuodenajan(m);
    return kausi < 0 ? 0 : LANTAKORTIN_LISÄ[static_cast<std::size_t>(kausi)];
}

void AvaaTuotteet(Peli& peli) {
    TuoteRuutuTila& r = peli.tuoteruutu;
    SoitaÄäni(peli, "klik");
    r.auki = true;
    PerusHinnat(peli);
    PäivitäTuotteet(peli);
    r.kirjanpitäjäKuva = peli.m.Työ[Kirjanpitäjä] > 0;
    if (!r.kirjanpitäjäKuva) r.taulu = false;
    for (const TuoteRivi& tuote : TUOTETAULU) {
        OmallaLaatikolla(
            peli, KUVAN_LATAUS,
            [&] {
                if (!EtsiTiedosto(peli.kansiot.ohjelma, "Kuvat/tuotteet/" + std::string(tuote.kuva)))
                    NostaVika(VIKA_EI_TIEDOSTOA);
            },
            [](const Vika&) { return std::string("Tuotteiden kuvien latauksessa ongelma. Kuvaa ei löytynyt"); });
    }
    r.aihe = std::string(AIHE_RUUTU);
    if (peli.m.OhjeetPäällä) r.ohje = std::string(OHJE_TERVETULOA);
}

void PäivitäTuotteet(Peli& peli) {
    Muuttujat& m = peli.m;
    for (std::size_t k = 0; k < TUOTTEITA; ++k) {
        if (m.Var[k] < 0) Aseta(m.Var[k], 0);
        peli.tuoteruutu.varasto[k] = m.Var[k];
    }
}

void AvaaTuote(Peli& peli, Tuote k) {
    SoitaÄäni(peli, "siirto");
    PiirräKortti(peli, k);
}

void MyyKaikki(Peli& peli) {
    TuoteRuutuTila& r = peli.tuoteruutu;
    if (r.tuote < 0) return;
    Muuttujat& m = peli.m;
    const Tuote k = static_cast<Tuote>(r.tuote);
    SoitaÄäni(peli, "klik");
    if (k == Rehu) {
        // Feed is sold by the silo's content, not by the card's total (which is the cost of filling it).
        const double summa = r.yhinta * m.Var[Rehu];
        Lisää(m.Tulo[Rehu], summa);
        Lisää(m.Raha, summa);
        Lisää(m.Liikevaihto, summa);
        Aseta(m.Var[Rehu], 0);
        PiirräKortti(peli, Rehu);
        PäivitäTuotteet(peli);
        return;
    }
    const double summa = r.Yhthinta;
    const double määrä = m.Var[k];
    Lisää(m.Tulo[k], summa);
    Aseta(m.Var[k], 0);
    Lisää(m.Liikevaihto, summa);
    Lisää(m.Raha, summa);
    PakkaamonOsuus(m, summa, määrä);
    NollaaKortti(r);
    PäivitäTuotteet(peli);
}

void MyyPuolet(Peli& peli) {
    TuoteRuutuTila& r = peli.tuoteruutu;
    if (r.tuote < 0) return;
    Muuttujat& m = peli.m;
    const Tuote k = static_cast<Tuote>(r.tuote);
    if (k == Rehu) {
        if (m.Var[Rehu] == 0) return;
        SoitaÄäni(peli, "klik");
        const Long jää = JakoKok(CLng(m.Var[Rehu]), 2);
        const double summa = r.yhinta * jää;
        Lisää(m.Tulo[Rehu], summa);
        Lisää(m.Raha, summa);
        Lisää(m.Liikevaihto, summa);
        Aseta(m.Var[Rehu], jää);
    } else {
        if (r.Yhthinta == 0) return;
        SoitaÄäni(peli, "klik");
        const Long summa = JakoKok(CLng(r.Yhthinta), 2);
        Lisää(m.Liikevaihto, summa);
        Lisää(m.Raha, summa);
        Lisää(m.Tulo[k], summa);
        // Half a sale fills the packing plant's limit but earns it nothing.
        Lisää(m.PakkaamoKäsitelty, JakoKok(CLng(r.kpl), 2));
        Aseta(m.Var[k], JakoKok(CLng(m.Var[k]), 2));
    }
    PiirräKortti(peli, k);
    PäivitäTuotteet(peli);
}

void OstaRehua(Peli& peli) {
    TuoteRuutuTila& r = peli.tuoteruutu;
    if (r.tuote < 0 || r.Yhthinta == 0) return;
    if (r.tuote != Rehu) {
        Kieltäydy(peli, "Et voi ostaa, kuin rehua");
        return;
    }
    Muuttujat& m = peli.m;
    const double hinta = r.yhinta;
    const double tilaa = static_cast<double>(m.Koko_Siilo) - m.Var[Rehu];
    if (hinta * tilaa > m.Raha) {
        if (hinta > m.Raha) {
            Kieltäydy(peli, "Rahatilanteesi on " + Str(m.Raha) + ". Sinulla ei ole varaa");
            return;
        }
        // What the cash buys; the change is lost, and the counters fall by the kilos bought.
        SoitaÄäni(peli, "klik");
        const double kilot = Int(Jaa(m.Raha, hinta));
        Lisää(m.Var[Rehu], kilot);
        Aseta(m.Raha, 0);
        Lisää(m.Liikevaihto, -kilot);
        Lisää(m.Tulo[Rehu], -kilot);
    } else if (m.Var[Rehu] >= m.Koko_Siilo) {
        SoitaÄäni(peli, "virhe");
        peli.kanavat.Laatikko("Normaali osto");
        Ilmoita(peli, "Sinulla ei ole tilaa siilossa");
        return;
    } else {
        SoitaÄäni(peli, "klik");
        const double hintaYht = hinta * tilaa;
        Lisää(m.Raha, -hintaYht);
        Lisää(m.Liikevaihto, -hintaYht);
        Lisää(m.Tulo[Rehu], -hintaYht);
        Aseta(m.Var[Rehu], m.Koko_Siilo);
    }
    NollaaKortti(r);
    PäivitäTuotteet(peli);
}

void Tuotelisäasetus(Peli& peli, bool päällä) {
    TuoteRuutuTila& r = peli.tuoteruutu;
    if (!r.akkuna || !r.lisäasetusNäkyy) return;
    r.lisäasetus = päällä;
    if (r.tuote == Lanta) peli.m.LantaPeltoon = päällä;
    else if (r.tuote == Lauta) peli.m.LautaRakennukseen = päällä;
}

void KirjanpitäjäKuva(Peli& peli) {
    TuoteRuutuTila& r = peli.tuoteruutu;
    if (!r.kirjanpitäjäKuva) return;
    r.taulu = !r.taulu;
}

void AsetaAutomyynti(Peli& peli, Tuote k, bool päällä) { Aseta(peli.m.Tuotteet.Myy[k], päällä ? 1 : 0); }

void KäännäTyyli(Peli& peli, Tuote k) {
    std::string& tyyli = peli.m.Tuotteet.MyyTyyli[k];
    tyyli = tyyli == "Kaikki" ? "Puolet" : "Kaikki";
}

void AsetaMyyntiaika(Peli& peli, int rulla) { Aseta(peli.m.Tuotteet.rulla, rulla == 0 ? 0 : 1); }

void OsoitinTuoteruudulla(Peli& peli, TuoteKohde kohde, int k) {
    TuoteRuutuTila& r = peli.tuoteruutu;
    const bool ohjeet = peli.m.OhjeetPäällä;
    auto ohje = [&](std::string_view teksti) {
        if (ohjeet) r.ohje = std::string(teksti);
    };
    switch (kohde) {
        case TuoteKohde::Ruutu:
            r.aihe = std::string(AIHE_RUUTU);
            break;
        case TuoteKohde::Kuva:
            if (k < 0 || k >= static_cast<int>(TUOTTEITA)) return;
            r.aihe = std::string(AIHEET[static_cast<std::size_t>(k)]);
            ohje(OHJE_KUVAT);
            break;
        case TuoteKohde::KirjanpitäjäKuva:
            r.aihe = std::string(AIHE_KIRJANPITÄJÄ);
            ohje(OHJE_KIRJANPITÄJÄ);
            break;
        case TuoteKohde::Command2: ohje(OHJE_COMMAND2); break;
        case TuoteKohde::Command6: ohje(OHJE_COMMAND6); break;
        case TuoteKohde::Command3: ohje(OHJE_COMMAND3); break;
        case TuoteKohde::Command1: ohje(OHJE_COMMAND1); break;
    }
}

bool TuotteetEsc(Peli& peli) {
    TuoteRuutuTila& r = peli.tuoteruutu;
    if (r.akkuna || r.taulu) {
        r.akkuna = false;
        r.taulu = false;
        return false;
    }
    SuljeTuotteet(peli);
    return true;
}

void SuljeTuotteet(Peli& peli) {
    TuoteRuutuTila& r = peli.tuoteruutu;
    SoitaÄäni(peli, "klik");
    r.auki = false;
    r.akkuna = false;
    r.taulu = false;
}

}  // namespace tanhua
