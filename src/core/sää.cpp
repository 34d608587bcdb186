// The weather of the day: a slow random walk of temperature and clouds inside each month's band.
#include "sää.h"

#include <algorithm>
#include <optional>

#include "peli.h"

namespace tanhua {

namespace {
struct Lämpöraja {
    int ala, ylä;
};
// The temperature band of each month, January first.
inline constexpr std::array<Lämpöraja, 12> LÄMPÖRAJAT{
    Lämpöraja{-30, 0}, {-35, -5}, {-20, 10}, {-10, 15}, {5, 20}, {10, 32},
    {15, 35},          {10, 27},  {0, 20},   {-8, 10},  {-15, 5}, {-20, 0},
};

// The day's step of temperature by season: from -2 up to this.
std::optional<int> LämpöaskelYlös(const std::string& vuodenaika) {
    if (vuodenaika == "Talvi" || vuodenaika == "Kesä") return 2;
    if (vuodenaika == "Kevät") return 4;
    if (vuodenaika == "Syksy") return 1;
    return std::nullopt;
}

inline constexpr std::array<double, 7> AURINKO{0, 0.8, 0.4, 0.2, 0, 0, 0};  // by Pilvisyys
inline constexpr std::array<double, 7> SADE{0, 0, 0, 0, 0.2, 0.4, 0.8};
}  // namespace

void Keli(Peli& peli) {
    Muuttujat& m = peli.m;
    Aseta(m.Aurinkoisuus, m.Aurinkoisuus * 0.92);
    Aseta(m.Sateisuus, m.Sateisuus * 0.92);
    if (const auto ylös = LämpöaskelYlös(m.Vuodenaika)) {
        Lisää(m.Lämpötila, static_cast<double>(peli.arvonta.U(-2, *ylös)));
    } else {
        peli.kanavat.Laatikko("Tanhua havaitsi virheen vuodenajan asetemuutoksessa!");
    }
    // Outside its band the temperature comes back by 1 to 3 degrees a day.
    const long long x = peli.arvonta.U(1, 3);
    if (m.Kuukausi >= 1 && m.Kuukausi <= 12) {
        const Lämpöraja& raja = LÄMPÖRAJAT[m.Kuukausi - 1];
        if (m.Lämpötila < raja.ala) Lisää(m.Lämpötila, static_cast<double>(x));
        if (m.Lämpötila > raja.ylä) Lisää(m.Lämpötila, -static_cast<double>(x));
    } else {
        peli.kanavat.Laatikko("Ongelma säätilan tarkastuksessa. Tuntematon kuukausi");
    }
    Aseta(m.Pilvisyys, std::clamp<long long>(m.Pilvisyys + peli.arvonta.U(-2, 2), 1, 6));
    int kuva = SääKuvaPilvisyydestä(m.Pilvisyys, m.Lämpötila);
    // Both chances are drawn every day; hail wins over thunder.
    const bool ukkonen = peli.arvonta.U(0, 11) == 0;
    if (ukkonen && m.Lämpötila >= 16 && m.Pilvisyys >= 2) kuva = 8;
    const bool rakeet = peli.arvonta.U(0, 24) == 0;
    if (rakeet && m.Lämpötila >= 1 && m.Lämpötila < 30 && m.Pilvisyys < 3) kuva = 9;
    peli.näkymä.SääKuva = kuva;
    Lisää(m.Aurinkoisuus, AURINKO[m.Pilvisyys]);
    Lisää(m.Sateisuus, SADE[m.Pilvisyys]);
}

int SääKuvaPilvisyydestä(int pilvisyys, int lämpötila) {
    if (pilvisyys >= 1 && pilvisyys <= 4) return pilvisyys - 1;
    if (pilvisyys == 5 || pilvisyys == 6) return (lämpötila >= 0 ? 4 : 6) + (pilvisyys - 5);
    return -1;
}

LämpötilaNäyttö AsteLuku(int t) {
    auto osa = [](int x) { return std::clamp(x, 0, 255); };
    if (t >= 0) return {"+" + Str(t) + " °c", osa(125 + 5 * t), osa(120 - 2 * t), osa(2 * t)};
    return {Str(t) + " °c", osa(200 + 6 * t), osa(120 + 3 * t), osa(255 - 5 * t)};
}

}  // namespace tanhua
