// The runner's operations of the bank screen: the loan and deposit sheet and the insurance sheet.
#include <stdexcept>
#include <string>

#include "finance/pankki.h"
#include "finance/taulut/pankki.h"
#include "skripti.h"

namespace tanhua {

namespace {

void VaadiAuki(const Peli& peli) {
    if (!peli.pankkiruutu.auki) throw std::runtime_error("the bank is not open: call Pankki.Avaa first");
    if (!peli.näkymä.PankkiKäytössä) throw std::runtime_error("the market report lies over the bank");
}

// A button of the open screen.
Toiminto Auki(void (*f)(Peli&)) {
    return Toiminto{0, 0, [f](Peli& peli, const std::vector<std::string>&) {
                        VaadiAuki(peli);
                        f(peli);
                    }};
}

void VaadiLappu(const Peli& peli) {
    VaadiAuki(peli);
    if (!peli.pankkiruutu.Lappu)
        throw std::runtime_error("the sheet is not showing: call Pankki.OtaLainaa or Pankki.Talleta first");
}

// A button of the loan and deposit sheet.
Toiminto Lapulla(void (*f)(Peli&)) {
    return Toiminto{0, 0, [f](Peli& peli, const std::vector<std::string>&) {
                        VaadiLappu(peli);
                        f(peli);
                    }};
}

void Vahvista(Peli& peli) {
    VaadiLappu(peli);
    if (!peli.pankkiruutu.Command8)
        throw std::runtime_error("the confirm button is disabled until the sheet is closed (Pankki.SuljeLappu)");
    VahvistaLappu(peli);
}

int Maksuaika(const std::string& sana) {
    for (std::size_t i = 0; i < MAKSUAJAT.size(); ++i)
        if (MAKSUAJAT[i].nimi == sana) return static_cast<int>(i);
    throw std::runtime_error("a loan period is \"6 kk\", \"1 vuosi\" or \"2 vuotta\": '" + sana + "'");
}

Vakuutus VakuutusSanasta(const std::string& sana) {
    for (std::size_t i = 0; i < VAKUUTUSTAULU.size(); ++i) {
        const std::string_view laatikko = VAKUUTUSTAULU[i].laatikko;
        if (laatikko == sana || laatikko.substr(std::string_view("Vakuutus").size()) == sana)
            return static_cast<Vakuutus>(i);
    }
    throw std::runtime_error("unknown policy '" + sana + "': Palo, Varkaus, Eläin, Työ or Tarvike");
}

}  // namespace

void PankinToiminnot(Toimintoluettelo& t) {
    t["LainaKuukausi"] = Pelkkä([](Peli& peli) { LainaKuukausi(peli); });
    t["Pankki.PäivitäVakuutus"] = Pelkkä(PäivitäVakuutus);
    t["Pankki.LaskeVaku"] = Pelkkä(LaskeVaku);

    t["Pankki.Avaa"] = Pelkkä(AvaaPankki);
    t["Pankki.Sulje"] = Auki(SuljePankki);
    t["Pankki.Esc"] = Auki(PankkiEsc);

    // The buttons one by one.
    t["Pankki.OtaLainaa"] = Auki(OtaLainaa);
    t["Pankki.AikaAlas"] = Lapulla(LyhennäMaksuaikaa);
    t["Pankki.AikaYlös"] = Lapulla(PidennäMaksuaikaa);
    t["Pankki.Summa"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                     VaadiLappu(peli);
                                     KirjoitaSumma(peli, a[0]);
                                 }};
    t["Pankki.Vahvista"] = Toiminto{0, 0, [](Peli& peli, const std::vector<std::string>&) { Vahvista(peli); }};
    t["Pankki.SuljeLappu"] = Lapulla(SuljeLappu);
    t["Pankki.Lyhennä"] = Auki(MaksaLaina);
    t["Pankki.Nosta"] = Auki(NostaTalletukset);

    // A loan as the player takes it: the sheet, the period stepped up to, the sum typed, confirm.
    // A refused sheet ends it there.
    t["Pankki.Laina"] = Toiminto{1, 2, [](Peli& peli, const std::vector<std::string>& a) {
                                     VaadiAuki(peli);
                                     const int aika = a.size() > 1 ? Maksuaika(a[1]) : 0;
                                     OtaLainaa(peli);
                                     if (!peli.pankkiruutu.Lappu) return;
                                     while (peli.pankkiruutu.aika < aika) PidennäMaksuaikaa(peli);
                                     KirjoitaSumma(peli, a[0]);
                                     Vahvista(peli);
                                 }};
    // Command4; with a sum, it is typed and confirmed (without, the offered half stands open).
    t["Pankki.Talleta"] = Toiminto{0, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                       VaadiAuki(peli);
                                       TalletaRahaa(peli);
                                       if (a.empty() || !peli.pankkiruutu.Lappu) return;
                                       KirjoitaSumma(peli, a[0]);
                                       Vahvista(peli);
                                   }};

    // The insurance sheet.
    t["Pankki.Vakuutukset"] = Auki(AvaaVakuutukset);
    t["Pankki.SuljeVakuutukset"] = Toiminto{0, 0, [](Peli& peli, const std::vector<std::string>&) {
                                                VaadiAuki(peli);
                                                if (!peli.pankkiruutu.VakuLappu)
                                                    throw std::runtime_error("the insurance sheet is not showing");
                                                SuljeVakuutukset(peli);
                                            }};
    t["Pankki.Vakuutus"] = Toiminto{2, 2, [](Peli& peli, const std::vector<std::string>& a) {
                                        VaadiAuki(peli);
                                        if (!peli.pankkiruutu.VakuLappu)
                                            throw std::runtime_error("the insurance sheet is not showing: "
                                                                     "call Pankki.Vakuutukset first");
                                        const Vakuutus v = VakuutusSanasta(a[0]);
                                        if (a[1] != "0" && a[1] != "1")
                                            throw std::runtime_error("a policy's box is 0 or 1: '" + a[1] + "'");
                                        VaihdaVakuutus(peli, v, a[1] == "1");
                                    }};
    t["Pankki.Osoita"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                      VaadiAuki(peli);
                                      OsoitinVakuutukseen(peli, a[0] == "Vakuinfo" ? -1 : static_cast<int>(VakuutusSanasta(a[0])));
                                  }};
}

}  // namespace tanhua
