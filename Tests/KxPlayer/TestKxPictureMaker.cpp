#include <KxPlayer/KxPictureMaker.h>

#include <Tests/KxPlayer/PlayerClip.h>
#include <Tests/Support/MadeVideo.h>

#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

constexpr QSize Area{160, 96};
constexpr int LongLast = 299;

std::unique_ptr<KxPictureMaker> OpenLong()
{
    auto maker = KxPictureMaker::Open(PlayerClip::Source(PlayerClip::OneKeyFrame()), {});
    return maker ? std::move(*maker) : nullptr;
}

std::optional<int> NumberAt(KxPictureMaker& maker, int frame)
{
    KxPlayerPicture picture;
    const KxReadStatus status = maker.Make(frame, Area, picture);
    return status == KxReadStatus::Delivered ? MadeVideo::ReadNumber(picture.image) : std::nullopt;
}

/// Black and white columns, two pixels wide.
QString StripedClip()
{
    static const QTemporaryDir folder;
    MadeVideo::Recipe recipe;
    recipe.size = QSize(640, 360);
    recipe.frames = 2;
    recipe.draw = [](int) {
        QImage image(640, 360, QImage::Format_RGB888);
        for (int x = 0; x < image.width(); ++x) {
            QPainter(&image).fillRect(x, 0, 1, image.height(), x % 4 < 2 ? Qt::black : Qt::white);
        }
        return image;
    };
    const QString path = folder.filePath(QStringLiteral("striped.mp4"));
    EXPECT_TRUE(MadeVideo::Make(path, recipe));
    return path;
}

// Abandons the seek to the last frame. Returns how often the maker asked whether to abandon it.
int GiveUpAfter(KxPictureMaker& maker, int asks)
{
    int asked = 0;
    KxPlayerPicture picture;
    maker.GiveUpWhen([&] { return ++asked > asks; });
    EXPECT_EQ(maker.Make(LongLast, Area, picture), KxReadStatus::Cancelled);
    maker.GiveUpWhen({});
    return asked;
}

} // namespace

TEST(KxPictureMaker, ACropThatIsShownSmallerIsAveraged)
{
    KxPlaySource source = *PlayerClip::Source(StripedClip());
    KxCropPanZoomKeyFrameParam key;
    // From pixel 65 on, so that the nearest pixels of each shown one have one colour.
    key.cropRect = QRectF(65.0 / 640.0, 0.0, 0.8, 1.0);
    source.cropKeyFrames = {key};
    const auto maker = KxPictureMaker::Open(std::make_shared<const KxPlaySource>(source), {});
    ASSERT_TRUE(maker) << maker.Message().toStdString();
    KxPlayerPicture picture;
    ASSERT_EQ((*maker)->Make(0, QSize(80, 45), picture), KxReadStatus::Delivered);
    ASSERT_EQ(picture.image.size(), QSize(64, 45));
    for (int x = 1; x + 1 < picture.image.width(); ++x) {
        EXPECT_NEAR(qGray(picture.image.pixel(x, 20)), 127, 24) << x;
    }
}

TEST(KxPictureMaker, ALongSeekIsAbandonedAtTheNextPicture)
{
    const auto maker = OpenLong();
    ASSERT_TRUE(maker);
    for (const int asks : {0, 1, 10, 40}) {
        EXPECT_EQ(NumberAt(*maker, 0), 0);
        EXPECT_EQ(GiveUpAfter(*maker, asks), asks + 1);
    }
    EXPECT_EQ(NumberAt(*maker, LongLast), LongLast);
}

TEST(KxPictureMaker, AnAbandonedSeekChangesNoFrameNumber)
{
    const auto maker = OpenLong();
    ASSERT_TRUE(maker);
    // During a long seek some pictures, at most two of three, are skipped; so decoding has reached one of these frames.
    for (int asks = 1; asks <= 31; asks += 6) {
        for (int frame = asks; frame <= 3 * asks + 3; ++frame) {
            ASSERT_EQ(NumberAt(*maker, 0), 0);
            GiveUpAfter(*maker, asks);
            ASSERT_EQ(NumberAt(*maker, frame), frame) << "given up after " << asks;
        }
    }
}
