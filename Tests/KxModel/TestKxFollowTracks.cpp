#include <KxModel/KxCacheFolder.h>
#include <KxModel/KxFollowTrackFormat.h>
#include <KxModel/KxFollowTracks.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

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

namespace
{

bool AreSame(const KxFollowTrack& a, const KxFollowTrack& b)
{
    return std::equal(a.points.begin(), a.points.end(), b.points.begin(), b.points.end(),
                      [](const KxFollowTrack::Point& one, const KxFollowTrack::Point& other) {
                          return one.frame == other.frame && one.box == other.box &&
                                 one.confidence == other.confidence && one.isDoubted == other.isDoubted &&
                                 one.isAmbiguous == other.isAmbiguous;
                      });
}

class KxFollowTracksOnDisk : public testing::Test
{
protected:
    /// As in a program that has just been started.
    std::unique_ptr<KxFollowTracks> Tracks() const
    {
        const auto folder = std::make_shared<KxCacheFolder>(1'000'000);
        folder->SetPath(m_folder.path());
        return std::make_unique<KxFollowTracks>(folder);
    }
    QStringList Files() const { return QDir(m_folder.path()).entryList(QDir::Files); }

    QTemporaryDir m_folder;
    const KxFollowTrack m_track{{{7, {0.1, 1.0 / 3.0, 0.2, 0.7}, 0.9F},
                                 {9, {-0.05, 0.3, 1e-9, 0.2}, 0.0F},
                                 {10, {0.1, 0.2, 0.3, 0.4}, 1.0F, true},
                                 {12, {0.1, 0.2, 0.3, 0.4}, 1.0F, false, true}}};
};

} // namespace

TEST_F(KxFollowTracksOnDisk, ATrackOutlivesTheProgramExactly)
{
    Tracks()->Add("a", ChoiceAt(1.0), m_track);
    const auto tracks = Tracks();
    const KxFollowTracks::Known found = tracks->Find("a", ChoiceAt(1.0));
    ASSERT_TRUE(found);
    EXPECT_TRUE(AreSame(*found, m_track));
    EXPECT_FALSE(tracks->Find("b", ChoiceAt(1.0)));
    EXPECT_FALSE(tracks->Find("a", ChoiceAt(1.0 + 1e-12)));
    EXPECT_EQ(tracks->Find("a", ChoiceAt(1.0)), found) << "it is in memory from now on";
}

TEST_F(KxFollowTracksOnDisk, AnEmptyTrackIsOneToo)
{
    Tracks()->Add("a", ChoiceAt(1.0), {});
    const KxFollowTracks::Known found = Tracks()->Find("a", ChoiceAt(1.0));
    ASSERT_TRUE(found);
    EXPECT_TRUE(found->points.empty());
}

TEST_F(KxFollowTracksOnDisk, ADamagedFileIsRemoved)
{
    Tracks()->Add("a", ChoiceAt(1.0), m_track);
    ASSERT_EQ(Files().size(), 1);
    const QString path = m_folder.filePath(Files().first());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.seek(30));
    ASSERT_EQ(file.write("x"), 1);
    file.close();
    EXPECT_FALSE(Tracks()->Find("a", ChoiceAt(1.0)));
    EXPECT_FALSE(QFile::exists(path));
}

TEST(KxFollowTrackFormat, OtherBytesAreNoTrack)
{
    const QByteArray bytes = KxFollowTrackFormat::Write(TrackOf(3));
    EXPECT_TRUE(KxFollowTrackFormat::Read(bytes));
    for (int length = 0; length < bytes.size(); ++length) {
        EXPECT_FALSE(KxFollowTrackFormat::Read(bytes.left(length))) << length;
    }
    for (int i = 0; i < bytes.size(); ++i) {
        QByteArray changed = bytes;
        changed[i] = static_cast<char>(changed[i] ^ 1);
        EXPECT_FALSE(KxFollowTrackFormat::Read(changed)) << i;
    }
}

TEST(KxFollowTrackFormat, WhatNoTrackerCouldHaveSeenIsRefused)
{
    KxFollowTrack track = TrackOf(3);
    track.points.push_back(track.points.front());
    EXPECT_FALSE(KxFollowTrackFormat::Read(KxFollowTrackFormat::Write(track)));
    track.points.back().frame = 4;
    EXPECT_TRUE(KxFollowTrackFormat::Read(KxFollowTrackFormat::Write(track)));
    track.points.back().box.x = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(KxFollowTrackFormat::Read(KxFollowTrackFormat::Write(track)));
    track.points.back().box.x = 0.0;
    track.points.back().confidence = 2.0F;
    EXPECT_FALSE(KxFollowTrackFormat::Read(KxFollowTrackFormat::Write(track)));
}
