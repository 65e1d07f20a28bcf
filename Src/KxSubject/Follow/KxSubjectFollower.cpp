#include <KxSubject/Follow/KxSubjectFollower.h>

#include <KxSubject/Choice/KxChoiceRanges.h>
#include <KxSubject/Choice/KxDetectedBox.h>
#include <KxSubject/Follow/KxBoxGuess.h>
#include <KxSubject/Follow/KxDetectionAnchor.h>
#include <KxSubject/Follow/KxDriftCheck.h>
#include <KxSubject/Follow/KxFollowTracker.h>
#include <KxSubject/Follow/KxMoverBridge.h>
#include <KxSubject/Follow/KxTrackBlend.h>
#include <KxSubject/KxPictureView.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/Signals/KxOpenCvError.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace
{

constexpr double PicturesPerSecond = 15.0; ///< at most
constexpr double CheckedSeconds = 1.0;     ///< of a track that are followed backward at a time
constexpr double BridgedConfidence = 0.5;  ///< of a place that is known from movers alone
constexpr double ElsewhereShare = 0.5;     ///< of the box's side: a detection farther from it shows that it was wrong
constexpr std::size_t BytesPerPixel = 3;

struct Picture {
    std::int64_t frame;
    cv::Mat pixels;
};

bool IsElsewhere(const cv::Rect2d& found, const cv::Rect2d& tracked)
{
    const cv::Point2d off = (found.tl() + found.br() - tracked.tl() - tracked.br()) / 2.0;
    return cv::norm(off) > ElsewhereShare * std::sqrt(found.area());
}

} // namespace

class KxSubjectFollower::Impl
{
public:
    Impl(const KxSubjectRecord& record, const KxSubjectChoice& choice, const KxSubjectOptions& options);

    std::optional<Range> NextRange() const;
    bool Wants(std::int64_t frame) const;
    void AddPicture(std::int64_t frame, const KxPictureView& view);
    void EndRange(const std::function<bool()>& goesOn);
    double Progress(std::size_t more) const
    {
        return m_steps.empty() ? 1.0 : static_cast<double>(m_next + more) / static_cast<double>(m_steps.size());
    }
    KxFollowTrack Track() const;

private:
    /// A seed, and where it was seen from there to its neighbours or the ends of the shot.
    struct Seed {
        std::int64_t frame = 0;
        KxSubjectBox box;
        bool startsShot = false; ///< it is the first one of its shot
        std::vector<KxFollowTrack::Point> after;
        std::vector<KxFollowTrack::Point> before; ///< falling by frame
    };
    /// One range of pictures: some seeds are followed forward through it while it comes, then some backward.
    struct Step {
        Range range;
        bool isForward = false;
        std::vector<std::size_t> backward; ///< growing
    };

    void AddShot(const Range& shot, const KxSubjectChoice& choice);
    void FollowForward(const Picture& picture);
    bool FollowBackward(std::size_t seed, std::int64_t until, const std::function<bool()>& goesOn);
    /// Follows the thing of one seed in one direction of time.
    struct Run {
        std::size_t seed;
        KxFollowTracker tracker;
        KxDetectionAnchor anchor;
        KxMoverBridge bridge;
        KxDriftCheck drift;
        std::int64_t detectedFrame;             ///< when it was known last where the thing is
        std::optional<std::int64_t> wrongSince; ///< the detector has just found it elsewhere; then that frame
        bool isAmbiguous = false;               ///< it has met another one, and may be that one
    };
    /// `before`: of an earlier seed in the same shot, which knows what is beside the thing.
    Run Started(std::size_t index, const Picture& picture, const std::optional<Run>& before);
    KxFollowTrack::Point Advance(Run& run, const Picture& picture) const;
    /// The same at the end of `points`, of which some may turn out to be doubted.
    void Advance(Run& run, const Picture& picture, std::vector<KxFollowTrack::Point>& points) const;
    cv::Rect2d PixelsOf(const KxSubjectBox& box) const;
    KxSubjectBox ShareOf(const cv::Rect2d& box) const;

    const KxSubjectRecord& m_record;
    KxSubjectOptions m_options;
    cv::Size m_sizePx;
    std::int64_t m_stepFrames;
    double m_frameRate;
    std::int64_t m_checkedFrames;
    std::vector<Seed> m_seeds; ///< growing by frame
    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    std::vector<Picture> m_kept; ///< of this range, growing by frame
    std::optional<std::size_t> m_forwardSeed;
    std::optional<Run> m_forward;
    std::optional<std::size_t> m_backwardSeed;
    std::optional<Run> m_backward;
};

