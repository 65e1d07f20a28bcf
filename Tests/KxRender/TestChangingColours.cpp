#include <KxRender/KxRenderer.h>
#include <Tests/KxMedia/Picture/MadePicture.h>
#include <Tests/KxRender/RenderFixture.h>
#include <Tests/Support/MadeVideo.h>

#include <QFile>

// A recording whose colours change on the way, as at the end of an advertisement. The file has one set of colour
// fields.

namespace
{

constexpr int HalfFrames = 25;

class ChangingColours : public RenderFixture
{
protected:
    /// Half of the pictures are in the colours of BT.709, the others in those of BT.601; all show the same red.
    KxRenderSource MakeClip() const
    {
        KxRenderSource source;
        source.path = Path(QStringLiteral("clip.ts"));
        QFile clip(source.path);
        EXPECT_TRUE(clip.open(QIODevice::WriteOnly));
        int startS = 0;
        for (const char* const matrix : {"bt709", "smpte170m"}) {
            QFile half(Path(QStringLiteral("clip.%1.ts").arg(QLatin1String(matrix))));
            const QString arguments =
                QStringLiteral("-f lavfi -i color=0xc83c28:s=320x180:r=25:d=1,format=gbrp,scale=out_color_matrix=%1,"
                               "format=yuv420p -c:v libx264 -bf 0 -crf 6 -colorspace %1 -color_primaries bt709 "
                               "-color_trc bt709 -output_ts_offset %2")
                    .arg(QLatin1String(matrix), QString::number(startS++));
            EXPECT_TRUE(MadeVideo::RunFfmpeg(arguments.split(QLatin1Char(' ')) << half.fileName()));
            EXPECT_TRUE(half.open(QIODevice::ReadOnly));
            clip.write(half.readAll());
        }
        return source;
    }

    std::vector<KxVideoFrame> Render(const KxRenderSource& source, std::optional<KxFrameRange> frames)
    {
        KxRenderSettings settings = SettingsFor(QSize(90, 160));
        settings.format.quality = 90;
        settings.frames = frames;
        const KxRenderResult result = KxRenderer::Run(source, settings, {}, KxCancelToken());
        EXPECT_EQ(result.outcome, KxOutcome::Done) << result.message.toStdString();
        return Pictures(result.outputPath);
    }

    static void ExpectSameColour(const KxVideoFrame& picture, const KxVideoFrame& first)
    {
        EXPECT_EQ(picture.Picture().colorspace, AVCOL_SPC_BT709);
        for (int plane = 0; plane < 3; ++plane) {
            EXPECT_NEAR(MadePicture::Mean(picture.Picture(), plane), MadePicture::Mean(first.Picture(), plane), 1.0)
                << "plane " << plane;
        }
    }
};

} // namespace

TEST_F(ChangingColours, AllPicturesHaveThoseOfTheFirst)
{
    const std::vector<KxVideoFrame> pictures = Render(MakeClip(), std::nullopt);
    ASSERT_EQ(pictures.size(), 2U * HalfFrames);
    for (const KxVideoFrame& picture : pictures) {
        ExpectSameColour(picture, pictures.front());
    }
}

TEST_F(ChangingColours, APartHasThoseOfTheWholeVideo)
{
    const KxRenderSource source = MakeClip();
    const KxVideoFrame first = Render(source, std::nullopt).front();
    const std::vector<KxVideoFrame> part = Render(source, KxFrameRange{HalfFrames + 5, 2 * HalfFrames});
    ASSERT_EQ(part.size(), HalfFrames - 5U);
    ExpectSameColour(part.front(), first);
}
