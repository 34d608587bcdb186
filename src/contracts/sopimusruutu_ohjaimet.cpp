// The controls of the contracts screen as the player sees them.
#include <string>

#include "core/ohjaimet.h"
#include "core/peli.h"
#include "sopimukset.h"

namespace tanhua {

namespace {
const SopimusRuutuTila& R(const Peli& p) { return p.sopimusruutu; }

Ohjain Lapulla(bool lappu, std::string arvo) { return lappu ? Näkyvä(std::move(arvo)) : Piilossa(); }

std::string Lista(const std::vector<std::string>& rivit) {
    std::string t;
    for (const std::string& r : rivit) t += (t.empty() ? "" : "|") + r;
    return t;
}

// The figures of a slot's row, plain, as the labels show them.
struct Sarake {
    const char* nimi;
    std::string (*arvo)(const Sopimus&);
};
constexpr Sarake SARAKKEET[] = {
    {"tuotez", [](const Sopimus& s) { return s.Tuote; }},
    {"hintaz", [](const Sopimus& s) { return Kuukausiluku(s.Hinta); }},
    {"määräz", [](const Sopimus& s) { return Kuukausiluku(s.Määrä); }},
    {"sakkoz", [](const Sopimus& s) { return std::to_string(s.Sakko); }},
    {"bonusz", [](const Sopimus& s) { return std::to_string(Bonus(s.Sakko)); }},
    {"kestoz", [](const Sopimus& s) { return Kestoteksti(s.Kesto); }},
};
}  // namespace

void SopimusruudunOhjaimet(Ohjainluettelo& l) {
    const RuudunOhjaimet yksi(l, "Sopimukset");
    yksi("Command1", [](const Peli&) { return Näkyvä("Sulje"); });
    yksi("Command5", [](const Peli&) { return Näkyvä("Uudet sopimukset"); });
    yksi("Command6", [](const Peli&) { return Näkyvä("Sopimukset"); });

    // The sheet of waiting offers, with the call.
    auto tarjous = [&yksi](const char* nimi, std::function<std::string(const Peli&)> arvo) {
        yksi(nimi, [arvo](const Peli& p) { return Lapulla(R(p).Tarjouslappu, arvo(p)); });
    };
    tarjous("Tarjouslappu", [](const Peli&) { return "Uudet sopimukset"; });
    tarjous("Sopimuksia", [](const Peli& p) { return Lista(p.näkymä.Sopimuksia); });
    yksi.Taulukko("infoa", 2, 0, [](const Peli& p, int) { return Lapulla(R(p).Tarjouslappu, R(p).infoa); });
    tarjous("Command3", [](const Peli&) { return "Hyväksy"; });
    tarjous("Command2", [](const Peli&) { return "Hylkää"; });
    tarjous("Command9", [](const Peli&) { return "Sulje"; });

    // The sheet of the three slots.
    auto paikat = [&yksi](const std::string& nimi, std::function<std::string(const Peli&)> arvo) {
        yksi(nimi, [arvo](const Peli& p) { return Lapulla(R(p).Sopimuslappu, arvo(p)); });
    };
    paikat("Sopimuslappu", [](const Peli&) { return "Sopimukset"; });
    for (std::size_t i = 0; i < SOPIMUSPAIKKOJA; ++i)
        for (const Sarake& s : SARAKKEET)
            paikat("s" + std::to_string(i + 1) + s.nimi, [i, f = s.arvo](const Peli& p) { return f(p.m.Sop[i]); });
    paikat("yhttulot", [](const Peli& p) {
        long long yht = 0;
        for (const Sopimus& s : p.m.Sop) yht += s.Hinta;
        return std::to_string(yht);
    });
    paikat("sopimusläpiz", [](const Peli& p) { return std::to_string(p.m.SopimuksiaLäpi); });
    paikat("sopimusepäz", [](const Peli& p) { return std::to_string(p.m.SopimuksiaEpä); });
    paikat("Peruttava", [](const Peli& p) { return R(p).Peruttava; });
    paikat("Command7", [](const Peli&) { return "Peru sopimus"; });
    paikat("Command8", [](const Peli&) { return "Sulje"; });
}

}  // namespace tanhua
