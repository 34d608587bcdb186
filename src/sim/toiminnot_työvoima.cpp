// The runner's operations of the staff screen. None needs the screen opened first: the job list is
// the one the stars give the farm now, as the screen fills it at each opening.
#include <charconv>
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

// A job as the player clicks it on the list: skipped when the stars keep it off the list.
Työläinen ListaltaNimellä(const Peli& peli, const std::string& nimi) {
    const Työläinen k = Ammatti(nimi);
    if (!Tarjolla(peli.m, k)) Ohita();
    return k;
}

// Chooses the job, then presses the button a number of times (once unless told).
Toiminto Painike(void (*painike)(Peli&), const char* nappi) {
    return Toiminto{1, 2, [painike, nappi](Peli& peli, const std::vector<std::string>& a) {
                        const int kertaa = a.size() > 1 ? Luku(a[1], "the number of presses", 1, 32767) : 1;
                        ValitseTyöläinen(peli, ListaltaNimellä(peli, a[0]));
                        for (int i = 0; i < kertaa; ++i) {
                            VaadiPainettava(peli, std::string("Työvoima.") + nappi);
                            painike(peli);
                        }
                    }};
}

}  // namespace

void TyövoimanToiminnot(Toimintoluettelo& t) {
    t["Työvoima.Avaa"] = Pelkkä(AvaaTyövoima);
    t["Työvoima.Valitse"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                         ValitseTyöläinen(peli, ListaltaNimellä(peli, a[0]));
                                     }};
    t["Työvoima.Palkkaa"] = Painike(OtaTöihin, "Command3");
    t["Työvoima.Irtisano"] = Painike(Erota, "Command5");
    // The wage of a job as the slider sets it: the base wage plus the slider's value. A wage is
    // 16 bits and the slider reaches 1000 either side of the base; the tanner's and the dog's
    // sliders, and one locked by a wage agreed this month, don't move.
    t["Työvoima.Palkka"] = Toiminto{2, 2, [](Peli& peli, const std::vector<std::string>& a) {
                                        const Työläinen k = Ammatti(a[0]);
                                        const int ero = Luku(a[1], "the wage", -32768, 32767) - peli.m.PerusPalkka[k];
                                        if (ero < TyövoimaRuutuTila::MITTARI_MIN || ero > TyövoimaRuutuTila::MITTARI_MAX)
                                            throw std::runtime_error("the wage slider goes from -1000 to 1000 around "
                                                                     "the base wage");
                                        ListaltaNimellä(peli, a[0]);
                                        if (!MittariLiikkuu(peli.m, k)) Ohita();
                                        ValitseTyöläinen(peli, k);
                                        SiirräMittaria(peli, CInt(ero));
                                    }};
    // The slider of the chosen job moved to a value around the base wage.
    t["Työvoima.Mittari"] = Toiminto{1, 1, [](Peli& peli, const std::vector<std::string>& a) {
                                         const int arvo = Luku(a[0], "the slider", TyövoimaRuutuTila::MITTARI_MIN,
                                                               TyövoimaRuutuTila::MITTARI_MAX);
                                         VaadiPainettava(peli, "Työvoima.mittari");
                                         SiirräMittaria(peli, CInt(arvo));
                                     }};
    // Overtime on or off: the job is chosen, then its button pressed; a job whose overtime can't
    // be set has both buttons off.
    t["Työvoima.Ylityö"] = Toiminto{2, 2, [](Peli& peli, const std::vector<std::string>& a) {
                                        const bool päälle = Kytkin(a[1], "overtime");
                                        const Työläinen k = ListaltaNimellä(peli, a[0]);
                                        if (!YlityöAsetettavissa(k)) Ohita();
                                        ValitseTyöläinen(peli, k);
                                        if (päälle) YlityöPäälle(peli);
                                        else YlityöPois(peli);
                                    }};
    t["Työvoima.Takaisin"] = Pelkkä(SuljeTyövoima);
}

}  // namespace tanhua
