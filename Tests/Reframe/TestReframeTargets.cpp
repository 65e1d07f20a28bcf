#include <Apps/CropTracks/CropTrackFile.h>
#include <Apps/Reframe/ReframeTargets.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

class ReframeTargetsTest : public testing::Test
{
protected:
    ReframeTargetsTest()
    {
        m_options.inputs = QStringList{Path(QStringLiteral("a.b.mkv"))};
        WriteFile(QStringLiteral("a.b.mkv"), "a video");
    }
    QString Path(const QString& name) const { return QDir(m_folder.path()).filePath(name); }
    void WriteFile(const QString& name, const QByteArray& content) const
    {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }
    /// A crop track that stores this text.
    void WriteTrack(const QString& name, const QString& run) const
    {
        CropTrack track;
        track.madeBy = run;
        track.crops = {IKxAutoReframeResult(0, QRectF(0.0, 0.0, 0.5, 1.0))};
        WriteFile(name, CropTrackFile::Format(track, name));
    }
    ReframeTask Task() const { return {m_options.inputs.first(), QSize(9, 16), std::nullopt, false}; }
    ReframeTargets Targets() const { return {Task(), m_options, m_written}; }

    QTemporaryDir m_folder;
    ReframeOptions m_options;
    QStringList m_written;
};

TEST_F(ReframeTargetsTest, NamesAreThoseOfTheInputWithTheAspectRatio)
{
    m_options.keyframes = m_folder.path();
    m_options.preview = Path(QStringLiteral("sheet.PNG"));
    const ReframeTargets targets = Targets();
    EXPECT_EQ(targets.Video(), Path(QStringLiteral("a.b-AutoReframe-9 16.mp4")));
    EXPECT_EQ(targets.Keyframes(), Path(QStringLiteral("a.b-AutoReframe-9 16.json")));
    EXPECT_EQ(targets.Preview(), Path(QStringLiteral("sheet.PNG")));
    EXPECT_EQ(targets.All(), (QStringList{targets.Keyframes(), targets.Preview(), targets.Video()}));
    m_options.saveChoices = Path(QStringLiteral("choices.json"));
    m_options.editLists = QStringList{QStringLiteral("mlt")};
    m_options.report = m_folder.path();
    EXPECT_EQ(targets.All(),
              (QStringList{targets.Choices(), targets.Keyframes(), targets.EditList(QStringLiteral("mlt")),
                           targets.Report(), targets.Preview(), targets.Video()}));
}

TEST_F(ReframeTargetsTest, APartHasItsFramesInItsName)
{
    ReframeTask task = Task();
    task.frames = KxFrameRange{100, 200};
    EXPECT_EQ(ReframeTargets(task, m_options, m_written).Video(),
              Path(QStringLiteral("a.b-AutoReframe-9 16 100-199.mp4")));
    task.makesPictures = true;
    const ReframeTargets pictures(task, m_options, m_written);
    EXPECT_EQ(pictures.All(), QStringList(Path(QStringLiteral("a.b-AutoReframe 100-199.pictures"))));
}

TEST_F(ReframeTargetsTest, AnEditListThatIsASuffixIsBesideTheVideo)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("out")));
    m_options.output = Path(QStringLiteral("out"));
    EXPECT_EQ(Targets().EditList(QStringLiteral("MLT")), Path(QStringLiteral("out/a.b-AutoReframe-9 16.mlt")));
    EXPECT_EQ(Targets().EditList(QStringLiteral("x.mlt")), QStringLiteral("x.mlt"));
    m_options.output = Path(QStringLiteral("out/video.mp4"));
    EXPECT_EQ(Targets().EditList(QStringLiteral("mlt")), Path(QStringLiteral("a.b-AutoReframe-9 16.mlt")));
}

TEST_F(ReframeTargetsTest, OnlyOtherRunsAreOverwritten)
{
    const QString video = Targets().Video();
    EXPECT_EQ(Targets().WhenItExists(video), KxOutputFile::Existing::AddNumber);
    m_options.overwrites = true;
    EXPECT_EQ(Targets().WhenItExists(video), KxOutputFile::Existing::Replace);
    m_written = QStringList{video};
    EXPECT_EQ(Targets().WhenItExists(video), KxOutputFile::Existing::AddNumber);
}

