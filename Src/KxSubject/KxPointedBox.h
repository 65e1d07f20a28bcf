#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxPictureView.h>
#include <KxSubject/KxSubjectChoices.h>

struct KxSubjectRecord;

/// The box around what a person points at in one picture, in fractions of it.
struct KxGuessedBox {
    KxSubjectBox box;
    /// It encloses a region that differs from what is around it; otherwise it is a box of usual size around the point.
    bool isOutlined = false;
};

/// `x` and `y` are fractions of the picture. Takes some tenths of a second. No error of OpenCV leaves this call, apart
/// from lack of memory.
KXSUBJECT_API KxGuessedBox KxGuessBoxAt(const KxPictureView& picture, double x, double y);

/// Whether the analysis saw something within a tenth of the picture's width of a place, half a second before to half a
/// second after `seconds`: something that moved relative to its background, a face, a person, an animal or a vehicle.
KXSUBJECT_API bool KxSawSomethingAt(const KxSubjectRecord& record, double seconds, double x, double y);
