#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Read/KxVideoReader.h>
#include <KxModel/KxMediaItem.h>
#include <KxPlayer/KxPictureMaker.h>
#include <KxRender/KxRenderer.h>
#include <Tests/Reframe/ReframeRun.h>
#include <Tests/Support/MadeVideo.h>

#include <KxModel/IKxKeyFrameHelper.h>
#include <KxModel/IKxTimeline.h>

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <random>
#include <vector>

// The player's preview, the export and the command line cut the same rectangle out of frame n. Every picture is a
// ruler: a cosine along each axis, on a level that gives the number of the picture. The phases of the cosines in what
// is shown give the rectangle that was cut out, whatever scaling, coding and conversion do to levels and contrast.

namespace
{

constexpr QSize SourceSize(640, 360);
constexpr int Pictures = 40;
constexpr double PeriodPx = 20.0;
constexpr double Amplitude = 22.0;
constexpr double FirstLevel = 52.0;
constexpr double LevelsANumber = 9.0;
constexpr int Numbers = 16; // then they begin again

constexpr double TolerancePx = 0.1;
constexpr double NumberTolerance = 0.3;
constexpr double Pi = 3.14159265358979323846;

double Wave(double px)
{
    return Amplitude * std::cos(2.0 * Pi * px / PeriodPx);
}

QImage DrawRuler(int number)
{
    QImage image(SourceSize, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int level = qRound(FirstLevel + LevelsANumber * (number % Numbers) + Wave(x + 0.5) + Wave(y + 0.5));
            line[x] = qRgb(level, level, level);
        }
    }
    return image;
}

/// A Hann window: sums over a part of a wave hardly depend on where the part ends.
double Weight(size_t at, size_t from, size_t to)
{
    const double place = (static_cast<double>(at - from) + 0.5) / static_cast<double>(to - from);
    return 1.0 - std::cos(2.0 * Pi * place);
}

double WeightedMean(const std::vector<double>& levels)
{
    double sum = 0.0;
    for (size_t i = 0; i < levels.size(); ++i) {
        sum += Weight(i, 0, levels.size()) * levels[i];
    }
    return sum / static_cast<double>(levels.size());
}

/// The expected stretch of one axis, and the errors of its two ends.
struct Axis {
    double startPx = 0.0;
    double lengthPx = 0.0;
    double startErrorPx = 0.0;
    double endErrorPx = 0.0;
    double contrast = 0.0;
};

/// The amplitude of the wave in the samples `from` to `to`; its argument is their shift against the expected stretch,
/// as a phase.
std::complex<double> Demodulated(const std::vector<double>& levels, const Axis& expected, size_t from, size_t to)
{
    const double mean = WeightedMean(levels);
    std::complex<double> sum;
    for (size_t i = from; i < to; ++i) {
        const double px =
            expected.startPx + expected.lengthPx * (static_cast<double>(i) + 0.5) / static_cast<double>(levels.size());
        sum += Weight(i, from, to) * (levels[i] - mean) * std::polar(1.0, -2.0 * Pi * px / PeriodPx);
    }
    return sum * 2.0 / static_cast<double>(to - from);
}

Axis Compared(const std::vector<double>& levels, Axis axis)
{
    const size_t middle = levels.size() / 2;
    const std::complex<double> first = Demodulated(levels, axis, 0, middle);
    const std::complex<double> second = Demodulated(levels, axis, middle, levels.size());
    const double shiftPx = std::arg(first) / (2.0 * Pi) * PeriodPx;  // at a quarter of the stretch
    const double laterPx = std::arg(second) / (2.0 * Pi) * PeriodPx; // at three quarters
    axis.startErrorPx = 1.5 * shiftPx - 0.5 * laterPx;
    axis.endErrorPx = 1.5 * laterPx - 0.5 * shiftPx;
    axis.contrast = std::min(std::abs(first), std::abs(second)) / Amplitude;
    return axis;
}

/// The mean levels of a picture along both axes.
struct Shown {
    std::vector<double> across;
    std::vector<double> down;

    double Number() const { return (WeightedMean(across) - FirstLevel) / LevelsANumber; }
};

Shown Look(const QImage& image)
{
    const auto width = static_cast<size_t>(image.width());
    const auto height = static_cast<size_t>(image.height());
    Shown shown{std::vector<double>(width), std::vector<double>(height)};
    std::vector<double> weights(width);
    for (size_t x = 0; x < width; ++x) {
        weights[x] = Weight(x, 0, width) / static_cast<double>(width);
    }
    for (size_t y = 0; y < height; ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(static_cast<int>(y)));
        const double weight = Weight(y, 0, height) / static_cast<double>(height);
        for (size_t x = 0; x < width; ++x) {
            const double level = qGreen(line[x]);
            shown.across[x] += level * weight;
            shown.down[y] += level * weights[x];
        }
    }
    return shown;
}

