#include <KxMedia/Container/KxMatroskaAttachments.h>

#include <Tests/KxMedia/Read/ReadClips.h>
#include <Tests/Support/TestSystem.h>

#include <QBuffer>
#include <QFile>

#include <gtest/gtest.h>

using ReadClips::Path;
using ReadClips::Words;

namespace
{

constexpr qint64 MegaByte = 1024 * 1024;

qint64 PeakMegaBytes()
{
    return TestSystem::PeakMemoryBytes() / MegaByte;
}

} // namespace

TEST(KxMediaMemory, ALargeAttachmentIsNotHeldInMemory)
{
    QFile font(Path(QStringLiteral("font.bin")));
    ASSERT_TRUE(font.open(QIODevice::WriteOnly) && font.write(QByteArray(100 * MegaByte, 'f')) > 0);
    font.close();
    MadeVideo::Recipe recipe;
    recipe.frames = 20;
    recipe.output = Words("-c:v libx264 -pix_fmt yuv420p -attach") << font.fileName();
    recipe.output += Words("-metadata:s:t mimetype=application/octet-stream");
    const QString path = Path(QStringLiteral("attached.mkv"));
    ASSERT_TRUE(MadeVideo::Make(path, recipe));
    ASSERT_GT(QFile(path).size(), 100 * MegaByte);

    const qint64 before = PeakMegaBytes();
    const std::unique_ptr<KxVideoReader> reader = ReadClips::OpenReader(path);
    ASSERT_NE(reader, nullptr);
    EXPECT_EQ(ReadClips::ReadNumber(*reader, 19), 19);
    EXPECT_EQ(ReadClips::ReadNumber(*reader, 3), 3);
    EXPECT_LT(PeakMegaBytes() - before, 50);
}

TEST(KxLargeAttachments, AreFoundInFrontOfTheClustersAndThroughTheIndex)
{
    const QByteArray header = QByteArray::fromHex("1a45dfa3"
                                                  "80");
    const QByteArray segment = QByteArray::fromHex("18538067"
                                                   "01ffffffffffffff");
    const QByteArray attachments = QByteArray::fromHex("1941a469"
                                                       "4064") +
                                   QByteArray(100, 'a');
    const QByteArray cluster = QByteArray::fromHex("1f43b675"
                                                   "8a") +
                               QByteArray(10, 'c');
    // Seek: SeekID of the attachments, SeekPosition behind the cluster.
    const QByteArray seekHead = QByteArray::fromHex("114d9b74"
                                                    "8e"
                                                    "4dbb"
                                                    "8b"
                                                    "53ab"
                                                    "84"
                                                    "1941a469"
                                                    "53ac"
                                                    "81"
                                                    "22");
    const qint64 begin = header.size() + segment.size();
    const auto found = [](QByteArray bytes, qint64 largest) {
        QBuffer buffer(&bytes);
        EXPECT_TRUE(buffer.open(QIODevice::ReadOnly));
        return KxLargeAttachments(buffer, largest);
    };

    EXPECT_EQ(found(header + segment + attachments + cluster, 99), std::vector<qint64>{begin});
    EXPECT_EQ(found(header + segment + attachments + cluster, 100), std::vector<qint64>());
    const QByteArray indexed = header + segment + seekHead + cluster + attachments;
    EXPECT_EQ(found(indexed, 50), std::vector<qint64>{begin + 34});
    EXPECT_EQ(found(header + segment + cluster + attachments, 50), std::vector<qint64>());
    EXPECT_EQ(found(QByteArray("RIFF____AVI "), 0), std::vector<qint64>());
    for (int length = 0; length < indexed.size(); ++length) {
        found(indexed.left(length), 0);
    }
}
