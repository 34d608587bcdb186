// The day step: the calendar, the fixed order of the day's steps, the goal and the Christmas gift.
#include "päivä.h"

#include "../animals/eläimet.h"
#include "../animals/kauppa.h"
#include "../buildings/rakennukset.h"
#include "../career/tilanne.h"
#include "../contracts/sopimukset.h"
#include "../events/sattumat.h"
#include "../land/maat.h"
#include "../market/markkinat.h"
#include "../market/myynti.h"
#include "kuukausi.h"
#include "peli.h"
#include "pääruutu.h"
#include "sää.h"
#include "tähdet.h"
#include "viestit.h"
#include "vikatila.h"

namespace tanhua {

bool OnViikonloppu(int päivä) {
    switch (päivä) {
        case 6: case 7: case 13: case 14: case 20: case 21: case 28: case 29: return true;
        default: return false;
    }
}

std::string VuodenaikaKuukaudesta(int kuukausi) {
    switch (kuukausi) {
        case 3: case 4: return "Kevät";
        case 5: case 6: case 7: case 8: return "Kesä";
        case 9: case 10: return "Syksy";
        default: return "Talvi";
    }
}

void AsetaVuodenaika(Muuttujat& m) { m.Vuodenaika = VuodenaikaKuukaudesta(m.Kuukausi); }

std::string VuodenajanTausta(const std::string& vuodenaika) { return "Kuvat/" + vuodenaika + ".jpg"; }

void Joululahja(Peli& peli) {
    Muuttujat& m = peli.m;
    if (!(m.Päivä == 24 && m.Kuukausi == 12 && m.Raha < 20000)) return;
    const long long g = peli.arvonta.U(300, 3299);
    Lisää(m.Raha, static_cast<double>(g));
    // The gift's line doesn't show the list: its news window tells it.
    peli.näkymä.Lista.push_back("Joululahjaksi " + Str(g));
    peli.kanavat.ListaRivi(peli.näkymä.Lista.back());
    Kerro(peli, "Kuvat/sattumat/joulu.jpg",
          "Joulu 24.12." + Str(m.Vuosi) + ". Sait tänä jouluna lahjaksi " + Str(g) + " edestä lahjoja.");
}

void TavoiteTarkastus(Peli& peli) {
    Muuttujat& m = peli.m;
    if (m.PeliMoodi == "Miljoona" && static_cast<double>(m.Tili) + m.Raha - m.Laina >= 1000000.0) {
        Ilmoita(peli, "Tavoitteesi oli kerätä miljoona ja olet päässyt tavoitteeseesi");
        MiljoonaSaavutettu(peli);
    }
    if (m.PeliMoodi == "10 vuotta" && m.Vuosi == 1990) {
        Ilmoita(peli, "10 vuotta on kulunut, kun aloitit tilasi pitämisen. Olet päässyt nyt tavoitteeseen.");
    }
}


void SeuraavaPäivä(Peli& peli) {
    Muuttujat& m = peli.m;
    Näkymä& n = peli.näkymä;
    double kuorma = 0;  // the day's store load, taken once; goods made later today don't block today's work
    auto työpäivä = [&] { return !(kuorma > m.Koko_Varasto); };
    auto kesä = [&] { return m.Vuodenaika != "Talvi"; };
    const bool loppuun = Vartioitu(peli, paikka::SeuraavaPäivä, {
        [&] {
            Aseta(m.TyöntekijöitäYht, TyöntekijöitäYhteensä(m));
            Aseta(m.RakennuksiaYht, RakennuksiaYhteensä(m));
        },
        [&] {
            n.ListaNäkyvissä = false;
            n.IkkunaNäkyvissä = false;
            n.Hepotalli = m.Rak[Hevostalli] > 0 && m.El[Hevonen][Naaras] > 0;
        },
        [&] { Aseta(m.Päivä, m.Päivä + 1); },
        [&] { m.Viikonloppu = OnViikonloppu(m.Päivä); },
        [&] {
            if (m.Päivä == 2) Markkinat(peli);
            else if ((m.Päivä == 5 || m.Päivä == 12 || m.Päivä == 19 || m.Päivä == 27) && m.Tuotteet.rulla == 1)
                AutoMyynti(peli);
            else if (m.Päivä == 29 && m.Tuotteet.rulla == 0)
                AutoMyynti(peli);
        },
        [&] { Joululahja(peli); },
        [&] { TähtiTarkastus(peli); },
        [&] { TyömaaPäivä(peli); },
        [&] { Keli(peli); },
        [&] { TavoiteTarkastus(peli); },
        [&] { if (m.Työ[Teurastaja] > 0 || m.Työ[Nahkuri] > 0) AutoTeurastus(peli); },
        [&] { if (m.Päivä >= 3 && m.Päivä <= 29) Sattumat(peli); },
        [&] { EläintenKunto(peli); },
        [&] { PakkaamoPäivä(peli); },
        [&] {
            kuorma = VarastoKuorma(m);
            peli.päivänKuorma = kuorma;
            if (kuorma >= m.Koko_Varasto) LisääListaan(peli, "Varastosi on täynnä! Myy tuotteitasi.");
            else EläintenTuotanto(peli);
        },
        [&] { Ruokinta(peli); },
        [&] { if (m.Pelto > 0 && m.Rak[Rehuntuotanto] > 0) Jalostus(peli, Rehuntuotanto); },
        // The store gate: above its size, no staff work today (at exactly full they still work).
        [&] { if (työpäivä()) Metsänhakkuu(peli); },
        [&] { if (työpäivä()) Jalostus(peli, Saha); },
        [&] { if (työpäivä() && kesä()) Jalostus(peli, Mehiläistarha); },
        [&] { if (työpäivä() && kesä()) Jalostus(peli, Kasvihuone); },
        [&] { if (työpäivä() && kesä()) Jalostus(peli, Marjatarha); },
        [&] { if (työpäivä() && kesä()) Viljankasvu(peli); },
        [&] { if (työpäivä()) Jalostus(peli, Meijeri); },
        [&] { if (työpäivä()) Jalostus(peli, Mylly); },
        [&] { if (työpäivä()) Jalostus(peli, Ompelimo); },
        [&] { if (työpäivä()) Jalostus(peli, Leipomo); },
        [&] { if (työpäivä()) Jalostus(peli, Teurastamo); },
        [&] { if (työpäivä()) Jalostus(peli, Viinitehdas); },
        [&] {
            if (m.Rak[Hevostalli] > 0 && m.El[Hevonen][Naaras] > 0 && m.Työ[Tallimestari] > 0) RatsastusPäivä(peli);
        },
        [&] { Sopimustarjous(peli); },
        [&] {
            // The turnover shows while an accountant is employed.
            n.lukemat.liikevaihtoNäkyy = m.Työ[Kirjanpitäjä] > 0;
            if (n.lukemat.liikevaihtoNäkyy) n.lukemat.liikevaihtoz = Suoraan(Str(Round(m.Liikevaihto)));
        },
        [&] { if (m.Päivä > 30) Kuukaudenvaihde(peli); },
        // The bills of the step that ends a month fall into the new month.
        [&] { Päivitälukemat(peli); },
        [&] { PäiväKulut(peli); },
    });
    peli.päivänKuorma.reset();
    peli.päivänKausiarvo.reset();
    // Only a day that reached its last step clears the failure count.
    if (loppuun) m.VikaLaskuri = 0;
}

}  // namespace tanhua
