#pragma once

#include <KxCore/KxExport.h>

#include <KxSubject/KxSubjectModels.h>

#include <QString>
#include <QStringList>

/// The files of the trained models that the analysis runs on: OpenCV's cascades, and a folder of optional neural
/// networks, which holds one or both of
/// - nanodet-g.onnx, the detector of people and animals (KxObjectDetector),
/// - face_detection_yunet_2022mar.onnx, a face detector that replaces the cascades (KxFaceDetector).
/// Any thread.
namespace KxDetectorFiles
{
/// A program's choice of a folder of networks.
struct NetworkFolder {
    QString path;         ///< empty: none
    bool isWanted = true; ///< false: a person chose to work without
};
/// The folder that a person named: `named`, otherwise in the environment variable KX_MODELS, otherwise in the
/// configuration (key "Models"). "none" means that no networks are wanted. A named folder is returned even if it is
/// missing, so that the analysis can report it. If nobody named one, the first of these that has a network:
/// 1. ../share/auto-reframe/models beside the program,
/// 2. auto-reframe/models in the system's and the person's folders of data,
/// 3. ../../models beside a program in a build tree, where Packaging/install-models puts it.
KXMODEL_API NetworkFolder FindNetworks(const QString& named = {});

/// Why a folder has no networks; empty if it has one.
KXMODEL_API QString FolderProblem(const QString& path);

/// The warning for a person that networks are wanted but not installed.
KXMODEL_API QString MissingNetworks();

/// The folders in which OpenCV's trained cascades may lie, the first choice first:
/// 1. the folders in the environment variable KX_CASCADES (separated as in PATH),
/// 2. the folder that was found when this was built,
/// 3. ../share/opencv4/haarcascades, ../share/opencv4/lbpcascades and ../share/haarcascades beside the program.
KXMODEL_API QStringList CascadeFolders();

/// The path of a cascade's file; empty if no folder has it.
KXMODEL_API QString FindCascade(const QString& fileName);

struct Contents {
    KxSubjectModels models;
    QStringList problems; ///< an error message for each file or folder that cannot be used
};
/// Reads the cascades that can be found, and the networks in `networkFolder` unless that is empty. A network is used if
/// its checksum is the one in the folder's SHA256SUMS or, without a line there, that of the published face detector:
/// some damaged networks crash OpenCV. Throws std::bad_alloc.
KXMODEL_API Contents Read(const QString& networkFolder);

/// The error messages for networks of `networkFolder` that OpenCV refuses.
KXMODEL_API QString RefusedObjectDetector(const QString& networkFolder);
KXMODEL_API QString RefusedFaceDetector(const QString& networkFolder);
} // namespace KxDetectorFiles
