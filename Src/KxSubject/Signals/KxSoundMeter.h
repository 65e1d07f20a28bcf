#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectRecord.h>

#include <cstdint>
#include <utility>
#include <vector>

/// Measures how loud sound is in the band of speech, from its samples as they come. Keeps one window of them.
class KXSUBJECT_API KxSoundMeter
{
public:
    /// The samples are mono, at this rate.
    static constexpr int SamplesPerSecond = 16000;

    /// Times from first to last, in levels of KxSoundSpan, whose sound is worth measuring: with the mouths in
    /// `record` and some seconds around them. Empty where nobody's speech could be followed.
    static std::vector<std::pair<std::int64_t, std::int64_t>> SpansOf(const KxSubjectRecord& record);

    /// The first sample that is added is at `first` levels.
    explicit KxSoundMeter(std::int64_t first);

    void Add(const float* samples, std::size_t count);
    /// Call once, after the last sample.
    KxSoundSpan Finish();

private:
    void AddWindow(double decibel);
    void EndLevel();

    KxSoundSpan m_span;
    std::vector<float> m_shape;   ///< of the window
    std::vector<float> m_samples; ///< from the start of the next window
    std::int64_t m_windows = 0;   ///< measured so far
    double m_sum = 0.0;           ///< of the windows of the level that is measured, in decibels
    int m_inLevel = 0;
};
