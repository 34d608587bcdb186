// The game's draws: the fixed sequence of an unseeded run and the queue of given values.
#include <gtest/gtest.h>

#include "core/arvonta.h"

namespace tanhua {
namespace {

TEST(Draws, AnUnseededRunAlwaysDrawsTheSameSequence) {
    Arvonta a;
    EXPECT_FLOAT_EQ(a.r(), 0.7055475f);
    EXPECT_FLOAT_EQ(a.r(), 0.5334240f);
    EXPECT_FLOAT_EQ(a.r(), 0.5795186f);
    Arvonta b;
    b.Siemen(0x50000);
    EXPECT_FLOAT_EQ(b.r(), 0.7055475f);
}

TEST(Draws, QueuedValuesComeFirstAndInOrder) {
    Arvonta a;
    a.Jonoon(0.25);
    a.Jonoon(0.0);
    EXPECT_EQ(a.r(), 0.25);
    EXPECT_EQ(a.r(), 0.0);
    EXPECT_FLOAT_EQ(a.r(), 0.7055475f);  // the generator wasn't touched by the queue
}

TEST(Draws, WholeNumberDrawsCoverTheirEnds) {
    struct Tapaus { double r; long long d9, u300, u13; };
    for (const Tapaus& t : {Tapaus{0.0, 0, 300, 1}, {0.9999999, 8, 3299, 3}, {0.5, 4, 1800, 2}, {0.3, 2, 1200, 1}}) {
        Arvonta a;
        a.Jonoon(t.r);
        a.Jonoon(t.r);
        a.Jonoon(t.r);
        EXPECT_EQ(a.D(9), t.d9) << t.r;
        EXPECT_EQ(a.U(300, 3299), t.u300) << t.r;
        EXPECT_EQ(a.U(1, 3), t.u13) << t.r;
    }
}

}  // namespace
}  // namespace tanhua
