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

    /// As of KxSubjectSampling.
    KxIntSize WorkingSize() const;
    bool Wants(std::int64_t frame) const;

    /// The picture at `frame`, which grows from call to call: `shot` has KxSubjectSampling::ShotSize, `whole`
    /// WorkingSize(); if the picture is no sample, `whole` needs no data. Pictures that break this, or that OpenCV
    /// cannot work on, are ignored.
    void AddPicture(std::int64_t frame, const KxPictureView& shot, const KxPictureView& whole);
    /// The same from one picture of WorkingSize().
    void AddPicture(std::int64_t frame, const KxPictureView& picture);
    /// Whether several people are there, so that it helps to have all wanted pictures whole: mouths move faster than
    /// samples are taken.
    bool WatchesMouths() const;

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
