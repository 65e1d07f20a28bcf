#include <KxModel/KxFollowTracks.h>

#include <gtest/gtest.h>

namespace
{

KxSubjectChoice ChoiceAt(double seconds)
{
    KxSubjectChoice choice;
    choice.kind = KxChoiceKind::Follow;
    choice.seeds = {{seconds, {0.1, 0.1, 0.2, 0.2}}};
    return choice;
}

KxFollowTrack TrackOf(int frame)
{
    return {{{frame, {0.1, 0.1, 0.2, 0.2}, 1.0F}}};
}

} // namespace

TEST(KxFollowTracks, ATrackIsFoundForItsVideoAndChoice)
{
    KxFollowTracks tracks;
    tracks.Add("a", ChoiceAt(1.0), TrackOf(25));
    ASSERT_TRUE(tracks.Find("a", ChoiceAt(1.0)));
    EXPECT_EQ(tracks.Find("a", ChoiceAt(1.0))->points.front().frame, 25);
    EXPECT_FALSE(tracks.Find("b", ChoiceAt(1.0)));
    EXPECT_FALSE(tracks.Find("a", ChoiceAt(2.0)));
}

TEST(KxFollowTracks, AVideoWithoutAKeyIsNotRemembered)
{
    KxFollowTracks tracks;
    tracks.Add({}, ChoiceAt(1.0), TrackOf(25));
    EXPECT_FALSE(tracks.Find({}, ChoiceAt(1.0)));
}

TEST(KxFollowTracks, TheOneUsedLongestAgoIsDropped)
{
    KxFollowTracks tracks;
    const auto most = static_cast<int>(KxFollowTracks::MostKept);
    for (int i = 0; i < most; ++i) {
        tracks.Add("a", ChoiceAt(i), TrackOf(i));
    }
    EXPECT_TRUE(tracks.Find("a", ChoiceAt(0)));
    tracks.Add("a", ChoiceAt(most), TrackOf(most));
    EXPECT_TRUE(tracks.Find("a", ChoiceAt(0)));
    EXPECT_FALSE(tracks.Find("a", ChoiceAt(1)));
    EXPECT_TRUE(tracks.Find("a", ChoiceAt(2)));
}
