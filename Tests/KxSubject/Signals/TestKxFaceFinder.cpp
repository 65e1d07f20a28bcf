#include <KxSubject/Signals/KxFaceFinder.h>

#include <KxSubject/Signals/KxCascadeFiles.h>
#include <Tests/KxSubject/MadePictures.h>

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <QByteArray>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace
{

const cv::Size PictureSize(320, 180);
const cv::Rect Part(100, 20, 320, 180); ///< of the photograph
const cv::Rect Face(125, 70, 41, 46);   ///< in that part

cv::Mat PictureWithFace()
{
    const cv::Mat photograph = MadePictures::Photograph();
    return photograph.empty() ? photograph : photograph(Part).clone();
}

bool Meets(const cv::Rect& found, const cv::Rect& face)
{
    const double common = (found & face).area();
    return common > 0.5 * std::min(found.area(), face.area());
}

std::string TestModel()
{
    return (std::filesystem::path(KX_SOURCE_FOLDER) / "../shared/models/face_detection_yunet_2022mar.onnx").string();
}

/// Sets a variable of the environment for as long as it lives.
class Environment
{
public:
    Environment(const char* name, const std::string& value)
        : m_name(name)
    {
        qputenv(name, QByteArray::fromStdString(value));
    }
    ~Environment() { qunsetenv(m_name); }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    const char* m_name;
};

/// Cascades on a photograph with one face.
class KxFaceFinderOnAPhotograph : public testing::Test
{
protected:
    void SetUp() override
    {
        if (picture.empty() || !KxFaceFinder(options, "", PictureSize).Knows(KxFaceView::Frontal)) {
            GTEST_SKIP() << "needs messi5.jpg of the package opencv-doc and the cascades of opencv-data";
        }
        grey = MadePictures::Grey(picture);
    }
    std::vector<cv::Rect> Find()
    {
        return KxFaceFinder(options, "", PictureSize).Find(picture, grey, KxFaceView::Frontal);
    }
    std::optional<cv::Rect> FindNear()
    {
        return KxFaceFinder(options, "", PictureSize).FindNear(grey, KxFaceView::Frontal, Face);
    }

    KxSubjectOptions::Faces options;
    cv::Mat picture = PictureWithFace();
    cv::Mat grey;
};

} // namespace

TEST(KxFaceFinder, AFaceIsFoundAndFoundAgainNearItsPlace)
{
    const cv::Mat picture = PictureWithFace();
    if (picture.empty()) {
        GTEST_SKIP() << "needs messi5.jpg of the package opencv-doc";
    }
    KxFaceFinder finder(KxSubjectOptions().faces, "", PictureSize);
    if (!finder.Knows(KxFaceView::Frontal)) {
        GTEST_SKIP() << "needs the cascades of the package opencv-data";
    }
    const cv::Mat grey = MadePictures::Grey(picture);
    const auto found = finder.Find(picture, grey, KxFaceView::Frontal);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_TRUE(Meets(found[0], Face)) << found[0];
    const auto again = finder.FindNear(grey, KxFaceView::Frontal, found[0] + cv::Point(6, -4));
    ASSERT_TRUE(again.has_value());
    EXPECT_TRUE(Meets(*again, Face));
    EXPECT_FALSE(finder.FindNear(grey, KxFaceView::Frontal, {20, 100, 60, 60}).has_value());
}

TEST_F(KxFaceFinderOnAPhotograph, AFaceOfAnySizeIsFoundBetweenTheCoarseStepsOfTheSearch)
{
    const cv::Mat whole = grey.clone();
    for (double scale = 0.8; scale < 1.7; scale *= 1.07) {
        cv::resize(whole, grey, {}, scale, scale, cv::INTER_AREA);
        const std::vector<cv::Rect> found = Find();
        const cv::Rect face(cvRound(Face.x * scale), cvRound(Face.y * scale), cvRound(Face.width * scale),
                            cvRound(Face.height * scale));
        EXPECT_TRUE(std::any_of(found.begin(), found.end(), [&face](const cv::Rect& box) { return Meets(box, face); }))
            << scale;
    }
}

TEST_F(KxFaceFinderOnAPhotograph, AKnownFaceIsBelievedOnFewerHitsThanANewOne)
{
    options.frontalNeighbours = 1000;
    EXPECT_TRUE(Find().empty());
    EXPECT_TRUE(FindNear().has_value());
    options.followNeighbours = 1000;
    EXPECT_FALSE(FindNear().has_value());
}

TEST_F(KxFaceFinderOnAPhotograph, NoMorePlacesAreLookedAtThanTheBound)
{
    EXPECT_FALSE(Find().empty());
    options.mostSuspects = 0;
    EXPECT_TRUE(Find().empty());
}

