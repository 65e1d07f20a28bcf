#include <KxSubject/KxPointedBox.h>
#include <KxSubject/KxSubjectRecord.h>

#include <gtest/gtest.h>

namespace
{

KxSubjectRecord Record()
{
    KxSubjectRecord record;
    record.source = {1600, 800, 10.0, 100};
    record.workingSizePx = {320, 160};
    for (int i = 0; i < 100; ++i) {
        record.samples.push_back({i, {}, {}});
    }
    return record;
}

} // namespace

TEST(KxPointedBox, NothingIsSeenInAnEmptyRecord)
{
    EXPECT_FALSE(KxSawSomethingAt(Record(), 5.0, 0.5, 0.5));
}

TEST(KxPointedBox, AMoverIsSeenWhileItLasts)
{
    KxSubjectRecord record = Record();
    record.movers = {{50, 0.3F, 0.1F, {3, KxMover::PackedBox{51, 51, 102, 102}}}}; // a fifth to two fifths
    EXPECT_TRUE(KxSawSomethingAt(record, 5.1, 0.3, 0.3));
    EXPECT_TRUE(KxSawSomethingAt(record, 4.6, 0.3, 0.3)) << "half a second before";
    EXPECT_FALSE(KxSawSomethingAt(record, 4.3, 0.3, 0.3));
    EXPECT_FALSE(KxSawSomethingAt(record, 6.0, 0.3, 0.3));
}

TEST(KxPointedBox, ATenthOfTheWidthIsNearInBothDirections)
{
    KxSubjectRecord record = Record();
    record.movers = {{50, 0.3F, 0.1F, {3, KxMover::PackedBox{51, 51, 102, 102}}}};
    EXPECT_TRUE(KxSawSomethingAt(record, 5.1, 0.49, 0.3));
    EXPECT_FALSE(KxSawSomethingAt(record, 5.1, 0.52, 0.3));
    EXPECT_TRUE(KxSawSomethingAt(record, 5.1, 0.3, 0.58)) << "the picture is twice as wide as high";
    EXPECT_FALSE(KxSawSomethingAt(record, 5.1, 0.3, 0.63));
}

TEST(KxPointedBox, AFaceIsSeenWhereItWasFound)
{
    KxSubjectRecord record = Record();
    record.faces = {{{{2.0F, 160, 80, 32, 32}, {2.4F, 0, 0, 0, 0}}}};
    EXPECT_TRUE(KxSawSomethingAt(record, 2.0, 0.55, 0.6));
    EXPECT_FALSE(KxSawSomethingAt(record, 2.8, 0.55, 0.6)) << "only that it was not there";
    EXPECT_FALSE(KxSawSomethingAt(record, 2.0, 0.05, 0.05));
}

TEST(KxPointedBox, ADetectionIsSeen)
{
    KxSubjectRecord record = Record();
    record.looks = {{30, {{0.7F, 0.2F, 0.1F, 0.5F, 0.8F, KxDetectionKind::Person}}}};
    EXPECT_TRUE(KxSawSomethingAt(record, 3.2, 0.75, 0.5));
    EXPECT_FALSE(KxSawSomethingAt(record, 3.2, 0.3, 0.5));
    EXPECT_FALSE(KxSawSomethingAt(record, 4.0, 0.75, 0.5));
}
