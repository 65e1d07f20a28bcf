#pragma once

#include <KxCore/KxExport.h>
#include <KxCore/KxRational.h>

#include <optional>

/// The frames of a rendered file against those of its source. Pure; any thread.
class KXRENDER_API KxOutputGrid
{
public:
    /// `sourceRate` is positive and `sourceFrames` at least 1. `wantedRate` is in frames a second; 0, or what differs
    /// from the source's by no more than 0.05 %, is the source's very rate. Any other one becomes the rate of film or
    /// video that it rounds (23.98, 29.97, 59.94), or thousandths. Nothing for what is no rate at all, or one above
    /// 1000.
    static std::optional<KxOutputGrid> Make(const KxRational& sourceRate, qint64 sourceFrames, double wantedRate);

    const KxRational& Rate() const { return m_rate; }
    /// At least 1: as many as last as long as the source.
    qint64 Frames() const { return m_frames; }
    /// The source's frame that is shown at `frame` of the output.
    qint64 SourceFrame(qint64 frame) const;

private:
    KxOutputGrid(const KxRational& sourceRate, qint64 sourceFrames, const KxRational& rate);

    KxRational m_rate;
    qint64 m_sourceFrames;
    qint64 m_frames = 1;
    // Source frames for each frame of the output.
    qint64 m_stepNumerator = 1;
    qint64 m_stepDenominator = 1;
};
