// The top-ten lists: one file a game mode, ten names and ten results, each character shifted up by
// one; the screen that shows them and takes the retiring player in.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace tanhua {

struct Peli;

struct ToptenLista {
    std::string_view moodi;     // PeliMoodi
    std::string_view tiedosto;  // under the data folder
    std::string_view otsikko;   // the screen's title
    bool pienempiParempi;       // "Miljoona": the fewer days the better
};
inline constexpr std::array<ToptenLista, 3> TOPTEN_LISTAT{{
    {"Vapaa", "Topten.dat", "Vapaan uran parhaat 10 maajussia", false},
    {"Miljoona", "Topmilj.dat", "Nopeiten miljoonan keränneiden top 10", true},
    {"10 vuotta", "Top10v.dat", "Eniten 10 vuodessa tienanneiden top 10", false},
}};

// A list file's 20 lines (names, then results) from its bytes: every byte one down, Windows-1252.
std::vector<std::string> ListanRivit(const std::string& tiedosto);
// The bytes of a list file for its lines. A character that would turn into a line end once shifted
// (a tab, any control character) is written as a blank, so no name can break the file.
std::string ListaTiedostoksi(const std::vector<std::string>& rivit);

// The position of a new result among the ten rows (best first): 1 to 10, or 11 for no place. Each
// text is read as a number and floored (failure 13 for one that isn't). A result equal to a row goes
// below it. A list out of order that has no position for the result is failure 13.
int ListanPaikka(const std::array<std::string, 11>& p, double uusi, bool pienempiParempi);

// The new result as the list writes it: in "Miljoona" the days (fewer is better) with no blank,
// otherwise Str of the floored score.
std::string UusiTulos(const Peli& peli);

// NäytäListat: the list of the mode on the screen.
void NäytäListat(Peli& peli);
// LaskeListat: the list of the mode, then the retiring player's entry (nothing written yet).
void LaskeListat(Peli& peli);
// The screen's Sulje: in mid-career back to the Tilanne screen; after the story the list is written
// and the program ends.
void SuljeTopten(Peli& peli);
// "Tyhjennä listat": after the question, the three files back to their ten default rows.
void TyhjennäListat(Peli& peli);

}  // namespace tanhua
