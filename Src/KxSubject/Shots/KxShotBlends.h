#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxShotBoundary.h>
#include <KxSubject/Shots/KxShotWindow.h>

#include <opencv2/core/mat.hpp>

#include <cstdint>
#include <deque>
#include <functional>
#include <vector>

/// The part of the pictures around two frames that shows the same, 0 to 1, whatever the camera and the light did. It is
/// asked soon after the pictures were added, about frames up to 7 times 32 pictures back.
using KxInCommon = std::function<double(std::int64_t first, std::int64_t last)>;

/// Finds the gradual shot boundaries of a video from its pictures as they come. Every picture is compared with some
/// earlier ones, 2 to 128 pictures back:
/// 1. Dissolve: the two differ in structure; every intermediate frame is a blend of them, point by point and in
///    contrast, and the blend progresses steadily. Before and after it, the pictures change less.
/// 2. Wipe: the two differ more; every point of an intermediate frame is between theirs, in different ratios.
/// 3. Fade: one shot turns into plain pictures (black, white) in this way, and another one emerges from them. If a
///    cut leads into or out of the plain pictures, there is no fade: the boundary is that cut.
/// The following are not boundaries:
/// 4. a pan, a zoom, a shake: the intermediate frames have a structure of their own, and contrast;
/// 5. a change of light, or black and back again: the two are similar in structure;
/// 6. a subject that passes close in front of the camera, or a picture that is shown briefly: the earlier picture soon
///    comes back;
/// 7. a cut: there are no intermediate frames;
/// 8. two pictures that have much in common, according to a function that knows the camera's movement;
/// 9. something that moves while more than half of the picture stays as it is.
class KXSUBJECT_API KxShotBlends
{
public:
    explicit KxShotBlends(const KxSubjectOptions::Shots& options, KxInCommon inCommon = {});

    /// `grey` is CV_8UC1, of any size; `frame` grows from call to call.
    void AddPicture(std::int64_t frame, const cv::Mat& grey);
    /// The part of the pictures, of those before, too, in which they are compared from now on: inside black bars. All
    /// of the picture at first.
    void SetContent(const cv::Rect& content);

    /// In order of time; they do not overlap.
    std::vector<KxShotBoundary> Found() const;

private:
    /// A dissolve or half a fade.
    struct Part {
        KxShotWindow::Passage passage;
        std::optional<std::int64_t> plainSince; ///< of the plain end
        KxShotPicture shot;                     ///< the end that is not plain
    };
    struct Parts {
        std::vector<Part> dissolves;
        std::vector<Part> fadesOut;
        std::vector<Part> fadesIn;
    };
    bool IsExplained(const KxShotWindow::Passage& passage) const;
    void LookAt(std::size_t begin, std::size_t end, Parts& parts) const;
    void Measure(KxShotPicture& picture, std::optional<std::int64_t> plainSince) const;
    static void Keep(std::vector<Part>& parts, const Part& part);
    std::vector<KxShotBoundary> FadesOf(const Parts& parts) const;

    KxSubjectOptions::Shots m_options;
    KxInCommon m_inCommon;
    cv::Rect m_content;                   ///< empty: all of the picture
    std::deque<KxShotPicture> m_pictures; ///< the newest last
    Parts m_parts;
};
