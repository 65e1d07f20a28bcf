#include <KxSubject/Signals/KxMoverTracks.h>

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace
{

constexpr std::size_t MostAtOnce = 10; ///< per level; bounds the cost of a crowd
constexpr double LeastSeconds = 0.37;  ///< a mover that was seen for less is forgotten
constexpr double LeastTravel = 0.007;  ///< of the width: one that travelled less, too
constexpr double PackedOne = 255.0;
constexpr int HitsThatCount = 20;

/// A movement in pixels of the picture, in those of its map.
cv::Matx33d Halved(cv::Matx33d movement)
{
    movement(0, 2) /= 2.0;
    movement(1, 2) /= 2.0;
    movement(2, 0) *= 2.0;
    movement(2, 1) *= 2.0;
    return movement;
}

cv::Point2d Moved(const cv::Matx33d& movement, cv::Point2d place)
{
    const cv::Vec3d moved = movement * cv::Vec3d(place.x, place.y, 1.0);
    return {moved[0] / moved[2], moved[1] / moved[2]};
}

} // namespace

KxMoverTracks::KxMoverTracks(const KxSubjectOptions::Movers& options)
    : m_options(options)
    , m_open(static_cast<std::size_t>(std::max(options.levels, 0)))
{
}

void KxMoverTracks::Reserve(std::size_t samples)
{
    const auto levels = static_cast<std::size_t>(std::max(m_options.levels, 0));
    m_ended.reserve(samples * levels);
    m_endedBoxes.reserve(samples * levels * MostAtOnce);
}

std::vector<KxMoverTracks::Peak> KxMoverTracks::PeaksOf(const cv::Mat& map) const
{
    cv::Mat around;
    const int side = 2 * m_options.peakDistancePx + 1;
    cv::dilate(map, around, cv::getStructuringElement(cv::MORPH_RECT, {side, side}));
    std::vector<Peak> peaks;
    for (int y = 0; y < map.rows; ++y) {
        const auto* value = map.ptr<float>(y);
        const auto* largest = around.ptr<float>(y);
        for (int x = 0; x < map.cols; ++x) {
            if (value[x] > m_options.threshold && value[x] == largest[x]) {
                peaks.push_back({value[x], {x, y}});
            }
        }
    }
    std::sort(peaks.begin(), peaks.end(), [](const Peak& a, const Peak& b) { return a.value > b.value; });
    return peaks;
}

std::vector<KxMoverTracks::Blob> KxMoverTracks::BlobsAt(int level, const cv::Mat& map,
                                                        const std::vector<Peak>& peaks) const
{
    const double fromMiddle = level - (m_options.levels - 1) / 2.0;
    const double share = m_options.extentShare * std::pow(m_options.levelRatio, fromMiddle);
    // floodFill needs a border of one pixel around the mask.
    cv::Mat taken(map.rows + 2, map.cols + 2, CV_8UC1, cv::Scalar(0));
    std::vector<Blob> blobs;
    for (const Peak& peak : peaks) {
        if (blobs.size() >= MostAtOnce) {
            break;
        }
        if (taken.at<uchar>(peak.place + cv::Point(1, 1)) != 0) {
            continue;
        }
        const int label = static_cast<int>(blobs.size()) + 1;
        cv::Rect box;
        cv::Mat source = map;
        const int area = cv::floodFill(source, taken, peak.place, cv::Scalar(), &box,
                                       cv::Scalar((1.0 - share) * peak.value), cv::Scalar(peak.value),
                                       4 | (label << 8) | cv::FLOODFILL_FIXED_RANGE | cv::FLOODFILL_MASK_ONLY);
        cv::Mat part;
        map(box).copyTo(part, taken(box + cv::Point(1, 1)) == label);
        const cv::Moments moments = cv::moments(part);
        blobs.push_back(
            {{box.x + moments.m10 / moments.m00, box.y + moments.m01 / moments.m00}, static_cast<double>(area), box});
    }
    return blobs;
}

void KxMoverTracks::Predict(const cv::Matx33d& camera)
{
    for (std::vector<Track>& open : m_open) {
        for (Track& track : open) {
            track.background = Moved(camera, track.place);
            track.place = track.background + track.velocity;
        }
    }
}

std::optional<double> KxMoverTracks::AssociationCost(const Track& track, const Blob& blob) const
{
    const double reach = m_options.reachPerSecond * m_gapSeconds * m_mapPx.width +
                         m_options.reachBySize * std::sqrt(std::max(track.area, blob.area));
    const double distance = cv::norm(blob.centre - track.place) / reach;
    const double growth = std::abs(std::log(blob.area / track.area));
    if (distance >= 1.0 || growth >= m_options.mostGrowth) {
        return std::nullopt;
    }
    return distance + m_options.growthCost * growth - m_options.ageGain * std::min(track.hits, HitsThatCount);
}

