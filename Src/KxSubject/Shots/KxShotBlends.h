#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/Shots/KxShotBoundary.h>
#include <KxSubject/Shots/KxShotWindow.h>

#include <opencv2/core/mat.hpp>

#include <cstdint>
#include <deque>
#include <vector>

/// Finds the gradual shot boundaries of a video from its pictures as they come. Every picture is compared with some
/// before it, 2 to 128 pictures back:
/// 1. Dissolve: the two differ in structure; what lies between is their blend in every point and in contrast, and
///    passes from the one to the other steadily. Before and after it rests, compared with that.
/// 2. Wipe: the two differ more; what lies between is in every point between them, if not to the same part.
/// 3. Fade: one shot passes into plain pictures (black, white) like this, and another out of them. Where a cut
///    leads into or out of the plain pictures there is no fade: the boundary is the cut's.
/// No boundary are
/// 4. a pan, a zoom, a shake: what lies between has a structure of its own, and contrast;
/// 5. a change of light, black and back again: the two are alike in structure;
/// 6. a subject that passes close in front of the camera: soon what was before comes back;
/// 7. a cut: nothing lies between.
class KXSUBJECT_API KxShotBlends
{
public:
    explicit KxShotBlends(const KxSubjectOptions::Shots& options);

    /// `grey` is CV_8UC1, of any size; `frame` grows from call to call.
    void AddPicture(std::int64_t frame, const cv::Mat& grey);

    /// Growing, none over another.
    std::vector<KxShotBoundary> Found() const;

private:
    /// A dissolve or half a fade.
    struct Part {
        KxShotWindow::Passage passage;
        std::optional<std::int64_t> plainSince; ///< of the plain end
        KxShotPicture shot;                     ///< the other one
    };
    struct Parts {
        std::vector<Part> dissolves;
        std::vector<Part> fadesOut;
        std::vector<Part> fadesIn;
    };
    void LookAt(std::size_t begin, std::size_t end, Parts& parts) const;
    static void Keep(std::vector<Part>& parts, const Part& part);
    std::vector<KxShotBoundary> FadesOf(const Parts& parts) const;

    KxSubjectOptions::Shots m_options;
    std::deque<KxShotPicture> m_pictures; ///< the newest last
    Parts m_parts;
};
