// The runner's operations of the race-betting screen. Every press needs the screen open; a button
// or row out of sight (the coupon or the sheet hidden) is skipped.
#include <string>

#include "racing/ravit.h"
#include "skripti.h"

namespace tanhua {

namespace {
void Paina(Peli& peli, const std::string& ohjain) {
    if (!peli.raviruutu.auki) Ohita();
    VaadiPainettava(peli, ohjain);
}

Toiminto Nappi(std::string ohjain, void (*f)(Peli&)) {
    return Toiminto{0, 0, [ohjain = std::move(ohjain), f](Peli& peli, const std::vector<std::string>&) {
                        Paina(peli, ohjain);
                        f(peli);
                    }};
}

// A member of a control array by its number: Rivi 0..6, RaviNimi and Kerroin 0..9.
Toiminto Rivi(const std::string& nimi, int koko, void (*f)(Peli&, int)) {
    return Toiminto{1, 1, [nimi, koko, f](Peli& peli, const std::vector<std::string>& a) {
                        const int i = static_cast<int>(Luku(a[0], "Ravit." + nimi + " N", 0, koko - 1));
                        Paina(peli, "Ravit." + nimi + "(" + std::to_string(i) + ")");
                        f(peli, i);
                    }};
}
}  // namespace

void RavienToiminnot(Toimintoluettelo& t) {
    // The way in as the stable's "Osallistu raveihin" takes it: the notice, then a fresh screen.
    t["Ravit.Avaa"] = Pelkkä(AvaaRavit);
    t["Ravit.Command1"] = Nappi("Ravit.Command1", SuljeRavit);
    t["Ravit.Command2"] = Nappi("Ravit.Command2", LyöVetoa);
    // The screen has no Command3: its name is taken, and a press on it is one no player can make.
    t["Ravit.Command3"] = Toiminto{0, 0, [](Peli&, const std::vector<std::string>&) { Ohita(); }};
    t["Ravit.Command4"] = Nappi("Ravit.Command4", HyväksyKuponki);
    t["Ravit.Command5"] = Nappi("Ravit.Command5", [](Peli& p) { ValitseVetolaji(p, vetolaji::V75); });
    t["Ravit.Command6"] = Nappi("Ravit.Command6", LaskePanosta);
    t["Ravit.Command7"] = Nappi("Ravit.Command7", NostaPanosta);
    t["Ravit.Command8"] = Nappi("Ravit.Command8", SuljeTulos);
    t["Ravit.Command9"] = Nappi("Ravit.Command9", [](Peli& p) { ValitseVetolaji(p, vetolaji::Voittajaveto); });
    t["Ravit.Command10"] = Nappi("Ravit.Command10", [](Peli& p) { ValitseVetolaji(p, vetolaji::Trio); });
    t["Ravit.Rivi"] = Rivi("Rivi", RIVINAPPEJA, NäytäRivi);
    t["Ravit.RaviNimi"] = Rivi("RaviNimi", RIVEJÄ, MerkitseHevonen);
    t["Ravit.Kerroin"] = Rivi("Kerroin", RIVEJÄ, ValitseKerroin);
}

}  // namespace tanhua
