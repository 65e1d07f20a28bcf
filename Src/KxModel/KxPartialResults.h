#pragma once

#include <KxModel/IKxAutoReframeResult.h>

#include <KxCore/KxCancelToken.h>
#include <KxSubject/KxFollowTrack.h>
#include <KxSubject/KxSubjectRequest.h>

#include <QList>

#include <chrono>
#include <cstddef>
#include <functional>

struct KxSubjectRecord;

/// Who wants results before the end of an analysis, and how often. A plain value.
struct KxPartialTaker {
    /// Called on any thread, never on two at once; empty: nobody wants them.
    std::function<void(const QList<IKxAutoReframeResult>& results)> take = {};
    std::chrono::milliseconds first{1000};  ///< after the start: an answer that comes sooner needs no partial one
    std::chrono::milliseconds between{300}; ///< at least
    int pause = 20;                         ///< at least, times what the last partial result took
};

/// Decides on what a choice points at while it is still followed: from time to time, so that it takes little of the
/// time. One thread at a time.
class KXMODEL_API KxPartialResults
{
public:
    /// For the choice of `request` that is followed now: the one after the last track. `record` and `cancel` outlive
    /// this.
    KxPartialResults(const KxSubjectRecord& record, const KxSubjectRequest& request, const KxPartialTaker& taker,
                     const KxCancelToken& cancel);

    /// Call it after each picture that was followed. If it is time, passes on the results of the frames that `track`
    /// has reached, ascending.
    void HandleFollowed(const std::function<KxFollowTrack()>& track);

private:
    using Clock = std::chrono::steady_clock;

    void Decide(KxFollowTrack track);

    const KxSubjectRecord& m_record;
    KxSubjectRequest m_request;
    const std::size_t m_choice;
    const KxPartialTaker& m_taker;
    const KxCancelToken& m_cancel;
    Clock::time_point m_next;
};
