#include <KxCore/KxOutputSize.h>

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace
{

constexpr int LongestSidePx = 16384;
// A crop of odd width becomes a pixel wider or narrower, and people round.
constexpr double ShapeTolerance = 0.01;

int Even(double exact)
{
    return std::max(2, 2 * static_cast<int>(std::lround(exact / 2.0)));
}

bool IsUsable(int sidePx)
{
    return sidePx >= 2 && sidePx <= LongestSidePx && sidePx % 2 == 0;
}

} // namespace

std::optional<KxOutputSize> KxOutputSize::Parse(const QString& text)
{
    static const QRegularExpression Both(QStringLiteral("^(\\d{1,5})x(\\d{1,5})$"));
    static const QRegularExpression Height(QStringLiteral("^(\\d{1,5})p$"));
    KxOutputSize size;
    if (const auto match = Both.match(text); match.hasMatch()) {
        size.exact = QSize(match.captured(1).toInt(), match.captured(2).toInt());
        return IsUsable(size.exact.width()) && IsUsable(size.exact.height()) ? std::optional(size) : std::nullopt;
    }
    const auto match = Height.match(text);
    size.heightPx = match.captured(1).toInt();
    return match.hasMatch() && IsUsable(size.heightPx) ? std::optional(size) : std::nullopt;
}

KxResult<QSize> KxOutputSize::For(const QSizeF& crop, const QSize& cropSize) const
{
    if (IsThatOfTheCrop()) {
        return cropSize;
    }
    const double aspect = crop.width() / crop.height();
    if (exact.isEmpty()) {
        const double height = heightPx > 0 ? heightPx : aspect < 1.0 ? shortSidePx / aspect : shortSidePx;
        return QSize(Even(height * aspect), Even(height));
    }
    const int heightOfWidth = Even(exact.width() / aspect);
    const bool isNearest = exact.height() == heightOfWidth || exact.width() == Even(exact.height() * aspect);
    if (!isNearest && std::abs(aspect * exact.height() / exact.width() - 1.0) > ShapeTolerance) {
        return KxResult<QSize>::Failure(
            QCoreApplication::translate("KxOutputSize",
                                        "the size %1 x %2 does not have the shape of the crop; %1 x %3 does")
                .arg(QString::number(exact.width()), QString::number(exact.height()), QString::number(heightOfWidth)));
    }
    return exact;
}

bool KxOutputSize::Enlarges(const QSize& size, const QSize& cropSize)
{
    return size.width() > cropSize.width() || size.height() > cropSize.height();
}
