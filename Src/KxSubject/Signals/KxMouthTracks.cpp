#include <KxSubject/Signals/KxMouthTracks.h>

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

constexpr double PeriodSeconds = 0.06;      ///< pictures that follow faster are skipped
constexpr double MostPeriodSeconds = 0.25;  ///< a mouth is not compared over a longer pause
constexpr double DelaySeconds = 1.0;        ///< the box is known so much later
constexpr double AloneSeconds = 3.0;        ///< after the second face was lost, which may return
constexpr double NearestHitSeconds = 0.3;   ///< without a hit so near, the box is unknown
constexpr double AcrossMissesSeconds = 1.0; ///< between two hits, in which the box is interpolated
constexpr double LeastFacePx = 20.0;        ///< of the working picture: the mouth of a smaller face is not resolved
constexpr std::size_t MostFaces = 4;        ///< at once, the largest ones; bounds the cost of a crowd
constexpr double LeastSeconds = 1.0;        ///< beside another mouth: a shorter track is not kept

/// Places at which the box of a face is averaged.
constexpr int Places = 9;

cv::Rect2d RectOf(const KxFaceLook& look)
{
    return cv::Rect2d(look.x, look.y, look.width, look.height);
}

cv::Rect2d Sum(const cv::Rect2d& a, double partOfA, const cv::Rect2d& b, double partOfB)
{
    return cv::Rect2d(a.x * partOfA + b.x * partOfB, a.y * partOfA + b.y * partOfB,
                      a.width * partOfA + b.width * partOfB, a.height * partOfA + b.height * partOfB);
}

/// The cascades' squares reach beyond the face, by how much was measured on the boxes of a detector.
cv::Rect2d FromBrowToChin(const cv::Rect2d& square)
{
    return cv::Rect2d(square.x + 0.12 * square.width, square.y + 0.02 * square.height, 0.76 * square.width,
                      1.04 * square.height);
}

template<typename Number>
Number Packed(double value)
{
    using Limits = std::numeric_limits<Number>;
    return static_cast<Number>(std::lround(
        std::clamp(value * KxMouthLook::One, static_cast<double>(Limits::min()), static_cast<double>(Limits::max()))));
}

} // namespace

KxMouthTracks::KxMouthTracks(const KxSubjectOptions::Mouths& options, double frameRate)
    : m_options(options)
    , m_frameRate(frameRate)
{
}

void KxMouthTracks::AddPicture(std::int64_t frame, const cv::Mat& picture, const KxFaceTracks& faces)
{
    const double now = SecondsAt(frame);
    if (faces.Followed() >= 2) {
        m_lastSeveral = now;
    }
    const double early = 0.25 / m_frameRate;
    m_isWatching = now <= m_lastSeveral + AloneSeconds;
    if (m_isWatching && (m_lastKept < 0 || SecondsAt(frame - m_lastKept) >= PeriodSeconds - early)) {
        Picture kept{frame, {}, faces.FirstOpen()};
        cv::cvtColor(picture, kept.grey, cv::COLOR_BGR2GRAY);
        m_pictures.push_back(std::move(kept));
        m_lastKept = frame;
    }
    while (!m_pictures.empty() && SecondsAt(frame - m_pictures.front().frame) >= DelaySeconds) {
        Measure(m_pictures.front(), faces);
        m_pictures.pop_front();
    }
}

std::optional<cv::Rect2d> KxMouthTracks::HitAt(const KxFaceTrack& track, double seconds) const
{
    const auto time = static_cast<float>(seconds);
    auto after = std::lower_bound(track.looks.begin(), track.looks.end(), time,
                                  [](const KxFaceLook& look, float at) { return look.timeSeconds < at; });
    auto before = after;
    const auto isHit = [](const KxFaceLook& look) { return look.IsFace(); };
    after = std::find_if(after, track.looks.end(), isHit);
    while (before != track.looks.begin() && !std::prev(before)->IsFace()) {
        --before;
    }
    const bool hasAfter = after != track.looks.end();
    const bool hasBefore = before != track.looks.begin();
    const double untilAfter = hasAfter ? static_cast<double>(after->timeSeconds) - seconds : 1e9;
    const double sinceBefore = hasBefore ? seconds - static_cast<double>(std::prev(before)->timeSeconds) : 1e9;
    if (untilAfter + sinceBefore <= AcrossMissesSeconds) {
        const double part = sinceBefore / (untilAfter + sinceBefore);
        return Sum(RectOf(*std::prev(before)), 1.0 - part, RectOf(*after), part);
    }
    if (std::min(untilAfter, sinceBefore) > NearestHitSeconds) {
        return std::nullopt;
    }
    return RectOf(untilAfter < sinceBefore ? *after : *std::prev(before));
}

