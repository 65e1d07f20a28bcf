#include <KxWidgets/Style/KxStyle.h>

KxStyle::KxStyle()
    : QProxyStyle(QStringLiteral("Fusion"))
{
}

KxStyle::~KxStyle() = default;

void KxStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    if (element != PE_FrameFocusRect) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}
