#include <KxPlayer/KxPicturePlace.h>
#include <Tests/KxPlayer/PlayerClip.h>
#include <Tests/KxWidgets/ShownToolTip.h>
#include <Tests/Support/MadeVideo.h>

#include <KxPlayer/IKxMediaPlayer.h>
#include <KxPlayer/KxMediaPlayerPresenter.h>
#include <KxPlayer/KxMediaPlayerWidget.h>
#include <KxWidgets/KxUIStyle.h>

#include <QFile>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <random>

namespace
{

constexpr int Last = PlayerClip::Frames - 1;

class TestMediaPlayer : public testing::Test
{
protected:
    TestMediaPlayer()
    {
        widget->resize(400, 240);
        widget->show();
        QObject::connect(&player, &KxMediaPlayerPresenter::sigFrameChanged, &player, [this](int frame) {
            EXPECT_EQ(player.currentFrame(), frame);
            EXPECT_EQ(PaintedNumber(), frame);
        });
    }

    QImage Painted() const { return widget->grab().toImage(); }
    std::optional<int> PaintedNumber() const
    {
        return MadeVideo::ReadNumber(Painted().copy(player.mediaPlayer()->videoRect()));
    }

    /// The bounding rectangle of the pixels that nearly have this colour.
    QRect Coloured(const QColor& colour) const
    {
        const QImage picture = Painted();
        QRect found;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor pixel = picture.pixelColor(x, y);
                const bool isAlike = std::abs(pixel.red() - colour.red()) < 40 &&
                                     std::abs(pixel.green() - colour.green()) < 40 &&
                                     std::abs(pixel.blue() - colour.blue()) < 40;
                found |= isAlike ? QRect(x, y, 1, 1) : QRect();
            }
        }
        return found;
    }

    void Open(const PlayerClip::Timeline& timeline) { player.openTimeline(timeline.get(), true, false); }

    // For tests that check the pictures themselves.
    void CheckNoPictures() { player.disconnect(&player); }

    bool Await(int frame)
    {
        return QTest::qWaitFor([&] { return !frames.isEmpty() && frames.last()[0] == frame; }, 20000);
    }

    std::unique_ptr<KxMediaPlayerWidget> widget{mediaPlayerFactory()->createPlayerWidget(nullptr)};
    KxMediaPlayerPresenter& player = *widget->getOrCreatePresenter();
    QSignalSpy frames{&player, &KxMediaPlayerPresenter::sigFrameChanged};
    QSignalSpy ended{&player, &KxMediaPlayerPresenter::sigReachedEnd};
    QSignalSpy failed{&player, &KxMediaPlayerPresenter::sigFailed};
};

} // namespace

TEST_F(TestMediaPlayer, IsEmptyAtFirst)
{
    EXPECT_EQ(widget->getOrCreatePresenter(), &player);
    EXPECT_FALSE(player.inPlaying());
    EXPECT_EQ(player.currentFrame(), 0);
    EXPECT_EQ(player.frameCount(), 0);
    EXPECT_EQ(player.mediaFrameRate(), 25.0F);
    EXPECT_EQ(player.mediaPlayer()->videoRect(), KxPicturePlace::In(QSize(400, 240), QSizeF(16, 9)));
    player.openTimeline(nullptr, true, false);
    EXPECT_EQ(player.frameCount(), 0);
}

TEST_F(TestMediaPlayer, FrameCountAndRateAreKnownAtOnce)
{
    QSignalSpy opened(&player, &KxMediaPlayerPresenter::sigTimelineOpened);
    Open(PlayerClip::Open(PlayerClip::Numbered()));
    EXPECT_EQ(opened.size(), 1);
    EXPECT_EQ(player.frameCount(), PlayerClip::Frames);
    EXPECT_EQ(player.mediaFrameRate(), 25.0F);
    EXPECT_EQ(player.mediaPlayer()->videoRect(), KxPicturePlace::In(QSize(400, 240), QSizeF(160, 96)));
    ASSERT_TRUE(Await(0));
}

