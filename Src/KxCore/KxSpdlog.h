#pragma once

#include <KxCore/KxLog.h>

/// Where the process-wide log writes to.
namespace KxLogSettings
{
/// Lines below this level are dropped. The default is Warning; the environment variable KX_LOG_LEVEL (debug, info,
/// warning, error) overrides it at start. Any thread.
KXCORE_API void SetLevel(IKxLog::Level level);

/// Sends what Qt's debug stream prints (qDebug, qWarning …) into the log instead of to the terminal.
KXCORE_API void RouteQtMessages();
} // namespace KxLogSettings
