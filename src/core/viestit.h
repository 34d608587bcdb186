// The game's side of the channels: the Message box, the news window, the event list and sounds.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

namespace tanhua {

struct Peli;

// The lines of a message joined by line feeds.
std::string Rivitä(std::initializer_list<std::string> rivit);

// A text on one line, as the runner writes it: a line feed (CR LF, LF or a lone CR) is written \n.
std::string YhdelleRiville(const std::string& teksti);
// A colour of the channels (kanavat.h RGB) written "R,G,B".
std::string VäriTekstinä(std::uint32_t väri);

// Asks through the Message box (style 0: "Sulje"; style 1: "Kyllä"/"Ei") and returns the answer.
std::string Kysy(Peli& peli, const std::string& teksti, int tyyli);
// A style 1 question; only "Kyllä" is yes.
bool KysyKyllä(Peli& peli, const std::string& teksti);
// A notice in the Message box with "Sulje".
void Ilmoita(Peli& peli, const std::string& teksti);
// A refusal: the sound "virhe" and the notice.
void Kieltäydy(Peli& peli, const std::string& teksti);

// The news window: a picture under the program folder ("Kuvat/sattumat/joulu.jpg", "" for the
// blank one) and its text. Each new one overwrites the last.
void Kerro(Peli& peli, const std::string& kuva, const std::string& teksti);
// The waiting form of the news window (the contract notices): tells, then goes on only once the
// player has closed the window.
void KerroJaOdota(Peli& peli, const std::string& kuva, const std::string& teksti);
// A line of the event list; the list shows itself.
void LisääListaan(Peli& peli, const std::string& rivi);

// Plays a wave sound of the folder Äänet by name; "klik" takes one of three clicks at random.
void SoitaÄäni(Peli& peli, const std::string& nimi);

}  // namespace tanhua
