#include <KxCore/KxSpdlog.h>

#include <QByteArray>
#include <QtGlobal>

#include <spdlog/sinks/stdout_sinks.h>
#include <spdlog/spdlog.h>

namespace
{

spdlog::level::level_enum ToSpdlog(IKxLog::Level level)
{
    switch (level) {
    case IKxLog::Level::Debug:
        return spdlog::level::debug;
    case IKxLog::Level::Info:
        return spdlog::level::info;
    case IKxLog::Level::Warning:
        return spdlog::level::warn;
    case IKxLog::Level::Error:
        break;
    }
    return spdlog::level::err;
}

class SpdlogLog final : public IKxLog
{
public:
    SpdlogLog()
        : m_logger("auto-reframe", std::make_shared<spdlog::sinks::stderr_sink_mt>())
    {
        m_logger.set_pattern("%Y-%m-%d %H:%M:%S.%e [%l] %v (%s:%# %!)");
        m_logger.set_level(spdlog::level::warn);
        const QByteArray wanted = qgetenv("KX_LOG_LEVEL");
        if (!wanted.isEmpty()) {
            m_logger.set_level(spdlog::level::from_str(wanted.toStdString()));
        }
    }

    void Write(Level level, const char* file, int line, const char* function, const QString& text) override
    {
        m_logger.log(spdlog::source_loc{file, line, function}, ToSpdlog(level), "{}", text.toStdString());
    }

    void SetLevel(Level level) { m_logger.set_level(ToSpdlog(level)); }

private:
    spdlog::logger m_logger;
};

SpdlogLog& Log()
{
    // Never destroyed: threads and static objects may log until the very end of the process.
    static SpdlogLog* const log = new SpdlogLog;
    return *log;
}

void WriteQtMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    const IKxLog::Level level = type == QtDebugMsg     ? IKxLog::Level::Debug
                                : type == QtInfoMsg    ? IKxLog::Level::Info
                                : type == QtWarningMsg ? IKxLog::Level::Warning
                                                       : IKxLog::Level::Error;
    const char* const file = context.file != nullptr ? context.file : "";
    const char* const function = context.function != nullptr ? context.function : "";
    Log().Write(level, file, context.line, function, text);
    if (type == QtFatalMsg) {
        std::abort();
    }
}

} // namespace

IKxLog::~IKxLog() = default;

IKxLog* GetGlobalLogInstance()
{
    return &Log();
}

void KxLogSettings::SetLevel(IKxLog::Level level)
{
    Log().SetLevel(level);
}

void KxLogSettings::RouteQtMessages()
{
    qInstallMessageHandler(&WriteQtMessage);
}
