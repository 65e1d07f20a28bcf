#pragma once

#include <KxCore/KxExport.h>

#include <opencv2/core/mat.hpp>

#include <cstdint>
#include <optional>
#include <vector>

/// Doubts that a track is still on its thing, one second of it at a time, if at its end
/// 1. the colours in the box are not those of the thing when it was known to be there, and
/// 2. following from there back through the second does not lead to where the second began.
/// Either alone is frequent in a track that is right: a thing turns, or passes behind another one. A second in which
/// both are so is doubted, and all that follows until the thing is seen again.
class KXSUBJECT_API KxDriftCheck
{
public:
    /// `framesASecond`: how many frames one check covers, at least 1.
    explicit KxDriftCheck(std::int64_t framesASecond);

    /// The thing is known to be in this box. `picture` is CV_8UC3; it is copied, as are all others.
    void SeeAt(std::int64_t frame, const cv::Mat& picture, const cv::Rect2d& box);
    /// The next tracked picture, forward or backward in time.
    void Add(std::int64_t frame, const cv::Mat& picture, const cv::Rect2d& box);

    /// The last frame before the track is doubted, in the direction of following; nothing while it is not.
    std::optional<std::int64_t> DoubtedSince() const { return m_doubtedSince; }

private:
    struct Tracked {
        std::int64_t frame;
        cv::Mat picture;
        cv::Rect2d box;
    };
    bool HasItsColours(const Tracked& last) const;
    bool LeadsBack() const;

    std::int64_t m_framesASecond;
    cv::Mat m_colours;
    std::vector<Tracked> m_second; ///< what was tracked since the second began
    std::optional<std::int64_t> m_doubtedSince;
};
