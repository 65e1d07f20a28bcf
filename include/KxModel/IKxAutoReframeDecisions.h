#pragma once

#include <KxModel/IKxAutoReframeParam.h>
#include <KxModel/IKxAutoReframeResult.h>

#include <QList>
#include <QString>

/// What a host's auto-reframe service may offer beside IKxAutoReframeService: it decides on other aspect ratios beside
/// its task. A service that does so derives from both classes: clients find this one by dynamic_cast. Defined in this
/// header alone, so that a host without it has nothing to add. Any thread.
class IKxAutoReframeDecisions
{
public:
    /// The results that a task with `param` would have for the file `path`, with the choices that are set. Empty if the
    /// service has not looked at the file before, or if that fails. Neither stops a task nor changes its results.
    /// Blocks for some tenths of a second for each hour of video.
    virtual QList<IKxAutoReframeResult> Decide(const QString& path, const IKxAutoReframeParam& param) const = 0;

protected:
    virtual ~IKxAutoReframeDecisions() = default;
};
