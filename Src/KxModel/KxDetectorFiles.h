#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectModels.h>

#include <QString>
#include <QStringList>

/// The files of the trained models that the search for faces runs on. Any thread.
namespace KxDetectorFiles
{
/// The optional neural face detector, which does not come with the product: the file that a person named in the
/// configuration (key "FaceModel"), otherwise one of the detector's own name in the program's data folder, otherwise
/// an empty text. A named file is returned even if it is missing, so that the analysis can report it.
KXMODEL_API QString FindDetector();

/// The folders in which OpenCV's trained cascades may lie, the first choice first:
/// 1. the folders in the environment variable KX_CASCADES (separated as in PATH),
/// 2. the folder that was found when this was built,
/// 3. ../share/opencv4/haarcascades, ../share/opencv4/lbpcascades and ../share/haarcascades beside the program.
KXMODEL_API QStringList CascadeFolders();

/// The path of a cascade's file; empty if no folder has it.
KXMODEL_API QString FindCascade(const QString& fileName);

struct Contents {
    KxSubjectModels models;
    QString detectorProblem; ///< why the detector's file was not read; empty if it was, or if none was asked for
};
/// Reads the cascades that can be found, and the detector unless `detectorPath` is empty. Throws std::bad_alloc.
KXMODEL_API Contents Read(const QString& detectorPath);

/// The error message for a detector that cannot be used.
KXMODEL_API QString DetectorProblem(const QString& path, const QString& reason);
} // namespace KxDetectorFiles
