#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxIntSize.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectSource.h>

#include <cstdint>
#include <optional>

/// Which pictures of a video the analysis looks at, and in which sizes: almost every one for the shot boundaries, which
/// a small picture shows, and some of them, the samples, for all signals. Depends on the video's facts alone.
class KXSUBJECT_API KxSubjectSampling
{
public:
    /// Of the pictures that the shot boundaries are found in, whatever the video's aspect.
    static constexpr KxIntSize ShotSize{64, 36};

    KxSubjectSampling(const KxSubjectSource& source, const KxSubjectOptions::Sampling& options);

    /// The source with positive sizes and rate.
    const KxSubjectSource& Source() const { return m_source; }
    /// Of the samples.
    KxIntSize WorkingSize() const { return m_workingSize; }

    /// Whether a picture at `frame` adds to the record; any other picture need not be converted.
    bool Wants(std::int64_t frame) const;
    /// Whether the picture at `frame` is a sample, if the last one that was wanted is at `before` (nothing: it is the
    /// first).
    bool IsSample(std::int64_t frame, std::optional<std::int64_t> before) const;

private:
    /// Time is divided into slots; the first picture in each is a sample.
    std::int64_t SlotOf(std::int64_t frame) const;

    KxSubjectSource m_source;
    KxIntSize m_workingSize;
    double m_samplesPerSecond;
    std::int64_t m_step; ///< one frame of this many is wanted
};
