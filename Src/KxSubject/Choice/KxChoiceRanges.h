#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectChoices.h>

#include <cstddef>
#include <cstdint>
#include <vector>

/// Which of a person's choices apply to which frames of one shot. A choice ends with its shot: what was pointed at is
/// not in the next one.
class KXSUBJECT_API KxChoiceRanges
{
public:
    /// The frames from `first` up to, but without, `end`.
    struct Range {
        std::int64_t first = 0;
        std::int64_t end = 0;
        std::size_t choice = 0; ///< an index of the choices
    };

    /// Of the shot from frame `first` up to, but without, `end`. `frameRate` is positive.
    KxChoiceRanges(const KxSubjectChoices& choices, double frameRate, std::int64_t first, std::int64_t end);

    static KxChoiceRanges None() { return {{}, 1.0, 0, 0}; }

    /// Those that follow, hold or fit: disjoint, growing by frame.
    const std::vector<Range>& Placed() const { return m_placed; }
    /// Those that avoid; these may overlap.
    const std::vector<Range>& Avoided() const { return m_avoided; }

    const std::vector<Range>& Of(KxChoiceKind kind) const { return kind == KxChoiceKind::Avoid ? m_avoided : m_placed; }

    /// The frame that begins nearest to a time, which may be any number.
    static std::int64_t FrameAt(double seconds, double frameRate);

private:
    std::vector<Range> m_placed;
    std::vector<Range> m_avoided;
};
