#include <KxMediaLibrary/KxThumbnailer.h>
#include <Tests/Support/MadeVideo.h>

#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <future>
#include <memory>
#include <new>

namespace
{

constexpr int WaitMs = 60000;
constexpr int FrameCount = 40;

class KxThumbnailerTest : public testing::Test
{
protected:
    QString Clip(const QString& name, const MadeVideo::Recipe& recipe)
    {
        const QString path = folder.filePath(name);
        EXPECT_TRUE(MadeVideo::Make(path, recipe));
        return path;
    }

    QString NumberedClip()
    {
        MadeVideo::Recipe recipe;
        recipe.frames = FrameCount;
        return Clip(QStringLiteral("numbered.mp4"), recipe);
    }

    /// Waits until `count` requests have been answered.
    bool WaitForAnswers(int count)
    {
        return QTest::qWaitFor([this, count] { return ready.count() + failed.count() >= count; }, WaitMs);
    }

    QTemporaryDir folder;
    std::unique_ptr<KxThumbnailer> thumbnailer = std::make_unique<KxThumbnailer>();
    QSignalSpy ready{thumbnailer.get(), &KxThumbnailer::sigReady};
    QSignalSpy failed{thumbnailer.get(), &KxThumbnailer::sigFailed};
};

} // namespace

TEST_F(KxThumbnailerTest, APictureFitsIntoTheRoom)
{
    const quint64 request = thumbnailer->Request(NumberedClip(), QSize(100, 100));
    EXPECT_EQ(ready.count(), 0);
    ASSERT_TRUE(WaitForAnswers(1));
    ASSERT_EQ(ready.count(), 1);
    EXPECT_EQ(ready.at(0).at(0).toULongLong(), request);
    const auto picture = ready.at(0).at(1).value<QImage>();
    EXPECT_EQ(picture.size(), QSize(100, 60));
    EXPECT_EQ(MadeVideo::ReadNumber(picture), FrameCount / 10);
}

TEST_F(KxThumbnailerTest, APictureIsNeverEnlarged)
{
    thumbnailer->Request(NumberedClip(), QSize(1000, 1000));
    ASSERT_TRUE(WaitForAnswers(1));
    ASSERT_EQ(ready.count(), 1);
    EXPECT_EQ(ready.at(0).at(1).value<QImage>().size(), QSize(160, 96));
}

TEST_F(KxThumbnailerTest, ABlackOrWhiteBeginningIsSkipped)
{
    MadeVideo::Recipe recipe;
    recipe.frames = FrameCount;
    for (const Qt::GlobalColor colour : {Qt::black, Qt::white}) {
        recipe.draw = [&recipe, colour](int number) {
            QImage plain(recipe.size, QImage::Format_RGB888);
            plain.fill(colour);
            return number < 8 ? plain : MadeVideo::Draw(number, recipe.size);
        };
        thumbnailer->Request(Clip(QStringLiteral("fade%1.mp4").arg(colour), recipe), QSize(160, 96));
        ASSERT_TRUE(WaitForAnswers(1));
        ASSERT_EQ(ready.count(), 1);
        EXPECT_EQ(MadeVideo::ReadNumber(ready.takeFirst().at(1).value<QImage>()), FrameCount * 35 / 100);
    }
}

TEST_F(KxThumbnailerTest, APictureNeedsAContrastOf24GreyLevels)
{
    MadeVideo::Recipe recipe;
    recipe.frames = FrameCount;
    recipe.output = QStringList{QStringLiteral("-c:v"), QStringLiteral("libx264"),  QStringLiteral("-qp"),
                                QStringLiteral("0"),    QStringLiteral("-pix_fmt"), QStringLiteral("yuv420p")};
    for (const int contrast : {23, 24}) {
        recipe.draw = [&recipe, contrast](int number) {
            if (number >= FrameCount * 35 / 100) {
                return MadeVideo::Draw(number, recipe.size);
            }
            QImage faint(recipe.size, QImage::Format_RGB888);
            faint.fill(Qt::black);
            QPainter(&faint).fillRect(0, 0, 80, 96, QColor(contrast, contrast, contrast));
            return faint;
        };
        thumbnailer->Request(Clip(QStringLiteral("%1.mp4").arg(contrast), recipe), QSize(160, 96));
        ASSERT_TRUE(WaitForAnswers(1));
        ASSERT_EQ(ready.count(), 1);
        const auto picture = ready.takeFirst().at(1).value<QImage>();
        if (contrast < 24) {
            EXPECT_EQ(MadeVideo::ReadNumber(picture), FrameCount * 35 / 100);
        } else {
            EXPECT_EQ(qGray(picture.pixel(20, 48)) - qGray(picture.pixel(140, 48)), 24);
        }
    }
}

TEST_F(KxThumbnailerTest, ABlackVideoIsShownBlack)
{
    MadeVideo::Recipe recipe;
    recipe.frames = 10;
    recipe.draw = [&recipe](int) {
        QImage black(recipe.size, QImage::Format_RGB888);
        black.fill(Qt::black);
        return black;
    };
    thumbnailer->Request(Clip(QStringLiteral("black.mp4"), recipe), QSize(160, 96));
    ASSERT_TRUE(WaitForAnswers(1));
    ASSERT_EQ(ready.count(), 1);
    EXPECT_LT(qGray(ready.at(0).at(1).value<QImage>().pixel(80, 48)), 24);
}

