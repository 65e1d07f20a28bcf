#pragma once

#include <KxCore/KxExport.h>

#include <QString>

#include <functional>

/// Something that the person did, for the host's usage tracker. Built, sent and destroyed on the spot; any thread.
class KXCORE_API KxTrackEvent
{
public:
    explicit KxTrackEvent(const QString& name);
    KxTrackEvent(const KxTrackEvent&) = delete;
    KxTrackEvent& operator=(const KxTrackEvent&) = delete;
    virtual ~KxTrackEvent();

    const QString& name() const { return m_name; }
    /// Hands the event to the tracker. Never fails: what cannot be written is left out.
    virtual void sendEvent();

private:
    QString m_name;
};

/// Where usage events go: one line each, time and name, at the end of the file that the key "UsageLog" of the group
/// "Auto Reframe" of the configuration file names (a relative name counts from the configuration file's folder).
/// Without the key nothing is kept. Nothing ever leaves the machine.
namespace KxUsageTracker
{
/// Hears the names of the events, on the thread that sends them.
using Recorder = std::function<void(const QString& name)>;
/// From now on `recorder` hears every event and none is written; an empty one undoes that.
KXCORE_API void SetRecorder(Recorder recorder);
} // namespace KxUsageTracker
