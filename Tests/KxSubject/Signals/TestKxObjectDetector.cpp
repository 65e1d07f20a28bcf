#include <KxSubject/Signals/KxObjectDetector.h>

#include <KxSubject/KxOpenCvProcess.h>

#include <Tests/KxSubject/InstalledModels.h>
#include <Tests/KxSubject/MadePictures.h>

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace
{

using namespace std::string_literals;

/// A field of a protocol buffer that holds bytes; shorter than 128 bytes.
std::string Field(int number, const std::string& bytes)
{
    return std::string(1, static_cast<char>(number * 8 + 2)) + static_cast<char>(bytes.size()) + bytes;
}

/// An ONNX network whose outputs are its input without its negative values.
std::string SmallNetwork(const std::vector<std::string>& outputs)
{
    // 1 x 3 x 64 x 64 numbers
    const std::string type =
        "\x12\x16\x0a\x14\x08\x01\x12\x10\x0a\x02\x08\x01\x0a\x02\x08\x03\x0a\x02\x08\x40\x0a\x02\x08\x40"s;
    std::string graph;
    for (const std::string& output : outputs) {
        graph += Field(1, Field(1, "image") + Field(2, output) + Field(4, "Relu"));
    }
    graph += Field(2, "n") + Field(11, Field(1, "image") + type);
    for (const std::string& output : outputs) {
        graph += Field(12, Field(1, output) + type);
    }
    const std::string length{static_cast<char>((graph.size() & 0x7FU) | 0x80U), static_cast<char>(graph.size() >> 7U)};
    return "\x08\x06\x3a"s + length + graph + "\x42\x04\x0a\x00\x10\x0b"s;
}

bool Runs(const std::string& onnx)
{
    return KxObjectDetector::Load(onnx).has_value();
}

cv::Rect2f BoxOf(const KxDetection& detection)
{
    return {detection.x, detection.y, detection.width, detection.height};
}

float IntersectionOverUnion(const cv::Rect2f& a, const cv::Rect2f& b)
{
    const float common = (a & b).area();
    return common / (a.area() + b.area() - common);
}

/// Whether a detection of this kind is at this place of a picture.
bool Has(const std::vector<KxDetection>& detections, KxDetectionKind kind, const cv::Rect2f& box, cv::Size picture)
{
    const auto width = static_cast<float>(picture.width);
    const auto height = static_cast<float>(picture.height);
    const cv::Rect2f share(box.x / width, box.y / height, box.width / width, box.height / height);
    return std::any_of(detections.begin(), detections.end(), [&](const KxDetection& detection) {
        return detection.kind == kind && IntersectionOverUnion(BoxOf(detection), share) > 0.5F;
    });
}

/// What the tests on footage share; empty where it is not installed.
struct Footage {
    const std::string onnx = InstalledModels::ObjectDetector();
    const cv::Mat pedestrians = MadePictures::Pedestrians();
    const cv::Mat person = MadePictures::Photograph();
    const cv::Mat animal = MadePictures::PhotographOfAnAnimal();
};

const Footage& SharedFootage()
{
    static const Footage footage;
    return footage;
}

/// One thread, as in the programs: ThreadSanitizer does not see what OpenCV's threads synchronise.
class KxObjectDetectorTest : public testing::Test
{
protected:
    void SetUp() override { KxOpenCvProcess::Prepare(); }
};

/// The installed network on photographs and footage.
class KxObjectDetectorOnFootage : public KxObjectDetectorTest
{
protected:
    void SetUp() override
    {
        KxObjectDetectorTest::SetUp();
        if (onnx.empty()) {
            GTEST_SKIP() << "needs the weights that Packaging/install-models installs";
        }
        detector = KxObjectDetector::Load(onnx);
        ASSERT_TRUE(detector.has_value());
        if (pedestrians.empty() || person.empty() || animal.empty()) {
            GTEST_SKIP() << "needs vtest.avi, messi5.jpg and chicky_512.png of the package opencv-doc";
        }
    }

    const std::string& onnx = SharedFootage().onnx;
    const cv::Mat pedestrians = SharedFootage().pedestrians;
    const cv::Mat person = SharedFootage().person;
    const cv::Mat animal = SharedFootage().animal;
    std::optional<KxObjectDetector> detector;
};

/// Places of the three pedestrians who can be seen as a whole.
const std::array<cv::Rect2f, 3> Walkers{
    {{641.0F, 241.0F, 46.0F, 80.0F}, {254.0F, 221.0F, 28.0F, 89.0F}, {499.0F, 156.0F, 30.0F, 74.0F}}};

} // namespace

