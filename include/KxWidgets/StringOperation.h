#pragma once

#include <KxCore/KxExport.h>

#include <Qt>

class QFont;
class QString;

namespace StringOperation
{
/// `text` if it fits into `widthPx` pixels in `font`; otherwise shortened with an ellipsis at the place that `mode`
/// names.
KXWIDGETS_API QString GetElidedString(const QString& text, const QFont& font, int widthPx, Qt::TextElideMode mode);
} // namespace StringOperation
