#include <KxMedia/Picture/KxPictureScaler.h>

#include <Tests/KxMedia/Read/ReadClips.h>

#include <gtest/gtest.h>

#include <cmath>

using ReadClips::Path;
using ReadClips::Words;

namespace
{

// A coarse picture whose four quarters are red, green, blue and grey.
QImage Quarters(const QSize& size)
{
    QImage picture(size, QImage::Format_RGB888);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const bool right = x >= size.width() / 2;
            const bool low = y >= size.height() / 2;
            picture.setPixelColor(x, y,
                                  low ? (right ? QColor(128, 128, 128) : QColor(40, 60, 220))
                                      : (right ? QColor(30, 200, 50) : QColor(210, 40, 30)));
        }
    }
    return picture;
}

// Fine enough to detect a shift by one pixel of the small picture.
QImage Circles(const QSize& size)
{
    QImage picture(size, QImage::Format_RGB888);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const double radius = std::hypot(x - size.width() / 3.0, y - size.height() / 3.0);
            const int value = static_cast<int>(128.0 + 100.0 * std::sin(radius / 12.0));
            picture.setPixelColor(x, y, QColor(value, value, x * 200 / size.width()));
        }
    }
    return picture;
}

KxVideoFrame FirstPicture(const QString& name, const QSize& size, const char* output)
{
    MadeVideo::Recipe recipe;
    recipe.size = size;
    recipe.frames = 3;
    recipe.output = Words(output);
    recipe.draw = [size](int) { return Quarters(size); };
    KxVideoFrame picture;
    if (MadeVideo::Make(Path(name), recipe)) {
        const std::unique_ptr<KxVideoReader> reader = ReadClips::OpenReader(Path(name));
        EXPECT_TRUE(reader && reader->Read(0, picture) == KxReadStatus::Delivered);
    }
    return picture;
}

void ExpectQuarters(const QImage& image, int tolerance)
{
    const auto expectNear = [&](int x, int y, const QColor& wanted) {
        const QColor got = image.pixelColor(image.width() * x / 4, image.height() * y / 4);
        EXPECT_NEAR(got.red(), wanted.red(), tolerance);
        EXPECT_NEAR(got.green(), wanted.green(), tolerance);
        EXPECT_NEAR(got.blue(), wanted.blue(), tolerance);
    };
    expectNear(1, 1, QColor(210, 40, 30));
    expectNear(3, 1, QColor(30, 200, 50));
    expectNear(1, 3, QColor(40, 60, 220));
    expectNear(3, 3, QColor(128, 128, 128));
}

} // namespace

TEST(KxPictureScaler, KeepsColoursOfEveryMatrixAndRange)
{
    const struct {
        const char* name;
        QSize size;
        const char* output;
    } files[] = {
        {"sd.mp4", {160, 96}, "-c:v libx264 -qp 4 -pix_fmt yuv420p"},
        {"tagged709.mp4",
         {160, 96},
         "-vf scale=out_color_matrix=bt709 -colorspace bt709 -c:v libx264 -qp 4 -pix_fmt yuv420p"},
        {"untagged709.mkv",
         {1280, 720},
         "-vf scale=out_color_matrix=bt709 -c:v libx264 -preset ultrafast -qp 4 -pix_fmt yuv420p"},
        {"full.mp4", {160, 96}, "-vf scale=out_range=full -color_range pc -c:v libx264 -qp 4 -pix_fmt yuv420p"},
        {"jpeg.avi", {160, 96}, "-c:v mjpeg -q:v 1 -pix_fmt yuvj444p"},
        {"bt2020.mp4",
         {160, 96},
         "-vf scale=out_color_matrix=bt2020 -colorspace bt2020nc -c:v libx264 -qp 4 -pix_fmt yuv420p10le"},
        {"rgb.mkv", {160, 96}, "-c:v ffv1 -pix_fmt bgr0"},
        {"alpha.mov", {160, 96}, "-c:v prores_ks -pix_fmt yuva444p10le"},
    };
    for (const auto& file : files) {
        SCOPED_TRACE(file.name);
        const KxVideoFrame picture = FirstPicture(QLatin1String(file.name), file.size, file.output);
        ASSERT_FALSE(picture.IsNull());
        for (const auto detail :
             {KxPictureScaler::Detail::Full, KxPictureScaler::Detail::Coarse, KxPictureScaler::Detail::Overview}) {
            SCOPED_TRACE(static_cast<int>(detail));
            KxPictureScaler scaler(detail);
            ExpectQuarters(scaler.Scale(picture, {80, 48}, QImage::Format_RGB32), 6);
            ExpectQuarters(scaler.Scale(picture, {81, 47}, QImage::Format_BGR888), 6);
            ExpectQuarters(scaler.Scale(picture, {320, 192}, QImage::Format_RGB32), 6);
            const QImage grey = scaler.Scale(picture, {80, 48}, QImage::Format_Grayscale8);
            EXPECT_EQ(grey.format(), QImage::Format_Grayscale8);
            EXPECT_NEAR(qGray(grey.pixel(60, 36)), 128, 6);
            EXPECT_EQ(qAlpha(scaler.Scale(picture, {80, 48}, QImage::Format_RGB32).pixel(5, 5)), 255);
        }
    }
}

