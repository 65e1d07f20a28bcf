#pragma once

#include <KxCore/KxExport.h>

#include <QString>

#include <functional>

class QWidget;

/// Buttons of a message box.
enum class KrStandardButton { None = 0, Ok = 1, No = 2, Yes = 4 };

/// Kinds of message box.
enum class KrMessageType { Question = 0, Information = 1, Warning = 2 };

/// The host's message boxes. User-interface thread; each call returns when the person has answered.
namespace KrMessageDialog
{
/// A text to confirm. `title` empty: the product's name. The other two texts are a second line and a link, each left
/// out when empty; `withCheckBox` offers not to show the box again (remembered by its text, in the configuration file).
KXWIDGETS_API void Infomation(const QString& text, QWidget* parent, KrStandardButton buttons, const QString& detail,
                              const QString& title, const QString& link, bool withCheckBox);

/// A question with two answers; true when the person took the confirming one. `defaultButton` is the one that Return
/// presses.
KXWIDGETS_API bool Question_CustomYesNo(const QString& question, const QString& refuseText, const QString& confirmText,
                                        QWidget* parent, KrStandardButton defaultButton, const QString& detail,
                                        const QString& title, KrMessageType type);

/// What a box would show.
struct Shown {
    KrMessageType type = KrMessageType::Information;
    QString text;
    QString title;
    QString refuseText;
    QString confirmText;
    KrStandardButton defaultButton = KrStandardButton::Ok;
    QWidget* parent = nullptr;
};
/// Answers in the person's place; true confirms.
using Responder = std::function<bool(const Shown&)>;
/// From now on `responder` answers and nothing is shown; an empty one shows boxes again. For programs that run without
/// a person, tests among them.
KXWIDGETS_API void SetResponder(Responder responder);
} // namespace KrMessageDialog
