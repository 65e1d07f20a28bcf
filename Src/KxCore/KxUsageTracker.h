#pragma once

#include <KxCore/KxExport.h>

#include <QString>

#include <functional>

/// Where usage events (KxTrackEvent) go. Any thread.
namespace KxUsageTracker
{
/// Receives the names of the events, on the thread that sends them.
using Recorder = std::function<void(const QString& name)>;
/// From now on `recorder` receives every event and none is written; an empty one restores writing.
KXCORE_API void SetRecorder(Recorder recorder);
} // namespace KxUsageTracker
