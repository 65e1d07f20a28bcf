#include <Tests/Reframe/ReframeRun.h>

#include <Apps/CropTracks/CropTrackFile.h>
#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Read/KxVideoReader.h>
#include <Tests/Support/MadeVideo.h>
#include <Tests/Support/OpenedSound.h>

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

namespace
{

constexpr int Frames = 50;
const QSize sourceSize(320, 180);

/// Soft shapes that vary over the picture and over time, so that a wrong crop or a wrong frame is detected.
QImage DrawScene(int number)
{
    QImage image(sourceSize, QImage::Format_RGB32);
    QLinearGradient gradient(0, 0, sourceSize.width(), sourceSize.height());
    gradient.setColorAt(0.0, QColor(30, 60, 120));
    gradient.setColorAt(1.0, QColor(220, 190, 140));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(image.rect(), gradient);
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 8; ++i) {
        painter.setBrush(QColor::fromHsv(i * 45, 160, 200));
        painter.drawEllipse(QPointF(20 + i * 40, 90 + 60 * std::sin(0.2 * number + i)), 14, 14);
    }
    painter.end();
    return image;
}

CropTrack PanningTrack()
{
    CropTrack track;
    track.aspect = QSize(9, 16);
    track.speedName = QStringLiteral("auto");
    const double width = 180.0 * 9.0 / 16.0 / 320.0;
    for (int frame = 0; frame < Frames; ++frame) {
        const double x = (1.0 - width) * frame / (Frames - 1);
        track.crops.append(IKxAutoReframeResult(frame, QRectF(x, 0.0, width, 1.0)));
    }
    return track;
}

double Psnr(const QImage& a, const QImage& b)
{
    double squares = 0.0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            squares +=
                std::pow(qRed(p) - qRed(q), 2) + std::pow(qGreen(p) - qGreen(q), 2) + std::pow(qBlue(p) - qBlue(q), 2);
        }
    }
    return 10.0 * std::log10(255.0 * 255.0 * 3.0 * a.width() * a.height() / std::max(squares, 1e-9));
}

QImage Reference(const QImage& source, const QRectF& crop, const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF cut(crop.x() * source.width(), crop.y() * source.height(), crop.width() * source.width(),
                     crop.height() * source.height());
    painter.drawImage(QRectF(QPointF(0, 0), size), source, cut);
    painter.end();
    return image;
}

/// Times at which silence turns into sound, microseconds.
std::vector<qint64> Onsets(const QString& path)
{
    std::vector<qint64> onsets;
    constexpr int rateHz = 48000;
    auto reader = OpenedSound(path, 0, {rateHz, 1});
    EXPECT_TRUE(reader) << reader.Message().toStdString();
    KxAudioBlock block;
    qint64 silentSamples = rateHz;
    while (reader && (*reader)->Next(block) == KxReadStatus::Delivered) {
        for (std::size_t i = 0; i < block.samples.size(); ++i) {
            if (std::abs(block.samples[i]) < 0.1F) {
                ++silentSamples;
                continue;
            }
            if (silentSamples > rateHz / 5) {
                onsets.push_back(block.timeUs + static_cast<qint64>(i) * 1000000 / rateHz);
            }
            silentSamples = 0;
        }
    }
    return onsets;
}

/// What a program writes to standard output and standard error.
QString OutputOf(const QString& program, const QStringList& arguments)
{
    const ProgramRun run(program, arguments);
    EXPECT_EQ(run.exitStatus, 0) << program.toStdString();
    return (run.standardOutput + run.standardError).trimmed();
}

