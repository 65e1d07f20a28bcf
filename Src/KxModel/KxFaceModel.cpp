#include <KxModel/KxFaceModel.h>

#include <KxCore/KxConfigFile.h>

#include <QStandardPaths>

QString KxFaceModel::Find()
{
    const QString named = KxConfigFile::ReadAutoReframe(QStringLiteral("FaceModel"));
    if (!named.isEmpty()) {
        return named;
    }
    return QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                                  QStringLiteral("auto-reframe/face_detection_yunet_2022mar.onnx"));
}
