// The processing chains: the shift rule of every worker chain, the seasonal yards, the feed plant
// and the day's order of them.
#pragma once

#include "../core/laskenta.h"
#include "../core/taulut/rakennukset.h"

namespace tanhua {

struct Peli;
struct Muuttujat;

// The day's production steps in their order: the feed plant; the store gate; the forester and the
// sawmill; unless "Talvi" the season block (bees, greenhouse, berries, grain); the dairy, mill,
// sewing room, bakery and butchery; the winery.
void Jalostus(Peli& peli);
// One building's step of that order. A building without a chain does nothing.
void Jalostus(Peli& peli, Rakennus rakennus);

// The season value before pollination: the season's base, the watering system, the warmth and
// the rain with the sun. 0 in "Talvi", when nothing of the season block runs.
double Kausiarvo(const Muuttujat& m);
// The season value held for the day's season block, worked out at its head; the pollination of
// the honey and berry chains raises it for the rest of the block, the field grain included.
double& PäivänKausiarvo(Peli& peli);

// The store load the day's shifts read: the day's figure while a day runs.
double PäivänKuorma(const Peli& peli);

// Outside a day (the runner's single steps) the chains take the day's figures for themselves: the
// store load and the herd's feed estimate once at the start, the season value afresh; they are
// dropped again at the end. Inside a day the day's figures stand.
class JalostuksenLuvut {
public:
    explicit JalostuksenLuvut(Peli& peli);
    ~JalostuksenLuvut();
    JalostuksenLuvut(const JalostuksenLuvut&) = delete;
    JalostuksenLuvut& operator=(const JalostuksenLuvut&) = delete;

private:
    Peli& peli_;
    bool omat_;
};

}  // namespace tanhua
