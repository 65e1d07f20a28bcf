#include <KxSubject/Shots/KxShotCuts.h>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

std::vector<KxPictureChange> Calm(std::int32_t count)
{
    std::vector<KxPictureChange> changes;
    for (std::int32_t i = 0; i < count; ++i) {
        KxPictureChange change;
        change.frame = i;
        change.grey = 1.0F + 0.1F * static_cast<float>(i % 3);
        change.colour = 0.02F;
        change.similarity = 250;
        changes.push_back(change);
    }
    return changes;
}

KxPictureChange& Jump(std::vector<KxPictureChange>& changes, std::size_t at, float grey = 40.0F, float colour = 0.6F)
{
    changes[at].grey = grey;
    changes[at].colour = colour;
    changes[at].similarity = 30;
    return changes[at];
}

std::vector<std::int32_t> FramesOf(const std::vector<KxPictureChange>& cuts)
{
    std::vector<std::int32_t> frames;
    for (const KxPictureChange& cut : cuts) {
        frames.push_back(cut.frame);
    }
    return frames;
}

std::vector<std::int32_t> Find(const std::vector<KxPictureChange>& changes)
{
    KxShotCuts cuts(KxSubjectOptions().shots);
    for (const KxPictureChange& change : changes) {
        cuts.Add(change);
    }
    return FramesOf(cuts.Find());
}

} // namespace

TEST(KxShotCuts, AJumpOfBothSignalsIsACut)
{
    auto changes = Calm(60);
    Jump(changes, 30);
    EXPECT_THAT(Find(changes), ElementsAre(30));
}

TEST(KxShotCuts, Case1TheLargerOfTwoNeighboursIsTheCut)
{
    auto changes = Calm(60);
    Jump(changes, 30, 40.0F, 0.6F);
    Jump(changes, 31, 50.0F, 0.7F);
    EXPECT_THAT(Find(changes), ElementsAre(31));
}

TEST(KxShotCuts, Case1TheLargerOfTheLastTwoPicturesIsTheCut)
{
    auto changes = Calm(60);
    Jump(changes, 58, 40.0F, 0.6F);
    Jump(changes, 59, 50.0F, 0.7F);
    EXPECT_THAT(Find(changes), ElementsAre(59));
}

TEST(KxShotCuts, Case1AJumpOfOnlyOneSignalIsNotACut)
{
    auto changes = Calm(60);
    Jump(changes, 20, 40.0F, 0.05F);
    Jump(changes, 40, 3.0F, 0.6F);
    EXPECT_THAT(Find(changes), IsEmpty());
}

TEST(KxShotCuts, Case2AJumpBelowTheFloorIsNotACut)
{
    auto changes = Calm(60);
    Jump(changes, 30, 8.5F, 0.17F);
    EXPECT_THAT(Find(changes), IsEmpty());
}

TEST(KxShotCuts, Case3AJumpThatIsUsualAroundItIsNotACut)
{
    auto changes = Calm(60);
    for (KxPictureChange& change : changes) {
        change.grey = 12.0F;
        change.colour = 0.2F;
    }
    Jump(changes, 30, 22.0F, 0.38F);
    EXPECT_THAT(Find(changes), IsEmpty());
}

TEST(KxShotCuts, Case3CutsFivePicturesApartAreNotUsual)
{
    auto changes = Calm(60);
    for (std::size_t at = 20; at <= 40; at += 5) {
        Jump(changes, at);
    }
    EXPECT_THAT(Find(changes), ElementsAre(20, 25, 30, 35, 40));
}

TEST(KxShotCuts, Case4AFlashIsNotACut)
{
    auto changes = Calm(60);
    Jump(changes, 30).flash = true;
    Jump(changes, 33).flash = true;
    EXPECT_THAT(Find(changes), IsEmpty());
}

TEST(KxShotCuts, Case5AChangeOfLightIsNotACut)
{
    auto changes = Calm(60);
    Jump(changes, 30).similarity = 190;
    EXPECT_THAT(Find(changes), IsEmpty());
}

TEST(KxShotCuts, Case6APictureThatReturnsWithoutAJumpIsNotACut)
{
    auto changes = Calm(60);
    Jump(changes, 20).backAfter = 12;
    Jump(changes, 45).backBefore = 12;
    EXPECT_THAT(Find(changes), IsEmpty());
}

TEST(KxShotCuts, Case6AnInsertHasTwoCuts)
{
    auto changes = Calm(60);
    Jump(changes, 20).backAfter = 12;
    Jump(changes, 32).backBefore = 12;
    EXPECT_THAT(Find(changes), ElementsAre(20, 32));
}

TEST(KxShotCuts, ACutStaysFoundHoweverManyPicturesFollow)
{
    auto changes = Calm(30);
    Jump(changes, 20);
    while (changes.size() < 150) {
        changes.push_back(Calm(150)[changes.size()]);
        EXPECT_THAT(Find(changes), ElementsAre(20)) << changes.size();
    }
}

TEST(KxShotCuts, WhatIsLearnedOfAnOpenChangeCounts)
{
    KxShotCuts cuts(KxSubjectOptions().shots);
    auto changes = Calm(150);
    Jump(changes, 60);
    Jump(changes, 90);
    for (std::size_t i = 0; i < changes.size(); ++i) {
        cuts.Add(changes[i]);
        if (i == 60 + KxShotCuts::Open - 1) {
            cuts.Newest(KxShotCuts::Open - 1).flash = true;
        }
    }
    EXPECT_THAT(FramesOf(cuts.Find()), ElementsAre(90));
}
