#include <KxPlayer/KxPlayback.h>

#include <Tests/KxPlayer/PlayerClip.h>
#include <Tests/Support/MadeVideo.h>

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace
{

constexpr qint64 FrameUs = 40000;
constexpr int Last = PlayerClip::Frames - 1;

class TestPlayback : public testing::Test
{
protected:
    TestPlayback()
    {
        playback.SetArea(QSize(160, 96));
        QObject::connect(&playback, &KxPlayback::sigFrameChanged, &playback, [this](int frame) {
            shown.append(frame);
            EXPECT_EQ(playback.CurrentFrame(), frame);
            EXPECT_EQ(MadeVideo::ReadNumber(playback.Picture()->image), frame);
        });
    }

    void Open(const QString& path)
    {
        playback.Open(PlayerClip::Source(path), KxPlayback::After::Pause, KxPlayback::Position::Start);
    }

    bool AwaitFrame(int frame)
    {
        return QTest::qWaitFor(
            [&] {
                return playback.Picture() && playback.TargetFrame() == frame && !shown.isEmpty() &&
                       shown.last() == frame;
            },
            20000);
    }

    /// Advances the time in small steps until the frame is shown.
    bool PlayTo(int frame)
    {
        return QTest::qWaitFor([&] {
            now += FrameUs / 8;
            return playback.CurrentFrame() == frame;
        });
    }

    /// Waits until playback has read the clock again.
    bool AwaitLooks()
    {
        const int before = looks;
        return QTest::qWaitFor([&] { return looks >= before + 2; });
    }

    // The time changes only when a test changes it.
    std::atomic<qint64> now{0};
    std::atomic_int looks{0};
    QList<int> shown;
    KxPlayback playback{KxPlayback::Options{[this] {
                                                ++looks;
                                                return now.load();
                                            },
                                            {}}};
    QSignalSpy playing{&playback, &KxPlayback::sigPlayingChanged};
    QSignalSpy ended{&playback, &KxPlayback::sigReachedEnd};
    QSignalSpy failed{&playback, &KxPlayback::sigFailed};
};

} // namespace

TEST_F(TestPlayback, OpeningShowsTheFirstFrame)
{
    Open(PlayerClip::Numbered());
    EXPECT_FALSE(playback.Picture());
    EXPECT_EQ(playback.CurrentFrame(), 0);
    ASSERT_TRUE(AwaitFrame(0));
    EXPECT_EQ(shown, QList<int>{0});
    EXPECT_FALSE(playback.IsPlaying());
}

TEST_F(TestPlayback, OnlyTheNewestSeekShows)
{
    Open(PlayerClip::Numbered());
    ASSERT_TRUE(AwaitFrame(0));
    shown.clear();
    std::mt19937 random(7);
    for (int i = 0; i < 50; ++i) {
        playback.Seek(static_cast<int>(random() % 50));
    }
    playback.Seek(53);
    ASSERT_TRUE(AwaitFrame(53));
    EXPECT_EQ(shown, QList<int>{53});
}

TEST_F(TestPlayback, SeeksAreLimitedToTheSource)
{
    Open(PlayerClip::Numbered());
    playback.Seek(100000);
    ASSERT_TRUE(AwaitFrame(Last));
    playback.Seek(-3);
    ASSERT_TRUE(AwaitFrame(0));
}

TEST_F(TestPlayback, PlaysEachFrameAtItsTime)
{
    Open(PlayerClip::Numbered());
    ASSERT_TRUE(AwaitFrame(0));
    playback.Play();
    EXPECT_TRUE(playback.IsPlaying());
    qint64 firstAt = 0;
    for (int frame = 1; frame <= 20; ++frame) {
        ASSERT_TRUE(PlayTo(frame)) << playback.CurrentFrame();
        firstAt = frame == 1 ? now.load() : firstAt;
        EXPECT_NEAR(static_cast<double>(now - firstAt), static_cast<double>((frame - 1) * FrameUs), 0.75 * FrameUs);
    }
    EXPECT_EQ(shown.size(), 21);
    EXPECT_EQ(playback.DroppedFrames(), 0);
}