class ReframeRoundTrip : public testing::Test
{
protected:
    void SetUp() override
    {
        MadeVideo::Recipe recipe;
        recipe.size = sourceSize;
        recipe.frames = Frames;
        recipe.draw = &DrawScene;
        recipe.inputs =
            QStringList{QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                        QStringLiteral("aevalsrc='if(lt(mod(t,0.5),0.1),0.5*sin(2*PI*1000*t),0)':s=48000:d=2")};
        recipe.output = QStringList{QStringLiteral("-c:v"), QStringLiteral("libx264"),  QStringLiteral("-crf"),
                                    QStringLiteral("10"),   QStringLiteral("-pix_fmt"), QStringLiteral("yuv420p"),
                                    QStringLiteral("-c:a"), QStringLiteral("aac"),      QStringLiteral("-b:a"),
                                    QStringLiteral("128k")};
        ASSERT_TRUE(MadeVideo::Make(Path("scene.mp4"), recipe));
        QFile file(Path("track.json"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(CropTrackFile::Format(PanningTrack(), file.fileName()));
    }

    QString Path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    QByteArray Bytes(const char* name) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        return file.readAll();
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ReframeRoundTrip, EveryFrameIsTheCropOfTheSourceAndSoundStaysInSync)
{
    const ReframeRun run({QStringLiteral("--apply"), Path("track.json"), Path("scene.mp4")});
    ASSERT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    const QString output = Path("scene-AutoReframe-9 16.mp4");
    ASSERT_TRUE(QFile::exists(output)) << run.standardOutput.toStdString();

    auto source = KxVideoReader::Open(Path("scene.mp4"), KxCancelToken());
    auto result = KxVideoReader::Open(output, KxCancelToken());
    ASSERT_TRUE(source);
    ASSERT_TRUE(result) << result.Message().toStdString();
    EXPECT_EQ((*result)->Facts().video->frameCount, Frames);
    EXPECT_EQ((*result)->Facts().video->frameRate, (KxRational{25, 1}));
    const QSize size = (*result)->Facts().video->resolution;
    EXPECT_EQ(size, QSize(102, 180)); // 101.25 pixels, rounded to an even number

    KxPictureScaler sourceScaler;
    KxPictureScaler resultScaler;
    const CropTrack track = PanningTrack();
    for (int frame = 0; frame < Frames; ++frame) {
        KxVideoFrame a;
        KxVideoFrame b;
        ASSERT_EQ((*source)->Read(frame, a), KxReadStatus::Delivered);
        ASSERT_EQ((*result)->Read(frame, b), KxReadStatus::Delivered);
        const QImage whole = sourceScaler.Scale(a, sourceSize, QImage::Format_RGB32);
        const QImage expected = Reference(whole, track.crops.at(frame).cropRect(), size);
        const double psnr = Psnr(expected, resultScaler.Scale(b, size, QImage::Format_RGB32));
        EXPECT_GT(psnr, 30.0) << "frame " << frame;
        // A crop 3 % of the width away differs clearly: the comparison can fail.
        const QRectF elsewhere = track.crops.at(frame).cropRect().translated(frame < Frames / 2 ? 0.03 : -0.03, 0.0);
        EXPECT_LT(Psnr(Reference(whole, elsewhere, size), resultScaler.Scale(b, size, QImage::Format_RGB32)),
                  psnr - 3.0);
    }

    const std::vector<qint64> before = Onsets(Path("scene.mp4"));
    const std::vector<qint64> after = Onsets(output);
    ASSERT_EQ(before.size(), 4U);
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
        EXPECT_NEAR(static_cast<double>(after[i]), static_cast<double>(before[i]), 10000.0);
    }
}

TEST_F(ReframeRoundTrip, TheTrackThatIsWrittenIsTheTrackThatWasApplied)
{
    const ReframeRun run({QStringLiteral("--apply"), Path("track.json"), QStringLiteral("--no-video"),
                          QStringLiteral("--keyframes"), Path("again.csv"), Path("scene.mp4")});
    ASSERT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    const KxResult<CropTrack> again = CropTrackFile::Read(Path("again.csv"), Frames);
    ASSERT_TRUE(again);
    ASSERT_EQ(again->crops.size(), Frames);
    for (int frame = 0; frame < Frames; ++frame) {
        EXPECT_NEAR(again->crops.at(frame).cropRect().x(), PanningTrack().crops.at(frame).cropRect().x(), 1e-8);
    }
}

TEST_F(ReframeRoundTrip, AnalysisGivesOneRectangleOfTheAspectForEveryFrame)
{
    const ReframeRun run({QStringLiteral("--no-video"), QStringLiteral("--aspect"), QStringLiteral("1:1"),
                          QStringLiteral("--keyframes"), Path("found.json"), Path("scene.mp4")});
    ASSERT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    const KxResult<CropTrack> found = CropTrackFile::Read(Path("found.json"), Frames);
    ASSERT_TRUE(found) << found.Message().toStdString();
    ASSERT_EQ(found->crops.size(), Frames);
    for (const IKxAutoReframeResult& crop : found->crops) {
        EXPECT_NEAR(crop.cropRect().width() * 320.0, crop.cropRect().height() * 180.0, 1.0);
    }
}

TEST_F(ReframeRoundTrip, TheContactSheetShowsTheCrop)
{
    const ReframeRun run({QStringLiteral("--apply"), Path("track.json"), QStringLiteral("--no-video"),
                          QStringLiteral("--preview"), Path("sheet.png"), Path("scene.mp4")});
    ASSERT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    const QImage sheet(Path("sheet.png"));
    ASSERT_FALSE(sheet.isNull());
    EXPECT_EQ(sheet.width(), 4 * (400 + 12) + 12);
    // The first of twelve frames is number 2 of 50; its crop is outlined in the accent colour.
    const QRectF crop = PanningTrack().crops.at(2).cropRect();
    const QPoint outline(12 + qRound(crop.x() * 400) + 1, 12 + 112);
    EXPECT_EQ(QColor(sheet.pixel(outline)), QColor(0x55, 0xE5, 0xC5));
    // In every cell the crop is brighter than the dimmed part right beside it.
    for (const int cell : {0, 5, 11}) {
        const QRectF kept = PanningTrack().crops.at((2 * cell + 1) * Frames / 24).cropRect();
        const QPoint corner(12 + (cell % 4) * 412, 12 + (cell / 4) * (sheet.height() - 12) / 3);
        const int edge = kept.x() > 0.5 ? qRound(kept.left() * 400) : qRound(kept.right() * 400);
        const int inward = kept.x() > 0.5 ? 6 : -6;
        const QColor inside(sheet.pixel(corner + QPoint(edge + inward, 8)));
        const QColor outside(sheet.pixel(corner + QPoint(edge - inward, 8)));
        EXPECT_GT(inside.value(), outside.value() + 20) << "cell " << cell;
    }
}

TEST_F(ReframeRoundTrip, TheSameVideoGivesTheSameBytes)
{
    for (const char* const name : {"first.mp4", "second.mp4"}) {
        const ReframeRun run({QStringLiteral("--output"), Path(name), Path("scene.mp4")});
        ASSERT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    }
    const QByteArray first = Bytes("first.mp4");
    ASSERT_GT(first.size(), 10000);
    EXPECT_TRUE(first == Bytes("second.mp4"));
    EXPECT_EQ(OutputOf(QStringLiteral("ffprobe"),
                       {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-show_entries"),
                        QStringLiteral("format_tags=creation_time:stream_tags=creation_time"), QStringLiteral("-of"),
                        QStringLiteral("csv=p=0"), Path("first.mp4")}),
              QString())
        << "a time would differ in the next second";
}

TEST_F(ReframeRoundTrip, AnotherProgramDecodesEveryFrameWithoutAnError)
{
    const ReframeRun run({QStringLiteral("--output"), Path("out.mp4"), Path("scene.mp4")});
    ASSERT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    EXPECT_EQ(OutputOf(QStringLiteral("ffprobe"),
                       {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-count_frames"),
                        QStringLiteral("-select_streams"), QStringLiteral("v"), QStringLiteral("-show_entries"),
                        QStringLiteral("stream=codec_name,width,height,pix_fmt,r_frame_rate,nb_read_frames"),
                        QStringLiteral("-of"), QStringLiteral("csv=p=0"), Path("out.mp4")}),
              QStringLiteral("h264,102,180,yuv420p,25/1,%1").arg(Frames));
    EXPECT_EQ(OutputOf(QStringLiteral("ffmpeg"), {QStringLiteral("-v"), QStringLiteral("warning"),
                                                  QStringLiteral("-xerror"), QStringLiteral("-i"), Path("out.mp4"),
                                                  QStringLiteral("-f"), QStringLiteral("null"), QStringLiteral("-")}),
              QString());
}
