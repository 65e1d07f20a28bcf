#include <Tests/KrAutoReframe/Dialog/DialogFixture.h>

#include <KxModel/IKxAbstractMedia.h>

#include <QStandardPaths>

namespace
{

class DialogImportTest : public DialogTest
{
protected:
    QString InFolder(const QString& name) const { return recorders.folder.filePath(name); }

    /// The person picks these files out of those that exist on the host.
    void Import(const QStringList& paths)
    {
        recorders.chosen = paths;
        QAbstractButton& import = PanelButton("KrAutoReframe_Import");
        (import.isHidden() ? PanelButton("KrAutoReframe_Replace") : import).click();
    }
};

} // namespace

TEST_F(DialogImportTest, AsksInTheFolderOfFilmsFirst)
{
    FakeHost::SetImportFilter(QStringLiteral("*.mp4;*.GIF;*.mov;*.gif;*.GIF"));
    Import({});
    ASSERT_EQ(recorders.choosers.size(), 1u);
    const KxFileDialog::Shown& shown = recorders.choosers.front();
    EXPECT_FALSE(shown.picksFolder);
    EXPECT_EQ(shown.caption, QStringLiteral("Open"));
    EXPECT_EQ(shown.filter, QStringLiteral("All supported files(*.mp4;*.mov;*.gif;);"));
    EXPECT_EQ(shown.folder, QStandardPaths::writableLocation(QStandardPaths::MoviesLocation));
}

TEST_F(DialogImportTest, ACancelledChoiceChangesNothing)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    IKxTimeline* const before = Helper().GetSourceTimeline();
    Analyse();
    Player().calls.clear();
    Import({});
    EXPECT_EQ(Player().calls, QStringList{QStringLiteral("pause")});
    EXPECT_EQ(Helper().GetSourceTimeline(), before);
    EXPECT_EQ(NameLabel().text(), QStringLiteral("clip.mp4"));
    EXPECT_TRUE(Export().isEnabled());
    EXPECT_TRUE(FakeHost::MediaCalls().isEmpty());
}

TEST_F(DialogImportTest, AFileBecomesTheSource)
{
    const QString path = InFolder(QStringLiteral("clip.MP4"));
    FakeHost::OfferFile(Video(path));
    Import({path, InFolder(QStringLiteral("ignored.mp4"))});
    EXPECT_EQ(NameLabel().text(), QStringLiteral("clip.MP4"));
    EXPECT_EQ(FakeHost::MediaCalls(),
              (QStringList{QStringLiteral("release nothing"), QStringLiteral("create %1").arg(path)}));
    EXPECT_TRUE(IsReadyToAnalyse());
    ASSERT_NE(Helper().GetSourceTimeline(), nullptr);
    EXPECT_EQ(Helper().GetSourceTimeline()->clips().first()->filePath(), path);
    EXPECT_TRUE(recorders.boxes.empty());

    Import({});
    EXPECT_EQ(recorders.choosers.back().folder, recorders.folder.path()) << "the next choice starts there";
}

TEST_F(DialogImportTest, TheItemBeforeIsReleased)
{
    const QString first = InFolder(QStringLiteral("first.mp4"));
    const QString second = InFolder(QStringLiteral("second.mp4"));
    FakeHost::OfferFile(Video(first));
    FakeHost::OfferFile(Video(second));
    Import({first});
    Import({second});
    EXPECT_EQ(NameLabel().text(), QStringLiteral("second.mp4"));
    Analyse();
    dialog.reset();
    EXPECT_EQ(FakeHost::MediaCalls(),
              (QStringList{QStringLiteral("release nothing"), QStringLiteral("create %1").arg(first),
                           QStringLiteral("release %1").arg(first), QStringLiteral("create %1").arg(second),
                           QStringLiteral("release %1").arg(second)}));
}

TEST_F(DialogImportTest, ImportedOverAnAnalysisItStartsOver)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    Analyse();
    ASSERT_TRUE(overlay->isVisible());
    const QString path = InFolder(QStringLiteral("next.mp4"));
    FakeHost::OfferFile(Video(path));
    Import({path});
    EXPECT_FALSE(overlay->isVisible());
    EXPECT_FALSE(Export().isEnabled());
    EXPECT_FALSE(Preview().isEnabled());
    EXPECT_FALSE(AnalyzeButton().isHidden());
    EXPECT_TRUE(Helper().GetResults().isEmpty());
}

TEST_F(DialogImportTest, ALinkIsRefusedAndTheSourceStays)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    IKxTimeline* const before = Helper().GetSourceTimeline();
    for (const QString& name :
         {QStringLiteral("link.URL"), QStringLiteral("link.url"), QStringLiteral("a.myUrlFile")}) {
        recorders.boxes.clear();
        Import({InFolder(name)});
        ASSERT_EQ(recorders.boxes.size(), 1u);
        EXPECT_EQ(recorders.boxes.front().text, QStringLiteral("Unknown error, please try again"));
        EXPECT_EQ(recorders.boxes.front().parent, dialog.get());
    }
    EXPECT_EQ(Helper().GetSourceTimeline(), before);
    EXPECT_EQ(NameLabel().text(), QStringLiteral("clip.mp4"));
    EXPECT_TRUE(FakeHost::MediaCalls().isEmpty());
    Import({});
    EXPECT_EQ(recorders.choosers.back().folder, QStandardPaths::writableLocation(QStandardPaths::MoviesLocation));
}

TEST_F(DialogImportTest, AFolderNamedLikeALinkIsNone)
{
    const QString path = InFolder(QStringLiteral("url.mp4"));
    FakeHost::OfferFile(Video(path));
    Import({path});
    EXPECT_TRUE(recorders.boxes.empty());
    EXPECT_EQ(NameLabel().text(), QStringLiteral("url.mp4"));
}

TEST_F(DialogImportTest, AnEmptyPathIsLeftAlone)
{
    Import({QString()});
    EXPECT_TRUE(FakeHost::MediaCalls().isEmpty());
    EXPECT_FALSE(IsReadyToAnalyse());
}

TEST_F(DialogImportTest, AFileThatCannotBeOpenedStillNamesTheDialog)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    IKxTimeline* const before = Helper().GetSourceTimeline();
    Analyse();
    Import({InFolder(QStringLiteral("broken.mp4"))});
    EXPECT_EQ(NameLabel().text(), QStringLiteral("broken.mp4"));
    EXPECT_EQ(Helper().GetSourceTimeline(), before);
    EXPECT_TRUE(IsReadyToAnalyse());
    EXPECT_FALSE(Export().isEnabled());
    EXPECT_TRUE(recorders.boxes.empty());
    dialog->resize(dialog->size() + QSize(20, 0));
    EXPECT_EQ(NameLabel().text(), QStringLiteral("broken.mp4"));
    recorders.events.clear();
    dialog->slotExportToLocal();
    EXPECT_TRUE(recorders.events.isEmpty());
    dialog.reset();
    EXPECT_EQ(FakeHost::MediaCalls().last(), QStringLiteral("release nothing"));
}
