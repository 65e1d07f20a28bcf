#include <KxPlayer/KxPlayerEngine.h>

#include <Tests/KxPlayer/PlayerClip.h>
#include <Tests/Support/MadeVideo.h>

#include <gtest/gtest.h>

#include <future>
#include <random>
#include <stdexcept>

namespace
{

constexpr std::chrono::seconds Patience{30};

class TestEngine : public testing::Test
{
protected:
    // Checks the condition whenever the engine notifies, as the user interface does.
    bool WaitFor(const std::function<bool()>& isTrue)
    {
        std::unique_lock<std::mutex> lock(mutex);
        return notified.wait_for(lock, Patience, isTrue);
    }

    std::optional<KxPlayerPicture> Await(int frame)
    {
        std::optional<KxPlayerPicture> picture;
        WaitFor([&] {
            picture = engine.Take(frame);
            return picture.has_value();
        });
        return picture;
    }

    std::atomic<qint64> now{0};
    KxPlayerClock clock{[this] { return now.load(); }};
    std::mutex mutex;
    std::condition_variable notified;
    int timesNotified = 0;
    KxPlayerEngine engine{clock, [this] {
                              const std::lock_guard<std::mutex> lock(mutex);
                              ++timesNotified;
                              notified.notify_all();
                          }};
};

} // namespace

TEST_F(TestEngine, ShowsTheExactFrame)
{
    engine.Open(PlayerClip::Source(PlayerClip::Numbered()));
    engine.SetArea(QSize(320, 180), std::nullopt);
    for (const int frame : {0, 59, 30, 29, 1, 31, 12, 11}) {
        engine.Show(frame);
        const auto picture = Await(frame);
        ASSERT_TRUE(picture);
        EXPECT_EQ(picture->frame, frame);
        EXPECT_EQ(MadeVideo::ReadNumber(picture->image), frame);
        EXPECT_EQ(picture->image.size(), QSize(300, 180));
    }
}

TEST_F(TestEngine, CutsToTheCropOfEachFrame)
{
    engine.Open(KxPlaySource::Of(*PlayerClip::OpenMoving()));
    engine.SetArea(QSize(160, 90), std::nullopt);
    for (const int frame : {0, 1, 15, 30, 47, 59}) {
        engine.Show(frame);
        const auto picture = Await(frame);
        ASSERT_TRUE(picture);
        EXPECT_EQ(picture->image.size(), QSize(150, 90));
        EXPECT_EQ(MadeVideo::ReadNumber(picture->image), frame);
    }
}

TEST_F(TestEngine, NewestOrderWins)
{
    std::mt19937 random(1);
    engine.Open(PlayerClip::Source(PlayerClip::Numbered()));
    engine.SetArea(QSize(160, 96), std::nullopt);
    for (int round = 0; round < 30; ++round) {
        int last = 0;
        for (int i = 0; i < 20; ++i) {
            last = static_cast<int>(random() % PlayerClip::Frames);
            engine.Show(last);
            // If a picture can be taken now, it belongs to the newest order.
            EXPECT_EQ(engine.NextFrame().value_or(last), last);
        }
        const auto picture = Await(last);
        ASSERT_TRUE(picture);
        EXPECT_EQ(MadeVideo::ReadNumber(picture->image), last);
        EXPECT_FALSE(engine.Take(last));
    }
}

TEST_F(TestEngine, PlaysEveryFrameInOrderToTheEnd)
{
    engine.Open(PlayerClip::Source(PlayerClip::Numbered()));
    engine.SetArea(QSize(160, 96), std::nullopt);
    engine.Play(0);
    for (int frame = 0; frame < PlayerClip::Frames; ++frame) {
        const auto picture = Await(frame);
        ASSERT_TRUE(picture);
        EXPECT_EQ(MadeVideo::ReadNumber(picture->image), frame);
    }
    EXPECT_TRUE(engine.IsPrimed());
    EXPECT_FALSE(engine.NextFrame());
}

TEST_F(TestEngine, KeepsWhatWasMadeAhead)
{
    engine.Open(PlayerClip::Source(PlayerClip::Numbered()));
    engine.SetArea(QSize(160, 96), std::nullopt);
    engine.Play(5);
    ASSERT_TRUE(WaitFor([&] { return engine.IsPrimed(); }));
    engine.Hold();
    engine.Show(7);
    // Without waiting: it was ready.
    ASSERT_TRUE(engine.Take(7));
    engine.Play(8);
    EXPECT_EQ(engine.NextFrame(), 8);
    for (int frame = 8; frame < 20; ++frame) {
        const auto picture = Await(frame);
        ASSERT_TRUE(picture);
        EXPECT_EQ(MadeVideo::ReadNumber(picture->image), frame);
    }
}

