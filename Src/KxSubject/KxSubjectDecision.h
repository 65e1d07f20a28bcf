#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxExport.h>

#include <KxSubject/KxCropRect.h>
#include <KxSubject/KxSubjectFindings.h>
#include <KxSubject/KxSubjectRequest.h>

#include <vector>

struct KxSubjectOptions;
struct KxSubjectRecord;

/// Where the crop is in each frame, and why.
struct KxSubjectDecision {
    /// One a frame. All have the same size, the largest of the aspect inside the picture (inside what remains of it
    /// where it has bars). Where a choice demands more than fits into that, the crop is the whole picture without its
    /// bars, which has another aspect.
    std::vector<KxCropRect> crops;
    KxSubjectFindings findings; ///< empty unless the request wants them
};

/// Depends on its arguments alone. Once cancelled, returns soon, without crops.
KXSUBJECT_API KxSubjectDecision KxDecide(const KxSubjectRecord& record, const KxSubjectRequest& request,
                                         const KxSubjectOptions& options, const KxCancelToken& cancel);
