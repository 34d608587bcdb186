// The runner's operations of the staff screen.
#include <algorithm>
#include <stdexcept>
#include <string>

#include "skripti.h"
#include "workforce/työvoima.h"

namespace tanhua {

namespace {

Työläinen Ammatti(const std::string& nimi) {
    const int k = TyöläinenNimellä(nimi);
    if (k < 0)
        throw std::runtime_error("unknown job '" + nimi +
                                 "': give a job's name (Kirjanpitäjä, Siivooja, Meijerityöntekijä, ...)");
    return static_cast<Työläinen>(k);
}

long long Kokonaisluku(const std::string& sana, const std::string& mikä) {
    std::size_t loppu = 0;
    long long arvo = 0;
    try {
        arvo = std::stoll(sana, &loppu);
    } catch (const std::exception&) {
        loppu = 0;
    }
    if (loppu == 0 || loppu != sana.size()) throw std::runtime_error(mikä + " must be a whole number: '" + sana + "'");
    return arvo;
}

// A click on the job in the list; the player can only click a job the list shows.
void Valitse(Peli& peli, const std::string& nimi) {
    const Työläinen k = Ammatti(nimi);
    const auto& lista = peli.työvoimaruutu.Lista;
    if (std::find(lista.begin(), lista.end(), k) == lista.end())
        throw std::runtime_error("the job '" + nimi + "' is not on the staff list (open it with Työvoima.Avaa; "
                                 "the stars may not have opened it yet)");
    ValitseTyöläinen(peli, k);
}

// Chooses the job, then presses the button a number of times (once unless told).
Toiminto Painike(void (*painike)(Peli&)) {
    return Toiminto{1, 2, [painike](Peli& peli, const std::vector<std::string>& a) {
                        const long long kertaa = a.size() > 1 ? Kokonaisluku(a[1], "the number of presses") : 1;
                        if (kertaa < 1) throw std::runtime_error("the number of presses must be at least 1");
                        Valitse(peli, a[0]);
                        for (long long i = 0; i < kertaa; ++i) painike(peli);
                    }};
}

Integer Mittarille(long long arvo) {
    if (arvo < TyövoimaRuutuTila::MITTARI_MIN || arvo > TyövoimaRuutuTila::MITTARI_MAX)
        throw std::runtime_error("the wage slider goes from -1000 to 1000 around the base wage");
    return CInt(static_cast<double>(arvo));
}

}  // namespace

void TyövoimanToiminnot(Toimintoluettelo& t) {
    t["Työvoima.Avaa"] = Pelkkä(AvaaTyövoima);
    t["Työvoima.Valitse"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                         Valitse(peli, a[0]);
                                     }};
    t["Työvoima.Palkkaa"] = Painike(OtaTöihin);
    t["Työvoima.Irtisano"] = Painike(Erota);
    // The wage of a job as the slider sets it: the base wage plus the slider's value.
    t["Työvoima.Palkka"] = Toiminto{2, 2, [](Peli& peli, const std::vector<std::string>& a) {
                                        const Työläinen k = Ammatti(a[0]);
                                        const long long palkka = Kokonaisluku(a[1], "the wage");
                                        Valitse(peli, a[0]);
                                        SiirräMittaria(peli, Mittarille(palkka - peli.m.PerusPalkka[k]));
                                    }};
    // The slider of the chosen job moved to a value around the base wage.
    t["Työvoima.Mittari"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                         SiirräMittaria(peli, Mittarille(Kokonaisluku(a[0], "the slider")));
                                     }};
    t["Työvoima.Ylityö"] = Toiminto{2, 2, [](Peli& peli, const std::vector<std::string>& a) {
                                        if (a[1] != "0" && a[1] != "1")
                                            throw std::runtime_error("overtime is 1 (on) or 0 (off): '" + a[1] + "'");
                                        Valitse(peli, a[0]);
                                        if (a[1] == "1") YlityöPäälle(peli);
                                        else YlityöPois(peli);
                                    }};
    t["Työvoima.Takaisin"] = Pelkkä(SuljeTyövoima);
}

}  // namespace tanhua
