#include <KxCore/KxTrackEvent.h>

#include <KxCore/KxConfigFile.h>
#include <KxCore/KxUsageTracker.h>

#include <KxCore/KrAutoReframeClickEvent.h>
#include <KxCore/KxLog.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <mutex>
#include <utility>

namespace
{

struct Tracker {
    std::mutex mutex;
    KxUsageTracker::Recorder recorder;
};

Tracker& TheTracker()
{
    static Tracker tracker;
    return tracker;
}

QString LogPath()
{
    const QString named = KxConfigFile::ReadAutoReframe(QStringLiteral("UsageLog"));
    return named.isEmpty() ? QString() : QFileInfo(KxConfigFile::Path()).dir().absoluteFilePath(named);
}

void Write(const QString& name)
{
    const QString path = LogPath();
    if (path.isEmpty()) {
        return;
    }
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) {
        KX_LOG_WARNING(QStringLiteral("Cannot write the usage log %1: it is not a regular file.").arg(path));
        return;
    }
    const QString line = QStringLiteral("%1 %2\n").arg(QDateTime::currentDateTimeUtc().toString(Qt::ISODate), name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append) || file.write(line.toUtf8()) < 0 || !file.flush()) {
        KX_LOG_WARNING(QStringLiteral("Cannot write the usage log %1: %2.").arg(path, file.errorString()));
    }
}

} // namespace

KxTrackEvent::KxTrackEvent(const QString& name)
    : m_name(name)
{
}

KxTrackEvent::~KxTrackEvent() = default;

void KxTrackEvent::sendEvent()
{
    KxUsageTracker::Recorder recorder;
    {
        Tracker& tracker = TheTracker();
        const std::lock_guard<std::mutex> lock(tracker.mutex);
        recorder = tracker.recorder;
        if (!recorder) {
            Write(m_name);
        }
    }
    if (recorder) {
        recorder(m_name);
    }
}

KrAutoReframeClickEvent::KrAutoReframeClickEvent(const QString& name)
    : KxTrackEvent(name)
{
}

KrAutoReframeClickEvent::~KrAutoReframeClickEvent() = default;

void KxUsageTracker::SetRecorder(Recorder recorder)
{
    Tracker& tracker = TheTracker();
    const std::lock_guard<std::mutex> lock(tracker.mutex);
    tracker.recorder = std::move(recorder);
}