TEST_F(TestPlayback, APictureThatIsLateByAFrameIsShownAndTheDelayMadeUpFor)
{
    Open(PlayerClip::Numbered());
    ASSERT_TRUE(AwaitFrame(0));
    playback.Play();
    ASSERT_TRUE(PlayTo(1));
    // Frame 3 is due, and frame 2 has not been shown.
    now += 2 * FrameUs + FrameUs / 4;
    ASSERT_TRUE(QTest::qWaitFor([&] { return playback.CurrentFrame() != 1; }));
    EXPECT_EQ(playback.CurrentFrame(), 2);
    // Nobody could see it if the next one came at once.
    ASSERT_TRUE(AwaitLooks());
    EXPECT_EQ(playback.CurrentFrame(), 2);
    now += FrameUs / 2;
    ASSERT_TRUE(QTest::qWaitFor([&] { return playback.CurrentFrame() != 2; }));
    EXPECT_EQ(playback.CurrentFrame(), 3);
    ASSERT_TRUE(PlayTo(10));
    EXPECT_EQ(shown.size(), 11);
    EXPECT_EQ(playback.DroppedFrames(), 0);
}

TEST_F(TestPlayback, PicturesThatAreLaterAreDropped)
{
    Open(PlayerClip::Numbered());
    ASSERT_TRUE(AwaitFrame(0));
    playback.Play();
    ASSERT_TRUE(PlayTo(1));
    // Frame 4 is due, and frames 2 and 3 have not been shown.
    now += 3 * FrameUs + FrameUs / 4;
    ASSERT_TRUE(QTest::qWaitFor([&] { return playback.CurrentFrame() != 1; }));
    EXPECT_EQ(playback.CurrentFrame(), 4);
    EXPECT_EQ(playback.DroppedFrames(), 2);
}

TEST_F(TestPlayback, LatePicturesAreDroppedAndCounted)
{
    Open(PlayerClip::Numbered());
    ASSERT_TRUE(AwaitFrame(0));
    playback.Play();
    ASSERT_TRUE(QTest::qWaitFor([&] {
        now += FrameUs / 4;
        return playback.CurrentFrame() >= 1;
    }));
    const int from = playback.CurrentFrame();
    const int droppedBefore = playback.DroppedFrames();
    now += 20 * FrameUs;
    ASSERT_TRUE(QTest::qWaitFor([&] { return playback.CurrentFrame() != from; }));
    const int to = playback.CurrentFrame();
    EXPECT_EQ(playback.DroppedFrames() - droppedBefore, to - from - 1);
    EXPECT_GE(playback.DroppedFrames(), 1);
}

TEST_F(TestPlayback, EndsAtTheLastFrame)
{
    Open(PlayerClip::Numbered());
    playback.Seek(Last - 2);
    ASSERT_TRUE(AwaitFrame(Last - 2));
    playback.Play();
    ASSERT_TRUE(QTest::qWaitFor([&] {
        now += FrameUs / 4;
        return !ended.isEmpty();
    }));
    EXPECT_EQ(ended.size(), 1);
    EXPECT_EQ(playback.CurrentFrame(), Last);
    EXPECT_FALSE(playback.IsPlaying());
    EXPECT_EQ(playing.size(), 2);
}

TEST_F(TestPlayback, AJumpOfTheClockBeyondTheEndStillShowsTheLastFrame)
{
    Open(PlayerClip::Numbered());
    ASSERT_TRUE(AwaitFrame(0));
    playback.Play();
    ASSERT_TRUE(QTest::qWaitFor([&] {
        now += 100 * FrameUs;
        return !ended.isEmpty();
    }));
    EXPECT_EQ(shown.last(), Last);
    EXPECT_EQ(playback.CurrentFrame(), Last);
}

TEST_F(TestPlayback, PlayingAtTheEndStartsOver)
{
    Open(PlayerClip::Numbered());
    playback.Seek(Last);
    ASSERT_TRUE(AwaitFrame(Last));
    playback.Play();
    ASSERT_TRUE(AwaitFrame(0));
    EXPECT_TRUE(playback.IsPlaying());
}

TEST_F(TestPlayback, ASeekWhilePlayingGoesOnFromThere)
{
    Open(PlayerClip::Numbered());
    ASSERT_TRUE(AwaitFrame(0));
    playback.Play();
    playback.Seek(40);
    ASSERT_TRUE(AwaitFrame(40));
    EXPECT_EQ(shown, (QList<int>{0, 40}));
    ASSERT_TRUE(QTest::qWaitFor([&] {
        now += FrameUs / 4;
        return playback.CurrentFrame() == 42;
    }));
    EXPECT_TRUE(playback.IsPlaying());
}

