#include <KxSubject/Choice/KxAvoidedThing.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

constexpr double Rate = 25.0;
const KxChoiceRanges::Range Range{0, 250, 0};

/// A thing that moves from left to right and is seen by the tracker in the first two seconds only, and a second one at
/// 0.8 that stays.
double PlaceAt(std::int64_t frame)
{
    return 0.1 + 0.002 * static_cast<double>(frame);
}

KxFollowEvidence Thing()
{
    KxSubjectChoice choice;
    choice.kind = KxChoiceKind::Avoid;
    choice.seeds = {{0.0, {PlaceAt(0) - 0.05, 0.2, 0.1, 0.5}}};
    KxFollowTrack track;
    for (std::int32_t frame = 0; frame < 250; frame += 2) {
        track.points.push_back({frame, {PlaceAt(std::min(frame, 50)) - 0.05, 0.2, 0.1, 0.5}, frame < 50 ? 1.0F : 0.0F});
    }
    return {choice, track, Range, {}, {Rate, KxAxis::Across}};
}

KxSubjectRecord Record()
{
    KxSubjectRecord record;
    record.source = {1280, 720, Rate, 250};
    record.workingSizePx = {320, 180};
    for (std::int32_t frame = 0; frame < 250; frame += 5) {
        record.samples.push_back({frame, {}, {}});
    }
    return record;
}

KxMover Mover(double (*placeAt)(std::int64_t), double width = 0.08, double height = 0.3)
{
    KxMover mover;
    for (std::int64_t frame = 0; frame < 250; frame += 5) {
        const auto packed = [](double value) { return static_cast<std::uint8_t>(value * 255.0); };
        const double place = placeAt(frame);
        mover.boxes.push_back({packed(place - width / 2.0), packed(0.45 - height / 2.0), packed(place + width / 2.0),
                               packed(0.45 + height / 2.0)});
    }
    return mover;
}

double Still(std::int64_t)
{
    return 0.8;
}

} // namespace

TEST(KxAvoidedThing, ItsMoversGoAndOthersStay)
{
    KxSubjectRecord record = Record();
    record.movers = {Mover(PlaceAt), Mover(Still), Mover(PlaceAt, 0.18, 0.8)};
    KxRemoveAvoidedThing(record, {}, Range, Thing());
    ASSERT_EQ(record.movers.size(), 2U);
    EXPECT_NEAR(record.movers[0].At(0).x, 0.76, 0.01);
    EXPECT_GT(record.movers[1].At(0).height, 0.7) << "it holds more than the thing";
}

TEST(KxAvoidedThing, ItsDetectionsGoAlsoAfterTheTrackerLostIt)
{
    KxSubjectRecord record = Record();
    for (std::int32_t frame = 0; frame < 250; frame += 25) {
        const auto place = static_cast<float>(PlaceAt(frame));
        record.looks.push_back({frame,
                                {{place - 0.05F, 0.2F, 0.1F, 0.5F, 0.6F, KxDetectionKind::Person},
                                 {0.75F, 0.2F, 0.1F, 0.5F, 0.6F, KxDetectionKind::Person}}});
    }
    KxRemoveAvoidedThing(record, {}, Range, Thing());
    for (const KxDetectionLook& look : record.looks) {
        ASSERT_EQ(look.found.size(), 1U) << look.frame;
        EXPECT_EQ(look.found[0].x, 0.75F);
    }
}

TEST(KxAvoidedThing, ItsFaceLosesItsHitsAndKeepsItsPlaceInTheList)
{
    KxSubjectRecord record = Record();
    record.faces.resize(2);
    for (int look = 0; look < 50; ++look) {
        const double seconds = 0.2 * look;
        const double place = PlaceAt(5 * look);
        record.faces[0].looks.push_back(
            {static_cast<float>(seconds), static_cast<std::int16_t>(place * 320.0 - 10.0), 40, 20, 20});
        record.faces[1].looks.push_back({static_cast<float>(seconds), 246, 40, 20, 20});
    }
    KxRemoveAvoidedThing(record, {}, Range, Thing());
    ASSERT_EQ(record.faces.size(), 2U);
    const auto isFace = [](const KxFaceLook& look) { return look.IsFace(); };
    EXPECT_TRUE(std::none_of(record.faces[0].looks.begin(), record.faces[0].looks.end(), isFace));
    EXPECT_TRUE(std::all_of(record.faces[1].looks.begin(), record.faces[1].looks.end(), isFace));
}
