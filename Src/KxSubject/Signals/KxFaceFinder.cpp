#include <KxSubject/Signals/KxFaceFinder.h>

#include <KxSubject/Signals/KxOpenCvError.h>

#include <opencv2/core.hpp>
#include <opencv2/objdetect.hpp>

#include <algorithm>
#include <tuple>

namespace
{

/// From window to window near a candidate or known face: coarser, too few hits agree.
constexpr double NearScaleFactor = 1.1;
constexpr double ModelThreshold = 0.7; ///< the neural detector's own score
constexpr double GroupingShare = 0.2;  ///< of the size, that raw hits of one face differ by; OpenCV's own value

/// Nothing if `xml` is not a cascade.
std::optional<KxHaarSearch> SearchOf(const std::string& xml)
{
    try {
        if (std::optional<KxHaarCascade> cascade = KxHaarCascade::Read(xml)) {
            return KxHaarSearch(std::move(*cascade));
        }
    } catch (const cv::Exception& problem) {
        KxThrowIfOutOfMemory(problem);
    }
    return std::nullopt;
}

} // namespace

bool KxAreOneFace(const cv::Rect& a, const cv::Rect& b, double share)
{
    const cv::Point apart = (a.tl() + a.br()) / 2 - (b.tl() + b.br()) / 2;
    const double size = std::max(a.width, b.width);
    const double smaller = std::min(a.width, b.width);
    return std::max(std::abs(apart.x), std::abs(apart.y)) < share * size && smaller > share * size;
}

KxFaceFinder::KxFaceFinder(const KxSubjectOptions::Faces& options, const KxFaceModels& models, cv::Size picturePx)
    : m_options(options)
{
    if (!models.detector.empty()) {
        LoadDetector(models.detector, picturePx);
    }
    if (!UsesDetector()) {
        m_frontal = SearchOf(models.frontalCascade);
        m_profile = SearchOf(models.profileCascade);
    }
}

void KxFaceFinder::LoadDetector(const std::string& onnx, cv::Size picturePx)
{
    try {
        m_detector.emplace(onnx, picturePx, ModelThreshold);
    } catch (const cv::Exception& problem) {
        KxThrowIfOutOfMemory(problem);
        m_isDetectorRefused = true;
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception&) {
        m_isDetectorRefused = true;
    }
}

bool KxFaceFinder::Knows(KxFaceView view) const
{
    if (UsesDetector()) {
        return view == KxFaceView::Frontal;
    }
    return (view == KxFaceView::Frontal ? m_frontal : m_profile).has_value();
}

std::vector<cv::Rect> KxFaceFinder::Find(const cv::Mat& picture, const cv::Mat& grey, KxFaceView view)
{
    if (!Knows(view)) {
        return {};
    }
    if (UsesDetector()) {
        return FindByDetector(picture);
    }
    return FindBySearch(grey, view);
}

std::vector<cv::Rect> KxFaceFinder::FindBySearch(const cv::Mat& grey, KxFaceView view)
{
    const int smallestPx = view == KxFaceView::Frontal ? m_options.minimumPx : m_options.profileMinimumPx;
    std::vector<cv::Rect> candidates =
        FindByCascade(grey, view, {smallestPx, std::min(grey.cols, grey.rows), m_options.searchScaleFactor, 0});
    std::sort(candidates.begin(), candidates.end(),
              [](const cv::Rect& a, const cv::Rect& b) { return a.area() > b.area(); });
    const int neighbours = view == KxFaceView::Frontal ? m_options.frontalNeighbours : m_options.profileNeighbours;
    std::vector<cv::Rect> faces;
    const auto isKnown = [this, &faces](const cv::Rect& box) {
        return std::any_of(faces.begin(), faces.end(),
                           [this, &box](const cv::Rect& face) { return KxAreOneFace(face, box, m_options.sameShare); });
    };
    int looks = 0;
    for (const cv::Rect& candidate : candidates) {
        if (isKnown(candidate)) {
            continue;
        }
        if (++looks > m_options.mostCandidates) {
            break;
        }
        const std::optional<cv::Rect> face = LookNear(grey, view, candidate, neighbours);
        if (face && !isKnown(*face)) {
            faces.push_back(*face);
        }
    }
    return faces;
}

std::optional<cv::Rect> KxFaceFinder::FindNear(const cv::Mat& grey, KxFaceView view, const cv::Rect& face)
{
    if (UsesDetector() || !Knows(view)) {
        return std::nullopt;
    }
    return LookNear(grey, view, face, m_options.followNeighbours);
}

std::optional<cv::Rect> KxFaceFinder::LookNear(const cv::Mat& grey, KxFaceView view, const cv::Rect& face,
                                               int neighbours)
{
    const cv::Rect around =
        cv::Rect(face.x - face.width / 2, face.y - face.height / 2, face.width * 2, face.height * 2) &
        cv::Rect(0, 0, grey.cols, grey.rows);
    if (around.empty()) {
        return std::nullopt;
    }
    const std::vector<cv::Rect> found =
        FindByCascade(grey(around), view, {face.width * 4 / 5, face.width * 5 / 4 + 1, NearScaleFactor, neighbours});
    if (found.empty()) {
        return std::nullopt;
    }
    const cv::Point middle = (face.tl() + face.br()) / 2 - around.tl();
    const auto nearest = std::min_element(found.begin(), found.end(), [middle](const cv::Rect& a, const cv::Rect& b) {
        return cv::norm((a.tl() + a.br()) / 2 - middle) < cv::norm((b.tl() + b.br()) / 2 - middle);
    });
    return *nearest + around.tl();
}

std::vector<cv::Rect> KxFaceFinder::FindByDetector(const cv::Mat& picture)
{
    std::vector<cv::Rect> faces;
    for (const cv::Rect& face : m_detector->Detect(picture)) {
        const cv::Rect visible = face & cv::Rect(0, 0, picture.cols, picture.rows);
        if (!visible.empty()) {
            faces.push_back(visible);
        }
    }
    return faces;
}

std::vector<cv::Rect> KxFaceFinder::FindByCascade(const cv::Mat& grey, KxFaceView view, const Search& search)
{
    cv::Mat looked;
    if (view == KxFaceView::RightProfile) {
        cv::flip(grey, looked, 1);
    } else {
        looked = grey;
    }
    std::vector<cv::Rect> faces = (view == KxFaceView::Frontal ? m_frontal : m_profile)
                                      ->Find(looked, {search.smallestPx, search.largestPx, search.scaleFactor});
    // Later the order decides between equal hits.
    std::sort(faces.begin(), faces.end(), [](const cv::Rect& a, const cv::Rect& b) {
        return std::tie(a.width, a.y, a.x) < std::tie(b.width, b.y, b.x);
    });
    cv::groupRectangles(faces, search.neighbours, GroupingShare);
    if (view == KxFaceView::RightProfile) {
        for (cv::Rect& face : faces) {
            face.x = grey.cols - face.x - face.width;
        }
    }
    return faces;
}