TEST_F(TestPlayback, PauseKeepsTheFrame)
{
    Open(PlayerClip::Numbered());
    ASSERT_TRUE(AwaitFrame(0));
    playback.Play();
    ASSERT_TRUE(QTest::qWaitFor([&] {
        now += FrameUs / 4;
        return playback.CurrentFrame() >= 5;
    }));
    playback.Pause();
    const int frame = playback.CurrentFrame();
    now += 10 * FrameUs;
    EXPECT_EQ(playback.CurrentFrame(), frame);
    playback.Play();
    ASSERT_TRUE(QTest::qWaitFor([&] {
        now += FrameUs / 4;
        return playback.CurrentFrame() > frame;
    }));
    EXPECT_EQ(playback.CurrentFrame(), frame + 1);
}

TEST_F(TestPlayback, StepsFromTheFrameThatIsWanted)
{
    Open(PlayerClip::Numbered());
    ASSERT_TRUE(AwaitFrame(0));
    playback.Step(1);
    playback.Step(1);
    playback.Step(1);
    ASSERT_TRUE(AwaitFrame(3));
    playback.Step(-1);
    ASSERT_TRUE(AwaitFrame(2));
    playback.Step(-5);
    ASSERT_TRUE(AwaitFrame(0));
}

TEST_F(TestPlayback, SteppingAndStoppingPause)
{
    Open(PlayerClip::Numbered());
    ASSERT_TRUE(AwaitFrame(0));
    playback.Play();
    playback.Step(1);
    EXPECT_FALSE(playback.IsPlaying());
    ASSERT_TRUE(AwaitFrame(1));
    playback.Play();
    playback.Stop();
    EXPECT_FALSE(playback.IsPlaying());
    ASSERT_TRUE(AwaitFrame(0));
}

TEST_F(TestPlayback, TheOldPictureIsGoneWhenAnotherSourceOpens)
{
    Open(PlayerClip::Numbered());
    playback.Seek(30);
    ASSERT_TRUE(AwaitFrame(30));
    shown.clear();
    Open(PlayerClip::OneKeyFrame());
    EXPECT_FALSE(playback.Picture());
    EXPECT_EQ(playback.CurrentFrame(), 0);
    ASSERT_TRUE(AwaitFrame(0));
    EXPECT_EQ(shown, QList<int>{0});
}

TEST_F(TestPlayback, APositionCanBeKept)
{
    Open(PlayerClip::OneKeyFrame());
    playback.Seek(200);
    ASSERT_TRUE(AwaitFrame(200));
    playback.Open(PlayerClip::Source(PlayerClip::OneKeyFrame()), KxPlayback::After::Pause, KxPlayback::Position::Keep);
    EXPECT_FALSE(playback.Picture());
    EXPECT_EQ(playback.CurrentFrame(), 200);
    shown.clear();
    ASSERT_TRUE(AwaitFrame(200));
    // The position is limited to the last frame of a shorter source.
    playback.Open(PlayerClip::Source(PlayerClip::Numbered()), KxPlayback::After::Pause, KxPlayback::Position::Keep);
    ASSERT_TRUE(AwaitFrame(Last));
}

TEST_F(TestPlayback, PlayingContinuesInAnotherSourceUnlessPaused)
{
    Open(PlayerClip::Numbered());
    ASSERT_TRUE(AwaitFrame(0));
    playback.Play();
    playback.Open(PlayerClip::Source(PlayerClip::OneKeyFrame()), KxPlayback::After::GoOn, KxPlayback::Position::Start);
    EXPECT_TRUE(playback.IsPlaying());
    EXPECT_EQ(playing.size(), 1);
    Open(PlayerClip::Numbered());
    EXPECT_FALSE(playback.IsPlaying());
    EXPECT_EQ(playing.size(), 2);
}

TEST_F(TestPlayback, PlayingMayBeginBeforeThereIsAPicture)
{
    Open(PlayerClip::Numbered());
    playback.Play();
    ASSERT_TRUE(QTest::qWaitFor([&] {
        now += FrameUs / 8;
        return playback.CurrentFrame() >= 3;
    }));
    EXPECT_EQ(shown.first(), 0);
}

