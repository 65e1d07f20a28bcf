#include <Tests/KxModel/ServiceTest.h>

// What a service knows of a video once it has analysed it.

using KxAutoReframeServiceRecords = ServiceTest;

TEST_F(KxAutoReframeServiceRecords, AnotherAspectOfTheSameFileNeedsNoDecoding)
{
    const QString clip = MakeClip("clip.mp4", 60);
    bool decoded = false;
    Lefts(m_service, clip, {9, 16}, decoded);
    ASSERT_TRUE(decoded);
    const std::vector<double> fromRecord = Lefts(m_service, clip, {1, 1}, decoded);
    EXPECT_FALSE(decoded);
    KxAutoReframeService fresh;
    EXPECT_EQ(fromRecord, Lefts(fresh, clip, {1, 1}, decoded));
    EXPECT_TRUE(decoded);
}

TEST_F(KxAutoReframeServiceRecords, AFileThatWasReplacedIsLookedAtAgain)
{
    const QString clip = MakeClip("clip.mp4", 60);
    bool decoded = false;
    Lefts(m_service, clip, {9, 16}, decoded);
    EXPECT_EQ(MakeClip("clip.mp4", 50), clip);
    EXPECT_EQ(Lefts(m_service, clip, {9, 16}, decoded).size(), 50U);
    EXPECT_TRUE(decoded);
}

TEST_F(KxAutoReframeServiceRecords, ARecordInTheFolderServesTheNextProgram)
{
    const QString clip = MakeClip("clip.mp4", 60);
    const QString folder = m_folder.filePath(QStringLiteral("records"));
    m_service.SetRecordFolder(folder);
    bool decoded = false;
    const std::vector<double> first = Lefts(m_service, clip, {9, 16}, decoded);
    KxAutoReframeService next;
    next.SetRecordFolder(folder);
    EXPECT_EQ(Lefts(next, clip, {9, 16}, decoded), first);
    EXPECT_FALSE(decoded);
}

TEST_F(KxAutoReframeServiceRecords, AnAnalysisThatWasStoppedLeavesNoRecord)
{
    const QString clip = MakeClip("clip.mp4", 400);
    {
        EventRecorder recorder(m_service);
        ASSERT_TRUE(m_service.StartTask(clip, m_param));
        ASSERT_TRUE(recorder.WaitForRunning());
        m_service.StopTask(0);
    }
    bool decoded = false;
    EXPECT_EQ(Lefts(m_service, clip, {9, 16}, decoded).size(), 400U);
    EXPECT_TRUE(decoded);
}

TEST_F(KxAutoReframeServiceRecords, AVideoIsKnownOnceItWasAnalysed)
{
    const QString clip = MakeClip("clip.mp4", 40);
    EXPECT_FALSE(m_service.IsKnown(clip));
    bool decoded = false;
    Lefts(m_service, clip, {9, 16}, decoded);
    EXPECT_TRUE(m_service.IsKnown(clip));
    EXPECT_FALSE(m_service.IsKnown(m_folder.filePath(QStringLiteral("missing.mp4"))));
}
