#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/Choice/KxSpanIndex.h>
#include <KxSubject/KxSubjectChoices.h>
#include <KxSubject/KxSubjectRecord.h>

#include <cstdint>
#include <optional>
#include <vector>

/// Where a thing is while the tracker does not recognise it, because it turns or moves too fast: the movers that it
/// consisted of when it was last seen go on moving. Works in both directions of time.
class KXSUBJECT_API KxMoverBridge
{
public:
    /// `record` must outlive this.
    explicit KxMoverBridge(const KxSubjectRecord& record);

    /// Call it when the thing was seen in this box.
    void SeeAt(std::int64_t frame, const KxSubjectBox& box);
    /// A box of the size that was seen last, around the movers of that time; nothing if none of them is left.
    std::optional<KxSubjectBox> BoxAt(std::int64_t frame);

private:
    /// The sample nearest to a frame.
    std::size_t SampleAt(std::int64_t frame) const;
    std::vector<std::uint32_t> MoversInBox() const;

    const KxSubjectRecord& m_record;
    KxSpanIndex m_index;
    std::int64_t m_frame = 0; ///< when the thing was seen last
    KxSubjectBox m_box;
    /// What it consisted of then, indices of KxSubjectRecord::movers; once that was asked for.
    std::optional<std::vector<std::uint32_t>> m_movers;
};
