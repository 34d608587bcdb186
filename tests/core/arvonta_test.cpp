// The game's draws: the fixed sequence of an unseeded run and the queue of given values.
#include <gtest/gtest.h>

#include "core/arvonta.h"

namespace tanhua {
namespace {

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
