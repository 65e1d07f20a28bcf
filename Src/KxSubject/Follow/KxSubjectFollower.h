#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxFollowTrack.h>
#include <KxSubject/KxSubjectChoices.h>
#include <KxSubject/KxSubjectRecord.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

struct KxPictureView;
struct KxSubjectOptions;

/// Follows what a choice points at through the shots of its seeds: outward from each seed to the ends of the shot, and
/// from both sides between two seeds. What the detector saw corrects the tracker, and movers lead on where the tracker
/// does not recognise the thing. It asks for the pictures that it needs, some of them twice where a shot is long.
/// One thread at a time. Apart from lack of memory, no error of OpenCV leaves this class.
class KXSUBJECT_API KxSubjectFollower
{
public:
    /// `record` must outlive this.
    KxSubjectFollower(const KxSubjectRecord& record, const KxSubjectChoice& choice, const KxSubjectOptions& options);
    ~KxSubjectFollower();

    /// Frames from `first` up to, but without, `end`.
    struct Range {
        std::int64_t first = 0;
        std::int64_t end = 0;
    };
    /// Whose pictures have to be added next, in ascending order; nothing when all is done.
    std::optional<Range> NextRange() const;
    /// Whether a picture at `frame` of this range is of use.
    bool Wants(std::int64_t frame) const;
    /// `picture` has the record's working size; one that has not is ignored.
    void AddPicture(std::int64_t frame, const KxPictureView& picture);
    /// Call after the last picture of a range: follows backward through its pictures. `goesOn` is called after each of
    /// them; once it returns false, the rest is left out, and the track remains incomplete.
    void EndRange(const std::function<bool()>& goesOn = [] { return true; });
    /// The share of the ranges that are done, 0 to 1; and that after this range.
    double Progress() const;
    double ProgressAfterRange() const;

    /// As far as the pictures were followed.
    KxFollowTrack Track() const;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};
