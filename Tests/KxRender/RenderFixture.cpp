#include <Tests/KxRender/RenderFixture.h>

#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Read/KxVideoReader.h>
#include <Tests/Support/MadeVideo.h>
#include <Tests/Support/OpenedSound.h>

#include <QDir>

#include <cmath>

namespace
{

template<typename Use>
void ForEachSample(const QString& path, Use use)
{
    KxAudioReader::Format format;
    KxResult<std::unique_ptr<KxAudioReader>> reader = OpenedSound(path, 0, format);
    ASSERT_TRUE(reader) << reader.Message().toStdString();
    KxAudioBlock block;
    while ((*reader)->Next(block) == KxReadStatus::Delivered) {
        for (size_t i = 0; i < block.samples.size(); i += 2) {
            use(static_cast<double>(block.timeUs) * 1e-6 + static_cast<double>(i) / 2 / format.sampleRateHz,
                block.samples[i]);
        }
    }
}

} // namespace

QStringList RenderFixture::Written() const
{
    QStringList names = QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    names.erase(std::remove_if(names.begin(), names.end(),
                               [](const QString& name) { return name.startsWith(QLatin1String("clip.")); }),
                names.end());
    return names;
}

KxRenderSource RenderFixture::MakeClip(int frames, const QString& rate, const QStringList& inputs,
                                       const QStringList& output)
{
    MadeVideo::Recipe recipe;
    recipe.size = QSize(320, 180);
    recipe.frames = frames;
    recipe.rate = rate;
    recipe.inputs = inputs;
    recipe.output = QStringList{QStringLiteral("-c:v"),     QStringLiteral("libx264"), QStringLiteral("-preset"),
                                QStringLiteral("veryfast"), QStringLiteral("-crf"),    QStringLiteral("12"),
                                QStringLiteral("-pix_fmt"), QStringLiteral("yuv420p")} +
                    output;
    KxRenderSource source;
    source.path = Path(QStringLiteral("clip.mp4"));
    EXPECT_TRUE(MadeVideo::Make(source.path, recipe));
    return source;
}

KxRenderSettings RenderFixture::SettingsFor(const QSize& resolution) const
{
    KxRenderSettings settings;
    settings.outputPath = Path(QStringLiteral("out.mp4"));
    settings.resolution = resolution;
    return settings;
}

std::shared_ptr<const std::vector<QRectF>> RenderFixture::WholePicture()
{
    return std::make_shared<const std::vector<QRectF>>(1, QRectF(0, 0, 1, 1));
}

std::vector<KxVideoFrame> RenderFixture::Pictures(const QString& path)
{
    std::vector<KxVideoFrame> pictures;
    KxResult<std::unique_ptr<KxVideoReader>> reader = KxVideoReader::Open(path, KxCancelToken());
    EXPECT_TRUE(reader) << reader.Message().toStdString();
    for (qint64 frame = 0; reader && frame < (*reader)->Facts().video->frameCount; ++frame) {
        KxVideoFrame picture;
        EXPECT_EQ((*reader)->Read(frame, picture), KxReadStatus::Delivered);
        EXPECT_FALSE((*reader)->EndedEarly());
        pictures.push_back(picture);
    }
    return pictures;
}

std::vector<int> RenderFixture::Numbers(const QString& path)
{
    std::vector<int> numbers;
    KxPictureScaler scaler;
    for (const KxVideoFrame& picture : Pictures(path)) {
        const QImage image = scaler.Scale(picture, picture.DisplayedSize(), QImage::Format_RGB32);
        numbers.push_back(MadeVideo::ReadNumber(image).value_or(-1));
    }
    return numbers;
}

std::vector<double> RenderFixture::SoundTimes(const QString& path)
{
    std::vector<double> times;
    double lastLoudS = -1;
    ForEachSample(path, [&](double timeS, float value) {
        if (std::abs(value) > 0.2F) {
            if (timeS - lastLoudS > 0.1) {
                times.push_back(timeS);
            }
            lastLoudS = timeS;
        }
    });
    return times;
}

double RenderFixture::SoundEnd(const QString& path)
{
    double endS = 0;
    ForEachSample(path, [&](double timeS, float) { endS = timeS; });
    return endS;
}
