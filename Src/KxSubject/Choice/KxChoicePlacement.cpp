#include <KxSubject/Choice/KxChoicePlacement.h>

#include <KxSubject/KxSubjectRecord.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>

namespace
{

using Pictures = std::vector<KxChoicePicture>;

/// Prints that differ in fewer bits are of the same picture, or of one shortly before or after it.
constexpr int CloseBits = 11;
/// By how many bits per picture a time must fit better than another one to be preferred: less is noise.
constexpr double ClearlyBetter = 0.3;
/// Two days: what lies further away is not looked for.
constexpr std::int64_t FarthestFrame = 5000000;
/// Choices that are looked for one by one; a search takes some milliseconds for an hour of video.
constexpr int MostSearches = 100;
constexpr std::size_t PicturesOfRange = 12;
/// Where the picture hardly changes in a choice's own range, these show where the whole is.
constexpr std::size_t PicturesOfVideo = 48;
constexpr std::size_t MostSeedPictures = 4;

/// How well pictures fit at one time.
struct Fit {
    int inside = 0;     ///< pictures that would be in the video
    int close = 0;      ///< those that are like the video's
    int similarity = 0; ///< bits by which they are closer than they had to be

    bool IsMostlyClose() const { return close * 5 >= inside * 3 && close > 0; }
};

class Video
{
public:
    explicit Video(const KxSubjectRecord& record)
        : m_rate(record.source.frameRate)
        , m_prints(record.prints)
    {
        for (const KxShotBoundary& boundary : record.boundaries) {
            m_boundaries.push_back(boundary.frame);
        }
        m_nearest.reserve(static_cast<std::size_t>(std::max<std::int64_t>(0, record.source.frameCount)));
        for (std::size_t i = 0; i < m_prints.size(); ++i) {
            const std::int64_t end = i + 1 < m_prints.size() ? m_prints[i + 1].frame : record.source.frameCount;
            const std::int64_t gap = end - m_prints[i].frame;
            // Between two pictures that were looked at, others were skipped; over a longer time one was shown.
            constexpr std::int64_t mostSkipped = 4;
            const std::int64_t own = gap <= mostSkipped ? (gap + 1) / 2 : gap;
            m_nearest.resize(static_cast<std::size_t>(m_prints[i].frame + own), i);
            m_nearest.resize(static_cast<std::size_t>(end), i + 1 < m_prints.size() ? i + 1 : i);
        }
    }

    bool IsEmpty() const { return m_nearest.empty(); }
    double Seconds(std::int64_t frame) const { return static_cast<double>(frame) / m_rate; }
    std::int64_t FrameAt(double seconds) const
    {
        constexpr auto farthest = static_cast<double>(FarthestFrame);
        return std::llround(std::clamp(seconds * m_rate, -farthest, farthest));
    }
    std::int64_t Frames() const { return static_cast<std::int64_t>(m_nearest.size()); }

    /// Of the picture next to a frame.
    KxChoicePicture PictureAt(std::int64_t frame) const
    {
        const KxPicturePrint& print = PrintAt(frame);
        return {Seconds(print.frame), print.Bits()};
    }

    Fit FitOf(const Pictures& pictures, std::int64_t movedFrames) const
    {
        Fit fit;
        for (const KxChoicePicture& picture : pictures) {
            const std::int64_t frame = FrameAt(picture.seconds) + movedFrames;
            if (frame >= 0 && frame < Frames()) {
                const int bits = KxPrintDistance(picture.print, PrintAt(frame).Bits());
                ++fit.inside;
                fit.close += bits < CloseBits ? 1 : 0;
                fit.similarity += std::max(0, CloseBits - bits);
            }
        }
        return fit;
    }

