#pragma once

#include <KxCore/KxExport.h>

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QString>

class QApplication;
class QWidget;

/// The host's look. User-interface thread. The style sheet tells areas and texts apart by dynamic properties: a QFrame
/// with "surface" true is a card; a QLabel's "textRole" is "heading", "muted", "small" or "error"; "tabularFigures"
/// true gives it digits of one width.
namespace KxUIStyle
{
/// The colours by what they are for; the style sheet knows them by the same names.
enum class Role {
    Window,
    Panel,
    Surface,
    Field,
    Picture,
    Line,
    SurfaceLine,
    FieldLine,
    Text,
    Muted,
    Off,
    Strong,
    Accent,
    OnAccent,
    Edited,
    Error,
    Icon,
    Button,
    ButtonLine,
    PlayedTrack,
    DropFrame,
};

/// Sets style, font and style sheet of the whole program. Once, before the first widget. From then on the control that
/// was reached with the keyboard wears a ring, and takes the keys that it needs before a shortcut of its window does.
KXWIDGETS_API void Apply(QApplication& application);

KXWIDGETS_API QColor Colour(Role role);

/// An icon of the family by its name ("folder", "close", …), sharp at every size and tinted by state. Null for a name
/// that the family does not have.
KXWIDGETS_API QIcon Icon(const QString& name);

/// The program's font, or the nearest one in which every digit is as wide as the others.
KXWIDGETS_API QFont TabularFont();

/// Background of an area: 0 window, 1 picture area, 5 panel. Sets the property "bgColorType", by which the style sheet
/// paints.
KXWIDGETS_API void SetBGColorType(QWidget* widget, int type);
} // namespace KxUIStyle