TEST_F(TestEngine, SkipsLateFrames)
{
    engine.Open(PlayerClip::Source(PlayerClip::Numbered()));
    engine.SetArea(QSize(160, 96), std::nullopt);
    engine.Play(0);
    ASSERT_TRUE(WaitFor([&] { return engine.IsPrimed(); }));
    clock.Start(0);
    now += 40 * 40000;
    std::vector<int> taken;
    ASSERT_TRUE(WaitFor([&] {
        while (const std::optional<int> next = engine.NextFrame()) {
            taken.push_back(engine.Take(*next)->frame);
        }
        return taken.back() >= 45;
    }));
    // The pictures that were ready, and then those that are late by at most one frame.
    for (size_t i = 0; i < taken.size(); ++i) {
        EXPECT_TRUE(taken[i] == static_cast<int>(i) || taken[i] >= 39) << taken[i];
    }
    EXPECT_LT(taken.size(), 30U);
}

TEST_F(TestEngine, AFrameThatIsLateByOneIsStillMade)
{
    engine.Open(PlayerClip::Source(PlayerClip::Numbered()));
    engine.SetArea(QSize(160, 96), std::nullopt);
    engine.Play(0);
    // The engine waits for room, so it begins the next picture at a known time.
    ASSERT_TRUE(WaitFor([&] { return timesNotified == 12; }));
    clock.Start(0);
    now += 13 * 40000;
    EXPECT_EQ(engine.TakeUpTo(13)->frame, 11);
    ASSERT_TRUE(WaitFor([&] { return timesNotified == 24; }));
    EXPECT_EQ(engine.NextFrame(), 12);
    now += 13 * 40000;
    EXPECT_EQ(engine.TakeUpTo(26)->frame, 23);
    ASSERT_TRUE(WaitFor([&] { return timesNotified == 36; }));
    EXPECT_GE(*engine.NextFrame(), 26);
}

TEST_F(TestEngine, MakesAsManyPicturesAheadAsItsMemoryHolds)
{
    EXPECT_EQ(KxPlayerEngine::PicturesAhead(QSize(1, 1)), 12U);
    EXPECT_EQ(KxPlayerEngine::PicturesAhead(QSize(960, 540)), 12U);
    EXPECT_EQ(KxPlayerEngine::PicturesAhead(QSize(1920, 1080)), 8U);
    EXPECT_EQ(KxPlayerEngine::PicturesAhead(QSize(3840, 2160)), 6U);
    engine.Open(PlayerClip::Source(PlayerClip::Numbered()));
    engine.SetArea(QSize(160, 96), std::nullopt);
    engine.Play(0);
    // No picture is taken meanwhile.
    ASSERT_TRUE(WaitFor([&] { return timesNotified == 12; }));
    engine.Hold();
    for (int frame = 0; frame < 12; ++frame) {
        EXPECT_TRUE(engine.Take(frame)) << frame;
    }
}

TEST_F(TestEngine, OrdersInTheMiddleOfALongReadGetTheirExactFrame)
{
    const auto source = PlayerClip::Source(PlayerClip::OneKeyFrame());
    engine.Open(source);
    engine.SetArea(QSize(160, 96), std::nullopt);
    // Each order may interrupt the previous one at any point of decoding.
    std::mt19937 random(3);
    for (int round = 0; round < 40; ++round) {
        engine.Show(299);
        const int frame = static_cast<int>(random() % 299);
        engine.Show(frame);
        const auto picture = Await(frame);
        ASSERT_TRUE(picture);
        EXPECT_EQ(MadeVideo::ReadNumber(picture->image), frame);
    }
}

TEST_F(TestEngine, AStillFrameIsMadeAgainInAnotherSize)
{
    engine.Open(PlayerClip::Source(PlayerClip::Numbered()));
    engine.SetArea(QSize(160, 96), std::nullopt);
    engine.Show(9);
    ASSERT_TRUE(Await(9));
    engine.SetArea(QSize(320, 180), 9);
    const auto picture = Await(9);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->area, QSize(320, 180));
    EXPECT_EQ(MadeVideo::ReadNumber(picture->image), 9);
}

