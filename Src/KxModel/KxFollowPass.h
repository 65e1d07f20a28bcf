#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxExport.h>
#include <KxCore/KxResult.h>

#include <KxSubject/KxFollowTrack.h>
#include <KxSubject/KxSubjectChoices.h>

#include <QString>

#include <functional>

class KxSubjectFollower;
struct KxSubjectRecord;

/// Looks again at the shots in which a person pointed at something, and follows it there. The calling thread decodes,
/// another one follows.
namespace KxFollowPass
{
struct Result {
    KxOutcome outcome = KxOutcome::Failed;
    KxFollowTrack track; ///< empty unless Done
    QString message;     ///< the error message of a failure
};

struct Listener {
    std::function<void(double share)> onProgress; ///< called on the calling thread with 0 to 1
    /// Called after each picture on the thread that follows, which is one of the two.
    std::function<void(const KxSubjectFollower& follower)> onFollowed;
};

/// `record` is that of the video `path`.
KXMODEL_API Result Run(const QString& path, const KxSubjectRecord& record, const KxSubjectChoice& choice,
                       const Listener& listener, const KxCancelToken& cancel);
} // namespace KxFollowPass
