#include <KxSubject/Choice/KxEvidence.h>
#include <KxSubject/KxSubjectDecision.h>

#include <gtest/gtest.h>

namespace
{

struct Thing {
    double left;
    double right;
    float score;
};

/// Five seconds in which a detector sees the same people once a second; no other signal sees anything.
KxSubjectRecord Record(const std::vector<Thing>& things)
{
    KxSubjectRecord record;
    record.source = {1280, 720, 10.0, 50};
    record.workingSizePx = {320, 180};
    record.samples.resize(50);
    for (std::int32_t frame = 0; frame < 50; ++frame) {
        record.samples[static_cast<std::size_t>(frame)].frame = frame;
    }
    for (std::int32_t frame = 0; frame < 50; frame += 10) {
        KxDetectionLook look{frame, {}};
        for (const Thing& thing : things) {
            look.found.push_back({static_cast<float>(thing.left), 0.3F, static_cast<float>(thing.right - thing.left),
                                  0.4F, thing.score, KxDetectionKind::Person});
        }
        record.looks.push_back(look);
    }
    return record;
}

KxCropRect CropOf(const KxSubjectRecord& record, int aspectWidth, int aspectHeight)
{
    return KxDecide(record, {aspectWidth, aspectHeight}, {}, KxCancelToken()).crops[25];
}

void ExpectHolds(const KxCropRect& crop, const Thing& thing)
{
    EXPECT_LE(crop.x, thing.left);
    EXPECT_GE(crop.x + crop.width, thing.right);
}

} // namespace

TEST(KxEvidence, ADetectionsPartOfTheEvidenceIsItsPartOfTheSumInEachBin)
{
    KxEvidence::Parts parts;
    parts.motion.Add(0.0, 0.5, 0.6);
    parts.detections.Add(0.25, 0.75, 0.2);
    const KxSignalProfile detected = parts.Detected(parts.Sum().Concentrated(1.6));
    const KxSignalProfile whole = parts.Sum().Concentrated(1.6);
    constexpr std::size_t bins = KxSignalProfile::Bins;
    EXPECT_EQ(detected.share[bins / 8], 0.0F) << "motion alone";
    EXPECT_NEAR(detected.share[bins * 3 / 8], whole.share[bins * 3 / 8] / 4.0F, 1e-6F) << "both";
    EXPECT_FLOAT_EQ(detected.share[bins * 5 / 8], whole.share[bins * 5 / 8]) << "a detection alone";
    EXPECT_EQ(detected.share[bins * 7 / 8], 0.0F) << "nothing";
}

TEST(KxEvidence, ASquareCropHoldsTwoDetectedThingsThatFit)
{
    const Thing heavy{0.2, 0.36, 0.8F};
    const Thing light{0.55, 0.65, 0.5F};
    const KxSubjectRecord record = Record({heavy, light});
    const KxCropRect crop = CropOf(record, 1, 1);
    ExpectHolds(crop, heavy);
    ExpectHolds(crop, light);
}

TEST(KxEvidence, ASquareCropHasMarginBesideADetectedThing)
{
    const Thing thing{0.1, 0.26, 0.8F};
    const KxCropRect crop = CropOf(Record({thing}), 1, 1);
    EXPECT_LT(crop.x, thing.left - 0.02);
}