TEST_F(KxObjectDetectorTest, BytesThatAreNoNetworkAreRefused)
{
    EXPECT_FALSE(Runs(""));
    EXPECT_FALSE(Runs("this is no model"));
    cv::RNG random(7);
    for (int i = 0; i < 20; ++i) {
        std::string bytes(static_cast<std::size_t>(random.uniform(1, 5000)), '\0');
        std::generate(bytes.begin(), bytes.end(), [&random] { return static_cast<char>(random.uniform(0, 256)); });
        EXPECT_FALSE(Runs(bytes)) << i;
    }
}

TEST_F(KxObjectDetectorTest, ANetworkWithOtherOutputsIsRefused)
{
    // OpenCV runs it.
    const std::string network = SmallNetwork({"out"});
    cv::dnn::Net net = cv::dnn::readNetFromONNX(network.data(), network.size());
    net.setInput(cv::Mat({1, 3, 64, 64}, CV_32F, cv::Scalar(1.0)));
    ASSERT_EQ(net.forward().total(), 3U * 64U * 64U);
    EXPECT_FALSE(Runs(network));
}

TEST_F(KxObjectDetectorTest, ANetworkWithOutputsOfOtherSizesIsRefused)
{
    const std::vector<std::string> names{"scores_8", "boxes_8", "scores_16", "boxes_16", "scores_32", "boxes_32"};
    const std::string network = SmallNetwork(names);
    cv::dnn::Net net = cv::dnn::readNetFromONNX(network.data(), network.size());
    net.setInput(cv::Mat({1, 3, 64, 64}, CV_32F, cv::Scalar(1.0)));
    ASSERT_EQ(net.forward("boxes_32").total(), 3U * 64U * 64U);
    EXPECT_FALSE(Runs(network));
}

TEST_F(KxObjectDetectorOnFootage, ATruncatedNetworkIsRefused)
{
    for (const double share : {0.001, 0.01, 0.1, 0.5, 0.9, 0.999}) {
        EXPECT_FALSE(Runs(onnx.substr(0, static_cast<std::size_t>(share * static_cast<double>(onnx.size()))))) << share;
    }
    EXPECT_FALSE(Runs(onnx.substr(0, onnx.size() - 1)));
}

TEST_F(KxObjectDetectorOnFootage, PedestriansAreFound)
{
    const std::vector<KxDetection> found = detector->Detect(pedestrians);
    for (const cv::Rect2f& walker : Walkers) {
        EXPECT_TRUE(Has(found, KxDetectionKind::Person, walker, pedestrians.size())) << walker;
    }
    EXPECT_TRUE(std::is_sorted(found.begin(), found.end(),
                               [](const KxDetection& a, const KxDetection& b) { return a.score > b.score; }));
}

TEST_F(KxObjectDetectorOnFootage, PicturesAreNormalisedAsInTheTraining)
{
    const cv::Mat part = pedestrians(cv::Rect(448, 128, 320, 320)); // needs no scaling
    const std::array<float, 3> mean{103.53F, 116.28F, 123.675F};
    const std::array<float, 3> deviation{57.375F, 57.12F, 58.395F};
    cv::Mat blob({1, 3, part.rows, part.cols}, CV_32F);
    for (int channel = 0; channel < 3; ++channel) {
        for (int y = 0; y < part.rows; ++y) {
            for (int x = 0; x < part.cols; ++x) {
                const auto i = static_cast<std::size_t>(channel);
                blob.at<float>(cv::Vec4i(0, channel, y, x)) =
                    (static_cast<float>(part.at<cv::Vec3b>(y, x)[channel]) - mean.at(i)) / deviation.at(i);
            }
        }
    }
    cv::dnn::Net net = cv::dnn::readNetFromONNX(onnx.data(), onnx.size());
    net.setInput(blob);
    float best = 0.0F;
    for (const char* scores : {"scores_8", "scores_16", "scores_32"}) {
        const cv::Mat output = net.forward(scores);
        const cv::Mat places = output.reshape(1, static_cast<int>(output.total()) / 80);
        double most = 0.0;
        cv::minMaxLoc(places.col(0), nullptr, &most);
        best = std::max(best, static_cast<float>(most));
    }
    const std::vector<KxDetection> found = detector->Detect(part);
    ASSERT_FALSE(found.empty());
    EXPECT_NEAR(found[0].score, best, 1e-4F);
}