KxSubjectFollower::Impl::Impl(const KxSubjectRecord& record, const KxSubjectChoice& choice,
                              const KxSubjectOptions& options)
    : m_record(record)
    , m_options(options)
    , m_sizePx(record.workingSizePx.width, record.workingSizePx.height)
    , m_stepFrames(std::max<std::int64_t>(
          1, static_cast<std::int64_t>(std::floor(record.source.frameRate / PicturesPerSecond + 0.01))))
    , m_frameRate(record.source.frameRate)
    , m_checkedFrames(std::max<std::int64_t>(1, std::llround(record.source.frameRate * CheckedSeconds)))
{
    std::int64_t first = 0;
    for (std::size_t i = 0; i <= record.boundaries.size(); ++i) {
        const std::int64_t end = i < record.boundaries.size() ? record.boundaries[i].frame : record.source.frameCount;
        const KxChoiceRanges ranges({choice}, m_frameRate, first, end);
        for (const KxChoiceRanges::Range& range : ranges.Of(choice.kind)) {
            AddShot({range.first, range.end}, choice);
        }
        first = end;
    }
}

void KxSubjectFollower::Impl::AddShot(const Range& shot, const KxSubjectChoice& choice)
{
    const std::size_t firstSeed = m_seeds.size();
    for (const KxSubjectSeed& seed : choice.seeds) {
        const std::int64_t frame = KxChoiceRanges::FrameAt(seed.seconds, m_frameRate);
        if (frame >= shot.first && frame < shot.end) {
            m_seeds.push_back({frame, seed.box, false, {}, {}});
        }
    }
    if (m_seeds.size() == firstSeed) {
        return;
    }
    std::stable_sort(m_seeds.begin() + static_cast<std::ptrdiff_t>(firstSeed), m_seeds.end(),
                     [](const Seed& a, const Seed& b) { return a.frame < b.frame; });
    m_seeds[firstSeed].startsShot = true;
    const auto block = static_cast<std::int64_t>(m_options.follow.blockSeconds * m_frameRate);
    if (shot.end - shot.first <= block) {
        Step step{shot, true, {}};
        for (std::size_t seed = firstSeed; seed < m_seeds.size(); ++seed) {
            step.backward.push_back(seed);
        }
        m_steps.push_back(step);
        return;
    }
    m_steps.push_back({{m_seeds[firstSeed].frame, shot.end}, true, {}});
    for (std::size_t seed = firstSeed; seed < m_seeds.size(); ++seed) {
        const std::int64_t from = seed == firstSeed ? shot.first : m_seeds[seed - 1].frame;
        // A picture is held until the next one comes, so the seed's own may lie later.
        std::int64_t to = std::min(shot.end, m_seeds[seed].frame + m_stepFrames + 1);
        while (to > from) {
            const std::int64_t begin = std::max(from, to - block);
            m_steps.push_back({{begin, to}, false, {seed}});
            to = begin;
        }
    }
}

std::optional<KxSubjectFollower::Range> KxSubjectFollower::Impl::NextRange() const
{
    return m_next < m_steps.size() ? std::optional(m_steps[m_next].range) : std::nullopt;
}

bool KxSubjectFollower::Impl::Wants(std::int64_t frame) const
{
    const auto isBefore = [](const KxDetectionLook& look, std::int64_t time) { return look.frame < time; };
    const auto look = std::lower_bound(m_record.looks.begin(), m_record.looks.end(), frame, isBefore);
    return frame % m_stepFrames == 0 || (look != m_record.looks.end() && look->frame == frame) ||
           std::any_of(m_seeds.begin(), m_seeds.end(), [frame](const Seed& seed) { return seed.frame == frame; });
}

void KxSubjectFollower::Impl::AddPicture(std::int64_t frame, const KxPictureView& view)
{
    const bool isPicture = view.data != nullptr && view.sizePx.width == m_sizePx.width &&
                           view.sizePx.height == m_sizePx.height &&
                           view.bytesPerRow >= BytesPerPixel * static_cast<std::size_t>(m_sizePx.width);
    if (!isPicture || m_next >= m_steps.size() || (!m_kept.empty() && frame <= m_kept.back().frame)) {
        return;
    }
    const Step& step = m_steps[m_next];
    // cv::Mat cannot refer to constant data; nothing here writes to it.
    const cv::Mat pixels(m_sizePx, CV_8UC3, const_cast<std::uint8_t*>(view.data), view.bytesPerRow);
    const bool isKept = !step.backward.empty() && frame <= m_seeds[step.backward.back()].frame + m_stepFrames;
    try {
        if (step.isForward) {
            FollowForward({frame, pixels});
        }
        if (isKept) {
            m_kept.push_back({frame, pixels.clone()});
        }
    } catch (const cv::Exception& problem) {
        KxThrowIfOutOfMemory(problem);
    }
}

