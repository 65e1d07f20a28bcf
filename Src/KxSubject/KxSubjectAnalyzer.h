#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxExport.h>

#include <KxSubject/KxCropRect.h>
#include <KxSubject/KxIntSize.h>
#include <KxSubject/KxSubjectRequest.h>

#include <cstdint>
#include <memory>
#include <vector>

struct KxFaceModels;
struct KxPictureView;
struct KxSubjectFindings;
struct KxSubjectOptions;

/// Finds the subject of a video: small pictures in, one crop rectangle a frame out. Every rectangle has the same size,
/// the largest of the aspect inside the picture (inside what remains of it where it has bars). One thread at a time.
/// Apart from lack of memory, no error of OpenCV leaves this class.
class KXSUBJECT_API KxSubjectAnalyzer
{
public:
    KxSubjectAnalyzer(const KxSubjectRequest& request, const KxFaceModels& faceModels);
    KxSubjectAnalyzer(const KxSubjectRequest& request, const KxFaceModels& faceModels, const KxSubjectOptions& options);
    ~KxSubjectAnalyzer();

    /// The size of the pictures that AddPicture takes.
    KxIntSize WorkingSize() const;

    /// Whether a picture at `frame` adds to the analysis; any other picture need not be converted.
    bool Wants(std::int64_t frame) const;

    /// `picture` has WorkingSize(); `frame` grows from call to call. Pictures that break this, or that OpenCV cannot
    /// work on, are ignored.
    void AddPicture(std::int64_t frame, const KxPictureView& picture);

    /// The crop of every frame, `frameCount` of them; empty, soon, once cancelled. Call once, after the last picture.
    std::vector<KxCropRect> Finish(const KxCancelToken& cancel);

    /// Intermediate results. Empty before Finish, and unless the request asks for them.
    const KxSubjectFindings& Findings() const;

    /// Whether the neural face detector that was given cannot be run; the cascades are used instead.
    bool IsFaceDetectorRefused() const;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};