TEST_F(TestPlayback, ABrokenFileIsReported)
{
    auto source = std::make_shared<KxPlaySource>();
    source->path = PlayerClip::Broken();
    source->frameCount = 60;
    playback.Open(source, KxPlayback::After::Pause, KxPlayback::Position::Start);
    playback.Play();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !failed.isEmpty(); }));
    EXPECT_TRUE(failed[0][0].toString().contains(QStringLiteral("broken.mp4")));
    EXPECT_FALSE(playback.IsPlaying());
    EXPECT_TRUE(shown.isEmpty());
    // The next file can still be played.
    Open(PlayerClip::Numbered());
    EXPECT_TRUE(AwaitFrame(0));
    EXPECT_EQ(failed.size(), 1);
}

TEST_F(TestPlayback, AFailureTakesThePlaceOfThePictureUntilTheNextOne)
{
    const QString path = PlayerClip::Numbered() + QStringLiteral(".comes-back.mp4");
    ASSERT_TRUE(QFile::copy(PlayerClip::Numbered(), path));
    const auto source = PlayerClip::Source(path);
    QFile::remove(path);
    playback.Open(PlayerClip::Source(PlayerClip::Numbered()), KxPlayback::After::Pause, KxPlayback::Position::Start);
    playback.Seek(17);
    ASSERT_TRUE(AwaitFrame(17));
    playback.Open(source, KxPlayback::After::Pause, KxPlayback::Position::Keep);
    EXPECT_FALSE(playback.Failure());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !failed.isEmpty(); }));
    EXPECT_EQ(playback.Failure(), failed[0][0].toString());
    EXPECT_FALSE(playback.Picture());
    EXPECT_EQ(playback.CurrentFrame(), 17);
    // A resize does not try again.
    playback.SetArea(QSize(320, 192));
    // The message is shown until there is something else to show.
    ASSERT_TRUE(QFile::copy(PlayerClip::Numbered(), path));
    playback.Seek(18);
    EXPECT_TRUE(playback.Failure());
    ASSERT_TRUE(AwaitFrame(18));
    EXPECT_FALSE(playback.Failure());
    EXPECT_EQ(failed.size(), 1);
    QFile::remove(path);
}

TEST_F(TestPlayback, NothingHappensWhileNothingIsOpen)
{
    playback.Play();
    playback.Seek(3);
    playback.Step(1);
    playback.Stop();
    playback.Open(nullptr, KxPlayback::After::GoOn, KxPlayback::Position::Keep);
    EXPECT_FALSE(playback.IsPlaying());
    EXPECT_EQ(playback.CurrentFrame(), 0);
    EXPECT_TRUE(playing.isEmpty());
}

TEST_F(TestPlayback, ResizingWhilePausedMakesTheSameFrameAgain)
{
    Open(PlayerClip::Numbered());
    playback.Seek(20);
    ASSERT_TRUE(AwaitFrame(20));
    shown.clear();
    playback.SetArea(QSize(320, 192));
    EXPECT_EQ(playback.CurrentFrame(), 20);
    ASSERT_TRUE(QTest::qWaitFor([&] { return playback.Picture()->area == QSize(320, 192); }));
    EXPECT_EQ(MadeVideo::ReadNumber(playback.Picture()->image), 20);
    EXPECT_TRUE(shown.isEmpty());
}

TEST_F(TestPlayback, AfterResizingWhilePlayingThePauseMakesThePictureAgain)
{
    Open(PlayerClip::Numbered());
    ASSERT_TRUE(AwaitFrame(0));
    playback.Play();
    playback.SetArea(QSize(320, 192));
    playback.Pause();
    ASSERT_TRUE(QTest::qWaitFor([&] { return playback.Picture()->area == QSize(320, 192); }));
    EXPECT_EQ(MadeVideo::ReadNumber(playback.Picture()->image), playback.CurrentFrame());
}

TEST(KxPlayback, MayBeDeletedByASlotOfItsSignal)
{
    auto* playback = new KxPlayback({});
    bool isDeleted = false;
    QObject::connect(playback, &KxPlayback::sigFrameChanged, playback, [&] {
        delete playback;
        isDeleted = true;
    });
    playback->Open(PlayerClip::Source(PlayerClip::Numbered()), KxPlayback::After::Pause, KxPlayback::Position::Start);
    EXPECT_TRUE(QTest::qWaitFor([&] { return isDeleted; }));
}
