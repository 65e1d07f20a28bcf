#include <Tests/KxCore/OutputFileTest.h>

#include <KxCore/KxOutputFile.h>

#include <QDateTime>

TEST_F(KxOutputFileTest, TheNameAppearsOnlyOnCommit)
{
    auto output = KxOutputFile::Create(Path("a.txt"));
    ASSERT_TRUE(output);
    EXPECT_FALSE(QFile::exists(Path("a.txt")));
    EXPECT_TRUE(QFile::exists((*output)->TemporaryPath()));
    const auto written = (*output)->Commit(KxOutputFile::Existing::AddNumber);
    ASSERT_TRUE(written);
    EXPECT_EQ(*written, Path("a.txt"));
    EXPECT_EQ(Files(), QStringList(QStringLiteral("a.txt")));
}

TEST_F(KxOutputFileTest, LeavesNothingBehindWithoutCommit)
{
    ASSERT_TRUE(KxOutputFile::Create(Path("a.txt")));
    EXPECT_TRUE(Files().isEmpty());
}

TEST_F(KxOutputFileTest, AddsANumberWhenTheNameIsTaken)
{
    for (const char* expected : {"clip 9 16.mp4", "clip 9 16 (2).mp4", "clip 9 16 (3).mp4"}) {
        const auto written =
            KxOutputFile::Write(Path("clip 9 16.mp4"), QByteArray(expected), KxOutputFile::Existing::AddNumber);
        ASSERT_TRUE(written);
        EXPECT_EQ(*written, Path(expected));
    }
    EXPECT_EQ(Content(Path("clip 9 16.mp4")), QByteArray("clip 9 16.mp4"));
    EXPECT_EQ(Content(Path("clip 9 16 (3).mp4")), QByteArray("clip 9 16 (3).mp4"));
    EXPECT_EQ(Files().size(), 3);
}

TEST_F(KxOutputFileTest, ANameTakenAfterTheStartIsNotOverwritten)
{
    auto output = KxOutputFile::Create(Path("a"));
    ASSERT_TRUE(output);
    ASSERT_TRUE(KxOutputFile::Write(Path("a"), "other", KxOutputFile::Existing::AddNumber));
    const auto written = (*output)->Commit(KxOutputFile::Existing::AddNumber);
    ASSERT_TRUE(written);
    EXPECT_EQ(*written, Path("a (2)"));
    EXPECT_EQ(Content(Path("a")), QByteArray("other"));
}

TEST_F(KxOutputFileTest, ReplacesWhenAsked)
{
    ASSERT_TRUE(KxOutputFile::Write(Path("a.txt"), "old", KxOutputFile::Existing::AddNumber));
    const auto written = KxOutputFile::Write(Path("a.txt"), "new", KxOutputFile::Existing::Replace);
    ASSERT_TRUE(written);
    EXPECT_EQ(Content(Path("a.txt")), QByteArray("new"));
    EXPECT_EQ(Files().size(), 1);
}

TEST_F(KxOutputFileTest, NamesTheFileAndTheReasonWhenItCannotWrite)
{
    const auto noFolder = KxOutputFile::Create(Path("no/such/a.txt"));
    ASSERT_FALSE(noFolder);
    EXPECT_TRUE(noFolder.Message().contains(QStringLiteral("a.txt: the folder"))) << noFolder.Message().toStdString();

    ASSERT_TRUE(KxOutputFile::Write(Path("file"), "x", KxOutputFile::Existing::Replace));
    const auto inFile = KxOutputFile::Create(Path("file/a.txt"));
    ASSERT_FALSE(inFile);
    EXPECT_TRUE(inFile.Message().endsWith(QStringLiteral("is not a folder."))) << inFile.Message().toStdString();

    QDir(m_folder.path()).mkdir(QStringLiteral("folder"));
    const auto onFolder = KxOutputFile::Create(Path("folder"));
    ASSERT_FALSE(onFolder);
    EXPECT_TRUE(onFolder.Message().endsWith(QStringLiteral("folder: it is a folder.")))
        << onFolder.Message().toStdString();
}

TEST_F(KxOutputFileTest, ANameThatIsTooLongIsReportedAtOnce)
{
    const auto output = KxOutputFile::Create(Path(QByteArray(300, 'a').constData()));
    ASSERT_FALSE(output);
    EXPECT_TRUE(output.Message().endsWith(QStringLiteral("aaa: its name is too long.")))
        << output.Message().toStdString();
}

TEST_F(KxOutputFileTest, APlaceMarkerInANameIsKept)
{
    for (const char* expected : {"50%1.mp4", "50%1 (2).mp4", "50%1 (3).mp4"}) {
        const auto written = KxOutputFile::Write(Path("50%1.mp4"), "x", KxOutputFile::Existing::AddNumber);
        ASSERT_TRUE(written) << written.Message().toStdString();
        EXPECT_EQ(*written, Path(expected));
    }
}

TEST_F(KxOutputFileTest, TheNextWriterRemovesThePartOfAKilledOne)
{
    QFile dead(Path(".auto-reframe-dEaDpa.part"));
    ASSERT_TRUE(dead.open(QIODevice::WriteOnly));
    dead.close();
    const auto output = KxOutputFile::Create(Path("a.txt"));
    ASSERT_TRUE(output);
    EXPECT_FALSE(dead.exists());
    EXPECT_TRUE(QFile::exists((*output)->TemporaryPath()));
}

TEST_F(KxOutputFileTest, ThePartOfARunningWriterIsKept)
{
    const auto living = KxOutputFile::Create(Path("a.txt"));
    ASSERT_TRUE(living);
    {
        // Opening and closing the part must not release the writer's lock.
        QFile part((*living)->TemporaryPath());
        ASSERT_TRUE(part.open(QIODevice::WriteOnly));
    }
    const auto other = KxOutputFile::Create(Path("b.txt"));
    ASSERT_TRUE(other);
    EXPECT_TRUE(QFile::exists((*living)->TemporaryPath()));
    ASSERT_TRUE((*living)->Commit(KxOutputFile::Existing::AddNumber));
}

TEST_F(KxOutputFileTest, FindsWhatAKilledProcessHadCommitted)
{
    using Existing = KxOutputFile::Existing;
    const qint64 begunAtMs = 1700000000000;
    const auto write = [&](const char* name, const QByteArray& content, qint64 ms) {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
        ASSERT_TRUE(file.flush());
        ASSERT_TRUE(file.setFileTime(QDateTime::fromMSecsSinceEpoch(begunAtMs + ms), QFile::FileModificationTime));
    };
    EXPECT_TRUE(KxOutputFile::FindCommitted(Path("a.mp4"), Existing::AddNumber, begunAtMs).isEmpty());
    write("a.mp4", "before", -1000);
    write("a (2).mp4", "", 1000);
    EXPECT_TRUE(KxOutputFile::FindCommitted(Path("a.mp4"), Existing::AddNumber, begunAtMs).isEmpty());
    write("a (3).mp4", "after", 1000);
    EXPECT_EQ(KxOutputFile::FindCommitted(Path("a.mp4"), Existing::AddNumber, begunAtMs), Path("a (3).mp4"));
    EXPECT_TRUE(KxOutputFile::FindCommitted(Path("a.mp4"), Existing::Replace, begunAtMs).isEmpty());
    write("a.mp4", "replaced", 0);
    EXPECT_EQ(KxOutputFile::FindCommitted(Path("a.mp4"), Existing::Replace, begunAtMs), Path("a.mp4"));
}
