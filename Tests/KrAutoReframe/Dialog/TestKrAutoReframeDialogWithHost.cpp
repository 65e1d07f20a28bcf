#include <KrAutoReframe/Dialog/KrAutoReframeExportDlg.h>
#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>
#include <KrAutoReframe/Engine/KrAutoReframeProcess.h>
#include <KrAutoReframe/Player/KrAutoReframePlayerView.h>
#include <KrAutoReframe/Player/ShadowForm.h>
#include <KxModel/KxSimpleTimeline.h>
#include <Tests/KrAutoReframe/Dialog/Recorders.h>
#include <Tests/KrAutoReframe/WidgetProbe.h>
#include <Tests/Support/Eventually.h>
#include <Tests/Support/MadeVideo.h>

#include <KrAutoReframe/KrAutoReframeDialog.h>
#include <KxModel/IKxAbstractMedia.h>
#include <KxModel/IKxAutoReframeService.h>
#include <KxModel/IKxKeyFrameHelper.h>
#include <KxPlayer/KxMediaPlayerPresenter.h>
#include <KxPlayer/KxMediaPlayerWidget.h>
#include <KxWidgets/KxOpenFileLineEdit.h>
#include <KxWidgets/KxProgressDialog.h>

#include <QApplication>
#include <QLabel>
#include <QtTest>

#include <gtest/gtest.h>

#include <memory>

using namespace WidgetProbe;

namespace
{

constexpr int FrameCount = 60;
constexpr int WaitMs = 60000;

/// The host's real libraries, and a clip of this test.
class DialogWithHostTest : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        folder = std::make_unique<QTemporaryDir>();
        MadeVideo::Recipe recipe;
        recipe.frames = FrameCount;
        recipe.inputs = QStringList{QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                                    QStringLiteral("sine=frequency=440:duration=2.4")};
        ASSERT_TRUE(MadeVideo::Make(ClipPath(), recipe));
    }
    static void TearDownTestSuite() { folder.reset(); }

    ~DialogWithHostTest() override
    {
        dialog.reset();
        releaseMediaItem(item);
        KxSimpleTimeline::ReleaseAll();
    }

    static QString ClipPath() { return folder->filePath(QStringLiteral("clip.mp4")); }

    void Open(const QString& path = ClipPath())
    {
        item = createMediaItem(path);
        ASSERT_NE(item, nullptr);
        dialog = std::make_unique<KrAutoReframeDialog>(nullptr);
        helper = dialog->findChild<KrAutoReframeProcess*>()->GetHelper();
        view = dialog->findChild<KrAutoReframePlayerView*>();
        presenter = view->findChild<KxMediaPlayerWidget*>()->getOrCreatePresenter();
        overlay = view->findChild<ShadowForm*>();
        progress = dialog->findChild<KxProgressDialog*>();
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
        dialog->InitMediaItem({item});
    }

    /// A video that was not analyzed before: those are known at once.
    static QString MakeUnknown(int frames)
    {
        const QString path = folder->filePath(QStringLiteral("%1 frames.mp4").arg(frames));
        MadeVideo::Recipe recipe;
        recipe.frames = frames;
        EXPECT_TRUE(MadeVideo::Make(path, recipe));
        return path;
    }

    void Analyse(int frames = FrameCount)
    {
        QTimer::singleShot(WaitMs, progress, &QDialog::reject);
        dialog->slotStartAnalysis();
        ASSERT_TRUE(recorders.boxes.empty()) << recorders.BoxTexts().join(QLatin1Char('\n')).toStdString();
        ASSERT_EQ(helper->GetResults().size(), frames);
        ASSERT_TRUE(overlay->isVisible());
    }

    void ShowFrame(int frame)
    {
        presenter->pause();
        presenter->seek(frame, 0, 0);
        ASSERT_EVENTUALLY_EQ(presenter->currentFrame(), frame);
    }

    /// Drags the crop by that many pixels to the right.
    void DragCrop(int pixels)
    {
        const QLabel& picture = *overlay->GetPictureLabel();
        const QRectF crop = overlay->GetCropRect();
        const QPoint grip = picture.pos() + QPoint(qRound(crop.center().x() * picture.width()), picture.height() / 2);
        Press(*overlay, grip);
        const int direction = pixels < 0 ? -1 : 1;
        for (int step = 1; step <= qAbs(pixels); ++step) {
            MoveHeld(*overlay, grip + QPoint(direction * step, 0));
        }
        Release(*overlay, grip + QPoint(pixels, 0));
    }

    static std::unique_ptr<QTemporaryDir> folder;

    Recorders recorders;
    IKxAbstractMediaItem* item = nullptr;
    std::unique_ptr<KrAutoReframeDialog> dialog;
    std::shared_ptr<KrAutoReframeHelper> helper;
    KrAutoReframePlayerView* view = nullptr;
    KxMediaPlayerPresenter* presenter = nullptr;
    ShadowForm* overlay = nullptr;
    KxProgressDialog* progress = nullptr;
};

std::unique_ptr<QTemporaryDir> DialogWithHostTest::folder;

QRectF KeyFrameAt(IKxTimeline* timeline, qint64 frame)
{
    auto* const keyFrames = dynamic_cast<IKxCropPanZoomKeyFrameHelper*>(
        timeline->clips().first()->keyFrameHelper(IKxKeyFrameHelper::CropPanZoom));
    KxCropPanZoomKeyFrameParam param;
    return keyFrames->interpolatedParam(frame, &param) ? param.cropRect : QRectF();
}

} // namespace