    /// `move`, or up to two frames more or less if the pictures fit nearly as well, because some were skipped: that by
    /// which most ends of the choices are at boundaries of shots, where a person's choices usually end.
    std::int64_t ToBoundaries(std::int64_t move, const Pictures& pictures, const KxSubjectChoices& choices) const
    {
        const double fewest = FitOf(pictures, move).similarity - ClearlyBetter * static_cast<double>(pictures.size());
        std::int64_t best = move;
        int most = 0;
        for (const std::int64_t change : {0, -1, 1, -2, 2}) {
            int count = 0;
            if (FitOf(pictures, move + change).similarity < fewest) {
                continue;
            }
            for (const KxSubjectChoice& choice : choices) {
                for (const double seconds : {choice.fromSeconds, choice.toSeconds}) {
                    count +=
                        std::binary_search(m_boundaries.begin(), m_boundaries.end(), FrameAt(seconds) + move + change)
                            ? 1
                            : 0;
                }
            }
            if (count > most) {
                most = count;
                best = move + change;
            }
        }
        return best;
    }

    /// By how many frames the pictures have to be moved to fit best.
    std::int64_t BestMove(const Pictures& pictures) const
    {
        const Fit unmoved = FitOf(pictures, 0);
        const auto count = static_cast<int>(pictures.size());
        if (count == 0 || unmoved.similarity >= CloseBits * count) {
            return 0;
        }
        std::int64_t first = FarthestFrame;
        std::int64_t last = -FarthestFrame;
        for (const KxChoicePicture& picture : pictures) {
            first = std::min(first, FrameAt(picture.seconds));
            last = std::max(last, FrameAt(picture.seconds));
        }
        std::int64_t best = 0;
        double bestSimilarity = unmoved.similarity + ClearlyBetter * count;
        for (std::int64_t move = -last; move < Frames() - first; ++move) {
            const int similarity = FitOf(pictures, move).similarity;
            if (similarity > bestSimilarity) {
                best = move;
                bestSimilarity = similarity;
            }
        }
        return best;
    }

private:
    const KxPicturePrint& PrintAt(std::int64_t frame) const
    {
        return m_prints[m_nearest[static_cast<std::size_t>(frame)]];
    }

    double m_rate;
    const std::vector<KxPicturePrint>& m_prints;
    std::vector<std::size_t> m_nearest; ///< an index of the prints for each frame
    std::vector<std::int64_t> m_boundaries;
};

/// Some of the pictures of all choices.
Pictures SomeOf(const KxSubjectChoices& choices)
{
    constexpr std::size_t most = 400;
    Pictures all;
    for (const KxSubjectChoice& choice : choices) {
        all.insert(all.end(), choice.pictures.begin(), choice.pictures.end());
    }
    const std::size_t step = all.size() / most + 1;
    Pictures some;
    for (std::size_t i = 0; i < all.size(); i += step) {
        some.push_back(all[i]);
    }
    return some;
}

Pictures Describe(const KxSubjectChoice& choice, const Video& video)
{
    const std::int64_t first = std::clamp<std::int64_t>(video.FrameAt(choice.fromSeconds), 0, video.Frames() - 1);
    const std::int64_t last = std::clamp<std::int64_t>(video.FrameAt(choice.toSeconds) - 1, first, video.Frames() - 1);
    std::vector<std::int64_t> frames;
    const auto add = [&frames](std::int64_t from, std::int64_t to, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            frames.push_back(from + (to - from) * static_cast<std::int64_t>(i) / static_cast<std::int64_t>(count - 1));
        }
    };
    add(first, last, PicturesOfRange);
    add(0, video.Frames() - 1, PicturesOfVideo);
    const std::size_t step = choice.seeds.size() / MostSeedPictures + 1;
    for (std::size_t i = 0; i < choice.seeds.size(); i += step) {
        frames.push_back(std::clamp<std::int64_t>(video.FrameAt(choice.seeds[i].seconds), 0, video.Frames() - 1));
    }
    std::sort(frames.begin(), frames.end());
    Pictures pictures;
    for (const std::int64_t frame : frames) {
        const KxChoicePicture picture = video.PictureAt(frame);
        if (pictures.empty() || !(pictures.back() == picture)) {
            pictures.push_back(picture);
        }
    }
    return pictures;
}

KxSubjectChoice Moved(KxSubjectChoice choice, double seconds)
{
    choice.fromSeconds += seconds;
    choice.toSeconds += seconds;
    for (KxSubjectSeed& seed : choice.seeds) {
        seed.seconds += seconds;
    }
    for (KxChoicePicture& picture : choice.pictures) {
        picture.seconds += seconds;
    }
    return choice;
}