TEST_F(KxObjectDetectorOnFootage, ALargePersonAndAnAnimalAreFound)
{
    const std::vector<KxDetection> players = detector->Detect(person);
    ASSERT_FALSE(players.empty());
    EXPECT_EQ(players[0].kind, KxDetectionKind::Person);
    EXPECT_TRUE(Has(players, KxDetectionKind::Person, {59.0F, 61.0F, 402.0F, 276.0F}, person.size()));

    const std::vector<KxDetection> animals = detector->Detect(animal);
    ASSERT_FALSE(animals.empty());
    EXPECT_TRUE(Has(animals, KxDetectionKind::Animal, {0.0F, 12.0F, 510.0F, 494.0F}, animal.size()));
}

TEST_F(KxObjectDetectorOnFootage, APictureOfAnyShapeIsExamined)
{
    // The first walker stays the same; the picture around him becomes square, tall and flat.
    for (const cv::Rect part :
         {cv::Rect(192, 0, 576, 576), cv::Rect(540, 100, 220, 400), cv::Rect(100, 210, 660, 140)}) {
        const cv::Rect2f walker = Walkers[0] - cv::Point2f(part.tl());
        EXPECT_TRUE(Has(detector->Detect(pedestrians(part)), KxDetectionKind::Person, walker, part.size())) << part;
    }
}

TEST_F(KxObjectDetectorOnFootage, BoxesLieInsideThePicture)
{
    for (const cv::Mat& picture : {pedestrians, person, animal}) {
        for (const KxDetection& found : detector->Detect(picture)) {
            EXPECT_GE(found.x, 0.0F);
            EXPECT_GE(found.y, 0.0F);
            EXPECT_GT(found.width, 0.0F);
            EXPECT_GT(found.height, 0.0F);
            EXPECT_LE(found.x + found.width, 1.0F + 1e-6F);
            EXPECT_LE(found.y + found.height, 1.0F + 1e-6F);
            EXPECT_GE(found.score, KxObjectDetector::Options().scoreThreshold);
            EXPECT_LE(found.score, 1.0F);
        }
    }
}

TEST_F(KxObjectDetectorOnFootage, NothingIsFoundInAPlainPicture)
{
    EXPECT_TRUE(detector->Detect(cv::Mat(180, 320, CV_8UC3, cv::Scalar::all(90))).empty());
    EXPECT_TRUE(detector->Detect(cv::Mat(1, 1, CV_8UC3, cv::Scalar::all(90))).empty());
}

TEST_F(KxObjectDetectorOnFootage, ALookDoesNotDependOnEarlierOnes)
{
    const std::vector<KxDetection> first = detector->Detect(pedestrians);
    detector->Detect(animal);
    const std::vector<KxDetection> again = detector->Detect(pedestrians);
    ASSERT_EQ(again.size(), first.size());
    for (std::size_t i = 0; i < first.size(); ++i) {
        EXPECT_EQ(BoxOf(again[i]), BoxOf(first[i]));
        EXPECT_EQ(again[i].score, first[i].score);
    }
}

TEST_F(KxObjectDetectorOnFootage, AHigherThresholdFindsLess)
{
    KxObjectDetector::Options options;
    options.scoreThreshold = 0.99F;
    EXPECT_TRUE(KxObjectDetector::Load(onnx, options)->Detect(pedestrians).empty());
}
