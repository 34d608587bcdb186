// The contracts' tables: what a buyer may phone about, the buyers' names, and the notices of the month.
#pragma once

#include <array>
#include <string_view>

#include "../../core/state.h"

namespace tanhua {

// Where a product's offer takes its condition and its base amount from.
enum class Lähde { Lehmä, Sika, Lammas, Kana, Kettu, Työ, Pelto };

// One row of the daily draw: the offer is made only while the source is above `raja`; the base
// amount a0 is `kerroin` times the source, and the stock the contract draws on is `tuote`.
struct TarjousRivi {
    std::string_view teksti;  // the offer text, also the slot's product name
    Tuote tuote;
    Lähde lähde;
    Työläinen työ;            // the staff kind, where the source is staff
    int kerroin;
    int raja;
};

// The daily draw d indexes this table. Feed and honey are never offered.
//                      text        stock     source          staff (if any)          a0 factor, above
inline constexpr std::array TARJOUKSET{
    TarjousRivi{"Maito", Maito, Lähde::Lehmä, Nahkuri, 3, 0},                        // 0
    TarjousRivi{"Liha", Liha, Lähde::Sika, Nahkuri, 2, 0},                           // 1
    TarjousRivi{"Villa", Villa, Lähde::Lammas, Nahkuri, 3, 0},                       // 2
    TarjousRivi{"Muna", Muna, Lähde::Kana, Nahkuri, 2, 0},                           // 3
    TarjousRivi{"Turkki", Turkki, Lähde::Kettu, Nahkuri, 1, 0},                      // 4
    TarjousRivi{"Puu", Puu, Lähde::Työ, Metsuri, 1, 0},                              // 5
    TarjousRivi{"Lauta", Lauta, Lähde::Työ, Kirvesmies, 2, 0},                       // 6
    TarjousRivi{"Vihannes", Vihannes, Lähde::Työ, Puutarhuri, 2, 0},                 // 7
    TarjousRivi{"Juusto", Juusto, Lähde::Työ, Meijerityöntekijä, 2, 0},              // 8
    TarjousRivi{"Jauho", Jauho, Lähde::Työ, Mylläri, 2, 0},                          // 9
    TarjousRivi{"Vilja", Vilja, Lähde::Pelto, Nahkuri, 1, 2},                        // 10
    TarjousRivi{"Lanta", Lanta, Lähde::Sika, Nahkuri, 2, 0},                         // 11
    TarjousRivi{"Leipä", Leipä, Lähde::Työ, Leipuri, 2, 0},                          // 12
    TarjousRivi{"Vaate", Vaate, Lähde::Työ, Ompelija, 2, 0},                         // 13
    TarjousRivi{"Makkara", Makkara, Lähde::Työ, Teurastaja, 2, 0},                   // 14
    TarjousRivi{"Leivos", Leivos, Lähde::Työ, Leipuri, 1, 0},                        // 15
    TarjousRivi{"Marja", Marja, Lähde::Työ, Puutarhuri, 1, 0},                       // 16
    TarjousRivi{"Viini", Viini, Lähde::Työ, Viinimestari, 2, 0},                     // 17
};
static_assert(TARJOUKSET.size() == 18, "the daily draw is U(0..17)");

// The buyer's name, two words drawn one after the other.
inline constexpr std::array<std::string_view, 6> OSTAJA_ALKU{"Paikallinen", "Lähialueen", "Eräs Kunnan",
                                                             "Eräs Kylän", "Naapurikylän", "Eräs Pitäjän"};
inline constexpr std::array<std::string_view, 5> OSTAJA_LOPPU{"yhtiö", "firma", "tukku", "välittäjä", "kauppa"};

// A notice of the month, written alku + t + keski + n + loppu with t the product's name and n the
// figure; a notice that doesn't name the product is alku + n + loppu.
struct Ilmoitus {
    std::string_view alku, keski, loppu;
    bool nimellä = true;
};

namespace sopimusteksti {
inline constexpr std::string_view Kuva = "Kuvat/sattumat/lakimies.jpg";
inline constexpr std::string_view Soittopyyntö = "Olet saanut soittopyynnön koskien sopimusta.";
inline constexpr std::string_view Yhteydessä =
    "Olet yhteydessä juuri kyseiseen firmaan, sinun on päätettävä hyväksytkö vai hylkäätkö sopimuksen.";
inline constexpr std::string_view Parhaillaan =
    "Olet parhaillaan yhteydessä juuri kyseiseen firmaan, sinun on päätettävä hyväksytkö vai hylkäätkö sopimuksen.";
inline constexpr std::string_view KolmeJo =
    "Sinulla on jo 3 sopimusta. Peru yksi sopimuksista, tai odota viimeisen sopimuksen loppumista.";
inline constexpr std::string_view EiTarjouksia =
    "Sinulla ei ole tällä hetkellä tullut yhtään sopimustarjousta. Sopimustarjouksia saattaa ilmestyä sinulle, kun "
    "kykenet tuottamaan yhtiöiden haluamia tuotteita.";
inline constexpr std::string_view Tarjouksia =
    "Sopimus listalla on sinulle jätetyt soittopyynnöt. Valitsemalla haluttu sopimus soitat sopimuksen tarjoajalle. "
    "Tarjouksen kuultua sinun on päätettävä välittömästi hyväksytkö sopimuksen, vai hylkäätkö tehdyn tarjouksen.";
}  // namespace sopimusteksti

// The five notices of a broken contract: t the product ("Muna" written "Kananmuna"), n the penalty.
inline constexpr std::array<Ilmoitus, 5> RIKOTTU{{
    {"Sopimuksesti peruuntui, koska tuotteesi ", " ei riittänyt rajaan asti. Sopimussakko on ", ""},
    {"Epäonnistuit ", "-sopimuksen noudattamisessa. Jouduit maksamaan rikkomissakkoa ", ""},
    {"Tuotantosi ei riittänyt ", " sopimuksen mukaiseen tuotantorajaan. Rikkomissakko on ", ""},
    {"",
     " sopimuksesi peruttiin, koska et pystynyt pitämään sopimuksen määrärajoista kiinni. Jouduit maksamaan "
     "sopimussakkoa ",
     ""},
    {"", " ei riittänyt sopimuksen määrärajaan asti. Sopimuksen rikkomissakko on ", ""},
}};

// The five notices of a fulfilled contract: t the product as the slot names it, n the bonus.
inline constexpr std::array<Ilmoitus, 5> TÄYTETTY{{
    {"", " sopimuksesti päättyi onnistuneesti. Keräsit itsellesi ", " bonuksen."},
    {"Onnistuit tuottamaan sopimuksen kokonaiskeston mukaisesti tuotteita. Sait juuri ", "", " bonuksen.", false},
    {"Yhteistyö ", "sopimuksessa päättyi onnistuneesti. Keräsit juuri itsellesi ", " bonuksen."},
    {"Onneksi olkoon. Päätit sopimuksen onnistuneesti keräten itsellesi ", "", " bonuksen tilillesi.", false},
    {"Yhteistyökumppanimme on tyytyväinen sopimukseen ja maksoi sopimuksen päättymisestä ", "", " bonuksen.",
     false},
}};

}  // namespace tanhua
