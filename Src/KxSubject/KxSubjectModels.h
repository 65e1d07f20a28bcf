#pragma once

#include <KxSubject/KxFaceModels.h>

#include <string>

/// The contents of all trained models that the analysis runs on.
struct KxSubjectModels {
    KxFaceModels faces;
    std::string objectDetector; ///< NanoDet-g in ONNX (KxObjectDetector); empty: none
    KxUsedModel objectDetectorFile{};
};
