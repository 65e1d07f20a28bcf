#include <Tests/KxPlayer/PlayerClip.h>

#include <KxModel/KxMediaItem.h>
#include <Tests/Support/MadeVideo.h>

#include <KxModel/IKxKeyFrameHelper.h>

#include <QFile>
#include <QMap>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

constexpr QSize MovingSize{320, 180};
constexpr QSize NumberSize{100, 60};
constexpr int PixelsAFrame = 3;

QStringList Coding(int keyFrameEvery)
{
    return {QStringLiteral("-c:v"),
            QStringLiteral("libx264"),
            QStringLiteral("-preset"),
            QStringLiteral("veryfast"),
            QStringLiteral("-g"),
            QString::number(keyFrameEvery),
            QStringLiteral("-bf"),
            QStringLiteral("2"),
            QStringLiteral("-pix_fmt"),
            QStringLiteral("yuv420p"),
            QStringLiteral("-sc_threshold"),
            QStringLiteral("0")};
}

QString PathOf(const QString& name)
{
    static const QTemporaryDir folder;
    return folder.filePath(name);
}

QString MadeOnce(const QString& name, const MadeVideo::Recipe& recipe)
{
    const QString path = PathOf(name);
    if (!QFile::exists(path)) {
        EXPECT_TRUE(MadeVideo::Make(path, recipe));
    }
    return path;
}

QString WrittenOnce(const QString& name, const QByteArray& content)
{
    QFile file(PathOf(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
}

QImage DrawMoving(int number)
{
    QImage picture(MovingSize, QImage::Format_RGB888);
    picture.fill(QColor(128, 128, 128));
    QPainter painter(&picture);
    const QRectF place = PlayerClip::NumberAt(number);
    painter.drawImage(QPointF(place.x() * MovingSize.width(), place.y() * MovingSize.height()),
                      MadeVideo::Draw(number, NumberSize));
    return picture;
}

} // namespace

QRectF PlayerClip::NumberAt(int frame)
{
    return {static_cast<double>(PixelsAFrame * frame) / MovingSize.width(), 40.0 / MovingSize.height(),
            static_cast<double>(NumberSize.width()) / MovingSize.width(),
            static_cast<double>(NumberSize.height()) / MovingSize.height()};
}

QString PlayerClip::Numbered()
{
    MadeVideo::Recipe recipe;
    recipe.frames = Frames;
    recipe.output = Coding(12);
    return MadeOnce(QStringLiteral("numbered.mp4"), recipe);
}

QString PlayerClip::Moving()
{
    MadeVideo::Recipe recipe;
    recipe.size = MovingSize;
    recipe.frames = Frames;
    recipe.output = Coding(12);
    recipe.draw = &DrawMoving;
    return MadeOnce(QStringLiteral("moving.mp4"), recipe);
}

QString PlayerClip::WithSound()
{
    MadeVideo::Recipe recipe;
    recipe.frames = Frames;
    recipe.inputs = QStringList{QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                                QStringLiteral("sine=frequency=440:sample_rate=48000:duration=2.4")};
    recipe.output = Coding(12) + QStringList{QStringLiteral("-c:a"), QStringLiteral("pcm_s16le"), QStringLiteral("-af"),
                                             QStringLiteral("pan=stereo|c0=c0|c1=c0")};
    return MadeOnce(QStringLiteral("sound.mov"), recipe);
}

QString PlayerClip::OneKeyFrame()
{
    MadeVideo::Recipe recipe;
    recipe.frames = 300;
    recipe.output = Coding(1000);
    return MadeOnce(QStringLiteral("long.mp4"), recipe);
}

QString PlayerClip::Broken()
{
    return WrittenOnce(QStringLiteral("broken.mp4"), QByteArray(5000, 'x'));
}

QString PlayerClip::Truncated()
{
    const QString whole = PathOf(QStringLiteral("whole.mp4"));
    if (!QFile::exists(whole)) {
        EXPECT_TRUE(
            MadeVideo::RunFfmpeg({QStringLiteral("-i"), Numbered(), QStringLiteral("-c"), QStringLiteral("copy"),
                                  QStringLiteral("-movflags"), QStringLiteral("+faststart"), whole}));
    }
    QFile file(whole);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return WrittenOnce(QStringLiteral("truncated.mp4"), file.read(file.size() / 2));
}

PlayerClip::Timeline PlayerClip::Open(const QString& path)
{
    auto item = KxMediaItem::Open(path, {});
    if (!item) {
        ADD_FAILURE() << item.Message().toStdString();
        return nullptr;
    }
    return Timeline(IKxTimeline::createSimpleTimeline((*item)->clip()));
}

PlayerClip::Timeline PlayerClip::OpenMoving()
{
    Timeline timeline = Open(Moving());
    QList<KxCropPanZoomKeyFrameParam> keyFrames;
    for (const int frame : {0, 30, Frames - 1}) {
        KxCropPanZoomKeyFrameParam param;
        param.frame = frame;
        param.kind = KxCropPanZoomKeyFrameParam::Linear;
        param.cropRect = NumberAt(frame);
        keyFrames.append(param);
    }
    IKxKeyFrameHelper* helper = timeline->clips().constFirst()->keyFrameHelper(IKxKeyFrameHelper::CropPanZoom);
    dynamic_cast<IKxCropPanZoomKeyFrameHelper&>(*helper).setKeyFrames(keyFrames);
    return timeline;
}

std::shared_ptr<const KxPlaySource> PlayerClip::Source(const QString& path)
{
    const Timeline timeline = Open(path);
    return timeline ? KxPlaySource::Of(*timeline) : nullptr;
}
