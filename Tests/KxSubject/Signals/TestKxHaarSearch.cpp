#include <KxSubject/Signals/KxHaarSearch.h>

#include <Tests/KxSubject/InstalledModels.h>
#include <Tests/KxSubject/MadePictures.h>

#include <opencv2/imgproc.hpp>
#include <opencv2/objdetect.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <tuple>

namespace
{

using Sizes = KxHaarSearch::Sizes;

const Sizes AllSizes{20, 1000, 1.15};

std::vector<cv::Rect> Sorted(std::vector<cv::Rect> hits)
{
    std::sort(hits.begin(), hits.end(), [](const cv::Rect& a, const cv::Rect& b) {
        return std::tie(a.width, a.height, a.y, a.x) < std::tie(b.width, b.height, b.y, b.x);
    });
    return hits;
}

/// An installed cascade, and OpenCV's own search with it.
class InstalledCascade
{
public:
    explicit InstalledCascade(const std::string& xml)
        : m_xml(xml)
    {
        const cv::FileStorage storage(xml, cv::FileStorage::READ | cv::FileStorage::MEMORY);
        m_reference.read(storage.getFirstTopLevelNode());
    }
    KxHaarSearch Search() const { return KxHaarSearch(KxHaarCascade::Read(m_xml).value()); }
    std::vector<cv::Rect> Expected(const cv::Mat& grey, const Sizes& sizes)
    {
        std::vector<cv::Rect> hits;
        m_reference.detectMultiScale(grey, hits, sizes.factor, 0, 0, {sizes.smallestPx, sizes.smallestPx},
                                     {sizes.largestPx, sizes.largestPx});
        return Sorted(hits);
    }

private:
    std::string m_xml;
    cv::CascadeClassifier m_reference;
};

/// With each installed cascade: 0 is for frontal faces, whose trees have two nodes, 1 for profiles, with one.
class KxHaarSearchAgainstOpenCv : public testing::TestWithParam<int>
{
protected:
    void SetUp() override
    {
        const KxFaceModels models = InstalledModels::Cascades();
        const std::string& xml = GetParam() == 0 ? models.frontalCascade : models.profileCascade;
        if (photograph.empty() || xml.empty()) {
            GTEST_SKIP() << "needs messi5.jpg of the package opencv-doc and the cascades of opencv-data";
        }
        cascade.emplace(xml);
        cv::cvtColor(photograph, grey, cv::COLOR_BGR2GRAY);
    }

    cv::Mat photograph = MadePictures::Photograph();
    cv::Mat grey;
    std::optional<InstalledCascade> cascade;
};

/// A cascade of one stage with one tree. Its feature is the left half of the window of four by four less the right
/// half, and the stage wants half.
std::string MadeCascade(const std::string& nodes, const std::string& leaves,
                        const std::string& rects = "<_>0 0 4 4 -1.</_><_>0 0 2 4 2.</_>",
                        const std::string& tilted = "0")
{
    return "<?xml version=\"1.0\"?><opencv_storage><cascade type_id=\"opencv-cascade-classifier\">"
           "<stageType>BOOST</stageType><featureType>HAAR</featureType><height>4</height><width>4</width>"
           "<stages><_><stageThreshold>0.5</stageThreshold><weakClassifiers><_><internalNodes>" +
           nodes + "</internalNodes><leafValues>" + leaves +
           "</leafValues></_></weakClassifiers></_></stages><features><_><rects>" + rects + "</rects><tilted>" +
           tilted + "</tilted></_></features></cascade></opencv_storage>";
}

} // namespace

TEST_P(KxHaarSearchAgainstOpenCv, TheHitsAreTheSameInPicturesOfAnySize)
{
    KxHaarSearch search = cascade->Search();
    std::size_t hits = 0;
    // Widths leave every number of windows in the last four.
    for (const cv::Size size : {cv::Size(548, 342), cv::Size(320, 180), cv::Size(323, 181), cv::Size(330, 206),
                                cv::Size(57, 200), cv::Size(22, 21), cv::Size(20, 20), cv::Size(19, 40)}) {
        cv::Mat picture;
        cv::resize(grey, picture, size, 0.0, 0.0, cv::INTER_AREA);
        const std::vector<cv::Rect> expected = cascade->Expected(picture, AllSizes);
        EXPECT_EQ(Sorted(search.Find(picture, AllSizes)), expected) << size;
        hits += expected.size();
    }
    EXPECT_GT(hits, 0U);
}

