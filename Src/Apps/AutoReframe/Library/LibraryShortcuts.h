#pragma once

#include <QKeySequence>

/// The main window's shortcuts that Qt has no standard for.
namespace LibraryShortcuts
{
inline QKeySequence ReframeAll()
{
    return QKeySequence(QStringLiteral("Ctrl+Shift+R"));
}
inline QKeySequence Quit()
{
    return QKeySequence(QStringLiteral("Ctrl+Q"));
}
} // namespace LibraryShortcuts
