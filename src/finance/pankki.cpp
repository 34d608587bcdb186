// The bank: the loan, the deposit and the insurance premiums, the screen's sheets and the month.
#include "pankki.h"

#include <array>

#include "../core/peli.h"
#include "../core/pääruutu.h"
#include "../core/viestit.h"
#include "../core/vikatila.h"
#include "taulut/pankki.h"

namespace tanhua {

namespace {

std::string Teksti(std::string_view a) { return std::string(a); }

// The screen's labels take the loan, the deposit and the months as the record holds them.
void PäivitäLabelit(Peli& peli) {
    const Muuttujat& m = peli.m;
    PankkiRuutuTila& r = peli.pankkiruutu;
    r.lainaz = Luku(m.Laina);
    r.tiliz = Luku(m.Tili);
    r.Maksuaikaz = Luku(m.Lyhennysvapaa);
}

// The period's label and the rate it gives.
void NäytäMaksuaika(Peli& peli) {
    PankkiRuutuTila& r = peli.pankkiruutu;
    r.aikaz = Teksti(MAKSUAJAT[static_cast<std::size_t>(r.aika)].nimi);
    r.prossa = Luku(LainanKorko(peli.m, r.aika));
}

// After a change of cash: the labels and the money plate beside the screen.
void RahaMuuttui(Peli& peli) {
    PäivitäLabelit(peli);
    NäytäRaha(peli);
}

void VakuSumma(Peli& peli) {
    PäivitäVakuutus(peli);
    LaskeVaku(peli);
    peli.pankkiruutu.Vakusummaz = Luku(peli.m.Vakuutusmaksut);
}

void MyönnäLaina(Peli& peli) {
    Muuttujat& m = peli.m;
    PankkiRuutuTila& r = peli.pankkiruutu;
    const double s = Int(TekstiLuvuksi(r.summa));
    // A sum of nothing or less would pay the bank and still leave a loan on the books.
    if (s <= 0) {
        Kieltäydy(peli, Teksti(pankkiteksti::EiNollaa));
        return;
    }
    const Long raja = LainaRaja(m);
    if (s > raja) {
        Kieltäydy(peli, Teksti(pankkiteksti::LiikaaAlku) + Str(raja) + Teksti(pankkiteksti::LiikaaLoppu));
        r.summa = Luku(raja);
        return;
    }
    Aseta(m.Raha, s + Int(m.Raha));
    Aseta(m.Laina, s);
    Aseta(m.LainaKorko, LainanKorko(m, r.aika));
    Aseta(m.Lyhennysvapaa, MAKSUAJAT[static_cast<std::size_t>(r.aika)].kuukaudet);
    r.teksti = Teksti(pankkiteksti::LainattuAlku) + Str(s) + Teksti(pankkiteksti::RahaaLoppu);
    r.Command8 = false;
    RahaMuuttui(peli);
}

void OtaTalletus(Peli& peli) {
    Muuttujat& m = peli.m;
    PankkiRuutuTila& r = peli.pankkiruutu;
    // The limits are tested on the sum as typed; only its whole part goes in.
    const double s = TekstiLuvuksi(r.summa);
    if (s < 500) {
        Kieltäydy(peli, Teksti(pankkiteksti::PikkuSummia));
        return;
    }
    if (s > m.Raha) {
        Kieltäydy(peli, Teksti(pankkiteksti::EiNoinPaljoa));
        r.summa = Luku(m.Raha);
        return;
    }
    Aseta(m.Raha, Int(m.Raha) - Int(s));
    Aseta(m.Tili, Int(s) + Int(m.Tili));
    r.teksti = Teksti(pankkiteksti::TalletettuAlku) + r.summa + Teksti(pankkiteksti::RahaaLoppu);
    RahaMuuttui(peli);
}

}  // namespace

Long LainaKuukausi(Peli& peli) {
    Muuttujat& m = peli.m;
    Long p = 0;
    if (m.Laina > 0) {
        Lisää(m.Laina, static_cast<double>(m.Laina) * m.LainaKorko * 0.001);
        if (m.Lyhennysvapaa > 0) Aseta(m.Lyhennysvapaa, m.Lyhennysvapaa - 1);
        if (m.Lyhennysvapaa == 0) {
            // A quarter of what stands, or the whole rest once it is under 600.
            p = CLng(m.Laina < 600 ? Int(m.Laina) : Int(m.Laina / 4.0));
            Lisää(m.Raha, -p);
            Lisää(m.Laina, -p);
            if (m.Laina < 1) Aseta(m.Laina, 0);
            Aseta(m.Raha, Int(m.Raha));
        }
        Aseta(m.Laina, Round(m.Laina, 2));
    }
    if (m.Tili > 0) {
        Lisää(m.Tili, static_cast<double>(m.Tili) * (0.002 - m.Vaikeustaso * 0.0005));
        Aseta(m.Tili, Round(m.Tili, 2));
    }
    return p;
}

int OmistetutTarvikkeet(const Muuttujat& m) {
    int n = 0;
    for (Boolean omistettu : m.Tarv) n += omistettu ? 1 : 0;
    return n;
}

Long LainaRaja(const Muuttujat& m) {
    // Six of the production buildings count, each level as one; field and forest count twice.
    double a = Int(static_cast<double>(m.Koko_Navetta) + m.Koko_Siilo + m.Rak[Saha] + m.Rak[Kasvihuone] +
                   m.Rak[Meijeri] + m.Rak[Mylly] + m.Koko_Varasto + m.Rak[Ompelimo] + m.Rak[Teurastamo] + m.Pelto +
                   m.Metsä);
    a = a + m.Pelto + m.Metsä + OmistetutTarvikkeet(m) + m.SopimuksiaLäpi;
    return CLng(Int(a * 30));
}

int LainanKorko(const Muuttujat& m, int aika) {
    return m.Vaikeustaso + MAKSUAJAT[static_cast<std::size_t>(aika)].korkolisä;
}

void PäivitäVakuutus(Peli& peli) {
    Muuttujat& m = peli.m;
    // The capacities are taken as whole numbers before the integer division.
    const double B = static_cast<double>(JakoKok(CLng(m.Koko_Siilo), 10)) + JakoKok(CLng(m.Koko_Navetta), 2) +
                     JakoKok(CLng(m.Koko_Varasto), 10) + m.Rak[Ompelimo] + m.Rak[Saha] + m.Rak[Meijeri] +
                     m.Rak[Kasvihuone] + m.Rak[Mylly] + m.Rak[Leipomo] + m.Rak[Teurastamo] + m.Rak[Rehuntuotanto] +
                     m.Rak[Hevostalli] + m.Rak[Viinitehdas];
    const auto& El = m.El;
    double työ = 0;
    for (std::size_t k = 0; k < TYÖLÄISIÄ; ++k)
        if (k != Mehiläishoitaja && k != Varastotyöntekijä) työ += m.Työ[k];
    std::array<double, VAKUUTUKSIA> maksu{};
    maksu[VakuutusPalo] = B + 10;
    maksu[VakuutusVarkaus] = Int(m.Raha / 5000.0 + m.Tili / 5000.0 + JakoKok(B, 300)) + 10;
    maksu[VakuutusEläin] = 2.0 * (static_cast<double>(El[Sika][Naaras]) + El[Lammas][Naaras] + El[Kettu][Naaras]) +
                           El[Kana][Naaras] + 3.0 * (static_cast<double>(El[Hevonen][Naaras]) + El[Nauta][Naaras]) + 20;
    maksu[VakuutusTyö] = 100 * työ + 100;
    maksu[VakuutusTarvike] = 15.0 * OmistetutTarvikkeet(m);
    for (std::size_t i = 0; i < VAKUUTUKSIA; ++i) m.Pankki.Vakumaksu[i] = Luku(maksu[i]);
}

void LaskeVaku(Peli& peli) {
    Muuttujat& m = peli.m;
    Aseta(m.Vakuutusmaksut, 0);
    for (Vakuutus v : {VakuutusPalo, VakuutusVarkaus, VakuutusEläin, VakuutusTyö, VakuutusTarvike})
        if (m.Pankki.Vakuutus[v] == 1) Lisää(m.Vakuutusmaksut, Int(Val(m.Pankki.Vakumaksu[v])));
}

void AvaaPankki(Peli& peli) {
    PankkiRuutuTila& r = peli.pankkiruutu;
    SoitaÄäni(peli, "klik");
    // The bank opens with no sheet showing, whatever was left open at the last visit.
    r.Lappu = false;
    r.VakuLappu = false;
    r.auki = true;
    PäivitäLabelit(peli);
}

void SuljePankki(Peli& peli) {
    Näkymä& n = peli.näkymä;
    SoitaÄäni(peli, "klik");
    // A market report still open over the bank is hidden with it.
    if (!n.PankkiKäytössä) {
        n.RaporttiAuki = false;
        n.PankkiKäytössä = true;
    }
    peli.pankkiruutu.auki = false;
}

bool PankkiEsc(Peli& peli) {
    PankkiRuutuTila& r = peli.pankkiruutu;
    if (r.VakuLappu || r.Lappu) {
        r.VakuLappu = false;
        SuljeLappu(peli);
        return false;
    }
    SuljePankki(peli);
    return true;
}

void OtaLainaa(Peli& peli) {
    PankkiRuutuTila& r = peli.pankkiruutu;
    if (peli.m.Laina > 0) {
        Kieltäydy(peli, Teksti(pankkiteksti::Velkoja));
        return;
    }
    // A fresh sheet: no sum typed yet, and the confirm button ready.
    r.otsikko = Teksti(pankkiteksti::OtaLainaa);
    r.teksti = Teksti(pankkiteksti::LainaOhje);
    r.summa.clear();
    r.Command8 = true;
    r.aika = 0;
    NäytäMaksuaika(peli);
    r.aikaNäkyvissä = true;
    r.Lappu = true;
}

void LyhennäMaksuaikaa(Peli& peli) {
    PankkiRuutuTila& r = peli.pankkiruutu;
    if (r.aika > 0) --r.aika;
    NäytäMaksuaika(peli);
}

void PidennäMaksuaikaa(Peli& peli) {
    PankkiRuutuTila& r = peli.pankkiruutu;
    if (r.aika + 1 < static_cast<int>(MAKSUAJAT.size())) ++r.aika;
    NäytäMaksuaika(peli);
}

void KirjoitaSumma(Peli& peli, const std::string& teksti) { peli.pankkiruutu.summa = teksti; }

void VahvistaLappu(Peli& peli) {
    const std::string otsikko = peli.pankkiruutu.otsikko;
    OmallaLaatikolla(
        peli, pankkiteksti::Paikka,
        [&] {
            if (otsikko == pankkiteksti::OtaLainaa) MyönnäLaina(peli);
            else if (otsikko == pankkiteksti::TalletaRahaa) OtaTalletus(peli);
        },
        [](const Vika&) { return Teksti(pankkiteksti::SummaVika); });
}

void SuljeLappu(Peli& peli) {
    PankkiRuutuTila& r = peli.pankkiruutu;
    r.Lappu = false;
    r.Command8 = true;
}

void MaksaLaina(Peli& peli) {
    Muuttujat& m = peli.m;
    // The button sounds its warning before it looks at the money; a repayment clicks after it.
    SoitaÄäni(peli, "virhe");
    if (m.Raha < m.Laina) {
        Ilmoita(peli, Teksti(pankkiteksti::EiMaksuunAlku) + Str(m.Laina) + Teksti(pankkiteksti::EiMaksuunLoppu));
        return;
    }
    // The cents of the loan are forgiven.
    Lisää(m.Raha, -Int(m.Laina));
    Aseta(m.Laina, 0);
    Aseta(m.Lyhennysvapaa, 0);
    SoitaÄäni(peli, "klik");
    RahaMuuttui(peli);
}

void TalletaRahaa(Peli& peli) {
    const Muuttujat& m = peli.m;
    PankkiRuutuTila& r = peli.pankkiruutu;
    if (m.Raha < 500) {
        Kieltäydy(peli, Teksti(pankkiteksti::PikkuSummia));
        return;
    }
    r.summa = Luku(Int(m.Raha / 2));
    r.Command8 = true;
    r.otsikko = Teksti(pankkiteksti::TalletaRahaa);
    r.teksti = Teksti(pankkiteksti::TalletusOhje);
    r.aikaNäkyvissä = false;
    r.Lappu = true;
}

void NostaTalletukset(Peli& peli) {
    Muuttujat& m = peli.m;
    // Always the whole deposit; the cents of both are dropped.
    Aseta(m.Raha, Int(m.Raha) + Int(m.Tili));
    Aseta(m.Tili, 0);
    RahaMuuttui(peli);
}

void AvaaVakuutukset(Peli& peli) {
    PankkiRuutuTila& r = peli.pankkiruutu;
    SoitaÄäni(peli, "klik");
    VakuSumma(peli);
    r.Lappu = false;
    r.VakuLappu = true;
}

void SuljeVakuutukset(Peli& peli) { peli.pankkiruutu.VakuLappu = false; }

void VaihdaVakuutus(Peli& peli, Vakuutus v, bool päällä) {
    // The box itself costs nothing; the sum follows the premiums worked out afresh.
    peli.m.Pankki.Vakuutus[v] = päällä ? 1 : 0;
    VakuSumma(peli);
}

void OsoitinVakuutukseen(Peli& peli, int v) {
    peli.pankkiruutu.Vakuinfo =
        v < 0 ? std::string() : Teksti(VAKUUTUSTAULU[static_cast<std::size_t>(v)].info);
}

}  // namespace tanhua
