#include <KrAutoReframe/Engine/KrShotList.h>

#include <gtest/gtest.h>

namespace
{

constexpr auto Sure = KxAutoReframeDoubt::None;
constexpr auto Doubt = KxAutoReframeDoubt::SeveralPlaces;

/// Shots of 10 frames each.
KrShotList Shots(const QList<KxAutoReframeDoubt>& doubts, const QList<uint>& seen = {})
{
    QList<KxAutoReframeShot> shots;
    for (const KxAutoReframeDoubt doubt : doubts) {
        const qint64 first = shots.size() * 10;
        shots.append({first, first + 10, 0.5, doubt});
    }
    return KrShotList(shots, seen);
}

} // namespace

TEST(KrShotList, AFrameBelongsToTheShotThatBeganLast)
{
    const KrShotList shots = Shots({Sure, Doubt, Sure});
    EXPECT_EQ(shots.IndexAt(0), 0);
    EXPECT_EQ(shots.IndexAt(9), 0);
    EXPECT_EQ(shots.IndexAt(10), 1);
    EXPECT_EQ(shots.IndexAt(1000), 2);
    EXPECT_EQ(KrShotList().IndexAt(0), -1);
}

TEST(KrShotList, TheWayLeadsThroughTheDoubtfulShotsOnly)
{
    const KrShotList shots = Shots({Doubt, Sure, Doubt, Sure});
    EXPECT_EQ(shots.NextDoubtful(0), 2);
    EXPECT_EQ(shots.NextDoubtful(15), 2);
    EXPECT_EQ(shots.NextDoubtful(25), -1);
    EXPECT_EQ(shots.PreviousDoubtful(35), 2);
    EXPECT_EQ(shots.PreviousDoubtful(25), 0);
    EXPECT_EQ(shots.PreviousDoubtful(5), -1);
}

TEST(KrShotList, WithoutShotsThereIsNoWay)
{
    EXPECT_EQ(KrShotList().NextDoubtful(0), -1);
    EXPECT_EQ(KrShotList().PreviousDoubtful(0), -1);
}

TEST(KrShotList, ALookCountsOnce)
{
    KrShotList shots = Shots({Doubt, Sure, Doubt});
    EXPECT_EQ(shots.CountToLookAt(), 2);
    EXPECT_FALSE(shots.IsSeen(2));
    EXPECT_TRUE(shots.MarkSeen(2));
    EXPECT_FALSE(shots.MarkSeen(2));
    EXPECT_TRUE(shots.IsSeen(2));
    EXPECT_EQ(shots.CountToLookAt(), 1);
    EXPECT_EQ(shots.CountDoubtful(), 2);
    EXPECT_EQ(shots.NextDoubtful(0), 2);
}

TEST(KrShotList, ALookAtASureShotChangesNothing)
{
    KrShotList shots = Shots({Doubt, Sure});
    EXPECT_FALSE(shots.MarkSeen(1));
    EXPECT_FALSE(shots.MarkSeen(-1));
    EXPECT_FALSE(shots.MarkSeen(2));
    EXPECT_TRUE(shots.Seen().isEmpty());
}

TEST(KrShotList, LooksFromEarlierAreKept)
{
    KrShotList shots = Shots({Doubt, Sure, Doubt}, {20, 10});
    EXPECT_EQ(shots.CountToLookAt(), 1);
    EXPECT_TRUE(shots.MarkSeen(0));
    EXPECT_EQ(shots.Seen(), (QList<uint>{0, 10, 20}));
}
