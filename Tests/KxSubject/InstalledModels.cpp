#include <Tests/KxSubject/InstalledModels.h>

#include <fstream>
#include <sstream>

std::string InstalledModels::ContentsOf(const std::string& path)
{
    const std::ifstream file(path, std::ios::binary);
    std::ostringstream contents;
    contents << file.rdbuf();
    return file ? contents.str() : std::string();
}

KxFaceModels InstalledModels::Cascades()
{
    const std::string folder = KX_CASCADE_FOLDER;
    return {ContentsOf(folder + "/haarcascade_frontalface_alt2.xml"),
            ContentsOf(folder + "/haarcascade_profileface.xml"),
            {}};
}

std::string InstalledModels::DetectorPath()
{
    return KX_SOURCE_FOLDER "/../shared/models/face_detection_yunet_2022mar.onnx";
}

std::string InstalledModels::ObjectDetector()
{
    return ContentsOf(KX_MODELS_FOLDER "/nanodet-g.onnx");
}
