#include <KxSubject/Signals/KxLookSchedule.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace
{

constexpr double FrameRate = 10.0;
constexpr KxDetection Person{0.3F, 0.2F, 0.2F, 0.6F, 0.8F, KxDetectionKind::Person};

KxDetection Moved(float across)
{
    KxDetection moved = Person;
    moved.x += across;
    return moved;
}

/// The frames of the looks at ten frames a second; `found` returns the boxes of a look, a scene starts at each of
/// `scenes`.
template<typename Found>
std::vector<int> Looks(int frames, Found found, const std::vector<int>& scenes = {0})
{
    KxLookSchedule schedule(KxSubjectOptions().detections, FrameRate);
    std::vector<int> looks;
    for (int frame = 0; frame < frames; ++frame) {
        const bool isNewScene = std::find(scenes.begin(), scenes.end(), frame) != scenes.end();
        if (schedule.IsDue(frame, isNewScene)) {
            looks.push_back(frame);
            schedule.Add({frame, found(frame)}, isNewScene);
        }
    }
    return looks;
}

} // namespace

TEST(KxLookSchedule, LooksOnceASecondWhileNothingIsFound)
{
    EXPECT_EQ(Looks(45, [](int) { return std::vector<KxDetection>(); }), (std::vector<int>{0, 10, 20, 30, 40}));
}

TEST(KxLookSchedule, ASceneWhoseSubjectStaysGetsHalfOfTheLooks)
{
    EXPECT_EQ(Looks(80, [](int) { return std::vector{Person}; }), (std::vector<int>{0, 10, 30, 50, 70}));
}

TEST(KxLookSchedule, AVehicleThatStandsChangesNothing)
{
    KxDetection parked = Moved(-0.2F);
    parked.width = 0.9F;
    parked.kind = KxDetectionKind::Vehicle;
    EXPECT_EQ(Looks(45, [&](int) { return std::vector{parked}; }), (std::vector<int>{0, 10, 20, 30, 40}));
    const auto passing = [&](int frame) { return std::vector{parked, Moved(0.012F * static_cast<float>(frame))}; };
    EXPECT_EQ(Looks(45, passing), (std::vector<int>{0, 10, 20, 30, 40}));
}

TEST(KxLookSchedule, ASubjectThatMovesIsLookedAtOnceASecond)
{
    const auto found = [](int frame) { return std::vector{Moved(0.012F * static_cast<float>(frame))}; };
    EXPECT_EQ(Looks(45, found), (std::vector<int>{0, 10, 20, 30, 40}));
}

TEST(KxLookSchedule, ASubjectThatStartsToMoveIsLookedAtOnceASecondAgain)
{
    const auto found = [](int frame) {
        return std::vector{Moved(frame < 25 ? 0.0F : 0.01F * static_cast<float>(frame))};
    };
    EXPECT_EQ(Looks(65, found), (std::vector<int>{0, 10, 30, 40, 50, 60}));
}

TEST(KxLookSchedule, SmallerThingsThatComeAndGoDoNotCount)
{
    KxDetection small = Person;
    small.width = 0.05F;
    const auto found = [small](int frame) {
        return frame % 20 == 0 ? std::vector{small, Person} : std::vector{Person};
    };
    EXPECT_EQ(Looks(60, found), (std::vector<int>{0, 10, 30, 50}));
}

TEST(KxLookSchedule, AnotherKindInTheSamePlaceIsAnotherThing)
{
    const auto found = [](int frame) {
        KxDetection thing = Person;
        thing.kind = frame % 20 == 0 ? KxDetectionKind::Person : KxDetectionKind::Animal;
        return std::vector{thing};
    };
    EXPECT_EQ(Looks(35, found), (std::vector<int>{0, 10, 20, 30}));
}

TEST(KxLookSchedule, ANewSceneIsLookedAtAtOnceAndSettlesAnew)
{
    EXPECT_EQ(Looks(60, [](int) { return std::vector{Person}; }, {0, 13}), (std::vector<int>{0, 10, 13, 23, 43}));
}
