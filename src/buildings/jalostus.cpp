// The processing chains: the shift rule of every worker chain, the seasonal yards, the feed plant
// and the day's order of them.
#include "jalostus.h"

#include "../animals/eläimet.h"
#include "../core/peli.h"
#include "../land/maat.h"
#include "taulut/jalostus.h"

namespace tanhua {

double PäivänKuorma(const Peli& peli) { return peli.päivänKuorma ? *peli.päivänKuorma : VarastoKuorma(peli.m); }

JalostuksenLuvut::JalostuksenLuvut(Peli& peli) : peli_(peli), omat_(!peli.päivänKuorma) {
    if (!omat_) return;
    peli_.päivänKuorma = VarastoKuorma(peli_.m);
    peli_.päivänRehuTarve = RehuTarve(peli_.m);
    peli_.päivänKausiarvo.reset();
}

JalostuksenLuvut::~JalostuksenLuvut() {
    if (!omat_) return;
    peli_.päivänKuorma.reset();
    peli_.päivänRehuTarve.reset();
    peli_.päivänKausiarvo.reset();
}

double Kausiarvo(const Muuttujat& m) {
    double s = 0;
    if (m.Vuodenaika == "Kevät") s = 3;
    else if (m.Vuodenaika == "Kesä") s = 5;
    else if (m.Vuodenaika == "Syksy") s = 6;
    else return 0;
    if (m.Tarv[Kastelujärjestelmä]) s += 1;
    // Frost below -32 degrees takes nothing away; it only stops adding.
    const double lämpö = (m.Lämpötila + 32) * 0.02;
    if (lämpö > 0) s += lämpö;
    s += static_cast<double>(m.Sateisuus) * m.Aurinkoisuus * 0.2;
    return s;
}

double& PäivänKausiarvo(Peli& peli) {
    if (!peli.päivänKausiarvo) peli.päivänKausiarvo = Kausiarvo(peli.m);
    return *peli.päivänKausiarvo;
}

namespace {

// Whether a job's chain runs today: a building and a worker, a store not over full, and a
// weekday or the job on overtime. A chain that doesn't run draws and pays nothing.
bool VuoroAlkaa(const Peli& peli, Rakennus rakennus, Työläinen työ) {
    const Muuttujat& m = peli.m;
    return m.Rak[rakennus] > 0 && m.Työ[työ] > 0 && !(PäivänKuorma(peli) > m.Koko_Varasto) &&
           (!m.Viikonloppu || m.Ylityö[työ]);
}

// The worker's overtime bonus k: 0, or with overtime one draw of 0 or 1, paid Int(wage / D1) x k.
int Ylityölisä(Peli& peli, Työläinen työ, int d1) {
    Muuttujat& m = peli.m;
    if (!m.Ylityö[työ]) return 0;
    const int k = static_cast<int>(peli.arvonta.U(0, 1));
    Lisää(m.YlityöPalkat, Int(m.Palkka[työ] / static_cast<double>(d1)) * k);
    return k;
}

// A weekend shift costs Int(wage / D2) on top, whether there was material or not.
void Viikonloppupalkka(Peli& peli, Työläinen työ, int d2) {
    Muuttujat& m = peli.m;
    if (m.Viikonloppu) Lisää(m.YlityöPalkat, Int(m.Palkka[työ] / static_cast<double>(d2)));
}

// Adds to a stock; a "round" recipe rounds the whole new stock, not only what was added, so a
// fraction left by another path goes too.
void LisääTuotetta(Muuttujat& m, Tuote tuote, double määrä, bool pyöristys) {
    const double uusi = static_cast<double>(m.Var[tuote]) + määrä;
    Aseta(m.Var[tuote], pyöristys ? Round(uusi) : uusi);
}

// The recipe: only with more raw stock than n, as equal is not enough.
void Resepti(Muuttujat& m, const KetjuRivi& r, Long n) {
    if (!(m.Var[r.raaka] > n)) return;
    Lisää(m.Var[r.raaka], -static_cast<double>(n));
    LisääTuotetta(m, r.tuote, r.saanto * n, r.pyöristys);
}

// The bakery makes bread, then pastry, from one n; pastry tests the flour that bread left.
void Leivonta(Muuttujat& m, const KetjuRivi& r, Long n) {
    Resepti(m, r, n);
    if (m.Var[Muna] > n && m.Var[Jauho] > n) {
        Lisää(m.Var[Jauho], -static_cast<double>(n));
        Lisää(m.Var[Muna], -static_cast<double>(n));
        LisääTuotetta(m, Leivos, LEIVOS_SAANTO * n, true);
    }
}

void Vuoro(Peli& peli, const KetjuRivi& r) {
    Muuttujat& m = peli.m;
    if (!VuoroAlkaa(peli, r.rakennus, r.työ)) return;
    int laitteet = 0;
    for (int i = 0; i < r.laitteita; ++i) laitteet += m.Tarv[r.laitteet[static_cast<std::size_t>(i)]] ? 1 : 0;
    for (Long työntekijä = 0; työntekijä < m.Työ[r.työ]; ++työntekijä) {
        // k is drawn before the work's own draw.
        const int k = Ylityölisä(peli, r.työ, r.d1);
        const long long työ = r.perus + peli.arvonta.U(0, r.vaihtelu) + m.Moti[r.työ] + k + laitteet;
        // The percentage cuts the work: work x percentage, whole, integer-divided by 100.
        const Long n = JakoKok(static_cast<double>(työ) * m.Tuotanto[r.rakennus], 100);
        if (r.rakennus == Leipomo) Leivonta(m, r, n);
        else Resepti(m, r, n);
        Viikonloppupalkka(peli, r.työ, r.d2);
    }
}

// A seasonal yard adds with no test; each worker's addition comes from its own draw r after k.
template <class Lisäys>
void Tarha(Peli& peli, const TarhaRivi& t, Lisäys lisäys) {
    Muuttujat& m = peli.m;
    for (Long työntekijä = 0; työntekijä < m.Työ[t.työ]; ++työntekijä) {
        const int k = Ylityölisä(peli, t.työ, t.d1);
        const double r = peli.arvonta.r();
        Lisää(m.Var[t.tuote], lisäys(r) + m.Moti[t.työ] + k);
        Viikonloppupalkka(peli, t.työ, t.d2);
    }
}

// The bee yard heads the season block: the day's season value is worked out here, and a berry
// yard on the farm is pollinated when the bee-keepers work.
void Mehiläiset(Peli& peli) {
    const Muuttujat& m = peli.m;
    double& s = peli.päivänKausiarvo.emplace(Kausiarvo(m));
    const TarhaRivi& t = TARHATAULU[TarhaMehiläiset];
    if (!VuoroAlkaa(peli, t.rakennus, t.työ)) return;
    if (m.Rak[Marjatarha] > 0) s += m.Rak[Marjatarha];
    Tarha(peli, t, [&](double r) { return Int((6 + s) * r) + 1; });
}

void Vihannekset(Peli& peli) {
    const TarhaRivi& t = TARHATAULU[TarhaVihannekset];
    if (!VuoroAlkaa(peli, t.rakennus, t.työ)) return;
    const double s = PäivänKausiarvo(peli);
    Tarha(peli, t, [&](double r) { return Int(s * r + 1) + 1; });
}

// The berry round: its own k for each gardener, and the bees' pollination of the rest of the block.
void Marjat(Peli& peli) {
    const Muuttujat& m = peli.m;
    const TarhaRivi& t = TARHATAULU[TarhaMarjat];
    if (!VuoroAlkaa(peli, t.rakennus, t.työ)) return;
    double& s = PäivänKausiarvo(peli);
    if (m.Rak[Mehiläistarha] > 0) s += m.Rak[Mehiläistarha];
    Tarha(peli, t, [&](double r) { return Int(2 * s + 7 * r); });
}

// The feed plant needs no worker and works weekends too. Its wish comes from the herd's feed
// estimate as the day's feeding took it; a mill on the farm cuts it to a fifth of the estimate.
void Rehuntuotantolaitos(Peli& peli) {
    Muuttujat& m = peli.m;
    if (!(m.Pelto > 0 && m.Rak[Rehuntuotanto] > 0)) return;
    const double tarve = peli.päivänRehuTarve ? *peli.päivänRehuTarve : RehuTarve(m);
    const double osuus = m.Rak[Mylly] > 0 ? 5 : 2;
    Long g = CLng(Int(tarve / osuus * peli.arvonta.r()) + 1);
    g = JakoKok(static_cast<double>(g) * m.Tuotanto[Rehuntuotanto], 100);
    if (!(m.Var[Vilja] > g)) return;
    // The limit comes after the grain test: a wish above the stock stops the plant even when
    // the limit would have fitted.
    const double taso = m.Rak[Rehuntuotanto];
    const double raja = taso * taso * taso + 9;
    if (g > raja) g = CLng(raja);
    if (PäivänKuorma(peli) > m.Koko_Varasto) return;
    // Feed is not held to the silo's size here.
    Lisää(m.Var[Rehu], 1.2 * g);
    Lisää(m.RehuaTuotettu, 1.2 * g);
    Lisää(m.Var[Vilja], -static_cast<double>(g));
    Lisää(m.ViljaaKäytetty, g);
}

}  // namespace

void Jalostus(Peli& peli, Rakennus rakennus) {
    switch (rakennus) {
        case Rehuntuotanto: return Rehuntuotantolaitos(peli);
        case Mehiläistarha: return Mehiläiset(peli);
        case Kasvihuone: return Vihannekset(peli);
        case Marjatarha: return Marjat(peli);
        default: break;
    }
    for (const KetjuRivi& r : KETJUTAULU)
        if (r.rakennus == rakennus) return Vuoro(peli, r);
}

void Jalostus(Peli& peli) {
    const JalostuksenLuvut luvut(peli);
    const Muuttujat& m = peli.m;
    Jalostus(peli, Rehuntuotanto);
    // The store gate: above its size no staff work today; at exactly full they still work.
    if (PäivänKuorma(peli) > m.Koko_Varasto) return;
    Metsänhakkuu(peli);
    Jalostus(peli, Saha);
    if (m.Vuodenaika != "Talvi") {
        Jalostus(peli, Mehiläistarha);
        Jalostus(peli, Kasvihuone);
        Jalostus(peli, Marjatarha);
        Viljankasvu(peli);
    }
    // The mill before the bakery, so today's flour is baked today.
    for (const Rakennus r : {Meijeri, Mylly, Ompelimo, Leipomo, Teurastamo}) Jalostus(peli, r);
    // Wine makers work through the winter on stored berries.
    Jalostus(peli, Viinitehdas);
}

}  // namespace tanhua
