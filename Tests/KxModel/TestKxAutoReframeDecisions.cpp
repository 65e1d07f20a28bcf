#include <KxModel/KxAutoReframeService.h>
#include <Tests/KxModel/EventRecorder.h>
#include <Tests/KxModel/TwoThings.h>
#include <Tests/Support/MadeVideo.h>

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <vector>

namespace
{

constexpr int Frames = 50;

class KxAutoReframeDecisionsTest : public testing::Test
{
protected:
    void SetUp() override
    {
        MadeVideo::Recipe recipe;
        recipe.size = QSize(320, 180);
        recipe.frames = Frames;
        recipe.output = QStringLiteral("-c:v libx264 -pix_fmt yuv420p").split(QLatin1Char(' '));
        ASSERT_TRUE(MadeVideo::Make(Clip(), recipe));
    }
    QString Clip() const { return m_folder.filePath(QStringLiteral("clip.mp4")); }

    std::vector<QRectF> Analyse(const QSize& aspect)
    {
        EventRecorder recorder(m_service);
        EXPECT_TRUE(m_service.StartTask(Clip(), IKxAutoReframeParam(16, aspect)));
        EXPECT_TRUE(recorder.WaitForEnd());
        QList<IKxAutoReframeResult> results;
        EXPECT_EQ(m_service.GetResults(Clip(), &results), 0);
        return Crops(results);
    }
    std::vector<QRectF> Decide(const QSize& aspect) const
    {
        return Crops(m_service.Decide(Clip(), IKxAutoReframeParam(16, aspect)));
    }
    static std::vector<QRectF> Crops(const QList<IKxAutoReframeResult>& results)
    {
        std::vector<QRectF> crops;
        for (const IKxAutoReframeResult& result : results) {
            crops.push_back(result.cropRect());
        }
        return crops;
    }

    QTemporaryDir m_folder;
    KxAutoReframeService m_service;
};

} // namespace

TEST_F(KxAutoReframeDecisionsTest, AVideoThatWasNotLookedAtHasNone)
{
    EXPECT_TRUE(Decide({9, 16}).empty());
}

TEST_F(KxAutoReframeDecisionsTest, ADecisionIsTheResultThatATaskWouldHave)
{
    Analyse({9, 16});
    const std::vector<QRectF> square = Decide({1, 1});
    const std::vector<QRectF> portrait = Decide({4, 5});
    EXPECT_EQ(square.size(), static_cast<size_t>(Frames));
    EXPECT_NE(square, portrait);
    EXPECT_EQ(square, Analyse({1, 1}));
    EXPECT_EQ(portrait, Analyse({4, 5}));
}

TEST_F(KxAutoReframeDecisionsTest, TheTasksResultsStay)
{
    const std::vector<QRectF> tall = Analyse({9, 16});
    Decide({1, 1});
    QList<IKxAutoReframeResult> results;
    ASSERT_EQ(m_service.GetResults(Clip(), &results), 0);
    EXPECT_EQ(Crops(results), tall);
}

TEST_F(KxAutoReframeDecisionsTest, ChoicesHold)
{
    Analyse({9, 16});
    KxAutoReframeChoice hold;
    hold.kind = KxAutoReframeChoice::Kind::Hold;
    hold.toSeconds = 1000.0;
    hold.centre = QPointF(0.0, 0.5);
    static_cast<IKxAutoReframeChoices&>(m_service).SetChoices({hold});
    for (const QRectF& crop : Decide({1, 1})) {
        ASSERT_EQ(crop.x(), 0.0);
    }
}

TEST_F(KxAutoReframeDecisionsTest, WhatAClientPointsAtIsFollowed)
{
    ASSERT_TRUE(MadeVideo::Make(Clip(), TwoThings::Recipe(Frames)));
    EXPECT_GT(Analyse({9, 16}).back().x(), 0.4);
    KxAutoReframeChoice follow;
    follow.kind = KxAutoReframeChoice::Kind::Follow;
    follow.toSeconds = 1000.0;
    follow.seeds = {{1.0, TwoThings::Still, false}};
    static_cast<IKxAutoReframeChoices&>(m_service).SetChoices({follow});
    EXPECT_LT(Analyse({9, 16}).back().x(), TwoThings::Still.left());
}
