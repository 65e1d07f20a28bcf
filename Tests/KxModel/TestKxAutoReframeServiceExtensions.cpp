#include <Tests/KxModel/ServiceTest.h>

// The optional interfaces of a service: shots and choices.

using KxAutoReframeServiceExtensions = ServiceTest;

TEST_F(KxAutoReframeServiceExtensions, ShotsAreCollectedOnlyOnRequest)
{
    const QString clip = MakeClip("clip.mp4", 40);
    bool decoded = false;
    Lefts(m_service, clip, {9, 16}, decoded);
    EXPECT_TRUE(m_service.GetShots(clip).isEmpty());

    m_service.CollectShots(true);
    Lefts(m_service, clip, {9, 16}, decoded);
    const QList<KxAutoReframeShot> shots = m_service.GetShots(clip);
    ASSERT_FALSE(shots.isEmpty());
    EXPECT_EQ(shots.first().first, 0);
    EXPECT_EQ(shots.last().end, 40);
    EXPECT_GT(shots.first().confidence, 0.0);
    EXPECT_TRUE(m_service.GetShots(m_folder.filePath(QStringLiteral("other.mp4"))).isEmpty());
    EXPECT_EQ(m_service.LastFindings(), nullptr);
}

TEST_F(KxAutoReframeServiceExtensions, ClientsFindTheShotsByACast)
{
    IKxAutoReframeService* const service = getAutoReframeService();
    EXPECT_NE(dynamic_cast<IKxAutoReframeShots*>(service), nullptr);
}

TEST_F(KxAutoReframeServiceExtensions, ChoicesOfAClientDecideTheCrop)
{
    const QString clip = MakeClip("clip.mp4", 60);
    bool decoded = false;
    const std::vector<double> automatic = Lefts(m_service, clip, {9, 16}, decoded);
    auto& service = static_cast<IKxAutoReframeChoices&>(m_service);
    KxAutoReframeChoice hold;
    hold.kind = KxAutoReframeChoice::Kind::Hold;
    hold.toSeconds = 1000.0;
    hold.centre = QPointF(0.0, 0.5);
    service.SetChoices({hold});
    const std::vector<double> held = Lefts(m_service, clip, {9, 16}, decoded);
    EXPECT_FALSE(decoded);
    EXPECT_EQ(held, std::vector<double>(60, 0.0));
    service.SetChoices({});
    EXPECT_EQ(Lefts(m_service, clip, {9, 16}, decoded), automatic);
}

TEST_F(KxAutoReframeServiceExtensions, ChoicesAreReadAsTheyWereWritten)
{
    KxAutoReframeChoice follow;
    follow.kind = KxAutoReframeChoice::Kind::Follow;
    follow.fromSeconds = 1.5;
    follow.toSeconds = 4.25;
    follow.seeds = {{2.0, QRectF(0.25, 0.5, 0.125, 0.25), true}, {3.0, QRectF(0.5, 0.5, 0.125, 0.25), false}};
    KxAutoReframeChoice hold;
    hold.kind = KxAutoReframeChoice::Kind::Hold;
    hold.fromSeconds = 4.25;
    hold.toSeconds = 5.0;
    hold.centre = QPointF(0.25, 0.75);
    const QList<KxAutoReframeChoice> choices{follow, hold};
    EXPECT_EQ(m_service.ReadChoices(m_service.WriteChoices({}, choices)), choices);
    EXPECT_TRUE(m_service.ReadChoices("no JSON").isEmpty());
    EXPECT_TRUE(m_service.ReadChoices({}).isEmpty());
}

TEST_F(KxAutoReframeServiceExtensions, ABoxIsGuessedAroundAPlaceInAFrame)
{
    const QString clip = MakeClip("clip.mp4", 20);
    const QRectF box = m_service.GuessBox(clip, 10, QPointF(0.5, 0.5)).box;
    EXPECT_FALSE(box.isEmpty());
    EXPECT_TRUE(box.contains(QPointF(0.5, 0.5)));
    EXPECT_TRUE(
        m_service.GuessBox(m_folder.filePath(QStringLiteral("missing.mp4")), 10, QPointF(0.5, 0.5)).box.isEmpty());
}
