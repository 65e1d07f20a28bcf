#pragma once

#include <KxCore/KxExport.h>

#include <QString>

class QWidget;

/// Buttons of a message box.
enum class KrStandardButton { None = 0, Ok = 1, No = 2, Yes = 4 };

/// Kinds of message box.
enum class KrMessageType { Question = 0, Information = 1, Warning = 2 };

/// The host's message boxes. All texts are plain text. User-interface thread; each call returns when the person has
/// answered.
namespace KrMessageDialog
{
/// Shows a text to confirm. An empty `title` is replaced by the product's name. `detail` is a second paragraph and
/// `link` a web address, each omitted if empty. `withCheckBox` offers not to show the box again; the configuration file
/// remembers that by the text.
KXWIDGETS_API void Infomation(const QString& text, QWidget* parent, KrStandardButton buttons, const QString& detail,
                              const QString& title, const QString& link, bool withCheckBox);

/// Asks a question with two answers; true if the person confirms. Return presses `defaultButton`.
KXWIDGETS_API bool Question_CustomYesNo(const QString& question, const QString& refuseText, const QString& confirmText,
                                        QWidget* parent, KrStandardButton defaultButton, const QString& detail,
                                        const QString& title, KrMessageType type);
} // namespace KrMessageDialog
