#include <KxSubject/Choice/KxShotFaces.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr std::size_t LeastHits = 5; ///< looks that see a face
constexpr double SamePlace = 0.6;    ///< in sides of a face: a nearer one is the same person
constexpr double PlaceSeconds = 1.0; ///< each way, over which a face's place is averaged

bool IsEarlier(const KxFaceLook& a, const KxFaceLook& b)
{
    return a.timeSeconds < b.timeSeconds;
}

bool IsBefore(const KxFaceLook& look, float seconds)
{
    return look.timeSeconds < seconds;
}

/// Of growing hits, at least one.
const KxFaceLook& Nearest(const std::vector<KxFaceLook>& hits, float seconds)
{
    const auto after = std::lower_bound(hits.begin(), hits.end(), seconds, IsBefore);
    if (after == hits.begin()) {
        return hits.front();
    }
    const bool isAfter = after != hits.end() && after->timeSeconds - seconds < seconds - std::prev(after)->timeSeconds;
    return isAfter ? *after : *std::prev(after);
}

/// Between the middles of two boxes, in sides of the larger one.
double Distance(const KxFaceLook& a, const KxFaceLook& b)
{
    const double x = (a.x + a.width / 2.0) - (b.x + b.width / 2.0);
    const double y = (a.y + a.height / 2.0) - (b.y + b.height / 2.0);
    return std::hypot(x, y) / std::max<int>(a.width, b.width);
}

} // namespace

KxShotFaces::KxShotFaces(const KxSubjectRecord& record, std::int64_t first, std::int64_t end)
    : m_picturePx(record.workingSizePx)
{
    const auto from = static_cast<float>(record.SecondsAt(first));
    const auto to = static_cast<float>(record.SecondsAt(end));
    for (std::size_t face = 0; face < record.faces.size(); ++face) {
        const std::vector<KxFaceLook>& looks = record.faces[face].looks;
        if (looks.back().timeSeconds < from || looks.front().timeSeconds >= to) {
            continue;
        }
        std::vector<KxFaceLook> hits;
        std::copy_if(std::lower_bound(looks.begin(), looks.end(), from, IsBefore),
                     std::lower_bound(looks.begin(), looks.end(), to, IsBefore), std::back_inserter(hits),
                     [](const KxFaceLook& look) { return look.IsFace(); });
        if (hits.size() >= LeastHits) {
            Add(face, std::move(hits));
        }
    }
}

bool KxShotFaces::IsSame(const Person& person, const std::vector<KxFaceLook>& hits) const
{
    double sum = 0.0;
    for (const KxFaceLook& hit : hits) {
        const KxFaceLook& other = Nearest(person.hits, hit.timeSeconds);
        sum += Distance(hit, other);
        // Only the end that is near in time says something about a face that moves.
        if (hit.timeSeconds > person.hits.back().timeSeconds) {
            const auto count = static_cast<double>(&hit - hits.data() + 1);
            return sum / count < SamePlace;
        }
    }
    const auto count = static_cast<double>(hits.size());
    return sum / count < SamePlace;
}

void KxShotFaces::Add(std::size_t face, std::vector<KxFaceLook> hits)
{
    const auto same = std::find_if(m_people.begin(), m_people.end(),
                                   [this, &hits](const Person& person) { return IsSame(person, hits); });
    if (same == m_people.end()) {
        m_people.push_back({{face}, std::move(hits)});
        return;
    }
    same->faces.push_back(face);
    std::vector<KxFaceLook> both;
    std::merge(same->hits.begin(), same->hits.end(), hits.begin(), hits.end(), std::back_inserter(both), IsEarlier);
    same->hits = std::move(both);
}

KxCropRect KxShotFaces::BoxAt(std::size_t person, double seconds) const
{
    const std::vector<KxFaceLook>& hits = m_people[person].hits;
    const auto reach = static_cast<float>(PlaceSeconds);
    const auto time = static_cast<float>(seconds);
    auto from = std::lower_bound(hits.begin(), hits.end(), time - reach, IsBefore);
    auto to = std::lower_bound(from, hits.end(), time + reach, IsBefore);
    if (from == to) {
        const KxFaceLook& nearest = Nearest(hits, time);
        from = hits.begin() + (&nearest - hits.data());
        to = std::next(from);
    }
    KxCropRect box{0.0, 0.0, 0.0, 0.0};
    const auto count = static_cast<double>(to - from);
    for (auto hit = from; hit != to; ++hit) {
        box.x += hit->x / count / m_picturePx.width;
        box.y += hit->y / count / m_picturePx.height;
        box.width += hit->width / count / m_picturePx.width;
        box.height += hit->height / count / m_picturePx.height;
    }
    return box;
}
