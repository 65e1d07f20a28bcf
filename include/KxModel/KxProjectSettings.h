#pragma once

#include <QSize>

/// Kinds of frame rate that a project can have; any other rate is Custom.
enum class KxProjectFrameRateType {
    Custom = 0,
    Fps23_976 = 1,
    Fps24 = 2,
    Fps25 = 3,
    Fps29_97 = 4,
    Fps30 = 5,
    Fps50 = 6,
    Fps59_94 = 7,
    Fps60 = 8,
};

/// Kinds of aspect ratio that a project can have. The number 5 means 4:5, which the conversion does not know: it
/// returns Unknown for it.
enum KxProjectAspectRatioType {
    KxProjectAspectRatioUnknown = 0,
    KxProjectAspectRatio16x9 = 1,
    KxProjectAspectRatio9x16 = 2,
    KxProjectAspectRatio1x1 = 3,
    KxProjectAspectRatio4x3 = 4,
    KxProjectAspectRatio21x9 = 6,
};

/// The format of a timeline's pictures. A plain record: read it, change it, write it back.
struct KxProjectSettings {
    /// Of the result. If it has another shape than the clip's pictures, crops that do not have its shape are fitted
    /// into it.
    QSize resolution;
    KxProjectFrameRateType frameRateType = KxProjectFrameRateType::Custom;
    KxProjectAspectRatioType aspectRatioType = KxProjectAspectRatioUnknown;
};
