#pragma once

#include <QString>

/// The language that a person chose in the menu, in the configuration file. Codes are those of KxLanguage.
namespace LanguageChoice
{
/// Empty: the system's language.
QString Saved();
void Save(const QString& code);

/// The language of this run: that of the command line if it names one; otherwise the saved one; otherwise the system's.
QString Of(const QString& fromCommandLine);
} // namespace LanguageChoice
