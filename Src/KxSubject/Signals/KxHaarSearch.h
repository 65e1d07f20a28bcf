#pragma once

#include <KxSubject/Signals/KxHaarCascade.h>

/// Finds exactly what cv::CascadeClassifier finds with the same cascade, in a third of its time: it examines four
/// neighbouring windows at once, stage by stage until all four are rejected. Reuses its buffers. One thread at a time.
class KXSUBJECT_API KxHaarSearch
{
public:
    /// Of the windows: each is larger by `factor` than the one before. If none of them lies between smallest and
    /// largest, the one nearest to the smallest is taken.
    struct Sizes {
        int smallestPx;
        int largestPx;
        double factor; ///< above 1
    };

    explicit KxHaarSearch(KxHaarCascade cascade);
    ~KxHaarSearch();
    KxHaarSearch(KxHaarSearch&& other) noexcept;
    KxHaarSearch& operator=(KxHaarSearch&& other) noexcept;

    /// The windows of `grey` (CV_8UC1) that no stage rejects, clipped to it.
    std::vector<cv::Rect> Find(const cv::Mat& grey, const Sizes& sizes);

private:
    static constexpr int MostStep = 2;

    /// Where the corners of a feature's areas are in the sums, seen from those of a window.
    struct Corners {
        std::array<std::array<int, 4>, 3> at;
        std::array<float, 3> weights;
        int count;
    };
    /// The sums of a picture at one size.
    struct Level {
        cv::Size places;           ///< of windows
        int step;                  ///< from window to window, across and down
        double area;               ///< of the part of a window that its contrast is measured in
        std::array<int, 4> inside; ///< the corners of that part
    };

    std::vector<float> ScalesFor(cv::Size picturePx, const Sizes& sizes) const;
    /// Where the corner at `x` and `y` of a window is.
    int PlaceOf(int x, int y, int step) const;
    std::array<int, 4> CornersOf(const cv::Rect& area, int step) const;
    void SetStride(int stride);
    Level MakeLevel(const cv::Mat& grey, float scale);
    /// Copies `sums` so that windows that are examined together are neighbours.
    void Arrange(const cv::Mat& sums, int step, std::vector<int>& arranged) const;
    /// Which of the windows from `first` on `stage` rejects, as bits.
    static int RejectedBy(const KxHaarCascade::Stage& stage, const Corners* corners, const int* first,
                          const float* gains);
    /// Adds the left edges of the windows at `y` that no stage rejects, in pixels of the level.
    void FindInRow(const Level& level, int y, std::vector<int>& found) const;
    /// Which of the windows from `first` on have contrast, as bits; `gains` makes their values independent of it.
    int MeasureContrast(const Level& level, std::size_t first, float* gains) const;

    KxHaarCascade m_cascade;
    int m_stride = 0;                                     ///< of a row of sums
    std::array<std::vector<Corners>, MostStep> m_corners; ///< for each step, of each feature
    cv::Mat m_small;
    cv::Mat m_rawSums;
    cv::Mat m_rawSquares;
    std::vector<int> m_sums;    ///< of all pixels above and to the left, arranged
    std::vector<int> m_squares; ///< the same of their squares
};
