// The game's arithmetic: storing into widths, rounding rules, Str and the reading of numbers.
#include "laskenta.h"

#include <cfenv>
#include <cfloat>
#include <cmath>
#include <cstdio>
#include <limits>

namespace tanhua {

std::string VikaSelite(int numero) {
    switch (numero) {
        case 5: return "Invalid procedure call or argument";
        case 6: return "Overflow";
        case 7: return "Out of memory";
        case 9: return "Subscript out of range";
        case 11: return "Division by zero";
        case 13: return "Type mismatch";
        case 51: return "Internal error";
        case 52: return "Bad file name or number";
        case 53: return "File not found";
        case 57: return "Device I/O error";
        case 62: return "Input past end of file";
        case 70: return "Permission denied";
        case 75: return "Path/File access error";
        case 76: return "Path not found";
        case 380: return "Invalid property value";
        default: return "Application-defined or object-defined error";
    }
}

void NostaVika(int numero) { throw Vika(numero, VikaSelite(numero)); }

double PyöristäParilliseen(double x) {
    // nearbyint rounds by the current mode; the game always rounds to nearest, ties to even.
    const int vanha = std::fegetround();
    if (vanha != FE_TONEAREST) std::fesetround(FE_TONEAREST);
    const double tulos = std::nearbyint(x);
    if (vanha != FE_TONEAREST) std::fesetround(vanha);
    return tulos;
}

namespace {
double KokonaisLeveyteen(double x, double pienin, double suurin) {
    if (std::isnan(x)) NostaVika(VIKA_YLIVUOTO);
    const double r = PyöristäParilliseen(x);
    if (r < pienin || r > suurin) NostaVika(VIKA_YLIVUOTO);
    return r;
}
}  // namespace

Integer CInt(double x) { return static_cast<Integer>(KokonaisLeveyteen(x, -32768.0, 32767.0)); }
Long CLng(double x) { return static_cast<Long>(KokonaisLeveyteen(x, -2147483648.0, 2147483647.0)); }
Byte CByte(double x) { return static_cast<Byte>(KokonaisLeveyteen(x, 0.0, 255.0)); }

Single CSng(double x) {
    if (std::isnan(x)) NostaVika(VIKA_YLIVUOTO);
    const float f = static_cast<float>(x);  // nearest float, ties to even
    if (std::isinf(f)) NostaVika(VIKA_YLIVUOTO);
    return f;
}

Boolean CBool(double x) {
    if (std::isnan(x)) NostaVika(VIKA_TYYPPI);
    return x != 0.0;
}

double Int(double x) { return std::floor(x); }
double Fix(double x) { return std::trunc(x); }

Long JakoKok(double a, double b) {
    const Long ka = CLng(a);
    const Long kb = CLng(b);
    if (kb == 0) NostaVika(VIKA_NOLLAJAKO);
    if (ka == std::numeric_limits<Long>::min() && kb == -1) NostaVika(VIKA_YLIVUOTO);
    return ka / kb;  // C++ cuts towards zero, as the game does
}

Long Mod(double a, double b) {
    const Long ka = CLng(a);
    const Long kb = CLng(b);
    if (kb == 0) NostaVika(VIKA_NOLLAJAKO);
    if (kb == -1) return 0;
    return ka % kb;  // the sign follows a
}

double Round(double x, int desimaalit) {
    if (desimaalit <= 0) return PyöristäParilliseen(x);
    const double kerroin = std::pow(10.0, desimaalit);
    return PyöristäParilliseen(x * kerroin) / kerroin;
}

namespace {
// Formats with the given number of significant digits the way the game prints numbers:
// no zero before a leading point, a blank for a number that is not negative.
std::string Muotoile(double x, int numeroita) {
    char puskuri[64];
    std::snprintf(puskuri, sizeof puskuri, "%.*G", numeroita, x);
    std::string s = puskuri;
    if (s == "-0") s = "0";
    if (s.rfind("0.", 0) == 0) s.erase(0, 1);
    else if (s.rfind("-0.", 0) == 0) s.erase(1, 1);
    return s[0] == '-' ? s : " " + s;
}
}  // namespace

std::string Str(double x) { return Muotoile(x, 15); }
std::string Str(float x) { return Muotoile(static_cast<double>(x), 7); }
std::string Str(long long x) { return x < 0 ? std::to_string(x) : " " + std::to_string(x); }

std::string Suoraan(const std::string& strTeksti) {
    return !strTeksti.empty() && strTeksti[0] == ' ' ? strTeksti.substr(1) : strTeksti;
}

namespace {
bool OnNumero(char c) { return c >= '0' && c <= '9'; }

// Reads a number from the start of s (blanks skipped); returns the count of characters used,
// 0 when no digit was found.
std::size_t LueLuku(const std::string& s, double& tulos, bool ohitaVälit) {
    std::string luku;
    std::size_t i = 0;
    auto ohita = [&] {
        while (i < s.size() && (s[i] == ' ' || s[i] == '\t' || (ohitaVälit && (s[i] == '\r' || s[i] == '\n'))))
            ++i;
    };
    ohita();
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) luku += s[i++];
    bool numeroita = false;
    while (i < s.size() && (OnNumero(s[i]) || (ohitaVälit && s[i] == ' '))) {
        if (s[i] != ' ') { luku += s[i]; numeroita = true; }
        ++i;
    }
    if (i < s.size() && (s[i] == '.' || s[i] == ',') ) {
        luku += '.';
        ++i;
        while (i < s.size() && OnNumero(s[i])) { luku += s[i++]; numeroita = true; }
    }
    if (!numeroita) return 0;
    if (i < s.size() && (s[i] == 'E' || s[i] == 'e')) {
        std::size_t j = i + 1;
        std::string eksp = "e";
        if (j < s.size() && (s[j] == '+' || s[j] == '-')) eksp += s[j++];
        if (j < s.size() && OnNumero(s[j])) {
            while (j < s.size() && OnNumero(s[j])) eksp += s[j++];
            luku += eksp;
            i = j;
        }
    }
    tulos = std::strtod(luku.c_str(), nullptr);
    return i;
}
}  // namespace

double Val(const std::string& teksti) {
    double tulos = 0.0;
    return LueLuku(teksti, tulos, true) ? tulos : 0.0;
}

double TekstiLuvuksi(const std::string& teksti) {
    double tulos = 0.0;
    std::size_t käytetty = LueLuku(teksti, tulos, false);
    if (käytetty == 0) NostaVika(VIKA_TYYPPI);
    while (käytetty < teksti.size() &&
           (teksti[käytetty] == ' ' || teksti[käytetty] == '\t' || teksti[käytetty] == '\r'))
        ++käytetty;
    if (käytetty != teksti.size()) NostaVika(VIKA_TYYPPI);
    return tulos;
}

Boolean TekstiTotuudeksi(const std::string& teksti) {
    std::string t;
    for (char c : teksti)
        if (c != ' ' && c != '\t' && c != '\r') t += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (t == "true") return true;
    if (t == "false") return false;
    return CBool(TekstiLuvuksi(teksti));
}

}  // namespace tanhua
