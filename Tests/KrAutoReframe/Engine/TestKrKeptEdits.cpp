#include <KrAutoReframe/Engine/KrKeptEdits.h>

#include <gtest/gtest.h>

namespace
{

using Found = QList<std::optional<qint64>>;

QRectF Crop(double x)
{
    return {x, 0.0, 0.25, 1.0};
}

/// Points in the frames 10 and 60, of which the first has pictures, and one that is not in this cut.
KrKeptEdits Kept()
{
    return {{{10, Crop(0.1)}, {60, Crop(0.6)}}, {{10, "a"}}, {{5, Crop(0.5), "u"}}};
}

} // namespace

TEST(KrKeptEdits, AllAreAskedForWithTheirPictures)
{
    const QList<KxDescribedFrame> described = Kept().Described();
    ASSERT_EQ(described.size(), 3);
    EXPECT_EQ(described[0].frame, 10);
    EXPECT_EQ(described[0].pictures, QByteArray("a"));
    EXPECT_EQ(described[1].pictures, QByteArray());
    EXPECT_EQ(described[2].frame, 5);
    EXPECT_EQ(described[2].pictures, QByteArray("u"));
}

TEST(KrKeptEdits, WhatStaysKeepsItsPictures)
{
    KrKeptEdits kept = Kept();
    EXPECT_EQ(kept.MoveTo({10, 60, std::nullopt}), 0);
    EXPECT_TRUE(kept == Kept());
}

TEST(KrKeptEdits, APointThatMovesLosesThePicturesOfTheEarlierCut)
{
    KrKeptEdits kept = Kept();
    EXPECT_EQ(kept.MoveTo({3, 60, std::nullopt}), 1);
    EXPECT_EQ(kept.points, (QMap<uint, QRectF>{{3, Crop(0.1)}, {60, Crop(0.6)}}));
    EXPECT_TRUE(kept.pictures.isEmpty());
}

TEST(KrKeptEdits, WhatIsNotFoundIsKeptUntilItIsFoundAgain)
{
    KrKeptEdits kept = Kept();
    EXPECT_EQ(kept.MoveTo({std::nullopt, 60, std::nullopt}), 0);
    EXPECT_EQ(kept.points.keys(), QList<uint>{60});
    ASSERT_EQ(kept.unplaced.size(), 2);
    EXPECT_EQ(kept.unplaced.first().pictures, QByteArray("a"));
    EXPECT_EQ(kept.MoveTo({60, 10, std::nullopt}), 1);
    EXPECT_EQ(kept.points, Kept().points);
    EXPECT_TRUE(kept.unplaced == Kept().unplaced);
}

TEST(KrKeptEdits, OfTwoThatMeetTheFirstStays)
{
    KrKeptEdits kept = Kept();
    EXPECT_EQ(kept.MoveTo({10, 10, 10}), 0);
    EXPECT_EQ(kept.points, (QMap<uint, QRectF>{{10, Crop(0.1)}}));
    EXPECT_EQ(kept.unplaced.size(), 2);
}

TEST(KrKeptEdits, WhatLiesAfterTheEndIsNotLost)
{
    KrKeptEdits kept = Kept();
    kept.LimitTo(60);
    EXPECT_EQ(kept.points.keys(), QList<uint>{10});
    ASSERT_EQ(kept.unplaced.size(), 2);
    EXPECT_EQ(kept.unplaced.last().frame, 60);
    kept.LimitTo(10);
    EXPECT_TRUE(kept.points.isEmpty());
    EXPECT_TRUE(kept.pictures.isEmpty());
    EXPECT_EQ(kept.unplaced.last().pictures, QByteArray("a"));
}

TEST(KrKeptEdits, AnUnplacedOneWithoutPicturesStaysUnplaced)
{
    KrKeptEdits kept = Kept();
    kept.LimitTo(60);
    EXPECT_EQ(kept.MoveTo({10, std::nullopt, 60}), 0);
    EXPECT_EQ(kept.points.keys(), QList<uint>{10});
}
