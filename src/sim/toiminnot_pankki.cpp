// The runner's operations of the bank screen: the loan and deposit sheet and the insurance sheet.
// None needs the screen opened first; a press on a sheet needs its sheet showing.
#include <stdexcept>
#include <string>

#include "finance/pankki.h"
#include "finance/taulut/pankki.h"
#include "skripti.h"

namespace tanhua {

namespace {

// A button of the bank pressed by its control's name: skipped when the player couldn't click it
// (its sheet hidden, "Hyväksy" off after a loan, the market report over the bank).
void Vahvista(Peli& peli) {
    VaadiPainettava(peli, "Pankki.Command8");
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
    t["Pankki.Sulje"] = Painallus("Pankki.Command1", SuljePankki);
    // Esc is a key, not a button: only the market report over the bank keeps it away.
    t["Pankki.Esc"] = EscNäppäin([](Peli& peli) {
        if (!peli.näkymä.PankkiKäytössä) Ohita();
        return PankkiEsc(peli);
    });

    // The buttons one by one.
    t["Pankki.OtaLainaa"] = Painallus("Pankki.Command2", OtaLainaa);
    t["Pankki.AikaAlas"] = Painallus("Pankki.Command9", LyhennäMaksuaikaa);
    t["Pankki.AikaYlös"] = Painallus("Pankki.Command10", PidennäMaksuaikaa);
    t["Pankki.Summa"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                     VaadiPainettava(peli, "Pankki.summa");
                                     KirjoitaSumma(peli, a[0]);
                                 }};
    t["Pankki.Vahvista"] = Toiminto{0, 0, [](Peli& peli, const std::vector<std::string>&) { Vahvista(peli); }};
    t["Pankki.SuljeLappu"] = Painallus("Pankki.Command7", SuljeLappu);
    t["Pankki.Lyhennä"] = Painallus("Pankki.Command3", MaksaLaina);
    t["Pankki.Nosta"] = Painallus("Pankki.Command5", NostaTalletukset);

    // A loan as the player takes it: a fresh sheet, the period stepped up to, the sum typed, confirm.
    // A refused sheet ends it there.
    t["Pankki.Laina"] = Toiminto{1, 2, [](Peli& peli, const std::vector<std::string>& a) {
                                     const int aika = a.size() > 1 ? Maksuaika(a[1]) : 0;
                                     VaadiPainettava(peli, "Pankki.Command2");
                                     OtaLainaa(peli);
                                     if (!peli.pankkiruutu.Lappu) return;
                                     while (peli.pankkiruutu.aika < aika) PidennäMaksuaikaa(peli);
                                     KirjoitaSumma(peli, a[0]);
                                     Vahvista(peli);
                                 }};
    // Command4; with a sum, it is typed and confirmed (without, the offered half stands open).
    t["Pankki.Talleta"] = Toiminto{0, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                       VaadiPainettava(peli, "Pankki.Command4");
                                       TalletaRahaa(peli);
                                       if (a.empty() || !peli.pankkiruutu.Lappu) return;
                                       KirjoitaSumma(peli, a[0]);
                                       Vahvista(peli);
                                   }};

    // The insurance sheet.
    t["Pankki.Vakuutukset"] = Painallus("Pankki.vaku", AvaaVakuutukset);
    t["Pankki.SuljeVakuutukset"] = Painallus("Pankki.Command11", SuljeVakuutukset);
    t["Pankki.Vakuutus"] = Toiminto{2, 2, [](Peli& peli, const std::vector<std::string>& a) {
                                        const Vakuutus v = VakuutusSanasta(a[0]);
                                        const bool päällä = Kytkin(a[1], "a policy's box");
                                        VaadiPainettava(peli, "Pankki." + std::string(VAKUUTUSTAULU[v].laatikko));
                                        VaihdaVakuutus(peli, v, päällä);
                                    }};
    // The pointer on a box, or on the text below them; the sheet must show.
    t["Pankki.Osoita"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                      const int v = a[0] == "Vakuinfo" ? -1 : static_cast<int>(VakuutusSanasta(a[0]));
                                      if (!peli.pankkiruutu.VakuLappu) Ohita();
                                      OsoitinVakuutukseen(peli, v);
                                  }};
}

}  // namespace tanhua
