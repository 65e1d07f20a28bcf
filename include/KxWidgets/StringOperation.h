#pragma once

#include <KxCore/KxExport.h>

#include <Qt>

class QFont;
class QString;

namespace StringOperation
{
/// `text` as it is where it fits into `widthPx` pixels in `font`, else shortened with an ellipsis where `mode` says.
KXWIDGETS_API QString GetElidedString(const QString& text, const QFont& font, int widthPx, Qt::TextElideMode mode);
} // namespace StringOperation
