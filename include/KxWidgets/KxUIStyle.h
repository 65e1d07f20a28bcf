#pragma once

#include <KxCore/KxExport.h>

#include <QIcon>
#include <QString>

class QApplication;
class QWidget;

/// The host's look.
namespace KxUIStyle
{
/// Sets style, font and style sheet of the whole program. Once, before the first widget.
KXWIDGETS_API void Apply(QApplication& application);

/// Background of an area: 0 window, 1 picture area, 5 panel. Sets the property "bgColorType", by which the style sheet paints.
KXWIDGETS_API void SetBGColorType(QWidget* widget, int type);
} // namespace KxUIStyle
