#include <KxMedia/Picture/KxFittedCutter.h>
#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxModel/KxMediaItem.h>
#include <KxPlayer/KxPictureMaker.h>
#include <KxRender/KxRenderer.h>
#include <Tests/KxRender/RenderFixture.h>
#include <Tests/Support/MadeVideo.h>

#include <KxModel/IKxKeyFrameHelper.h>
#include <KxModel/IKxTimeline.h>

#include <QPainter>

// A shot that shows the whole picture in a result of another shape: preview and export make the same picture of it.

namespace
{

constexpr QSize SourceSize(640, 360);
constexpr int Frames = 12;
/// The first frame that shows the whole picture.
constexpr int FirstWhole = 4;
constexpr QRectF WholePicture(0.0, 0.0, 1.0, 1.0);
/// Of 255: what coding and a second scaling change on average.
constexpr double MeanError = 2.5;

QImage Draw(int number)
{
    QImage picture(SourceSize, QImage::Format_RGB32);
    QLinearGradient ramp(0, 0, SourceSize.width(), SourceSize.height());
    ramp.setColorAt(0.0, QColor(30, 60, 130));
    ramp.setColorAt(1.0, QColor(220, 190, 90));
    QPainter painter(&picture);
    painter.fillRect(picture.rect(), ramp);
    painter.fillRect(20 + 12 * number, 120, 90, 160, QColor(200, 40, 50));
    painter.fillRect(560, 40, 60, 60, Qt::white);
    return picture;
}

struct Release {
    void operator()(IKxTimeline* timeline) const { IKxTimeline::releaseInstance(timeline); }
};
using Timeline = std::unique_ptr<IKxTimeline, Release>;

struct Case {
    const char* name;
    QSize result;
    /// What the shots of the whole picture show: without bars, for example.
    QRectF content;
};

void PrintTo(const Case& shown, std::ostream* stream)
{
    *stream << shown.name;
}

class FittedPicture : public RenderFixture, public testing::WithParamInterface<Case>
{
protected:
    void SetUp() override
    {
        MadeVideo::Recipe recipe;
        recipe.size = SourceSize;
        recipe.frames = Frames;
        recipe.draw = &Draw;
        recipe.output = QStringLiteral("-vf scale=out_color_matrix=bt709 -c:v libx264 -crf 6 -colorspace bt709 "
                                       "-color_primaries bt709 -color_trc bt709 -pix_fmt yuv420p")
                            .split(QLatin1Char(' '));
        ASSERT_TRUE(MadeVideo::Make(Path(QStringLiteral("clip.mp4")), recipe));
    }

    QRectF CutCrop() const { return MiddleOf(GetParam().result); }

    static QRectF MiddleOf(const QSize& result)
    {
        const QSizeF size = QSizeF(result).scaled(SourceSize, Qt::KeepAspectRatio);
        const double width = size.width() / SourceSize.width();
        const double height = size.height() / SourceSize.height();
        return {(1.0 - width) / 2.0, (1.0 - height) / 2.0, width, height};
    }

    /// Cut in the first frames, then the whole picture.
    Timeline MakeTimeline(const QSize& resolution) const
    {
        auto item = KxMediaItem::Open(Path(QStringLiteral("clip.mp4")), {});
        EXPECT_TRUE(item) << item.Message().toStdString();
        Timeline timeline(IKxTimeline::createSimpleTimeline((*item)->clip()));
        QList<KxCropPanZoomKeyFrameParam> keyFrames;
        for (int frame = 0; frame < Frames; ++frame) {
            KxCropPanZoomKeyFrameParam param;
            param.frame = frame;
            param.kind = KxCropPanZoomKeyFrameParam::Linear;
            param.cropRect = frame < FirstWhole ? CutCrop() : GetParam().content;
            keyFrames.append(param);
        }
        IKxKeyFrameHelper* helper = timeline->clips().constFirst()->keyFrameHelper(IKxKeyFrameHelper::CropPanZoom);
        dynamic_cast<IKxCropPanZoomKeyFrameHelper&>(*helper).setKeyFrames(keyFrames);
        KxProjectSettings settings = timeline->projectSettings();
        settings.resolution = resolution;
        timeline->setProjectSettings(settings);
        return timeline;
    }

    static QImage Preview(KxPictureMaker& maker, int frame, const QSize& area)
    {
        KxPlayerPicture picture;
        EXPECT_EQ(maker.Make(frame, area, picture), KxReadStatus::Delivered);
        return picture.image;
    }

