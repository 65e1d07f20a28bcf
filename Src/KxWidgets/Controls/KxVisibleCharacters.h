#pragma once

#include <KxCore/KxExport.h>

#include <QString>

/// Text measured in visible characters (grapheme clusters): an emoji, or a letter and its accents, is one of them
/// although it takes several QChars. Pure; any thread.
namespace KxVisibleCharacters
{
/// The start of `text`, at most `longest` QChars long. A character that does not fit is left out as a whole.
KXWIDGETS_API QString Left(const QString& text, int longest);

/// `text` without the halves of surrogate pairs. `cursor` moves back by those that were removed before it.
QString WithoutHalves(const QString& text, int& cursor);
} // namespace KxVisibleCharacters
