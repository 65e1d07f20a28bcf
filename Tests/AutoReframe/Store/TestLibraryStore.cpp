#include <Apps/AutoReframe/Store/LibraryDatabase.h>
#include <Apps/AutoReframe/Store/LibraryStore.h>
#include <Tests/Support/TestSystem.h>

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace
{

StoredVideo Video(const QString& path)
{
    StoredVideo video;
    video.path = path;
    return video;
}

class TestLibraryStore : public testing::Test
{
protected:
    /// What is in the file, as another program sees it.
    StoredContents Saved() const
    {
        const KxResult<std::unique_ptr<LibraryDatabase>> opened = LibraryDatabase::Open(m_path);
        EXPECT_TRUE(opened) << opened.Message().toStdString();
        return *(*opened)->ReadContents();
    }
    static StoredContents WaitForContents(LibraryStore& store)
    {
        StoredContents contents;
        bool isOpened = false;
        QObject::connect(&store, &LibraryStore::sigOpened, &store, [&](const StoredContents& found) {
            contents = found;
            isOpened = true;
        });
        store.Open();
        EXPECT_TRUE(QTest::qWaitFor([&] { return isOpened; }, 30000));
        return contents;
    }
    static bool WaitUntilWritten(LibraryStore& store)
    {
        QSignalSpy written(&store, &LibraryStore::sigWritten);
        return written.wait(30000);
    }

    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(QStringLiteral("data/library.db"));
};

} // namespace

TEST_F(TestLibraryStore, StartsNoThreadBeforeItIsOpened)
{
    const int before = TestSystem::Threads();
    ASSERT_GT(before, 0);
    LibraryStore store(m_path, nullptr);
    EXPECT_EQ(TestSystem::Threads(), before);
    WaitForContents(store);
    EXPECT_GT(TestSystem::Threads(), before);
}

TEST_F(TestLibraryStore, WithoutAFileNothingIsSavedAndEverythingIsAnsweredAtOnce)
{
    LibraryStore store(QString(), nullptr);
    int opened = 0;
    QObject::connect(&store, &LibraryStore::sigOpened, &store, [&opened](const StoredContents&) { ++opened; });
    store.Open();
    EXPECT_EQ(opened, 1);
    store.SaveVideo(Video(QStringLiteral("/a.mp4")));
    int answers = 0;
    store.ReadThumbnail(QStringLiteral("/a.mp4"), [&answers](const QImage& picture) { answers += picture.isNull(); });
    EXPECT_EQ(answers, 1);
}

TEST_F(TestLibraryStore, ChangesAreWrittenWithoutAnEndOfTheProgram)
{
    LibraryStore store(m_path, nullptr);
    EXPECT_TRUE(WaitForContents(store).videos.isEmpty());
    store.SaveVideo(Video(QStringLiteral("/a.mp4")));
    VideoEdits edits;
    edits.editPoints = {{1, QRectF(0.0, 0.0, 0.5, 1.0)}};
    store.SaveEdits(QStringLiteral("/a.mp4"), edits);
    ASSERT_TRUE(WaitUntilWritten(store));
    const StoredContents saved = Saved();
    EXPECT_EQ(saved.videos.size(), 1);
    EXPECT_TRUE(saved.edits.value(QStringLiteral("/a.mp4")) == edits);
}

TEST_F(TestLibraryStore, TheDestructorWritesWhatIsWaiting)
{
    {
        LibraryStore store(m_path, nullptr);
        for (int i = 0; i < 200; ++i) {
            store.SaveVideo(Video(QStringLiteral("/%1.mp4").arg(i)));
        }
        store.RemoveVideo(QStringLiteral("/7.mp4"));
        store.SaveSelection({QStringLiteral("/3.mp4")});
        store.SaveRecentFolders({QStringLiteral("/day 2"), QStringLiteral("/day 1")});
        store.SaveBatchSettings("{\"speed\":8}");
        store.SaveScroll(321);
    }
    const StoredContents saved = Saved();
    EXPECT_EQ(saved.videos.size(), 199);
    EXPECT_EQ(saved.selection, QStringList(QStringLiteral("/3.mp4")));
    EXPECT_EQ(saved.recentFolders, QStringList({QStringLiteral("/day 2"), QStringLiteral("/day 1")}));
    EXPECT_EQ(saved.batchSettings, QByteArray("{\"speed\":8}"));
    EXPECT_EQ(saved.scrollPx, 321);
}

TEST_F(TestLibraryStore, AThumbnailComesBackInItsSize)
{
    QImage picture(188, 106, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    LibraryStore store(m_path, nullptr);
    store.SaveVideo(Video(QStringLiteral("/a.mp4")));
    store.SaveThumbnail(QStringLiteral("/a.mp4"), picture);
    std::optional<QImage> found;
    store.ReadThumbnail(QStringLiteral("/a.mp4"), [&found](const QImage& read) { found = read; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return found.has_value(); }, 30000));
    EXPECT_EQ(found->size(), QSize(188, 106));
    EXPECT_NEAR(QColor(found->pixel(90, 50)).green(), 128, 4);
}

