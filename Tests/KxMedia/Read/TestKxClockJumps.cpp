#include <KxMedia/Read/KxClockJumps.h>

#include <gtest/gtest.h>

namespace
{

// The clock starts again at 0 after 5 seconds, somewhere between the bytes 1000 and 1400, and jumps ahead to a minute
// between the bytes 2000 and 2400.
KxClockJumps TwoJumps()
{
    return KxClockJumps({{1000, 1400, 5000000}, {2000, 2400, -50000000}});
}

} // namespace

TEST(KxClockJumps, Case1UsesTheLastJumpBeforeThePosition)
{
    KxClockJumps jumps = TwoJumps();
    EXPECT_FALSE(jumps.IsEmpty());
    EXPECT_EQ(jumps.OffsetUs(0, 0), 0);
    EXPECT_EQ(jumps.OffsetUs(1000, 4900000), 0);
    EXPECT_EQ(jumps.OffsetUs(1400, 20000), 5000000);
    EXPECT_EQ(jumps.OffsetUs(2000, 4900000), 5000000);
    EXPECT_EQ(jumps.OffsetUs(2400, 60000000), -50000000);
}

TEST(KxClockJumps, Case1ThePositionsAtBothEndsOfAJumpAreOutsideOfIt)
{
    KxClockJumps jumps = TwoJumps();
    jumps.OffsetUs(900, 4900000);
    EXPECT_EQ(jumps.OffsetUs(1000, 0), 0);
    EXPECT_EQ(jumps.OffsetUs(1400, std::nullopt), 5000000);
}

TEST(KxClockJumps, Case2APacketWithoutAPositionBelongsToTheOneBeforeIt)
{
    KxClockJumps jumps = TwoJumps();
    EXPECT_EQ(jumps.OffsetUs(std::nullopt, 0), 0);
    EXPECT_EQ(jumps.OffsetUs(1400, 20000), 5000000);
    EXPECT_EQ(jumps.OffsetUs(std::nullopt, 40000), 5000000);
    EXPECT_EQ(jumps.OffsetUs(std::nullopt, std::nullopt), 5000000);
}

TEST(KxClockJumps, Case3InsideAJumpTheTimeDecides)
{
    KxClockJumps jumps = TwoJumps();
    jumps.OffsetUs(900, 4900000);
    EXPECT_EQ(jumps.OffsetUs(1100, 4950000), 0);
    EXPECT_EQ(jumps.OffsetUs(1200, 0), 5000000);
    EXPECT_EQ(jumps.OffsetUs(std::nullopt, 20000), 5000000);
    EXPECT_EQ(jumps.OffsetUs(1300, 40000), 5000000);
    jumps.OffsetUs(1900, 4900000);
    EXPECT_EQ(jumps.OffsetUs(2100, 59950000), -50000000);
}

TEST(KxClockJumps, Case3WithoutATimeOrAPacketBeforeItTheJumpIsStillAhead)
{
    KxClockJumps jumps = TwoJumps();
    EXPECT_EQ(jumps.OffsetUs(1100, 0), 0);
    EXPECT_EQ(jumps.OffsetUs(1200, std::nullopt), 0);
}

TEST(KxClockJumps, StartsOverAfterAReset)
{
    KxClockJumps jumps = TwoJumps();
    jumps.OffsetUs(3000, 60000000);
    jumps.Reset();
    EXPECT_EQ(jumps.OffsetUs(std::nullopt, 0), 0);
}