std::vector<Shown> LookAtFile(const QString& path)
{
    std::vector<Shown> shown;
    auto reader = KxVideoReader::Open(path, KxCancelToken());
    EXPECT_TRUE(reader) << reader.Message().toStdString();
    KxPictureScaler scaler;
    for (qint64 frame = 0; reader && frame < (*reader)->Facts().video->frameCount; ++frame) {
        KxVideoFrame picture;
        EXPECT_EQ((*reader)->Read(frame, picture), KxReadStatus::Delivered);
        shown.push_back(Look(scaler.Scale(picture, picture.DisplayedSize(), QImage::Format_RGB32)));
    }
    return shown;
}

void ExpectStretch(const std::vector<double>& levels, double startPx, double lengthPx)
{
    const Axis axis = Compared(levels, {startPx, lengthPx, 0, 0, 0});
    EXPECT_NEAR(axis.startErrorPx, 0.0, TolerancePx);
    EXPECT_NEAR(axis.endErrorPx, 0.0, TolerancePx);
    EXPECT_GT(axis.contrast, 0.4) << "another stretch of the ruler";
}

enum class Crops { Inside, Beyond };

/// Crops that jump from frame to frame; every third one touches an edge or, with Crops::Beyond, lies beyond it.
std::vector<QRectF> JumpingCrops(Crops where, size_t count, unsigned seed)
{
    std::mt19937 random(seed);
    const auto pick = [&random](double from, double to) {
        return std::uniform_real_distribution<double>(from, to)(random);
    };
    std::vector<QRectF> crops{QRectF(0.3, 0.1, 0.4, 0.8)}; // determines the size of the file
    while (crops.size() < count) {
        const double width = pick(0.2, 0.9);
        const double height = pick(0.25, 1.0);
        QRectF crop(pick(0.0, 1.0 - width), pick(0.0, 1.0 - height), width, height);
        const double beyond = where == Crops::Beyond ? pick(0.0, 0.6) : 0.0;
        switch (crops.size() % 12) {
        case 1:
            crop.moveLeft(-beyond);
            break;
        case 4:
            crop.moveRight(1.0 + beyond);
            break;
        case 7:
            crop.moveTop(-beyond);
            break;
        case 10:
            crop.moveBottom(1.0 + beyond);
            break;
        case 11:
            crop = where == Crops::Beyond ? QRectF(-0.2, -0.4, 1.3, 1.9) : QRectF(0, 0, 1, 1);
            break;
        default:
            break;
        }
        crops.push_back(crop);
    }
    return crops;
}

/// Where the crop has to lie: shortened to the picture, then moved into it.
QRectF ExpectedPx(const QRectF& crop)
{
    const double width = std::min(crop.width(), 1.0);
    const double height = std::min(crop.height(), 1.0);
    const double x = std::min(std::max(crop.x(), 0.0), 1.0 - width);
    const double y = std::min(std::max(crop.y(), 0.0), 1.0 - height);
    return QRectF(x * SourceSize.width(), y * SourceSize.height(), width * SourceSize.width(),
                  height * SourceSize.height());
}

struct Clip {
    const char* name;
    const char* rate;
    const char* timing; ///< further options of ffmpeg
};

void PrintTo(const Clip& clip, std::ostream* stream)
{
    *stream << clip.name;
}

struct Release {
    void operator()(IKxTimeline* timeline) const { IKxTimeline::releaseInstance(timeline); }
};
using Timeline = std::unique_ptr<IKxTimeline, Release>;

class SameWindow : public testing::TestWithParam<Clip>
{
protected:
    void SetUp() override
    {
        MadeVideo::Recipe recipe;
        recipe.size = SourceSize;
        recipe.frames = Pictures;
        recipe.rate = QLatin1String(GetParam().rate);
        recipe.draw = &DrawRuler;
        recipe.output = QString::fromLatin1(GetParam().timing).split(QLatin1Char(' '), Qt::SkipEmptyParts) +
                        QStringLiteral("-c:v libx264 -preset veryfast -crf 6 -g 12 -colorspace bt709 -color_primaries "
                                       "bt709 -color_trc bt709 -pix_fmt yuv420p")
                            .split(QLatin1Char(' '));
        ASSERT_TRUE(MadeVideo::Make(Path("clip.mp4"), recipe));
        for (const Shown& shown : LookAtFile(Path("clip.mp4"))) {
            ExpectStretch(shown.across, 0, SourceSize.width());
            ExpectStretch(shown.down, 0, SourceSize.height());
            m_source.push_back(std::round(shown.Number()));
            EXPECT_NEAR(shown.Number(), m_source.back(), NumberTolerance);
        }
        ASSERT_GE(m_source.size(), 36U);
    }

    QString Path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    std::vector<QRectF> MakeCrops(Crops where) const { return JumpingCrops(where, m_source.size(), 2026); }

    Timeline MakeTimeline(const std::vector<QRectF>& crops) const
    {
        auto item = KxMediaItem::Open(Path("clip.mp4"), {});
        EXPECT_TRUE(item) << item.Message().toStdString();
        Timeline timeline(IKxTimeline::createSimpleTimeline((*item)->clip()));
        QList<KxCropPanZoomKeyFrameParam> keyFrames;
        for (const QRectF& crop : crops) {
            KxCropPanZoomKeyFrameParam param;
            param.frame = keyFrames.size();
            param.kind = KxCropPanZoomKeyFrameParam::Linear;
            param.cropRect = crop;
            keyFrames.append(param);
        }
        IKxKeyFrameHelper* helper = timeline->clips().constFirst()->keyFrameHelper(IKxKeyFrameHelper::CropPanZoom);
        dynamic_cast<IKxCropPanZoomKeyFrameHelper&>(*helper).setKeyFrames(keyFrames);
        return timeline;
    }