    std::vector<QImage> Export(IKxTimeline& timeline) const
    {
        const KxResult<KxRenderSource> source = KxRenderSource::FromTimeline(timeline);
        EXPECT_TRUE(source);
        KxRenderSettings settings = SettingsFor(GetParam().result);
        settings.videoBitRate = 20000000;
        const KxRenderResult rendered = KxRenderer::Run(*source, settings, {}, {});
        EXPECT_EQ(rendered.outcome, KxOutcome::Done) << rendered.message.toStdString();
        std::vector<QImage> images;
        KxPictureScaler scaler;
        for (const KxVideoFrame& picture : Pictures(rendered.outputPath)) {
            images.push_back(scaler.Scale(picture, picture.DisplayedSize(), QImage::Format_RGB32));
        }
        return images;
    }

    static double Difference(const QImage& a, const QImage& b)
    {
        EXPECT_EQ(a.size(), b.size());
        double sum = 0.0;
        for (int y = 0; y < a.height(); ++y) {
            for (int x = 0; x < a.width(); ++x) {
                const QRgb p = a.pixel(x, y);
                const QRgb q = b.pixel(x, y);
                sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q));
            }
        }
        return sum / (3.0 * a.width() * a.height());
    }
};

} // namespace

TEST_P(FittedPicture, PreviewAndExportShowTheSamePicture)
{
    const Timeline timeline = MakeTimeline(GetParam().result);
    const std::vector<QImage> exported = Export(*timeline);
    ASSERT_EQ(exported.size(), static_cast<size_t>(Frames));
    auto maker = KxPictureMaker::Open(KxPlaySource::Of(*timeline), {});
    ASSERT_TRUE(maker) << maker.Message().toStdString();
    for (int frame = 0; frame < Frames; ++frame) {
        const QImage shown = Preview(**maker, frame, SourceSize);
        ASSERT_EQ(shown.size(), GetParam().result) << "frame " << frame;
        EXPECT_LT(Difference(shown, exported[static_cast<size_t>(frame)]), MeanError) << "frame " << frame;
    }
}

TEST_P(FittedPicture, ASmallerPreviewLooksLikeTheExport)
{
    const Timeline timeline = MakeTimeline(GetParam().result);
    auto maker = KxPictureMaker::Open(KxPlaySource::Of(*timeline), {});
    ASSERT_TRUE(maker) << maker.Message().toStdString();
    const QImage large = Preview(**maker, Frames - 1, SourceSize);
    const QImage small = Preview(**maker, Frames - 1, SourceSize / 2);
    // Edges of the picture in it are on other pixels.
    constexpr double largerError = 5.0;
    EXPECT_LT(Difference(small, large.scaled(small.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)),
              largerError);
}

TEST_P(FittedPicture, NothingOfTheWholePictureIsMissingOrStretched)
{
    const Timeline timeline = MakeTimeline(GetParam().result);
    const std::vector<QImage> exported = Export(*timeline);
    ASSERT_EQ(exported.size(), static_cast<size_t>(Frames));
    const QRectF content = GetParam().content;
    const QRect contentPx(qRound(content.x() * SourceSize.width()), qRound(content.y() * SourceSize.height()),
                          qRound(content.width() * SourceSize.width()), qRound(content.height() * SourceSize.height()));
    const QRect place = KxFittedCutter::PlaceOf(contentPx.size(), GetParam().result);
    const QImage wanted =
        Draw(Frames - 1).copy(contentPx).scaled(place.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    EXPECT_LT(Difference(exported.back().copy(place), wanted), MeanError);
}

TEST_P(FittedPicture, ATimelineOfTheSourcesShapeIsStretchedAsBefore)
{
    const Timeline timeline = MakeTimeline(SourceSize);
    const KxResult<KxRenderSource> source = KxRenderSource::FromTimeline(*timeline);
    ASSERT_TRUE(source);
    EXPECT_EQ(source->otherShapes, KxRenderSource::OtherShapes::Stretched);
    const auto played = KxPlaySource::Of(*timeline);
    EXPECT_FALSE(played->IsFittedAt(Frames - 1, SourceSize));
    EXPECT_TRUE(KxPlaySource::Of(*MakeTimeline(GetParam().result))->IsFittedAt(Frames - 1, SourceSize));
    EXPECT_FALSE(KxPlaySource::Of(*MakeTimeline(GetParam().result))->IsFittedAt(0, SourceSize));
}

INSTANTIATE_TEST_SUITE_P(Shapes, FittedPicture,
                         testing::Values(Case{"Vertical", QSize(202, 360), WholePicture},
                                         Case{"Square", QSize(360, 360), WholePicture},
                                         Case{"Portrait", QSize(288, 360), WholePicture},
                                         Case{"WithoutBars", QSize(202, 360), QRectF(0.0, 0.125, 1.0, 0.75)}),
                         [](const testing::TestParamInfo<Case>& shown) { return shown.param.name; });