namespace
{

/// Of the grey values of two pictures of one size.
double MeanDifference(const QImage& a, const QImage& b)
{
    double difference = 0.0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            difference += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
        }
    }
    return difference / (a.width() * a.height());
}

} // namespace

TEST(KxPictureScaler, CoarsePicturesDifferLittle)
{
    const struct {
        const char* name;
        QSize size;
        const char* output;
    } files[] = {
        {"coarse.mp4", {640, 360}, "-c:v libx264 -qp 4 -pix_fmt yuv420p"},
        {"coarse10.mp4", {642, 358}, "-c:v libx264 -qp 4 -pix_fmt yuv422p10le"},
        {"coarsegrey.mkv", {640, 360}, "-c:v ffv1 -pix_fmt gray"},
    };
    for (const auto& file : files) {
        SCOPED_TRACE(file.name);
        MadeVideo::Recipe recipe;
        recipe.size = file.size;
        recipe.frames = 2;
        recipe.output = Words(file.output);
        recipe.draw = [&file](int) { return Circles(file.size); };
        ASSERT_TRUE(MadeVideo::Make(Path(QLatin1String(file.name)), recipe));
        KxVideoFrame picture;
        const std::unique_ptr<KxVideoReader> reader = ReadClips::OpenReader(Path(QLatin1String(file.name)));
        ASSERT_TRUE(reader && reader->Read(0, picture) == KxReadStatus::Delivered);
        const QSize size(64, 36);
        const QImage full = KxPictureScaler().Scale(picture, size, QImage::Format_RGB32);
        for (const auto detail : {KxPictureScaler::Detail::Coarse, KxPictureScaler::Detail::Overview}) {
            const QImage coarse = KxPictureScaler(detail).Scale(picture, size, QImage::Format_RGB32);
            ASSERT_EQ(coarse.size(), size);
            // The conversion from half the chroma, as in the others, is more than a level too dark.
            EXPECT_LT(MeanDifference(full, coarse), detail == KxPictureScaler::Detail::Overview ? 2.5 : 1.5);
        }
    }
}

TEST(KxPictureScaler, TurnsAndMirrors)
{
    const KxVideoFrame lying =
        FirstPicture(QStringLiteral("lying.mp4"), {160, 96}, "-c:v libx264 -qp 4 -pix_fmt yuv420p");
    ASSERT_FALSE(lying.IsNull());
    const std::shared_ptr<const AVFrame> pixels(std::shared_ptr<const AVFrame>(), &lying.Picture());
    KxPictureScaler scaler;
    for (const int degrees : {0, 90, 180, 270}) {
        for (const bool mirror : {false, true}) {
            const QSize upright = degrees % 180 == 0 ? QSize(160, 96) : QSize(96, 160);
            const KxVideoFrame turned(pixels, 0, {degrees, mirror}, upright);
            const QImage image = scaler.Scale(turned, upright, QImage::Format_RGB32);
            ASSERT_EQ(image.size(), upright);
            const QImage back = image.transformed(QTransform().rotate(-degrees)).mirrored(mirror, false);
            ExpectQuarters(back, 6);
        }
    }
}

TEST(KxPictureScaler, RefusesUnsupportedRequests)
{
    const KxVideoFrame picture =
        FirstPicture(QStringLiteral("refused.mp4"), {160, 96}, "-c:v libx264 -pix_fmt yuv420p");
    KxPictureScaler scaler;
    EXPECT_TRUE(scaler.Scale(KxVideoFrame(), {80, 48}, QImage::Format_RGB32).isNull());
    EXPECT_TRUE(scaler.Scale(picture, {0, 48}, QImage::Format_RGB32).isNull());
    EXPECT_TRUE(scaler.Scale(picture, {80, 48}, QImage::Format_ARGB32).isNull());
    EXPECT_FALSE(scaler.Scale(picture, {80, 48}, QImage::Format_RGB32).isNull());
}
