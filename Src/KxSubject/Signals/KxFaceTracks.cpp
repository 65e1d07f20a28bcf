#include <KxSubject/Signals/KxFaceTracks.h>

#include <opencv2/core.hpp>

#include <algorithm>
#include <iterator>

namespace
{

constexpr double ModelPeriodSeconds = 0.2; ///< between two looks of the neural detector
constexpr int SettledLooks = 4;            ///< searches without a new face: then they are rarer
constexpr double Early = 1e-3;             ///< seconds: a sample at exactly the time of a look is due

KxFaceLook LookAt(double seconds, const std::optional<cv::Rect>& face)
{
    const cv::Rect_<std::int16_t> box = face.value_or(cv::Rect());
    return {static_cast<float>(seconds), box.x, box.y, box.width, box.height};
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
    if (m_finder.UsesDetector()) {
        if (timeSeconds >= m_lastFrontal + ModelPeriodSeconds - Early) {
            m_lastFrontal = timeSeconds;
            LookEverywhere(timeSeconds, picture, grey, KxFaceView::Frontal);
        }
        return;
    }
    if (timeSeconds >= m_lastFollow + FollowPeriodSeconds() - Early) {
        m_lastFollow = timeSeconds;
        Follow(timeSeconds, grey);
    }
    const double rarer = m_looksWithoutNews >= SettledLooks ? m_options.settledFactor : 1.0;
    const double profileRarer = Followed() > 0 ? m_options.settledFactor : rarer;
    if (timeSeconds >= m_lastFrontal + rarer * m_options.frontalPeriodSeconds - Early) {
        m_lastFrontal = timeSeconds;
        LookEverywhere(timeSeconds, picture, grey, KxFaceView::Frontal);
    } else if (m_sidesDue > 0 || timeSeconds >= m_lastProfile + profileRarer * m_options.profilePeriodSeconds - Early) {
        m_sidesDue = std::max(m_sidesDue - 1, 0);
        m_lastProfile = timeSeconds;
        LookEverywhere(timeSeconds, picture, grey, m_nextSide);
        m_nextSide = m_nextSide == KxFaceView::LeftProfile ? KxFaceView::RightProfile : KxFaceView::LeftProfile;
    }
}

double KxFaceTracks::FollowPeriodSeconds() const
{
    bool isAlone = false;
    for (std::size_t i = m_firstOpen; i < m_tracks.size(); ++i) {
        const Track& track = m_tracks[i];
        if (track.misses >= m_options.missesToDrop) {
            continue;
        }
        const bool isSure = track.misses == 0 && track.looks.size() > static_cast<std::size_t>(m_options.agreeing);
        if (isAlone || !isSure) {
            return m_options.followPeriodSeconds;
        }
        isAlone = true;
    }
    return isAlone ? m_options.alonePeriodSeconds : m_options.followPeriodSeconds;
}

int KxFaceTracks::Followed() const
{
    return static_cast<int>(
        std::count_if(m_tracks.begin() + static_cast<std::ptrdiff_t>(m_firstOpen), m_tracks.end(),
                      [this](const Track& track) { return track.misses < m_options.missesToDrop; }));
}

void KxFaceTracks::BeginScene()
{
    m_lastFrontal = LongAgo;
    m_sidesDue = m_options.sidesAtFirst;
    m_looksWithoutNews = 0;
    for (; m_firstOpen < m_tracks.size(); ++m_firstOpen) {
        m_tracks[m_firstOpen].misses = m_options.missesToDrop;
    }
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
        const auto same = std::find_if(faces.begin(), faces.end(), [this, &track](const cv::Rect& face) {
            return KxAreOneFace(face, track.last, m_options.sameShare);
        });
        const bool looked = track.looks.back().timeSeconds >= static_cast<float>(timeSeconds);
        if (same != faces.end()) {
            if (looked && !track.looks.back().IsFace()) {
                track.looks.back() = LookAt(timeSeconds, *same);
            } else if (!looked) {
                track.looks.push_back(LookAt(timeSeconds, *same));
            }
            track.last = *same;
            track.misses = 0;
            faces.erase(same);
        } else if (m_finder.UsesDetector() && !looked) {
            track.looks.push_back(LookAt(timeSeconds, std::nullopt));
            ++track.misses;
        }
    }
    m_looksWithoutNews = faces.empty() ? m_looksWithoutNews + 1 : 0;
    for (const cv::Rect& face : faces) {
        m_tracks.push_back({{{LookAt(timeSeconds, face)}}, view, face, 0});
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
        track.looks.push_back(LookAt(timeSeconds, face));
        track.misses = face ? 0 : track.misses + 1;
        track.last = face.value_or(track.last);
    }
}

std::vector<KxFaceTrack> KxFaceTracks::Finish()
{
    std::vector<KxFaceTrack> faces(std::make_move_iterator(m_tracks.begin()), std::make_move_iterator(m_tracks.end()));
    m_tracks.clear();
    return faces;
}
