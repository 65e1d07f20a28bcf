#include <KxSubject/Signals/KxMouthPatch.h>

#include <opencv2/imgproc.hpp>
#include <opencv2/video/tracking.hpp>

namespace
{

const cv::Size PatchSize(44, 56);
/// Parts of the patch: from brow to chin and from ear to ear without the background at its edges.
const cv::Rect Face(6, 6, 32, 46);
const cv::Rect EyesAndNose(4, 6, 36, 28);
const cv::Rect Head(6, 6, 32, 22);
const cv::Rect Mouth(11, 33, 22, 19);
/// Their vertical flow: the lower lip with the chin, and the forehead with the eyes.
const cv::Rect LowerLip(13, 44, 18, 10);
const cv::Rect Forehead(8, 8, 28, 18);
/// On top of the face's deviation, so that noise on a plain patch is no movement.
constexpr double LeastDeviation = 4.0;

double MeanDifference(const cv::Mat& a, const cv::Mat& b, const cv::Rect& part)
{
    return cv::norm(a(part), b(part), cv::NORM_L1) / part.area();
}

double MeanVertical(const cv::Mat& flow, const cv::Rect& part)
{
    return cv::mean(flow(part))[1];
}

} // namespace

KxMouthPatch::KxMouthPatch(const cv::Mat& grey, const cv::Rect2d& face)
{
    const double scaleX = face.width / PatchSize.width;
    const double scaleY = face.height / PatchSize.height;
    const cv::Matx23d fromPatch(scaleX, 0.0, face.x + (scaleX - 1.0) / 2.0, 0.0, scaleY, face.y + (scaleY - 1.0) / 2.0);
    cv::Mat patch;
    cv::warpAffine(grey, patch, fromPatch, PatchSize, cv::INTER_LINEAR | cv::WARP_INVERSE_MAP, cv::BORDER_REPLICATE);
    patch.convertTo(m_patch, CV_32FC1);
}

KxMouthPatch::Movement KxMouthPatch::Since(const KxMouthPatch& before, double mostShiftPx) const
{
    cv::Mat window;
    cv::createHanningWindow(window, EyesAndNose.size(), CV_32FC1);
    cv::Point2d shift = cv::phaseCorrelate(before.m_patch(EyesAndNose), m_patch(EyesAndNose), window);
    if (!(cv::norm(shift) <= mostShiftPx)) {
        shift = {};
    }
    cv::Mat moved;
    cv::warpAffine(before.m_patch, moved, cv::Matx23d(1.0, 0.0, shift.x, 0.0, 1.0, shift.y), PatchSize,
                   cv::INTER_LINEAR, cv::BORDER_REPLICATE);
    cv::Scalar mean;
    cv::Scalar deviation;
    cv::meanStdDev(m_patch(Face), mean, deviation);
    const double unit = deviation[0] + LeastDeviation;

    cv::Mat bytesBefore;
    cv::Mat bytes;
    cv::Mat flow;
    moved.convertTo(bytesBefore, CV_8UC1);
    m_patch.convertTo(bytes, CV_8UC1);
    cv::calcOpticalFlowFarneback(bytesBefore, bytes, flow, 0.5, 1, 9, 2, 5, 1.1, 0);
    return {MeanDifference(m_patch, moved, Mouth) / unit, MeanDifference(m_patch, moved, Head) / unit,
            MeanVertical(flow, LowerLip) - MeanVertical(flow, Forehead)};
}
