// The processing chains: each building's job, its work, devices, recipe and the two pay divisors.
#pragma once

#include <array>
#include <cstddef>

#include "../../core/taulut/rakennukset.h"
#include "../../core/taulut/tarvikkeet.h"
#include "../../core/taulut/tuotteet.h"
#include "../../core/taulut/työvoima.h"

namespace tanhua {

// The chains a day walks, in the order they are written in the tables below.
enum Ketju : std::size_t {
    KetjuSaha, KetjuMeijeri, KetjuMylly, KetjuOmpelimo, KetjuLeipomo, KetjuTeurastamo, KetjuViinitehdas,
    KETJUJA
};

// A chain of a worker that turns raw stock into a product. Work before devices is
// perus + U(0..vaihtelu) + M + k; each owned device of `laitteet` adds 1.
struct KetjuRivi {
    Rakennus rakennus;
    Työläinen työ;
    int perus;
    int vaihtelu;
    std::array<Tarvike, 2> laitteet;
    int laitteita;              // how many of `laitteet` count
    Tuote raaka;                // taken n, only if the stock is above n
    Tuote tuote;
    double saanto;              // product per unit of n
    bool pyöristys;             // the whole new stock is rounded to a whole number, ties to even
    int d1, d2;                 // overtime and weekend divisors of the wage
};

inline constexpr std::array KETJUTAULU{
    KetjuRivi{.rakennus = Saha, .työ = Kirvesmies, .perus = 4, .vaihtelu = 2, .laitteet = {}, .laitteita = 0,
              .raaka = Puu, .tuote = Lauta, .saanto = 1.3, .pyöristys = true, .d1 = 50, .d2 = 15},  // 0 Saha
    KetjuRivi{.rakennus = Meijeri, .työ = Meijerityöntekijä, .perus = 6, .vaihtelu = 2, .laitteet = {}, .laitteita = 0,
              .raaka = Maito, .tuote = Juusto, .saanto = 0.65, .pyöristys = true, .d1 = 55, .d2 = 20},  // 1 Meijeri
    KetjuRivi{.rakennus = Mylly, .työ = Mylläri, .perus = 4, .vaihtelu = 2, .laitteet = {Lämminvesivaraaja},
              .laitteita = 1, .raaka = Vilja, .tuote = Jauho, .saanto = 2, .pyöristys = false, .d1 = 50, .d2 = 15},  // 2 Mylly
    KetjuRivi{.rakennus = Ompelimo, .työ = Ompelija, .perus = 4, .vaihtelu = 1,
              .laitteet = {Kutomakone, Teollisuusrukki}, .laitteita = 2, .raaka = Villa, .tuote = Vaate,
              .saanto = 0.75, .pyöristys = true, .d1 = 50, .d2 = 15},  // 3 Ompelimo
    // The bakery's two products from one n are worked by their own step; this row gives the
    // first of them, bread.
    KetjuRivi{.rakennus = Leipomo, .työ = Leipuri, .perus = 5, .vaihtelu = 4,
              .laitteet = {Teollisuusuuni, Lämminvesivaraaja}, .laitteita = 2, .raaka = Jauho, .tuote = Leipä,
              .saanto = 1.2, .pyöristys = true, .d1 = 50, .d2 = 15},  // 4 Leipomo
    KetjuRivi{.rakennus = Teurastamo, .työ = Teurastaja, .perus = 3, .vaihtelu = 5, .laitteet = {}, .laitteita = 0,
              .raaka = Liha, .tuote = Makkara, .saanto = 1, .pyöristys = false, .d1 = 50, .d2 = 15},  // 5 Teurastamo
    KetjuRivi{.rakennus = Viinitehdas, .työ = Viinimestari, .perus = 4, .vaihtelu = 5,
              .laitteet = {Käymissäiliö, Lämminvesivaraaja}, .laitteita = 2, .raaka = Marja, .tuote = Viini,
              .saanto = 0.8, .pyöristys = true, .d1 = 50, .d2 = 15},  // 6 Viinitehdas
};
static_assert(KETJUTAULU.size() == KETJUJA);

// The bakery's second product: pastry takes n flour and n eggs.
inline constexpr double LEIVOS_SAANTO = 0.8;

// The seasonal yards, which take no raw stock.
enum Tarha : std::size_t { TarhaMehiläiset, TarhaVihannekset, TarhaMarjat, TARHOJA };

struct TarhaRivi {
    Rakennus rakennus;
    Työläinen työ;
    Tuote tuote;
    int d1, d2;
};

inline constexpr std::array TARHATAULU{
    //        building        job              product    D1  D2
    TarhaRivi{Mehiläistarha, Mehiläishoitaja, Hunaja,   50, 15},  // 0 honey
    TarhaRivi{Kasvihuone,    Puutarhuri,      Vihannes, 50, 20},  // 1 the vegetable round
    TarhaRivi{Marjatarha,    Puutarhuri,      Marja,    50, 15},  // 2 the berry round
};
static_assert(TARHATAULU.size() == TARHOJA);

}  // namespace tanhua
