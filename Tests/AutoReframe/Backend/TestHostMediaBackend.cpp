#include <Apps/AutoReframe/Backend/HostMediaBackend.h>
#include <KxModel/KxMediaItem.h>
#include <KxModel/KxSimpleTimeline.h>
#include <KxRender/KxRenderer.h>
#include <KxWidgets/Windows/KxMessageResponder.h>
#include <Tests/Support/MadeVideo.h>

#include <KrAutoReframe/KrAutoReframeDialog.h>

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <future>
#include <optional>

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

    /// With noise in AAC of 160 kb/s.
    QString MakeClipWithSound()
    {
        MadeVideo::Recipe recipe;
        recipe.size = QSize(192, 108);
        recipe.frames = 50;
        recipe.inputs = QStringList{QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                                    QStringLiteral("aevalsrc=0.2*random(0)-0.1:duration=2")};
        recipe.output =
            QStringList{QStringLiteral("-c:a"), QStringLiteral("aac"), QStringLiteral("-b:a"), QStringLiteral("160k")};
        QString path = m_folder.filePath(QStringLiteral("loud.mp4"));
        EXPECT_TRUE(MadeVideo::Make(path, recipe));
        return path;
    }
    /// What the dialog exports with a record of that bit rate for the sound; where it was written.
    QString Export(const QString& path, const QString& name, int audioBitRate)
    {
        KxResult<MediaFile> media = m_backend.Open(path, KxCancelToken());
        EXPECT_TRUE(media) << media.Message().toStdString();
        std::optional<ExportRequest> request;
        DialogCallbacks callbacks;
        callbacks.exportRequested = [&request](const ExportRequest& wanted) { request = wanted; };
        QTimer::singleShot(0, qApp, [&] {
            auto* const dialog = qobject_cast<KrAutoReframeDialog*>(QApplication::activeModalWidget());
            const QVariantMap record{{QStringLiteral("name"), name},
                                     {QStringLiteral("path"), m_folder.path()},
                                     {QStringLiteral("resolution"), QSize(60, 108)},
                                     {QStringLiteral("frame_rate"), 25.0F},
                                     {QStringLiteral("video_bit_rate"), 400000},
                                     {QStringLiteral("audio_bit_rate"), audioBitRate}};
            const auto* const clip = static_cast<const KxClip*>(static_cast<KxMediaItem&>(*media->item).clip());
            KxSimpleTimeline timeline(clip->Copy(KxClip::KeyFrames::Copied));
            QList<IKxAbstractMedia*> list;
            Q_EMIT dialog->sigExportToLocal(&timeline, list, record);
            dialog->close();
        });
        QWidget parent;
        m_backend.Reframe(*media, parent, callbacks);
        if (!request) {
            ADD_FAILURE() << "nothing was exported";
            return {};
        }
        std::promise<KxRenderResult> ended;
        const auto task =
            m_backend.Render(*request, {{}, [&ended](const KxRenderResult& result) { ended.set_value(result); }});
        const KxRenderResult result = ended.get_future().get();
        EXPECT_EQ(result.outcome, KxOutcome::Done) << result.message.toStdString();
        return result.outputPath;
    }
    /// The packets of the sound with nothing around them.
    QByteArray SoundPackets(const QString& path) const
    {
        const QString packets = path + QStringLiteral(".packets");
        EXPECT_TRUE(MadeVideo::RunFfmpeg({QStringLiteral("-i"), path, QStringLiteral("-map"), QStringLiteral("0:a"),
                                          QStringLiteral("-c"), QStringLiteral("copy"), QStringLiteral("-f"),
                                          QStringLiteral("adts"), packets}));
        QFile file(packets);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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

TEST_F(TestHostMediaBackend, TheDialogsExportCopiesTheSoundUnlessItsRecordAsksForLess)
{
    KrMessageDialog::SetResponder([](const KrMessageDialog::Shown&) { return true; });
    const QString clip = MakeClipWithSound();
    const QByteArray source = SoundPackets(clip);
    const QByteArray copied = SoundPackets(Export(clip, QStringLiteral("copied"), 192000));
    EXPECT_GT(copied.size(), 20000);
    EXPECT_TRUE(source.contains(copied));
    const QByteArray encoded = SoundPackets(Export(clip, QStringLiteral("encoded"), 96000));
    EXPECT_FALSE(source.contains(encoded));
    EXPECT_LT(encoded.size(), copied.size() * 3 / 4);
    KrMessageDialog::SetResponder({});
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