cv::Rect2d KxSubjectFollower::Impl::PixelsOf(const KxSubjectBox& box) const
{
    return {box.x * m_sizePx.width, box.y * m_sizePx.height, box.width * m_sizePx.width, box.height * m_sizePx.height};
}

KxSubjectBox KxSubjectFollower::Impl::ShareOf(const cv::Rect2d& box) const
{
    return {box.x / m_sizePx.width, box.y / m_sizePx.height, box.width / m_sizePx.width, box.height / m_sizePx.height};
}

KxSubjectFollower::Impl::Run KxSubjectFollower::Impl::Started(std::size_t index, const Picture& picture,
                                                              const std::optional<Run>& before)
{
    Seed& seed = m_seeds[index];
    KxDetectionAnchor anchor = before && !seed.startsShot ? before->anchor : KxDetectionAnchor(m_record, m_options);
    anchor.DrawAgain();
    if (PixelsOf(seed.box).empty()) {
        const std::optional<KxSubjectBox> found =
            KxDetectedBoxAt(m_record, m_options.detections, seed.frame, seed.box.x, seed.box.y);
        seed.box =
            found ? *found : ShareOf(KxBoxGuess::Around(picture.pixels, PixelsOf(seed.box).tl(), m_options.follow).box);
    }
    Run run{index,
            KxFollowTracker(picture.pixels, PixelsOf(seed.box)),
            anchor,
            KxMoverBridge(m_record),
            KxDriftCheck(m_checkedFrames),
            picture.frame,
            std::nullopt};
    run.anchor.Correct({picture.frame, seed.box, 1.0});
    run.drift.SeeAt(picture.frame, picture.pixels, PixelsOf(seed.box));
    run.bridge.SeeAt(picture.frame, seed.box);
    return run;
}

KxFollowTrack::Point KxSubjectFollower::Impl::Advance(Run& run, const Picture& picture) const
{
    KxFollowTracker& tracker = run.tracker;
    tracker.AddPicture(picture.pixels);
    const KxSubjectBox tracked = ShareOf(tracker.Box());
    const std::optional<KxSubjectBox> found = run.anchor.Correct({picture.frame, tracked, tracker.Confidence()});
    run.wrongSince.reset();
    if (found) {
        run.wrongSince = IsElsewhere(PixelsOf(*found), tracker.Box()) ? std::optional(run.detectedFrame) : std::nullopt;
        run.isAmbiguous = run.isAmbiguous || run.anchor.IsAmbiguous();
        run.detectedFrame = picture.frame;
    }
    if (found && !KxDetectionAnchor::AreSame(*found, tracked, m_options.follow)) {
        tracker = KxFollowTracker(picture.pixels, PixelsOf(*found));
    }
    KxFollowTrack::Point point{static_cast<std::int32_t>(picture.frame), ShareOf(tracker.Box()),
                               static_cast<float>(tracker.Confidence())};
    if (tracker.Confidence() >= m_options.follow.goodConfidence) {
        run.bridge.SeeAt(picture.frame, point.box);
    } else if (const std::optional<KxSubjectBox> bridged = run.bridge.BoxAt(picture.frame)) {
        point.box = *bridged;
        point.confidence = static_cast<float>(BridgedConfidence);
        const cv::Rect2d box = PixelsOf(*bridged);
        tracker.MoveTo((box.tl() + box.br()) / 2.0);
    }
    if (found) {
        run.drift.SeeAt(picture.frame, picture.pixels, PixelsOf(point.box));
    } else {
        run.drift.Add(picture.frame, picture.pixels, PixelsOf(point.box));
    }
    point.isAmbiguous = run.isAmbiguous;
    return point;
}

void KxSubjectFollower::Impl::Advance(Run& run, const Picture& picture, std::vector<KxFollowTrack::Point>& points) const
{
    points.push_back(Advance(run, picture));
    if (const std::optional<std::int64_t> since = run.drift.DoubtedSince()) {
        for (auto point = points.rbegin(); point != points.rend() && point->frame != *since && !point->isDoubted;
             ++point) {
            point->isDoubted = true;
        }
    }
    if (run.wrongSince) {
        std::for_each(
            std::next(points.rbegin()),
            std::find_if(points.rbegin(), points.rend(),
                         [&run](const KxFollowTrack::Point& point) { return point.frame == *run.wrongSince; }),
            [](KxFollowTrack::Point& point) { point.isDoubted = true; });
    }
}

