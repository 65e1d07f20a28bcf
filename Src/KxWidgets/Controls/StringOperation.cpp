#include <KxWidgets/StringOperation.h>

#include <QFontMetrics>

QString StringOperation::GetElidedString(const QString& text, const QFont& font, int widthPx, Qt::TextElideMode mode)
{
    return QFontMetrics(font).elidedText(text, mode, widthPx);
}
