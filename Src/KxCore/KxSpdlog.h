#pragma once

#include <KxCore/KxLog.h>

/// Settings of the process-wide log.
namespace KxLogSettings
{
/// Lines below this level are dropped. The default is Warning; the environment variable KX_LOG_LEVEL (debug, info,
/// warning, error) overrides it at start. Any thread.
KXCORE_API void SetLevel(IKxLog::Level level);

/// Sends the messages of qDebug(), qWarning() and so on to the log instead of the terminal.
KXCORE_API void RouteQtMessages();
} // namespace KxLogSettings
