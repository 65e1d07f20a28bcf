#pragma once

#include <KxCore/KxExport.h>
#include <KxModel/KxProjectSettings.h>

#include <QList>
#include <QString>

class IKxKeyFrameHelper;
class IKxMediaInfo;

/// A piece of media on a timeline. Belongs to its timeline or media item. User-interface thread only; its keyframe
/// helper may be used from any thread.
class KXMODEL_API IKxClip
{
public:
    virtual ~IKxClip();

    /// Empty for a clip without a file.
    virtual QString filePath() const = 0;
    /// Never null; lives as long as the clip.
    virtual const IKxMediaInfo* mediaInfo() const = 0;
    /// Null when the clip has no keyframes of that kind.
    virtual IKxKeyFrameHelper* keyFrameHelper(int kind) = 0;
};

/// A sequence of clips with a picture format. User-interface thread only.
///
/// Life cycle: an instance comes from `createSimpleTimeline` or `clone` and ends with `releaseInstance`. A simple
/// timeline belongs to the host, which releases it once nothing shows or edits it; the module releases only
/// what it cloned.
class KXMODEL_API IKxTimeline
{
public:
    /// A timeline with one clip, made like `clip`. It shares data with the clip and remains valid when the clip's media
    /// item is released. Null when `clip` is null. Its format starts as the clip's own resolution and rate.
    static IKxTimeline* createSimpleTimeline(IKxClip* clip);

    /// A copy that shares nothing that can change. With `shareKeyFrames` the copy's clips use the keyframes of
    /// the original instead of copies. Null when `timeline` is null.
    static IKxTimeline* clone(IKxTimeline* timeline, bool shareKeyFrames);

    /// Frees an instance; null is allowed.
    static void releaseInstance(IKxTimeline* timeline);

    /// In order of time; owned by the timeline.
    virtual QList<IKxClip*> clips() const = 0;
    virtual KxProjectSettings projectSettings() const = 0;
    virtual void setProjectSettings(const KxProjectSettings& settings) = 0;
    /// In frames.
    virtual qint64 duration() const = 0;

protected:
    virtual ~IKxTimeline();
};
