#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxFaceModels.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/Signals/KxFaceDetector.h>
#include <KxSubject/Signals/KxHaarSearch.h>

#include <optional>
#include <string>
#include <vector>

/// The views of a face that are searched for. The neural detector has one, Frontal, which finds all of them.
enum class KxFaceView { Frontal, LeftProfile, RightProfile };

/// Whether two boxes are one face: they are close and of similar size. `share` is of the size.
KXSUBJECT_API bool KxAreOneFace(const cv::Rect& a, const cv::Rect& b, double share);

/// Searches for faces in one picture: with the neural detector if there is one that runs, otherwise with OpenCV's
/// cascades; without any of them it finds nothing. Keeps no state between pictures.
class KXSUBJECT_API KxFaceFinder
{
public:
    KxFaceFinder(const KxSubjectOptions::Faces& options, const KxFaceModels& models, cv::Size picturePx);

    /// Whether a neural detector was given that OpenCV cannot run.
    bool IsDetectorRefused() const { return m_isDetectorRefused; }
    bool UsesDetector() const { return m_detector.has_value(); }
    bool Knows(KxFaceView view) const;

    /// Faces anywhere. `picture` is CV_8UC3 (BGR), `grey` CV_8UC1, both of the size given at the start.
    std::vector<cv::Rect> Find(const cv::Mat& picture, const cv::Mat& grey, KxFaceView view);
    /// The face of about this size near `face`, a known one: fewer hits suffice than for a new one. Cascades only, and
    /// cheap.
    std::optional<cv::Rect> FindNear(const cv::Mat& grey, KxFaceView view, const cv::Rect& face);

private:
    void LoadDetector(const std::string& onnx, cv::Size picturePx);
    std::vector<cv::Rect> FindByDetector(const cv::Mat& picture);
    struct Search {
        int smallestPx;
        int largestPx;
        double scaleFactor;
        int neighbours; ///< raw hits that make a face; 0: each raw hit is returned
    };
    std::vector<cv::Rect> FindByCascade(const cv::Mat& grey, KxFaceView view, const Search& search);
    /// Searches in coarse steps of size, then examines the candidates in fine ones: fine steps everywhere would cost
    /// three times as much.
    std::vector<cv::Rect> FindBySearch(const cv::Mat& grey, KxFaceView view);
    /// The face of about the size of `face` near it; `neighbours` as in Search.
    std::optional<cv::Rect> LookNear(const cv::Mat& grey, KxFaceView view, const cv::Rect& face, int neighbours);

    KxSubjectOptions::Faces m_options;
    std::optional<KxHaarSearch> m_frontal;
    std::optional<KxHaarSearch> m_profile;
    std::optional<KxFaceDetector> m_detector;
    bool m_isDetectorRefused = false;
};
