#include <KxSubject/Choice/KxDetectionTracks.h>

#include <gtest/gtest.h>

namespace
{

const KxSubjectOptions::Detections Options;

KxDetection Box(double centre, double width, KxDetectionKind kind = KxDetectionKind::Person, float score = 0.8F)
{
    return {static_cast<float>(centre - width / 2.0), 0.3F, static_cast<float>(width), 0.5F, score, kind};
}

/// Looks once a second at ten frames a second; `found` returns the boxes of a look.
template<typename Found>
KxSubjectRecord Record(int looks, Found found)
{
    KxSubjectRecord record;
    record.source = {1280, 720, 10.0, 1000};
    for (int i = 0; i < looks; ++i) {
        record.looks.push_back({10 * i, found(i)});
    }
    return record;
}

KxDetectionTracks Tracks(const KxSubjectRecord& record, std::int64_t first = 0, std::int64_t end = 1000)
{
    return KxDetectionTracks(record, Options, first, end);
}

double CentreOf(const KxSignalProfile& profile)
{
    double sum = 0.0;
    for (std::size_t bin = 0; bin < KxSignalProfile::Bins; ++bin) {
        sum += static_cast<double>(profile.share[bin]) * (static_cast<double>(bin) + 0.5) / KxSignalProfile::Bins;
    }
    return sum / static_cast<double>(profile.Sum());
}

/// The evidence between two places of the picture.
double Between(const KxSignalProfile& profile, double from, double to)
{
    double sum = 0.0;
    for (std::size_t bin = 0; bin < KxSignalProfile::Bins; ++bin) {
        const double place = (static_cast<double>(bin) + 0.5) / KxSignalProfile::Bins;
        sum += place > from && place < to ? static_cast<double>(profile.share[bin]) : 0.0;
    }
    return sum;
}

using Boxes = std::vector<KxDetection>;

} // namespace

TEST(KxDetectionTracks, AThingThatMovesIsOneTrackAndLiesBetweenItsLooks)
{
    const KxSubjectRecord record = Record(5, [](int i) { return Boxes{Box(0.2 + 0.1 * i, 0.1)}; });
    const KxDetectionTracks tracks = Tracks(record);
    ASSERT_EQ(tracks.Tracks().size(), 1U);
    EXPECT_EQ(tracks.Tracks()[0].points.size(), 5U);
    EXPECT_NEAR(CentreOf(tracks.ProfileAt(2.0, KxAxis::Across)), 0.4, 0.01);
    EXPECT_NEAR(CentreOf(tracks.ProfileAt(2.5, KxAxis::Across)), 0.45, 0.01);
}

TEST(KxDetectionTracks, TwoThingsStayTwoTracksAndAnimalsAreNotPeople)
{
    const KxSubjectRecord apart = Record(4, [](int) { return Boxes{Box(0.2, 0.1), Box(0.8, 0.1)}; });
    EXPECT_EQ(Tracks(apart).Tracks().size(), 2U);
    const KxSubjectRecord kinds = Record(
        2, [](int i) { return Boxes{Box(0.5, 0.1, i == 0 ? KxDetectionKind::Person : KxDetectionKind::Animal)}; });
    EXPECT_EQ(Tracks(kinds).Tracks().size(), 2U);
}

TEST(KxDetectionTracks, VehiclesAreLinkedButAreNoSubjects)
{
    const KxSubjectRecord record = Record(4, [](int i) {
        return Boxes{Box(0.2, 0.1), Box(0.6 + 0.05 * i, 0.1, KxDetectionKind::Vehicle)};
    });
    EXPECT_EQ(Tracks(record).Tracks().size(), 1U);
    EXPECT_EQ(Between(Tracks(record).ProfileAt(1.0, KxAxis::Across), 0.4, 1.0), 0.0);
    const KxDetectionTracks all(record, Options, 0, 1000, KxDetectionTracks::Kinds::All);
    ASSERT_EQ(all.Tracks().size(), 2U);
    EXPECT_EQ(all.Tracks()[1].points.size(), 4U);
}

