#include <KxSubject/KxSubjectAnalyzer.h>

#include <KxSubject/Choice/KxSubjectTracker.h>
#include <KxSubject/KxFaceModels.h>
#include <KxSubject/KxPictureView.h>
#include <KxSubject/KxSubjectFindings.h>
#include <KxSubject/Path/KxCropPath.h>
#include <KxSubject/Shots/KxShotDetector.h>
#include <KxSubject/Signals/KxOpenCvError.h>
#include <KxSubject/Signals/KxSignalRecorder.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

constexpr double UsualFrameRate = 25.0;
constexpr std::size_t BytesPerPixel = 3;

KxSubjectRequest Checked(KxSubjectRequest request)
{
    request.pictureWidthPx = std::max(request.pictureWidthPx, 1);
    request.pictureHeightPx = std::max(request.pictureHeightPx, 1);
    request.frameCount = std::max<std::int64_t>(request.frameCount, 0);
    if (!std::isfinite(request.frameRate) || request.frameRate <= 0.0) {
        request.frameRate = UsualFrameRate;
    }
    return request;
}

cv::Size WorkingSizeOf(const KxSubjectRequest& request, const KxSubjectOptions::Sampling& options)
{
    const double scale =
        static_cast<double>(options.workingLongSidePx) / std::max(request.pictureWidthPx, request.pictureHeightPx);
    return {std::max(cvRound(request.pictureWidthPx * scale), options.workingShortSideMinPx),
            std::max(cvRound(request.pictureHeightPx * scale), options.workingShortSideMinPx)};
}

} // namespace

class KxSubjectAnalyzer::Impl
{
public:
    Impl(const KxSubjectRequest& request, const KxFaceModels& faceModels, const KxSubjectOptions& options)
        : m_request(Checked(request))
        , m_options(options)
        , m_workingSize(WorkingSizeOf(m_request, options.sampling))
        , m_shots(options.shots)
        , m_signals(options, m_workingSize, m_request.frameRate, faceModels)
        , m_step(std::max<std::int64_t>(1, static_cast<std::int64_t>(std::floor(
                                               m_request.frameRate / options.sampling.wantedPicturesPerSecond + 0.01))))
    {
        m_shots.Reserve(m_request.frameCount);
        m_signals.Reserve(m_request.frameCount);
    }

    KxIntSize WorkingSize() const { return {m_workingSize.width, m_workingSize.height}; }
    bool IsFaceDetectorRefused() const { return m_signals.Faces().Finder().IsDetectorRefused(); }
    bool Wants(std::int64_t frame) const { return frame >= 0 && frame < m_request.frameCount && frame % m_step == 0; }
    void AddPicture(std::int64_t frame, const KxPictureView& view);
    std::vector<KxCropRect> Finish(const KxCancelToken& cancel);
    const KxSubjectFindings& Findings() const { return m_findings; }

private:
    struct Shot {
        std::int64_t first;
        std::int64_t end;
        /// Frames outside these are blended with the neighbouring shot and do not count as evidence.
        std::int64_t clearFirst;
        std::int64_t clearEnd;
    };
    KxCropRect ContentShare() const;
    KxCropGeometry Geometry() const;
    /// The boundaries that were found, and the ends of long pauses in the pictures: what follows hours later is
    /// another shot, and no path has to be computed through the pause.
    std::vector<KxShotBoundary> Boundaries() const;
    std::vector<Shot> Shots() const;
    std::int64_t LongestHoldFrames() const;
    /// The evidence of all signals, its peaks amplified, so that one subject outweighs what is spread wide.
    KxSignalProfile Combined(const KxSignalRecorder::Evidence& evidence) const;
    /// The tracker's cost of a move by one width, in a shot with samples from `begin` up to, but without, `end`: where
    /// pictures are missing, fewer samples have to pay for a move.
    double MoveCost(const Shot& shot, std::size_t begin, std::size_t end) const;
    std::vector<double> CentresOf(const Shot& shot, const KxCropGeometry& geometry, const KxCentreScore& score,
                                  const KxCancelToken& cancel);
    void RecordFindings(const Shot& shot, const std::vector<KxPathPoint>& points, std::size_t firstSample, KxAxis axis,
                        const KxCentreScore& score);

    KxSubjectRequest m_request;
    KxSubjectOptions m_options;
    cv::Size m_workingSize;
    KxShotDetector m_shots;
    KxSignalRecorder m_signals;
    std::int64_t m_step; ///< one frame of this many is wanted
    std::int64_t m_lastFrame = -1;
    KxSubjectFindings m_findings;
};

