#include <KxSubject/KxSubjectRecord.h>

#include <gtest/gtest.h>

TEST(KxSubjectRecord, AShotReachesFromItsBoundaryToTheNext)
{
    KxSubjectRecord record;
    record.source = {1280, 720, 25.0, 1000};
    EXPECT_EQ(record.ShotAt(5).first, 0);
    EXPECT_EQ(record.ShotAt(5).end, 1000);
    record.boundaries = {{10, 10, 10, KxShotBoundaryKind::Cut}, {20, 20, 20, KxShotBoundaryKind::Cut}};
    EXPECT_EQ(record.ShotAt(9).end, 10);
    EXPECT_EQ(record.ShotAt(10).first, 10);
    EXPECT_EQ(record.ShotAt(19).end, 20);
    EXPECT_EQ(record.ShotAt(20).first, 20);
    EXPECT_EQ(record.ShotAt(20).end, 1000);
}
