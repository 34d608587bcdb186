// The wage talks: who comes to the table, and the talk itself from demand to agreement or resignation.
#include "neuvottelut.h"

#include <string>

#include "../core/peli.h"
#include "../core/viestit.h"
#include "taulut/neuvottelut.h"

namespace tanhua {

namespace {
namespace nt = neuvotteluteksti;

std::string S(std::string_view s) { return std::string(s); }

// The states of one talk; Agreed and Resigned end it.
enum class Vaihe { Vaatimus, Kieltäytyi, Miettii };

// The news window of the talk, its text changed as the talk goes on.
void Ikkunaan(Peli& peli, const std::string& teksti) { Kerro(peli, S(nt::Kuva), teksti); }

// Agreed: the raise, even one halved to nothing, is paid from now on and locks the slider.
void Sovittu(Peli& peli, Työläinen k, Integer Korotus) {
    Muuttujat& m = peli.m;
    const std::string Ammatti(TYÖLÄISTAULU[k].avain);
    Lisää(m.Palkka[k], Korotus);
    Ikkunaan(peli, S(k == Tallimestari ? nt::SovittuTallimestari : nt::Sovittu) + Str(m.Palkka[k]) +
                       S(nt::UusiPalkkaLoppu));
    LisääListaan(peli, Ammatti + S(nt::Korotus));
    m.PalkkaLukko[k] = true;
}

// Resigned: one worker goes, and his lawyer bills the farm; the cash may go below zero.
void Erosi(Peli& peli, Työläinen k) {
    Muuttujat& m = peli.m;
    const std::string Ammatti(TYÖLÄISTAULU[k].avain);
    Lisää(m.Työ[k], -1);
    const Long B = CLng(Int(2.0 * m.Palkka[k] * peli.arvonta.r()) + 1000);
    Ilmoita(peli, S(nt::EiMiellyttänyt) + Ammatti + S(nt::Lopputili) + Str(B) + S(nt::Laskun));
    Lisää(m.Raha, -static_cast<double>(B));
    Ikkunaan(peli, Ammatti + S(nt::LopputiliJa) + Str(B) + S(nt::Korvausvaatimus));
    LisääListaan(peli, Ammatti + S(nt::OttiLopputilin));
}

// One talk. True when it ended in an agreement (the round goes on), false after a resignation.
bool Neuvottele(Peli& peli, const NeuvotteluRivi& rivi, Integer Korotus) {
    const Työläinen k = rivi.työ;
    const std::string Ammatti(TYÖLÄISTAULU[k].avain);
    const Integer VanhaPalkka = peli.m.Palkka[k];
    Ikkunaan(peli, S(rivi.avaus));
    Vaihe vaihe = Vaihe::Vaatimus;
    for (;;) {
        switch (vaihe) {
            case Vaihe::Vaatimus: {
                const std::string vaatimus =
                    "\n" + S(nt::Otsikko) + "\n\n" + Ammatti + S(nt::Tyytymätön) + "\n" + Ammatti + S(nt::Vaatimus) +
                    Str(static_cast<int>(VanhaPalkka) + Korotus) + S(nt::Kuukaudessa) + "\n\n" + S(nt::Suostutko);
                if (KysyKyllä(peli, vaatimus)) {
                    Sovittu(peli, k, Korotus);
                    return true;
                }
                vaihe = Vaihe::Kieltäytyi;
                break;
            }
            case Vaihe::Kieltäytyi:
                if (peli.arvonta.U(1, 2) == 1) {
                    Erosi(peli, k);
                    return false;
                }
                vaihe = Vaihe::Miettii;
                break;
            case Vaihe::Miettii:
                Ilmoita(peli, Ammatti + S(nt::Miettii));
                Aseta(Korotus, Int(Korotus / 2.0));
                Ikkunaan(peli, S(nt::EiVielä));
                vaihe = Vaihe::Vaatimus;
                break;
        }
    }
}
}  // namespace

void Palkkaneuvottelut(Peli& peli) {
    Muuttujat& m = peli.m;
    const long long N = 36 - 2 * static_cast<long long>(m.Vaikeustaso);
    for (const NeuvotteluRivi& rivi : NEUVOTTELIJAT) {
        const Työläinen k = rivi.työ;
        // Three draws for every job, talking or not, so the round's draws don't depend on who works.
        const long long d = peli.arvonta.U(1, N);
        const Long t = CLng(m.Palkka[k] - Int(2.0 * m.PerusPalkka[k] * peli.arvonta.r()) + 100);
        const Integer Korotus = CInt(static_cast<double>(peli.arvonta.U(100, 599)));
        const bool alkaa = m.Palkka[k] < m.PerusPalkka[k] + Korotus && t < 3 && d == 1 && m.Työ[k] > 0;
        if (!alkaa) continue;
        if (!Neuvottele(peli, rivi, Korotus)) return;  // a resignation ends the day's talks
    }
}

}  // namespace tanhua
