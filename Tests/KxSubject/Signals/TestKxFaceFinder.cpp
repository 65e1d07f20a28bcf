#include <KxSubject/Signals/KxFaceFinder.h>

#include <Tests/KxSubject/InstalledModels.h>
#include <Tests/KxSubject/MadePictures.h>

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>
#include <opencv2/objdetect.hpp>

#include <gtest/gtest.h>

#include <algorithm>

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

KxFaceModels Detector(const std::string& contents)
{
    KxFaceModels models = InstalledModels::Cascades();
    models.detector = contents;
    return models;
}

/// Cascades on a photograph with one face.
class KxFaceFinderOnAPhotograph : public testing::Test
{
protected:
    void SetUp() override
    {
        if (picture.empty() ||
            !KxFaceFinder(options, InstalledModels::Cascades(), PictureSize).Knows(KxFaceView::Frontal)) {
            GTEST_SKIP() << "needs messi5.jpg of the package opencv-doc and the cascades of opencv-data";
        }
        grey = MadePictures::Grey(picture);
    }
    std::vector<cv::Rect> Find()
    {
        return KxFaceFinder(options, InstalledModels::Cascades(), PictureSize).Find(picture, grey, KxFaceView::Frontal);
    }
    std::optional<cv::Rect> FindNear()
    {
        return KxFaceFinder(options, InstalledModels::Cascades(), PictureSize)
            .FindNear(grey, KxFaceView::Frontal, Face);
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
    KxFaceFinder finder(KxSubjectOptions().faces, InstalledModels::Cascades(), PictureSize);
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

TEST_F(KxFaceFinderOnAPhotograph, ASmallFaceIsSearchedForFromTheFrontOnly)
{
    // The same cascade for all views: only the smallest size differs.
    KxFaceModels models = InstalledModels::Cascades();
    models.profileCascade = models.frontalCascade;
    options.profileNeighbours = options.frontalNeighbours;
    const auto finds = [&](KxFaceView view) {
        return !KxFaceFinder(options, models, PictureSize).Find(picture, grey, view).empty();
    };
    constexpr double scale = 0.8; // 33 pixels
    cv::resize(MadePictures::Grey(picture), grey, {}, scale, scale, cv::INTER_AREA);
    options.profileMinimumPx = 64;
    EXPECT_TRUE(finds(KxFaceView::Frontal));
    EXPECT_FALSE(finds(KxFaceView::LeftProfile));
    options.profileMinimumPx = options.minimumPx;
    EXPECT_TRUE(finds(KxFaceView::LeftProfile));
}

TEST_F(KxFaceFinderOnAPhotograph, AKnownFaceNeedsFewerHitsThanANewOne)
{
    options.frontalNeighbours = 1000;
    EXPECT_TRUE(Find().empty());
    EXPECT_TRUE(FindNear().has_value());
    options.followNeighbours = 1000;
    EXPECT_FALSE(FindNear().has_value());
}

TEST_F(KxFaceFinderOnAPhotograph, NoMoreCandidatesAreExaminedThanTheBound)
{
    EXPECT_FALSE(Find().empty());
    options.mostCandidates = 0;
    EXPECT_TRUE(Find().empty());
}

TEST(KxFaceFinder, BoxesThatAreCloseAndOfSimilarSizeAreOneFace)
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
    KxFaceFinder finder(KxSubjectOptions().faces, InstalledModels::Cascades(), PictureSize);
    const cv::Mat picture(PictureSize, CV_8UC3, cv::Scalar::all(80));
    for (const KxFaceView view : {KxFaceView::Frontal, KxFaceView::LeftProfile, KxFaceView::RightProfile}) {
        EXPECT_TRUE(finder.Find(picture, MadePictures::Grey(picture), view).empty());
    }
}

TEST(KxFaceFinder, WithoutModelsNothingIsFound)
{
    for (const std::string contents : {"", "not a cascade", "<opencv_storage/>"}) {
        KxFaceFinder finder(KxSubjectOptions().faces, {contents, contents, {}}, PictureSize);
        EXPECT_FALSE(finder.Knows(KxFaceView::Frontal)) << contents;
        EXPECT_FALSE(finder.Knows(KxFaceView::LeftProfile)) << contents;
        const cv::Mat picture(PictureSize, CV_8UC3, cv::Scalar::all(80));
        EXPECT_TRUE(finder.Find(picture, MadePictures::Grey(picture), KxFaceView::Frontal).empty()) << contents;
    }
}

TEST(KxFaceFinder, AnInvalidDetectorIsRefusedAndTheCascadesAreUsed)
{
    const KxFaceFinder finder(KxSubjectOptions().faces, Detector("this is no model"), PictureSize);
    EXPECT_TRUE(finder.IsDetectorRefused());
    EXPECT_FALSE(finder.UsesDetector());
    EXPECT_EQ(finder.Knows(KxFaceView::Frontal), !InstalledModels::Cascades().frontalCascade.empty());
    EXPECT_FALSE(KxFaceFinder(KxSubjectOptions().faces, InstalledModels::Cascades(), PictureSize).IsDetectorRefused());
}

TEST(KxFaceFinder, AGoodDetectorFindsTheFace)
{
    const std::string detector = InstalledModels::ContentsOf(InstalledModels::DetectorPath());
    const cv::Mat picture = PictureWithFace();
    if (detector.empty() || picture.empty()) {
        GTEST_SKIP()
            << "needs ../shared/models/face_detection_yunet_2022mar.onnx beside the source tree and messi5.jpg "
               "of the package opencv-doc";
    }
    KxFaceFinder finder(KxSubjectOptions().faces, Detector(detector), PictureSize);
    EXPECT_FALSE(finder.IsDetectorRefused());
    ASSERT_TRUE(finder.UsesDetector());
    const auto found = finder.Find(picture, MadePictures::Grey(picture), KxFaceView::Frontal);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_TRUE(Meets(found[0], Face)) << found[0];
    EXPECT_FALSE(finder.Knows(KxFaceView::LeftProfile));
}

TEST(KxFaceFinder, TheDetectorFindsWhatOpenCvsOwnClassFinds)
{
    const std::string detector = InstalledModels::ContentsOf(InstalledModels::DetectorPath());
    const cv::Mat photograph = MadePictures::Photograph();
    if (detector.empty() || photograph.empty()) {
        GTEST_SKIP()
            << "needs ../shared/models/face_detection_yunet_2022mar.onnx beside the source tree and messi5.jpg "
               "of the package opencv-doc";
    }
    for (const cv::Size size : {cv::Size(320, 180), cv::Size(180, 320), cv::Size(320, 133)}) {
        constexpr double threshold = 0.3;
        cv::Mat picture;
        cv::resize(photograph, picture, size);
        cv::Mat expected;
        cv::FaceDetectorYN::create(InstalledModels::DetectorPath(), "", size, static_cast<float>(threshold))
            ->detect(picture, expected);
        const std::vector<cv::Rect> found = KxFaceDetector(detector, size, threshold).Detect(picture);
        ASSERT_EQ(static_cast<int>(found.size()), expected.rows) << size;
        EXPECT_GT(found.size(), 0U) << size;
        for (int i = 0; i < expected.rows; ++i) {
            const auto* row = expected.ptr<float>(i);
            EXPECT_EQ(found[static_cast<std::size_t>(i)],
                      cv::Rect(cvRound(row[0]), cvRound(row[1]), cvRound(row[2]), cvRound(row[3])))
                << size;
        }
    }
}
