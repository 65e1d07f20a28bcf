#include <KxSubject/KxSubjectAnalyzer.h>

#include <KxSubject/Choice/KxSubjectTracker.h>
#include <KxSubject/KxSubjectFindings.h>
#include <KxSubject/Path/KxCropPath.h>
#include <KxSubject/Shots/KxShotDetector.h>
#include <KxSubject/Signals/KxSignalTrack.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

constexpr double UsualFrameRate = 25.0;

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
    Impl(const KxSubjectRequest& request, const KxSubjectOptions& options)
        : m_request(Checked(request))
        , m_options(options)
        , m_workingSize(WorkingSizeOf(m_request, options.sampling))
        , m_shots(options.shots)
        , m_signals(options, m_workingSize, m_request.frameRate, request.faceModelPath)
        , m_step(std::max<std::int64_t>(1, static_cast<std::int64_t>(std::floor(
                                               m_request.frameRate / options.sampling.wantedPicturesPerSecond + 0.01))))
    {
        m_shots.Reserve(m_request.frameCount);
        m_signals.Reserve(m_request.frameCount);
    }

    cv::Size WorkingSize() const { return m_workingSize; }
    const std::string& FaceModelProblem() const { return m_signals.Faces().Finder().ModelProblem(); }
    bool Wants(std::int64_t frame) const { return frame >= 0 && frame < m_request.frameCount && frame % m_step == 0; }
    void AddPicture(std::int64_t frame, const cv::Mat& picture);
    std::vector<KxCropRect> Finish();
    const KxSubjectFindings& Findings() const { return m_findings; }

private:
    struct Shot {
        std::int64_t first;
        std::int64_t end;
        /// What lies outside these is blended with the shot beside it and says nothing.
        std::int64_t clearFirst;
        std::int64_t clearEnd;
    };
    KxCropRect ContentShare() const;
    KxCropGeometry Geometry() const;
    std::vector<Shot> Shots() const;
    /// What all signals say together; the peaks are brought out, so that a subject outweighs what is spread wide.
    KxSignalProfile Said(const KxSignalTrack::Evidence& evidence) const;
    /// Of a width, in a shot seen at so many samples: where pictures are missing, a move has fewer of them to pay it.
    double MoveCost(const Shot& shot, std::size_t samples) const;
    std::vector<double> CentresOf(const Shot& shot, const KxCropGeometry& geometry, const KxCentreScore& score);
    void Note(const Shot& shot, const std::vector<KxPathPoint>& points, std::size_t firstSample, KxAxis axis,
              const KxCentreScore& score);

    KxSubjectRequest m_request;
    KxSubjectOptions m_options;
    cv::Size m_workingSize;
    KxShotDetector m_shots;
    KxSignalTrack m_signals;
    std::int64_t m_step; ///< every so many frames one is wanted
    std::int64_t m_lastFrame = -1;
    KxSubjectFindings m_findings;
};

