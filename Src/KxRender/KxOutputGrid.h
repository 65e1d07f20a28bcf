#pragma once

#include <KxCore/KxExport.h>
#include <KxCore/KxFrameRange.h>
#include <KxCore/KxRational.h>

#include <optional>

/// Maps the frames of a rendered file to the frames of its source. Pure; any thread.
class KXRENDER_API KxOutputGrid
{
public:
    /// `sourceRate` is positive and `sourceFrames` at least 1. `wantedRate` is in frames a second:
    /// 1. 0, or a rate within 0.05 % of the source's, gives exactly the source's rate;
    /// 2. a rounded rate of film or video (23.98, 29.97, 59.94) gives n * 1000 / 1001;
    /// 3. any other rate is rounded to thousandths.
    /// Nothing for a rate that is not positive and finite, or above 1000.
    static std::optional<KxOutputGrid> Make(const KxRational& sourceRate, qint64 sourceFrames, double wantedRate);

    const KxRational& Rate() const { return m_rate; }
    /// The source's duration in output frames, at least 1.
    qint64 Frames() const { return m_frames; }
    /// The source's frame that is shown at the output's frame `frame`.
    qint64 SourceFrame(qint64 frame) const;
    /// The output's frames that show these frames of the source; may be empty.
    KxFrameRange FramesOf(const KxFrameRange& source) const;

private:
    KxOutputGrid(const KxRational& sourceRate, qint64 sourceFrames, const KxRational& rate);

    KxRational m_rate;
    qint64 m_sourceFrames;
    qint64 m_frames = 1;
    // Source frames per output frame.
    qint64 m_stepNumerator = 1;
    qint64 m_stepDenominator = 1;
};