TEST(KxDetectionTracks, AMissedLookIsBridgedAndALongGapIsNot)
{
    const auto gap = [](int missed) {
        return Record(missed + 2, [missed](int i) { return i == 0 || i > missed ? Boxes{Box(0.5, 0.1)} : Boxes(); });
    };
    EXPECT_EQ(Tracks(gap(1)).Tracks().size(), 1U);
    EXPECT_EQ(Tracks(gap(2)).Tracks().size(), 2U);
}

TEST(KxDetectionTracks, WhoIsThereForTheWholeShotOutweighsWhoPassesBy)
{
    const KxSubjectRecord record = Record(10, [](int i) {
        Boxes boxes{Box(0.25, 0.15)};
        if (i == 4 || i == 5) {
            boxes.push_back(Box(0.75, 0.2));
        }
        return boxes;
    });
    const KxSignalProfile profile = Tracks(record).ProfileAt(4.5, KxAxis::Across);
    EXPECT_GT(Between(profile, 0.0, 0.5), 8.0 * Between(profile, 0.5, 1.0));
}

TEST(KxDetectionTracks, TheLargerAndTheMoreCentralWeighMore)
{
    const KxSubjectRecord sizes = Record(3, [](int) { return Boxes{Box(0.25, 0.1), Box(0.75, 0.03)}; });
    EXPECT_GT(Tracks(sizes).Tracks()[0].weight, 1.5 * Tracks(sizes).Tracks()[1].weight);
    const KxSubjectRecord places = Record(3, [](int) { return Boxes{Box(0.5, 0.1), Box(0.95, 0.1)}; });
    EXPECT_GT(Tracks(places).Tracks()[0].weight, 1.3 * Tracks(places).Tracks()[1].weight);
}

TEST(KxDetectionTracks, LooksInAnotherShotDoNotCount)
{
    const KxSubjectRecord record = Record(6, [](int i) { return Boxes{Box(i < 3 ? 0.2 : 0.8, 0.1)}; });
    const KxDetectionTracks tracks = Tracks(record, 25, 60);
    ASSERT_EQ(tracks.Tracks().size(), 1U);
    EXPECT_NEAR(CentreOf(tracks.ProfileAt(2.6, KxAxis::Across)), 0.8, 0.01);
}

TEST(KxDetectionTracks, EvidenceFadesBeforeTheFirstAndAfterTheLastLook)
{
    const KxSubjectRecord record = Record(3, [](int) { return Boxes{Box(0.5, 0.1)}; });
    const KxDetectionTracks tracks = Tracks(record);
    const float during = tracks.ProfileAt(2.0, KxAxis::Across).Sum();
    const float soon = tracks.ProfileAt(2.5, KxAxis::Across).Sum();
    EXPECT_LT(soon, during);
    EXPECT_GT(soon, 0.0F);
    EXPECT_EQ(tracks.ProfileAt(3.1, KxAxis::Across).Sum(), 0.0F);
}

TEST(KxDetectionTracks, InATallPictureAPersonsUpperPartCounts)
{
    const KxSubjectRecord person = Record(2, [](int) { return Boxes{Box(0.5, 0.2)}; });
    EXPECT_NEAR(CentreOf(Tracks(person).ProfileAt(0.5, KxAxis::UpDown)), 0.3 + 0.5 * Options.personUpperShare / 2.0,
                0.01);
    const KxSubjectRecord animal = Record(2, [](int) { return Boxes{Box(0.5, 0.2, KxDetectionKind::Animal)}; });
    EXPECT_NEAR(CentreOf(Tracks(animal).ProfileAt(0.5, KxAxis::UpDown)), 0.55, 0.01);
}

TEST(KxDetectionTracks, WithoutDetectionsThereIsNoEvidence)
{
    const KxSubjectRecord record = Record(3, [](int) { return Boxes(); });
    EXPECT_EQ(Tracks(record).ProfileAt(1.0, KxAxis::Across).Sum(), 0.0F);
}
