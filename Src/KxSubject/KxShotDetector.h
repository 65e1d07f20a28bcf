#pragma once

#include "KxSubjectOptions.h"

#include <array>
#include <deque>

/// How far a picture is from the ones before it.
struct KxPictureChange {
    std::int64_t frame = 0;
    float grey = 0.0F;   ///< mean difference to the picture before, of 255
    float colour = 0.0F; ///< part of the colour histogram that moved since the picture before, 0 to 1
    /// The grey difference to the second, third and fourth picture before; 255 where there is none.
    std::array<float, 3> greyFurther{255.0F, 255.0F, 255.0F};
};

/// Finds the hard cuts of a video from its pictures as they come, at any spacing.
/// A cut is a picture whose grey and colour change are both
/// 1. the largest of its neighbours,
/// 2. above a floor,
/// 3. well above what is usual around it (itself left out),
/// and which is not
/// 4. the beginning or the end of a flash, or
/// 5. nearer than the shortest shot to a stronger cut or to the first picture.
class KXSUBJECT_API KxShotDetector
{
public:
    explicit KxShotDetector(const KxSubjectOptions::Shots& options);

    /// Makes room for so many pictures at once.
    void Reserve(std::int64_t pictures);

    /// `picture` is CV_8UC3 in BGR order, of any size; `frame` grows from call to call.
    void AddPicture(std::int64_t frame, const cv::Mat& picture);

    /// The first frames of the shots after the first one, growing.
    std::vector<std::int64_t> Cuts(double frameRate) const;

    /// The rules alone, on numbers.
    static std::vector<std::int64_t> FindCuts(const std::vector<KxPictureChange>& changes, double frameRate,
                                              const KxSubjectOptions::Shots& options);

private:
    static constexpr int Bins = 12 * 6 * 6;
    using Histogram = std::array<float, Bins>;
    static Histogram ColoursOf(const cv::Mat& small);

    KxSubjectOptions::Shots m_options;
    std::vector<KxPictureChange> m_changes;
    std::deque<cv::Mat> m_lastGrey; ///< the newest last
    Histogram m_lastColours{};
};
