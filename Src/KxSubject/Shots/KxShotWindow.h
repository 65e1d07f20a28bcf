#pragma once

#include <KxSubject/KxSubjectOptions.h>

#include <opencv2/core/mat.hpp>

#include <array>
#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

/// A picture as the search for dissolves and fades keeps it.
struct KxShotPicture {
    static constexpr int WidthPx = 32;
    static constexpr int HeightPx = 18;
    using Grey = std::array<std::uint8_t, WidthPx * HeightPx>;

    std::int64_t frame = 0;
    cv::Mat whole; ///< with black bars; the rest is inside them
    double mean = 0.0;
    double variance = 0.0;
    std::optional<std::int64_t> plainSince; ///< the first frame of the plain pictures around this one
    Grey grey{};
};

/// Decides whether a run of pictures is a transition from its first to its last: a dissolve, a wipe, or half a fade
/// (the cases of KxShotBlends). Borrows the pictures.
class KxShotWindow
{
public:
    /// The maximum number of pictures before and after a run that are examined.
    static std::size_t Reach(std::size_t pictures);

    KxShotWindow(const std::deque<KxShotPicture>& pictures, std::size_t begin, std::size_t end,
                 const KxSubjectOptions::Shots& options);

    struct Passage {
        std::int64_t first; ///< frame
        std::int64_t middle;
        std::int64_t last;
        double strength; ///< more for ends farther apart and for a better fit
        bool isWipe;
    };
    std::optional<Passage> Find() const;

private:
    enum class Sort { None, Dissolve, Wipe, Fade };
    struct Fit;
    Sort SortOfMiddle() const;
    double MisfitOf(const KxShotPicture& picture, double share) const;
    double ShareOf(const KxShotPicture& picture) const;
    Fit FitAll() const;
    bool Passes(const Fit& fit, Sort sort) const;
    double Jitter() const;
    bool ComesBack() const;
    bool IsMovement() const;
    double CrossingOf(const std::vector<double>& shares, double level) const;

    const std::deque<KxShotPicture>& m_pictures;
    std::size_t m_beginIndex;
    std::size_t m_endIndex;
    const KxShotPicture& m_begin;
    const KxShotPicture& m_end;
    const KxSubjectOptions::Shots::Blends& m_options;
    double m_distance; ///< between the ends: squared, summed over the points
};