TEST_F(ReframeTargetsTest, AnInputIsReplacedByNothing)
{
    m_options.overwrites = true;
    EXPECT_TRUE(Targets().WouldReplaceInput(m_options.inputs.first()));
    EXPECT_FALSE(Targets().WouldReplaceInput(Targets().Video()));
    m_options.parts = QStringList{Path(QStringLiteral("part.pictures"))};
    EXPECT_FALSE(Targets().WouldReplaceInput(m_options.parts.first())) << "it is not there";
    WriteFile(QStringLiteral("part.pictures"), "a part");
    EXPECT_TRUE(Targets().WouldReplaceInput(m_options.parts.first()));
    m_options.overwrites = false; // A number is added.
    EXPECT_FALSE(Targets().WouldReplaceInput(m_options.inputs.first()));
}

TEST_F(ReframeTargetsTest, ResultsAreUpToDateIfTheyStoreThisRun)
{
    m_options.keyframes = Path(QStringLiteral("a.json"));
    m_options.writesVideo = false;
    EXPECT_FALSE(Targets().AreUpToDate());
    WriteTrack(QStringLiteral("a.json"), Targets().Run().OfTask());
    EXPECT_TRUE(Targets().AreUpToDate());
    m_options.editLists = QStringList{QStringLiteral("mlt")};
    EXPECT_FALSE(Targets().AreUpToDate()) << "the edit list is missing";
    WriteFile(QStringLiteral("a.b-AutoReframe-9 16.mlt"), "an edit list");
    EXPECT_TRUE(Targets().AreUpToDate());
    m_options.farm.settings = "other settings";
    EXPECT_FALSE(Targets().AreUpToDate());
    m_options.keyframes.clear();
    EXPECT_FALSE(Targets().AreUpToDate());
}

TEST_F(ReframeTargetsTest, ResultsOfThisInputKeepTheirNumberAndAreReplaced)
{
    m_options.keyframes = Path(QStringLiteral("a.json"));
    m_options.writesVideo = false;
    m_options.farm.ifNeeded = true;
    const QString second = Path(QStringLiteral("a (2).json"));
    WriteTrack(QStringLiteral("a.json"), QStringLiteral("a run with another input"));
    EXPECT_EQ(Targets().Keyframes(), second);
    EXPECT_EQ(Targets().WhenItExists(m_options.keyframes), KxOutputFile::Existing::AddNumber);
    WriteTrack(QStringLiteral("a (2).json"), QStringLiteral("other settings ") + Targets().Run().OfTask());
    EXPECT_EQ(Targets().Keyframes(), second);
    EXPECT_EQ(Targets().WhenItExists(second), KxOutputFile::Existing::Replace);
    EXPECT_FALSE(Targets().AreUpToDate());
    m_options.saveChoices = Path(QStringLiteral("c.json"));
    EXPECT_EQ(Targets().Choices(), Path(QStringLiteral("c (2).json")));
    EXPECT_EQ(Targets().EditList(Path(QStringLiteral("e.mlt"))), Path(QStringLiteral("e (2).mlt")));
    m_options.farm.ifNeeded = false;
    EXPECT_EQ(Targets().WhenItExists(second), KxOutputFile::Existing::AddNumber);
}

TEST_F(ReframeTargetsTest, WithoutTheInputNothingIsKnownToBeItsResult)
{
    m_options.keyframes = Path(QStringLiteral("a.json"));
    m_options.farm.ifNeeded = true;
    WriteTrack(QStringLiteral("a.json"), QStringLiteral("a run with some input"));
    ASSERT_TRUE(QFile::remove(m_options.inputs.first()));
    EXPECT_EQ(Targets().WhenItExists(m_options.keyframes), KxOutputFile::Existing::AddNumber);
}

} // namespace
