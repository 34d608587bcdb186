// The production panels of the building screen: titles, what the gross is, which estimates show,
// whose wages come off, and the two product pictures.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "../../core/taulut/rakennukset.h"
#include "../../core/taulut/tuotteet.h"
#include "../../core/taulut/työvoima.h"

namespace tanhua {

// Where a panel's gross comes from: the month's sales of its products, the riding lessons, or the
// packing plant's income.
enum class Brutto { Tulot, Ratsastus, Pakkaamo, Rehu };

struct PaneeliRivi {
    std::string_view otsikko;
    Brutto brutto;
    std::array<Tuote, 2> tulot;  // the products whose month's sales make the gross
    int tuloja;
    Työläinen työ;               // whose wages come off the net
    bool sähkö, vesi;            // the estimates shown
    bool talvellaNetto;          // false for the yards: no net line in "Talvi"
    std::string_view raakaKuva, tuoteKuva;  // under Kuvat/tuotteet/; empty where none shows
};

inline constexpr std::array PANEELITAULU{
    PaneeliRivi{.otsikko = "Sahan tämän kk:n tuotto: ", .brutto = Brutto::Tulot, .tulot = {Lauta}, .tuloja = 1,
                .työ = Kirvesmies, .sähkö = true, .vesi = true, .talvellaNetto = true,
                .raakaKuva = "puu.jpg", .tuoteKuva = "lauta.jpg"},  // 0 Saha
    PaneeliRivi{.otsikko = "Kasvihuoneen tämän kk:n tuotto: ", .brutto = Brutto::Tulot, .tulot = {Vihannes},
                .tuloja = 1, .työ = Puutarhuri, .sähkö = false, .vesi = true, .talvellaNetto = false,
                .raakaKuva = "", .tuoteKuva = ""},  // 1 Kasvihuone
    PaneeliRivi{.otsikko = "Meijerin tämän kk:n tuotto: ", .brutto = Brutto::Tulot, .tulot = {Juusto}, .tuloja = 1,
                .työ = Meijerityöntekijä, .sähkö = true, .vesi = true, .talvellaNetto = true,
                .raakaKuva = "maito.jpg", .tuoteKuva = "juusto.jpg"},  // 2 Meijeri
    PaneeliRivi{.otsikko = "Myllyn tämän kk:n tuotto: ", .brutto = Brutto::Tulot, .tulot = {Jauho}, .tuloja = 1,
                .työ = Mylläri, .sähkö = true, .vesi = false, .talvellaNetto = true,
                .raakaKuva = "vilja.jpg", .tuoteKuva = "jauho.jpg"},  // 3 Mylly
    PaneeliRivi{.otsikko = "Ompelimon tämän kk:n tuotto: ", .brutto = Brutto::Tulot, .tulot = {Vaate}, .tuloja = 1,
                .työ = Ompelija, .sähkö = true, .vesi = true, .talvellaNetto = true,
                .raakaKuva = "villa.jpg", .tuoteKuva = "vaate.jpg"},  // 4 Ompelimo
    PaneeliRivi{.otsikko = "Leipomon tämän kk:n tuotto: ", .brutto = Brutto::Tulot, .tulot = {Leivos, Leipä},
                .tuloja = 2, .työ = Leipuri, .sähkö = true, .vesi = true, .talvellaNetto = true,
                .raakaKuva = "jauho.jpg", .tuoteKuva = "leipä.jpg"},  // 5 Leipomo
    PaneeliRivi{.otsikko = "Teurastamon tämän kk:n tuotto: ", .brutto = Brutto::Tulot, .tulot = {Makkara},
                .tuloja = 1, .työ = Teurastaja, .sähkö = true, .vesi = true, .talvellaNetto = true,
                .raakaKuva = "liha.jpg", .tuoteKuva = "makkara.jpg"},  // 6 Teurastamo
    PaneeliRivi{.otsikko = "Rehuntuotantolaitos: ", .brutto = Brutto::Rehu, .tulot = {}, .tuloja = 0,
                .työ = Varastotyöntekijä, .sähkö = true, .vesi = true, .talvellaNetto = true,
                .raakaKuva = "vilja.jpg", .tuoteKuva = "rehu.jpg"},  // 7 Rehuntuotanto: a panel of its own, no worker
    PaneeliRivi{.otsikko = "Hevostallin tämän kk:n tuotto: ", .brutto = Brutto::Ratsastus, .tulot = {}, .tuloja = 0,
                .työ = Tallimestari, .sähkö = true, .vesi = true, .talvellaNetto = true,
                .raakaKuva = "", .tuoteKuva = ""},  // 8 Hevostalli
    PaneeliRivi{.otsikko = "Marjatarhan tämän kk:n tuotto: ", .brutto = Brutto::Tulot, .tulot = {Marja},
                .tuloja = 1, .työ = Puutarhuri, .sähkö = false, .vesi = true, .talvellaNetto = false,
                .raakaKuva = "", .tuoteKuva = ""},  // 9 Marjatarha
    PaneeliRivi{.otsikko = "Viinitehtaan tämän kk:n tuotto: ", .brutto = Brutto::Tulot, .tulot = {Viini},
                .tuloja = 1, .työ = Viinimestari, .sähkö = true, .vesi = true, .talvellaNetto = true,
                .raakaKuva = "marja.jpg", .tuoteKuva = "viini.jpg"},  // 10 Viinitehdas
    PaneeliRivi{.otsikko = "Mehiläisten tämän kk:n tuotto : ", .brutto = Brutto::Tulot, .tulot = {Hunaja},
                .tuloja = 1, .työ = Mehiläishoitaja, .sähkö = false, .vesi = false, .talvellaNetto = false,
                .raakaKuva = "", .tuoteKuva = ""},  // 11 Mehiläistarha
    PaneeliRivi{.otsikko = "Pakkaamon tämän kk:n tuotot : ", .brutto = Brutto::Pakkaamo, .tulot = {}, .tuloja = 0,
                .työ = Varastotyöntekijä, .sähkö = true, .vesi = false, .talvellaNetto = true,
                .raakaKuva = "", .tuoteKuva = ""},  // 12 Pakkaamo
};
static_assert(PANEELITAULU.size() == RAKENNUKSIA);

// The lines of every panel.
inline constexpr std::string_view PANEELI_BRUTTO = "Bruttotuotto :";
inline constexpr std::string_view PANEELI_KK = "/kk";
inline constexpr std::string_view PANEELI_SÄHKÖ = "Sähkölasku arvio : ";
inline constexpr std::string_view PANEELI_VESI = "Arvioitu vesilasku: ";
inline constexpr std::string_view PANEELI_NETTO = "Nettotuotto : ";
inline constexpr std::string_view PANEELI_NETTO_KK = " /kk";
// The packing plant's own lines.
inline constexpr std::string_view PANEELI_MAX = "Max tuotanto/kk : ";
inline constexpr std::string_view PANEELI_LAATU = "Tuotelaatu : ";
inline constexpr double PAKKAAMON_HIHNAN_SÄHKÖ = 0.4;  // the conveyor's share of the plant's estimate
// The feed plant's own lines.
inline constexpr std::string_view REHU_MAX = "Max tuotantomäärä :";
inline constexpr std::string_view REHU_PÄIVÄ = "/päivä";
inline constexpr std::string_view REHU_VILJAA = "Käyttänyt viljaa: ";
inline constexpr std::string_view REHU_REHUA = "Tuottanut rehua: ";
inline constexpr std::string_view REHU_EI = "Ei tuotantoa tässä kuussa";
inline constexpr std::string_view REHU_YHTEENSÄ = "Yhteiskulutus : -";

// The slider's tool text on the eight buildings with a percentage.
inline constexpr std::string_view TUOTANTO_VIHJE =
    "Tuotannon rajoittamista kannattaa hyödyntää, jos olet tehnyt raaka-aineesta sopimuksen.";

}  // namespace tanhua
