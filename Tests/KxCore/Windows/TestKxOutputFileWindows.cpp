#include <Tests/KxCore/OutputFileTest.h>

#include <KxCore/KxDir.h>
#include <KxCore/KxOutputFile.h>

namespace
{

/// The reason in the message that no file of this name can be written.
QString ReasonNotToCreate(const QString& path)
{
    const auto output = KxOutputFile::Create(path);
    const QString begin = QStringLiteral("Cannot write %1: ").arg(path);
    if (output || !output.Message().startsWith(begin)) {
        return output ? QStringLiteral("possible") : output.Message();
    }
    return output.Message().mid(begin.size());
}

} // namespace

TEST_F(KxOutputFileTest, ImpossibleNamesAreReportedAtOnce)
{
    EXPECT_EQ(ReasonNotToCreate(Path("a?b.mp4")), QStringLiteral("a name cannot contain the character ?."));
    EXPECT_EQ(ReasonNotToCreate(m_folder.path() + QStringLiteral("/a:b.mp4")),
              QStringLiteral("a name cannot contain the character :."));
    EXPECT_EQ(ReasonNotToCreate(Path("nul.mp4")), QStringLiteral("nul is the name of a device."));
    EXPECT_EQ(ReasonNotToCreate(Path("clip.mp4.")), QStringLiteral("a name cannot end with a dot or a space."));
    EXPECT_TRUE(Files().isEmpty());
}

TEST_F(KxOutputFileTest, NamesOfAnyScriptAreWritten)
{
    for (const char* name : {"\xd0\x92\xd0\xb8\xd0\xb4\xd0\xb5\xd0\xbe.mp4",
                             "M\xc3\xbcller \xe4\xb8\xad\xe6\x96\x87.mp4", "\xf0\x9f\x8e\xa5.mp4"}) {
        const auto written = KxOutputFile::Write(Path(name), name, KxOutputFile::Existing::AddNumber);
        ASSERT_TRUE(written) << written.Message().toStdString();
        EXPECT_EQ(Content(Path(name)), QByteArray(name));
    }
}

TEST_F(KxOutputFileTest, APathOfMoreThan260CharactersIsWritten)
{
    const QString folder = Path(QByteArray(120, 'a').constData()) + QLatin1Char('/') + QString(120, QLatin1Char('b'));
    ASSERT_TRUE(QDir().mkpath(folder));
    const QString path = folder + QStringLiteral("/clip.mp4");
    ASSERT_GT(path.size(), 260);
    for (const char* content : {"first", "second"}) {
        const auto written = KxOutputFile::Write(path, content, KxOutputFile::Existing::Replace);
        ASSERT_TRUE(written) << written.Message().toStdString();
        EXPECT_EQ(Content(path), QByteArray(content));
    }
}

TEST_F(KxOutputFileTest, AFileThatAnotherProgramHasOpenIsNotReplaced)
{
    ASSERT_TRUE(KxOutputFile::Write(Path("a.txt"), "old", KxOutputFile::Existing::AddNumber));
    QFile open(Path("a.txt"));
    ASSERT_TRUE(open.open(QIODevice::ReadOnly));
    const auto written = KxOutputFile::Write(Path("a.txt"), "new", KxOutputFile::Existing::Replace);
    ASSERT_FALSE(written);
    EXPECT_EQ(written.Message(), QStringLiteral("Cannot write %1: another program has it open.").arg(Path("a.txt")));
    EXPECT_EQ(open.readAll(), QByteArray("old"));
    EXPECT_EQ(Files().size(), 1);
}
