#pragma once

#include <KxCore/KxExport.h>

#include <QLocale>
#include <QStringList>

#include <optional>

/// The language of the texts that people read. The sources contain them in English (and some keys); translations of the
/// module, the host and both programs are resources of this library. Texts for other programs are never translated:
/// JSON, crop tracks, projects, tags of a file and the log's own words.
///
/// A language has a code: "en", "de", "pt_BR". Install() belongs to the thread of the application object.
namespace KxLanguage
{
/// All codes, English first.
KXCORE_API QStringList Codes();

/// A language in its own words: "Deutsch".
KXCORE_API QString NameOf(const QString& code);

/// The code for a language or locale as people and systems write it ("de", "pt-br", "zh_CN.UTF-8"); nothing if there is
/// no translation. A country that has none of its own gets that of its language.
KXCORE_API std::optional<QString> Find(const QString& name);

/// The code of the first of the person's languages that is available; English if none is.
KXCORE_API QString OfSystem();

/// The language that the last option `--language` among a program's arguments names, or that of the system. Messages
/// about wrong arguments have a language, too, so it is looked for before the arguments are parsed.
KXCORE_API QString OfCommandLine(const QStringList& arguments);

/// The help for the option `--language`, and the message about an unknown value.
KXCORE_API QString OptionText();
KXCORE_API QString UnknownText(const QString& name);

/// From now on texts are in this language, those of Qt included. Existing widgets receive QEvent::LanguageChange. Needs
/// an application object; a new one needs a new call.
KXCORE_API void Install(const QString& code);

/// What Install() was last given; English before. Any thread.
KXCORE_API QString Current();

/// For the numbers in a text, without separators of thousands: a picture is 1920 pixels wide, not 1,920. Any thread.
KXCORE_API QLocale Locale();
} // namespace KxLanguage