void KxSubjectAnalyzer::Impl::AddPicture(std::int64_t frame, const cv::Mat& picture)
{
    if (frame <= m_lastFrame || frame >= m_request.frameCount || picture.size() != m_workingSize ||
        picture.type() != CV_8UC3) {
        return;
    }
    m_lastFrame = frame;
    try {
        m_shots.AddPicture(frame, picture);
        m_signals.AddPicture(frame, picture);
    } catch (const cv::Exception&) {
        return;
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

std::vector<KxSubjectAnalyzer::Impl::Shot> KxSubjectAnalyzer::Impl::Shots() const
{
    std::vector<Shot> shots{{0, m_request.frameCount, 0, m_request.frameCount}};
    for (const KxShotBoundary& boundary : m_shots.Boundaries(m_request.frameRate)) {
        shots.back().end = boundary.frame;
        shots.back().clearEnd = std::min(boundary.first, boundary.frame);
        shots.push_back(
            {boundary.frame, m_request.frameCount, std::max(boundary.frame, boundary.last), m_request.frameCount});
    }
    return shots;
}

KxSignalProfile KxSubjectAnalyzer::Impl::Said(const KxSignalTrack::Evidence& evidence) const
{
    return evidence.Sum().Concentrated(m_options.evidence.concentration);
}

double KxSubjectAnalyzer::Impl::MoveCost(const Shot& shot, std::size_t samples) const
{
    const double patience = m_options.For(m_request.speed).holdSeconds / m_options.automatic.holdSeconds;
    const double usualRate = m_options.sampling.samplesPerSecond;
    const double rate = static_cast<double>(samples) * m_request.frameRate / static_cast<double>(shot.end - shot.first);
    return m_options.path.moveCost * patience * std::sqrt(usualRate) * std::min(1.0, rate / usualRate);
}

std::vector<double> KxSubjectAnalyzer::Impl::CentresOf(const Shot& shot, const KxCropGeometry& geometry,
                                                       const KxCentreScore& score)
{
    const std::vector<KxSignalSample>& samples = m_signals.Samples();
    const auto isBefore = [](const KxSignalSample& sample, std::int64_t frame) { return sample.frame < frame; };
    const auto from = std::lower_bound(samples.begin(), samples.end(), shot.first, isBefore);
    const auto to = std::lower_bound(from, samples.end(), shot.end, isBefore);
    const auto begin = static_cast<std::size_t>(from - samples.begin());
    const auto end = static_cast<std::size_t>(to - samples.begin());

    KxSubjectTracker tracker(MoveCost(shot, end - begin) * score.Spacing());
    for (std::size_t i = begin; i < end; ++i) {
        const bool clear = samples[i].frame >= shot.clearFirst && samples[i].frame < shot.clearEnd;
        tracker.Add(clear ? score.Of(Said(m_signals.EvidenceAt(i, shot.first, shot.end, geometry.FreeAxis())))
                          : KxCentreScore::Scores{});
    }
    std::vector<KxPathPoint> points;
    for (const std::size_t position : tracker.BestRun()) {
        points.push_back({samples[begin + points.size()].frame, score.CentreAt(position)});
    }
    if (m_request.wantsFindings) {
        Note(shot, points, begin, geometry.FreeAxis(), score);
    }
    return KxCropPath(m_options.path, m_options.For(m_request.speed), geometry)
        .Draw(points, shot.first, shot.end, m_request.frameRate, 0.5);
}

void KxSubjectAnalyzer::Impl::Note(const Shot& shot, const std::vector<KxPathPoint>& points, std::size_t firstSample,
                                   KxAxis axis, const KxCentreScore& score)
{
    std::array<float, KxSignalCount> whole{};
    for (std::size_t i = 0; i < points.size(); ++i) {
        const KxSignalTrack::Evidence evidence = m_signals.EvidenceAt(firstSample + i, shot.first, shot.end, axis);
        KxSubjectFindings::Sample sample;
        sample.frame = points[i].frame;
        sample.wanted = points[i].centre;
        sample.evidence = KxPackedProfile(Said(evidence));
        const std::array<const KxSignalProfile*, KxSignalCount> signals{&evidence.motion, &evidence.movers,
                                                                        &evidence.saliency, &evidence.faces};
        for (std::size_t signal = 0; signal < KxSignalCount; ++signal) {
            sample.said[signal] = score.Excess(points[i].centre, *signals[signal]);
            whole[signal] += sample.said[signal];
        }
        m_findings.samples.push_back(sample);
    }
    const auto carrier = std::max_element(whole.begin(), whole.end()) - whole.begin();
    m_findings.shots.push_back({shot.first, shot.end, static_cast<KxSignal>(carrier)});
}

std::vector<KxCropRect> KxSubjectAnalyzer::Impl::Finish()
{
    m_signals.Finish();
    std::vector<KxCropRect> crops;
    crops.reserve(static_cast<std::size_t>(m_request.frameCount));
    const KxCropGeometry geometry = Geometry();
    const KxCentreScore score(m_options.evidence, geometry);
    m_findings.freeAxis = geometry.FreeAxis();
    m_findings.content = ContentShare();
    for (const Shot& shot : Shots()) {
        for (const double centre : CentresOf(shot, geometry, score)) {
            crops.push_back(geometry.At(centre));
        }
    }
    return crops;
}

KxSubjectAnalyzer::KxSubjectAnalyzer(const KxSubjectRequest& request)
    : KxSubjectAnalyzer(request, KxSubjectOptions())
{
}

KxSubjectAnalyzer::KxSubjectAnalyzer(const KxSubjectRequest& request, const KxSubjectOptions& options)
    : m_impl(std::make_unique<Impl>(request, options))
{
}

KxSubjectAnalyzer::~KxSubjectAnalyzer() = default;

cv::Size KxSubjectAnalyzer::WorkingSize() const
{
    return m_impl->WorkingSize();
}

bool KxSubjectAnalyzer::Wants(std::int64_t frame) const
{
    return m_impl->Wants(frame);
}

void KxSubjectAnalyzer::AddPicture(std::int64_t frame, const cv::Mat& picture)
{
    m_impl->AddPicture(frame, picture);
}

std::vector<KxCropRect> KxSubjectAnalyzer::Finish()
{
    return m_impl->Finish();
}

const std::string& KxSubjectAnalyzer::FaceModelProblem() const
{
    return m_impl->FaceModelProblem();
}

const KxSubjectFindings& KxSubjectAnalyzer::Findings() const
{
    return m_impl->Findings();
}
