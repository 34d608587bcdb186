// The names of the farm record's values, for the runner's set, print and dump.
#include "kentät.h"

#include "peli.h"

namespace tanhua {

namespace {
std::string S(std::string_view s) { return std::string(s); }

class Luettelo {
public:
    template <class T>
    void operator()(std::string nimi, T& arvo) { kentät.push_back({std::move(nimi), &arvo}); }
    std::vector<Kenttä> kentät;
};

void Tuotteet(Luettelo& l, Muuttujat& m) {
    for (std::size_t k = 0; k < TUOTTEITA; ++k) l("Var_" + S(TUOTETAULU[k].avain), m.Var[k]);
    for (std::size_t k = 0; k < TUOTTEITA; ++k) l("Kurssi_" + S(TUOTETAULU[k].avain), m.Kurssi[k]);
    for (std::size_t k = 0; k < TUOTTEITA; ++k) l("PerusHinta_" + S(TUOTETAULU[k].avain), m.PerusHinta[k]);
    for (std::size_t k = 0; k < TUOTTEITA; ++k) l("Tulo_" + S(TUOTETAULU[k].avain), m.Tulo[k]);
    for (std::size_t k = 0; k < TUOTTEITA; ++k) l("EdTulo_" + S(TUOTETAULU[k].avain), m.EdTulo[k]);
}

void Eläimet(Luettelo& l, Muuttujat& m) {
    for (std::size_t s = 0; s < LAJEJA; ++s) {
        const LajiRivi& r = LAJITAULU[s];
        l("El_" + S(r.naaras), m.El[s][Naaras]);
        l("El_" + S(r.naaras) + "1", m.El[s][Nuori]);
        l("El_" + S(r.naaras) + "2", m.El[s][Poikanen]);
        l("El_" + S(r.uros), m.El[s][Uros]);
    }
    for (std::size_t s = 0; s < LAJEJA; ++s) l("Syönti_" + S(LAJITAULU[s].laji), m.Syönti[s]);
    for (std::size_t s = 0; s < LAJEJA; ++s) l("EdSyönti_" + S(LAJITAULU[s].laji), m.EdSyönti[s]);
    for (std::size_t s = 0; s < LAJEJA; ++s) {
        if (LAJITAULU[s].lihaaNaaras == 0) continue;
        l("Lihaa_" + S(LAJITAULU[s].naaras), m.Lihaa[s][0]);
        l("Lihaa_" + S(LAJITAULU[s].uros), m.Lihaa[s][1]);
    }
}

std::string TyömaanAvain(std::size_t i) {
    return i < RAKENNUKSIA ? S(RAKENNUSTAULU[i].avain) : S(TILATAULU[i - RAKENNUKSIA].avain);
}

void Rakennukset(Luettelo& l, Muuttujat& m) {
    l("Koko_Navetta", m.Koko_Navetta);
    l("Koko_Siilo", m.Koko_Siilo);
    l("Koko_Varasto", m.Koko_Varasto);
    for (std::size_t i = 0; i < TYÖMAITA; ++i) l("RakAika_" + TyömaanAvain(i), m.RakAika[i]);
    for (std::size_t i = 0; i < TYÖMAITA; ++i) l("RakTilaus_" + TyömaanAvain(i), m.RakTilaus[i]);
    for (std::size_t i = 0; i < RAKENNUKSIA; ++i) l("Rak_" + S(RAKENNUSTAULU[i].avain), m.Rak[i]);
    for (std::size_t i = 0; i < RAKENNUKSIA; ++i)
        if (RAKENNUSTAULU[i].tuotanto) l("Tuotanto_" + S(RAKENNUSTAULU[i].avain), m.Tuotanto[i]);
    l("PakkaamoMax", m.PakkaamoMax);
    l("PakkaamoKerroin", m.PakkaamoKerroin);
    l("PakkaamoKäsitelty", m.PakkaamoKäsitelty);
    l("PakkaamoTulot", m.PakkaamoTulot);
}

void Työvoima(Luettelo& l, Muuttujat& m) {
    for (std::size_t k = 0; k < TYÖLÄISIÄ; ++k) l("Työ_" + S(TYÖLÄISTAULU[k].avain), m.Työ[k]);
    for (std::size_t k = 0; k < TYÖLÄISIÄ; ++k) l("Palkka_" + S(TYÖLÄISTAULU[k].avain), m.Palkka[k]);
    for (std::size_t k = 0; k < TYÖLÄISIÄ; ++k) l("PerusPalkka_" + S(TYÖLÄISTAULU[k].avain), m.PerusPalkka[k]);
    for (std::size_t k = 0; k < TYÖLÄISIÄ; ++k) l("Ylityö_" + S(TYÖLÄISTAULU[k].avain), m.Ylityö[k]);
    for (std::size_t k = 0; k < TYÖLÄISIÄ; ++k) l("Moti_" + S(TYÖLÄISTAULU[k].avain), m.Moti[k]);
    for (std::size_t k = 0; k < TYÖLÄISIÄ; ++k) l("PalkkaLukko_" + S(TYÖLÄISTAULU[k].avain), m.PalkkaLukko[k]);
    for (std::size_t k = 0; k < TARVIKKEITA; ++k) l("Tarv_" + S(TARVIKETAULU[k].avain), m.Tarv[k]);
}

void Maat(Luettelo& l, Muuttujat& m) {
    l("Metsä", m.Metsä);
    l("Pelto", m.Pelto);
    l("Joutomaa", m.Joutomaa);
    l("Laidun", m.Laidun);
    for (std::size_t k = 0; k < MAITA; ++k) l("PerusMaa_" + S(MAATAULU[k].avain), m.PerusMaa[k]);
    for (std::size_t k = 0; k < MAITA; ++k) l("MaaKurssi_" + S(MAATAULU[k].avain), m.MaaKurssi[k]);
    l("MetsääJäljellä", m.MetsääJäljellä);
    l("LantaPeltoon", m.LantaPeltoon);
    l("LautaRakennukseen", m.LautaRakennukseen);
    l("Pellot.Metsitä", m.Pellot_Metsitä);
    for (std::size_t k = 0; k < KASVEJA; ++k) l("Siemen_" + S(KASVIAVAIMET[k]), m.Siemen[k]);
}

void Sopimukset(Luettelo& l, Muuttujat& m) {
    for (int i = 0; i < SOPIMUSPAIKKOJA; ++i) {
        const std::string s = "Sop" + std::to_string(i + 1);
        l(s + "Tuote", m.Sop[i].Tuote);
        l(s + "Määrä", m.Sop[i].Määrä);
        l(s + "Hinta", m.Sop[i].Hinta);
        l(s + "Sakko", m.Sop[i].Sakko);
        l(s + "Kesto", m.Sop[i].Kesto);
    }
    l("SopimuksiaLäpi", m.SopimuksiaLäpi);
    l("SopimuksiaEpä", m.SopimuksiaEpä);
    l("Sopimustulot", m.Sopimustulot);
}

void Ruudut(Luettelo& l, Muuttujat& m) {
    for (std::size_t k = 0; k < TUOTTEITA; ++k) {
        const std::string nimi = k == Rehu ? "Tuotteet.OstaRehu" : "Tuotteet.Myy" + S(TUOTETAULU[k].avain);
        l(nimi, m.Tuotteet.Myy[k]);
        l(nimi + "Tyyli", m.Tuotteet.MyyTyyli[k]);
    }
    l("Tuotteet.rulla", m.Tuotteet.rulla);
    static constexpr std::array<const char*, TEURASLAATIKOITA> laatikot{"Lehmä", "Lammas", "Sika", "Kana", "Kettu"};
    static constexpr std::array<const char*, 2 * TEURASLAATIKOITA> rajat{
        "Lehmä", "Sonni", "Lammas", "Pässi", "Sika", "Karju", "Kana", "Kukko", "Kettu", "KettuUros"};
    for (int i = 0; i < TEURASLAATIKOITA; ++i) l(S("Eläimet.Teuras") + laatikot[i], m.Eläimet.Teuras[i]);
    for (int i = 0; i < 2 * TEURASLAATIKOITA; ++i) l(S("Eläimet.Teuras") + rajat[i] + "Raja", m.Eläimet.TeurasRaja[i]);
    static constexpr std::array<const char*, VAKUUTUKSIA> vakuutukset{"Eläin", "Palo", "Työ", "Varkaus", "Tarvike"};
    for (int i = 0; i < VAKUUTUKSIA; ++i) l(S("Pankki.Vakuutus") + vakuutukset[i], m.Pankki.Vakuutus[i]);
    l("Hevostalli.rulla", m.Hevostalli_rulla);
    l("TuntiHinta", m.TuntiHinta);
    l("RatsastusTulot", m.RatsastusTulot);
}

void Kertymät(Luettelo& l, Muuttujat& m) {
    l("Liikevaihto", m.Liikevaihto);
    l("YlityöPalkat", m.YlityöPalkat);
    l("PalkatYhteensä", m.PalkatYhteensä);
    l("Sähkölasku", m.Sähkölasku);
    l("Vesilasku", m.Vesilasku);
    l("Verovähennykset", m.Verovähennykset);
    l("RehuaTuotettu", m.RehuaTuotettu);
    l("ViljaaKäytetty", m.ViljaaKäytetty);
    l("ViljaaTuotettu", m.ViljaaTuotettu);
    l("PuutaHakattu", m.PuutaHakattu);
    l("Käyrät.LV", m.Käyrät.LV);
    l("Käyrät.Netto", m.Käyrät.Netto);
    l("Käyrät.Rahatila", m.Käyrät.Rahatila);
    l("Käyrät.YHTPalkat", m.Käyrät.YHTPalkat);
    l("Käyrät.Eläimiä", m.Käyrät.Eläimiä);
    l("Käyrät.Rakennuksia", m.Käyrät.Rakennuksia);
}

void Asetuksista(Luettelo& l, Asetukset& a) {
    l("Resoluutio800", a.Resoluutio800);
    l("Animaatiot", a.Animaatiot);
    l("AnimNopeus", a.AnimNopeus);
    l("Kursorit", a.Kursorit);
    l("Musiikki", a.Musiikki);
    l("BiisiSatunnainen", a.BiisiSatunnainen);
    l("Autotallennus", a.Autotallennus);
    l("Äänitehosteet", a.Äänitehosteet);
    l("Prosessorisäästö", a.Prosessorisäästö);
}
}  // namespace

std::vector<Kenttä> Kentät(Peli& peli) {
    Muuttujat& m = peli.m;
    Luettelo l;
    l("Versio", m.Versio);
    l("TilanteenVersio", m.TilanteenVersio);
    l("PelaajanNimi", m.PelaajanNimi);
    l("PeliMoodi", m.PeliMoodi);
    l("Vaikeustaso", m.Vaikeustaso);
    l("Päivä", m.Päivä);
    l("Kuukausi", m.Kuukausi);
    l("Vuosi", m.Vuosi);
    l("Vuodenaika", m.Vuodenaika);
    l("Viikonloppu", m.Viikonloppu);
    l("Tähdet", m.Tähdet);
    l("TähtiLukitus", m.TähtiLukitus);
    l("Hygienia", m.Hygienia);
    l("Lämpötila", m.Lämpötila);
    l("Pilvisyys", m.Pilvisyys);
    l("Aurinkoisuus", m.Aurinkoisuus);
    l("Sateisuus", m.Sateisuus);
    l("Raha", m.Raha);
    l("Laina", m.Laina);
    l("Tili", m.Tili);
    l("LainaKorko", m.LainaKorko);
    l("Lyhennysvapaa", m.Lyhennysvapaa);
    l("Vakuutusmaksut", m.Vakuutusmaksut);
    Tuotteet(l, m);
    Eläimet(l, m);
    Rakennukset(l, m);
    Työvoima(l, m);
    Maat(l, m);
    Sopimukset(l, m);
    Ruudut(l, m);
    Kertymät(l, m);
    l("TyöntekijöitäYht", m.TyöntekijöitäYht);
    l("RakennuksiaYht", m.RakennuksiaYht);
    l("OhjeetPäällä", m.OhjeetPäällä);
    l("VikaPaikka", m.VikaPaikka);
    l("VikaLaskuri", m.VikaLaskuri);
    l("VikaJatkuu", m.VikaJatkuu);
    Asetuksista(l, peli.asetukset);
    return l.kentät;
}

std::optional<Kenttä> EtsiKenttä(Peli& peli, const std::string& nimi) {
    for (Kenttä& k : Kentät(peli))
        if (k.nimi == nimi) return k;
    return std::nullopt;
}

std::string KentänArvo(const Kenttä& kenttä) {
    struct Teksti {
        std::string operator()(Integer* p) const { return Suoraan(Str(*p)); }
        std::string operator()(Long* p) const { return Suoraan(Str(static_cast<long long>(*p))); }
        std::string operator()(Single* p) const { return Suoraan(Str(*p)); }
        std::string operator()(Byte* p) const { return Suoraan(Str(*p)); }
        std::string operator()(Boolean* p) const { return *p ? "True" : "False"; }
        std::string operator()(double* p) const { return Suoraan(Str(*p)); }
        std::string operator()(std::string* p) const { return *p; }
        std::string operator()(std::vector<std::string>* p) const {
            std::string t;
            for (std::size_t i = 0; i < p->size(); ++i) t += (i ? "," : "") + Suoraan((*p)[i]);
            return t;
        }
    };
    return std::visit(Teksti{}, kenttä.osoitin);
}

void AsetaKenttä(const Kenttä& kenttä, const std::string& arvo) {
    std::visit(
        [&](auto* p) {
            using T = std::remove_pointer_t<decltype(p)>;
            if constexpr (std::is_same_v<T, std::string>) {
                *p = arvo;
            } else if constexpr (std::is_same_v<T, std::vector<std::string>>) {
                p->clear();
                std::string osa;
                for (char c : arvo) {
                    if (c == ',') { p->push_back(Str(TekstiLuvuksi(osa))); osa.clear(); }
                    else osa += c;
                }
                if (!osa.empty()) p->push_back(Str(TekstiLuvuksi(osa)));
            } else if constexpr (std::is_same_v<T, Boolean>) {
                *p = TekstiTotuudeksi(arvo);
            } else {
                Aseta(*p, TekstiLuvuksi(arvo));
            }
        },
        kenttä.osoitin);
}

}  // namespace tanhua

namespace tanhua {

bool OnAsetus(const std::string& nimi) {
    Asetukset a;
    Luettelo l;
    Asetuksista(l, a);
    for (const Kenttä& k : l.kentät)
        if (k.nimi == nimi) return true;
    return false;
}

}  // namespace tanhua