cv::Rect2d KxMouthTracks::MeanBox(const KxFaceTrack& track, double seconds, double overSeconds) const
{
    cv::Rect2d sum;
    int count = 0;
    for (int i = 0; i < Places; ++i) {
        const double offset = (static_cast<double>(i) / (Places - 1) - 0.5) * overSeconds;
        if (const std::optional<cv::Rect2d> box = HitAt(track, seconds + offset)) {
            sum = Sum(sum, 1.0, *box, 1.0);
            ++count;
        }
    }
    return Sum(sum, 1.0 / std::max(1, count), {}, 0.0);
}

std::optional<cv::Rect2d> KxMouthTracks::BoxAt(const KxFaceTrack& track, double seconds, bool isFromDetector) const
{
    if (!HitAt(track, seconds)) {
        return std::nullopt;
    }
    const cv::Rect2d place = MeanBox(track, seconds, m_options.smoothingSeconds);
    const cv::Rect2d size = MeanBox(track, seconds, m_options.sizeSeconds);
    if (size.width < LeastFacePx) {
        return std::nullopt;
    }
    const cv::Rect2d found(place.x + (place.width - size.width) / 2.0, place.y + (place.height - size.height) / 2.0,
                           size.width, size.height);
    const cv::Rect2d box = isFromDetector ? found : FromBrowToChin(found);
    const double grown = (m_options.growth - 1.0) / 2.0;
    return cv::Rect2d(box.x - grown * box.width, box.y - grown * box.height, box.width * m_options.growth,
                      box.height * m_options.growth);
}

void KxMouthTracks::Measure(const Picture& picture, const KxFaceTracks& faces)
{
    const double seconds = SecondsAt(picture.frame);
    std::vector<std::pair<std::size_t, cv::Rect2d>> boxes;
    for (std::size_t i = picture.firstFace; i < faces.Tracks().size(); ++i) {
        if (const auto box = BoxAt(faces.Tracks()[i], seconds, faces.Finder().UsesDetector())) {
            boxes.emplace_back(i, *box);
        }
    }
    std::stable_sort(boxes.begin(), boxes.end(),
                     [](const auto& a, const auto& b) { return a.second.area() > b.second.area(); });
    boxes.resize(std::min(boxes.size(), MostFaces));
    std::map<std::size_t, Last> measured;
    for (const auto& [face, box] : boxes) {
        KxMouthPatch patch(picture.grey, box);
        const auto last = m_last.find(face);
        if (last != m_last.end() && SecondsAt(picture.frame - last->second.frame) <= MostPeriodSeconds) {
            const KxMouthPatch::Movement moved = patch.Since(last->second.patch, m_options.mostShiftPx);
            KxMouthTrack& mouth = m_mouths[face];
            mouth.face = static_cast<std::int32_t>(face);
            const std::int64_t frames = std::min<std::int64_t>(picture.frame - last->second.frame, 255);
            mouth.looks.push_back({static_cast<std::int32_t>(picture.frame), static_cast<std::uint8_t>(frames),
                                   Packed<std::uint16_t>(moved.mouth), Packed<std::uint16_t>(moved.head),
                                   Packed<std::int16_t>(moved.opening)});
        }
        measured.emplace(face, Last{picture.frame, std::move(patch)});
    }
    m_last = std::move(measured);
}

std::vector<KxMouthTrack> KxMouthTracks::Finish(const KxFaceTracks& faces)
{
    for (const Picture& picture : m_pictures) {
        Measure(picture, faces);
    }
    m_pictures.clear();
    m_last.clear();
    std::map<std::int32_t, int> mouthsAt;
    for (const auto& [face, mouth] : m_mouths) {
        for (const KxMouthLook& look : mouth.looks) {
            ++mouthsAt[look.frame];
        }
    }
    std::vector<KxMouthTrack> kept;
    for (auto& [face, mouth] : m_mouths) {
        double besideOthers = 0.0;
        for (const KxMouthLook& look : mouth.looks) {
            besideOthers += mouthsAt[look.frame] > 1 ? SecondsAt(look.frames) : 0.0;
        }
        if (besideOthers >= LeastSeconds) {
            kept.push_back(std::move(mouth));
        }
    }
    m_mouths.clear();
    return kept;
}
