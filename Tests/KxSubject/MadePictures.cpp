#include <Tests/KxSubject/MadePictures.h>

#include <opencv2/imgproc.hpp>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace
{

/// The first picture of a file of OpenCV's documentation, CV_8UC3; empty if it has another size or is missing.
cv::Mat FirstPicture(const std::string& name, cv::Size size)
{
    const std::filesystem::path source = "/usr/share/doc/opencv-doc/examples/data/" + name;
    if (!std::filesystem::exists(source)) {
        return {};
    }
    // Several test programs do this at the same time.
    const std::string raw = testing::TempDir() + "kx-" + std::to_string(std::random_device()()) + ".raw";
    const std::string command =
        "ffmpeg -v error -y -i " + source.string() + " -frames:v 1 -f rawvideo -pix_fmt bgr24 " + raw;
    cv::Mat picture(size, CV_8UC3);
    if (std::system(command.c_str()) != 0) {
        return {};
    }
    std::ifstream file(raw, std::ios::binary);
    const auto bytes = static_cast<std::streamsize>(picture.total() * picture.elemSize());
    file.read(reinterpret_cast<char*>(picture.data), bytes);
    const bool whole = file.gcount() == bytes;
    file.close();
    std::filesystem::remove(raw);
    return whole ? picture : cv::Mat();
}

} // namespace

namespace MadePictures
{

cv::Mat Grey(const cv::Mat& picture)
{
    cv::Mat grey;
    cv::cvtColor(picture, grey, cv::COLOR_BGR2GRAY);
    return grey;
}

cv::Mat Texture(cv::Size size, std::uint64_t seed, double level)
{
    cv::RNG random(seed);
    cv::Mat texture(size, CV_8UC3);
    random.fill(texture, cv::RNG::UNIFORM, 0, 256);
    cv::GaussianBlur(texture, texture, cv::Size(), 2.0);
    cv::Mat stretched;
    texture.convertTo(stretched, CV_8UC3, 2.0, level - 2.0 * 127.5);
    return stretched;
}

cv::Mat View(const cv::Mat& scene, cv::Point2d shift, cv::Size size)
{
    const cv::Matx23d movement(1.0, 0.0, -shift.x, 0.0, 1.0, -shift.y);
    cv::Mat view;
    cv::warpAffine(scene, view, movement, size, cv::INTER_LINEAR, cv::BORDER_REFLECT);
    return view;
}

void PaintObject(cv::Mat& picture, const cv::Rect& place)
{
    constexpr int checkPx = 6;
    for (int y = 0; y < place.height; y += checkPx) {
        for (int x = 0; x < place.width; x += checkPx) {
            const bool bright = (x / checkPx + y / checkPx) % 2 == 0;
            const cv::Rect check = cv::Rect(place.x + x, place.y + y, checkPx, checkPx) & place &
                                   cv::Rect(0, 0, picture.cols, picture.rows);
            if (!check.empty()) {
                picture(check).setTo(bright ? cv::Scalar(30, 220, 250) : cv::Scalar(120, 20, 20));
            }
        }
    }
}

cv::Mat Photograph()
{
    return FirstPicture("messi5.jpg", {548, 342});
}

cv::Mat PhotographOfAnAnimal()
{
    return FirstPicture("chicky_512.png", {512, 512});
}

cv::Mat Pedestrians()
{
    return FirstPicture("vtest.avi", {768, 576});
}

} // namespace MadePictures