KxMover::PackedBox KxMoverTracks::Packed(const cv::Rect& box) const
{
    const auto packed = [](double value, double whole) {
        return static_cast<std::uint8_t>(std::lround(std::clamp(value / whole, 0.0, 1.0) * PackedOne));
    };
    return {packed(box.x, m_mapPx.width), packed(box.y, m_mapPx.height), packed(box.br().x, m_mapPx.width),
            packed(box.br().y, m_mapPx.height)};
}

void KxMoverTracks::Extend(Track& track, const Blob& blob) const
{
    const cv::Point2d moved = blob.centre - track.background;
    if (track.misses == 0) {
        track.velocity += m_options.velocityGain * (moved - track.velocity);
    }
    track.travel += moved;
    track.place = blob.centre;
    track.area += m_options.areaGain * (blob.area - track.area);
    ++track.hits;
    track.lastSeconds = m_nowSeconds;

    const KxMover::PackedBox before = track.mover.boxes.back();
    const KxMover::PackedBox now = Packed(blob.box);
    for (int missed = 1; missed <= track.misses; ++missed) {
        KxMover::PackedBox between;
        for (std::size_t i = 0; i < between.size(); ++i) {
            between[i] = static_cast<std::uint8_t>(before[i] + (now[i] - before[i]) * missed / (track.misses + 1));
        }
        track.mover.boxes.push_back(between);
    }
    track.mover.boxes.push_back(now);
    track.misses = 0;
}

void KxMoverTracks::Associate(std::vector<Track>& open, const std::vector<Blob>& blobs)
{
    std::vector<std::tuple<double, std::size_t, std::size_t>> pairs;
    for (std::size_t i = 0; i < open.size(); ++i) {
        for (std::size_t j = 0; j < blobs.size(); ++j) {
            if (const std::optional<double> cost = AssociationCost(open[i], blobs[j])) {
                pairs.emplace_back(*cost, i, j);
            }
        }
    }
    std::sort(pairs.begin(), pairs.end());
    std::vector<bool> followed(open.size(), false);
    std::vector<bool> known(blobs.size(), false);
    for (const auto& [cost, i, j] : pairs) {
        if (!followed[i] && !known[j]) {
            followed[i] = true;
            known[j] = true;
            Extend(open[i], blobs[j]);
        }
    }
    std::vector<Track> staying;
    for (std::size_t i = 0; i < open.size(); ++i) {
        if (!followed[i] && ++open[i].misses > m_options.mostMisses) {
            End(open[i]);
        } else {
            staying.push_back(std::move(open[i]));
        }
    }
    for (std::size_t j = 0; j < blobs.size(); ++j) {
        if (!known[j]) {
            staying.push_back({blobs[j].centre,
                               blobs[j].centre,
                               {},
                               {},
                               blobs[j].area,
                               m_nowSeconds,
                               m_nowSeconds,
                               1,
                               0,
                               {m_sample, 0.0F, 0.0F, {Packed(blobs[j].box)}}});
        }
    }
    open = std::move(staying);
}

void KxMoverTracks::End(Track& track)
{
    const double seconds = track.lastSeconds - track.firstSeconds;
    const double travel = cv::norm(track.travel) / m_mapPx.width;
    if (track.hits >= m_options.leastHits && seconds > LeastSeconds && travel > LeastTravel) {
        const std::vector<KxMover::PackedBox>& boxes = track.mover.boxes;
        m_ended.push_back({track.mover.firstSample, static_cast<float>(seconds), static_cast<float>(travel),
                           static_cast<std::uint32_t>(boxes.size())});
        m_endedBoxes.insert(m_endedBoxes.end(), boxes.begin(), boxes.end());
    }
}

void KxMoverTracks::EndAll()
{
    for (std::vector<Track>& open : m_open) {
        std::for_each(open.begin(), open.end(), [this](Track& track) { End(track); });
        open.clear();
    }
}

void KxMoverTracks::AddMap(double timeSeconds, const cv::Mat& map, const std::optional<cv::Matx33d>& camera)
{
    ++m_sample;
    m_gapSeconds = timeSeconds - m_nowSeconds;
    m_nowSeconds = timeSeconds;
    m_mapPx = map.size();
    if (camera) {
        Predict(Halved(*camera));
    } else {
        EndAll();
    }
    const std::vector<Peak> peaks = PeaksOf(map);
    for (std::size_t level = 0; level < m_open.size(); ++level) {
        Associate(m_open[level], BlobsAt(static_cast<int>(level), map, peaks));
    }
}

std::vector<KxMover> KxMoverTracks::Finish()
{
    EndAll();
    std::vector<KxMover> movers;
    movers.reserve(m_ended.size());
    auto box = m_endedBoxes.cbegin();
    for (const Ended& ended : m_ended) {
        const auto end = box + ended.boxes;
        movers.push_back({ended.firstSample, ended.seconds, ended.travel, {box, end}});
        box = end;
    }
    m_ended = {};
    m_endedBoxes = {};
    std::stable_sort(movers.begin(), movers.end(),
                     [](const KxMover& a, const KxMover& b) { return a.firstSample < b.firstSample; });
    return movers;
}
