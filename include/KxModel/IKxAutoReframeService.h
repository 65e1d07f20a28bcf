#pragma once

#include <KxModel/IKxAutoReframeParam.h>
#include <KxModel/IKxAutoReframeResult.h>

#include <QList>
#include <QString>

/// Receives the events of the tasks of the auto-reframe service.
class KXMODEL_API IKxAutoReframeEventObserver
{
public:
    /// Called on the service's own thread. `key` identifies the task on the service's side. `state` is 1 while the task
    /// runs and 2 when it has ended; `percent` is 0 to 100. A task that was not stopped ends with exactly one event of
    /// state 2 and percent 100, also when it failed (its results are then a failure). An observer may call any
    /// operation of the service from here but must not wait for another thread that calls one.
    virtual void OnAutoReframeEvent(qint64 key, int state, int percent) = 0;

protected:
    virtual ~IKxAutoReframeEventObserver();
};

/// The host's video analysis: finds the subject of one media file frame by frame.
///
/// Life cycle: a client registers an observer, starts a task, receives its events, and fetches the results after the
/// last event. At most one task runs at a time: starting one stops the previous one. The operations may be called from
/// any thread; events come on a thread of the service. The service lives as long as the process and is never freed.
class KXMODEL_API IKxAutoReframeService
{
public:
    /// Starts to analyse the file `path`. False if the file is not a readable video; nothing runs then. No observer is
    /// called from inside this call. Blocks while the file's header is read. A start that is stopped during that time,
    /// or followed by a newer one, returns true and runs nothing.
    virtual bool StartTask(const QString& path, const IKxAutoReframeParam& param) = 0;

    /// Stops the running task, if any. After it has returned, that task sends no more events (except that an
    /// observer which itself calls this finishes its own call). `task` is always 0.
    virtual void StopTask(int task) = 0;

    /// Fills `out` with the rectangles that the last finished task found in `path`: as many as the file's frame count,
    /// frame 0 first. Returns 0, or a negative number when there are none (the task failed, or `path` was not
    /// analysed); `out` is empty then.
    virtual int GetResults(const QString& path, QList<IKxAutoReframeResult>* out) = 0;

    /// `observer` is borrowed until it is removed. Adding one twice is the same as adding it once.
    virtual void AddObserver(IKxAutoReframeEventObserver* observer) = 0;

    /// Returns when no call to `observer` is running any more (unless called from inside that call), so that it can
    /// be destroyed afterwards.
    virtual void RemoveObserver(IKxAutoReframeEventObserver* observer) = 0;

protected:
    virtual ~IKxAutoReframeService();
};

/// The process-wide service; never null.
KXMODEL_API IKxAutoReframeService* getAutoReframeService();