TEST_F(TestMediaPlayer, EverySeekPaintsItsFrame)
{
    const auto timeline = PlayerClip::Open(PlayerClip::Numbered());
    Open(timeline);
    std::mt19937 random(3);
    for (int i = 0; i < 40; ++i) {
        const int frame = i == 0 ? Last : static_cast<int>(random() % PlayerClip::Frames);
        player.seek(frame, 0, 0);
        ASSERT_TRUE(Await(frame));
        EXPECT_EQ(PaintedNumber(), frame);
    }
}

TEST_F(TestMediaPlayer, OfManySeeksOnlyTheNewestShows)
{
    const auto timeline = PlayerClip::Open(PlayerClip::OneKeyFrame());
    Open(timeline);
    ASSERT_TRUE(Await(0));
    std::mt19937 random(4);
    for (int round = 0; round < 5; ++round) {
        frames.clear();
        for (int i = 0; i < 10; ++i) {
            player.seek(static_cast<int>(random() % 299), 0, 0);
        }
        player.seek(299, 0, 0);
        ASSERT_TRUE(Await(299));
        EXPECT_EQ(frames.size(), 1);
    }
}

TEST_F(TestMediaPlayer, PlaysToTheEndInRealTime)
{
    const auto timeline = PlayerClip::Open(PlayerClip::Numbered());
    Open(timeline);
    ASSERT_TRUE(Await(0));
    player.seek(20, 0, 0);
    ASSERT_TRUE(Await(20));
    frames.clear();
    player.play();
    EXPECT_TRUE(player.inPlaying());
    // The fixture checks every picture when it receives sigFrameChanged.
    ASSERT_TRUE(ended.wait(15000));
    EXPECT_FALSE(player.inPlaying());
    EXPECT_EQ(player.currentFrame(), Last);
    int before = 20;
    for (const QList<QVariant>& frame : frames) {
        EXPECT_GT(frame[0].toInt(), before);
        before = frame[0].toInt();
    }
    EXPECT_EQ(frames.size() + player.DroppedFrames(), Last - 20);
    player.play();
    EXPECT_TRUE(Await(0));
}

TEST_F(TestMediaPlayer, StopsAndSteps)
{
    const auto timeline = PlayerClip::Open(PlayerClip::Numbered());
    Open(timeline);
    player.seek(30, 0, 0);
    ASSERT_TRUE(Await(30));
    player.stepForward();
    ASSERT_TRUE(Await(31));
    EXPECT_EQ(PaintedNumber(), 31);
    player.stepBackward();
    player.stepBackward();
    ASSERT_TRUE(Await(29));
    EXPECT_EQ(PaintedNumber(), 29);
    player.play();
    player.stop();
    ASSERT_TRUE(Await(0));
    EXPECT_EQ(PaintedNumber(), 0);
    player.stepBackward();
    ASSERT_TRUE(QTest::qWaitFor([&] { return frames.size() >= 5; }));
    EXPECT_EQ(player.currentFrame(), 0);
    player.seek(Last, 0, 0);
    ASSERT_TRUE(Await(Last));
    player.stepForward();
    ASSERT_TRUE(Await(Last));
    EXPECT_EQ(PaintedNumber(), Last);
}

TEST_F(TestMediaPlayer, AppliesTheCropOfEachFrame)
{
    const auto timeline = PlayerClip::OpenMoving();
    Open(timeline);
    EXPECT_EQ(player.mediaPlayer()->videoRect(), KxPicturePlace::In(QSize(400, 240), QSizeF(100, 60)));
    for (const int frame : {0, 13, 30, 44, Last}) {
        player.seek(frame, 0, 0);
        ASSERT_TRUE(Await(frame));
        EXPECT_EQ(PaintedNumber(), frame);
    }
    frames.clear();
    player.seek(35, 0, 0);
    player.play();
    ASSERT_TRUE(ended.wait(15000));
    EXPECT_GT(frames.size(), 3);
}

