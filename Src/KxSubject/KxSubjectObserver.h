#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxIntSize.h>
#include <KxSubject/KxSubjectRecord.h>

#include <cstdint>
#include <memory>

struct KxPictureView;
struct KxSubjectModels;
struct KxSubjectOptions;

/// Looks at a video once: small pictures in, a record of what every signal saw out. One thread at a time. Apart from
/// lack of memory, no error of OpenCV leaves this class.
class KXSUBJECT_API KxSubjectObserver
{
public:
    KxSubjectObserver(const KxSubjectSource& source, const KxSubjectModels& models, const KxSubjectOptions& options);
    ~KxSubjectObserver();

    /// The size of the pictures that AddPicture takes.
    KxIntSize WorkingSize() const;

    /// Whether a picture at `frame` adds to the record; any other picture need not be converted.
    bool Wants(std::int64_t frame) const;

    /// `picture` has WorkingSize(); `frame` grows from call to call. Pictures that break this, or that OpenCV cannot
    /// work on, are ignored.
    void AddPicture(std::int64_t frame, const KxPictureView& picture);

    /// Call once, after the last picture.
    KxSubjectRecord Finish();

    /// Whether the neural face detector that was given cannot be run; the cascades are used instead.
    bool IsFaceDetectorRefused() const;
    /// Whether the object detector that was given cannot be run; the other signals are used alone.
    bool IsObjectDetectorRefused() const;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};
