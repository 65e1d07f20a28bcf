#include <KxMedia/Read/KxVideoScanner.h>

#include <Tests/KxMedia/Read/ReadClips.h>
#include <Tests/Support/OpenedSound.h>
#include <Tests/Support/TestSystem.h>

#include <QFile>

#include <gtest/gtest.h>

using ReadClips::Path;
using ReadClips::Words;

namespace
{

constexpr int Frames = 100;

QString Clip(const QString& name, int firstNumber = 0)
{
    MadeVideo::Recipe recipe;
    recipe.frames = Frames;
    recipe.firstNumber = firstNumber;
    recipe.inputs = Words("-f lavfi -i sine=duration=4");
    recipe.output = Words("-c:v libx264 -g 12 -bf 2 -pix_fmt yuv420p -c:a aac");
    EXPECT_TRUE(MadeVideo::Make(Path(name), recipe));
    return Path(name);
}

QByteArray Contents(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

// In place: whoever has the file open reads the new bytes.
void Overwrite(const QString& path, qint64 position, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(position));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

using Change = void (*)(const QString& path);

void Truncate(const QString& path)
{
    ASSERT_TRUE(QFile::resize(path, QFile(path).size() / 3));
}

void Damage(const QString& path)
{
    Overwrite(path, QFile(path).size() / 4, QByteArray(static_cast<int>(QFile(path).size() / 2), 'x'));
}

void ReplaceByAnother(const QString& path)
{
    const QByteArray other = Contents(Clip(QStringLiteral("other.") + path.section(QLatin1Char('.'), -1), 1000));
    ASSERT_TRUE(QFile::resize(path, 0));
    Overwrite(path, 0, other);
}

void ExpectFailureAfter(const char* suffix, Change change)
{
    const QString path = Clip(QStringLiteral("shown.%1").arg(QLatin1String(suffix)));
    const std::unique_ptr<KxVideoReader> reader = ReadClips::OpenReader(path);
    const auto scanner = KxVideoScanner::Open(path, {});
    const auto sound = OpenedSound(path, 0, {});
    ASSERT_TRUE(reader != nullptr && scanner && sound);
    ASSERT_EQ(ReadClips::ReadNumber(*reader, 0), 0);
    ASSERT_FALSE(reader->FileHasChanged());

    change(path);
    KxVideoFrame picture;
    for (const qint64 frame : {Frames - 10, 30, 0}) {
        EXPECT_EQ(reader->Read(frame, picture), KxReadStatus::Failed) << frame;
    }
    EXPECT_TRUE(reader->FileHasChanged());
    EXPECT_EQ((*scanner)->Next(picture), KxReadStatus::Failed);
    EXPECT_TRUE((*scanner)->FileHasChanged());
    KxAudioBlock block;
    EXPECT_EQ((*sound)->Next(block), KxReadStatus::Failed);
}

} // namespace

TEST(KxChangedFile, FailsAfterTruncation)
{
    for (const char* suffix : {"mp4", "mkv", "ts"}) {
        SCOPED_TRACE(suffix);
        ExpectFailureAfter(suffix, &Truncate);
    }
}

TEST(KxChangedFile, FailsAfterModification)
{
    for (const char* suffix : {"mp4", "mkv", "ts"}) {
        SCOPED_TRACE(suffix);
        ExpectFailureAfter(suffix, &Damage);
    }
}

TEST(KxChangedFile, FailsAfterReplacement)
{
    for (const char* suffix : {"mp4", "mkv", "ts"}) {
        SCOPED_TRACE(suffix);
        ExpectFailureAfter(suffix, &ReplaceByAnother);
    }
}

TEST(KxChangedFile, AGrowingRecordingStaysReadable)
{
    const QString path = Clip(QStringLiteral("grows.ts"));
    const std::unique_ptr<KxVideoReader> reader = ReadClips::OpenReader(path);
    ASSERT_NE(reader, nullptr);
    Overwrite(path, QFile(path).size(), Contents(Clip(QStringLiteral("more.ts"), Frames)));
    EXPECT_EQ(ReadClips::ReadNumber(*reader, 50), 50);
    EXPECT_EQ(ReadClips::ReadNumber(*reader, 0), 0);
    EXPECT_FALSE(reader->FileHasChanged());
}

TEST(KxChangedFile, ADeletedFileStaysReadable)
{
    const QString path = Clip(QStringLiteral("deleted.mp4"));
    const std::unique_ptr<KxVideoReader> reader = ReadClips::OpenReader(path);
    ASSERT_NE(reader, nullptr);
    ASSERT_EQ(QFile::remove(path), TestSystem::RemovesOpenFiles());
    EXPECT_EQ(ReadClips::ReadNumber(*reader, 50), 50);
    EXPECT_EQ(ReadClips::ReadNumber(*reader, 3), 3);
}