TEST_F(TestLibraryStore, AnUnusableFileIsReportedOnceAndDoesNotStopTheProgram)
{
    QDir(m_folder.path()).mkpath(QStringLiteral("data/library.db"));
    LibraryStore store(m_path, nullptr);
    QStringList notices;
    QObject::connect(&store, &LibraryStore::sigNotice, &store, [&notices](const QString& text) { notices += text; });
    EXPECT_TRUE(WaitForContents(store).videos.isEmpty());
    store.SaveVideo(Video(QStringLiteral("/a.mp4")));
    bool isAnswered = false;
    store.ReadThumbnail(QStringLiteral("/a.mp4"),
                        [&isAnswered](const QImage& picture) { isAnswered = picture.isNull(); });
    ASSERT_TRUE(QTest::qWaitFor([&] { return isAnswered; }, 30000));
    EXPECT_EQ(notices,
              QStringList(QStringLiteral("Cannot open the library %1: it is not a regular file. What you do now is "
                                         "not saved.")
                              .arg(QDir::toNativeSeparators(m_path))));
}

TEST_F(TestLibraryStore, WhatAnotherProgramHoldsUpIsWrittenLater)
{
    LibraryStore store(m_path, nullptr);
    QStringList notices;
    QObject::connect(&store, &LibraryStore::sigNotice, &store, [&notices](const QString& text) { notices += text; });
    WaitForContents(store);
    LibraryConnection other(m_path);
    ASSERT_FALSE(other.Execute(QStringLiteral("BEGIN IMMEDIATE")));
    store.SaveVideo(Video(QStringLiteral("/a.mp4")));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !notices.isEmpty(); }, 60000));
    EXPECT_EQ(notices, QStringList(QStringLiteral("Cannot save the library %1: another program is using it.")
                                       .arg(QDir::toNativeSeparators(m_path))));
    ASSERT_FALSE(other.Execute(QStringLiteral("COMMIT")));
    const auto count = [&other] { return other.Value(QStringLiteral("SELECT count(*) FROM videos"))->toInt(); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return count() == 1; }, 60000));
    EXPECT_EQ(notices.size(), 1);
}

TEST_F(TestLibraryStore, OnceEverythingIsWrittenNothingIsTriedAgain)
{
    LibraryStore store(m_path, nullptr);
    const auto* const retry = store.findChild<QTimer*>();
    ASSERT_NE(retry, nullptr);
    WaitForContents(store);
    LibraryConnection other(m_path);
    ASSERT_FALSE(other.Execute(QStringLiteral("BEGIN IMMEDIATE")));
    QSignalSpy written(&store, &LibraryStore::sigWritten);
    store.SaveVideo(Video(QStringLiteral("/a.mp4")));
    ASSERT_TRUE(QTest::qWaitFor([&] { return retry->isActive(); }, 60000));
    ASSERT_FALSE(other.Execute(QStringLiteral("COMMIT")));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !written.isEmpty(); }, 60000));
    EXPECT_FALSE(retry->isActive());
}

TEST_F(TestLibraryStore, AChangeThatCannotBeWrittenDoesNotTakeOthersWithIt)
{
    {
        LibraryStore store(m_path, nullptr);
        WaitForContents(store);
        LibraryConnection other(m_path);
        ASSERT_FALSE(other.Execute(QStringLiteral("CREATE TRIGGER refuses BEFORE INSERT ON videos WHEN NEW.path = "
                                                  "'/bad.mp4' BEGIN SELECT raise(ABORT, 'refused'); END")));
        for (const char* const path : {"/a.mp4", "/bad.mp4", "/b.mp4"}) {
            store.SaveVideo(Video(QLatin1String(path)));
        }
    }
    const StoredContents saved = Saved();
    ASSERT_EQ(saved.videos.size(), 2);
    EXPECT_EQ(saved.videos[0].path, QStringLiteral("/a.mp4"));
    EXPECT_EQ(saved.videos[1].path, QStringLiteral("/b.mp4"));
}

TEST_F(TestLibraryStore, TheFileIsInTheFolderThatIsNamed)
{
    const QByteArray before = qgetenv("KX_DATA");
    qputenv("KX_DATA", "none");
    EXPECT_TRUE(LibraryStore::ChooseFile().isEmpty());
    qputenv("KX_DATA", "/some/folder");
    EXPECT_EQ(LibraryStore::ChooseFile(), QStringLiteral("/some/folder/library.db"));
    qunsetenv("KX_DATA");
    EXPECT_TRUE(LibraryStore::ChooseFile().endsWith(QStringLiteral("/auto-reframe/library.db")));
    qputenv("KX_DATA", before);
}