TEST(KxFaceFinder, BoxesThatLieNearAndAreAlikeInSizeAreOneFace)
{
    const cv::Rect face(100, 50, 40, 40);
    EXPECT_TRUE(KxAreOneFace(face, {110, 60, 40, 40}, 0.6));
    EXPECT_TRUE(KxAreOneFace(face, {105, 55, 30, 30}, 0.6));
    EXPECT_FALSE(KxAreOneFace(face, {125, 50, 40, 40}, 0.6));
    EXPECT_FALSE(KxAreOneFace(face, {100, 74, 40, 40}, 0.6));
    EXPECT_FALSE(KxAreOneFace(face, {108, 58, 24, 24}, 0.6));
}

TEST(KxFaceFinder, APictureWithoutAFaceHasNone)
{
    KxFaceFinder finder(KxSubjectOptions().faces, "", PictureSize);
    const cv::Mat picture(PictureSize, CV_8UC3, cv::Scalar::all(80));
    for (const KxFaceView view : {KxFaceView::Frontal, KxFaceView::LeftProfile, KxFaceView::RightProfile}) {
        EXPECT_TRUE(finder.Find(picture, MadePictures::Grey(picture), view).empty());
    }
}

TEST(KxFaceFinder, ANamedFolderOfCascadesComesFirst)
{
    const std::filesystem::path folder = std::filesystem::path(testing::TempDir()) / "kx-cascades";
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "haarcascade_frontalface_alt2.xml") << "not a cascade";
    const Environment named("KX_CASCADES", "/no/such/folder:" + folder.string());
    EXPECT_EQ(KxFindCascade("haarcascade_frontalface_alt2.xml"),
              (folder / "haarcascade_frontalface_alt2.xml").string());
    // A damaged cascade is no face signal, not a fault.
    KxFaceFinder finder(KxSubjectOptions().faces, "", PictureSize);
    EXPECT_FALSE(finder.Knows(KxFaceView::Frontal));
    const cv::Mat picture(PictureSize, CV_8UC3, cv::Scalar::all(80));
    EXPECT_TRUE(finder.Find(picture, MadePictures::Grey(picture), KxFaceView::Frontal).empty());
    std::filesystem::remove_all(folder);
}

TEST(KxFaceFinder, ACascadeThatIsNowhereIsNotFound)
{
    EXPECT_FALSE(KxFindCascade("no-such-cascade.xml").has_value());
}

TEST(KxFaceFinder, ABadModelIsToldAndTheCascadesStay)
{
    const std::string folder = testing::TempDir();
    const std::string bad = (std::filesystem::path(folder) / "kx-bad-model.onnx").string();
    std::ofstream(bad) << "this is no model";
    const KxFaceFinder fromBad(KxSubjectOptions().faces, bad, PictureSize);
    EXPECT_EQ(fromBad.ModelProblem(),
              "Cannot use the face model " + bad + ": it is not a face detector that OpenCV can run.");
    EXPECT_FALSE(fromBad.UsesModel());
    EXPECT_EQ(fromBad.Knows(KxFaceView::Frontal), KxFindCascade("haarcascade_frontalface_alt2.xml").has_value());
    std::filesystem::remove(bad);

    const KxFaceFinder fromNone(KxSubjectOptions().faces, bad, PictureSize);
    EXPECT_EQ(fromNone.ModelProblem(), "Cannot use the face model " + bad + ": there is no such file.");
    const KxFaceFinder fromFolder(KxSubjectOptions().faces, folder, PictureSize);
    EXPECT_EQ(fromFolder.ModelProblem(), "Cannot use the face model " + folder + ": it is a folder.");
    EXPECT_TRUE(KxFaceFinder(KxSubjectOptions().faces, "", PictureSize).ModelProblem().empty());
}

TEST(KxFaceFinder, AGoodModelFindsTheFace)
{
    if (!std::filesystem::exists(TestModel())) {
        GTEST_SKIP() << "needs ../shared/models/face_detection_yunet_2022mar.onnx beside the source tree";
    }
    KxFaceFinder finder(KxSubjectOptions().faces, TestModel(), PictureSize);
    EXPECT_EQ(finder.ModelProblem(), "");
    ASSERT_TRUE(finder.UsesModel());
    const cv::Mat picture = PictureWithFace();
    if (picture.empty()) {
        GTEST_SKIP() << "needs messi5.jpg of the package opencv-doc";
    }
    const auto found = finder.Find(picture, MadePictures::Grey(picture), KxFaceView::Frontal);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_TRUE(Meets(found[0], Face)) << found[0];
    EXPECT_FALSE(finder.Knows(KxFaceView::LeftProfile));
}
