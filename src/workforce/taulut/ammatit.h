// The staff screen's facts of each kind: the building that caps it, what can be set, picture and text.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "../../core/taulut/rakennukset.h"
#include "../../core/taulut/työvoima.h"

namespace tanhua {

struct AmmattiRivi {
    std::optional<Rakennus> katto;  // two workers a level of this building; none: no cap
    bool ylityöAsetettavissa;       // the overtime buttons work for this kind
    bool palkkaAsetettavissa;       // the wage slider moves the wage
    std::string_view kuva;          // under Kuvat/ihmiset/
    std::string_view teksti;        // shown in info when the kind is chosen
};

inline constexpr std::array<AmmattiRivi, TYÖLÄISIÄ> AMMATTITAULU{{
    // Nahkuri
    {std::nullopt, false, false, "nahkuri.jpg",
     "Nahkuri nylkee kettusi turkeiksi, sekä vahtii kettutarhaa. Nahkurin kuukausipalkka on 100 / kk, sekä "
     "erillisveloitus ketun nylkemisestä 500."},
    // Puutarhuri: the greenhouse alone; a berry yard doesn't take a gardener
    {Kasvihuone, true, true, "puutarhuri.jpg",
     "Puutarhuri hoitaa kasvihuoneestasi ja marjatarhastasi sadon. Puutarhuri ei työskentele talvella, eikä "
     "vaadi silloin palkkaa."},
    // Leipuri
    {Leipomo, true, true, "leipuri.jpg",
     "Leipuri tuottaa leipää sekä leivoksia. Leipään riittää pelkästään jauhot, mutta leivoksiin tarvitaan myös "
     "kananmunia."},
    // Teurastaja
    {Teurastamo, true, true, "teurastaja.jpg",
     "Teurastaja teurastaa eläimesi tehokkaammin ja tuottaa lihatuotteita. Teurastaja voi myös suorittaa "
     "teurastuksen automaattisesti."},
    // Metsuri
    {std::nullopt, true, true, "metsuri.jpg",
     "Metsuri hakkaa maa-alueittesi metsiä ja tuottaa siten raakapuuta. Metsuri voi myös istuttaa joutomaasta "
     "metsää takaisin."},
    // Kirvesmies
    {Saha, true, true, "kirvesmies.jpg",
     "Kirvesmies työskentelee sahallasi ja höylää raakapuusta lankkuja. Kirvesmies voi osallistua myös "
     "rakennusten rakentamiseen."},
    // Ompelija
    {Ompelimo, true, true, "ompelija.jpg", "Ompelija kutoo villastasi vaatteita."},
    // Meijerityöntekijä
    {Meijeri, true, true, "meijeri.jpg", "Meijerityöntekijä tuottaa maidostasi juustoa."},
    // Vahtikoira: a fixed wage of 100
    {std::nullopt, false, false, "koira.jpg",
     "Vahtikoira pitää kettutytöt sekä porkkanavarkaat hyvin loitolla tilastasi. Vahtikoira syö 100 edestä "
     "koiranmuonaa kuukaudessa."},
    // Siivooja
    {std::nullopt, true, true, "siivooja.jpg",
     "Siivooja pitää tilasi hygienian kunnossa ja estää tautitapauksia. Hyvä hygienia parantaa myös eläinten "
     "poikimista ja tuotantoa."},
    // Mylläri
    {Mylly, true, true, "mylläri.jpg", "Mylläri työskentelee myllyllä ja jauhaa viljasi jauhoksi."},
    // Kirjanpitäjä
    {std::nullopt, false, true, "kirjanpitäjä.jpg",
     "Kirjanpitäjä hoitaa rahalliset asiasi kuten verotuksen ja laskut. Kirjanpitäjä voi myös myydä tuotteitasi "
     "automaattisesti."},
    // Tallimestari
    {Hevostalli, true, true, "Tallimestari.jpg",
     "Tallimestari hoitaa hevostallisi kunnon ja pitää ratsastustunteja. Yhtä tallimestaria kohden kannattaa "
     "olla aina 2 hevosta."},
    // Siementäjä
    {std::nullopt, false, true, "siementäjä.jpg", "Keinosiementäjä pitää yllä eläimien lisääntymistä."},
    // Viinimestari
    {Viinitehdas, true, true, "viinimestari.jpg", "Viinimestari tuottaa marjoistasi viiniä."},
    // Mehiläishoitaja
    {Mehiläistarha, true, true, "mehiläishoitaja.jpg",
     "Mehiläishoitaja hoitaa mehiläistarhaasi ja auttaa tuottamaan hunajaa."},
    // Varastotyöntekijä
    {Pakkaamo, true, true, "Varastotyöntekijä.jpg",
     "Varastotyöntekijä työskentelee pakkaamossasi. Yksi varastotyöntekijä voi käsitellä noin 2000 tuotetta "
     "päivässä."},
}};

}  // namespace tanhua
