#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxPictureView.h>
#include <KxSubject/KxSubjectChoices.h>

/// The box around what a person points at in one picture; a box of usual size where nothing can be told apart. `x` and
/// `y` and the box are fractions of the picture. Takes some tenths of a second. No error of OpenCV leaves this call,
/// apart from lack of memory.
KXSUBJECT_API KxSubjectBox KxGuessBoxAt(const KxPictureView& picture, double x, double y);
