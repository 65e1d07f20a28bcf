#pragma once

#include <KxSubject/KxUsedModel.h>

#include <string>

/// The contents of the trained models that the search for faces runs on. Each may be empty.
struct KxFaceModels {
    std::string frontalCascade; ///< XML of an OpenCV cascade for faces that look at the camera
    std::string profileCascade; ///< the same for faces seen from one side
    std::string detector;       ///< a YuNet network in ONNX; if it can be run, the cascades are not used
    KxUsedModel detectorFile{};
    std::string frontalSha256{}; ///< of the cascade, 64 hexadecimal digits; empty: not known
    std::string profileSha256{}; ///< the same
};
