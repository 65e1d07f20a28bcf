#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/Follow/KxColourModel.h>
#include <KxSubject/Follow/KxCorrelationFilter.h>
#include <KxSubject/Follow/KxPatchFeatures.h>

#include <opencv2/core/mat.hpp>

#include <vector>

/// Follows what is in a box from picture to picture, forward or backward in time, and knows when it may have lost it. A
/// correlation filter over gradients and colours finds the place; a histogram of colours helps where the shape changes.
/// The same pictures give the same boxes.
class KXSUBJECT_API KxFollowTracker
{
public:
    /// `picture` is CV_8UC3; so are all others, of the same size. `box` in pixels.
    KxFollowTracker(const cv::Mat& picture, const cv::Rect2d& box);

    void AddPicture(const cv::Mat& picture);

    /// The thing is known to be there, although it was not recognised: it is searched for around this place next.
    void MoveTo(cv::Point2d centre);

    cv::Rect2d Box() const;
    /// 0 to 1, of the box in the last picture; 1 in the first one.
    double Confidence() const { return m_confidence; }

private:
    /// The best place in one window of a picture.
    struct Match {
        cv::Point2d centre;
        double factor = 1.0; ///< of the size
        double peak = 0.0;
        double peakToSidelobe = 0.0;
    };

    /// Takes a picture, and halves of it as far as a patch needs them.
    void Prepare(const cv::Mat& picture);
    cv::Mat Patch(cv::Point2d centre, double scale) const;
    Match Look(cv::Point2d centre, double factor);
    Match LookAround();
    void Learn(double filterRate, double colourRate);
    bool IsGood(const Match& match) const;
    void Accept(const Match& match);

    cv::Size m_picturePx;
    cv::Point2d m_centre;
    cv::Size2d m_size;     ///< of the box in the first picture
    double m_scale = 1.0;  ///< of the box now, against the first one
    cv::Size2d m_windowPx; ///< of the picture at scale 1, that a patch shows
    KxPatchFeatures m_features;
    KxCorrelationFilter m_filter;
    KxColourModel m_colours;
    std::vector<cv::Mat> m_levels; ///< the picture, half of it, ...
    double m_meanPeak = 1.0;
    double m_confidence = 1.0;
    int m_pictures = 0;
    int m_misses = 0;
};
