#include <KxSubject/Signals/KxFaceFinder.h>

#include <KxSubject/Signals/KxCascadeFiles.h>

#include <opencv2/core/utility.hpp>
#include <opencv2/core/utils/logger.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <filesystem>

namespace
{

/// OpenCV writes what it thinks of a model to the terminal, which belongs to the program.
class QuietOpenCv
{
public:
    QuietOpenCv()
        : m_level(cv::utils::logging::setLogLevel(cv::utils::logging::LOG_LEVEL_SILENT))
    {
    }
    ~QuietOpenCv() { cv::utils::logging::setLogLevel(m_level); }
    QuietOpenCv(const QuietOpenCv&) = delete;
    QuietOpenCv& operator=(const QuietOpenCv&) = delete;

private:
    cv::utils::logging::LogLevel m_level;
};

void Load(cv::CascadeClassifier& cascade, const char* fileName)
{
    const std::optional<std::string> path = KxFindCascade(fileName);
    if (!path) {
        return;
    }
    const QuietOpenCv quiet;
    try {
        cascade.load(*path);
    } catch (const cv::Exception&) {
        cascade = cv::CascadeClassifier();
    }
}

} // namespace

bool KxAreOneFace(const cv::Rect& a, const cv::Rect& b, double share)
{
    const cv::Point apart = (a.tl() + a.br()) / 2 - (b.tl() + b.br()) / 2;
    const double size = std::max(a.width, b.width);
    const double smaller = std::min(a.width, b.width);
    return std::max(std::abs(apart.x), std::abs(apart.y)) < share * size && smaller > share * size;
}

KxFaceFinder::KxFaceFinder(const KxSubjectOptions::Faces& options, const std::string& modelPath, cv::Size picturePx)
    : m_options(options)
{
    cv::setNumThreads(1);
    if (!modelPath.empty()) {
        LoadModel(modelPath, picturePx);
    }
    if (m_model.empty()) {
        Load(m_frontal, "haarcascade_frontalface_alt2.xml");
        Load(m_profile, "haarcascade_profileface.xml");
    }
}

void KxFaceFinder::LoadModel(const std::string& path, cv::Size picturePx)
{
    std::error_code problem;
    if (!std::filesystem::exists(path, problem)) {
        m_modelProblem = "Cannot use the face model " + path + ": there is no such file.";
        return;
    }
    if (std::filesystem::is_directory(path, problem)) {
        m_modelProblem = "Cannot use the face model " + path + ": it is a folder.";
        return;
    }
    const QuietOpenCv quiet;
    try {
        m_model = cv::FaceDetectorYN::create(path, "", picturePx, static_cast<float>(m_options.modelThreshold));
        FindByModel(cv::Mat(picturePx, CV_8UC3, cv::Scalar::all(0)));
    } catch (const std::exception&) {
        m_model.reset();
        m_modelProblem = "Cannot use the face model " + path + ": it is not a face detector that OpenCV can run.";
    }
}

bool KxFaceFinder::Knows(KxFaceView view) const
{
    if (UsesModel()) {
        return view == KxFaceView::Frontal;
    }
    return view == KxFaceView::Frontal ? !m_frontal.empty() : !m_profile.empty();
}

std::vector<cv::Rect> KxFaceFinder::Find(const cv::Mat& picture, const cv::Mat& grey, KxFaceView view)
{
    if (!Knows(view)) {
        return {};
    }
    if (UsesModel()) {
        return FindByModel(picture);
    }
    return FindBySearch(grey, view);
}

std::vector<cv::Rect> KxFaceFinder::FindBySearch(const cv::Mat& grey, KxFaceView view)
{
    std::vector<cv::Rect> suspects = FindByCascade(
        grey, view, {m_options.minimumPx, std::min(grey.cols, grey.rows), m_options.searchScaleFactor, 0});
    std::sort(suspects.begin(), suspects.end(),
              [](const cv::Rect& a, const cv::Rect& b) { return a.area() > b.area(); });
    const int neighbours = view == KxFaceView::Frontal ? m_options.frontalNeighbours : m_options.profileNeighbours;
    std::vector<cv::Rect> faces;
    const auto isKnown = [this, &faces](const cv::Rect& box) {
        return std::any_of(faces.begin(), faces.end(),
                           [this, &box](const cv::Rect& face) { return KxAreOneFace(face, box, m_options.sameShare); });
    };
    int looks = 0;
    for (const cv::Rect& suspect : suspects) {
        if (isKnown(suspect)) {
            continue;
        }
        if (++looks > m_options.mostSuspects) {
            break;
        }
        const std::optional<cv::Rect> face = LookNear(grey, view, suspect, neighbours);
        if (face && !isKnown(*face)) {
            faces.push_back(*face);
        }
    }
    return faces;
}

std::optional<cv::Rect> KxFaceFinder::FindNear(const cv::Mat& grey, KxFaceView view, const cv::Rect& face)
{
    if (UsesModel() || !Knows(view)) {
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
    const std::vector<cv::Rect> found = FindByCascade(
        grey(around), view, {face.width * 4 / 5, face.width * 5 / 4 + 1, m_options.nearScaleFactor, neighbours});
    if (found.empty()) {
        return std::nullopt;
    }
    const cv::Point middle = (face.tl() + face.br()) / 2 - around.tl();
    const auto nearest = std::min_element(found.begin(), found.end(), [middle](const cv::Rect& a, const cv::Rect& b) {
        return cv::norm((a.tl() + a.br()) / 2 - middle) < cv::norm((b.tl() + b.br()) / 2 - middle);
    });
    return *nearest + around.tl();
}

std::vector<cv::Rect> KxFaceFinder::FindByModel(const cv::Mat& picture)
{
    cv::Mat rows;
    m_model->detect(picture, rows);
    std::vector<cv::Rect> faces;
    for (int i = 0; i < rows.rows; ++i) {
        const auto* row = rows.ptr<float>(i);
        const cv::Rect face(cvRound(row[0]), cvRound(row[1]), cvRound(row[2]), cvRound(row[3]));
        const cv::Rect seen = face & cv::Rect(0, 0, picture.cols, picture.rows);
        if (!seen.empty()) {
            faces.push_back(seen);
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
    std::vector<cv::Rect> faces;
    (view == KxFaceView::Frontal ? m_frontal : m_profile)
        .detectMultiScale(looked, faces, search.scaleFactor, search.neighbours, 0,
                          cv::Size(search.smallestPx, search.smallestPx), cv::Size(search.largestPx, search.largestPx));
    if (view == KxFaceView::RightProfile) {
        for (cv::Rect& face : faces) {
            face.x = grey.cols - face.x - face.width;
        }
    }
    return faces;
}