TEST_P(KxHaarSearchAgainstOpenCv, TheHitsAreTheSameForWindowsOfAnySize)
{
    KxHaarSearch search = cascade->Search();
    std::size_t hits = 0;
    for (const Sizes sizes : {Sizes{20, 60, 1.1}, Sizes{33, 53, 1.1}, Sizes{90, 1000, 1.05}, Sizes{40, 42, 1.2},
                              Sizes{41, 41, 1.4}, Sizes{900, 1000, 1.3}}) {
        const std::vector<cv::Rect> expected = cascade->Expected(grey, sizes);
        EXPECT_EQ(Sorted(search.Find(grey, sizes)), expected) << sizes.smallestPx << ' ' << sizes.factor;
        hits += expected.size();
    }
    EXPECT_GT(hits, 0U);
}

TEST_P(KxHaarSearchAgainstOpenCv, TheHitsAreTheSameInPartsOfAPicture)
{
    KxHaarSearch search = cascade->Search();
    std::size_t hits = 0;
    for (const cv::Rect part : {cv::Rect(200, 70, 90, 90), cv::Rect(211, 63, 83, 101), cv::Rect(0, 0, 548, 342)}) {
        const std::vector<cv::Rect> expected = cascade->Expected(grey(part), {24, 80, 1.1});
        EXPECT_EQ(Sorted(search.Find(grey(part), {24, 80, 1.1})), expected) << part;
        hits += expected.size();
    }
    // As near a known face: OpenCV does not always examine the lowest windows.
    for (int side = 40; side < 110; ++side) {
        const cv::Mat part = grey(cv::Rect(225, 65, side, side));
        const Sizes sizes{side * 2 / 5, side * 5 / 8, 1.1};
        const std::vector<cv::Rect> expected = cascade->Expected(part, sizes);
        EXPECT_EQ(Sorted(search.Find(part, sizes)), expected) << side;
        hits += expected.size();
    }
    EXPECT_GT(hits, 0U);
}

TEST_P(KxHaarSearchAgainstOpenCv, TheHitsAreTheSameBetweenFlatAndNoisyParts)
{
    grey.colRange(150, 260).setTo(90);
    grey.rowRange(0, 40).setTo(255);
    cv::Mat noise(grey.rows, 120, CV_8UC1);
    cv::RNG(7).fill(noise, cv::RNG::UNIFORM, 0, 256);
    noise.copyTo(grey.colRange(400, 520));
    EXPECT_EQ(Sorted(cascade->Search().Find(grey, {20, 1000, 1.2})), cascade->Expected(grey, {20, 1000, 1.2}));
}

TEST_P(KxHaarSearchAgainstOpenCv, TheHitsAreTheSameWhateverTheContrast)
{
    KxHaarSearch search = cascade->Search();
    std::vector<std::size_t> hits;
    for (const double contrast : {1.0, 0.3, 0.25, 0.2, 0.15, 0.05}) {
        cv::Mat picture;
        grey.convertTo(picture, CV_8U, contrast, 90.0);
        const std::vector<cv::Rect> expected = cascade->Expected(picture, AllSizes);
        EXPECT_EQ(Sorted(search.Find(picture, AllSizes)), expected) << contrast;
        hits.push_back(expected.size());
    }
    EXPECT_GT(hits.front(), hits.back());
}

INSTANTIATE_TEST_SUITE_P(Cascades, KxHaarSearchAgainstOpenCv, testing::Values(0, 1));

