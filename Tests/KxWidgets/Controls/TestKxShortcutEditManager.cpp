#include <KxWidgets/IKxShortcutEditManager.h>

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

class KxShortcutEditManagerTest : public testing::Test
{
protected:
    KxShortcutEditManagerTest() { qputenv("KX_CONFIG_FILE", path.toUtf8()); }

    void Write(const QByteArray& lines) const
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[Shortcuts]\n" + lines);
    }

    static std::string Sequence(int actionId)
    {
        return IKxShortcutEditManager::GetInstance()
            ->keySequence(actionId)
            .toString(QKeySequence::PortableText)
            .toStdString();
    }

    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("config.ini"));
};

TEST_F(KxShortcutEditManagerTest, Defaults)
{
    EXPECT_EQ(Sequence(1000), "Ctrl+Z");
    EXPECT_EQ(Sequence(1001), "Ctrl+Shift+Z");
    EXPECT_EQ(Sequence(1005), "Del");
    EXPECT_EQ(Sequence(3000), "Space");
    EXPECT_EQ(Sequence(3001), "Shift+Space");
    EXPECT_EQ(Sequence(3004), "Left");
    EXPECT_EQ(Sequence(3005), "Right");
    EXPECT_EQ(Sequence(3006), "Ctrl+Left");
    EXPECT_EQ(Sequence(3007), "Ctrl+Right");
}

TEST_F(KxShortcutEditManagerTest, UnknownActionHasNone)
{
    EXPECT_EQ(Sequence(4711), "");
}

TEST_F(KxShortcutEditManagerTest, TheFileChangesOneShortcutOnly)
{
    Write("1000=Ctrl+U\n");
    EXPECT_EQ(Sequence(1000), "Ctrl+U");
    EXPECT_EQ(Sequence(1001), "Ctrl+Shift+Z");
}

TEST_F(KxShortcutEditManagerTest, EmptyValueIsNone)
{
    Write("3000=\n");
    EXPECT_EQ(Sequence(3000), "");
}

TEST_F(KxShortcutEditManagerTest, TwoStrokesAndUnknownActionsAreRead)
{
    Write("1005=\"Ctrl+K, Ctrl+D\"\n3006=Ctrl+K, Ctrl+P\n4711=F7\n");
    EXPECT_EQ(Sequence(1005), "Ctrl+K, Ctrl+D");
    EXPECT_EQ(Sequence(3006), "Ctrl+K, Ctrl+P");
    EXPECT_EQ(Sequence(4711), "F7");
}

TEST_F(KxShortcutEditManagerTest, UnreadableValueCountsAsNotSet)
{
    Write("1000=Ctrl+Nonsense\n");
    EXPECT_EQ(Sequence(1000), "Ctrl+Z");
}

} // namespace
