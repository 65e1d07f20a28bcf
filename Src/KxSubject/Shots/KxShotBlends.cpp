#include <KxSubject/Shots/KxShotBlends.h>

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>
#include <utility>

namespace
{

constexpr std::array<std::size_t, 13> Spans{2, 3, 4, 6, 8, 12, 16, 24, 32, 48, 64, 96, 128};

bool Overlap(const KxShotBoundary& left, const KxShotBoundary& right)
{
    return left.first <= right.last && right.first <= left.last;
}

double Similarity(const KxShotPicture& left, const KxShotPicture& right)
{
    double product = 0.0;
    for (std::size_t i = 0; i < left.grey.size(); ++i) {
        product += left.grey[i] * right.grey[i];
    }
    const double covariance = product / static_cast<double>(left.grey.size()) - left.mean * right.mean;
    return covariance / std::sqrt(std::max(1.0, left.variance * right.variance));
}

} // namespace

KxShotBlends::KxShotBlends(const KxSubjectOptions::Shots& options, KxInCommon inCommon)
    : m_options(options)
    , m_inCommon(std::move(inCommon))
{
}

/// `plainSince`: of the picture before.
void KxShotBlends::Measure(KxShotPicture& picture, std::optional<std::int64_t> plainSince) const
{
    cv::Mat small(KxShotPicture::HeightPx, KxShotPicture::WidthPx, CV_8UC1, picture.grey.data());
    cv::resize(m_content.empty() ? picture.whole : picture.whole(m_content), small, small.size(), 0.0, 0.0,
               cv::INTER_AREA);
    cv::Scalar mean;
    cv::Scalar deviation;
    cv::meanStdDev(small, mean, deviation);
    picture.mean = mean[0];
    picture.variance = deviation[0] * deviation[0];
    picture.plainSince.reset();
    if (deviation[0] < m_options.blends.plainContrast) {
        picture.plainSince = plainSince.value_or(picture.frame);
    }
}

void KxShotBlends::SetContent(const cv::Rect& content)
{
    if (content == m_content) {
        return;
    }
    m_content = content;
    std::optional<std::int64_t> plainSince;
    for (KxShotPicture& picture : m_pictures) {
        Measure(picture, plainSince);
        plainSince = picture.plainSince;
    }
}

void KxShotBlends::AddPicture(std::int64_t frame, const cv::Mat& grey)
{
    const std::optional<std::int64_t> plainSince = m_pictures.empty() ? std::nullopt : m_pictures.back().plainSince;
    KxShotPicture& picture = m_pictures.emplace_back();
    picture.frame = frame;
    picture.whole = grey.clone();
    Measure(picture, plainSince);
    if (m_pictures.size() > Spans.back() + 2 * KxShotWindow::Reach(Spans.back()) + 1) {
        m_pictures.pop_front();
    }
    for (const std::size_t span : Spans) {
        const std::size_t reach = KxShotWindow::Reach(span);
        if (m_pictures.size() > span + reach) {
            const std::size_t end = m_pictures.size() - 1 - reach;
            LookAt(end - span, end, m_parts);
        }
    }
}

bool KxShotBlends::IsExplained(const KxShotWindow::Passage& passage) const
{
    if (!m_inCommon) {
        return false;
    }
    // The window may hold the middle of the transition only, and its ends be blends with structure in common.
    const auto inCommon = [this, &passage](std::int64_t margin) {
        return m_inCommon(std::max(passage.first - margin, m_pictures.front().frame), passage.last + margin);
    };
    const std::int64_t length = passage.last - passage.first + 1;
    const KxSubjectOptions::Shots::Blends& options = m_options.blends;
    if (!passage.isWipe) {
        return inCommon(length / 4 + 2) > options.inCommon;
    }
    return inCommon(length / 4 + 1) > options.wipeInCommon || inCommon(length) > options.inCommon;
}

void KxShotBlends::LookAt(std::size_t begin, std::size_t end, Parts& parts) const
{
    const auto passage = KxShotWindow(m_pictures, begin, end, m_options).Find();
    if (!passage) {
        return;
    }
    const KxShotPicture& first = m_pictures[begin];
    const KxShotPicture& last = m_pictures[end];
    if (first.plainSince) {
        Keep(parts.fadesIn, {*passage, first.plainSince, last});
    } else if (last.plainSince || !IsExplained(*passage)) {
        Keep(last.plainSince ? parts.fadesOut : parts.dissolves, {*passage, last.plainSince, first});
    }
}

void KxShotBlends::Keep(std::vector<Part>& parts, const Part& part)
{
    while (!parts.empty() && parts.back().passage.last >= part.passage.first) {
        if (parts.back().passage.strength >= part.passage.strength) {
            return;
        }
        parts.pop_back();
    }
    parts.push_back(part);
}

std::vector<KxShotBoundary> KxShotBlends::FadesOf(const Parts& parts) const
{
    std::vector<KxShotBoundary> fades;
    for (const Part& out : parts.fadesOut) {
        const auto in = std::find_if(parts.fadesIn.begin(), parts.fadesIn.end(),
                                     [&out](const Part& part) { return part.plainSince == out.plainSince; });
        if (in != parts.fadesIn.end() && Similarity(out.shot, in->shot) < m_options.blends.similarity) {
            const std::int64_t first = out.passage.first;
            const std::int64_t last = in->passage.last;
            fades.push_back({(first + last) / 2, first, last, KxShotBoundaryKind::Fade});
        }
    }
    return fades;
}

std::vector<KxShotBoundary> KxShotBlends::Found() const
{
    Parts parts = m_parts;
    // The transitions whose end AddPicture() has not seen yet.
    for (const std::size_t span : Spans) {
        const std::size_t waiting = std::min(KxShotWindow::Reach(span), m_pictures.size());
        for (std::size_t end = std::max(span, m_pictures.size() - waiting); end < m_pictures.size(); ++end) {
            LookAt(end - span, end, parts);
        }
    }
    std::vector<KxShotBoundary> found = FadesOf(parts);
    const auto fades = static_cast<std::ptrdiff_t>(found.size());
    for (const Part& part : parts.dissolves) {
        const KxShotBoundary dissolve{part.passage.middle, part.passage.first, part.passage.last,
                                      KxShotBoundaryKind::Dissolve};
        if (std::none_of(found.begin(), found.begin() + fades,
                         [&dissolve](const KxShotBoundary& fade) { return Overlap(fade, dissolve); })) {
            found.push_back(dissolve);
        }
    }
    std::sort(found.begin(), found.end(),
              [](const KxShotBoundary& left, const KxShotBoundary& right) { return left.frame < right.frame; });
    return found;
}