TEST(KxHaarSearch, AWindowIsFoundWhereItsTreeSaysSo)
{
    // At the smallest scale every second window is examined; flat ones count for nothing.
    cv::Mat picture(12, 24, CV_8UC1, cv::Scalar(100));
    picture.colRange(0, 10).setTo(200);
    const auto lefts = [&picture](const std::string& nodes, const std::string& leaves) {
        KxHaarSearch search(KxHaarCascade::Read(MadeCascade(nodes, leaves)).value());
        std::set<int> found;
        for (const cv::Rect& hit : search.Find(picture, {4, 4, 2.0})) {
            found.insert(hit.x);
        }
        return found;
    };
    const std::set<int> edge{8};
    EXPECT_EQ(lefts("0 -1 0 3.9", "0. 1."), edge);
    EXPECT_TRUE(lefts("0 -1 0 4.1", "0. 1.").empty());
    EXPECT_EQ(lefts("0 -1 0 3.9", "0. 0.499995"), edge) << "a rounding error";
    EXPECT_TRUE(lefts("0 -1 0 3.9", "0. 0.49998").empty());
    EXPECT_EQ(lefts("0 -1 0 4.1", "1. 0."), edge);
    EXPECT_EQ(lefts("1 0 0 4.1 -1 -2 0 3.9", "0. 0. 1."), edge);
    EXPECT_EQ(lefts("0 1 0 3.9 -1 -2 0 4.1", "0. 1. 0."), edge);
    EXPECT_TRUE(lefts("0 1 0 3.9 -1 -2 0 4.1", "0. 0. 1.").empty());
}

TEST(KxHaarSearch, TheNeighbourOfAWindowThatTheFirstStageRejectsIsLeftOut)
{
    cv::Mat picture(12, 24, CV_8UC1, cv::Scalar(100));
    picture.colRange(8, 10).setTo(200);
    KxHaarSearch search(KxHaarCascade::Read(MadeCascade("0 -1 0 1.", "0. 1.")).value());
    EXPECT_TRUE(search.Find(picture, {4, 4, 2.0}).empty());
    picture.colRange(0, 8).setTo(200);
    EXPECT_FALSE(search.Find(picture, {4, 4, 2.0}).empty());
}

TEST(KxHaarCascade, AFileThatRefersToWhatIsNotThereIsRefused)
{
    const auto isRead = [](const std::string& xml) { return KxHaarCascade::Read(xml).has_value(); };
    EXPECT_TRUE(isRead(MadeCascade("0 -1 0 1.", "0. 1.")));
    EXPECT_TRUE(isRead(MadeCascade("1 0 0 1. -1 -2 0 2.", "0. 1. 2.")));
    EXPECT_FALSE(isRead(MadeCascade("0 -1 1 1.", "0. 1."))) << "a feature";
    EXPECT_FALSE(isRead(MadeCascade("0 -1 -1 1.", "0. 1."))) << "a feature";
    EXPECT_FALSE(isRead(MadeCascade("0 -2 0 1.", "0. 1."))) << "a leaf";
    EXPECT_FALSE(isRead(MadeCascade("1 -1 0 1.", "0. 1."))) << "a node";
    EXPECT_FALSE(isRead(MadeCascade("1 0 0 1. 1 -2 0 2.", "0. 1. 2."))) << "the node itself";
    EXPECT_FALSE(isRead(MadeCascade("0 -1 0 1.", "0."))) << "a leaf that is missing";
    EXPECT_FALSE(isRead(MadeCascade("0 -1 0", "0. 1."))) << "a number that is missing";
    EXPECT_FALSE(isRead(MadeCascade("0 -1 0 1.", "0. 1.", "<_>0 0 4 4 -1.</_><_>3 0 2 4 2.</_>"))) << "pixels";
    EXPECT_FALSE(isRead(MadeCascade("0 -1 0 1.", "0. 1.", "<_>0 0 4 4 -1.</_>"))) << "a second rectangle";
    EXPECT_FALSE(isRead(MadeCascade("0 -1 0 1.", "0. 1.", "<_>0 0 4 4 -1.</_><_>0 0 2 4</_>"))) << "a weight";
    EXPECT_FALSE(isRead(MadeCascade("0 -1 0 1.", "0. 1.", "<_>0 0 4 4 -1.</_><_>0 0 2 4 2.</_>", "1"))) << "tilted";
    EXPECT_FALSE(isRead({}));
    EXPECT_FALSE(
        isRead("<?xml version=\"1.0\"?><opencv_storage><cascade><height>4</height></cascade></opencv_storage>"));
}
