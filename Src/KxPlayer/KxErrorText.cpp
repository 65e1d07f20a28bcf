#include <KxPlayer/KxErrorText.h>

#include <KxWidgets/KxUIStyle.h>

#include <QFontMetrics>
#include <QPainter>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>

namespace
{

constexpr int MarginPx = 24;
constexpr int MostLines = 4;
QTextOption Centred()
{
    QTextOption option(Qt::AlignCenter);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

int LineCount(const QString& text, const QFont& font, int widthPx)
{
    QTextLayout layout(text, font);
    layout.setTextOption(Centred());
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(widthPx);
    }
    layout.endLayout();
    return layout.lineCount();
}

/// The longest shortened form of `text` that fits into `lines` lines of width `widthPx`.
QString Shortened(const QString& text, const QFont& font, int widthPx, int lines)
{
    const int stepPx = std::max(1, widthPx / 8);
    QString shown = text;
    for (int lengthPx = lines * widthPx; lengthPx > 0 && LineCount(shown, font, widthPx) > lines; lengthPx -= stepPx) {
        shown = QFontMetrics(font).elidedText(text, Qt::ElideMiddle, lengthPx);
    }
    return shown;
}

} // namespace

void KxErrorText::Paint(QPainter& painter, const QRect& area, const QString& text)
{
    const int marginPx = std::min(MarginPx, std::min(area.width(), area.height()) / 8);
    const QRect place = area.adjusted(marginPx, marginPx, -marginPx, -marginPx);
    const int lines = std::clamp(place.height() / painter.fontMetrics().lineSpacing(), 1, MostLines);
    painter.setPen(KxUIStyle::Colour(KxUIStyle::Role::Error));
    painter.drawText(QRectF(place), Shortened(text, painter.font(), place.width(), lines), Centred());
}