TEST_F(DialogWithHostTest, FromTheFileToTheExport)
{
    Open();
    Analyse();
    ShowFrame(20);
    const double before = overlay->GetCropRect().x();
    DragCrop(before > 0.3 ? -90 : 90);
    ASSERT_EQ(helper->GetEditPointFrames(), QList<uint>{20});
    const QRectF moved = overlay->GetCropRect();
    EXPECT_GT(qAbs(moved.x() - before), 0.05);

    QVariantMap record;
    QRectF exportedCrop;
    QSize exportedSize;
    QObject::connect(dialog.get(), &KrAutoReframeDialog::sigExportToLocal, dialog.get(),
                     [&](IKxTimeline* timeline, const QList<IKxAbstractMedia*>& media, const QVariant& info) {
                         EXPECT_EQ(media, QList<IKxAbstractMedia*>{item});
                         record = info.toMap();
                         exportedCrop = KeyFrameAt(timeline, 20);
                         exportedSize = timeline->projectSettings().resolution;
                     });
    QTimer::singleShot(0, dialog.get(), [this] {
        auto* const asks = qobject_cast<KrAutoReframeExportDlg*>(QApplication::activeModalWidget());
        ASSERT_NE(asks, nullptr);
        asks->findChild<KxOpenFileLineEdit*>()->SetText(recorders.folder.path());
        asks->slotExportButtonClicked();
    });
    dialog->slotExportToLocal();
    EXPECT_EQ(record.value(QStringLiteral("name")).toString(), QStringLiteral("clip-AutoReframe-9 16"));
    EXPECT_EQ(record.value(QStringLiteral("src_resolution")).toSize(), QSize(160, 96));
    EXPECT_EQ(record.value(QStringLiteral("resolution")).toSize(), QSize(54, 96));
    EXPECT_EQ(record.value(QStringLiteral("frame_rate")).toFloat(), 25.0F);
    EXPECT_EQ(record.value(QStringLiteral("duration")).toInt(), FrameCount);
    EXPECT_EQ(record.value(QStringLiteral("src_duration")).toInt(), FrameCount);
    EXPECT_EQ(record.value(QStringLiteral("adjust_frames")).toInt(), 1);
    EXPECT_EQ(record.value(QStringLiteral("track_ratio")).toInt(), 2);
    EXPECT_EQ(exportedSize, QSize(54, 96));
    EXPECT_EQ(exportedCrop, moved);
}

TEST_F(DialogWithHostTest, TheSwitchShowsTheReframedVideoAtTheSameFrame)
{
    Open();
    Analyse();
    ShowFrame(33);
    dialog->slotPreviewMode(false);
    EXPECT_FALSE(overlay->isVisible());
    ASSERT_EVENTUALLY_EQ(presenter->currentFrame(), 33);
    dialog->slotPreviewMode(true);
    EXPECT_TRUE(overlay->isVisible());
    ASSERT_EVENTUALLY_EQ(presenter->currentFrame(), 33);
}

TEST_F(DialogWithHostTest, CancelledAtOnceItCanStartAgain)
{
    constexpr int frames = 4 * FrameCount;
    Open(MakeUnknown(frames));
    QTimer::singleShot(0, progress, &QDialog::reject);
    dialog->slotStartAnalysis();
    EXPECT_TRUE(helper->GetResults().isEmpty());
    EXPECT_TRUE(recorders.boxes.empty());
    Analyse(frames);
}

TEST_F(DialogWithHostTest, CanBeDestroyedWhileItAnalyses)
{
    const QString unknown = MakeUnknown(5 * FrameCount);
    Open(unknown);
    helper.reset();
    QTimer::singleShot(0, qApp, [this] { dialog.reset(); });
    dialog->slotStartAnalysis();
    EXPECT_EQ(dialog, nullptr);
    QList<IKxAutoReframeResult> results;
    EXPECT_LT(getAutoReframeService()->GetResults(unknown, &results), 0) << "the analysis was stopped";
}

TEST_F(DialogWithHostTest, CanBeDestroyedWhileItPlays)
{
    Open();
    Analyse();
    helper.reset();
    ASSERT_EVENTUALLY(presenter->currentFrame() > 2);
    dialog.reset();
    releaseMediaItem(item);
    item = nullptr;
}

TEST_F(DialogWithHostTest, AnImportedFileIsOpenedAndReleased)
{
    Open();
    const QString other = recorders.folder.filePath(QStringLiteral("other.MP4"));
    ASSERT_TRUE(QFile::copy(ClipPath(), other));
    recorders.chosen = QStringList{other};
    dialog->slotOpenImportDialog();
    EXPECT_EQ(helper->GetSourceTimeline()->clips().first()->filePath(), other);
    ASSERT_EQ(recorders.choosers.size(), 1u);
    EXPECT_TRUE(recorders.choosers.front().filter.startsWith(QStringLiteral("All supported files(*.mp4;")));
    EXPECT_FALSE(recorders.choosers.front().filter.contains(QStringLiteral("GIF"), Qt::CaseInsensitive));
    Analyse();
    recorders.chosen = QStringList{ClipPath()};
    dialog->slotOpenImportDialog();
    EXPECT_EQ(helper->GetSourceTimeline()->clips().first()->filePath(), ClipPath());
    EXPECT_FALSE(overlay->isVisible());
}
