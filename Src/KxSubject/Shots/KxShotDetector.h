#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/Shots/KxBarDetector.h>
#include <KxSubject/Shots/KxShotBlends.h>
#include <KxSubject/Shots/KxShotCuts.h>

#include <opencv2/core/mat.hpp>

#include <array>
#include <cstdint>
#include <deque>
#include <vector>

/// Finds the shot boundaries of a video from its pictures as they come, at any spacing.
/// A cut is a picture whose grey and colour change are both
/// 1. the largest of its neighbours,
/// 2. above a floor,
/// 3. well above what is usual around it (itself left out),
/// and that is not
/// 4. the start or the end of a flash: the earlier picture returns within 4 pictures, or within 7 brighter ones,
/// 5. a change of light: the structure stays the same,
/// 6. an explosion or a passing object: the earlier picture returns within 24 pictures, and not by a jump,
/// 7. inside a dissolve or a fade (KxShotBlends), unless it is a cut among many pictures: then there is no dissolve, or
/// 8. closer than the shortest shot to a dissolve, a fade, a stronger cut or the first picture.
/// Pictures are compared inside the black bars that all of them have so far: bars would make any two shots similar.
/// A cut is at its exact frame if that was among the pictures, otherwise at the first picture of the new shot.
class KXSUBJECT_API KxShotDetector
{
public:
    /// `inCommon` is asked about dissolves only, see KxShotBlends.
    KxShotDetector(const KxSubjectOptions::Shots& options, const KxSubjectOptions::Bars& bars,
                   KxInCommon inCommon = {});

    /// Reserves memory for so many pictures.
    void Reserve(std::size_t pictures);

    /// `picture` is CV_8UC3 in BGR order, of any size; `frame` grows from call to call.
    void AddPicture(std::int64_t frame, const cv::Mat& picture);

    /// Where the shots after the first one begin, growing.
    std::vector<KxShotBoundary> Boundaries(double frameRate) const;

private:
    static constexpr int Bins = 12 * 6 * 6;
    using Histogram = std::array<int, Bins>; ///< of points
    struct Picture {
        cv::Mat colour; ///< with black bars, as `grey`; what follows is measured inside them
        cv::Mat grey;
        double mean = 0.0;
        double deviation = 0.0;
        Histogram colours{};
    };
    struct Candidate {
        KxShotBoundary boundary;
        double strength;
    };
    static Histogram ColoursOf(const cv::Mat& small);
    void Measure(Picture& picture) const;
    void FindContent();
    const Picture& Earlier(std::size_t pictures) const;
    double DifferenceTo(const Picture& earlier) const;
    double SimilarityTo(const Picture& earlier) const;
    bool IsFlash(std::size_t back) const;
    void LookForReturn(std::size_t back);
    std::ptrdiff_t PicturesIn(const KxShotBoundary& boundary) const;
    std::vector<Candidate> Candidates() const;

    KxSubjectOptions::Shots m_options;
    KxBarDetector m_bars;
    cv::Rect m_content; ///< of the pictures so far, inside black bars
    KxShotCuts m_cuts;
    std::vector<std::int32_t> m_frames; ///< of all pictures
    std::deque<Picture> m_pictures;     ///< the newest last
    KxShotBlends m_blends;
};
