// Supply contracts: the call requests of the day, the month's sweep of them, and the month's delivery.
#include "sopimukset.h"

#include "../core/peli.h"
#include "../core/viestit.h"

namespace tanhua {

namespace {

// The source of an offer's condition and base amount, as the farm holds it now.
double Lähteestä(const Muuttujat& m, const TarjousRivi& rivi) {
    switch (rivi.lähde) {
        case Lähde::Lehmä: return m.El[Nauta][Naaras];
        case Lähde::Sika: return m.El[Sika][Naaras];
        case Lähde::Lammas: return m.El[Lammas][Naaras];
        case Lähde::Kana: return m.El[Kana][Naaras];
        case Lähde::Kettu: return m.El[Kettu][Naaras];
        case Lähde::Työ: return m.Työ[rivi.työ];
        case Lähde::Pelto: return m.Pelto;
    }
    return 0;
}

std::string Ilmoitusteksti(const Ilmoitus& i, const std::string& tuote, const std::string& luku) {
    std::string t(i.alku);
    if (i.nimellä) t += tuote + std::string(i.keski);
    return t + luku + std::string(i.loppu);
}

// The month finds the stock short: one of five notices, and only once it is closed the penalty.
void Riko(Peli& peli, Sopimus& s) {
    Muuttujat& m = peli.m;
    const std::string nimi = s.Tuote == "Muna" ? "Kananmuna" : s.Tuote;
    const Ilmoitus& i = RIKOTTU[static_cast<std::size_t>(peli.arvonta.U(0, 4))];
    KerroJaOdota(peli, std::string(sopimusteksti::Kuva), Ilmoitusteksti(i, nimi, Str(s.Sakko)));
    Lisää(m.Raha, -static_cast<double>(s.Sakko));
    Lisää(m.Sopimustulot, -static_cast<double>(s.Sakko));
    Lisää(m.SopimuksiaEpä, 1);
    s = Sopimus{};
}

// The last month delivered: one of five notices, then the bonus.
void Täytä(Peli& peli, Sopimus& s) {
    Muuttujat& m = peli.m;
    const Long b = Bonus(s.Sakko);
    const Ilmoitus& i = TÄYTETTY[static_cast<std::size_t>(peli.arvonta.U(0, 4))];
    KerroJaOdota(peli, std::string(sopimusteksti::Kuva), Ilmoitusteksti(i, s.Tuote, Str(b)));
    Lisää(m.Raha, b);
    Lisää(m.Sopimustulot, b);
    Lisää(m.SopimuksiaLäpi, 1);
    s = Sopimus{};
}

}  // namespace

std::optional<TarjousRivi> TarjousNimellä(const std::string& tuote) {
    for (const TarjousRivi& rivi : TARJOUKSET)
        if (rivi.teksti == tuote) return rivi;
    return std::nullopt;
}

bool TarjousEhto(const Muuttujat& m, const TarjousRivi& rivi) { return Lähteestä(m, rivi) > rivi.raja; }

double PerusMäärä(const Muuttujat& m, const TarjousRivi& rivi) {
    // Grain counts whole hectares of field, a half going to the even one.
    return PyöristäParilliseen(rivi.kerroin * Lähteestä(m, rivi));
}

void Sopimustarjous(Peli& peli) {
    Muuttujat& m = peli.m;
    Näkymä& n = peli.näkymä;
    // The product is drawn only on a call before day 10; the third draw is taken every day.
    if (peli.arvonta.U(0, 8) == 0 && m.Päivä < 10) {
        const TarjousRivi& rivi = TARJOUKSET[static_cast<std::size_t>(peli.arvonta.U(0, 17))];
        // A farm that can't make the product gets no call; the day's chance is lost.
        if (TarjousEhto(m, rivi)) {
            n.Sopimuksia.emplace_back(rivi.teksti);
            LisääListaan(peli, std::string(sopimusteksti::Soittopyyntö));
            n.Puhelin = true;
        }
    }
    const long long x = peli.arvonta.U(0, 24);
    // From day 17 on the oldest request dies every day.
    if ((x == 0 || m.Päivä > 16) && !n.Sopimuksia.empty()) {
        PoistaTarjous(peli, 0);
        if (n.Sopimuksia.empty()) n.Puhelin = false;
    }
}

void TarjousSiivous(Peli& peli) {
    // The draw is taken whether or not offers are waiting, so the month's draws keep their order.
    // The phone keeps ringing until the screen is opened.
    if (peli.arvonta.U(0, 2) == 0) {
        peli.näkymä.Sopimuksia.clear();
        LopetaPuhelu(peli.sopimusruutu);
    }
}

void SopimusKuukausi(Peli& peli) {
    Muuttujat& m = peli.m;
    for (Sopimus& s : m.Sop) {
        if (s.Tuote.empty()) continue;
        // A product no buyer asks for (a damaged save) has no stock to deliver from.
        const auto rivi = TarjousNimellä(s.Tuote);
        Single* varasto = rivi ? &m.Var[rivi->tuote] : nullptr;
        if (varasto == nullptr || static_cast<double>(*varasto) < s.Määrä) {
            Riko(peli, s);
            continue;
        }
        Lisää(*varasto, -static_cast<double>(s.Määrä));
        Lisää(m.Raha, s.Hinta);
        Lisää(m.Sopimustulot, s.Hinta);
        // A length of K delivers K + 1 times: the months counted down and the one that finds 0.
        if (s.Kesto > 0) {
            Lisää(s.Kesto, -1);
            continue;
        }
        Täytä(peli, s);
    }
}

Long Bonus(Long sakko) { return CLng(Int(0.7 * sakko)); }

}  // namespace tanhua
