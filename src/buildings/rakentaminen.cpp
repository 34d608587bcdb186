// The building screen: choosing a target, the size steps, ordering work and the day labels.
#include "rakentaminen.h"

#include <cmath>
#include <initializer_list>
#include <string>

#include "../core/peli.h"
#include "../core/pääruutu.h"
#include "../core/viestit.h"
#include "kulut.h"

namespace tanhua {

namespace {

const KatalogiRivi& Rivi(std::size_t kohde) { return RAKENNUSKATALOGI[kohde]; }

}  // namespace

int KohdeNimellä(std::string_view nimi) {
    for (std::size_t i = 0; i < RAKENNUSKATALOGI.size(); ++i)
        if (RAKENNUSKATALOGI[i].avain == nimi) return static_cast<int>(i);
    return -1;
}

bool TähtiLukitsee(const Muuttujat& m, std::size_t kohde) {
    return m.TähtiLukitus && !OnVarastotila(kohde) && Rivi(kohde).tähdet > m.Tähdet;
}

double TilauksenHinta(const Muuttujat& m, std::size_t kohde, int askel) {
    const KatalogiRivi& r = Rivi(kohde);
    const double hinta = r.hinnat[static_cast<std::size_t>(askel)];
    if (OnVarastotila(kohde)) return hinta;
    // Each further level costs three quarters of the base price more than the last.
    const Byte taso = m.Rak[kohde];
    if (taso == 0) return hinta;
    return hinta * std::abs((taso + 1) * 0.75);
}

Integer TilauksenKesto(const Muuttujat& m, std::size_t kohde, int askel) {
    const Integer päivät = Rivi(kohde).päivät[static_cast<std::size_t>(askel)];
    // Adding to a store that is already being built takes half the days.
    if (OnVarastotila(kohde) && m.RakAika[kohde] > 0) return CInt(JakoKok(päivät, 2));
    return päivät;
}

void NäytäTyömaat(Peli& peli) {
    const Muuttujat& m = peli.m;
    RakennusRuutuTila& r = peli.rakennusruutu;
    for (std::size_t i = 0; i < TYÖMAITA; ++i) {
        if (m.RakAika[i] > 0) {
            r.päivät[i] = Luku(m.RakAika[i]) + std::string(TEKSTI_PÄIVÄÄ);
            r.päivätNäkyvät[i] = true;
        } else {
            r.päivätNäkyvät[i] = false;
            // A building's label is also emptied and turned back to black; a store's only hides.
            if (!OnVarastotila(i)) {
                r.päivät[i].clear();
                r.päivätPunaisella[i] = false;
            }
        }
    }
    for (std::size_t i = 0; i < RAKENNUKSIA; ++i) {
        if (TähtiLukitsee(m, i)) {
            r.päivät[i] = std::string(TEKSTI_LUKITTU);
            r.päivätNäkyvät[i] = true;
            r.päivätPunaisella[i] = true;
        }
    }
}

void AvaaRakennukset(Peli& peli) {
    SoitaÄäni(peli, "klik");
    const Muuttujat& m = peli.m;
    RakennusRuutuTila& r = peli.rakennusruutu;
    r.auki = true;
    r.SF = Sähkökerroin(m);
    r.VF = Vesikerroin(m);
    r.navettaz = Luku(m.Koko_Navetta);
    r.siiloz = Luku(m.Koko_Siilo);
    r.varastoz = Luku(m.Koko_Varasto);
    NäytäTyömaat(peli);
    if (m.OhjeetPäällä) r.ohje = std::string(OHJE_RAKENNUKSET);
}

void SuljeRakennukset(Peli& peli) {
    SoitaÄäni(peli, "klik");
    peli.rakennusruutu.auki = false;
}

bool TilausKäytössä(const Muuttujat& m, std::size_t kohde) {
    return OnVarastotila(kohde) || m.Rak[kohde] < SUURIN_TASO;
}

int KuvanNumero(std::size_t kohde) {
    for (std::size_t i = 0; i < TYÖMAITA; ++i)
        if (TYÖMAIDEN_JÄRJESTYS[i] == kohde) return static_cast<int>(i) + 1;
    return 0;
}

void ValitseKohde(Peli& peli, std::size_t kohde) {
    Muuttujat& m = peli.m;
    RakennusRuutuTila& r = peli.rakennusruutu;
    const KatalogiRivi& rivi = Rivi(kohde);
    SoitaÄäni(peli, "siirto");
    r.kohde = static_cast<int>(kohde);
    r.askel = 0;
    r.määrä = rivi.määrät[0];
    Aseta(r.hinta, TilauksenHinta(m, kohde, 0));
    r.Kesto = TilauksenKesto(m, kohde, 0);
    r.info = std::string(rivi.valinta);
    r.paneeli = false;
    if (OnVarastotila(kohde)) {
        r.askeleetKäytössä = true;
        r.Command2 = "Laajenna";
        r.Command2Käytössä = true;
        r.taso.clear();
    } else {
        const Byte taso = m.Rak[kohde];
        r.askeleetKäytössä = false;
        r.Command2 = taso == 0 ? "Rakenna" : "Laajenna";
        r.Command2Käytössä = TilausKäytössä(m, kohde);
        r.taso = Luku(taso) + " / 5";
        r.paneeli = taso > 0;
        // A new building starts at full output: choosing it unbuilt sets its percentage.
        if (taso == 0 && RAKENNUSTAULU[kohde].tuotanto) Aseta(m.Tuotanto[kohde], 100);
    }
    if (m.RakAika[kohde] > 0) {
        r.info = std::string(TEKSTI_RAKENTEILLA);
        r.paneeli = false;
    }
}

void AskelMäärä(Peli& peli, int delta) {
    const Muuttujat& m = peli.m;
    RakennusRuutuTila& r = peli.rakennusruutu;
    if (r.kohde < 0) return;
    const std::size_t kohde = static_cast<std::size_t>(r.kohde);
    if (delta != 0) {
        if (!r.askeleetKäytössä) return;
        const int uusi = r.askel + (delta > 0 ? 1 : -1);
        // The row has no step beyond its ends: such a press does nothing.
        if (uusi < 0 || uusi >= Rivi(kohde).askelia) return;
        SoitaÄäni(peli, "siirto");
        r.askel = uusi;
        r.määrä = Rivi(kohde).määrät[static_cast<std::size_t>(uusi)];
        Aseta(r.hinta, TilauksenHinta(m, kohde, uusi));
    }
    r.Kesto = TilauksenKesto(m, kohde, r.askel);
}

void TilaaKohde(Peli& peli) {
    Muuttujat& m = peli.m;
    RakennusRuutuTila& r = peli.rakennusruutu;
    if (r.kohde < 0 || !r.Command2Käytössä) return;
    const std::size_t kohde = static_cast<std::size_t>(r.kohde);

    // Exactly enough money is enough.
    if (r.hinta > m.Raha) {
        Kieltäydy(peli, Rivitä({"Rahasi eivät riitä!", "", "Rahatilanteesi on " + Str(m.Raha),
                               "Rakennus maksaa " + Str(r.hinta),
                               // The shortfall is worked in double precision and told unnarrowed.
                               "Sinulta puuttuu " + Str(static_cast<double>(r.hinta) - static_cast<double>(m.Raha))}));
        return;
    }
    SoitaÄäni(peli, "siirto");
    const Integer määrä = r.määrä;

    if (OnVarastotila(kohde)) {
        // A store's orders stack: the days and the size add to a running order.
        Lisää(m.RakAika[kohde], r.Kesto);
        Lisää(m.RakTilaus[kohde], määrä);
    } else {
        // The stable stands on pasture, so no pasture is told before any lock.
        if (kohde == Hevostalli && m.Laidun == 0) {
            Kieltäydy(peli, Rivitä({"Et voi rakentaa hevostallia!", "", "Sinulla ei ole laidunaluetta hevosille.",
                                   "Hevostallisi rakennetaan laitumelle ja tarvitset siihen laidunaluetta."}));
            return;
        }
        if (r.päivät[kohde] == TEKSTI_LUKITTU) {
            const std::string syy =
                m.Tähdet == 0 ? std::string("Et ole saavuttanut vielä yhtään tähteä tilallesi ja tämän takia kohde on lukittu.")
                              : "Tilasi on vasta " + Str(m.Tähdet) + " tähden tila ja tämän takia kohde on lukittu.";
            Ilmoita(peli, Rivitä({"Et voi rakentaa lukittua rakennusta!",
                                 syy + "Laajentamalla tilaasi saavutat tarvittavat tähdet, jotta saat poistettua lukituksen."}));
            return;
        }
        // One work order at a time on a building.
        if (m.RakAika[kohde] > 0) {
            r.info = std::string(TEKSTI_PARHAILLAAN);
            Kieltäydy(peli, Rivitä({"Olet jo antanut työmääräyksen laajentaa rakennustasi!", "",
                                   "Et voi laajentaa enempää, kunnes edellinen laajennus on valmis.",
                                   "Kun päivät ovat kuluneet nollaan, on rakennus valmis ja voit taas aloittaa laajentamisen.",
                                   "Huomioi, että lautojen toimittaminen rakennukselle nopeuttaa prosessia.", ""}));
            return;
        }
        Lisää(m.RakAika[kohde], r.Kesto);
        Lisää(m.RakTilaus[kohde], määrä);
        // The packing plant starts from its opening figures as soon as it is ordered.
        if (kohde == Pakkaamo) {
            Aseta(m.PakkaamoMax, 1000);
            Aseta(m.PakkaamoKerroin, 0.1);
        }
    }

    Lisää(m.Raha, -static_cast<double>(r.hinta));
    // A tenth of every building order is deducted from the month's taxable income.
    Lisää(m.Verovähennykset, JakoKok(r.hinta, 10));

    r.info = std::string(TEKSTI_RAKENTEILLA);
    r.paneeli = false;
    NäytäTyömaat(peli);
    NäytäRaha(peli);
    AskelMäärä(peli, 0);
}

bool TuotantoNäkyy(const Peli& peli) {
    const int kohde = peli.rakennusruutu.kohde;
    if (kohde < 0 || OnVarastotila(static_cast<std::size_t>(kohde))) return false;
    return RAKENNUSTAULU[kohde].tuotanto && peli.m.Rak[kohde] > 0;
}

void AsetaTuotanto(Peli& peli, int arvo) {
    if (!TuotantoNäkyy(peli) || arvo < 0 || arvo > TUOTANTO_ASKELIA) return;
    Aseta(peli.m.Tuotanto[peli.rakennusruutu.kohde], 10 * arvo);
}

}  // namespace tanhua
