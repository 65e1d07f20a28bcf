#include <KxEditList/KxFilterScriptText.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace
{

/// The filter cuts at whole pixels, so the picture is enlarged before.
int EnlargementOf(const QSize& picture)
{
    constexpr int most = 4;
    constexpr int widest = 8192;
    return std::clamp(widest / picture.width(), 1, most);
}

QByteArray Number(double value)
{
    return QByteArray::number(value, 'f', 4);
}

struct Side {
    const char* option; ///< of the filter `crop`
    double (*of)(const QRectF& crop);
};
constexpr std::array<Side, 4> Sides{{{"w", [](const QRectF& crop) { return crop.width(); }},
                                     {"h", [](const QRectF& crop) { return crop.height(); }},
                                     {"x", [](const QRectF& crop) { return crop.x(); }},
                                     {"y", [](const QRectF& crop) { return crop.y(); }}}};

class Writer
{
public:
    Writer(const KxCroppedClip& clip, const std::vector<KxPlacementKey>& keys)
        : m_clip(clip)
        , m_keys(keys)
        , m_enlargement(EnlargementOf(clip.size))
    {
    }

    QByteArray Text() const;

private:
    /// Seconds; half a frame early, so that rounded times of frames lie safely inside the intervals.
    double StartOf(qint64 frame) const { return (static_cast<double>(frame) - 0.5) / m_clip.frameRate.ToDouble(); }
    QRectF EnlargedCrop(const KxPlacementKey& key) const;
    /// What changes from `key` until the frame of `next`.
    QByteArray Interval(const KxPlacementKey& key, const KxPlacementKey& next) const;
    QByteArray Commands() const;

    const KxCroppedClip& m_clip;
    const std::vector<KxPlacementKey>& m_keys;
    int m_enlargement;
};

QRectF Writer::EnlargedCrop(const KxPlacementKey& key) const
{
    const QRectF crop = KxPlacementKeys::CropOf(m_clip, key.place);
    return {crop.topLeft() * m_enlargement, crop.size() * m_enlargement};
}

QByteArray Writer::Interval(const KxPlacementKey& key, const KxPlacementKey& next) const
{
    const QRectF from = EnlargedCrop(key);
    const QRectF to = key.holds ? from : EnlargedCrop(next);
    const double rate = m_clip.frameRate.ToDouble();
    const double seconds = static_cast<double>(next.frame - key.frame) / rate;
    QByteArray commands;
    for (const Side& side : Sides) {
        const double perSecond = (side.of(to) - side.of(from)) / seconds;
        // Numbers that do not change are sent once, when the interval begins.
        const QByteArray command =
            perSecond == 0.0 ? "[enter] crop " + QByteArray(side.option) + " " + Number(std::round(side.of(from)))
                             : "[expr] crop " + QByteArray(side.option) + " round(" + Number(side.of(from)) + "+(" +
                                   QByteArray::number(perSecond, 'f', 6) + ")*(T-" +
                                   QByteArray::number(static_cast<double>(key.frame) / rate, 'f', 6) + "))";
        commands += (commands.isEmpty() ? "" : ", ") + command;
    }
    return QByteArray::number(std::max(0.0, StartOf(key.frame)), 'f', 6) + "-" +
           QByteArray::number(StartOf(next.frame), 'f', 6) + " " + commands;
}

QByteArray Writer::Commands() const
{
    QByteArray text;
    for (std::size_t i = 0; i < m_keys.size(); ++i) {
        KxPlacementKey next = m_keys[std::min(i + 1, m_keys.size() - 1)];
        if (i + 1 == m_keys.size()) {
            next.frame = m_keys[i].frame + 1;
        }
        text += (text.isEmpty() ? "" : ";\n") + Interval(m_keys[i], next);
    }
    return text;
}

QByteArray Writer::Text() const
{
    const QRectF first = EnlargedCrop(m_keys.front());
    const auto size = [](const QSize& pixels) {
        return QByteArray::number(pixels.width()) + ":" + QByteArray::number(pixels.height());
    };
    QByteArray options;
    for (const Side& side : Sides) {
        options += ":" + QByteArray(side.option) + "=" + Number(std::round(side.of(first)));
    }
    // All colour samples lie on pixels, so that every pixel can be cut at.
    return "setpts=PTS-STARTPTS,\nfps=" + QByteArray::number(m_clip.frameRate.numerator) + "/" +
           QByteArray::number(m_clip.frameRate.denominator) + ",\nscale=" + size(m_clip.size * m_enlargement) +
           ":flags=bicubic,\nsetsar=1,\nformat=yuv444p,\nsendcmd=c='" + Commands() + "',\ncrop=exact=1" + options +
           ",\nscale=" + size(m_clip.outputSize) + ":flags=bicubic,\nsetsar=1,\nformat=yuv420p\n";
}

} // namespace

QByteArray KxFilterScriptText::Of(const KxCroppedClip& clip, const std::vector<KxPlacementKey>& keys)
{
    return Writer(clip, keys).Text();
}
