// The game's arithmetic: number widths, rounding, overflow and the text of numbers.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <type_traits>

namespace tanhua {

// The widths the game's values are declared in.
using Integer = std::int16_t;  // 16-bit signed
using Long = std::int32_t;     // 32-bit signed
using Single = float;          // 32-bit float
using Byte = std::uint8_t;     // 8-bit unsigned
using Boolean = bool;          // stored as -1 / 0 where a file shows it

// A run-time failure: a number and a short description, as the failure reporter shows them.
class Vika : public std::exception {
public:
    Vika(int numero, std::string selite) : numero_(numero), selite_(std::move(selite)) {}
    int Numero() const { return numero_; }
    const std::string& Selite() const { return selite_; }
    const char* what() const noexcept override { return selite_.c_str(); }

private:
    int numero_;
    std::string selite_;
};

// The failure numbers the game raises itself.
enum VikaNumero : int {
    VIKA_YLIVUOTO = 6,       // a value does not fit its width
    VIKA_NOLLAJAKO = 11,     // division by zero
    VIKA_TYYPPI = 13,        // a text that is not a number where one is needed
    VIKA_TIEDOSTONIMI = 52,  // bad file name or number
    VIKA_EI_TIEDOSTOA = 53,  // file not found
    VIKA_TIEDOSTO_LOPPUI = 62,
    VIKA_EI_POLKUA = 76,
    VIKA_ARVO = 380,
};

// The short description of a failure number, as the run-time layer words it.
std::string VikaSelite(int numero);
[[noreturn]] void NostaVika(int numero);

// Rounds to the nearest whole number, a tie going to the even one (2.5 -> 2, 3.5 -> 4).
double PyöristäParilliseen(double x);

// Storing into a width: whole-number widths round ties to even and raise failure 6 when the
// rounded value is outside the width; Single raises failure 6 beyond the float range.
Integer CInt(double x);
Long CLng(double x);
Byte CByte(double x);
Single CSng(double x);
Boolean CBool(double x);  // any value other than 0 is True

template <class T>
T Muunna(double x) {
    if constexpr (std::is_same_v<T, Integer>) return CInt(x);
    else if constexpr (std::is_same_v<T, Long>) return CLng(x);
    else if constexpr (std::is_same_v<T, Byte>) return CByte(x);
    else if constexpr (std::is_same_v<T, Single>) return CSng(x);
    else if constexpr (std::is_same_v<T, Boolean>) return CBool(x);
    else if constexpr (std::is_same_v<T, double>) return x;
    else static_assert(!sizeof(T), "not a width of the game");
}

// Stores an expression worked in double into a value of the record, by the value's width.
template <class T>
void Aseta(T& kohde, double arvo) {
    kohde = Muunna<T>(arvo);
}
// Adds to a value of the record; the sum is worked in double, then stored by the width.
template <class T>
void Lisää(T& kohde, double määrä) {
    kohde = Muunna<T>(static_cast<double>(kohde) + määrä);
}

// Int(x): rounds down, towards minus infinity (Int(-2.5) = -3).
double Int(double x);
// Fix(x): cuts towards zero.
double Fix(double x);
// a \ b: both operands rounded to whole numbers (ties to even), the quotient cut towards zero.
Long JakoKok(double a, double b);
// a Mod b: the remainder of the same rounded operands, with the sign of a.
Long Mod(double a, double b);
// Round(x, n): to the nearest at n decimals, a tie going to the even digit.
double Round(double x, int desimaalit = 0);

// Str: the text of a number as it goes into a message. One leading blank when the number
// is not negative; a Single shows at most 7 significant digits, a double 15; a fraction
// below one has no zero before its point (" .5"); very large or small values take the
// exponent form (" 1.234568E+07").
std::string Str(double x);
std::string Str(float x);
std::string Str(long long x);
inline std::string Str(int x) { return Str(static_cast<long long>(x)); }
inline std::string Str(Integer x) { return Str(static_cast<long long>(x)); }
inline std::string Str(Byte x) { return Str(static_cast<long long>(x)); }
// A number joined directly: the text of Str without its leading blank.
std::string Suoraan(const std::string& strTeksti);
template <class T>
std::string Luku(T x) {
    return Suoraan(Str(x));
}

// Val: the number at the start of a text, 0 when there is none; never fails.
double Val(const std::string& teksti);
// A text converted as a number where one is needed: failure 13 when it is not one.
double TekstiLuvuksi(const std::string& teksti);
// A text converted to a Boolean: "True"/"False" in any case, or a number (0 is False).
Boolean TekstiTotuudeksi(const std::string& teksti);

}  // namespace tanhua
