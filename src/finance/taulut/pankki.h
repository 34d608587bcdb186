// The bank screen's texts and its table of loan periods.
#pragma once

#include <array>
#include <string_view>

#include "../../core/laskenta.h"
#include "../../core/state.h"

namespace tanhua {

// A loan period of the sheet: its label, the months free of repayment, and what the
// difficulty is raised by to give the rate (per mille a month).
struct MaksuAika {
    std::string_view nimi;
    Byte kuukaudet;
    int korkolisä;
};

inline constexpr std::array<MaksuAika, 3> MAKSUAJAT{{
    {"6 kk", 6, 3},
    {"1 vuosi", 12, 4},
    {"2 vuotta", 24, 5},
}};

namespace pankkiteksti {
inline constexpr std::string_view Paikka = "Pankki formi";
inline constexpr std::string_view OtaLainaa = "Ota lainaa";
inline constexpr std::string_view TalletaRahaa = "Talleta rahaa";
inline constexpr std::string_view Velkoja = "Sinulla on rästissä edellisiä velkoja, huolehdi ne ensin pois.";
inline constexpr std::string_view LainaOhje =
    "Ota lainaa. Pankki laskee omaisuuden mukaan maksimi lainasumman. Voit itse valita maksuajan, jonka mukaan "
    "määräytyy myös korkoprosentti.";
inline constexpr std::string_view EiNollaa = "Lainan summan pitää olla suurempi kuin nolla.";
inline constexpr std::string_view LiikaaAlku = "Pankki ei suostu lainaamaan sinulle noin paljoa, miten olisi ";
inline constexpr std::string_view LiikaaLoppu = " ?";
inline constexpr std::string_view LainattuAlku = "Pankki lainasi sinulle juuri ";
inline constexpr std::string_view RahaaLoppu = " rahaa.";
inline constexpr std::string_view EiMaksuunAlku = "Ei sinulla ole tarpeeksi rahaa maksaa ";
inline constexpr std::string_view EiMaksuunLoppu = " lainaa.";
inline constexpr std::string_view PikkuSummia = "Pankki ei ota vastaan pikku summia";
inline constexpr std::string_view TalletusOhje = "Voit tallentaa käteistäsi tilille, jossa se nousee 3% korkoa.";
inline constexpr std::string_view EiNoinPaljoa = "Ei sinulla ole noin paljoa rahaa!";
inline constexpr std::string_view TalletettuAlku = "Talletit tilillesi juuri ";
inline constexpr std::string_view SummaVika = "Kirjoita haluamasi summa, älä kirjaimia tai muita merkkejä";

// The insurance sheet.
inline constexpr std::string_view VakuOtsikko = "Vakuutus sopimus";
inline constexpr std::string_view Vakuutukset = "Vakuutukset";
inline constexpr std::string_view Rastita = "Rastita haluamasi vakuutukset listalta.";
inline constexpr std::string_view VakuSumma = "Vakuutusmaksut yhteensä :                   / kk";
}  // namespace pankkiteksti

// A policy's box: its name, label and pointer text, indexed as the boxes of the record.
struct VakuutusRivi {
    std::string_view laatikko;  // VakuutusPalo, ...
    std::string_view maksu;     // the premium label beside it: VakuPalo, ...
    std::string_view nimi;      // the label beside the box
    std::string_view info;      // the text shown in Vakuinfo while the pointer is on the box
};

inline constexpr std::array<VakuutusRivi, VAKUUTUKSIA> VAKUUTUSTAULU = [] {
    std::array<VakuutusRivi, VAKUUTUKSIA> t{};
    t[VakuutusPalo] = {"VakuutusPalo", "VakuPalo", "Luonnonvoima- ja palovakuutus",
                       "Tämä vakuutus korvaa kaikki luonnonvoimien aiheuttamat tuhot. Esimerkiksi tulipalot ja "
                       "myrskyt."};
    t[VakuutusVarkaus] = {"VakuutusVarkaus", "VakuVarka", "Varkaus- ja ilkivaltavakuutus",
                          "Tämä vakuutus korvaa aktivistien, sekä varkaiden aiheuttamat vahingot."};
    t[VakuutusEläin] = {"VakuutusEläin", "VakuElä", "Eläinvakuutus tautien varalta",
                        "Tämä vakuutus korvaa eläinten tapaturmaisen kuoleman tai sairastumisen."};
    t[VakuutusTyö] = {"VakuutusTyö", "VakuTyö", "Tapaturmavakuutus työntekijöille",
                      "Tämä vakuutus korvaa työntekijöiden työpaikka tapaturmat ja onnettomuudet."};
    t[VakuutusTarvike] = {"VakuutusTarvike", "VakuTarvike", "Vakuutus tarvikkeille ja konerikoille",
                          "Tämä vakuutus korvaa kaikkien tarvikkeiden konerikot, sekä työkoneiden hajoamiset."};
    return t;
}();

}  // namespace tanhua
