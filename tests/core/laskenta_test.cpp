// The arithmetic and the draws of the game: widths, rounding to even, overflow, Str, the reading of numbers,
// and the fixed sequence of an unseeded run behind the queue of given values.
#include <gtest/gtest.h>

#include <cmath>

#include "core/arvonta.h"
#include "core/laskenta.h"

namespace tanhua {
namespace {

int VikaNumero(const std::function<void()>& f) {
    try {
        f();
    } catch (const Vika& v) {
        return v.Numero();
    }
    return 0;
}

TEST(Arithmetic, StoringAndRoundRoundHalfToEven) {
    struct Tapaus { double x; long long odotettu; };
    for (const Tapaus& t : {Tapaus{2.5, 2}, {3.5, 4}, {-2.5, -2}, {-3.5, -4}, {0.5, 0}, {1.5, 2},
                            {2.4999, 2}, {2.5001, 3}, {-0.5, 0}, {32766.5, 32766}}) {
        Long l = 0;
        Aseta(l, t.x);
        EXPECT_EQ(std::tuple(CInt(t.x), CLng(t.x), l), std::tuple(t.odotettu, t.odotettu, t.odotettu)) << t.x;
    }
    Single s = 0;
    Aseta(s, 3.5);
    EXPECT_EQ(s, 3.5f) << "a Single keeps its fraction";
    EXPECT_EQ(CByte(254.5), 254);
    struct Rounding { double x; int n; double odotettu; };
    for (const Rounding& t : {Rounding{2.5, 0, 2}, {3.5, 0, 4}, {-2.5, 0, -2}, {1.25, 1, 1.2}, {1.35, 1, 1.4},
                              {0.375, 2, 0.38}, {12.345678, 3, 12.346}}) {
        EXPECT_DOUBLE_EQ(Round(t.x, t.n), t.odotettu) << "Round " << t.x << " at " << t.n;
    }
}

TEST(Arithmetic, ValuesOutsideTheirWidthAreFailureSix) {
    struct Tapaus { const char* nimi; std::function<void()> f; int vika; };
    const Tapaus tapaukset[] = {
        {"Integer top", [] { CInt(32767.0); }, 0},
        {"Integer rounds over", [] { CInt(32767.5); }, 6},
        {"Integer bottom tie", [] { CInt(-32768.5); }, 0},  // the tie goes to -32768
        {"Integer under", [] { CInt(-32769.0); }, 6},
        {"Long top", [] { CLng(2147483647.0); }, 0},
        {"Long over", [] { CLng(2147483648.0); }, 6},
        {"Byte negative", [] { CByte(-1.0); }, 6},
        {"Byte rounds to 0", [] { CByte(-0.5); }, 0},
        {"Byte over", [] { CByte(255.5); }, 6},
        {"Byte top", [] { CByte(255.4); }, 0},
        {"Single over", [] { CSng(1e39); }, 6},
        {"Single big", [] { CSng(3e38); }, 0},
        {"not a number", [] { CInt(std::nan("")); }, 6},
        {"Aseta by width", [] { Integer i = 0; Aseta(i, 40000); }, 6},
        {"Lisää by width", [] { Byte b = 250; Lisää(b, 6); }, 6},
    };
    for (const Tapaus& t : tapaukset) EXPECT_EQ(VikaNumero(t.f), t.vika) << t.nimi;
}

TEST(Arithmetic, IntFixIntegerDivisionAndMod) {
    EXPECT_EQ(std::tuple(Int(2.7), Int(-2.5), Fix(-2.5)), std::tuple(2, -3, -2));
    struct Tapaus { double a, b; long long jako, jäännös; };
    for (const Tapaus& t : {Tapaus{7, 2, 3, 1}, {-7, 2, -3, -1}, {7.5, 2, 4, 0}, {2.5, 1.5, 1, 0},
                            {6.5, 2.5, 3, 0}, {9, -4, -2, 1}, {-9, -4, 2, -1}}) {
        EXPECT_EQ(JakoKok(t.a, t.b), t.jako) << t.a << " \\ " << t.b;
        EXPECT_EQ(Mod(t.a, t.b), t.jäännös) << t.a << " Mod " << t.b;
    }
    EXPECT_EQ(VikaNumero([] { JakoKok(5, 0.4); }), 11);  // 0.4 rounds to 0
    EXPECT_EQ(VikaNumero([] { Mod(5, 0); }), 11);
}

TEST(Arithmetic, StrWritesNumbersAsMessagesShowThem) {
    EXPECT_EQ(std::tuple(Str(5), Str(-5), Str(static_cast<Integer>(-32768))), std::tuple(" 5", "-5", "-32768"));
    struct Tapaus { float x; const char* odotettu; };
    for (const Tapaus& t : {Tapaus{0.5f, " .5"}, {-0.5f, "-.5"}, {1234567.0f, " 1234567"},
                            {12345678.0f, " 1.234568E+07"}, {3.14159265f, " 3.141593"}, {10000.0f, " 10000"},
                            {0.1f, " .1"}, {1e-5f, " 1E-05"}, {0.0001f, " .0001"}, {-1.5f, "-1.5"}, {0.0f, " 0"}}) {
        EXPECT_EQ(Str(t.x), t.odotettu);
    }
    EXPECT_EQ(std::tuple(Str(0.1), Str(123456789012.0), Str(1.0 / 3.0), Suoraan(Str(42)), Suoraan(Str(-42))),
              std::tuple(" .1", " 123456789012", " .333333333333333", "42", "-42"));
}

TEST(Arithmetic, ReadingNumbersFromText) {
    // Val reads what it can and skips blanks; a number field refuses anything that isn't a number.
    struct Tapaus { const char* teksti; double val; int vika; };
    for (const Tapaus& t : {Tapaus{"12abc", 12, 13}, {" 1 2", 12, 13}, {"abc", 0, 13}, {"-3.5kg", -3.5, 13},
                            {"", 0, 13}, {" 42 ", 42, 0}, {"1.5E+2", 150, 0}}) {
        EXPECT_EQ(Val(t.teksti), t.val) << t.teksti;
        EXPECT_EQ(VikaNumero([&] { TekstiLuvuksi(t.teksti); }), t.vika) << t.teksti;
    }
    EXPECT_EQ(std::tuple(TekstiLuvuksi("1.5E+2"), VikaNumero([] { TekstiTotuudeksi("kyllä"); })), std::tuple(150, 13));
}

TEST(Draws, AnUnseededRunAlwaysDrawsTheSameSequenceAfterTheQueue) {
    Arvonta a;
    a.Jonoon(0.25);
    a.Jonoon(0.0);
    EXPECT_EQ(a.r(), 0.25);
    EXPECT_EQ(a.r(), 0.0);
    // The generator wasn't touched by the queue.
    EXPECT_FLOAT_EQ(a.r(), 0.7055475f);
    EXPECT_FLOAT_EQ(a.r(), 0.5334240f);
    EXPECT_FLOAT_EQ(a.r(), 0.5795186f);
}

}  // namespace
}  // namespace tanhua
