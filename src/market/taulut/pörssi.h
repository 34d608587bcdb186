// The market's tables: the monthly steps, the crash limits, the lower bounds and the news of a crash.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "../../core/taulut/maat.h"
#include "../../core/taulut/tuotteet.h"

namespace tanhua {

// How low a product's index may go before it jumps back.
enum class Alaraja {
    Hinta0,   // the unit price may not go below 0: the index is set to 0
    Indeksi,  // the index may not go below the number: it is set to 0
    Hinta1,   // feed: the unit price may not go below 1: the index is set to 1
};

struct PörssiRivi {
    int n, k;                // a month's step: r * n - k
    int romahdusRaja;        // an index above this crashes
    Alaraja alaraja;
    int alarajaIndeksi;      // the bound of Alaraja::Indeksi
    std::string_view sana;   // names the product in the crash news
};

// By product, in the order of Tuote.
inline constexpr std::array PÖRSSITAULU{
    PörssiRivi{3, 1, 5, Alaraja::Hinta0, 0, "Maidon"},                  // Maito
    PörssiRivi{5, 2, 8, Alaraja::Hinta0, 0, "Lihan"},                   // Liha
    PörssiRivi{5, 2, 9, Alaraja::Hinta0, 0, "Villan"},                  // Villa
    PörssiRivi{3, 1, 5, Alaraja::Hinta0, 0, "Kananmunien"},             // Muna
    PörssiRivi{40, 19, 150, Alaraja::Indeksi, -100, "Turkkien"},        // Turkki
    PörssiRivi{5, 2, 5, Alaraja::Hinta1, 0, "Rehun"},                   // Rehu
    PörssiRivi{5, 2, 15, Alaraja::Hinta0, 0, "Raakapuun"},              // Puu
    PörssiRivi{5, 2, 25, Alaraja::Hinta0, 0, "Laudan"},                 // Lauta
    PörssiRivi{3, 1, 12, Alaraja::Hinta0, 0, "Vihannesten"},            // Vihannes
    PörssiRivi{3, 1, 13, Alaraja::Hinta0, 0, "Juuston"},                // Juusto
    PörssiRivi{6, 2, 12, Alaraja::Hinta0, 0, "Jauhojen"},               // Jauho
    PörssiRivi{3, 1, 8, Alaraja::Hinta0, 0, "Viljan"},                  // Vilja
    PörssiRivi{3, 1, 5, Alaraja::Hinta0, 0, "Lannoitteen"},             // Lanta
    PörssiRivi{11, 5, 13, Alaraja::Indeksi, -10, "Leivän"},             // Leipä
    PörssiRivi{13, 6, 20, Alaraja::Indeksi, -20, "Vaatteiden"},         // Vaate
    PörssiRivi{10, 4, 15, Alaraja::Indeksi, -6, "Makkaratuotteiden"},   // Makkara
    PörssiRivi{13, 6, 18, Alaraja::Indeksi, -7, "Leivosten"},           // Leivos
    PörssiRivi{3, 1, 8, Alaraja::Hinta0, 0, "Viinimarjojen"},           // Marja
    PörssiRivi{6, 2, 13, Alaraja::Hinta0, 0, "Viinin"},                 // Viini
    PörssiRivi{5, 2, 10, Alaraja::Hinta0, 0, "Hunajan"},                // Hunaja
};
static_assert(PÖRSSITAULU.size() == TUOTTEITA);

// Feed before 1983: an index above this is cut down to it, with no crash.
inline constexpr int REHU_KATTO_ENNEN = 3;
inline constexpr int REHU_ROMAHDUSVUOSI = 1983;

// The order in which the indices walk, and the order in which they are checked for a crash
// (cheese comes after manure in the check).
inline constexpr std::array<Tuote, TUOTTEITA> KÄVELYJÄRJESTYS{
    Maito, Liha, Villa, Muna, Turkki, Rehu, Puu, Lauta, Vihannes, Juusto,
    Vilja, Jauho, Lanta, Vaate, Leipä, Makkara, Leivos, Marja, Viini, Hunaja};
inline constexpr std::array<Tuote, TUOTTEITA> ROMAHDUSJÄRJESTYS{
    Maito, Liha, Villa, Muna, Turkki, Rehu, Puu, Lauta, Vihannes, Vilja,
    Jauho, Lanta, Juusto, Vaate, Leipä, Makkara, Leivos, Marja, Viini, Hunaja};

// The wider steps of the first walk of a new farm.
struct EnsiAskel {
    Tuote tuote;
    int n, k;
};
inline constexpr std::array ENSIASKELEET{EnsiAskel{Turkki, 50, 24}, EnsiAskel{Vaate, 20, 9}, EnsiAskel{Leivos, 15, 9}};

struct MaaPörssiRivi {
    int n, k;
    long romahdusRaja;
    long alaraja;            // the lowest price of a hectare
    std::string_view sana;
};

// By land kind, in the order of Maa.
inline constexpr std::array MAAPÖRSSI{
    MaaPörssiRivi{1000, 500, 5000, 8000, "Metsien"},    // Metsä
    MaaPörssiRivi{1000, 500, 5000, 8000, "Peltojen"},   // Pelto
    MaaPörssiRivi{500, 250, 2500, 4000, "Joutomaan"},   // Joutomaa
    MaaPörssiRivi{500, 250, 4000, 7000, "Laidunmaan"},  // Laidun
};
static_assert(MAAPÖRSSI.size() == MAITA);

// The land walks and is checked field first, then forest.
inline constexpr std::array<Maa, MAITA> MAAJÄRJESTYS{MaaPelto, MaaMetsä, MaaJoutomaa, MaaLaidun};

// The five newspaper stories of a crash: the text around the news word, which stands at each gap.
struct Uutinen {
    std::string_view alku, keski, loppu;  // alku N keski [N loppu]; loppu only when the word comes twice
    bool kahdesti;
};
inline constexpr std::array UUTISET{
    Uutinen{"Pörssiromahdus! ",
            " hinta romahti kerralla alas. Onko maaseudun tulevaisuus vaakalaudalla tuotannon suhteen?", "", false},
    Uutinen{"", " hinta romahti alas. Tämä oli jo ennalta odotettua liian korkean hinnan suhteen arvioivat asiantuntijat.",
            "", false},
    Uutinen{"", " kurssi romahti kerralla alas. Suuren hinnan jälkeen inflaatio nakersi ", " hinnan suureen alamäkeen.",
            true},
    Uutinen{"Kurssit laskivat roimasti. ",
            " hinta teki tänään roiman laskun pörssissä. Maatalous saattaa kärsiä tästä, mutta ostajat ovat tyytyväisiä.",
            "", false},
    Uutinen{"Suuri kurssiromahdus tänään. ",
            " kurssi tipahti alas tänään iltapäivällä. Maatilanyrittäjät ovat huolissaan tulevaisuudestaan.", "", false},
};
static_assert(UUTISET.size() == 5);

inline constexpr std::string_view UUTISKUVA = "Kuvat/sattumat/lehti.jpg";

// The market report's lines: the label and the index it shows. Bread and honey have none.
struct RaporttiNimi {
    std::string_view nimi;
    Tuote tuote;
};
inline constexpr std::array RAPORTTINIMET{
    RaporttiNimi{"Maito", Maito},      RaporttiNimi{"Liha", Liha},          RaporttiNimi{"Villa", Villa},
    RaporttiNimi{"Kananmuna", Muna},   RaporttiNimi{"Turkikset", Turkki},   RaporttiNimi{"Rehu", Rehu},
    RaporttiNimi{"Raakapuu", Puu},     RaporttiNimi{"Lauta", Lauta},        RaporttiNimi{"Vihannes", Vihannes},
    RaporttiNimi{"Juusto", Juusto},    RaporttiNimi{"Jauho", Jauho},        RaporttiNimi{"Vilja", Vilja},
    RaporttiNimi{"Lannoite", Lanta},   RaporttiNimi{"Vaate", Vaate},        RaporttiNimi{"Makkara", Makkara},
    RaporttiNimi{"Leivos", Leivos},    RaporttiNimi{"Marja", Marja},        RaporttiNimi{"Viini", Viini},
};
static_assert(RAPORTTINIMET.size() == 18);

// The general outlook by the average index: the first whose floor the average is above.
struct Näkymärivi {
    int yli;
    std::string_view teksti;
};
inline constexpr std::array TALOUSNÄKYMÄT{
    Näkymärivi{16, "Huippukausi!"}, Näkymärivi{8, "Nousukausi"}, Näkymärivi{5, "Neutraali"},
    Näkymärivi{0, "Laskusuhdanne"},
};
inline constexpr std::string_view LAMA = "Lama!";

}  // namespace tanhua