    void ExpectCut(const std::vector<Shown>& shown, const std::vector<QRectF>& crops)
    {
        ASSERT_EQ(shown.size(), m_source.size());
        for (size_t frame = 0; frame < shown.size(); ++frame) {
            SCOPED_TRACE(testing::Message() << "frame " << frame);
            const QRectF px = ExpectedPx(crops[frame]);
            ExpectStretch(shown[frame].across, px.x(), px.width());
            ExpectStretch(shown[frame].down, px.y(), px.height());
            EXPECT_NEAR(shown[frame].Number(), m_source[frame], NumberTolerance);
        }
    }

    std::vector<Shown> Preview(IKxTimeline& timeline) const
    {
        std::vector<Shown> shown;
        auto maker = KxPictureMaker::Open(KxPlaySource::Of(timeline), {});
        EXPECT_TRUE(maker) << maker.Message().toStdString();
        for (int frame = 0; maker && frame < (*maker)->Source()->frameCount; ++frame) {
            KxPlayerPicture picture;
            EXPECT_EQ((*maker)->Make(frame, QSize(960, 540), picture), KxReadStatus::Delivered);
            shown.push_back(Look(picture.image));
        }
        return shown;
    }

    std::vector<Shown> Export(IKxTimeline& timeline) const
    {
        const KxResult<KxRenderSource> source = KxRenderSource::FromTimeline(timeline);
        EXPECT_TRUE(source);
        KxRenderSettings settings;
        settings.outputPath = Path("export.mp4");
        settings.resolution = QSize(320, 288);
        settings.videoBitRate = 12000000;
        const KxRenderResult result = KxRenderer::Run(*source, settings, {}, {});
        EXPECT_EQ(result.outcome, KxOutcome::Done) << result.message.toStdString();
        return LookAtFile(result.outputPath);
    }

    ReframeRun Apply(const std::vector<QRectF>& crops) const
    {
        QByteArray text("frame,x,y,w,h\n");
        for (size_t frame = 0; frame < crops.size(); ++frame) {
            const QRectF& crop = crops[frame];
            text += QByteArray::number(static_cast<int>(frame));
            for (const double value : {crop.x(), crop.y(), crop.width(), crop.height()}) {
                text += ',' + QByteArray::number(value, 'f', 9);
            }
            text += '\n';
        }
        QFile file(Path("track.csv"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        return ReframeRun({QStringLiteral("--apply"), file.fileName(), QStringLiteral("--output"), Path("applied.mp4"),
                           Path("clip.mp4")});
    }

    QTemporaryDir m_folder;
    /// The number of the picture that each frame of the grid shows.
    std::vector<double> m_source;
};

} // namespace

TEST_P(SameWindow, PreviewAndExportCutTheRectangleOfEachFrame)
{
    for (const Crops where : {Crops::Inside, Crops::Beyond}) {
        const std::vector<QRectF> crops = MakeCrops(where);
        const Timeline timeline = MakeTimeline(crops);
        ASSERT_TRUE(timeline);
        {
            SCOPED_TRACE("preview");
            ExpectCut(Preview(*timeline), crops);
        }
        SCOPED_TRACE("export");
        ExpectCut(Export(*timeline), crops);
    }
}

TEST_P(SameWindow, TheCommandLineCutsTheRectangleOfEachFrame)
{
    const std::vector<QRectF> crops = MakeCrops(Crops::Inside);
    const ReframeRun run = Apply(crops);
    ASSERT_EQ(run.exitStatus, 0) << run.standardError.toStdString();
    ExpectCut(LookAtFile(Path("applied.mp4")), crops);
}

TEST_P(SameWindow, TheCommandLineRefusesARectangleBeyondTheEdge)
{
    const ReframeRun run = Apply(MakeCrops(Crops::Beyond));
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_TRUE(run.standardError.contains(QStringLiteral("frame 1 "))) << run.standardError.toStdString();
    EXPECT_FALSE(QFile::exists(Path("applied.mp4")));
}

INSTANTIATE_TEST_SUITE_P(
    Rates, SameWindow,
    testing::Values(Clip{"Film", "24000/1001", "-vf scale=out_color_matrix=bt709"},
                    Clip{"Ntsc", "30000/1001", "-vf scale=out_color_matrix=bt709"},
                    Clip{"Variable", "25",
                         "-vf scale=out_color_matrix=bt709,settb=1/1000,"
                         "setpts=if(lt(N\\,15)\\,40*N\\,if(lt(N\\,25)\\,600+(N-15)*93\\,1530+(N-25)*21)) "
                         "-vsync vfr -enc_time_base 1:1000"}),
    [](const testing::TestParamInfo<Clip>& clip) { return clip.param.name; });