TEST_F(TestMediaPlayer, SwitchesBetweenWholeAndCropped)
{
    const auto whole = PlayerClip::Open(PlayerClip::Moving());
    const auto cropped = PlayerClip::OpenMoving();
    CheckNoPictures();
    for (int round = 0; round < 5; ++round) {
        player.openTimeline(cropped.get(), true, false);
        EXPECT_EQ(player.currentFrame(), 0);
        EXPECT_EQ(Painted().pixel(200, 120), Painted().pixel(1, 1));
        player.seek(25, 0, 0);
        // The position is known before its picture is shown: the caller may switch once more.
        EXPECT_EQ(player.currentFrame(), 25);
        frames.clear();
        ASSERT_TRUE(Await(25));
        EXPECT_EQ(PaintedNumber(), 25);
        player.openTimeline(whole.get(), true, true);
        EXPECT_EQ(player.currentFrame(), 25);
        frames.clear();
        ASSERT_TRUE(Await(25));
        const QRect place = player.mediaPlayer()->videoRect();
        const QRectF number = PlayerClip::NumberAt(25);
        const QRectF inside(place.x() + number.x() * place.width(), place.y() + number.y() * place.height(),
                            number.width() * place.width(), number.height() * place.height());
        EXPECT_EQ(MadeVideo::ReadNumber(Painted().copy(inside.toRect())), 25);
    }
}

TEST_F(TestMediaPlayer, ThePictureIsInTheMiddleOfTheWidget)
{
    const auto timeline = PlayerClip::Open(PlayerClip::Numbered());
    Open(timeline);
    ASSERT_TRUE(Await(0));
    const QRect place = player.mediaPlayer()->videoRect();
    EXPECT_LE(std::abs(place.left() - (widget->width() - 1 - place.right())), 1);
    EXPECT_LE(std::abs(place.top() - (widget->height() - 1 - place.bottom())), 1);
    // It is surrounded by the style's background, not by black bars.
    EXPECT_EQ(Painted().pixelColor(place.left() - 2, 120), widget->palette().color(QPalette::Window));
}

TEST_F(TestMediaPlayer, AResizeStretchesThePictureAndThenMakesItAgain)
{
    const auto timeline = PlayerClip::Open(PlayerClip::Numbered());
    Open(timeline);
    player.seek(17, 0, 0);
    ASSERT_TRUE(Await(17));
    for (const QSize size : {QSize(800, 450), QSize(200, 300), QSize(1, 1), QSize(500, 100)}) {
        widget->resize(size);
        if (size.height() > 50) {
            EXPECT_EQ(PaintedNumber(), 17);
        }
    }
    // Made for this size: blocks have sharp edges.
    ASSERT_TRUE(QTest::qWaitFor([&] { return PaintedNumber() == 17; }));
    EXPECT_EQ(frames.last()[0], 17);
}

TEST_F(TestMediaPlayer, ABrokenOrMissingFileIsReported)
{
    const QString path = PlayerClip::Numbered() + QStringLiteral(".copy.mp4");
    QFile::copy(PlayerClip::Numbered(), path);
    const auto timeline = PlayerClip::Open(path);
    QFile::remove(path);
    Open(timeline);
    ASSERT_TRUE(failed.wait());
    EXPECT_TRUE(failed[0][0].toString().contains(QStringLiteral("numbered.mp4.copy.mp4")));
    EXPECT_TRUE(frames.isEmpty());
    QFile::copy(PlayerClip::Broken(), path);
    Open(timeline);
    ASSERT_TRUE(failed.wait());
    QFile::remove(path);
    const auto good = PlayerClip::Open(PlayerClip::Numbered());
    Open(good);
    ASSERT_TRUE(Await(0));
    EXPECT_EQ(failed.size(), 2);
}

