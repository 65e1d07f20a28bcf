#pragma once

#include <KxSubject/KxSubjectOptions.h>

#include <opencv2/objdetect.hpp>

#include <optional>

/// The ways a face is looked for. The neural detector knows one, Frontal, which finds all of them.
enum class KxFaceView { Frontal, LeftProfile, RightProfile };

/// Whether two boxes lie so near each other, and are so alike in size, that they are one face. `share` is of the size.
KXSUBJECT_API bool KxAreOneFace(const cv::Rect& a, const cv::Rect& b, double share);

/// Looks for faces in one picture: with a neural detector where the user supplied a good one, otherwise with OpenCV's
/// cascades; with neither it finds nothing. Remembers nothing from picture to picture.
class KXSUBJECT_API KxFaceFinder
{
public:
    /// `modelPath` may be empty. Holds OpenCV to one thread in this process: more made cascades no faster.
    KxFaceFinder(const KxSubjectOptions::Faces& options, const std::string& modelPath, cv::Size picturePx);

    /// Why the model that was asked for is not used; empty when it is, or when none was asked for.
    const std::string& ModelProblem() const { return m_modelProblem; }
    bool UsesModel() const { return !m_model.empty(); }
    bool Knows(KxFaceView view) const;

    /// Faces anywhere. `picture` is CV_8UC3 (BGR), `grey` CV_8UC1, both of the size given at the start.
    std::vector<cv::Rect> Find(const cv::Mat& picture, const cv::Mat& grey, KxFaceView view);
    /// The face of about this size near `face`, which is known: it is believed on fewer hits than a new one. Cascades
    /// only, and cheap.
    std::optional<cv::Rect> FindNear(const cv::Mat& grey, KxFaceView view, const cv::Rect& face);

private:
    /// Tries the model on a blank picture: some load and then fail at their first.
    void LoadModel(const std::string& path, cv::Size picturePx);
    std::vector<cv::Rect> FindByModel(const cv::Mat& picture);
    struct Search {
        int smallestPx;
        int largestPx;
        double scaleFactor;
        int neighbours; ///< raw hits that make a face; 0: each is told
    };
    std::vector<cv::Rect> FindByCascade(const cv::Mat& grey, KxFaceView view, const Search& search);
    /// Searches in coarse steps of size; what may be a face is then looked at in fine ones, which everywhere would cost
    /// three times as much.
    std::vector<cv::Rect> FindBySearch(const cv::Mat& grey, KxFaceView view);
    /// The face of about the size of `face` near it; `neighbours` as in Search.
    std::optional<cv::Rect> LookNear(const cv::Mat& grey, KxFaceView view, const cv::Rect& face, int neighbours);

    KxSubjectOptions::Faces m_options;
    cv::CascadeClassifier m_frontal;
    cv::CascadeClassifier m_profile;
    cv::Ptr<cv::FaceDetectorYN> m_model;
    std::string m_modelProblem;
};
