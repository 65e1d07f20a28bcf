#include <KxCore/KxUtility.h>

QRect KxUtility::getFitCentralWindowRectByRatio(const QRect& rect, const QSize& ratio)
{
    if (rect.isEmpty() || ratio.isEmpty()) {
        return QRect(rect.topLeft(), QSize(0, 0));
    }
    QSize fitted(rect.size());
    // In 64 bits: the product of a large picture's size and a large screen's size exceeds 32 bits.
    const qint64 widthAtFullHeight = static_cast<qint64>(rect.height()) * ratio.width() / ratio.height();
    if (widthAtFullHeight <= rect.width()) {
        fitted.setWidth(static_cast<int>(widthAtFullHeight));
    } else {
        fitted.setHeight(static_cast<int>(static_cast<qint64>(rect.width()) * ratio.height() / ratio.width()));
    }
    const QPoint middle((rect.width() - fitted.width()) / 2, (rect.height() - fitted.height()) / 2);
    return QRect(rect.topLeft() + middle, fitted);
}