void KxSubjectFollower::Impl::FollowForward(const Picture& picture)
{
    std::size_t due = m_forwardSeed ? *m_forwardSeed + 1 : 0;
    std::optional<std::size_t> started;
    const Range& range = m_steps[m_next].range;
    for (; due < m_seeds.size() && m_seeds[due].frame <= picture.frame; ++due) {
        if (m_seeds[due].frame >= range.first) {
            started = due;
        }
    }
    if (started) {
        m_forwardSeed = started;
        m_forward.emplace(Started(*started, picture, m_forward));
    } else if (m_forward) {
        Advance(*m_forward, picture, m_seeds[m_forward->seed].after);
    }
}

bool KxSubjectFollower::Impl::FollowBackward(std::size_t index, std::int64_t until, const std::function<bool()>& goesOn)
{
    auto from = m_kept.end();
    if (m_backwardSeed != index) {
        m_backward.reset();
        m_backwardSeed = index;
        from = std::lower_bound(m_kept.begin(), m_kept.end(), m_seeds[index].frame,
                                [](const Picture& picture, std::int64_t frame) { return picture.frame < frame; });
        if (from == m_kept.end() && !m_kept.empty()) {
            --from;
        }
        if (from != m_kept.end()) {
            m_backward.emplace(Started(index, *from, std::nullopt));
        }
    }
    while (m_backward && from != m_kept.begin() && std::prev(from)->frame >= until) {
        --from;
        Advance(*m_backward, *from, m_seeds[index].before);
        if (!goesOn()) {
            return false;
        }
    }
    return true;
}

void KxSubjectFollower::Impl::EndRange(const std::function<bool()>& goesOn)
{
    if (m_next >= m_steps.size()) {
        return;
    }
    const Step& step = m_steps[m_next];
    try {
        for (const std::size_t seed : step.backward) {
            const bool isFirst = m_seeds[seed].startsShot;
            const std::int64_t until = isFirst ? step.range.first : std::max(step.range.first, m_seeds[seed - 1].frame);
            if (!FollowBackward(seed, until, goesOn)) {
                break;
            }
        }
    } catch (const cv::Exception& problem) {
        KxThrowIfOutOfMemory(problem);
    }
    if (step.isForward) {
        m_forward.reset();
    }
    m_kept.clear();
    ++m_next;
}

KxFollowTrack KxSubjectFollower::Impl::Track() const
{
    KxFollowTrack track;
    const auto add = [&track](const std::vector<KxFollowTrack::Point>& points) {
        track.points.insert(track.points.end(), points.begin(), points.end());
    };
    for (std::size_t i = 0; i < m_seeds.size(); ++i) {
        const Seed& seed = m_seeds[i];
        if (seed.startsShot) {
            add({seed.before.rbegin(), seed.before.rend()});
        }
        const KxFollowTrack::Point here{static_cast<std::int32_t>(seed.frame), seed.box, 1.0F};
        add({here});
        const bool isLast = i + 1 == m_seeds.size() || m_seeds[i + 1].startsShot;
        if (isLast) {
            add(seed.after);
            continue;
        }
        const Seed& next = m_seeds[i + 1];
        add(KxTrackBlend::Between({here, seed.after},
                                  {{static_cast<std::int32_t>(next.frame), next.box, 1.0F}, next.before},
                                  m_options.follow));
    }
    return track;
}

KxSubjectFollower::KxSubjectFollower(const KxSubjectRecord& record, const KxSubjectChoice& choice,
                                     const KxSubjectOptions& options)
    : m_impl(std::make_unique<Impl>(record, choice, options))
{
}

KxSubjectFollower::~KxSubjectFollower() = default;

std::optional<KxSubjectFollower::Range> KxSubjectFollower::NextRange() const
{
    return m_impl->NextRange();
}

bool KxSubjectFollower::Wants(std::int64_t frame) const
{
    return m_impl->Wants(frame);
}

void KxSubjectFollower::AddPicture(std::int64_t frame, const KxPictureView& picture)
{
    m_impl->AddPicture(frame, picture);
}

void KxSubjectFollower::EndRange(const std::function<bool()>& goesOn)
{
    m_impl->EndRange(goesOn);
}

double KxSubjectFollower::Progress() const
{
    return m_impl->Progress(0);
}

double KxSubjectFollower::ProgressAfterRange() const
{
    return m_impl->Progress(1);
}

KxFollowTrack KxSubjectFollower::Track() const
{
    return m_impl->Track();
}
