// The figures of the main screen, worked out for any front end: money, date, gauges, stars, hints.
#pragma once

#include <array>
#include <functional>
#include <string>

namespace tanhua {

struct Peli;

// One gauge: the percentage p (not held to 100: an over-full store reaches above its frame),
// and whether it is drawn this time (not when a size had fallen to 0 and was put back).
struct Mittari {
    int p = 0;
    bool piirretään = true;
};

// What the main screen shows, brought up to date by Päivitälukemat.
struct Lukemat {
    std::string Rahaz;            // cash in the money format
    std::string liikevaihtoz;     // the turnover, whole
    bool liikevaihtoNäkyy = false;
    std::string Päiväz, Kuukausiz, Vuosiz;  // in Str form
    std::string Vuodenaikaz;
    std::string Tausta;           // the season's backdrop, under the program folder
    std::array<Mittari, 4> mittarit{};  // feed, store, barn, hygiene
    bool tähdetNäkyvät = false;
    int tähtiä = 0;               // earned stars, shown yellow; the rest black
    int sää = -1;                 // the weather picture, an index of SÄÄKUVAT; -1 for none
    std::string Versio;           // "v " and Str(Versio)
    std::string Rahatilaz;        // the money plate, as Päivitälukemat sets it
};

// The money format of the main screen: whole below a million, then millions to two decimals
// and milliards to one.
std::string RahaMuoto(double r);
// The money plate beside a sub-screen: the same, but below a million Str of the unrounded cash.
std::string RahaKylttiMuoto(double r);

// Brings the main screen's figures up to date (the gauges' guards may put back a size that
// has fallen to 0). Does nothing while the main screen is hidden.
void Päivitälukemat(Peli& peli);
// NäytäRaha: the money plate's text after a trade on a sub-screen.
void NäytäRaha(Peli& peli);
// The opening of a sub-screen from the main screen: the main screen hides, the screen's own opening
// work runs, and the money plate shows beside it.
void AvaaAlaruutu(Peli& peli, const std::function<void()>& avaa);
// PalaaPääruutuun: the main screen shown again: the star locks of two buttons, hygiene, figures.
void PalaaPääruutuun(Peli& peli);
// "Lopeta peli" and Esc: asks; true when the player wants to quit.
bool LopetaKysymys(Peli& peli);

// Lopeta: the exit of a running game; the program ends with no save.
void Lopeta(Peli& peli);

// The hint line's texts by control name (Command1 ... Image2, and "Tervetuloa" for the welcome).
const std::string& Ohjeteksti(const std::string& kontrolli);

}  // namespace tanhua
