// The six species with their four counters, shown names, meat and card pictures.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tanhua {

enum Laji : std::size_t { Nauta, Sika, Lammas, Kana, Kettu, Hevonen, LAJEJA };

// The four counters of a species, in the order of the save file.
enum Luokka : std::size_t { Naaras, Nuori, Poikanen, Uros, LUOKKIA };

struct LajiRivi {
    std::string_view laji;         // Nauta, Sika, ...: the key of Syönti_<laji>
    std::string_view naaras;       // key of the female counter: El_<naaras>, El_<naaras>1, El_<naaras>2
    std::string_view naarasNimi;   // shown as
    std::string_view uros;         // key of the male counter: El_<uros>
    std::string_view urosNimi;     // shown as
    int lihaaNaaras;               // meat kg of a slaughtered female; 0 where none
    int lihaaUros;                 // meat kg of a slaughtered male
    std::string_view kuvaNaaras;   // under Kuvat/Eläimet/
    std::string_view kuvaUros;
};

inline constexpr std::array LAJITAULU{
    LajiRivi{.laji = "Nauta", .naaras = "Lehmä", .naarasNimi = "Lehmä", .uros = "Sonni", .urosNimi = "Sonni",
             .lihaaNaaras = 90, .lihaaUros = 140, .kuvaNaaras = "Lehmä.gif", .kuvaUros = "Sonni.gif"},  // 0
    LajiRivi{.laji = "Sika", .naaras = "Sika", .naarasNimi = "Emakko", .uros = "Karju", .urosNimi = "Karju",
             .lihaaNaaras = 70, .lihaaUros = 80, .kuvaNaaras = "Emakko.gif", .kuvaUros = "Karju.gif"},  // 1
    LajiRivi{.laji = "Lammas", .naaras = "Lammas", .naarasNimi = "Lammas", .uros = "Pässi", .urosNimi = "Pässi",
             .lihaaNaaras = 40, .lihaaUros = 45, .kuvaNaaras = "Lammas.gif", .kuvaUros = "Pässi.gif"},  // 2
    LajiRivi{.laji = "Kana", .naaras = "Kana", .naarasNimi = "Kana", .uros = "Kukko", .urosNimi = "Kukko",
             .lihaaNaaras = 10, .lihaaUros = 12, .kuvaNaaras = "Kana.gif", .kuvaUros = "Kukko.gif"},  // 3
    LajiRivi{.laji = "Kettu", .naaras = "Kettu", .naarasNimi = "Kettu", .uros = "KettuUros", .urosNimi = "Uros Kettu",
             .lihaaNaaras = 0, .lihaaUros = 0, .kuvaNaaras = "KettuNaaras.gif", .kuvaUros = "KettuUros.gif"},  // 4
    LajiRivi{.laji = "Hevonen", .naaras = "Tamma", .naarasNimi = "Tamma", .uros = "Ori", .urosNimi = "Ori",
             .lihaaNaaras = 0, .lihaaUros = 0, .kuvaNaaras = "Tamma.gif", .kuvaUros = "Ori.gif"},  // 5
};
static_assert(LAJITAULU.size() == LAJEJA);

}  // namespace tanhua
