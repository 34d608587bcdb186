// The start screen's rules: start-up, the start values of a new farm and the load sequence.
#include "alku.h"

#include "../animals/eläimet.h"
#include "../finance/pankki.h"
#include "../market/markkinat.h"
#include "../storage/asetukset.h"
#include "../storage/tallennus.h"
#include "../storage/tiedostot.h"
#include "päivä.h"
#include "taulut/taustat.h"
#include "peli.h"
#include "musiikki.h"
#include "perushinnat.h"
#include "pääruutu.h"
#include "sää.h"
#include "viestit.h"
#include "vikatila.h"

namespace tanhua {

namespace {
// The start sizes and sums by difficulty.
struct Alkuarvot {
    double raha, navetta, siilo, varasto, rehu;
};
inline constexpr std::array<Alkuarvot, 3> ALKUARVOT{
    Alkuarvot{15000, 7, 150, 150, 50},  // 0 Helppo
    Alkuarvot{10000, 6, 100, 100, 40},  // 1 Normaali
    Alkuarvot{8000, 5, 50, 50, 30},     // 2 Vaikea
};
inline constexpr const char* SALAINEN_NIMI = "kultaorsi";


void Tikki(Peli& peli, int askel) {
    peli.alku.palkki += askel;
    peli.kanavat.Lataus(peli.alku.Texti, peli.alku.palkki);
}
void Texti(Peli& peli, const char* teksti) {
    peli.alku.Texti = teksti;
    peli.kanavat.Lataus(peli.alku.Texti, peli.alku.palkki);
}

void AsetaPalkatJaLihat(Muuttujat& m) {
    for (std::size_t k = 0; k < TYÖLÄISIÄ; ++k) Aseta(m.PerusPalkka[k], TYÖLÄISTAULU[k].perusPalkka);
    for (std::size_t laji = 0; laji < LAJEJA; ++laji) {
        Aseta(m.Lihaa[laji][0], LAJITAULU[laji].lihaaNaaras);
        Aseta(m.Lihaa[laji][1], LAJITAULU[laji].lihaaUros);
    }
}
}  // namespace

int LatauksenTauko(const Asetukset& asetukset) {
    return asetukset.Prosessorisäästö ? 15 - JakoKok(asetukset.AnimNopeus, 10) : 0;
}

void AlkuLataus(Peli& peli) {
    Vartioitu(peli, paikka::AlkuLataus, {
        [&] { Aseta(peli.m.Versio, VERSIO); },
        [&] { LueSavetus(peli); },
        [&] { peli.alku.Command2 = !peli.alku.Viime.empty(); },
        [&] { peli.alku.Lista = 0; },
        [&] { LueAsetukset(peli); },
    });
    peli.m.VikaLaskuri = 0;
}

void NostaVaikeustasoa(Peli& peli) {
    if (peli.alku.VTaso < 2) ++peli.alku.VTaso;
}
void LaskeVaikeustasoa(Peli& peli) {
    if (peli.alku.VTaso > 0) --peli.alku.VTaso;
}

bool AloitaUusi(Peli& peli) {
    bool aloitettu = false;
    Vartioitu(peli, paikka::AlkuCommand1, {
        [&] {
            if (peli.alku.Nimesi.empty()) {
                Kieltäydy(peli, "Et voi aloittaa uutta tilannetta, ennenkuin kirjoitat nimesi.");
                return;
            }
            peli.alku.LatausNäkyvissä = true;
            if (peli.alku.Ohjeita) peli.m.OhjeetPäällä = true;
            UusiTilanneLataus(peli);
            aloitettu = true;
        },
    });
    return aloitettu;
}

void UusiTilanneLataus(Peli& peli) {
    Muuttujat& m = peli.m;
    AlkuRuutu& a = peli.alku;
    a.palkki = 50;
    KäynnistäSoitinKerran(peli);
    Vartioitu(peli, paikka::AlkuTimer1, {
        [&] {
            Texti(peli, "Ladataan alkumääreitä");
            m.PelaajanNimi = a.Nimesi;
        },
        [&] {
            Tikki(peli, 120);
            m.PeliMoodi = PELIMOODIT.at(a.Lista);
            Aseta(m.Vaikeustaso, a.VTaso);
            Aseta(m.Raha, ALKUARVOT.at(a.VTaso).raha);
            if (PienetKirjaimet(m.PelaajanNimi) == SALAINEN_NIMI) Aseta(m.Raha, 10000000);
        },
        [&] {
            Tikki(peli, 120);
            Aseta(m.Päivä, 1);
            Aseta(m.Kuukausi, 6);
            Aseta(m.Vuosi, 1980);
            AsetaVuodenaika(m);
            Aseta(m.Lämpötila, 20);
            const Alkuarvot& alku = ALKUARVOT.at(m.Vaikeustaso);
            Aseta(m.Koko_Navetta, alku.navetta);
            Aseta(m.Koko_Siilo, alku.siilo);
            Aseta(m.Koko_Varasto, alku.varasto);
            Aseta(m.MetsääJäljellä, 100);
            Aseta(m.Tähdet, 0);
        },
        [&] {
            Tikki(peli, 120);
            m.TähtiLukitus = a.TP_Valinta;
        },
        [&] {
            Tikki(peli, 120);
            AsetaPalkatJaLihat(m);
            // The tanner's wage stays 0 until the kind is first chosen on the staff screen.
            for (std::size_t k = 0; k < TYÖLÄISIÄ; ++k)
                if (k != Nahkuri) m.Palkka[k] = m.PerusPalkka[k];
            PerusHinnat(peli);
        },
        [&] {
            Tikki(peli, 120);
            Aseta(m.Pelto, 0);
            Aseta(m.Metsä, 0);
            Aseta(m.Var[Rehu], ALKUARVOT.at(m.Vaikeustaso).rehu);
            Aseta(m.Hevostalli_rulla, 2);
            Aseta(m.TuntiHinta, 60);
            m.Käyrät.Rahatila.push_back(Str(m.Raha));
            Aseta(m.PakkaamoKerroin, 1);
        },
        [&] {
            Tikki(peli, 120);
            Texti(peli, "Ladataan pörssikurssit");
            EnsimmäinenKurssi(peli);
        },
        [&] {
            Tikki(peli, 120);
            if (peli.asetukset.Kursorit) Texti(peli, "Ladataan kursorit");
        },
        [&] {
            Tikki(peli, 120);
            Keli(peli);
        },
        [&] {
            Tikki(peli, 120);
            Texti(peli, "Ladataan nappi textuurit");
        },
        [&] {
            Tikki(peli, 120);
            Texti(peli, "Ladataan taustakuvat");
            for (std::size_t i = 0; i < TAUSTAKUVAT.size() + 2 * LAJEJA; ++i) Tikki(peli, 120);
        },
        [&] {
            Tikki(peli, 120);
            Texti(peli, "Avataan uusi tilanne");
            AloitaMusiikki(peli);
        },
        [&] {
            a.LatausNäkyvissä = false;
            peli.käynnissä = true;
            EläintenKunto(peli);
            PäivitäVakuutus(peli);
            Päivitälukemat(peli);
            m.VikaLaskuri = 0;
        },
    });
}

bool JatkaTilannetta(Peli& peli) {
    Muuttujat& m = peli.m;
    AlkuRuutu& a = peli.alku;
    a.LatausNäkyvissä = true;
    KäynnistäSoitinKerran(peli);
    AsetaPalkatJaLihat(m);
    Texti(peli, "Jatketaan edellistä..");
    Aseta(m.PakkaamoMax, 1000);
    Aseta(m.PakkaamoKerroin, 0.1);
    m.VikaLaskuri = 0;
    const bool avattu = AvaaTilanne(peli, a.Viime) && m.VikaLaskuri == 0;
    if (avattu) {
        PerusHinnat(peli);
        AloitaMusiikki(peli);
        AsetaVuodenaika(m);
        Keli(peli);
        PäivitäVakuutus(peli);
        a.LatausNäkyvissä = false;
        peli.käynnissä = true;
        Päivitälukemat(peli);
    }
    if (m.VikaLaskuri >= 1 && m.VikaLaskuri <= 4)
        Ilmoita(peli, "Tilanteen avauksessa syntyi ongelma, joka saattaa vaikuttaa pelissä. Uudelleen lataaminen "
                      "saattaa korjata tilanteen");
    else if (m.VikaLaskuri >= 5)
        Ilmoita(peli, "Tilanteen avauksessa syntyi pahoja ongelmia, jotka vaikuttavat pelaamiseen. Pelin uudelleen "
                      "käynnistäminen ja jopa asentaminen on suositeltavaa.");
    m.VikaLaskuri = 0;
    a.LatausNäkyvissä = false;
    return avattu;
}

void NollaaRuudut(Peli& peli) {
    peli.näkymä = Näkymä{};
    peli.alku = AlkuRuutu{};
    peli.eläinruutu = EläinRuutuTila{};
    peli.tuoteruutu = TuoteRuutuTila{};
    peli.työvoimaruutu = TyövoimaRuutuTila{};
    peli.rakennusruutu = RakennusRuutuTila{};
    peli.pankkiruutu = PankkiRuutuTila{};
    peli.tarvikeruutu = TarvikeRuutuTila{};
    peli.tilanneruutu = TilanneRuutuTila{};
    peli.peltoruutu = PeltoRuutuTila{};
    peli.kylvöruutu = KylvöRuutuTila{};
    peli.nostoruutu = NostoRuutuTila{};
    peli.käyrätruutu = KäyrätRuutuTila{};
    peli.raviruutu = RaviRuutuTila{};
    peli.talliruutu = TalliRuutuTila{};
    peli.soitin.Näkyvissä = false;
    peli.sopimusruutu = SopimusRuutuTila{};
    peli.käynnissä = false;
}

bool UusiTilanne(Peli& peli) {
    SoitaÄäni(peli, "klik");
    if (!KysyKyllä(peli, "Menetät nykyisen tilanteesi. Oletko aivan varma?")) return false;
    // Every value of the farm and the screens' options go back to their start, settings too.
    peli.m = Muuttujat{};
    peli.asetukset = Asetukset{};
    NollaaRuudut(peli);
    AlkuLataus(peli);
    return true;
}

}  // namespace tanhua
