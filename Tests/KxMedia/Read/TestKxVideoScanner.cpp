#include <KxMedia/Read/KxVideoScanner.h>

#include <Tests/KxMedia/Read/ReadClips.h>

#include <QFile>

#include <gtest/gtest.h>

using ReadClips::Path;
using ReadClips::Words;

namespace
{

struct Scan {
    std::vector<qint64> indices;
    std::vector<int> numbers;
    bool hasEndedEarly = false;
    qint64 frameCount = 0;

    qint64 LargestHole() const
    {
        qint64 largest = indices.empty() ? frameCount : std::max(indices.front(), frameCount - 1 - indices.back());
        for (size_t i = 1; i < indices.size(); ++i) {
            largest = std::max(largest, indices[i] - indices[i - 1]);
        }
        return largest;
    }
};

QString Made(const char* name, int frames, const char* output, const char* rate = "25")
{
    MadeVideo::Recipe recipe;
    recipe.size = {96, 64};
    recipe.frames = frames;
    recipe.rate = QLatin1String(rate);
    recipe.output = Words(output);
    MadeVideo::Make(Path(QLatin1String(name)), recipe);
    return Path(QLatin1String(name));
}

Scan ScanOf(const QString& path, qint64 skippedTo = 0)
{
    Scan scan;
    const auto scanner = KxVideoScanner::Open(path, KxCancelToken());
    if (!scanner) {
        ADD_FAILURE() << scanner.Message().toStdString();
        return scan;
    }
    scan.frameCount = (*scanner)->Facts().video->frameCount;
    (*scanner)->SkipTo(skippedTo);
    KxVideoFrame picture;
    while ((*scanner)->Next(picture) == KxReadStatus::Delivered) {
        EXPECT_TRUE(scan.indices.empty() || picture.Index() > scan.indices.back());
        scan.indices.push_back(picture.Index());
        scan.numbers.push_back(ReadClips::NumberOf(picture));
    }
    scan.hasEndedEarly = (*scanner)->EndedEarly();
    return scan;
}

void ExpectNumbersMatch(const Scan& scan)
{
    for (size_t i = 0; i < scan.indices.size(); ++i) {
        EXPECT_EQ(scan.numbers[i], scan.indices[i]);
    }
}

} // namespace

TEST(KxVideoScanner, SkipsNonReferencePictures)
{
    const Scan scan = ScanOf(Made("bframes.mp4", 150, "-c:v libx264 -g 30 -bf 3 -b_strategy 0 -pix_fmt yuv420p"));
    ExpectNumbersMatch(scan);
    EXPECT_EQ(scan.indices.front(), 0);
    EXPECT_GT(scan.indices.at(1), 1) << "from the first packet on, however many threads fill";
    EXPECT_LT(scan.indices.size(), 110U);
    EXPECT_GT(scan.indices.size(), 40U);
    EXPECT_LE(scan.LargestHole(), 6);
    EXPECT_FALSE(scan.hasEndedEarly);
}

TEST(KxVideoScanner, AVideoOfALowRateIsDecodedWhole)
{
    const char* const everySecondIsNoReference = "-c:v libx264 -g 30 -bf 1 -b_strategy 0 -pix_fmt yuv420p";
    const Scan slow = ScanOf(Made("slow.mp4", 60, everySecondIsNoReference, "10"));
    ExpectNumbersMatch(slow);
    EXPECT_EQ(slow.indices.size(), 60U);
    const Scan usual = ScanOf(Made("usual.mp4", 60, everySecondIsNoReference, "20"));
    ExpectNumbersMatch(usual);
    EXPECT_LT(usual.indices.size(), 45U);
}

TEST(KxVideoScanner, DeliversEveryPictureIfAllAreReferences)
{
    const Scan scan = ScanOf(Made("pframes.mp4", 60, "-c:v libx264 -g 30 -bf 0 -pix_fmt yuv420p"));
    ExpectNumbersMatch(scan);
    EXPECT_EQ(scan.indices.size(), 60U);
}

TEST(KxVideoScanner, KeepsPositionsWithoutPresentationTimes)
{
    for (const char* name : {"scanned.avi", "scanned.h264"}) {
        const Scan scan = ScanOf(Made(name, 60, "-c:v libx264 -g 12 -bf 2 -pix_fmt yuv420p"));
        ExpectNumbersMatch(scan);
        EXPECT_EQ(scan.indices.size(), 60U) << name;
    }
}

TEST(KxVideoScanner, LeavesNoLongGapsInAStreamOfNonReferencePictures)
{
    const Scan scan = ScanOf(Made("unneeded.mp4", 100, "-c:v mpeg2video -g 100 -bf 10 -b_strategy 0 -q:v 3"));
    ExpectNumbersMatch(scan);
    EXPECT_LE(scan.LargestHole(), 12);
    EXPECT_GT(scan.indices.size(), 80U);
}

TEST(KxVideoScanner, SkippedAheadItBeginsAtAKeyFrameASecondBefore)
{
    const QString path = Made("ahead.mp4", 150, "-c:v libx264 -g 30 -bf 2 -sc_threshold 0 -pix_fmt yuv420p");
    for (const int frame : {20, 60, 100}) {
        const Scan scan = ScanOf(path, frame);
        ExpectNumbersMatch(scan);
        ASSERT_GT(scan.indices.size(), 10U);
        EXPECT_EQ(scan.indices.front(), frame == 100 ? 60 : frame == 60 ? 30 : 0) << frame;
        EXPECT_GT(scan.indices.back(), 140);
    }
}

TEST(KxVideoScanner, ReportsATruncatedFile)
{
    const QString whole = Made("scancut.mp4", 200, "-c:v libx264 -g 12 -bf 2 -pix_fmt yuv420p -movflags +faststart");
    QFile file(whole);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.resize(file.size() * 6 / 10));
    const Scan scan = ScanOf(whole);
    EXPECT_EQ(scan.frameCount, 200);
    EXPECT_TRUE(scan.hasEndedEarly);
    EXPECT_GT(scan.indices.size(), 20U);
}

TEST(KxVideoScanner, StopsWhenCancelled)
{
    KxCancelToken cancel;
    const auto scanner = KxVideoScanner::Open(Made("stopped.mp4", 60, "-c:v libx264 -pix_fmt yuv420p"), cancel);
    ASSERT_TRUE(scanner);
    KxVideoFrame picture;
    EXPECT_EQ((*scanner)->Next(picture), KxReadStatus::Delivered);
    cancel.Cancel();
    // Pictures inside the decoder may still be delivered.
    KxReadStatus status = KxReadStatus::Delivered;
    for (int i = 0; i < 10 && status == KxReadStatus::Delivered; ++i) {
        status = (*scanner)->Next(picture);
    }
    EXPECT_EQ(status, KxReadStatus::Cancelled);
    EXPECT_FALSE((*scanner)->EndedEarly());
}
