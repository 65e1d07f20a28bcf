#pragma once

#include <KxCore/KxExport.h>

#include <QString>

/// The optional neural face detector's file. None comes with the product.
namespace KxFaceModel
{
/// The file that a person named in the configuration (key "FaceModel"), else one of the detector's own name in the
/// program's data folder, else an empty text. A named file is returned even when it is missing, so that the analysis
/// can say so.
KXMODEL_API QString Find();
} // namespace KxFaceModel
