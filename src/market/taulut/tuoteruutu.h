// The product screen's tables: the season offsets, the automatic sale's order, labels and hints.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "../../core/taulut/tuotteet.h"

namespace tanhua {

// The seasons in the order of the offset columns.
inline constexpr std::array<std::string_view, 4> VUODENAJAT{"Talvi", "Kevät", "Kesä", "Syksy"};

// The season offset of a sale by product: Talvi, Kevät, Kesä, Syksy. Products without a row have none.
inline constexpr std::array<std::array<int, 4>, TUOTTEITA> KAUSILISÄT = [] {
    std::array<std::array<int, 4>, TUOTTEITA> t{};
    t[Villa] = {2, 0, -2, 0};
    t[Turkki] = {2, 0, -5, 4};
    t[Puu] = {2, 0, -2, 0};
    t[Vihannes] = {2, 0, -2, 0};
    t[Vilja] = {2, 0, -2, 0};
    t[Makkara] = {-2, 0, 5, 0};
    t[Vaate] = {2, 0, -5, 4};
    t[Lauta] = {-2, 0, 5, 0};
    t[Marja] = {2, 0, -2, 0};
    t[Viini] = {-1, 2, 1, 1};
    t[Hunaja] = {2, 0, -2, 0};
    return t;
}();
static_assert(KAUSILISÄT.size() == TUOTTEITA);

// Manure's offset shows in the unit price of its card only; it enters no sum of money.
inline constexpr std::array<int, 4> LANTAKORTIN_LISÄ{-1, 2, 1, 0};

// The order in which the accountant goes through the products; feed is bought, not sold.
inline constexpr std::array<Tuote, TUOTTEITA - 1> AUTOMYYNTIJÄRJESTYS{
    Muna, Maito, Liha, Villa, Turkki, Puu, Vihannes, Vilja, Lanta, Juusto,
    Makkara, Vaate, Leivos, Lauta, Leipä, Jauho, Marja, Viini, Hunaja};

namespace tuoteruutu {

// The label `aihe` over each product's picture, in the order of Tuote.
inline constexpr std::array<std::string_view, TUOTTEITA> AIHEET{
    "Tuotteet : Maito",    "Tuotteet : Liha",    "Tuotteet : Villa",     "Tuotteet : Kananmuna",
    "Tuotteet : Turkikset", "Tuotteet : Rehu",   "Tuotteet : Puu",       "Tuotteet : Lauta",
    "Tuotteet : Vihannes", "Tuotteet : Juusto",  "Tuotteet : Jauho",     "Tuotteet : Vilja",
    "Tuotteet : Lanta",    "Tuotteet : Leipä",   "Tuotteet : Vaate",     "Tuotteet : Makkara",
    "Tuotteet : Leivos",   "Tuotteet : Marja",   "Tuotteet : Viini",     "Tuotteet : Hunaja",
};
static_assert(AIHEET.size() == TUOTTEITA);

inline constexpr std::string_view AIHE_RUUTU = "Tuotteet : ";
inline constexpr std::string_view AIHE_KIRJANPITÄJÄ = "Kirjanpitäjän toimet";

// The hints with hints on.
inline constexpr std::string_view OHJE_TERVETULOA = "Tervetuloa tuotteiden ostoon ja myyntiin.";
inline constexpr std::string_view OHJE_KUVAT =
    "Valitse tuotteista tuotteet joita olet myymässä. Kyseistä tuotetta tulee sen eläimen mukaan minkä olet "
    "ostanut. Et voi ostaa kuin rehua. Kun olet valinnut tuotteen saat tarkempia ohjeita tuotteiden myynnistä "
    "sekä hinnoista.";
inline constexpr std::string_view OHJE_COMMAND2 =
    "Tämä valikko myy kaikki kyseiset tuotteet varastostasi. Muista että jos jatkojalostat tiettyä tuotetta, ei "
    "sen kaikkia raaka-aineita kannata myydä.";
inline constexpr std::string_view OHJE_COMMAND6 =
    "Tämä valikko myy vain puolet tuotteista. 1/2 osa myyntiä kannattaa käyttää jos sinulla on jatkojalostusta, "
    "esim jos tuotat ompelet villapaitoja, niin sinun ei kannata myydä kaikki villoja pois.";
inline constexpr std::string_view OHJE_COMMAND3 =
    "Tällä valikolla voit ostaa itsellesi rehua. Et voi ostaa muita tuotteita.";
inline constexpr std::string_view OHJE_KIRJANPITÄJÄ =
    "Kirjanpitäjäsi voi hoitaa sinun tuotteiden myynnin ja oston. Automaattinen myynti on todella hyödyllinen "
    "lisä pelissä, joka nopeuttaa paljon pelaamista.";
inline constexpr std::string_view OHJE_COMMAND1 = "Sulje tuotteet valikko ja palaa takaisin tanhuan pää valikkoon";

// The further check box of two cards.
inline constexpr std::string_view LISÄ_LANTA = "Käytä lannoitetta pelloissasi.";
inline constexpr std::string_view LISÄ_LAUTA = "Käytä lautoja hyödyksi, kun rakennat rakennuksia.";

// The heading of the accountant's panel.
inline constexpr std::string_view TAULUN_OTSIKKO = "Kirjanpitäjän automaattinen myynti";

// The text beside the box of the time of the automatic sale, by Tuotteet.rulla.
inline constexpr std::array<std::string_view, 2> MYYNTIAJAT{"joka kuukausi", "joka viikko"};

}  // namespace tuoteruutu

}  // namespace tanhua
