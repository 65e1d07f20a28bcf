#pragma once

#include <KxCore/KxExport.h>

#include <QString>

/// The host's configuration file: INI format, one for each user.
namespace KxConfigFile
{
/// Full path; the file need not exist. The environment variable KX_CONFIG_FILE names another one.
KXCORE_API QString Path();

/// A text of the group "Auto Reframe"; empty when it is not set.
KXCORE_API QString ReadAutoReframe(const QString& key);
} // namespace KxConfigFile
