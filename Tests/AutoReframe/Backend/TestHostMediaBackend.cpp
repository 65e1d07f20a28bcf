#include <Apps/AutoReframe/Backend/HostMediaBackend.h>
#include <KxWidgets/Windows/KxMessageResponder.h>
#include <Tests/Support/MadeVideo.h>

#include <KrAutoReframe/KrAutoReframeDialog.h>

#include <QApplication>
#include <QFileDialog>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace
{

class TestHostMediaBackend : public testing::Test
{
protected:
    QString MakeClip(const QString& name)
    {
        MadeVideo::Recipe recipe;
        recipe.size = QSize(192, 108);
        recipe.frames = 50;
        const QString path = m_folder.filePath(name);
        EXPECT_TRUE(MadeVideo::Make(path, recipe));
        return path;
    }

    QTemporaryDir m_folder;
    HostMediaBackend m_backend;
};

} // namespace

TEST_F(TestHostMediaBackend, OpensAVideoWithItsFacts)
{
    const KxResult<MediaFile> media = m_backend.Open(MakeClip(QStringLiteral("clip.mp4")), KxCancelToken());
    ASSERT_TRUE(media) << media.Message().toStdString();
    EXPECT_EQ(media->resolution, QSize(192, 108));
    EXPECT_EQ(media->frameCount, 50);
    EXPECT_EQ(media->frameRate, (KxRational{25, 1}));
}

TEST_F(TestHostMediaBackend, AnErrorNamesTheFileAndTheReason)
{
    const QString sound = m_folder.filePath(QStringLiteral("tone.wav"));
    ASSERT_TRUE(MadeVideo::RunFfmpeg({QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                                      QStringLiteral("sine=duration=1"), sound}));
    EXPECT_EQ(m_backend.Open(sound, KxCancelToken()).Message(),
              QStringLiteral("Cannot open tone.wav: it has no moving picture."));
    EXPECT_TRUE(m_backend.Open(m_folder.path(), KxCancelToken()).Message().endsWith(QLatin1String("it is a folder.")));
}

TEST_F(TestHostMediaBackend, TheDialogsFileChooserRefusesSoundAloneWithTheReasonAndStaysOpen)
{
    const QString sound = m_folder.filePath(QStringLiteral("sound.mp4"));
    ASSERT_TRUE(MadeVideo::RunFfmpeg({QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                                      QStringLiteral("sine=duration=1"), sound}));
    const QString video = MakeClip(QStringLiteral("video.mp4"));
    KxResult<MediaFile> media = m_backend.Open(video, KxCancelToken());
    ASSERT_TRUE(media);
    QStringList boxes;
    KrMessageDialog::SetResponder([&boxes](const KrMessageDialog::Shown& shown) {
        boxes += shown.text;
        return true;
    });
    bool staysOpen = false;
    QTimer::singleShot(0, qApp, [&] {
        auto* const dialog = qobject_cast<KrAutoReframeDialog*>(QApplication::activeModalWidget());
        QTimer::singleShot(0, qApp, [&] {
            auto* const chooser = QApplication::activeModalWidget()->findChild<QFileDialog*>();
            chooser->setDirectory(m_folder.path());
            chooser->selectFile(sound);
            QMetaObject::invokeMethod(chooser, "accept");
            staysOpen = chooser->isVisible();
            QMetaObject::invokeMethod(chooser, "reject");
        });
        dialog->slotOpenImportDialog();
        dialog->close();
    });
    QWidget parent;
    m_backend.Reframe(*media, parent, {});
    KrMessageDialog::SetResponder({});
    EXPECT_TRUE(staysOpen);
    ASSERT_FALSE(boxes.isEmpty());
    EXPECT_EQ(boxes.first(), QStringLiteral("Cannot open sound.mp4: it has no moving picture."));
}

TEST_F(TestHostMediaBackend, MakesAThumbnailThatFits)
{
    QImage thumbnail;
    m_backend.RequestThumbnail(MakeClip(QStringLiteral("clip.mp4")), QSize(96, 96),
                               [&thumbnail](const QImage& picture) { thumbnail = picture; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return !thumbnail.isNull(); }, 20000));
    EXPECT_EQ(thumbnail.size(), QSize(96, 54));
}

TEST_F(TestHostMediaBackend, ACancelledThumbnailIsNotDelivered)
{
    int delivered = 0;
    const QString clip = MakeClip(QStringLiteral("clip.mp4"));
    const quint64 first = m_backend.RequestThumbnail(clip, QSize(96, 96), [&](const QImage&) { delivered += 10; });
    m_backend.CancelThumbnail(first);
    m_backend.RequestThumbnail(clip, QSize(96, 96), [&](const QImage&) { delivered += 1; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return delivered > 0; }, 20000));
    EXPECT_EQ(delivered, 1);
}

TEST_F(TestHostMediaBackend, ImportPatternsIncludeMp4)
{
    EXPECT_TRUE(m_backend.ImportPatterns().split(QLatin1Char(';')).contains(QStringLiteral("*.mp4")));
}

TEST_F(TestHostMediaBackend, NamesTheVersionsOfItsLibraries)
{
    const QRegularExpression version(QStringLiteral("^(FFmpeg|OpenCV) \\d+\\.\\d+"));
    ASSERT_EQ(m_backend.LibraryVersions().size(), 2);
    for (const QString& library : m_backend.LibraryVersions()) {
        EXPECT_TRUE(version.match(library).hasMatch()) << library.toStdString();
    }
}
