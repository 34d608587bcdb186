// The controls of every screen by name, and how the runner writes them.
#include "ohjaimet.h"

#include "viestit.h"

namespace tanhua {

Integer SeuraavaErä(Integer määrä, int suunta) {
    static constexpr Integer ERÄT[] = {1, 10, 100};
    for (std::size_t i = 0; i < 3; ++i) {
        const std::size_t uusi = i + static_cast<std::size_t>(suunta);
        if (määrä == ERÄT[i] && uusi < 3) return ERÄT[uusi];
    }
    return määrä;
}

const Ohjainluettelo& Ohjaimet() {
    static const Ohjainluettelo luettelo = [] {
        Ohjainluettelo l;
        PääruudunOhjaimet(l);
        AlkuruudunOhjaimet(l);
        EläinruudunOhjaimet(l);
        TuoteruudunOhjaimet(l);
        RakennusruudunOhjaimet(l);
        TyövoimaruudunOhjaimet(l);
        TarvikeruudunOhjaimet(l);
        PankkiruudunOhjaimet(l);
        PeltoruudunOhjaimet(l);
        KylvöruudunOhjaimet(l);
        KäyrätruudunOhjaimet(l);
        RaviruudunOhjaimet(l);
        HevostalliruudunOhjaimet(l);
        TilanneruudunOhjaimet(l);
        ToptenruudunOhjaimet(l);
        SoittimenOhjaimet(l);
        SopimusruudunOhjaimet(l);
        return l;
    }();
    return luettelo;
}

void RuudunOhjaimet::operator()(std::string_view nimi, std::function<Ohjain(const Peli&)> lue) const {
    l_[ruutu_ + std::string(nimi)] = {[lue = std::move(lue)](const Peli& p, int) { return lue(p); }};
}

void RuudunOhjaimet::Taulukko(std::string_view nimi, int koko, int alku,
                              std::function<Ohjain(const Peli&, int)> lue) const {
    l_[ruutu_ + std::string(nimi)] = {std::move(lue), koko, alku};
}

namespace {
// "Name(12)" split into the name and 12; a name without brackets gives -1.
bool Jaa(const std::string& nimi, std::string& perus, int& indeksi) {
    indeksi = -1;
    perus = nimi;
    const auto auki = nimi.find('(');
    if (auki == std::string::npos) return true;
    if (nimi.back() != ')' || auki + 2 > nimi.size() - 1) return false;
    const std::string luku = nimi.substr(auki + 1, nimi.size() - auki - 2);
    if (luku.size() > 4) return false;
    int n = 0;
    for (char c : luku) {
        if (c < '0' || c > '9') return false;
        n = n * 10 + (c - '0');
    }
    perus = nimi.substr(0, auki);
    indeksi = n;
    return true;
}
}  // namespace

std::optional<Ohjain> LueOhjain(const Peli& peli, const std::string& nimi) {
    std::string perus;
    int indeksi = -1;
    if (!Jaa(nimi, perus, indeksi)) return std::nullopt;
    const auto& l = Ohjaimet();
    const auto it = l.find(perus);
    if (it == l.end()) return std::nullopt;
    const OhjainKuvaus& k = it->second;
    // A single control has no index; a member of an array must name one within it.
    if (k.koko == 0 ? indeksi != -1 : (indeksi < k.alku || indeksi >= k.alku + k.koko)) return std::nullopt;
    return k.lue(peli, indeksi);
}

bool Painettavissa(const Peli& peli, const std::string& nimi) {
    const auto o = LueOhjain(peli, nimi);
    return o && o->näkyvissä && o->käytössä;
}

std::string OhjainTekstinä(const Ohjain& o) {
    if (!o.näkyvissä) return "piilossa";
    if (o.väri) return YhdelleRiville(o.arvo) + "|" + VäriTekstinä(*o.väri);
    if (!o.vihje.empty()) return YhdelleRiville(o.arvo) + "|" + YhdelleRiville(o.vihje);
    return YhdelleRiville(o.arvo);
}

Ohjain Näkyvä(std::string arvo, bool käytössä) {
    Ohjain o;
    o.arvo = std::move(arvo);
    o.käytössä = käytössä;
    return o;
}

Ohjain Piilossa() {
    Ohjain o;
    o.näkyvissä = false;
    return o;
}

Ohjain Valinta(bool päällä, bool näkyvissä) {
    Ohjain o;
    o.arvo = päällä ? "True" : "False";
    o.näkyvissä = näkyvissä;
    return o;
}

}  // namespace tanhua
