// The farm record: every value that makes up a farm, in plain named values and families.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "laskenta.h"
#include "taulut/eläimet.h"
#include "taulut/maat.h"
#include "taulut/rakennukset.h"
#include "taulut/tarvikkeet.h"
#include "taulut/tuotteet.h"
#include "taulut/työvoima.h"

namespace tanhua {

inline constexpr Single VERSIO = 1.5f;
inline constexpr int SOPIMUSPAIKKOJA = 3;
inline constexpr int TEURASLAATIKOITA = 5;  // TeurasLehmä, TeurasLammas, TeurasSika, TeurasKana, TeurasKettu
inline constexpr int VAKUUTUKSIA = 5;       // Eläin, Palo, Työ, Varkaus, Tarvike

// One supply contract slot; free while its product is empty.
struct Sopimus {
    std::string Tuote;  // product name
    Long Määrä = 0;     // to deliver each month
    Long Hinta = 0;     // paid for a delivery
    Long Sakko = 0;     // penalty for a missed delivery
    Long Kesto = 0;     // length of the contract
};

// Option values of screens that are saved with a farm.
struct TuotteetRuutu {
    std::array<Integer, TUOTTEITA> Myy{};             // 0/1: automatic sale (OstaRehu for feed)
    std::array<std::string, TUOTTEITA> MyyTyyli = KaikkiTyylit();  // "Kaikki" or "Puolet"
    Integer rulla = 1;                                // 0 "joka kuukausi", 1 "joka viikko" (the default)

    static std::array<std::string, TUOTTEITA> KaikkiTyylit() {
        std::array<std::string, TUOTTEITA> tyylit;
        tyylit.fill("Kaikki");
        return tyylit;
    }
};

struct EläimetRuutu {
    // order: Lehmä, Lammas, Sika, Kana, Kettu
    std::array<Integer, TEURASLAATIKOITA> Teuras{};
    // limits as texts, two a box, female first: LehmäRaja, SonniRaja, LammasRaja, PässiRaja, ...
    std::array<std::string, 2 * TEURASLAATIKOITA> TeurasRaja = NollaRajat();

    static std::array<std::string, 2 * TEURASLAATIKOITA> NollaRajat() {
        std::array<std::string, 2 * TEURASLAATIKOITA> rajat;
        rajat.fill("0");
        return rajat;
    }
};

enum Vakuutus : std::size_t { VakuutusEläin, VakuutusPalo, VakuutusTyö, VakuutusVarkaus, VakuutusTarvike };

struct PankkiRuutu {
    // 0/1 boxes, order: VakuutusEläin, VakuutusPalo, VakuutusTyö, VakuutusVarkaus, VakuutusTarvike
    std::array<Integer, VAKUUTUKSIA> Vakuutus{};
    // The premium labels (VakuElä, VakuPalo, VakuTyö, VakuVarka, VakuTarvike) in the same order:
    // whole numbers as the sheet last showed them; the month's bill reads these, not the farm.
    std::array<std::string, VAKUUTUKSIA> Vakumaksu{};
};

// The monthly chart lists, each a list of numbers as text, one entry a month.
struct KäyrätRuutu {
    std::vector<std::string> LV, Netto, Rahatila, YHTPalkat, Eläimiä, Rakennuksia;
};

struct Muuttujat {
    // Player, goal and clock
    Single Versio = 0;              // version of the program, 1.5 from start-up
    Single TilanteenVersio = 0;     // version read from the save being opened
    std::string PelaajanNimi;
    std::string PeliMoodi;          // "Vapaa", "Miljoona" or "10 vuotta"
    Byte Vaikeustaso = 0;           // 0 Helppo, 1 Normaali, 2 Vaikea
    Byte Päivä = 0;                 // 1..30 between days, 2..31 inside one
    Byte Kuukausi = 0;              // 1..12
    Integer Vuosi = 0;
    std::string Vuodenaika;         // "Talvi", "Kevät", "Kesä", "Syksy"
    Boolean Viikonloppu = false;
    Byte Tähdet = 0;                // 0..5
    Boolean TähtiLukitus = false;
    Integer Hygienia = 0;           // 0..100
    Integer Lämpötila = 0;          // degrees Celsius
    Integer Pilvisyys = 0;          // weather code 1..6
    Single Aurinkoisuus = 0, Sateisuus = 0;

    // Money
    Single Raha = 0;                // cash, whole after a month end, may be negative
    Single Laina = 0;
    Single Tili = 0;
    Single LainaKorko = 0;          // per mille a month
    Byte Lyhennysvapaa = 0;         // months left without repayment
    Single Vakuutusmaksut = 0;      // premiums a month

    // Products, indexed by Tuote
    std::array<Single, TUOTTEITA> Var{};        // stock, kg or pieces
    std::array<Integer, TUOTTEITA> Kurssi{};    // market offset
    std::array<Integer, TUOTTEITA> PerusHinta{};
    std::array<Single, TUOTTEITA> Tulo{};       // sales this month
    std::array<Single, TUOTTEITA> EdTulo{};     // sales last month

