#pragma once

#include <KxCore/KxExport.h>

#include <QString>

/// The host's log: one instance for the process. Any thread may write to it at any time.
///
/// A record contains its place in the source; use the KX_LOG macros, which fill it in. The host decides where the lines
/// are written (a file, the terminal, nowhere).
class KXCORE_API IKxLog
{
public:
    enum class Level { Debug, Info, Warning, Error };

    /// `file` and `function` need to live only for the call. Never throws and never blocks on anything but the log's
    /// own lock.
    virtual void Write(Level level, const char* file, int line, const char* function, const QString& text) = 0;

protected:
    virtual ~IKxLog();
};

/// The process-wide log. Never null; lives as long as the process.
KXCORE_API IKxLog* GetGlobalLogInstance();

#define KX_LOG(level, text) GetGlobalLogInstance()->Write((level), __FILE__, __LINE__, __func__, (text))
#define KX_LOG_DEBUG(text) KX_LOG(IKxLog::Level::Debug, text)
#define KX_LOG_INFO(text) KX_LOG(IKxLog::Level::Info, text)
#define KX_LOG_WARNING(text) KX_LOG(IKxLog::Level::Warning, text)
#define KX_LOG_ERROR(text) KX_LOG(IKxLog::Level::Error, text)
