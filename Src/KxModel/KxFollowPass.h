#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxExport.h>
#include <KxCore/KxResult.h>

#include <KxSubject/KxFollowTrack.h>
#include <KxSubject/KxSubjectChoices.h>

#include <QString>

#include <functional>

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

/// `record` is that of the video `path`. `onProgress` is called on this thread with 0 to 1.
KXMODEL_API Result Run(const QString& path, const KxSubjectRecord& record, const KxSubjectChoice& choice,
                       const std::function<void(double)>& onProgress, const KxCancelToken& cancel);
} // namespace KxFollowPass
