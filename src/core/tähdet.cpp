// The star rating of the farm.
#include "tähdet.h"

#include "laskenta.h"
#include "peli.h"
#include "taulut/tähdet.h"
#include "viestit.h"

namespace tanhua {

namespace {
double Tarvikkeita(const Muuttujat& m) {
    double n = 0;
    for (Boolean omistettu : m.Tarv) n += omistettu ? 1 : 0;
    return n;
}

// Staff and buildings count as they stood when the next-day button was pressed.
bool Täyttää(const Muuttujat& m, const TähtiRivi& t) {
    return Navettakuorma(m) >= t.aikuisia && m.Koko_Siilo >= t.siilo && m.Koko_Varasto >= t.varasto &&
           m.TyöntekijöitäYht >= t.työntekijöitä && Tarvikkeita(m) >= t.tarvikkeita && MaataYhteensä(m) > t.maata &&
           m.RakennuksiaYht >= t.rakennuksia && m.SopimuksiaLäpi >= t.sopimuksia;
}
}  // namespace

void TähtiTarkastus(Peli& peli) {
    Muuttujat& m = peli.m;
    if (!m.TähtiLukitus || m.Tähdet >= 5) return;
    const TähtiRivi& seuraava = TÄHTITAULU[m.Tähdet];
    if (!Täyttää(m, seuraava)) return;
    Aseta(m.Tähdet, m.Tähdet + 1);
    Kerro(peli, std::string(TÄHTIKUVA), std::string(seuraava.uutinen));
    Lisää(m.Raha, seuraava.palkinto);
}

void NäytäTähti(Peli& peli, int indeksi) {
    if (indeksi < 0 || indeksi >= 5) return;
    if (indeksi == 4 && peli.m.Tähdet >= 5) {
        Kerro(peli, std::string(TÄHTIKUVA), std::string(KAIKKI_TÄHDET));
        return;
    }
    Ilmoita(peli, std::string(TÄHTITAULU[indeksi].vaatimus));
}

std::string LukonVihje(int tähdet) {
    return "Lukittu. Avautuu, kun tilallasi on" + Str(static_cast<long long>(tähdet)) +
           (tähdet == 1 ? " tähti." : " tähteä.");
}

}  // namespace tanhua