/// Those in the choice's own range; all of them if it began after the end of the video.
Pictures PicturesIn(const KxSubjectChoice& choice)
{
    constexpr double rounding = 0.1;
    Pictures pictures;
    std::copy_if(choice.pictures.begin(), choice.pictures.end(), std::back_inserter(pictures),
                 [&choice](const KxChoicePicture& picture) {
                     return picture.seconds >= choice.fromSeconds - rounding &&
                            picture.seconds <= choice.toSeconds + rounding;
                 });
    return pictures.empty() ? choice.pictures : pictures;
}

/// By how many frames one choice has to be moved, where most need `commonMove`; nothing if it is not in the video.
std::optional<std::int64_t> MoveOf(const KxSubjectChoice& choice, const Video& video, std::int64_t commonMove,
                                   int& searches)
{
    const Pictures own = PicturesIn(choice);
    const Fit common = video.FitOf(own, commonMove);
    if (common.IsMostlyClose()) {
        return commonMove;
    }
    const bool isCutAway = common.inside == 0;
    if (isCutAway || ++searches > MostSearches) {
        return std::nullopt;
    }
    const std::int64_t ownMove = video.BestMove(own);
    const Fit fit = video.FitOf(own, ownMove);
    // A few pictures are like some others anywhere.
    const bool isInside = static_cast<std::size_t>(fit.inside) * 2 >= own.size();
    return isInside && fit.IsMostlyClose() ? std::optional<std::int64_t>(video.ToBoundaries(ownMove, own, {choice}))
                                           : std::nullopt;
}

} // namespace

KxSubjectChoices KxDescribeChoices(const KxSubjectRecord& record, KxSubjectChoices choices)
{
    const Video video(record);
    for (KxSubjectChoice& choice : choices) {
        if (choice.pictures.empty() && !video.IsEmpty()) {
            choice.pictures = Describe(choice, video);
        }
    }
    return choices;
}

std::vector<KxPlacedChoice> KxPlaceChoices(const KxSubjectRecord& record, const KxSubjectChoices& choices)
{
    constexpr int fewestClose = 4;
    const Pictures some = SomeOf(choices);
    std::vector<KxPlacedChoice> placed;
    std::optional<Video> video;
    std::int64_t commonMove = 0;
    int searches = 0;
    if (!some.empty()) {
        video.emplace(record);
        commonMove = video->BestMove(some);
        if (video->FitOf(some, commonMove).close < fewestClose) {
            commonMove = 0;
        }
        if (commonMove != 0) {
            commonMove = video->ToBoundaries(commonMove, some, choices);
        }
    }
    for (const KxSubjectChoice& choice : choices) {
        placed.push_back({choice});
        if (choice.pictures.empty() || video->IsEmpty()) {
            continue;
        }
        const std::optional<std::int64_t> move = MoveOf(choice, *video, commonMove, searches);
        if (!move) {
            placed.back().place = KxPlacedChoice::Place::Missing;
        } else if (*move != 0) {
            const double seconds = video->Seconds(*move);
            placed.back() = {Moved(choice, seconds), KxPlacedChoice::Place::Moved, seconds};
        }
    }
    return placed;
}

KxSubjectChoices KxChoicesInside(const KxSubjectRecord& record, const std::vector<KxPlacedChoice>& placed)
{
    const double end = record.SecondsAt(record.source.frameCount);
    KxSubjectChoices inside;
    for (const KxPlacedChoice& candidate : placed) {
        if (candidate.place == KxPlacedChoice::Place::Missing) {
            continue;
        }
        KxSubjectChoice choice = candidate.choice;
        choice.pictures.clear();
        choice.fromSeconds = std::max(0.0, choice.fromSeconds);
        const bool pointed = !choice.seeds.empty();
        choice.seeds.erase(
            std::remove_if(choice.seeds.begin(), choice.seeds.end(),
                           [end](const KxSubjectSeed& seed) { return seed.seconds < 0.0 || seed.seconds >= end; }),
            choice.seeds.end());
        if (choice.fromSeconds < std::min(choice.toSeconds, end) && (!pointed || !choice.seeds.empty())) {
            inside.push_back(std::move(choice));
        }
    }
    return inside;
}
