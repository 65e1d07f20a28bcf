#include <KxMedia/Read/KxAudioTrack.h>

#include <Tests/KxMedia/Read/ReadClips.h>
#include <Tests/Support/OpenedSound.h>

#include <QFile>

#include <gtest/gtest.h>

#include <cmath>

using ReadClips::Path;
using ReadClips::Words;

namespace
{

constexpr int RateHz = 48000;
constexpr int FirstToneHz = 500;
constexpr int SecondToneHz = 2000;
constexpr double PieceSeconds = 3.0;

struct Piece {
    int toneHz = 0;
    int firstNumber = 0;
    int clockSeconds = 0;
    const char* output = "";
};

bool MakePiece(const QString& path, const Piece& piece)
{
    MadeVideo::Recipe recipe;
    recipe.frames = static_cast<int>(PieceSeconds * 25);
    recipe.firstNumber = piece.firstNumber;
    recipe.inputs = Words("-f lavfi -i") << QStringLiteral("sine=frequency=%1:sample_rate=48000:duration=%2,volume=4")
                                                .arg(QString::number(piece.toneHz), QString::number(PieceSeconds));
    recipe.output =
        Words(piece.output) + Words("-ac 2 -output_ts_offset") + QStringList(QString::number(piece.clockSeconds));
    return MadeVideo::Make(path, recipe);
}

bool Append(QFile& file, const QString& path)
{
    QFile part(path);
    return part.open(QIODevice::ReadOnly) && file.write(part.readAll()) == part.size();
}

// Two pieces one after the other in one file. The clock of the second one starts at `secondClock`, the first one's at
// 100 seconds.
QString Concatenated(const QString& name, const char* output, int secondClock)
{
    const QString suffix = name.mid(name.lastIndexOf(QLatin1Char('.')));
    const QString first = Path(QStringLiteral("first") + suffix);
    const QString second = Path(QStringLiteral("second") + suffix);
    EXPECT_TRUE(MakePiece(first, {FirstToneHz, 0, 100, output}));
    EXPECT_TRUE(MakePiece(second, {SecondToneHz, 75, secondClock, output}));
    QFile whole(Path(name));
    EXPECT_TRUE(whole.open(QIODevice::WriteOnly) && Append(whole, first) && Append(whole, second));
    return whole.fileName();
}

struct Heard {
    double startSeconds = 0;
    std::vector<float> left;

    /// The tone in the fifth of a second around `seconds`; 0 for silence and beyond the end.
    int ToneAt(double seconds) const
    {
        const auto from = static_cast<std::ptrdiff_t>((seconds - startSeconds - 0.1) * RateHz);
        const std::ptrdiff_t length = RateHz / 5;
        if (from < 0 || from + length > static_cast<std::ptrdiff_t>(left.size())) {
            return 0;
        }
        int crossings = 0;
        for (auto i = static_cast<size_t>(from) + 1; i < static_cast<size_t>(from + length); ++i) {
            crossings += left[i - 1] < 0 && left[i] >= 0 && left[i] - left[i - 1] > 0.001F ? 1 : 0;
        }
        return crossings * 5;
    }
    double EndSeconds() const { return startSeconds + static_cast<double>(left.size()) / RateHz; }
};

Heard ReadAll(KxAudioReader& reader)
{
    Heard line;
    KxAudioBlock block;
    bool isFirst = true;
    constexpr size_t farTooMuch = 60 * RateHz;
    while (line.left.size() < farTooMuch && reader.Next(block) == KxReadStatus::Delivered) {
        line.startSeconds = isFirst ? static_cast<double>(block.timeUs) / 1e6 : line.startSeconds;
        isFirst = false;
        for (size_t i = 0; i < block.samples.size(); i += static_cast<size_t>(block.channels)) {
            line.left.push_back(block.samples[i]);
        }
    }
    return line;
}

void ExpectBothTones(const QString& path)
{
    KxResult<std::unique_ptr<KxAudioReader>> reader = OpenedSound(path, 0, {RateHz, 2});
    ASSERT_TRUE(reader) << reader.Message().toStdString();
    const Heard line = ReadAll(**reader);
    for (const double seconds : {0.5, 1.5, 2.7}) {
        EXPECT_NEAR(line.ToneAt(seconds), FirstToneHz, 10) << seconds;
    }
    for (const double seconds : {3.3, 4.0, 5.0, 5.7}) {
        EXPECT_NEAR(line.ToneAt(seconds), SecondToneHz, 10) << seconds;
    }
    EXPECT_NEAR(line.EndSeconds(), 2 * PieceSeconds, 0.15);

    (*reader)->Seek(4000000);
    const Heard rest = ReadAll(**reader);
    EXPECT_NEAR(rest.startSeconds, 4.0, 0.001);
    EXPECT_NEAR(rest.ToneAt(4.5), SecondToneHz, 10);
    EXPECT_NEAR(rest.ToneAt(5.5), SecondToneHz, 10);
}

constexpr const char* H264 = "-c:v libx264 -g 12 -bf 2 -pix_fmt yuv420p -c:a aac";
constexpr const char* Mpeg2 = "-c:v mpeg2video -g 12 -bf 2 -pix_fmt yuv420p -c:a mp2";

} // namespace

TEST(KxAudioReaderJoins, SoundAfterTheJoinOfATransportStreamIsKept)
{
    ExpectBothTones(Concatenated(QStringLiteral("back.ts"), H264, 0));
    ExpectBothTones(Concatenated(QStringLiteral("ahead.ts"), H264, 500));
}

TEST(KxAudioReaderJoins, SoundAfterTheJoinOfAnMpeg2TransportStreamIsKept)
{
    ExpectBothTones(Concatenated(QStringLiteral("back2.ts"), Mpeg2, 0));
    ExpectBothTones(Concatenated(QStringLiteral("ahead2.ts"), Mpeg2, 500));
}

TEST(KxAudioReaderJoins, SoundAfterTheJoinOfAProgramStreamIsKept)
{
    ExpectBothTones(Concatenated(QStringLiteral("back.mpg"), Mpeg2, 0));
    ExpectBothTones(Concatenated(QStringLiteral("ahead.mpg"), Mpeg2, 500));
}

TEST(KxAudioReaderJoins, SoundAfterTheJoinOfAFileTooLargeToScanIsKept)
{
    const QString path = Concatenated(QStringLiteral("large.ts"), H264, 0);
    KxResult<std::unique_ptr<KxInputFile>> input = KxInputFile::Open(path, {});
    ASSERT_TRUE(input) << input.Message().toStdString();
    AVStream& stream = *(*input)->AudioStreams().front();
    KxResult<std::unique_ptr<KxAudioTrack>> track =
        KxAudioTrack::Open(std::move(*input), stream, {RateHz, 2}, KxMediaClock{std::nullopt, std::nullopt});
    ASSERT_TRUE(track) << track.Message().toStdString();
    KxAudioTrack::Run run;
    qint64 endPosition = 0;
    while ((*track)->Next(run) == KxReadStatus::Delivered) {
        if (run.samples.empty()) {
            continue;
        }
        EXPECT_NEAR(static_cast<double>(run.position - endPosition) / RateHz, 0, 0.15) << "a run out of place";
        endPosition = run.position + static_cast<qint64>(run.samples.size()) / 2;
    }
    EXPECT_NEAR(static_cast<double>(endPosition) / RateHz, 2 * PieceSeconds, 0.15);
}
