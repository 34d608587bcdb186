// The life story's texts: the goals, the result lines by mode, the money word, the lines on
// animals, buildings, land and staff, and the closing verdict.
#pragma once

#include <array>
#include <string_view>

namespace tanhua::tarina {

// A line of a table that holds when the value lies in its range. `alaMukana`/`yläMukana` say
// whether the range's ends belong to it; a missing end is open.
struct Väli {
    double ala, ylä;
    bool alaMukana, yläMukana;
    constexpr bool Sisältää(double x) const {
        return (alaMukana ? x >= ala : x > ala) && (yläMukana ? x <= ylä : x < ylä);
    }
};
inline constexpr double AINA = 1e300;

// A line of text with the value joined after `alku` and followed by `loppu`.
struct Rivi {
    Väli väli;
    std::string_view alku, loppu;
    bool arvolla;  // the value stands between the two parts
};

inline constexpr std::string_view TAVOITE_VAPAA = "Menestyä mahdollisimman hyvin maataloudessa.";
inline constexpr std::string_view TAVOITE_MILJOONA = "Kerätä mahdollisimman nopeasti miljoonan.";
inline constexpr std::string_view TAVOITE_10V = "Kerätä mahdollisimman paljon omaisuutta 10:ssä vuodessa.";

// The result line in "Vapaa", by Pisteet.
inline constexpr std::array TULOS_VAPAA{
    Rivi{{-AINA, 10000, false, false}, "et ehtinyt saavuttaa mitään tavoitteita. tulet elämään köyhyydessä.", "", false},
    Rivi{{10000, 50000, true, false}, " saavutit itsellesi surkean eläkkeen, jolla ei tee mitään.", "", false},
    Rivi{{50000, 100000, true, false}, " saavutit itsellesi pienehkön maatilan ja eläkkeen.", "", false},
    Rivi{{100000, 200000, true, false}, " saavutit itsellesi kohtalaisen maatilan ja sopivan eläkkeen.", "", false},
    Rivi{{200000, AINA, true, false}, "saavutit itsellesi valtavan omaisuuden sekä mukavan eläkerahaston.", "", false},
};
// The result line in "Miljoona": below a million of cash, else by the year. A million reached in
// 1990 or later is too slow.
inline constexpr std::string_view MILJOONA_EI = "Et edes saanut kerättyä koko miljoonaa kasaan.";
inline constexpr std::array TULOS_MILJOONA{
    Rivi{{-AINA, 1985, false, false}, "Ehdit kerätä miljoonan todella nopeasti kasaan!", "", false},
    Rivi{{1985, 1989, true, true}, "Ehdit kerätä miljoonan keskiverto nopeudella.", "", false},
    Rivi{{1990, AINA, true, false}, "Ehdit kerätä miljoonasi liian hitaasti.", "", false},
};
// The result line in "10 vuotta", by Pisteet.
inline constexpr std::array TULOS_10V{
    Rivi{{-AINA, 40000, false, false}, "Et saavuttanut 10 vuodessa aikaan paljoa mitään!", "", false},
    Rivi{{40000, 100000, true, false}, "Ehdit 10 vuoden aikana saavuttaa itsellesi hyvän eläkkeen.", "", false},
    Rivi{{100000, AINA, true, false}, "Ehdit 10 vuoden aikana kerätä itsellesi valtavan omaisuuden!", "", false},
};

// The money word by M; at 0 or below there is none and the slot stays empty.
inline constexpr std::array RAHASANA{
    Rivi{{0, 10000, false, true}, "vaivaiset", "", false},
    Rivi{{10000, 50000, false, true}, "sopivat", "", false},
    Rivi{{50000, 100000, false, true}, "mukavat", "", false},
    Rivi{{100000, 200000, false, true}, "mahtavat", "", false},
    Rivi{{200000, 500000, false, true}, "valtavat", "", false},
    Rivi{{500000, AINA, false, false}, "älyttömät", "", false},
};

// Animals A: every row that holds is printed, so 200 and more gives two lines.
inline constexpr std::array ELÄIMET{
    Rivi{{-AINA, 1, false, false}, "Et omista yhtään eläintä, joka on surkeasti!", "", false},
    Rivi{{1, 9, true, true}, "Omistat vaivaiset ", " eläintä.", true},
    Rivi{{10, 49, true, true}, "Omistat ainoastaan ", " eläintä.", true},
    Rivi{{50, 99, true, true}, "Omistat kohtalaiset ", " eläintä.", true},
    Rivi{{100, AINA, true, false}, "Omistat mukavat ", " eläintä", true},
    Rivi{{200, AINA, true, false}, "Omistat valtavat ", " eläintä, joka on suurtilallisen merkki.", true},
};
// Buildings B; "mukavat" is joined to B with no blank.
inline constexpr std::array RAKENNUKSET{
    Rivi{{-AINA, 1, false, false}, "Et rakentanut tilallesi yhtään rakennusta!", "", false},
    Rivi{{1, 4, true, true}, "Rakensit tilallesi vaivaiset ", " rakennusta.", true},
    Rivi{{5, 8, true, true}, "Rakennutit tilallesi mukavat", " rakennusta.", true},
    Rivi{{9, AINA, true, false}, "Rakennutit tilallesi valtavat ", " rakennusta!", true},
};
// Land L: nothing at exactly 10 or from 50 to 100; between 0 and 1 two lines.
inline constexpr std::array MAA{
    Rivi{{-AINA, 1, false, false}, "Et omistanut yhtään hehtaaria maata, joka on todella huonosti!", "", false},
    Rivi{{0, 10, false, false}, "Maata omistit vain vaivaiset ", " hehtaaria.", true},
    Rivi{{10, 50, false, false}, "Omistit maata kohtalaiset ", " hehtaaria.", true},
    Rivi{{100, AINA, false, false}, "Omistit maata valtavat ", " hehtaaria, joka on hyvin!", true},
};
// Staff S.
inline constexpr std::array TYÖNTEKIJÄT{
    Rivi{{-AINA, 1, false, false}, "Sinulla ei ole yhtään työntekijää.", "", false},
    Rivi{{1, 9, true, true}, "Sinulla on ", " alaista palkkalistoilla.", true},
    Rivi{{10, AINA, true, false}, "Sinulla on ", " alaista palkkalistoilla, joka on hyvin.", true},
};
// The closing verdict by Pisteet: exactly 100000 gets two lines, exactly 400000 none.
inline constexpr std::array LOPPUTUOMIO{
    Rivi{{-AINA, 10000, false, true}, "Loppujen lopuksi olit vain surkea maanviljelijä, jolla ei ole tulevaisuutta.", "", false},
    Rivi{{10000, 50000, false, true}, "Sinusta ei vain ole kunnon maanviljelijäksi.", "", false},
    Rivi{{50000, 100000, false, true}, "Osaat maatilan hoidon, mutta et menesty taloudellisesti.", "", false},
    Rivi{{100000, 200000, true, false}, "Olet ihan hyvä maanviljelijä, joka osaa myös menestyä taloudellisesti.", "", false},
    Rivi{{200000, 400000, true, false}, "Olet todella taitava maanviljelijä ja osaat ottaa taloudellisen hyödyn irti.", "", false},
    Rivi{{400000, AINA, false, false}, "Olet todella hyvä maanviljelijä joka osaa sijoituksilla tienata omaisuuden!", "", false},
};

}  // namespace tanhua::tarina
