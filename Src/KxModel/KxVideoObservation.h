#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxExport.h>
#include <KxCore/KxResult.h>

#include <functional>
#include <memory>

class KxSubjectObserver;
class KxAnalysisPictures;
struct KxSubjectModels;
struct KxVideoFacts;

/// One pass over a video's pictures: the calling thread obtains them, another one looks at them
/// (KxPicturePipeline).
class KXMODEL_API KxVideoObservation
{
public:
    /// Both are borrowed; `pictures` are those of the whole video.
    KxVideoObservation(KxAnalysisPictures& pictures, const KxVideoFacts& video, const KxCancelToken& cancel);
    ~KxVideoObservation();

    /// Adds every picture to a new observer. `onProgress` is called on this thread with 0 to 99, each number at most
    /// once. The models are loaded while the first pictures are decoded. Returns the error message of a failure; a
    /// cancelled run ends early without one. Call once.
    KxError Run(KxSubjectModels models, const std::function<void(int percent)>& onProgress);

    /// Null unless Run() has succeeded.
    std::unique_ptr<KxSubjectObserver> TakeObserver();

private:
    class Watch;
    class Producer;

    KxAnalysisPictures& m_pictures;
    const KxVideoFacts& m_video;
    KxCancelToken m_cancel;
    std::unique_ptr<KxSubjectObserver> m_observer;
};
