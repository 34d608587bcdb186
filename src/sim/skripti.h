// The headless runner: plays a farm from a script of commands.
#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/peli.h"
#include "tallentava.h"

namespace tanhua {

// An operation the script can call by name, with what the player chose on the screen as words.
struct Toiminto {
    int vähintään = 0;  // fewest arguments
    int enintään = 0;   // most arguments
    std::function<void(Peli&, const std::vector<std::string>&)> aja;
    bool tilaton = false;  // the start screen's: runs without a farm
};

using Toimintoluettelo = std::map<std::string, Toiminto>;

// Every operation `call` knows, by its name in the game (SeuraavaPäivä, Eläimet.Osta, ...).
const Toimintoluettelo& Toiminnot();

// Each subsystem adds its own operations.
void EläintenToiminnot(Toimintoluettelo& t);      // the herd's day and month steps
void EläinkaupanToiminnot(Toimintoluettelo& t);   // the animal screen and slaughter
void MarkkinoidenToiminnot(Toimintoluettelo& t);  // the market, the product screen and the bank's market report
void TyövoimanToiminnot(Toimintoluettelo& t);     // the staff screen
void RakennustenToiminnot(Toimintoluettelo& t);   // the building screen and the work orders
void PankinToiminnot(Toimintoluettelo& t);        // the bank screen: loan, deposit, insurance
void TarvikkeidenToiminnot(Toimintoluettelo& t);  // the supplies shop
void TilanteenToiminnot(Toimintoluettelo& t);     // the save panel and the start screen's continue
void MaidenToiminnot(Toimintoluettelo& t);        // the land screen, the forester, the grain, sowing and harvest
void KäyrienToiminnot(Toimintoluettelo& t);       // the statistics screen
void RavienToiminnot(Toimintoluettelo& t);        // the race-betting screen
void TallinToiminnot(Toimintoluettelo& t);        // the riding stable, motivation and the wage talks
void SoittimenToiminnot(Toimintoluettelo& t);     // sounds, songs and the music player's panel
void SopimustenToiminnot(Toimintoluettelo& t);    // the phone, the contracts screen and the month's delivery

// A press a player couldn't make (a hidden or disabled control, a row that is not on the list, a
// screen the stars keep locked): the operation throws this before it changes anything, and the
// runner writes OHITETTU|Screen.Operation and reads on.
struct Ohitettu {};
[[noreturn]] void Ohita();
// Throws Ohitettu unless the control ("Eläimet.Command2", "Tanhua.TP_Kuva(1)") can be clicked.
void VaadiPainettava(const Peli& peli, const std::string& ohjain);

// A whole number typed into a command or an operation, refused (std::runtime_error) unless it is
// one and lies in [pienin, suurin]; nothing is narrowed before the check.
long long Luku(const std::string& sana, const std::string& mikä, long long pienin, long long suurin);

// A press of a control: skipped unless the player could click it, then the operation runs.
Toiminto Painallus(std::string ohjain, void (*f)(Peli&));
// Esc on a screen: the screen's rule hides what is open on it or leaves it (true); leaving brings
// the main screen back, as the window's frame does.
Toiminto EscNäppäin(bool (*esc)(Peli&));
// A check box typed as 1 or 0 (on or off, True or False); anything else is a malformed line.
bool Kytkin(const std::string& sana, const std::string& mikä);

// An operation that takes no arguments.
Toiminto Pelkkä(void (*f)(Peli&));

// A line split into words: blanks separate, double quotes keep blanks inside a word.
// Returns false for an unclosed quote.
bool Sanat(const std::string& rivi, std::vector<std::string>& sanat);

class Ajuri {
public:
    explicit Ajuri(Kansiot kansiot);

    // Runs a whole script; 0 when it ran to its end, 1 at the first bad line (told on err).
    int Aja(std::istream& skripti, std::ostream& ulos, std::ostream& virheet);
    // Runs one line; throws std::runtime_error with the reason for a bad one.
    void Rivi(const std::string& rivi, std::ostream& ulos);

    Peli& peli() { return *peli_; }
    TallentavatKanavat& kanavat() { return kanavat_; }

private:
    void Uusi(const std::vector<std::string>& sanat);
    void Kutsu(const std::vector<std::string>& sanat);
    void Päivät(const std::vector<std::string>& sanat);
    void Aseta(const std::vector<std::string>& sanat);
    void Tulosta(const std::vector<std::string>& sanat, std::ostream& ulos);
    void Arvonnat(const std::vector<std::string>& sanat);
    void Seuranta(const std::vector<std::string>& sanat);
    void Tiedosto(const std::vector<std::string>& sanat, std::ostream& ulos);
    void Muuta(const std::vector<std::string>& sanat);
    // A file of the data folder by its name (any case); empty when there is none.
    std::optional<std::filesystem::path> Datatiedosto(const std::string& nimi) const;
    // Commands that work on the farm refuse to run before there is one.
    void VaadiTila(const std::string& komento) const;
    void SuljeAvoinRaportti();

    TallentavatKanavat kanavat_;
    std::unique_ptr<Peli> peli_;
    bool luovuttu_ = false;  // the game ended the program: the farm is given up until the next new
};

}  // namespace tanhua
