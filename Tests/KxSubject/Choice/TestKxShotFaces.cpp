#include <KxSubject/Choice/KxShotFaces.h>

#include <gtest/gtest.h>

namespace
{

KxFaceTrack Track(float from, float to, double x, double widthPx = 40.0, double speedPx = 0.0)
{
    KxFaceTrack track;
    for (float time = from; time < to; time += 0.2F) {
        const double left = x + speedPx * static_cast<double>(time - from);
        track.looks.push_back({time, static_cast<std::int16_t>(left), 50, static_cast<std::int16_t>(widthPx),
                               static_cast<std::int16_t>(widthPx)});
    }
    return track;
}

KxSubjectRecord Record(std::vector<KxFaceTrack> faces)
{
    KxSubjectRecord record;
    record.source = {960, 540, 25.0, 500};
    record.workingSizePx = {320, 180};
    record.faces = std::move(faces);
    return record;
}

} // namespace

TEST(KxShotFaces, TracksOneAfterTheOtherInTheSamePlaceAreOnePerson)
{
    const KxSubjectRecord record = Record({Track(0.0F, 8.0F, 40), Track(0.0F, 20.0F, 220), Track(9.0F, 20.0F, 44)});
    const KxShotFaces faces(record, 0, 500);
    ASSERT_EQ(faces.People().size(), 2U);
    EXPECT_EQ(faces.People()[0].faces, (std::vector<std::size_t>{0, 2}));
    EXPECT_NEAR(faces.BoxAt(0, 4.0).x, 40.0 / 320.0, 1e-6);
    EXPECT_NEAR(faces.BoxAt(0, 15.0).x, 44.0 / 320.0, 1e-6);
}

TEST(KxShotFaces, TwoTracksOfOneFaceAreOnePerson)
{
    const KxSubjectRecord record = Record({Track(0.0F, 20.0F, 40), Track(3.0F, 12.0F, 43, 34.0)});
    EXPECT_EQ(KxShotFaces(record, 0, 500).People().size(), 1U);
}

TEST(KxShotFaces, APersonWhoWalksIsFollowedFromTrackToTrack)
{
    const KxSubjectRecord record =
        Record({Track(0.0F, 4.0F, 20, 40.0, 20.0), Track(4.4F, 8.0F, 108, 40.0, 20.0), Track(0.0F, 8.0F, 250)});
    EXPECT_EQ(KxShotFaces(record, 0, 500).People().size(), 2U);
}

TEST(KxShotFaces, OtherShotsDoNotCount)
{
    const KxSubjectRecord record = Record({Track(0.0F, 9.9F, 40), Track(10.0F, 20.0F, 220)});
    const KxShotFaces faces(record, 250, 500);
    ASSERT_EQ(faces.People().size(), 1U);
    EXPECT_NEAR(faces.BoxAt(0, 0.0).x, 220.0 / 320.0, 1e-6) << "before its first look, where it was first";
}

TEST(KxShotFaces, AFaceSeenAFewTimesDoesNotCount)
{
    const KxSubjectRecord record = Record({Track(0.0F, 0.7F, 40), Track(0.0F, 20.0F, 220)});
    EXPECT_EQ(KxShotFaces(record, 0, 500).People().size(), 1U);
}
