// The race-betting screen: the names file, the drawn races, the coupon and the result sheet.
#include "ravit.h"

#include <algorithm>
#include <optional>

#include "../core/peli.h"
#include "../core/viestit.h"
#include "../storage/tiedostot.h"

namespace tanhua {

namespace {

// The player's own names file in the data folder, else the one shipped in the program folder.
std::optional<std::string> NimiTiedosto(const Peli& peli) {
    if (auto oma = LueTiedosto(DataTiedosto(peli.kansiot, ravitekstit::Tiedosto))) return oma;
    const auto mukana = EtsiTiedosto(peli.kansiot.ohjelma, "Data/" + std::string(ravitekstit::Tiedosto));
    return mukana ? LueTiedosto(*mukana) : std::nullopt;
}

// The names of the file, the header line skipped and blank lines left out; more than a hundred
// names gives its box and the rest are not read. Empty when there is no file or no name.
std::optional<std::vector<std::string>> LueNimet(Peli& peli) {
    const auto sisältö = NimiTiedosto(peli);
    if (!sisältö) return std::nullopt;
    std::vector<std::string> nimet;
    const std::vector<std::string> rivit = Rivit(Cp1252ToUtf8(*sisältö));
    for (std::size_t i = 1; i < rivit.size(); ++i) {
        if (rivit[i].find_first_not_of(" \t") == std::string::npos) continue;
        if (nimet.size() == NIMIÄ_ENINTÄÄN) {
            peli.kanavat.Laatikko(std::string(ravitekstit::LiikaaNimiä));
            break;
        }
        nimet.push_back(rivit[i]);
    }
    if (nimet.empty()) return std::nullopt;
    return nimet;
}

bool Ruudulla(const RaviRuutuTila& r, const std::string& nimi) {
    return std::find(r.RaviNimi.begin(), r.RaviNimi.end(), nimi) != r.RaviNimi.end();
}

// Each place a name, drawn again while the name stands on one of the rows on screen, then its odds.
// D(NimiMäärä) never gives the last name. When every name the draw can give is on screen, the first
// draw stands: the redraw could never end.
void ArvoLähdöt(Peli& peli) {
    RaviRuutuTila& r = peli.raviruutu;
    const long long valittavia = std::max<long long>(r.NimiMäärä, 1);
    bool voiVaihtua = false;
    for (long long i = 0; i < valittavia; ++i) voiVaihtua = voiVaihtua || !Ruudulla(r, r.RaviNimet[i]);
    for (int lähtö = 0; lähtö < LÄHTÖJÄ; ++lähtö) {
        for (int paikka = 0; paikka < PAIKKOJA; ++paikka) {
            long long nimi = peli.arvonta.D(r.NimiMäärä);
            while (voiVaihtua && Ruudulla(r, r.RaviNimet[nimi])) nimi = peli.arvonta.D(r.NimiMäärä);
            r.LähtöNimet[lähtö][paikka] = r.RaviNimet[nimi];
            const long long kokonaiset = peli.arvonta.D(3);
            r.LähtöKertoimet[lähtö][paikka] = Kerrointeksti(kokonaiset, peli.arvonta.D(9));
            r.LähtöMerkit[lähtö][paikka].clear();
        }
    }
}

bool Merkitty(const std::array<std::string, PAIKKOJA>& merkit) {
    return std::find(merkit.begin(), merkit.end(), "X") != merkit.end();
}

// The coupon's test of its kind; a refusal shows its box and the coupon stays.
bool KuponkiKelpaa(Peli& peli) {
    RaviRuutuTila& r = peli.raviruutu;
    if (r.Vetolaji == vetolaji::V75) {
        for (int lähtö = 0; lähtö < RIVINAPPEJA; ++lähtö) {
            if (!Merkitty(r.LähtöMerkit[lähtö])) {
                peli.kanavat.Laatikko(std::string(ravitekstit::V75Puuttuu));
                return false;
            }
        }
    } else if (r.Vetolaji == vetolaji::Trio) {
        for (const char* j : {"1", "2", "3"}) {
            if (std::find(r.Ruutu.begin(), r.Ruutu.end(), j) == r.Ruutu.end()) {
                peli.kanavat.Laatikko(std::string(ravitekstit::TrioPuuttuu));
                return false;
            }
        }
    }
    return true;
}

// One pool: the turnover shared by the winners of the level, none without winners.
Single Potti(Long T, Long c, double osuus) { return c > 0 ? CSng(JakoKok(T, c) * osuus) : 0; }

RaviTulos ArvoTulos(Peli& peli) {
    Arvonta& a = peli.arvonta;
    RaviTulos t;
    t.W = CLng(a.D(9));
    t.P = CLng(a.D(300000) + 100);
    double vaihto = 0;
    for (Long kierros = 0; kierros <= t.P; ++kierros) vaihto += a.D(5) + 1;
    t.T = CLng(vaihto + peli.raviruutu.Panos);
    t.c5 = CLng(a.D(t.P));
    t.c6 = CLng(a.D(JakoKok(t.c5, 10)));
    t.c7 = CLng(a.D(JakoKok(t.c6, 40)));
    JaaPotit(t);
    return t;
}

void TulostaTulos(Peli& peli, const RaviTulos& t) {
    RaviRuutuTila& r = peli.raviruutu;
    auto rivi = [&r](std::string teksti) { r.tulos.push_back({MUSTA, 0, std::move(teksti)}); };
    auto voitto = [&](const char* oikein, Single p, Long c) {
        rivi(std::string(oikein) + " oikein tuloksella voittosumma " + Luku(p) + " (" + Luku(c) + ")");
    };
    r.tulos.clear();
    rivi("");
    rivi("");
    rivi("Arvontaan osallistui " + Luku(t.P) + " osaanottajaa.");
    rivi("Kokonais vaihto oli " + Luku(t.T));
    voitto("7", t.p7, t.c7);
    voitto("6", t.p6, t.c6);
    voitto("5", t.p5, t.c5);
    rivi("");
    rivi(std::string(60, '_'));
    rivi("");
    // Nothing counts the hits: the line keeps its place empty.
    rivi("Arvonnassa selvisi  osumaa.");
    rivi("");
    rivi("Voittajahevonen oli nro " + Luku(t.W) + " - " + r.RaviNimi[static_cast<std::size_t>(t.W)]);
    peli.kanavat.Alue(RaporttiSivu{std::string(ravitekstit::Tulos), 12, r.tulos});
}

}  // namespace

std::string Kerrointeksti(long long kokonaiset, long long kymmenykset) {
    return std::to_string(kokonaiset + 1) + "." + (kymmenykset > 0 ? std::to_string(kymmenykset) + "0" : "00");
}

void JaaPotit(RaviTulos& t) {
    t.p7 = Potti(t.T, t.c7, 0.24);
    t.p6 = Potti(t.T, t.c6, 0.12);
    t.p5 = Potti(t.T, t.c5, 0.24);
    const bool ehdot[] = {
        t.c7 > 0 && t.p6 > 1 && t.p5 > 1,
        t.c7 > 0 && t.p6 > 1 && t.p5 < 1,
        t.c7 == 0 && t.p6 > 1 && t.p5 < 1,
        t.c7 > 0 && t.c6 == 0 && t.p5 > 1,
    };
    for (std::size_t i = 0; i < POTTITAULU.size(); ++i) {
        if (!ehdot[i]) continue;
        const PottiRivi& rivi = POTTITAULU[i];
        t.p7 = Potti(t.T, t.c7, rivi.p7);
        t.p6 = Potti(t.T, t.c6, rivi.p6);
        t.p5 = Potti(t.T, t.c5, rivi.p5);
        t.potti = static_cast<int>(i);
        return;
    }
}

void AvaaRavit(Peli& peli) {
    peli.kanavat.Laatikko(std::string(ravitekstit::Huom));
    peli.raviruutu = RaviRuutuTila{};
    peli.raviruutu.auki = true;
}

void SuljeRavit(Peli& peli) { peli.raviruutu.auki = false; }

void LyöVetoa(Peli& peli) {
    RaviRuutuTila& r = peli.raviruutu;
    r.Picture1 = true;
    r.Vetolaji = vetolaji::Trio;
    r.RaviNimet.clear();
}

void ValitseVetolaji(Peli& peli, std::string_view laji) {
    RaviRuutuTila& r = peli.raviruutu;
    auto nimet = LueNimet(peli);
    if (!nimet) {
        peli.kanavat.Laatikko(std::string(ravitekstit::EiTiedostoa));
        return;
    }
    r.RaviNimet = std::move(*nimet);
    r.NimiMäärä = CByte(static_cast<double>(r.RaviNimet.size()) - 1);
    ArvoLähdöt(peli);
    r.Vetolaji = laji;
    for (std::string& ruutu : r.Ruutu) ruutu.clear();
}

void NäytäRivi(Peli& peli, int rivi) {
    RaviRuutuTila& r = peli.raviruutu;
    const auto i = static_cast<std::size_t>(rivi);
    for (std::size_t j = 0; j < RIVEJÄ; ++j) {
        r.RaviNimi[j] = r.LähtöNimet[i][j];
        r.Kerroin[j] = r.LähtöKertoimet[i][j];
        r.Ruutu[j] = r.LähtöMerkit[i][j];
    }
    r.RiviNro = CByte(rivi);
    r.otsikko = std::string(ravitekstit::RiviOtsikko) + Str(rivi + 1);
}

void MerkitseHevonen(Peli& peli, int rivi) {
    RaviRuutuTila& r = peli.raviruutu;
    std::string& ruutu = r.Ruutu[static_cast<std::size_t>(rivi)];
    if (r.Vetolaji == vetolaji::Trio) {
        // A filled box is emptied; an empty one takes the lowest place of the three still free.
        if (!ruutu.empty()) {
            ruutu.clear();
            return;
        }
        for (const char* j : {"1", "2", "3"}) {
            if (std::find(r.Ruutu.begin(), r.Ruutu.end(), j) == r.Ruutu.end()) {
                ruutu = j;
                return;
            }
        }
        return;
    }
    for (std::size_t j = 0; j < RIVEJÄ; ++j) r.Ruutu[j] = j == static_cast<std::size_t>(rivi) ? "X" : "";
    for (std::size_t j = 0; j < RIVEJÄ; ++j) r.LähtöMerkit[r.RiviNro][j] = r.Ruutu[j];
}

void ValitseKerroin(Peli& peli, int rivi) {
    RaviRuutuTila& r = peli.raviruutu;
    if (r.Vetolaji != vetolaji::Voittajaveto) return;
    for (std::size_t j = 0; j < RIVEJÄ; ++j) r.Ruutu[j] = j == static_cast<std::size_t>(rivi) ? "X" : "";
}

void LaskePanosta(Peli& peli) {
    RaviRuutuTila& r = peli.raviruutu;
    const Long ennen = r.Panos;
    if (r.Panos > 100) Lisää(r.Panos, -100);
    else if (r.Panos > 10) Lisää(r.Panos, -1);
    if (r.Panos != ennen) r.Panosz = Str(r.Panos);
}

void NostaPanosta(Peli& peli) {
    RaviRuutuTila& r = peli.raviruutu;
    const Long ennen = r.Panos;
    // One step a click: the first case that holds.
    if (r.Panos < 10) Lisää(r.Panos, 10);
    else if (r.Panos < 100) Lisää(r.Panos, 100);
    else if (r.Panos < 10000) Lisää(r.Panos, 1000);
    if (r.Panos != ennen) r.Panosz = Str(r.Panos);
}

void HyväksyKuponki(Peli& peli) {
    RaviRuutuTila& r = peli.raviruutu;
    if (!KuponkiKelpaa(peli)) return;
    r.Picture1 = false;
    r.Tulos = true;
    const RaviTulos t = ArvoTulos(peli);
    if (t.potti >= 0) peli.kanavat.Laatikko(std::string(POTTITAULU[static_cast<std::size_t>(t.potti)].sana));
    TulostaTulos(peli, t);
}

void SuljeTulos(Peli& peli) { peli.raviruutu.Tulos = false; }

}  // namespace tanhua
