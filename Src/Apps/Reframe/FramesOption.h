#pragma once

#include <KxCore/KxFrameRange.h>
#include <KxCore/KxResult.h>

/// The value of --frames: which part of a video.
class FramesOption
{
public:
    /// "0-2999", both included, or "3/8", the third of eight parts. Nothing if the text is neither.
    static std::optional<FramesOption> Parse(const QString& text);

    /// The part of a video of `frameCount` frames. The parts of "3/8" begin at multiples of `segmentFrames`, unless the
    /// video has fewer segments than parts. On failure, returns a clause that says why there is none.
    KxResult<KxFrameRange> Of(qint64 frameCount, qint64 segmentFrames) const;

private:
    enum class Kind { Frames, Part };
    FramesOption(Kind kind, qint64 first, qint64 second);

    Kind m_kind;
    qint64 m_first;  ///< a frame, or a part counted from 1
    qint64 m_second; ///< the last frame, or the number of parts
};
