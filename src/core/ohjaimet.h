// What each control of a screen shows, worked out for any front end: the window draws it, the
// runner prints it, and both read the same texts.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "laskenta.h"

namespace tanhua {

struct Peli;

// One control as the player sees it.
struct Ohjain {
    // A label or button its text; a picture its file's name without folder; a check box
    // "True"/"False"; a slider its value; a list its items joined by "|".
    std::string arvo;
    std::optional<std::uint32_t> väri;  // only where the control's colour changes (kanavat.h RGB)
    std::string vihje;                  // a picture's hint, where it has one
    bool näkyvissä = true;              // false too when the control's panel or sheet is hidden
    bool käytössä = true;               // false while the player can't click it
};

// How to read one control, or a control array of `koko` members numbered from `alku`.
struct OhjainKuvaus {
    std::function<Ohjain(const Peli&, int indeksi)> lue;
    int koko = 0;  // 0 for a single control
    int alku = 0;
};

// Keys are "Screen.control" ("Tanhua.AsteLuku", "Tanhua.TP_Kuva").
using Ohjainluettelo = std::map<std::string, OhjainKuvaus, std::less<>>;

// Registers one screen's controls under the screen's name ("Pankki" gives "Pankki.lainaz").
class RuudunOhjaimet {
public:
    RuudunOhjaimet(Ohjainluettelo& l, std::string_view ruutu) : l_(l), ruutu_(std::string(ruutu) + ".") {}
    // A single control.
    void operator()(std::string_view nimi, std::function<Ohjain(const Peli&)> lue) const;
    // A control array of `koko` members numbered from `alku`.
    void Taulukko(std::string_view nimi, int koko, int alku, std::function<Ohjain(const Peli&, int)> lue) const;

private:
    Ohjainluettelo& l_;
    std::string ruutu_;
};

// The lot of a card steps along 1, 10, 100 (suunta +1 or -1); past either end it stays.
Integer SeuraavaErä(Integer määrä, int suunta);

// Every screen's controls, gathered from the subsystems once.
const Ohjainluettelo& Ohjaimet();

// Each screen adds its own controls.
void PääruudunOhjaimet(Ohjainluettelo& l);     // Tanhua
void AlkuruudunOhjaimet(Ohjainluettelo& l);     // Alku, and the news window ikkuna and the money plate
void EläinruudunOhjaimet(Ohjainluettelo& l);   // Eläimet
void TuoteruudunOhjaimet(Ohjainluettelo& l);   // Tuotteet
void RakennusruudunOhjaimet(Ohjainluettelo& l);  // Rakennukset
void TyövoimaruudunOhjaimet(Ohjainluettelo& l);  // Työvoima
void TarvikeruudunOhjaimet(Ohjainluettelo& l);   // Tarvikkeet
void PankkiruudunOhjaimet(Ohjainluettelo& l);    // Pankki
void PeltoruudunOhjaimet(Ohjainluettelo& l);     // Pellot
void KylvöruudunOhjaimet(Ohjainluettelo& l);     // Kylvö and Nosto
void KäyrätruudunOhjaimet(Ohjainluettelo& l);    // Käyrät
void RaviruudunOhjaimet(Ohjainluettelo& l);      // Ravit
void HevostalliruudunOhjaimet(Ohjainluettelo& l);  // Hevostalli
void TilanneruudunOhjaimet(Ohjainluettelo& l);   // Tilanne
void ToptenruudunOhjaimet(Ohjainluettelo& l);    // Topten
void SoittimenOhjaimet(Ohjainluettelo& l);       // Tanhua.PlayerLogo, Player, MidiFile, MidiValmis
void SopimusruudunOhjaimet(Ohjainluettelo& l);   // Sopimukset

// A control by its written name: "Tanhua.Sää", or a member of an array as "Tanhua.TP_Kuva(1)".
// Empty for a name no screen has, or an index outside the array.
std::optional<Ohjain> LueOhjain(const Peli& peli, const std::string& nimi);
// Whether the player could click it: shown and enabled. A name no screen has is false.
bool Painettavissa(const Peli& peli, const std::string& nimi);

// The control written as the runner prints it: "piilossa" when hidden; otherwise its value, then
// "|R,G,B" where it has a colour that changes, or "|hint" for a picture with a hint. A line feed
// is written "\n".
std::string OhjainTekstinä(const Ohjain& o);

// A control that shows a text, and one that shows nothing because it is out of sight.
Ohjain Näkyvä(std::string arvo, bool käytössä = true);
Ohjain Piilossa();
// A check box.
Ohjain Valinta(bool päällä, bool näkyvissä = true);
// A control shown only when `näkyvissä`; its value is taken only then.
template <class F>
Ohjain JosNäkyy(bool näkyvissä, F&& arvo) {
    return näkyvissä ? Näkyvä(arvo()) : Piilossa();
}

}  // namespace tanhua
