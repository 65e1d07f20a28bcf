#include <KxSubject/Follow/KxMoverBridge.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace
{

/// A sample at each second frame of 100.
KxSubjectRecord Record()
{
    KxSubjectRecord record;
    record.source = {1280, 720, 25.0, 100};
    for (std::int32_t frame = 0; frame < 100; frame += 2) {
        record.samples.push_back({frame, {}, {}});
    }
    return record;
}

/// From one sample to another; its middle moves from one place across to another.
KxMover Mover(std::int32_t first, std::int32_t last, double from, double to, double width = 0.1)
{
    KxMover mover;
    mover.firstSample = first;
    for (std::int32_t sample = first; sample <= last; ++sample) {
        const double middle = from + (to - from) * (sample - first) / std::max(1, last - first);
        const auto packed = [](double value) { return static_cast<std::uint8_t>(std::lround(value * 255.0)); };
        mover.boxes.push_back({packed(middle - width / 2.0), packed(0.4), packed(middle + width / 2.0), packed(0.6)});
    }
    return mover;
}

const KxSubjectBox Seen{0.2, 0.35, 0.12, 0.3};

} // namespace

TEST(KxMoverBridge, AThingIsWhereItsMoversGo)
{
    KxSubjectRecord record = Record();
    record.movers = {Mover(0, 49, 0.26, 0.9), Mover(0, 49, 0.6, 0.6)};
    KxMoverBridge bridge(record);
    bridge.SeeAt(0, Seen);
    const std::optional<KxSubjectBox> box = bridge.BoxAt(98);
    ASSERT_TRUE(box);
    EXPECT_NEAR(box->x + box->width / 2.0, 0.9, 0.01);
    EXPECT_EQ(box->width, Seen.width);
    EXPECT_NEAR(bridge.BoxAt(49)->x + Seen.width / 2.0, 0.58, 0.02) << "between two samples";
}

TEST(KxMoverBridge, MostOfSeveralMoversDecide)
{
    KxSubjectRecord record = Record();
    record.movers = {Mover(0, 49, 0.25, 0.9), Mover(0, 49, 0.26, 0.3), Mover(0, 49, 0.27, 0.92)};
    KxMoverBridge bridge(record);
    bridge.SeeAt(0, Seen);
    EXPECT_NEAR(bridge.BoxAt(98)->x + Seen.width / 2.0, 0.9, 0.01);
}

TEST(KxMoverBridge, ItGoesBackwardInTimeToo)
{
    KxSubjectRecord record = Record();
    record.movers = {Mover(0, 49, 0.8, 0.26)};
    KxMoverBridge bridge(record);
    bridge.SeeAt(98, Seen);
    EXPECT_NEAR(bridge.BoxAt(0)->x + Seen.width / 2.0, 0.8, 0.01);
}

TEST(KxMoverBridge, WithoutMoversOfTheThingThePlaceIsUnknown)
{
    KxSubjectRecord record = Record();
    record.movers = {Mover(0, 10, 0.26, 0.4), Mover(0, 49, 0.6, 0.7), Mover(0, 49, 0.26, 0.4, 0.5),
                     Mover(20, 49, 0.4, 0.5)};
    KxMoverBridge bridge(record);
    bridge.SeeAt(0, Seen);
    EXPECT_TRUE(bridge.BoxAt(20));
    EXPECT_FALSE(bridge.BoxAt(60)) << "its own ended, one is elsewhere, one too large, and one began later";
    const KxSubjectRecord empty;
    EXPECT_FALSE(KxMoverBridge(empty).BoxAt(0));
}