TEST_F(KxThumbnailerTest, AFailureNamesTheFileAndTheReason)
{
    const quint64 request = thumbnailer->Request(folder.path(), QSize(100, 100));
    ASSERT_TRUE(WaitForAnswers(1));
    ASSERT_EQ(failed.count(), 1);
    EXPECT_EQ(failed.at(0).at(0).toULongLong(), request);
    EXPECT_TRUE(failed.at(0).at(1).toString().endsWith(QStringLiteral(": it is a folder.")))
        << failed.at(0).at(1).toString().toStdString();
}

TEST_F(KxThumbnailerTest, ASoundFileHasNoPicture)
{
    const QString path = folder.filePath(QStringLiteral("tone.wav"));
    ASSERT_TRUE(MadeVideo::RunFfmpeg({QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                                      QStringLiteral("sine=frequency=440:duration=1"), path}));
    thumbnailer->Request(path, QSize(100, 100));
    ASSERT_TRUE(WaitForAnswers(1));
    EXPECT_EQ(failed.count(), 1);
}

TEST(KxThumbnailer, TheNewestRequestIsServedFirst)
{
    std::promise<void> isBusy;
    std::promise<void> mayGoOn;
    QStringList made;
    KxThumbnailer thumbnailer([&](const QString& path, const QSize&, const KxCancelToken&) {
        if (path == QLatin1String("first")) {
            isBusy.set_value();
            mayGoOn.get_future().wait();
        }
        made += path;
        return KxResult<QImage>(QImage(1, 1, QImage::Format_RGB32));
    });
    QSignalSpy ready(&thumbnailer, &KxThumbnailer::sigReady);
    thumbnailer.Request(QStringLiteral("first"), QSize(1, 1));
    isBusy.get_future().wait();
    for (const char* const path : {"a", "b", "c"}) {
        thumbnailer.Request(QLatin1String(path), QSize(1, 1));
    }
    mayGoOn.set_value();
    ASSERT_TRUE(QTest::qWaitFor([&] { return ready.count() == 4; }, WaitMs));
    EXPECT_EQ(made,
              (QStringList{QStringLiteral("first"), QStringLiteral("c"), QStringLiteral("b"), QStringLiteral("a")}));
}

TEST(KxThumbnailer, AnExceptionIsReportedAsAFailure)
{
    KxThumbnailer thumbnailer(
        [](const QString&, const QSize&, const KxCancelToken&) -> KxResult<QImage> { throw std::bad_alloc(); });
    QSignalSpy failed(&thumbnailer, &KxThumbnailer::sigFailed);
    thumbnailer.Request(QStringLiteral("/clips/50%1.mp4"), QSize(1, 1));
    ASSERT_TRUE(failed.wait(WaitMs));
    EXPECT_EQ(failed.at(0).at(1).toString(), QStringLiteral("Cannot show 50%1.mp4: memory ran out."));
}

TEST_F(KxThumbnailerTest, ACancelledRequestIsNeverAnswered)
{
    const QString path = NumberedClip();
    const quint64 first = thumbnailer->Request(path, QSize(40, 40));
    const quint64 second = thumbnailer->Request(path, QSize(40, 40));
    thumbnailer->Cancel(first);
    thumbnailer->Cancel(first);
    thumbnailer->Cancel(99);
    ASSERT_TRUE(WaitForAnswers(1));
    EXPECT_EQ(ready.at(0).at(0).toULongLong(), second);
    thumbnailer->Request(path, QSize(40, 40));
    thumbnailer->Request(path, QSize(40, 40));
    thumbnailer->CancelAll();
    const quint64 last = thumbnailer->Request(path, QSize(40, 40));
    ASSERT_TRUE(WaitForAnswers(2));
    EXPECT_EQ(ready.at(1).at(0).toULongLong(), last);
    thumbnailer.reset();
    EXPECT_EQ(ready.count() + failed.count(), 2);
}

TEST(KxThumbnailer, AnAnswerThatWasNotDeliveredYetIsDroppedByACancel)
{
    for (const bool all : {false, true}) {
        std::promise<void> secondBegins;
        int begun = 0;
        KxThumbnailer thumbnailer([&](const QString&, const QSize&, const KxCancelToken&) -> KxResult<QImage> {
            // One after the other on one thread: when the second one begins, the first answer is on its way.
            if (++begun == 2) {
                secondBegins.set_value();
            }
            return QImage(1, 1, QImage::Format_RGB32);
        });
        QSignalSpy ready(&thumbnailer, &KxThumbnailer::sigReady);
        const quint64 one = thumbnailer.Request(QStringLiteral("one"), QSize(1, 1));
        const quint64 other = thumbnailer.Request(QStringLiteral("other"), QSize(1, 1));
        secondBegins.get_future().wait();
        if (all) {
            thumbnailer.CancelAll();
        } else {
            thumbnailer.Cancel(one);
            thumbnailer.Cancel(other);
        }
        QCoreApplication::sendPostedEvents(&thumbnailer);
        EXPECT_EQ(ready.count(), 0);
    }
}

TEST_F(KxThumbnailerTest, CanBeDestroyedWhileItWorks)
{
    const QString path = NumberedClip();
    for (int n = 0; n < 20; ++n) {
        thumbnailer->Request(path, QSize(40, 40));
    }
    thumbnailer.reset();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(ready.count() + failed.count(), 0);
}
