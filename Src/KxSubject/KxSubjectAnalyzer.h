#pragma once

#include <KxCore/KxExport.h>

#include <opencv2/core/mat.hpp>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

/// A crop in fractions of the upright picture.
struct KxCropRect {
    double x = 0.0;
    double y = 0.0;
    double width = 1.0;
    double height = 1.0;
};

struct KxSubjectFindings;
struct KxSubjectOptions;

/// How readily the crop follows its subject.
enum class KxMotionSpeed { Auto, Fast, Slow };

/// What is to be analysed.
struct KxSubjectRequest {
    int pictureWidthPx = 0;  ///< of the upright source picture, square pixels
    int pictureHeightPx = 0; ///< of the upright source picture, square pixels
    double frameRate = 0.0;  ///< frames a second, positive
    std::int64_t frameCount = 0;
    int aspectWidth = 9;
    int aspectHeight = 16;
    KxMotionSpeed speed = KxMotionSpeed::Auto;
    std::string faceModelPath;  ///< a neural face detector's file; empty: none
    bool wantsFindings = false; ///< costs a little time and some 30 bytes a frame
};

/// Finds where the subject lies: small pictures of one video in, one crop rectangle a frame out. Every rectangle has
/// the same size, the largest of the aspect inside the picture (inside what remains of it where it has bars). One
/// thread at a time.
class KXSUBJECT_API KxSubjectAnalyzer
{
public:
    explicit KxSubjectAnalyzer(const KxSubjectRequest& request);
    KxSubjectAnalyzer(const KxSubjectRequest& request, const KxSubjectOptions& options);
    ~KxSubjectAnalyzer();

    /// The size of the pictures that AddPicture takes.
    cv::Size WorkingSize() const;

    /// Whether a picture at `frame` adds to the analysis; one that does not need not even be converted.
    bool Wants(std::int64_t frame) const;

    /// `picture` is CV_8UC3 in BGR order and WorkingSize(); `frame` grows from call to call. A picture
    /// that breaks this, or that OpenCV cannot work on, is left out.
    void AddPicture(std::int64_t frame, const cv::Mat& picture);

    /// The crop of every frame, `frameCount` of them. Call once, after the last picture.
    std::vector<KxCropRect> Finish();

    /// What was found on the way. Empty before Finish, and where it was not asked for.
    const KxSubjectFindings& Findings() const;

    /// Why the face model that was asked for is not used; empty when it is, or when none was asked for.
    const std::string& FaceModelProblem() const;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};
