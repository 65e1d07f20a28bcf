#pragma once

#include <KxCore/KxExport.h>

#include <QString>

/// An action of the person, for the host's usage tracker. Created, sent and destroyed at once; any thread.
/// The tracker appends events, one line each with time and name, to the file that the configuration file names in the
/// key "UsageLog" of the group "Auto Reframe" (a relative name is relative to the configuration file's folder). Without
/// the key they are dropped. Nothing is sent anywhere.
class KXCORE_API KxTrackEvent
{
public:
    explicit KxTrackEvent(const QString& name);
    KxTrackEvent(const KxTrackEvent&) = delete;
    KxTrackEvent& operator=(const KxTrackEvent&) = delete;
    virtual ~KxTrackEvent();

    const QString& name() const { return m_name; }
    /// Sends the event to the tracker. Never fails: an event that cannot be written is dropped.
    virtual void sendEvent();

private:
    QString m_name;
};