void KxSubjectAnalyzer::Impl::AddPicture(std::int64_t frame, const KxPictureView& view)
{
    if (frame <= m_lastFrame || frame >= m_request.frameCount || view.data == nullptr || view.sizePx != WorkingSize() ||
        view.bytesPerRow < BytesPerPixel * static_cast<std::size_t>(view.sizePx.width)) {
        return;
    }
    m_lastFrame = frame;
    // cv::Mat cannot refer to constant data; nothing here writes to it.
    const cv::Mat picture(m_workingSize, CV_8UC3, const_cast<std::uint8_t*>(view.data), view.bytesPerRow);
    try {
        m_shots.AddPicture(frame, picture);
        m_signals.AddPicture(frame, picture);
    } catch (const cv::Exception& problem) {
        KxThrowIfOutOfMemory(problem);
    }
}

KxCropRect KxSubjectAnalyzer::Impl::ContentShare() const
{
    const cv::Rect content = m_signals.Content();
    const auto width = static_cast<double>(m_workingSize.width);
    const auto height = static_cast<double>(m_workingSize.height);
    return {content.x / width, content.y / height, content.width / width, content.height / height};
}

KxCropGeometry KxSubjectAnalyzer::Impl::Geometry() const
{
    return KxCropGeometry({m_request.pictureWidthPx, m_request.pictureHeightPx},
                          {m_request.aspectWidth, m_request.aspectHeight}, ContentShare());
}

std::int64_t KxSubjectAnalyzer::Impl::LongestHoldFrames() const
{
    // At a very low rate every picture is held for long.
    constexpr double leastFrames = 4.0;
    return std::llround(std::max(m_options.path.longestHoldSeconds * m_request.frameRate, leastFrames));
}

std::vector<KxShotBoundary> KxSubjectAnalyzer::Impl::Boundaries() const
{
    std::vector<KxShotBoundary> boundaries = m_shots.Boundaries(m_request.frameRate);
    const std::vector<KxSignalSample>& samples = m_signals.Samples();
    std::vector<KxShotBoundary> pauses;
    for (std::size_t i = 1; i < samples.size(); ++i) {
        const std::int64_t frame = samples[i].frame;
        const std::int64_t before = samples[i - 1].frame;
        const auto isFound = [before, frame](const KxShotBoundary& boundary) {
            return boundary.frame > before && boundary.frame <= frame;
        };
        if (frame - before > LongestHoldFrames() && std::none_of(boundaries.begin(), boundaries.end(), isFound)) {
            pauses.push_back({frame, frame, frame, KxShotBoundaryKind::Cut});
        }
    }
    boundaries.insert(boundaries.end(), pauses.begin(), pauses.end());
    std::sort(boundaries.begin(), boundaries.end(),
              [](const KxShotBoundary& a, const KxShotBoundary& b) { return a.frame < b.frame; });
    return boundaries;
}

std::vector<KxSubjectAnalyzer::Impl::Shot> KxSubjectAnalyzer::Impl::Shots() const
{
    std::vector<Shot> shots{{0, m_request.frameCount, 0, m_request.frameCount}};
    for (const KxShotBoundary& boundary : Boundaries()) {
        shots.back().end = boundary.frame;
        shots.back().clearEnd = std::min(boundary.first, boundary.frame);
        shots.push_back(
            {boundary.frame, m_request.frameCount, std::max(boundary.frame, boundary.last), m_request.frameCount});
    }
    return shots;
}

KxSignalProfile KxSubjectAnalyzer::Impl::Combined(const KxSignalRecorder::Evidence& evidence) const
{
    return evidence.Sum().Concentrated(m_options.evidence.concentration);
}

double KxSubjectAnalyzer::Impl::MoveCost(const Shot& shot, std::size_t begin, std::size_t end) const
{
    if (begin == end) {
        return 0.0;
    }
    const std::vector<KxSignalSample>& samples = m_signals.Samples();
    const std::int64_t first = std::max(shot.first, samples[begin].frame - LongestHoldFrames());
    const std::int64_t last = std::min(shot.end - 1, samples[end - 1].frame + LongestHoldFrames());
    const double patience = m_options.For(m_request.speed).holdSeconds / m_options.automatic.holdSeconds;
    const double usualRate = m_options.sampling.samplesPerSecond;
    const double rate = static_cast<double>(end - begin) * m_request.frameRate / static_cast<double>(last + 1 - first);
    return m_options.path.moveCost * patience * std::sqrt(usualRate) * std::min(1.0, rate / usualRate);
}

