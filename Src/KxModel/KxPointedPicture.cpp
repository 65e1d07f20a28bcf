#include <KxModel/KxPointedPicture.h>

#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Read/KxVideoReader.h>
#include <KxSubject/Choice/KxDetectedBox.h>
#include <KxSubject/KxPointedBox.h>
#include <KxSubject/KxSubjectRecord.h>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace
{

/// Shares of coarse colours, eight steps of each channel.
class Colours
{
public:
    /// Of `area`, but for `hole`.
    Colours(const QImage& picture, const QRect& area, const QRect& hole)
    {
        const QRect inside = area & picture.rect();
        for (int y = inside.top(); y <= inside.bottom(); ++y) {
            for (int x = inside.left(); x <= inside.right(); ++x) {
                if (!hole.contains(x, y)) {
                    const QRgb pixel = picture.pixel(x, y);
                    constexpr int shift = 5;
                    m_counts[static_cast<std::size_t>((qRed(pixel) >> shift) * 64 + (qGreen(pixel) >> shift) * 8 +
                                                      (qBlue(pixel) >> shift))] += 1.0;
                    m_pixels += 1.0;
                }
            }
        }
    }

    double SharedWith(const Colours& other) const
    {
        double shared = 0.0;
        for (std::size_t i = 0; m_pixels > 0.0 && other.m_pixels > 0.0 && i < m_counts.size(); ++i) {
            shared += std::min(m_counts[i] / m_pixels, other.m_counts[i] / other.m_pixels);
        }
        return shared;
    }

private:
    std::array<double, 512> m_counts{};
    double m_pixels = 0.0;
};

QRect PixelsOf(const QRectF& box, const QSize& size)
{
    return QRectF(box.x() * size.width(), box.y() * size.height(), box.width() * size.width(),
                  box.height() * size.height())
        .toAlignedRect();
}

/// The number of edges of the picture that a box reaches.
int EdgesAt(const QRectF& box)
{
    constexpr double rounding = 1e-6;
    return (box.left() < rounding ? 1 : 0) + (box.top() < rounding ? 1 : 0) + (box.right() > 1.0 - rounding ? 1 : 0) +
           (box.bottom() > 1.0 - rounding ? 1 : 0);
}

} // namespace

KxAutoReframeGuess KxPointedPicture::GuessAt(const QString& path, qint64 frame, const QPointF& point,
                                             const KxSubjectRecord* record)
{
    const std::optional<KxSubjectBox> detected =
        record != nullptr ? KxDetectedBoxAt(*record, KxSubjectOptions().detections, frame, point.x(), point.y())
                          : std::nullopt;
    if (detected) {
        return {{detected->x, detected->y, detected->width, detected->height}, false};
    }
    // As large as the pictures in which what was pointed at is followed.
    constexpr int sidePx = 320;
    const KxResult<std::unique_ptr<KxVideoReader>> reader =
        KxVideoReader::Open(path, KxCancelToken(), KxVideoReader::Purpose::Analysis);
    KxVideoFrame picture;
    if (!reader || (*reader)->Read(frame, picture) != KxReadStatus::Delivered) {
        return {};
    }
    const QSize size = (*reader)->Facts().video->resolution.scaled(sidePx, sidePx, Qt::KeepAspectRatio);
    KxPictureScaler scaler(KxPictureScaler::Detail::Coarse);
    const QImage image = scaler.Scale(picture, size, QImage::Format_BGR888);
    if (image.isNull()) {
        return {};
    }
    Seen seen = Seen::Unknown;
    if (record != nullptr) {
        seen =
            KxSawSomethingAt(*record, record->SecondsAt(frame), point.x(), point.y()) ? Seen::Something : Seen::Nothing;
    }
    return GuessIn(image, point, seen);
}

KxAutoReframeGuess KxPointedPicture::GuessIn(const QImage& picture, const QPointF& point, Seen seen)
{
    const KxGuessedBox guess = KxGuessBoxAt(
        {picture.constBits(), {picture.width(), picture.height()}, static_cast<std::size_t>(picture.bytesPerLine())},
        point.x(), point.y());
    const QRectF box(guess.box.x, guess.box.y, guess.box.width, guess.box.height);
    // Chosen by trial on clicks on things and beside them (Benchmarks/follow --clicks).
    constexpr double usualShare = 0.5;
    constexpr double clearShare = 0.7;
    const bool isKnown = seen == Seen::Nothing;
    const bool goesOn = SharedColours(picture, box) > (isKnown ? usualShare : clearShare);
    const bool isCutOff = guess.isOutlined && EdgesAt(box) >= (isKnown ? 1 : 2);
    return {box, (seen != Seen::Something && (goesOn || isCutOff)) || IsPlain(picture, box)};
}

bool KxPointedPicture::IsPlain(const QImage& picture, const QRectF& box)
{
    // Of 255, between neighbours; noise and a gradual light stay below.
    constexpr int edge = 14;
    constexpr double fewEdges = 0.02;
    const QRect area = PixelsOf(box, picture.size()) & picture.rect().adjusted(0, 0, -1, -1);
    if (area.isEmpty()) {
        return false;
    }
    qint64 edges = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb here = picture.pixel(x, y);
            const QRgb right = picture.pixel(x + 1, y);
            const QRgb below = picture.pixel(x, y + 1);
            const auto differs = [here](QRgb other) {
                return std::abs(qRed(here) - qRed(other)) > edge || std::abs(qGreen(here) - qGreen(other)) > edge ||
                       std::abs(qBlue(here) - qBlue(other)) > edge;
            };
            edges += differs(right) || differs(below) ? 1 : 0;
        }
    }
    return static_cast<double>(edges) < fewEdges * area.width() * area.height();
}

double KxPointedPicture::SharedColours(const QImage& picture, const QRectF& box)
{
    // On each side, in widths and heights of the box.
    constexpr double margin = 0.6;
    const QRect inner = PixelsOf(box, picture.size()) & picture.rect();
    const QSize around(qRound(margin * inner.width()), qRound(margin * inner.height()));
    const QRect outer = inner.adjusted(-around.width(), -around.height(), around.width(), around.height());
    const QRect middle = inner.adjusted(inner.width() / 4, inner.height() / 4, -inner.width() / 4, -inner.height() / 4);
    const Colours surroundings(picture, outer, inner);
    return std::min(Colours(picture, inner, {}).SharedWith(surroundings),
                    Colours(picture, middle, {}).SharedWith(surroundings));
}
