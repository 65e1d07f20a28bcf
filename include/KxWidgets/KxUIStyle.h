#pragma once

#include <KxCore/KxExport.h>

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QString>

class QApplication;
class QWidget;

/// The host's look. User-interface thread. A program calls Apply() and InstallTranslation() once, before its first
/// widget; dialogs of a program that does not are unreadable.
///
/// The style sheet distinguishes areas and texts by dynamic properties: a QFrame with "surface" true is a card; a
/// QLabel's "textRole" is "heading", "muted", "small", "hint" or "error"; "tabularFigures" true gives it digits of
/// equal width.
namespace KxUIStyle
{
/// The colours, named by their use. The style sheet uses the same names.
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
    Doubt,
};

/// Two sets of colours. The required look is the dark one.
enum class Scheme { Dark, Light };

/// Changes the colours of the whole program, also of what is on the screen; before Apply(), those that it begins with.
/// Initially dark.
KXWIDGETS_API void SetScheme(QApplication& application, Scheme scheme);
KXWIDGETS_API Scheme ShownScheme();

/// Sets style, palette, font and style sheet of the whole program. From then on a control that the keyboard focus has
/// reached is surrounded by a ring, and takes the keys that it needs before a shortcut of its window does.
KXWIDGETS_API void Apply(QApplication& application);

/// Shows the texts of the host and of the module in a language: "en", "de", "es", "fr", "ja", "pt_BR" or "zh_CN".
/// English needs the call, too: the sources contain keys in place of some texts ("AutoReframe_Exit"). Another call
/// changes the language. A program with translations of its own installs those after it: the last one is asked first.
KXWIDGETS_API void InstallTranslation(QApplication& application, const QString& language = QStringLiteral("en"));

/// Of the scheme that is shown; ask for it whenever something is painted.
KXWIDGETS_API QColor Colour(Role role);

/// An icon by its name ("folder", "close", …), sharp at every size and tinted by state. Null for an unknown name.
KXWIDGETS_API QIcon Icon(const QString& name);

/// The program's font, or the most similar one whose digits all have the same width.
KXWIDGETS_API QFont TabularFont();

/// Shows the label's text in another of the roles above.
KXWIDGETS_API void SetTextRole(QWidget& label, const QString& role);

/// Sets the background of an area: 0 window, 1 picture area, 5 panel. The style sheet reads it from the property
/// "bgColorType".
KXWIDGETS_API void SetBGColorType(QWidget* widget, int type);
} // namespace KxUIStyle