TEST_F(TestMediaPlayer, AFileThatIsGoneIsReportedInThePlayer)
{
    // Nearly as long as a file system allows.
    const QString path = PlayerClip::Numbered() + QString(200, QLatin1Char('n')) + QStringLiteral(".mp4");
    ASSERT_TRUE(QFile::copy(PlayerClip::Numbered(), path));
    const auto timeline = PlayerClip::Open(path);
    QFile::remove(path);
    Open(timeline);
    ASSERT_TRUE(failed.wait());
    const QString message = failed[0][0].toString();
    const QRect text = Coloured(KxUIStyle::Colour(KxUIStyle::Role::Error));
    EXPECT_GT(text.width(), 200);
    EXPECT_GE(text.left(), 16);
    EXPECT_LE(std::abs(text.left() - (widget->width() - 1 - text.right())), 24);
    EXPECT_LE(std::abs(text.top() - (widget->height() - 1 - text.bottom())), 24);
    EXPECT_EQ(widget->accessibleDescription(), message);
    QHelpEvent hover(QEvent::ToolTip, QPoint(1, 1), widget->mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(widget.get(), &hover);
    EXPECT_EQ(ShownToolTip(), message);
    QToolTip::hideText();

    const auto good = PlayerClip::Open(PlayerClip::Numbered());
    Open(good);
    ASSERT_TRUE(Await(0));
    EXPECT_TRUE(Coloured(KxUIStyle::Colour(KxUIStyle::Role::Error)).isEmpty());
    EXPECT_EQ(widget->accessibleDescription(), QString());
}

TEST_F(TestMediaPlayer, AFileThatIsOverwrittenWhileShownShowsAnErrorAndNoOldPicture)
{
    const QString path = PlayerClip::Numbered() + QStringLiteral(".overwritten.mp4");
    ASSERT_TRUE(QFile::copy(PlayerClip::Numbered(), path));
    const auto timeline = PlayerClip::Open(path);
    Open(timeline);
    ASSERT_TRUE(Await(0));
    ASSERT_EQ(PaintedNumber(), 0);
    // In place: the player has the file open and reads the new bytes.
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QByteArray other(static_cast<int>(file.size() / 2), 'x');
    ASSERT_TRUE(file.seek(file.size() / 4) && file.write(other) == other.size());
    file.close();
    player.seek(Last, 0, 0);
    ASSERT_TRUE(failed.wait());
    EXPECT_EQ(PaintedNumber(), std::nullopt);
    EXPECT_FALSE(Coloured(KxUIStyle::Colour(KxUIStyle::Role::Error)).isEmpty());
    EXPECT_EQ(player.currentFrame(), Last);
    QFile::remove(path);
}

TEST_F(TestMediaPlayer, ATruncatedFileHoldsItsLastPicture)
{
    const auto timeline = PlayerClip::Open(PlayerClip::Truncated());
    CheckNoPictures();
    player.openTimeline(timeline.get(), true, false);
    player.seek(Last, 0, 0);
    ASSERT_TRUE(Await(Last));
    const auto number = PaintedNumber();
    ASSERT_TRUE(number);
    EXPECT_LT(*number, Last);
}

TEST_F(TestMediaPlayer, PlaysAFileWithSoundWithoutASoundDevice)
{
    const auto timeline = PlayerClip::Open(PlayerClip::WithSound());
    Open(timeline);
    ASSERT_TRUE(Await(0));
    player.play();
    EXPECT_TRUE(ended.wait(15000));
    EXPECT_EQ(player.currentFrame(), Last);
    EXPECT_TRUE(failed.isEmpty());
}

TEST(KxMediaPlayer, ClosesAtAnyMoment)
{
    const auto numbered = PlayerClip::Open(PlayerClip::Numbered());
    const auto longOne = PlayerClip::Open(PlayerClip::OneKeyFrame());
    const auto sound = PlayerClip::Open(PlayerClip::WithSound());
    for (int round = 0; round < 50; ++round) {
        QWidget parent;
        KxMediaPlayerWidget* widget = mediaPlayerFactory()->createPlayerWidget(&parent);
        KxMediaPlayerPresenter* player = widget->getOrCreatePresenter();
        player->openTimeline(round % 2 == 0 ? longOne.get() : sound.get(), true, false);
        if (round % 3 != 0) {
            player->seek(round % 60, 0, 0);
            player->play();
        }
        if (round % 5 > 1) {
            QSignalSpy frames(player, &KxMediaPlayerPresenter::sigFrameChanged);
            EXPECT_TRUE(frames.wait(10000));
        }
        if (round % 5 == 3) {
            player->openTimeline(numbered.get(), false, true);
        }
        if (round % 7 == 0) {
            player->openTimeline(nullptr, true, false);
        }
    }
}
