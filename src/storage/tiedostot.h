// The game's files: names looked up without regard to case, the folders, the 8-bit code page.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tanhua {

struct Kansiot;

// Lower case of a UTF-8 text, Finnish and other Western letters included.
std::string PienetKirjaimet(std::string_view utf8);

// Finds a file or folder under juuri by a path such as "\Kuvat\Sattumat\Pako.jpg" or
// "Kuvat/sattumat/pako.jpg"; each part matches without regard to case, as the game's names
// were written for a file system that ignores case. Empty when nothing matches.
std::optional<std::filesystem::path> EtsiTiedosto(const std::filesystem::path& juuri, std::string_view polku);

// Where a file of the data folder is or would be: an existing one under any case, else the name as given.
std::filesystem::path DataTiedosto(const Kansiot& kansiot, std::string_view nimi);

// The program folder: an installed program's own, share/tanhua beside the folder it runs from,
// when there is one; else the build's folder it was made with.
std::filesystem::path Ohjelmakansio(const std::filesystem::path& käännetty);

// The default data folder: $XDG_DATA_HOME/tanhua/Data, else ~/.local/share/tanhua/Data.
std::filesystem::path OletusDatakansio();

// Creates the data folder on first run and seeds it with the shipped files of the program's Data.
void AlustaDatakansio(const Kansiot& kansiot);

// Reads a whole file; nullopt when it can't be opened.
std::optional<std::string> LueTiedosto(const std::filesystem::path& polku);
// Writes a whole file: to a temporary file in the same folder, flushed, then renamed over the old
// one, so a reader never meets half a file. False, with the old file as it was, when it can't.
bool KirjoitaKokonaan(const std::filesystem::path& polku, const std::string& sisältö);
// The lines of a text, line ends CR LF or LF taken off.
std::vector<std::string> Rivit(const std::string& teksti);

// Windows-1252 text to UTF-8 and back; a character the code page lacks becomes "?".
std::string Cp1252ToUtf8(std::string_view cp1252);
std::string Utf8ToCp1252(std::string_view utf8);

}  // namespace tanhua
