// The five stars: what each asks of the farm, its prize, the news of earning it and what it asks on a click.
#pragma once

#include <array>
#include <string_view>

namespace tanhua {

struct TähtiRivi {
    double aikuisia, siilo, varasto, työntekijöitä, tarvikkeita;
    double maata;   // the land must be above this, not merely equal
    double rakennuksia, sopimuksia;
    double palkinto;
    std::string_view uutinen;   // the news window's text when the star is earned
    std::string_view vaatimus;  // the box shown by a click on the star, its parts joined by line feeds
};

inline constexpr std::string_view TÄHTI_KOLME =
    "Tilasi on valittu tämän maakunnan parhaaksi tilaksi. Kunnan sanomat luokitteli tilasi kolmen tähden maatilaksi. "
    "Sait tapauksesta hyvää mainosta, 3000 arvoisen bonuksen, sekä avattua käyttöösi kaikki "
    "lisärakennusominaisuudet.";

inline constexpr std::array TÄHTITAULU{
    TähtiRivi{.aikuisia = 10, .siilo = 200, .varasto = 200, .työntekijöitä = 0, .tarvikkeita = 0, .maata = -1,
              .rakennuksia = 0, .sopimuksia = 0, .palkinto = 1000,
              .uutinen = "Tilasi on valittu tämän kylän parhaaksi tilaksi. Paikallislehti luokitteli tilasi yhden tähden "
                         "maatilaksi. Sait tapauksesta vähän mainosta, 1000 arvoisen bonuksen, sekä avattua käyttöösi "
                         "maa-alueet ja tarvikkeet.",
              .vaatimus = "Tähden saavuttamiseen :\nEläimiä : 10, Siilo : 200, Varasto : 200\n"},  // 1
    TähtiRivi{.aikuisia = 20, .siilo = 400, .varasto = 400, .työntekijöitä = 1, .tarvikkeita = 1, .maata = -1,
              .rakennuksia = 0, .sopimuksia = 0, .palkinto = 2000,
              .uutinen = "Tilasi on valittu tämän kaupungin parhaaksi tilaksi. Paikallislehti luokitteli tilasi kahden "
                         "tähden maatilaksi. Sait tapauksesta mainosta, 2000 arvoisen bonuksen, sekä avattua käyttöösi "
                         "kaikki jalostusrakennukset.",
              .vaatimus = "Tähden saavuttamiseen :\nEläimiä : 20, Siilo : 400, Varasto : 400, ainakin 1 työntekijä, "
                          "ainakin 1 tarvike\n"},  // 2
    TähtiRivi{.aikuisia = 30, .siilo = 600, .varasto = 600, .työntekijöitä = 3, .tarvikkeita = 4, .maata = 5,
              .rakennuksia = 1, .sopimuksia = 1, .palkinto = 3000, .uutinen = TÄHTI_KOLME,
              .vaatimus = "Tähden saavuttamiseen :\nEläimiä : 30, Siilo : 600, Varasto : 600\n, 1 onnistunut sopimus, 1 "
                          "jalostamo, 3 työntekijää, 4 tarviketta\n, maa-alueita 5 hehtaaria\n"},  // 3
    // The fourth star's news says 3000 and its box 3 contracts and 8 supplies; the test asks for 5 and 6.
    TähtiRivi{.aikuisia = 50, .siilo = 1000, .varasto = 1000, .työntekijöitä = 5, .tarvikkeita = 6, .maata = 50,
              .rakennuksia = 3, .sopimuksia = 5, .palkinto = 5000, .uutinen = TÄHTI_KOLME,
              .vaatimus = "Tähden saavuttamiseen :\nEläimiä : 50, Siilo : 1000, Varasto : 1000\n, 3 sopimusta, 3 "
                          "jalostamoa, 5 työntekijää, 8 tarviketta\n, maa-alueita 50 hehtaaria\n"},  // 4
    TähtiRivi{.aikuisia = 100, .siilo = 5000, .varasto = 5000, .työntekijöitä = 10, .tarvikkeita = 10, .maata = 100,
              .rakennuksia = 6, .sopimuksia = 10, .palkinto = 10000,
              .uutinen = "Tilasi on valittu tämän Suomen parhaaksi tilaksi. Kunnan sanomat luokitteli tilasi kolmen "
                         "tähden maatilaksi. Sait tapauksesta hyvää mainosta, 3000 arvoisen bonuksen, sekä avattua "
                         "käyttöösi kaikki lisärakennusominaisuudet.",
              .vaatimus = "Tähden saavuttamiseen :\nEläimiä : 100, Siilo : 5000, Varasto : 5000\n, 10 sopimusta, 6 "
                          "jalostamoa, 10 työntekijää, 10 tarviketta\n, maa-alueita 100 hehtaaria\n"},  // 5
};
static_assert(TÄHTITAULU.size() == 5);

inline constexpr std::string_view KAIKKI_TÄHDET =
    "Sinulla on jo saavutettuna kaikki tähdet. Tilasi on valittu yhdeksi maamme parhaaksi maatilaksi.";
inline constexpr std::string_view TÄHTIKUVA = "Kuvat/sattumat/Onnittelu.jpg";

}  // namespace tanhua
