#pragma once

#include <KxCore/KxExport.h>

#include <QString>

/// The host's configuration file: INI format, one for each user.
namespace KxConfigFile
{
/// Full path; the file need not exist. The environment variable KX_CONFIG_FILE names another one.
///
/// The file at this path can be given to QSettings: it is absent, or it is a regular file of at most 1 MiB without
/// serialised values. QSettings would wait for the writer of a pipe for ever, and would allocate what a serialised
/// value claims to need. A file of the person's that is anything else is reported in the log and left alone; the path
/// is then that of a second file beside it, "name (2).ini".
KXCORE_API QString Path();

/// A text of the group "Auto Reframe"; empty when it is not set.
KXCORE_API QString ReadAutoReframe(const QString& key);
} // namespace KxConfigFile
