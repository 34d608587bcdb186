// The game's files: case-blind lookup, the data folder and its first seeding, the code page.
#include "tiedostot.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "../core/peli.h"

namespace tanhua {

namespace fs = std::filesystem;

namespace {
// Decodes one UTF-8 sequence; returns the code point and advances i. Invalid bytes pass as themselves.
char32_t Koodipiste(std::string_view s, std::size_t& i) {
    const unsigned char c = static_cast<unsigned char>(s[i]);
    int pituus = c < 0x80 ? 1 : (c >> 5) == 6 ? 2 : (c >> 4) == 14 ? 3 : (c >> 3) == 30 ? 4 : 1;
    if (i + pituus > s.size()) pituus = 1;
    char32_t cp = pituus == 1 ? c : pituus == 2 ? (c & 0x1F) : pituus == 3 ? (c & 0x0F) : (c & 0x07);
    for (int k = 1; k < pituus; ++k) cp = (cp << 6) | (static_cast<unsigned char>(s[i + k]) & 0x3F);
    i += pituus;
    return cp;
}

void LisääUtf8(std::string& ulos, char32_t cp) {
    if (cp < 0x80) {
        ulos += static_cast<char>(cp);
    } else if (cp < 0x800) {
        ulos += static_cast<char>(0xC0 | (cp >> 6));
        ulos += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        ulos += static_cast<char>(0xE0 | (cp >> 12));
        ulos += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        ulos += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        ulos += static_cast<char>(0xF0 | (cp >> 18));
        ulos += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
        ulos += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        ulos += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

// The code points of 0x80..0x9F in Windows-1252; 0 where the code page has none.
constexpr std::array<char32_t, 32> CP1252_80{
    0x20AC, 0, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0, 0x017D, 0,
    0, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0, 0x017E, 0x0178,
};
}  // namespace

std::string PienetKirjaimet(std::string_view utf8) {
    std::string ulos;
    for (std::size_t i = 0; i < utf8.size();) {
        char32_t cp = Koodipiste(utf8, i);
        if (cp >= 'A' && cp <= 'Z') cp += 32;
        else if (cp >= 0xC0 && cp <= 0xDE && cp != 0xD7) cp += 32;  // À..Þ, Ä, Ö, Å
        LisääUtf8(ulos, cp);
    }
    return ulos;
}

std::optional<fs::path> EtsiTiedosto(const fs::path& juuri, std::string_view polku) {
    fs::path nykyinen = juuri;
    std::string osa;
    std::vector<std::string> osat;
    for (char c : polku) {
        if (c == '\\' || c == '/') {
            if (!osa.empty()) osat.push_back(osa);
            osa.clear();
        } else {
            osa += c;
        }
    }
    if (!osa.empty()) osat.push_back(osa);
    std::error_code virhe;
    for (const std::string& nimi : osat) {
        const fs::path suora = nykyinen / fs::path(nimi);
        if (fs::exists(suora, virhe)) {
            nykyinen = suora;
            continue;
        }
        const std::string haettava = PienetKirjaimet(nimi);
        bool löytyi = false;
        for (fs::directory_iterator it(nykyinen, virhe), loppu; !virhe && it != loppu; it.increment(virhe)) {
            if (PienetKirjaimet(it->path().filename().string()) == haettava) {
                nykyinen = it->path();
                löytyi = true;
                break;
            }
        }
        if (!löytyi) return std::nullopt;
    }
    return nykyinen;
}

fs::path DataTiedosto(const Kansiot& kansiot, std::string_view nimi) {
    if (auto löydetty = EtsiTiedosto(kansiot.data, nimi)) return *löydetty;
    return kansiot.data / fs::path(std::string(nimi));
}

fs::path OletusDatakansio() {
    if (const char* xdg = std::getenv("XDG_DATA_HOME"); xdg && *xdg) return fs::path(xdg) / "tanhua" / "Data";
    if (const char* koti = std::getenv("HOME"); koti && *koti)
        return fs::path(koti) / ".local" / "share" / "tanhua" / "Data";
    return fs::current_path() / "Data";
}

void AlustaDatakansio(const Kansiot& kansiot) {
    std::error_code virhe;
    if (fs::exists(kansiot.data, virhe)) return;
    fs::create_directories(kansiot.data, virhe);
    const auto lähde = EtsiTiedosto(kansiot.ohjelma, "Data");
    if (!lähde) return;
    for (const auto& tiedosto : fs::directory_iterator(*lähde, virhe))
        if (tiedosto.is_regular_file())
            fs::copy_file(tiedosto.path(), kansiot.data / tiedosto.path().filename(), virhe);
}

std::optional<std::string> LueTiedosto(const fs::path& polku) {
    std::ifstream tiedosto(polku, std::ios::binary);
    if (!tiedosto) return std::nullopt;
    std::ostringstream sisältö;
    sisältö << tiedosto.rdbuf();
    return sisältö.str();
}

std::vector<std::string> Rivit(const std::string& teksti) {
    std::vector<std::string> rivit;
    std::string rivi;
    std::istringstream virta(teksti);
    while (std::getline(virta, rivi)) {
        if (!rivi.empty() && rivi.back() == '\r') rivi.pop_back();
        rivit.push_back(rivi);
    }
    return rivit;
}

std::string Cp1252ToUtf8(std::string_view cp1252) {
    std::string ulos;
    for (char c : cp1252) {
        const unsigned char b = static_cast<unsigned char>(c);
        char32_t cp = b;
        if (b >= 0x80 && b <= 0x9F) cp = CP1252_80[b - 0x80] ? CP1252_80[b - 0x80] : b;
        LisääUtf8(ulos, cp);
    }
    return ulos;
}

std::string Utf8ToCp1252(std::string_view utf8) {
    std::string ulos;
    for (std::size_t i = 0; i < utf8.size();) {
        const char32_t cp = Koodipiste(utf8, i);
        if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) {
            ulos += static_cast<char>(cp);
            continue;
        }
        char merkki = '?';
        for (std::size_t k = 0; k < CP1252_80.size(); ++k)
            if (CP1252_80[k] == cp) merkki = static_cast<char>(0x80 + k);
        ulos += merkki;
    }
    return ulos;
}

bool KirjoitaKokonaan(const std::filesystem::path& polku, const std::string& sisältö) {
    std::filesystem::path väliaikainen = polku;
    väliaikainen += ".uusi";
    {
        std::ofstream f(väliaikainen, std::ios::binary | std::ios::trunc);
        f.write(sisältö.data(), static_cast<std::streamsize>(sisältö.size()));
        f.flush();
        if (!f) {
            std::error_code virhe;
            std::filesystem::remove(väliaikainen, virhe);
            return false;
        }
    }
    std::error_code virhe;
    std::filesystem::rename(väliaikainen, polku, virhe);
    if (!virhe) return true;
    std::error_code siivous;
    std::filesystem::remove(väliaikainen, siivous);
    return false;
}

std::filesystem::path Ohjelmakansio(const std::filesystem::path& käännetty) {
    std::error_code virhe;
    const auto ohjelma = std::filesystem::read_symlink("/proc/self/exe", virhe);
    if (!virhe) {
        const auto asennettu = ohjelma.parent_path().parent_path() / "share" / "tanhua";
        if (std::filesystem::is_directory(asennettu / "Data", virhe)) return asennettu;
    }
    return käännetty;
}

}  // namespace tanhua
