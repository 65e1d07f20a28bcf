#include <KxSubject/KxPointedBox.h>

#include <KxSubject/Follow/KxBoxGuess.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/Signals/KxOpenCvError.h>

#include <opencv2/core.hpp>

KxSubjectBox KxGuessBoxAt(const KxPictureView& picture, double x, double y)
{
    const KxSubjectOptions::Follow options;
    KxSubjectBox box{x - options.pointWidth / 2.0, y - options.pointHeight / 2.0, options.pointWidth,
                     options.pointHeight};
    try {
        const cv::Mat pixels(picture.sizePx.height, picture.sizePx.width, CV_8UC3,
                             const_cast<std::uint8_t*>(picture.data), picture.bytesPerRow);
        const cv::Rect2d found = KxBoxGuess::Around(pixels, {x * pixels.cols, y * pixels.rows}, options);
        box = {found.x / pixels.cols, found.y / pixels.rows, found.width / pixels.cols, found.height / pixels.rows};
    } catch (const cv::Exception& problem) {
        KxThrowIfOutOfMemory(problem);
    }
    return box;
}
