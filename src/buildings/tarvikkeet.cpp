// The supplies shop: the three shop lists and the owned list, choosing, buying and selling.
#include "tarvikkeet.h"

#include <algorithm>
#include <array>

#include "../core/peli.h"
#include "../core/pääruutu.h"
#include "../core/viestit.h"

namespace tanhua {

namespace {

// The text of each item on choosing it, in the order of the catalogue.
constexpr std::array<std::string_view, TARVIKKEITA> TEKSTIT{
    "Palohälyttimet hälyttävät palokunnan nopeammin paikalle ja näin tulipalosi ei kerkeä levitä niin laajalle alueille. Vähäinen sähkönkulutus.",  // Palohälyttimet
    "Sähköinen paimenpoika pitää eläimesi laitumilla kesäisin. Ilman paimenpoikaa eläimet saattavat karkailla. Vähäinen sähkönkulutus.",  // Sähkö paimenpoika
    "Varashälyttimien asentaminen estää varkaita sekä lyhentää varkaan aikaa tilallasi, joten varkaiden saalis jää yleensä pieneksi. Vähäinen sähkönkulutus.",  // Varashälyttimet
    "Energiansäästövalot maksavat paljon, mutta pitkällä aikavälillä tuottavat itsensä takaisin. Pienentää sähkölaskusi koko tilan kulutuksen puolesta.",  // Energiansäästövalot
    "Lämminvesi varaaja takaa lämpimän veden tulon tilallesi. Pienentää vesilaskuasi kokonaisuudessaan vaikuttaen koko tilan kulutukseen.",  // Suuri lämminvesivaraaja
    "Porauttamalla kaivon säästät vesilaskuasi, kun voit juottaa eläimillesi myös kaivovettä. Pienentää vesilaskuasi vaikuttaen koko tilan kulutukseen.",  // Kaivo
    "UV-Valaistus kanalassa antaa kanoille kuvitelman, että päivä on pitempi. Tämän ansiosta kanat tuottavat enemmän munia ja tuotanto on vakaampaa. Kohtalainen sähkönkulutus.",  // UV-Valot
    "Hautomo säätelee munien lämpötilan ja parantaa kanojen poikimista. Hautomon avulla saat enemmän tipuja kanalaasi. Kohtalainen sähkönkulutus.",  // Hautomo
    "Kerimäkone parantaa ompelijan työta ja takaa villan vakaamman tuotannon. Kohtalainen sähkönkulutus.",  // Kerimäkone
    "Kutomakone nopeuttaa ompelijan työtä, parantaa villapaitojen laatua sekä vakauttaa villapaitojen tuotantoa. Kohtalainen sähkönkulutus.",  // Kutomakone
    "Teollisuusrukki parantaa villasta tuotetun langan laatua sekä nopeuttaa villapaitojen valmistusta. Kohtalainen sähkönkulutus.",  // Teollisuusrukki
    "Lypsykone parantaa lehmien maidon tuotantoa sekä pitää maidontuotannon vakaampana. Kohtalainen sähkönkulutus.",  // Lypsykone
    "Rasva erotetaan maidosta separoimalla. Separoinnissa syntyy kermaa ja rasvatonta maitoa. Separointi parantaa maidon hintaa. Kohtalainen sähkönkulutus.",  // Separointikone
    "Pastörointi on kuumennuskäsittely, jolla maito ja kerma saadaan säilyvämmäksi ja hygieenisemmäksi. Pastörointi parantaa maidon hintaa. Kohtalainen sähkönkulutus.",  // Pastörointikammio
    "Kirnu tuottaa maitotuotteita monipuolisemmin ja parantaa siten kaikkien maitotuotteiden hintaa. Suuri sähkönkulutus ja pieni vedenkulutus.",  // Kirnu
    "Sikalasi lannan tuotannosta ei mene niin paljoa hukkaan, kun voit säilöä lannan. Ei kuluta vettä tai sähköä.",  // Lantasäiliö
    "Teollisuusuuni nopeuttaa leipurin tuotantoa, parantaa leipien ja leivosten laatua sekä vakauttaa tuotantoa. Suuri sähkönkulutus.",  // Teollisuusuuni
    "Kastelujärjestelmä takaa marjapuskillesi hyvän sadon myös kuivina kesinä, milloin sateet olisivat tarpeellisia. Suuri vedenkulutus.",  // Kastelujärjestelmä
    "Syöttölinjastot rakennetaan lehmille ja sioille. Tämä parantaa eläinten oloja ja näin vaikuttaa hygieniaan, joka nostaa eläinten tuotantoa. Pieni sähkönkulutus ja suuri vedenkulutus.",  // Automaattinen syöttölinjasto
    "Kylmiö on tarkoitettu makkara ja liha tuotteille, jotka eivät säily varastossa. Tämä nostaa lihan laatua ja sen hintaa. Suuri sähkönkulutus.",  // Kylmiö
    "Käymissäiliö helpottaa viinimestarin työtä ja kasvattaa viinin tuotantoa sekä sen laatua. Pieni sähkönkulutus.",  // Käymissäiliö
    "Turkiskuivaamossa kuivatetaan turkikset jotka on käsitelty. Kuivaamo parantaa turkisten laatua sekä samalla hintaa.",  // Turkiskuivaamo
    "Kaavintakoneella nahkurisi työnteko helpottuu. Saat ketuista parempi laatusia turkkeja joka parantaa turkisten hintaa.",  // Kaavintakone
    "Liukuhihna nopeuttaa varastotyöntekijöiden työnopeutta pakkaamossa ja näin yksi varastotyöntekijä voi käsitellä enemmän tuotteita päivässä. Parantaa myös pakkausten laatua. Suuri sähkönkulutus.",  // Pakkaamon liukuhihna
    "Traktori on joka maatilan pakko hankinta. Traktoria joudut käyttämään kaikissa pelto töissä.",  // Traktori
    "Puimuri korjaa satosi pellolta. Puimuri on kallis hankinta, mutta maksaa itsensä takaisin pitkällä aikavälillä.",  // Puimuri
    "Metsäkone nopeuttaa metsurisi työtä huomattavasti, parantaa raakapuun laatua sekä vakauttaa puun hakkuita.",  // Metsäkone
    "Lannoitus kärryllä hoidat ennen kylvämistä peltojen lannoituksen, joka parantaa satoa.",  // Lannoitus kärry
    "Ojittajalla ojitat peltosi käden käänteessä. Ojittaminen parantaa satoa.",  // Ojittaja
    "Myrkky kärryllä myrkytät peltosi nopeasti ennen kylvämistä. Myrkytys estää tuholaisia ja parantaa satoa ja sen laatua.",  // Myrkky kärry
};

struct ListanTekstit {
    const char* otsikko;
    const char* info;
    const char* tyhjä;  // when every item of the list is owned
};

constexpr std::array<ListanTekstit, 4> LISTOJEN_TEKSTIT{
    ListanTekstit{"Yleiset tarvikkeet",
                  "Tarvikkeet sisältävät yleisiä tarvikkeita maatilan jokapäiväisiin tarpeisiin.",
                  "Olet jo ostanut kaikki tarvikkeet."},
    ListanTekstit{"Lisälaitteet",
                  "Lisälaitteet sisältävät tuotannon jatkojalostus laitteita, jotka parantavat tuotantoa, hintaa "
                  "sekä tuotteiden laatua.",
                  "Olet jo ostanut kaikki lisälaitteet."},
    ListanTekstit{"Työkoneet, älkää ostako näitä (kesken)",
                  "Työkoneet sisältävät viljelykseen ja muuhun tarpeeliset koneet ja apulaitteet",
                  "Olet jo ostanut kaikki työkoneet."},
    ListanTekstit{"Ostetut laitteet, koneet ja tarvikkeet", "Listassa on kaikki ostamasi lisälaitteet.",
                  "Et ole vielä ostanut yhtään lisälaitetta."},
};

bool OnTarvike(TarvikeRivinro rivi) { return rivi >= 0 && rivi < AURA; }
Tarvike Tarvikkeena(TarvikeRivinro rivi) { return static_cast<Tarvike>(rivi); }
TarvikeRivinro Rivinä(std::size_t k) { return static_cast<TarvikeRivinro>(k); }

void Poista(std::vector<TarvikeRivinro>& lista, TarvikeRivinro rivi) {
    lista.erase(std::remove(lista.begin(), lista.end(), rivi), lista.end());
}
bool Sisältää(const std::vector<TarvikeRivinro>& lista, TarvikeRivinro rivi) {
    return std::find(lista.begin(), lista.end(), rivi) != lista.end();
}

const std::vector<TarvikeRivinro>& Lähde(const TarvikeRuutuTila& r) {
    static const std::vector<TarvikeRivinro> tyhjä;
    if (r.näkyvä == OMAT_LISTA) return r.Tavarat;
    if (r.näkyvä >= 0 && r.näkyvä < OMAT_LISTA) return r.kauppa[static_cast<std::size_t>(r.näkyvä)];
    return tyhjä;
}

// The list shown follows its source; a chosen row that left it is no longer chosen.
void TäytäLista(TarvikeRuutuTila& r) {
    r.Lista = Lähde(r);
    if (r.valittu >= 0 && !Sisältää(r.Lista, r.valittu)) {
        r.valittu = -1;
        r.nimi.clear();
    }
}

// After a trade the chosen item, its text and its price are blanked.
void TyhjennäValinta(TarvikeRuutuTila& r) {
    r.valittu = -1;
    r.nimi.clear();
    r.info.clear();
    r.hinta.clear();
    r.hintaArvo = 0;
}

void NäytäListaNapista(Peli& peli, int lista) {
    TarvikeRuutuTila& r = peli.tarvikeruutu;
    SoitaÄäni(peli, "klik");
    // Nothing breaks while the shop is open, so this only matters to a press made without opening
    // it first: the list shown is the one opening the shop would have given.
    TäsmääTarvikelistat(peli);
    r.näkyvä = lista;
    // The list is filled anew, so nothing on it is chosen.
    TyhjennäValinta(r);
    TäytäLista(r);
    const ListanTekstit& t = LISTOJEN_TEKSTIT[static_cast<std::size_t>(lista)];
    r.otsikko = t.otsikko;
    r.info = r.Lista.empty() ? t.tyhjä : t.info;
    if (lista == OMAT_LISTA) {
        r.Command5 = "Myy";
        r.Command5Ohje = "Myy valitun tuotteen";
    } else {
        r.Command5 = "Osta";
        r.Command5Ohje = "Ostaa valitun tuotteen";
    }
}

}  // namespace

TarvikeRivinro TarvikeNimellä(std::string_view nimi) {
    for (std::size_t k = 0; k < TARVIKKEITA; ++k)
        if (TARVIKETAULU[k].avain == nimi || TARVIKETAULU[k].nimi == nimi) return Rivinä(k);
    if (nimi == AURA_RIVI) return AURA;
    return -1;
}

std::string_view TarvikkeenNimi(TarvikeRivinro rivi) {
    return OnTarvike(rivi) ? TARVIKETAULU[Tarvikkeena(rivi)].nimi : AURA_RIVI;
}

std::string_view TarvikkeenTeksti(TarvikeRivinro rivi) {
    return OnTarvike(rivi) ? TEKSTIT[Tarvikkeena(rivi)] : std::string_view{};
}

Long TarvikkeenHinta(TarvikeRivinro rivi) {
    return OnTarvike(rivi) ? CLng(static_cast<double>(TARVIKETAULU[Tarvikkeena(rivi)].hinta)) : 0;
}

Long TarvikkeenMyyntihinta(TarvikeRivinro rivi) { return CLng(Int(TarvikkeenHinta(rivi) * 0.75)); }

bool TarvikkeetAuki(const Muuttujat& m) { return !m.TähtiLukitus || m.Tähdet >= 1; }

void RakennaTarvikelistat(Peli& peli) {
    TarvikeRuutuTila& r = peli.tarvikeruutu;
    for (auto& lista : r.kauppa) lista.clear();
    r.Tavarat.clear();
    for (std::size_t k = 0; k < TARVIKKEITA; ++k) {
        if (peli.m.Tarv[k]) r.Tavarat.push_back(Rivinä(k));
        else r.kauppa[TARVIKETAULU[k].lista].push_back(Rivinä(k));
    }
    TäytäLista(r);
}

void PalautaKauppaan(Peli& peli, Tarvike k) {
    TarvikeRuutuTila& r = peli.tarvikeruutu;
    const TarvikeRivinro rivi = Rivinä(k);
    peli.m.Tarv[k] = false;
    Poista(r.Tavarat, rivi);
    auto& kauppa = r.kauppa[TARVIKETAULU[k].lista];
    Poista(kauppa, rivi);
    kauppa.push_back(rivi);
    TäytäLista(r);
}

void TäsmääTarvikelistat(Peli& peli) {
    TarvikeRuutuTila& r = peli.tarvikeruutu;
    // An owned item that broke meanwhile goes to the end of its shop list.
    for (TarvikeRivinro rivi : std::vector<TarvikeRivinro>(r.Tavarat))
        if (!peli.m.Tarv[Tarvikkeena(rivi)]) PalautaKauppaan(peli, Tarvikkeena(rivi));
    // An item owned but not on the owned list goes to its end, in catalogue order.
    for (std::size_t k = 0; k < TARVIKKEITA; ++k) {
        const TarvikeRivinro rivi = Rivinä(k);
        auto& kauppa = r.kauppa[TARVIKETAULU[k].lista];
        if (peli.m.Tarv[k] && !Sisältää(r.Tavarat, rivi)) {
            Poista(kauppa, rivi);
            r.Tavarat.push_back(rivi);
        } else if (!peli.m.Tarv[k] && !Sisältää(kauppa, rivi)) {
            kauppa.push_back(rivi);
        }
    }
    TäytäLista(r);
}

void AvaaTarvikkeet(Peli& peli) {
    SoitaÄäni(peli, "klik");
    peli.tarvikeruutu.auki = true;
    TäsmääTarvikelistat(peli);
}

void SuljeTarvikkeet(Peli& peli) {
    SoitaÄäni(peli, "klik");
    peli.tarvikeruutu.auki = false;
}

void NäytäYleiset(Peli& peli) { NäytäListaNapista(peli, Tarvikkeita); }
void NäytäLisälaitteet(Peli& peli) { NäytäListaNapista(peli, Lisälaitteet); }
void NäytäTyökoneet(Peli& peli) { NäytäListaNapista(peli, Työkoneet); }
void NäytäOmat(Peli& peli) { NäytäListaNapista(peli, OMAT_LISTA); }

void ValitseTarvike(Peli& peli, TarvikeRivinro rivi) {
    TarvikeRuutuTila& r = peli.tarvikeruutu;
    if (!Sisältää(r.Lista, rivi)) return;
    SoitaÄäni(peli, "siirto");
    r.valittu = rivi;
    r.nimi = std::string(TarvikkeenNimi(rivi));
    r.info = std::string(TarvikkeenTeksti(rivi));
    r.hintaArvo = r.Command5 == "Myy" ? TarvikkeenMyyntihinta(rivi) : TarvikkeenHinta(rivi);
    r.hinta = Luku(r.hintaArvo);
}

void Command5Tarvikkeet(Peli& peli) {
    if (peli.tarvikeruutu.Command5 == "Myy") MyyTarvike(peli);
    else OstaTarvike(peli);
}

void OstaTarvike(Peli& peli) {
    Muuttujat& m = peli.m;
    TarvikeRuutuTila& r = peli.tarvikeruutu;
    // The plough has no flag to own, so choosing it buys nothing.
    if (!OnTarvike(r.valittu) || !Sisältää(r.Lista, r.valittu) || r.näkyvä == OMAT_LISTA) return;
    const Tarvike k = Tarvikkeena(r.valittu);
    const Long hinta = TarvikkeenHinta(r.valittu);

    // Exactly enough money is enough.
    if (static_cast<double>(hinta) > m.Raha) {
        Kieltäydy(peli, Rivitä({"Rahasi eivät riitä!", "", "Rahatilanteesi on " + Str(m.Raha),
                               "Tarvike maksaa " + Str(hinta),
                               // The shortfall is worked in double precision and told unnarrowed.
                               "Sinulta puuttuu " + Str(static_cast<double>(hinta) - static_cast<double>(m.Raha))}));
        return;
    }
    SoitaÄäni(peli, "klik");
    Lisää(m.Raha, -static_cast<double>(hinta));
    m.Tarv[k] = true;
    Poista(r.kauppa[TARVIKETAULU[k].lista], r.valittu);
    r.Tavarat.push_back(r.valittu);
    // The product prices take the item's bonus when they are next worked out, not now.
    TyhjennäValinta(r);
    TäytäLista(r);
    NäytäRaha(peli);
}

void MyyTarvike(Peli& peli) {
    Muuttujat& m = peli.m;
    TarvikeRuutuTila& r = peli.tarvikeruutu;
    if (!OnTarvike(r.valittu) || r.näkyvä != OMAT_LISTA || !Sisältää(r.Tavarat, r.valittu)) return;
    const Tarvike k = Tarvikkeena(r.valittu);
    SoitaÄäni(peli, "klik");
    Lisää(m.Raha, static_cast<double>(TarvikkeenMyyntihinta(r.valittu)));
    TyhjennäValinta(r);
    PalautaKauppaan(peli, k);
    NäytäRaha(peli);
}

}  // namespace tanhua
