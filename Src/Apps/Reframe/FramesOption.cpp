#include <Apps/Reframe/FramesOption.h>

#include <QCoreApplication>
#include <QRegularExpression>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(FramesOption)
};

} // namespace

FramesOption::FramesOption(Kind kind, qint64 first, qint64 second)
    : m_kind(kind)
    , m_first(first)
    , m_second(second)
{
}

std::optional<FramesOption> FramesOption::Parse(const QString& text)
{
    // Nine digits are more than the longest video has, and a product of two such numbers fits 64 bits.
    static const QRegularExpression form(QStringLiteral("^(\\d{1,9})([-/])(\\d{1,9})$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    const qint64 first = match.captured(1).toLongLong();
    const qint64 second = match.captured(3).toLongLong();
    const Kind kind = match.captured(2) == QLatin1String("-") ? Kind::Frames : Kind::Part;
    if (first > second || (kind == Kind::Part && first == 0)) {
        return std::nullopt;
    }
    return FramesOption(kind, first, second);
}

KxResult<KxFrameRange> FramesOption::Of(qint64 frameCount, qint64 segmentFrames) const
{
    using Range = KxResult<KxFrameRange>;
    if (m_kind == Kind::Frames) {
        return m_second < frameCount
                   ? Range(KxFrameRange{m_first, m_second + 1})
                   : Range::Failure(Texts::tr("its last frame is %1").arg(QString::number(frameCount - 1)));
    }
    const qint64 unit = frameCount / segmentFrames >= m_second ? segmentFrames : 1;
    const auto begin = [&](qint64 part) {
        return part < m_second ? frameCount * part / m_second / unit * unit : frameCount;
    };
    const KxFrameRange frames{begin(m_first - 1), begin(m_first)};
    return frames.Count() > 0 ? Range(frames)
                              : Range::Failure(Texts::tr("it has %1 frames only").arg(QString::number(frameCount)));
}
