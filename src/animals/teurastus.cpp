// Slaughter: by hand from a card, and the butcher's and the tanner's daily work by the orders.
#include <functional>

#include "../core/peli.h"
#include "../core/viestit.h"
#include "../core/vikatila.h"
#include "kauppa.h"

namespace tanhua {

namespace {

constexpr std::string_view kAutomaatinPaikka = "Moduulissa. Automaatti teurastaessa.";
constexpr std::string_view kAutomaatinLaatikko =
    "Tanhua peli suoritti virhetilan, todennäköinen syy on että sinulla on todella paljon tavaraa ja pelin "
    "muuttujat eivät ymmärrä noin suuria lukuja.";
constexpr std::string_view kVarastoEsti = "Varaston tilanpuute esti teurastuksen.";

}  // namespace

double TeurasRaja(const Muuttujat& m, int raja) {
    return Int(TekstiLuvuksi(m.Eläimet.TeurasRaja[static_cast<std::size_t>(raja)]));
}

void Teurasta(Peli& peli) {
    EläinRuutuTila& r = peli.eläinruutu;
    if (r.kortti < 0) return;
    Muuttujat& m = peli.m;
    const KorttiRivi& k = KORTIT[static_cast<std::size_t>(r.kortti)];
    const double liha = r.liha;
    const double määrä = r.määrä;

    // The store must hold the meat the card shows; filling it exactly is allowed. The excess is told
    // as the sum works out, in double precision, never narrowed to the store's width.
    const double kuorma = VarastoKuorma(m);
    if (kuorma + liha * määrä > m.Koko_Varasto) {
        Kieltäydy(peli, "Sinulla ei ole tilaa varastossa.\nVaraston koko : " + Str(m.Koko_Varasto) +
                            "Varastossa tavaraa : " + Str(CSng(kuorma)) + "Tilankäyttö ylittyy : " +
                            Str(kuorma + liha * määrä - m.Koko_Varasto));
        return;
    }

    Long& päät = KortinPäät(m, r.kortti);
    switch (k.teurastus) {
        case Teurastus::Liha:
            if (määrä > päät) {
                Kieltäydy(peli, "Tarkasta eläinten määrä!\n\nEt voi teurastaa enempää eläimiä, kuin sinulla on\n");
                return;
            }
            Lisää(m.Var[Liha], liha * määrä);
            Lisää(päät, -määrä);
            // A butcher gets 40 percent more out of a slaughter by hand, however many there are.
            if (m.Työ[Teurastaja] > 0) Lisää(m.Var[Liha], Round(liha * 0.4 * määrä));
            break;
        case Teurastus::Turkki:
            // Too few foxes: the button does nothing at all.
            if (määrä > päät) return;
            Lisää(m.Var[Turkki], määrä);
            Lisää(päät, -määrä);
            // A tanner doubles the furs and charges for each fox.
            if (m.Työ[Nahkuri] > 0) {
                Lisää(m.Var[Turkki], määrä);
                Lisää(m.Raha, -500 * määrä);
                r.info = NAHKURIN_VELOITUS;
            }
            break;
        case Teurastus::Kielletty:
            if (päät >= 1) Kieltäydy(peli, "Hevosia ei oteta vastaan teurastamolla.");
            return;
    }
    SoitaÄäni(peli, "klik");
    PäivitäEläinruutu(peli);
}

void AutoTeurastus(Peli& peli) {
    Muuttujat& m = peli.m;

    // Each statement of the run stands under the run's own handler: a failure shows the box and the
    // run goes on after the failed statement only when the player's last choice was to go on.
    auto lause = [&](const std::function<void()>& tee) {
        bool tehty = false;
        OmallaLaatikolla(
            peli, kAutomaatinPaikka,
            [&] {
                tee();
                tehty = true;
            },
            [](const Vika&) { return std::string(kAutomaatinLaatikko); });
        return tehty ? 1 : (m.VikaJatkuu ? 0 : -1);  // 1 done, 0 failed but go on, -1 stop
    };

    // The load is taken once: heads taken in this run don't count against the store.
    Long kuorma = 0;
    if (lause([&] { kuorma = CLng(VarastoKuorma(m)); }) < 0) return;

    // One kind's passes: a head a pass while the limit is below the count; false when the run is to stop.
    // A butcher's head gives its meat, a tanner's two furs for 500.
    auto aja = [&](int laatikko, Luokka luokka, double kierroksia, bool turkis) {
        const Laji laji = TEURASLAATIKOT[static_cast<std::size_t>(laatikko)].laji;
        Long& päät = m.El[laji][luokka];
        double raja = 0;
        const int luettu = lause([&] { raja = TeurasRaja(m, 2 * laatikko + (luokka == Uros ? 1 : 0)); });
        if (luettu < 0) return false;
        if (luettu == 0 || !(raja < päät)) return true;
        for (double kierros = 0; kierros < kierroksia && raja < päät; ++kierros) {
            if (m.Koko_Varasto < kuorma) {
                LisääListaan(peli, std::string(kVarastoEsti));
                return false;
            }
            if (lause([&] { Lisää(päät, -1); }) < 0) return false;
            if (turkis) {
                if (lause([&] { Lisää(m.Var[Turkki], 2); }) < 0) return false;
                if (lause([&] { Lisää(m.Raha, -500); }) < 0) return false;
            } else {
                if (lause([&] { Lisää(m.Var[Liha], m.Lihaa[laji][luokka == Uros ? 1 : 0]); }) < 0) return false;
            }
        }
        return true;
    };

    const std::size_t kettulaatikko = TEURASLAATIKOT.size() - 1;
    if (m.Työ[Teurastaja] > 0) {
        const double kierroksia = static_cast<double>(m.Työ[Teurastaja]) + 1;
        for (std::size_t b = 0; b < kettulaatikko; ++b) {
            if (m.Eläimet.Teuras[b] != 1) continue;
            for (Luokka luokka : {Naaras, Uros})
                if (!aja(static_cast<int>(b), luokka, kierroksia, false)) return;
        }
    }
    if (m.Työ[Nahkuri] > 0 && m.Eläimet.Teuras[kettulaatikko] == 1) {
        const double kierroksia = static_cast<double>(m.Työ[Nahkuri]) + 1;
        for (Luokka luokka : {Naaras, Uros})
            if (!aja(static_cast<int>(kettulaatikko), luokka, kierroksia, true)) return;
    }
}

}  // namespace tanhua