    // Animals, indexed by Laji and Luokka: El[Nauta][Naaras] is El_Lehmä
    std::array<std::array<Long, LUOKKIA>, LAJEJA> El{};
    std::array<Long, LAJEJA> Syönti{};          // feed eaten this month
    std::array<Single, LAJEJA> EdSyönti{};      // cost of last month's feed
    std::array<std::array<Integer, 2>, LAJEJA> Lihaa{};  // meat kg, female and male

    // Capacity buildings and work orders, RakAika/RakTilaus indexed by Rakennus then Tila
    Single Koko_Navetta = 0, Koko_Siilo = 0, Koko_Varasto = 0;
    std::array<Integer, TYÖMAITA> RakAika{};    // days left, 0 when none
    std::array<Integer, TYÖMAITA> RakTilaus{};  // size to add on completion
    std::array<Byte, RAKENNUKSIA> Rak{};        // level 0..5
    std::array<Byte, RAKENNUKSIA> Tuotanto{};   // percentage of full output, where the building has one

    // Packing plant
    Single PakkaamoMax = 0, PakkaamoKerroin = 0, PakkaamoKäsitelty = 0, PakkaamoTulot = 0;

    // Staff, indexed by Työläinen
    std::array<Long, TYÖLÄISIÄ> Työ{};
    std::array<Integer, TYÖLÄISIÄ> Palkka{};
    std::array<Integer, TYÖLÄISIÄ> PerusPalkka{};
    std::array<Boolean, TYÖLÄISIÄ> Ylityö{};
    std::array<Integer, TYÖLÄISIÄ> Moti{};
    std::array<Boolean, TYÖLÄISIÄ> PalkkaLukko{};

    // Supplies, indexed by Tarvike
    std::array<Boolean, TARVIKKEITA> Tarv{};

    // Land, hectares, indexed by Maa for the prices
    Single Metsä = 0, Pelto = 0, Joutomaa = 0, Laidun = 0;
    std::array<Long, MAITA> PerusMaa{};
    std::array<Long, MAITA> MaaKurssi{};
    Long MetsääJäljellä = 0;        // percent left of the hectare being cut
    Boolean LantaPeltoon = false;
    Boolean LautaRakennukseen = false;
    Integer Pellot_Metsitä = 0;     // 0/1: monthly planting of waste land
    std::array<Single, KASVEJA> Siemen{};  // seed prices of mansikka, peruna, rypsi
    // The crop of the sowing and harvest screens, by Kasvi; not saved with the farm
    std::array<Long, KASVEJA> Kylvetty{};        // hectares sown
    Long KylvettyAla = 0;                        // hectares sown in all
    Long KylvöKulut = 0;                         // what the sowing cost
    Byte HoitoTaso = 0;                          // treatment points given at sowing
    Byte KasvuVaihe = 0;                         // growth stage, only ever 0
    std::array<Long, KASVEJA> Sato{};            // crop in kg, only ever 0
    std::array<Integer, KASVEJA> SiemenKurssi{}; // seed market indices, always 0

    // Contracts
    std::array<Sopimus, SOPIMUSPAIKKOJA> Sop{};
    Integer SopimuksiaLäpi = 0, SopimuksiaEpä = 0;
    Long Sopimustulot = 0;

    // Option values of screens
    TuotteetRuutu Tuotteet;
    EläimetRuutu Eläimet;
    PankkiRuutu Pankki;
    Integer Hevostalli_rulla = 0;   // riding price step 0..4
    Integer TuntiHinta = 0;         // price of a riding hour
    Long RatsastusTulot = 0;        // riding income of the month

    // Month accumulators
    Single Liikevaihto = 0;         // turnover of the month
    Single YlityöPalkat = 0, PalkatYhteensä = 0, Sähkölasku = 0, Vesilasku = 0;
    Long Verovähennykset = 0, RehuaTuotettu = 0, ViljaaKäytetty = 0, ViljaaTuotettu = 0, PuutaHakattu = 0;

    // Charts
    KäyrätRuutu Käyrät;

    // Kept on the main form between days
    Long TyöntekijöitäYht = 0, RakennuksiaYht = 0;
    Boolean OhjeetPäällä = false;   // hints of the first-time player

    // The failure reporter
    std::string VikaPaikka;
    Long VikaLaskuri = 0;
    Boolean VikaJatkuu = false;
};

// Derived values used by many rules.
double VarastoKuorma(const Muuttujat& m);  // stock times weight; feed and flour don't count
double Navettakuorma(const Muuttujat& m);  // the twelve adult counters
double Yksikköhinta(const Muuttujat& m, Tuote k);
double TyöntekijöitäYhteensä(const Muuttujat& m);
double RakennuksiaYhteensä(const Muuttujat& m);
double MaataYhteensä(const Muuttujat& m);

}  // namespace tanhua