std::vector<double> KxSubjectAnalyzer::Impl::CentresOf(const Shot& shot, const KxCropGeometry& geometry,
                                                       const KxCentreScore& score, const KxCancelToken& cancel)
{
    const std::vector<KxSignalSample>& samples = m_signals.Samples();
    const auto isBefore = [](const KxSignalSample& sample, std::int64_t frame) { return sample.frame < frame; };
    const auto from = std::lower_bound(samples.begin(), samples.end(), shot.first, isBefore);
    const auto to = std::lower_bound(from, samples.end(), shot.end, isBefore);
    const auto begin = static_cast<std::size_t>(from - samples.begin());
    const auto end = static_cast<std::size_t>(to - samples.begin());

    KxSubjectTracker tracker(MoveCost(shot, begin, end) * score.Spacing());
    for (std::size_t i = begin; i < end && !cancel.IsCancelled(); ++i) {
        const bool clear = samples[i].frame >= shot.clearFirst && samples[i].frame < shot.clearEnd;
        tracker.Add(clear ? score.Of(Combined(m_signals.EvidenceAt(i, shot.first, shot.end, geometry.FreeAxis())))
                          : KxCentreScore::Scores{});
    }
    std::vector<KxPathPoint> points;
    for (const std::size_t position : tracker.BestRun()) {
        points.push_back({samples[begin + points.size()].frame, score.CentreAt(position)});
    }
    if (m_request.wantsFindings) {
        RecordFindings(shot, points, begin, geometry.FreeAxis(), score);
    }
    return KxCropPath(m_options.path, m_options.For(m_request.speed), geometry)
        .Draw(points, {shot.first, shot.end, m_request.frameRate}, 0.5, cancel);
}

void KxSubjectAnalyzer::Impl::RecordFindings(const Shot& shot, const std::vector<KxPathPoint>& points,
                                             std::size_t firstSample, KxAxis axis, const KxCentreScore& score)
{
    std::array<float, KxSignalCount> totals{};
    for (std::size_t i = 0; i < points.size(); ++i) {
        const KxSignalRecorder::Evidence evidence = m_signals.EvidenceAt(firstSample + i, shot.first, shot.end, axis);
        KxSubjectFindings::Sample sample;
        sample.frame = points[i].frame;
        sample.wanted = points[i].centre;
        sample.evidence = KxPackedProfile(Combined(evidence));
        const std::array<const KxSignalProfile*, KxSignalCount> signals{&evidence.motion, &evidence.movers,
                                                                        &evidence.saliency, &evidence.faces};
        for (std::size_t signal = 0; signal < KxSignalCount; ++signal) {
            sample.scores[signal] = score.Excess(points[i].centre, *signals[signal]);
            totals[signal] += sample.scores[signal];
        }
        m_findings.samples.push_back(sample);
    }
    const auto dominant = std::max_element(totals.begin(), totals.end()) - totals.begin();
    m_findings.shots.push_back({shot.first, shot.end, static_cast<KxSignal>(dominant)});
}

std::vector<KxCropRect> KxSubjectAnalyzer::Impl::Finish(const KxCancelToken& cancel)
{
    m_signals.Finish();
    std::vector<KxCropRect> crops;
    crops.reserve(static_cast<std::size_t>(m_request.frameCount));
    const KxCropGeometry geometry = Geometry();
    const KxCentreScore score(m_options.evidence, geometry);
    m_findings.freeAxis = geometry.FreeAxis();
    m_findings.content = ContentShare();
    for (const Shot& shot : Shots()) {
        for (const double centre : CentresOf(shot, geometry, score, cancel)) {
            crops.push_back(geometry.At(centre));
        }
        if (cancel.IsCancelled()) {
            return {};
        }
    }
    return crops;
}

KxSubjectAnalyzer::KxSubjectAnalyzer(const KxSubjectRequest& request, const KxFaceModels& faceModels)
    : KxSubjectAnalyzer(request, faceModels, KxSubjectOptions())
{
}

KxSubjectAnalyzer::KxSubjectAnalyzer(const KxSubjectRequest& request, const KxFaceModels& faceModels,
                                     const KxSubjectOptions& options)
    : m_impl(std::make_unique<Impl>(request, faceModels, options))
{
}

KxSubjectAnalyzer::~KxSubjectAnalyzer() = default;

KxIntSize KxSubjectAnalyzer::WorkingSize() const
{
    return m_impl->WorkingSize();
}

bool KxSubjectAnalyzer::Wants(std::int64_t frame) const
{
    return m_impl->Wants(frame);
}

void KxSubjectAnalyzer::AddPicture(std::int64_t frame, const KxPictureView& picture)
{
    m_impl->AddPicture(frame, picture);
}

std::vector<KxCropRect> KxSubjectAnalyzer::Finish(const KxCancelToken& cancel)
{
    return m_impl->Finish(cancel);
}

const KxSubjectFindings& KxSubjectAnalyzer::Findings() const
{
    return m_impl->Findings();
}

bool KxSubjectAnalyzer::IsFaceDetectorRefused() const
{
    return m_impl->IsFaceDetectorRefused();
}
