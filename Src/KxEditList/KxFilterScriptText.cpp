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
    return QByteArray::number(value, 'f', 6);
}

QByteArray WholeNumber(double value)
{
    return QByteArray::number(std::round(value), 'f', 0);
}

/// One number that moves, and the filter that it steers.
struct Side {
    const char* filter;
    const char* option;
    double (*of)(const QRectF& place);
};
constexpr std::array<Side, 4> Sides{{{"scale", "w", [](const QRectF& place) { return place.width(); }},
                                     {"scale", "h", [](const QRectF& place) { return place.height(); }},
                                     {"crop", "x", [](const QRectF& place) { return -place.x(); }},
                                     {"crop", "y", [](const QRectF& place) { return -place.y(); }}}};

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
    QRectF EnlargedPlace(const KxPlacementKey& key) const;
    /// What changes from `key` until the frame of `next`.
    QByteArray Interval(const KxPlacementKey& key, const KxPlacementKey& next) const;
    QByteArray Commands() const;

    const KxCroppedClip& m_clip;
    const std::vector<KxPlacementKey>& m_keys;
    int m_enlargement;
};

QRectF Writer::EnlargedPlace(const KxPlacementKey& key) const
{
    return {key.place.topLeft() * m_enlargement, key.place.size() * m_enlargement};
}

QByteArray Writer::Interval(const KxPlacementKey& key, const KxPlacementKey& next) const
{
    const QRectF from = EnlargedPlace(key);
    const QRectF to = key.holds ? from : EnlargedPlace(next);
    const double rate = m_clip.frameRate.ToDouble();
    const double seconds = static_cast<double>(next.frame - key.frame) / rate;
    QByteArray commands;
    for (const Side& side : Sides) {
        const double perSecond = (side.of(to) - side.of(from)) / seconds;
        const QByteArray target = QByteArray(side.filter) + " " + side.option + " ";
        // Numbers that do not change are sent once, when the interval begins.
        const QByteArray command = perSecond == 0.0 ? "[enter] " + target + WholeNumber(side.of(from))
                                                    : "[expr] " + target + "round(" + Number(side.of(from)) + "+(" +
                                                          Number(perSecond) + ")*(T-" +
                                                          Number(static_cast<double>(key.frame) / rate) + "))";
        commands += (commands.isEmpty() ? "" : ", ") + command;
    }
    return Number(std::max(0.0, StartOf(key.frame))) + "-" + Number(StartOf(next.frame)) + " " + commands;
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
    const QRectF first = EnlargedPlace(m_keys.front());
    const auto size = [](const QSize& pixels) {
        return QByteArray::number(pixels.width()) + ":" + QByteArray::number(pixels.height());
    };
    // All colour samples lie on pixels, so that every pixel can be cut at. The filter `crop` has to follow `scale`
    // directly: only then it learns of another size.
    return "setpts=PTS-STARTPTS,\nfps=" + QByteArray::number(m_clip.frameRate.numerator) + "/" +
           QByteArray::number(m_clip.frameRate.denominator) + ",\nformat=yuv444p,\nsendcmd=c='" + Commands() +
           "',\nscale=" + WholeNumber(first.width()) + ":" + WholeNumber(first.height()) +
           ":flags=bicubic,\ncrop=" + size(m_clip.outputSize * m_enlargement) + ":" + WholeNumber(-first.x()) + ":" +
           WholeNumber(-first.y()) + ":exact=1,\nscale=" + size(m_clip.outputSize) +
           ":flags=bicubic,\nsetsar=1,\nformat=yuv420p\n";
}

} // namespace

QByteArray KxFilterScriptText::Of(const KxCroppedClip& clip, const std::vector<KxPlacementKey>& keys)
{
    return Writer(clip, keys).Text();
}
