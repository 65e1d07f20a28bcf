#include <KxSubject/Signals/KxMapProfile.h>

#include <opencv2/core.hpp>

KxSignalProfile KxProfileOfMap(const cv::Mat& map, const cv::Rect& region, cv::Size picturePx, KxAxis axis,
                               double emptyFloor)
{
    KxSignalProfile profile;
    if (map.empty() || region.area() <= 0 || picturePx.area() <= 0) {
        return profile;
    }
    cv::Mat above = map - cv::mean(map)[0];
    above = cv::max(above, 0.0);
    cv::Mat sums;
    cv::reduce(above, sums, axis == KxAxis::Across ? 0 : 1, cv::REDUCE_SUM, CV_32F);
    const double mass = cv::sum(sums)[0];
    const double whole = mass + emptyFloor * static_cast<double>(map.total());
    const bool across = axis == KxAxis::Across;
    const double start =
        static_cast<double>(across ? region.x : region.y) / (across ? picturePx.width : picturePx.height);
    const double extent =
        static_cast<double>(across ? region.width : region.height) / (across ? picturePx.width : picturePx.height);
    const auto count = static_cast<int>(sums.total());
    for (int i = 0; i < count; ++i) {
        const double from = start + extent * i / count;
        profile.Add(from, from + extent / count, static_cast<double>(sums.at<float>(i)) / whole);
    }
    return profile;
}
