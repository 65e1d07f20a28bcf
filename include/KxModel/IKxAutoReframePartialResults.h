#pragma once

#include <KxModel/IKxAutoReframeResult.h>

#include <QList>
#include <QString>

/// What a host's auto-reframe service may offer beside IKxAutoReframeChoices: it shows what a task has found while the
/// task still follows what a choice points at. A service that does so derives from both classes: clients find this one
/// by dynamic_cast. Defined in this header alone, so that a host without it has nothing to add. Any thread.
class IKxAutoReframePartialResults
{
public:
    /// Whether the tasks that start from now on have partial results; initially they have none.
    virtual void CollectPartialResults(bool isWanted) = 0;
    /// The crops of the frames that the running task for the file `path` has reached, in order of their numbers. It
    /// grows a few times a second; the last results of the task may differ from it. Empty if no such task is running,
    /// and until it has run for about a second.
    virtual QList<IKxAutoReframeResult> GetPartialResults(const QString& path) const = 0;

protected:
    virtual ~IKxAutoReframePartialResults() = default;
};
