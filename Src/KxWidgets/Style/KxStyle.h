#pragma once

#include <QProxyStyle>

/// The style below the style sheet: Fusion without its own focus rectangle, because KxFocusRing shows the focus.
class KxStyle : public QProxyStyle
{
    Q_OBJECT
public:
    KxStyle();
    ~KxStyle() override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};