TEST_F(TestEngine, HoldsTheLastPictureOfATruncatedFile)
{
    engine.Open(PlayerClip::Source(PlayerClip::Truncated()));
    engine.SetArea(QSize(160, 96), std::nullopt);
    engine.Show(PlayerClip::Frames - 1);
    const auto picture = Await(PlayerClip::Frames - 1);
    ASSERT_TRUE(picture);
    const auto number = MadeVideo::ReadNumber(picture->image);
    ASSERT_TRUE(number);
    EXPECT_GT(*number, 5);
    EXPECT_LT(*number, PlayerClip::Frames - 1);
}

TEST_F(TestEngine, ReportsWhyAFileCannotBeShown)
{
    auto source = std::make_shared<KxPlaySource>();
    source->path = PlayerClip::Broken();
    source->frameCount = 60;
    engine.Open(source);
    engine.Show(0);
    std::optional<QString> failure;
    ASSERT_TRUE(WaitFor([&] {
        failure = engine.TakeFailure();
        return failure.has_value();
    }));
    EXPECT_TRUE(failure->contains(QStringLiteral("broken.mp4"))) << failure->toStdString();
    EXPECT_FALSE(engine.TakeFailure());
}

TEST_F(TestEngine, AnotherSourceReplacesTheFirst)
{
    engine.Open(PlayerClip::Source(PlayerClip::Numbered()));
    engine.SetArea(QSize(160, 96), std::nullopt);
    engine.Play(0);
    ASSERT_TRUE(WaitFor([&] { return engine.IsPrimed(); }));
    engine.Open(PlayerClip::Source(PlayerClip::OneKeyFrame()));
    EXPECT_FALSE(engine.NextFrame());
    engine.Show(250);
    const auto picture = Await(250);
    ASSERT_TRUE(picture);
    EXPECT_EQ(MadeVideo::ReadNumber(picture->image), 250);
    engine.Open(nullptr);
    EXPECT_FALSE(engine.NextFrame());
}

TEST(KxPlayerEngine, AnExceptionOnTheDecodingThreadIsReportedAfterThePicturesBeforeIt)
{
    const KxPlayerClock clock;
    std::atomic_int calls{0};
    std::promise<void> reported;
    std::promise<void> triedAgain;
    // Foreign code throws on the decoding thread, after the fourth picture.
    KxPlayerEngine engine(clock, [&] {
        const int call = ++calls;
        if (call == 4) {
            throw std::runtime_error("the decoder broke");
        }
        if (call == 5) {
            reported.set_value();
        }
        if (call == 6) {
            triedAgain.set_value();
        }
    });
    engine.Open(PlayerClip::Source(PlayerClip::Numbered()));
    engine.SetArea(QSize(160, 96), std::nullopt);
    engine.Play(0);
    ASSERT_EQ(reported.get_future().wait_for(Patience), std::future_status::ready);
    // Playback can begin although fewer pictures are ready than usual.
    EXPECT_TRUE(engine.IsPrimed());
    for (int frame = 0; frame < 4; ++frame) {
        EXPECT_FALSE(engine.TakeFailure());
        ASSERT_TRUE(engine.Take(frame));
    }
    EXPECT_TRUE(engine.HasFailed());
    EXPECT_EQ(engine.TakeFailure(), QStringLiteral("Cannot show numbered.mp4: the decoder broke."));
    EXPECT_FALSE(engine.TakeFailure());
    // The next order tries the file again.
    engine.Play(7);
    ASSERT_EQ(triedAgain.get_future().wait_for(Patience), std::future_status::ready);
    EXPECT_FALSE(engine.HasFailed());
    EXPECT_EQ(MadeVideo::ReadNumber(engine.Take(7)->image), 7);
}

TEST(KxPlayerEngine, IsDestroyedAtAnyMoment)
{
    const auto source = PlayerClip::Source(PlayerClip::OneKeyFrame());
    const KxPlayerClock clock;
    for (int round = 0; round < 50; ++round) {
        std::mutex mutex;
        std::condition_variable notified;
        int timesNotified = 0;
        KxPlayerEngine engine(clock, [&] {
            const std::lock_guard<std::mutex> lock(mutex);
            ++timesNotified;
            notified.notify_all();
        });
        engine.Open(source);
        if (round % 3 == 0) {
            engine.Play(0);
        } else if (round % 3 == 1) {
            engine.Show(299);
        }
        // At once, or while a later picture is decoded.
        if (round % 6 == 0) {
            std::unique_lock<std::mutex> lock(mutex);
            EXPECT_TRUE(notified.wait_for(lock, Patience, [&] { return timesNotified > round / 6; }));
        }
    }
}
