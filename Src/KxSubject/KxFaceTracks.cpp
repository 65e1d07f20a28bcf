#include "KxFaceTracks.h"

#include <algorithm>
#include <cmath>

namespace
{

bool AreOneFace(const cv::Rect& a, const cv::Rect& b)
{
    const cv::Point apart = (a.tl() + a.br()) / 2 - (b.tl() + b.br()) / 2;
    const double size = std::max(a.width, b.width);
    const double smaller = std::min(a.width, b.width);
    return std::max(std::abs(apart.x), std::abs(apart.y)) < 0.6 * size && smaller > 0.6 * size;
}

} // namespace

KxFaceTracks::KxFaceTracks(const KxSubjectOptions::Faces& options, KxFaceFinder finder)
    : m_options(options)
    , m_finder(std::move(finder))
{
}

void KxFaceTracks::AddPicture(double timeSeconds, const cv::Mat& picture, const cv::Mat& grey)
{
    while (m_firstOpen < m_tracks.size() && m_tracks[m_firstOpen].misses >= m_options.missesToDrop) {
        ++m_firstOpen;
    }
    if (m_finder.UsesModel()) {
        if (timeSeconds >= m_nextFrontal) {
            m_nextFrontal = timeSeconds + m_options.modelPeriodSeconds - 1e-3;
            LookEverywhere(timeSeconds, picture, grey, KxFaceView::Frontal);
        }
        return;
    }
    if (timeSeconds >= m_nextFollow) {
        m_nextFollow = timeSeconds + m_options.followPeriodSeconds - 1e-3;
        Follow(timeSeconds, grey);
    }
    if (timeSeconds >= m_nextFrontal) {
        m_nextFrontal = timeSeconds + m_options.frontalPeriodSeconds - 1e-3;
        LookEverywhere(timeSeconds, picture, grey, KxFaceView::Frontal);
    } else if (timeSeconds >= m_nextProfile && !IsFollowing()) {
        m_nextProfile = timeSeconds + m_options.profilePeriodSeconds - 1e-3;
        LookEverywhere(timeSeconds, picture, grey, m_nextSide);
        m_nextSide = m_nextSide == KxFaceView::LeftProfile ? KxFaceView::RightProfile : KxFaceView::LeftProfile;
    }
}

bool KxFaceTracks::IsFollowing() const
{
    return std::any_of(m_tracks.begin() + static_cast<std::ptrdiff_t>(m_firstOpen), m_tracks.end(),
                       [this](const Track& track) { return track.misses < m_options.missesToDrop; });
}

void KxFaceTracks::LookEverywhere(double timeSeconds, const cv::Mat& picture, const cv::Mat& grey, KxFaceView view)
{
    std::vector<cv::Rect> faces = m_finder.Find(picture, grey, view);
    std::sort(faces.begin(), faces.end(), [](const cv::Rect& a, const cv::Rect& b) { return a.area() > b.area(); });
    for (std::size_t i = m_firstOpen; i < m_tracks.size(); ++i) {
        Track& track = m_tracks[i];
        if (track.misses >= m_options.missesToDrop) {
            continue;
        }
        const auto same = std::find_if(faces.begin(), faces.end(),
                                       [&track](const cv::Rect& face) { return AreOneFace(face, track.last); });
        const bool looked = track.looks.back().timeSeconds >= timeSeconds;
        if (same != faces.end()) {
            if (looked && !track.looks.back().face) {
                track.looks.back().face = *same;
            } else if (!looked) {
                track.looks.push_back({timeSeconds, *same});
            }
            track.last = *same;
            track.misses = 0;
            faces.erase(same);
        } else if (m_finder.UsesModel() && !looked) {
            track.looks.push_back({timeSeconds, std::nullopt});
            ++track.misses;
        }
    }
    for (const cv::Rect& face : faces) {
        m_tracks.push_back({view, {{timeSeconds, face}}, face, 0});
    }
}

void KxFaceTracks::Follow(double timeSeconds, const cv::Mat& grey)
{
    int followed = 0;
    for (std::size_t i = m_firstOpen; i < m_tracks.size(); ++i) {
        Track& track = m_tracks[i];
        if (track.misses >= m_options.missesToDrop) {
            continue;
        }
        if (++followed > m_options.followedAtOnce) {
            track.misses = m_options.missesToDrop;
            continue;
        }
        const std::optional<cv::Rect> face = m_finder.FindNear(grey, track.view, track.last);
        track.looks.push_back({timeSeconds, face});
        track.misses = face ? 0 : track.misses + 1;
        track.last = face.value_or(track.last);
    }
}

double KxFaceTracks::SizeWeight(const cv::Rect& face, cv::Size picturePx) const
{
    const double share = static_cast<double>(face.width) / std::min(picturePx.width, picturePx.height);
    return std::clamp((share - m_options.zeroWeightShare) / (m_options.fullWeightShare - m_options.zeroWeightShare),
                      0.0, 1.0);
}

KxSignalProfile KxFaceTracks::ProfileAt(double timeSeconds, double fromSeconds, double toSeconds, KxAxis axis,
                                        double emptyFloor, cv::Size picturePx) const
{
    const double first = std::max(fromSeconds, timeSeconds - m_options.windowSeconds);
    const double last = std::min(toSeconds, timeSeconds + m_options.windowSeconds);
    KxSignalProfile faces;
    for (const Track& track : m_tracks) {
        if (track.looks.front().timeSeconds > last || track.looks.back().timeSeconds < first) {
            continue;
        }
        int looks = 0;
        int hits = 0;
        cv::Point2d corner;
        cv::Point2d size;
        double weight = 0.0;
        for (auto look = std::lower_bound(track.looks.begin(), track.looks.end(), first,
                                          [](const Look&a, double time) { return a.timeSeconds < time; });
             look != track.looks.end() && look->timeSeconds <= last; ++look) {
            ++looks;
            if (look->face) {
                ++hits;
                corner += cv::Point2d(look->face->x, look->face->y);
                size += cv::Point2d(look->face->width, look->face->height);
                weight += SizeWeight(*look->face, picturePx);
            }
        }
        if (hits <= m_options.agreeing) {
            continue;
        }
        corner /= hits;
        size /= hits;
        const double height = size.y * (1.0 + m_options.growDown);
        const double area = size.x * height / picturePx.area();
        const bool across = axis == KxAxis::Across;
        const double from = across ? corner.x / picturePx.width : corner.y / picturePx.height;
        const double extent = across ? size.x / picturePx.width : height / picturePx.height;
        faces.Add(from, from + extent, weight / looks * area);
    }
    const double mass = faces.Sum();
    KxSignalProfile scaled;
    scaled.Add(faces, 1.0 / (mass + emptyFloor));
    return scaled;
}
