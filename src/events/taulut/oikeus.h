// Lawsuits and tax, and the bookkeeper's events: their sums, effects and texts.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "../../core/taulut/työvoima.h"

namespace tanhua {

// Lawsuits 24 to 27: S = the fraction r of a tenth of the cash, plus a base, cut down or rounded to
// even as the row says, plus a fee. Number 28, the tax, has a sum of its own.
enum class Pyöristys { Alas, Parilliseen };
struct OikeusRivi {
    int numero;
    Pyöristys pyöristys;
    int pohja;                 // added before the rounding
    int maksu;                 // added after it
    std::string_view rivi;     // the event list's line
    std::string_view teksti;   // the news window's text; S follows
};

inline constexpr std::array OIKEUSJUTUT{
    OikeusRivi{.numero = 24, .pyöristys = Pyöristys::Alas, .pohja = 1000, .maksu = 100,
               .rivi = "Koirasi oli syönyt naapurisi kanoja. Naapuri haastoi oikeuteen",
               .teksti = "Koirasi oli syönyt naapurisi kanoja. Naapuri haastoi sinut oikeuteen. Jouduit korvaamaan : "},
    OikeusRivi{.numero = 25, .pyöristys = Pyöristys::Alas, .pohja = 1000, .maksu = 100,
               .rivi = "Kettujasi oli päässyt vapaaksi!",
               .teksti = "Kettujasi oli päässyt vapaaksi, koska sinulla ei ole nahkuria vahtimassa kettujasi. Ketut "
                         "tuhosivat naapurisi omaisuutta. Jouduit korvaamaan : "},
    OikeusRivi{.numero = 26, .pyöristys = Pyöristys::Parilliseen, .pohja = 2000, .maksu = 500,
               .rivi = "Metsurisi teki virhearvion hakkuussa.",
               .teksti = "Metsurisi oli hakannut väärältä palstalta puita, jouduit korvaamaan oikeudessa :"},
    OikeusRivi{.numero = 27, .pyöristys = Pyöristys::Alas, .pohja = 2000, .maksu = 500,
               .rivi = "Sikalasi saastuttaa. Jouduit oikeuteen",
               .teksti = "Sikalasi ja lantavarastosi haisevat ympäri kylää. Jouduit oikeudessa korvaamaan henkisistä "
                         "kärsimyksistä :"},
};

inline constexpr std::string_view VEROKARHU_RIVI = "Verokarhun kosto";
inline constexpr std::string_view VEROKARHU_TEKSTI =
    "Olit ilmoittanut tulosi väärin verotuksessa. Jouduit maksamaan mätkyjä :";

// The bookkeeper's events 29 to 37. S = D(arvonta) + lisä, drawn once; the text is `ennen`, S, `jälkeen`.
struct KirjanpitoRivi {
    int numero;
    bool kirjanpitäjällä;               // happens only with a bookkeeper (else only without one)
    std::optional<Työläinen> lähtijä;   // the kind one of whom quits; the event needs one employed
    int arvonta;
    int lisä;
    int etumerkki;                      // +1: the cash grows by S; -1: it falls
    std::string_view rivi;
    std::string_view ennen;
    std::string_view jälkeen;
};

inline constexpr std::array KIRJANPITO{
    KirjanpitoRivi{.numero = 29, .kirjanpitäjällä = false, .lähtijä = Leipuri, .arvonta = 1000, .lisä = 500,
                   .etumerkki = -1, .rivi = "Leipurisi otti lopputilin. Hanki kirjanpitäjä hoitamaan asioitasi",
                   .ennen = "Leipurisi ei ollut tyytyväinen työpaikkaansa ja otti lopputilin. Jouduit maksamaan "
                            "hänelle korvauksia :",
                   .jälkeen = ""},
    KirjanpitoRivi{.numero = 30, .kirjanpitäjällä = false, .lähtijä = Metsuri, .arvonta = 1000, .lisä = 500,
                   .etumerkki = -1, .rivi = "Metsurisi otti lopputilin. Hanki kirjanpitäjä hoitamaan asioitasi",
                   .ennen = "Metsurisi otti lopputilin työpaikastaan ja jätti lakimiehellesi korvausvaatimuksen :",
                   .jälkeen = ""},
    KirjanpitoRivi{.numero = 31, .kirjanpitäjällä = false, .lähtijä = Siivooja, .arvonta = 1000, .lisä = 500,
                   .etumerkki = -1, .rivi = "Siivoojasi otti lopputilin. Hanki kirjanpitäjä hoitamaan asioitasi",
                   .ennen = "Siivoojasi jätti lakimiehellesi ",
                   .jälkeen = " korvaukset ja otti lopputilin työpaikastasi"},
    KirjanpitoRivi{.numero = 32, .kirjanpitäjällä = false, .lähtijä = Ompelija, .arvonta = 1000, .lisä = 500,
                   .etumerkki = -1, .rivi = "Ompelijasi otti lopputilin. Hanki kirjanpitäjä hoitamaan asioitasi",
                   .ennen = "Ompelijasi oli tyytymätön työpaikkaansa ja jätti lakimiehellesi ",
                   .jälkeen = " korvaukset"},
    KirjanpitoRivi{.numero = 33, .kirjanpitäjällä = false, .lähtijä = Teurastaja, .arvonta = 1000, .lisä = 500,
                   .etumerkki = -1, .rivi = "Teurastajasi otti lopputilin. Hanki kirjanpitäjä hoitamaan asioitasi",
                   .ennen = "Teurastajaasi alkoi tympiä työpaikkasi ja hän otti lopputilin. Lakimiehellesi jäi "
                            "kuitenkin korvausvaatimus :",
                   .jälkeen = ""},
    KirjanpitoRivi{.numero = 34, .kirjanpitäjällä = true, .lähtijä = std::nullopt, .arvonta = 2000, .lisä = 1,
                   .etumerkki = 1, .rivi = "Laskuvirhe, sait korvauksia",
                   .ennen = "Kirjanpitäjäsi huomasi laskuvirheen tukkuun myydyissä tuotteissa. Sait korvauksia :",
                   .jälkeen = ""},
    KirjanpitoRivi{.numero = 35, .kirjanpitäjällä = true, .lähtijä = std::nullopt, .arvonta = 2000, .lisä = 1,
                   .etumerkki = 1, .rivi = "Laskuvirhe, sait korvauksia",
                   .ennen = "Olit maksanut liikaa veroja viime vuonna. Kirjanpitäjäsi korjasi virheen ja sait ",
                   .jälkeen = " veronpalautuksissa."},
    KirjanpitoRivi{.numero = 36, .kirjanpitäjällä = false, .lähtijä = std::nullopt, .arvonta = 2000, .lisä = 1,
                   .etumerkki = -1, .rivi = "Laskuvirhe, menetit rahaa",
                   .ennen = "Olit myynyt tavaraa tukkuun ylihinnalla. ",
                   .jälkeen = " lasku seurasi perässäsi. Kannattaisi hommata kirjanpitäjä."},
    KirjanpitoRivi{.numero = 37, .kirjanpitäjällä = false, .lähtijä = std::nullopt, .arvonta = 2000, .lisä = 1,
                   .etumerkki = -1, .rivi = "Laskuvirhe, menetit rahaa",
                   .ennen = "Laskit veroprosenttisi viime vuonna ihan päin mäntyä ja jouduit maksamaan ",
                   .jälkeen = " mätkyjä. Kannattaisi palkata kirjanpitäjä."},
};
static_assert(KIRJANPITO.size() == 9);

// The hygiene award, number 43.
inline constexpr std::string_view HYGIENIA_RIVI = "Tilan hygienia huippuluokkaa";
inline constexpr std::string_view HYGIENIA_TEKSTI =
    "Terveysviranomaiset kävivät tilallasi ja kehuivat tilasi hygienian taivaisiin! Sait lisätukea :";

}  // namespace tanhua
