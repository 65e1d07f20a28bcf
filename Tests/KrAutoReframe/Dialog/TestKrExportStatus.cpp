#include <KrAutoReframe/Engine/KrExportParameters.h>
#include <KrAutoReframe/Extensions/KrExportStatus.h>
#include <Tests/KrAutoReframe/Dialog/ExtendedDialogTest.h>

#include <KxModel/IKxTimeline.h>

#include <QComboBox>
#include <QProgressBar>

namespace
{

using State = KrAutoReframeExport::State;

class ReportingHost final : public StateKeeper, public KrAutoReframeExports
{
public:
    void ListenToExports(const Listener& listener) override { report = listener; }
    void ShowInFolder(const QString& filePath) override { shown.append(filePath); }

    Listener report;
    QStringList shown;
};

/// Offers the size of the crop and twice that.
class SizingHost final : public StateKeeper, public KrAutoReframeOutputs
{
public:
    QList<KrAutoReframeOutput> OutputsFor(const QSizeF& crop, const QSize& cropSize) override
    {
        lastCrop = crop;
        return {{QStringLiteral("Crop"), cropSize}, {QStringLiteral("Double"), 2 * cropSize}};
    }
    int ChosenOutput() const override { return chosen; }
    void ChooseOutput(int index) override { chosen = index; }

    QSizeF lastCrop;
    int chosen = 0;
};

class KrExportStatusTest : public DialogTest
{
protected:
    KrExportStatusTest()
    {
        Make(nullptr);
        dialog->SetExtensions(host);
        Load(Video(QStringLiteral("/v/clip.mp4")));
    }
    ~KrExportStatusTest() override { dialog.reset(); }

    QRectF TallCrop() const
    {
        const QSize video = view->VideoSize();
        return {0.2, 0.0, video.height() * 9.0 / 16.0 / video.width(), 1.0};
    }
    QSize TallSize() const { return KrExportParameters::EvenResolution(view->VideoSize(), TallCrop()); }
    /// The first frames show the whole picture.
    QList<IKxAutoReframeResult> TallResults(int whole) const
    {
        QList<IKxAutoReframeResult> results;
        for (qint64 frame = 0; frame < FrameCount; ++frame) {
            results.append({frame, frame < whole ? QRectF(0.0, 0.0, 1.0, 1.0) : TallCrop()});
        }
        return results;
    }

    KxLabel& Label(const char* name) const { return *panel->findChild<KxLabel*>(QLatin1String(name)); }
    QString OutputSize() const
    {
        const KxLabel& label = Label("KrAutoReframe_outputSize");
        return label.isVisibleTo(panel) ? label.text() : QString();
    }
    QString StateText() const
    {
        const KxLabel& label = Label("KrAutoReframe_exportState");
        return label.isVisibleTo(panel) ? label.text() : QString();
    }
    QProgressBar& Progress() const { return *panel->findChild<QProgressBar*>(); }
    QAbstractButton& ShowInFolder() const { return PanelButton("KrAutoReframe_showInFolder"); }

    ReportingHost host;
};

} // namespace

TEST_F(KrExportStatusTest, TheOutputSizeIsKnownBeforeTheExport)
{
    EXPECT_EQ(OutputSize(), QString());
    Analyse(TallResults(0));
    const QSize size = TallSize();
    EXPECT_EQ(OutputSize(),
              QStringLiteral("Output: %1 × %2").arg(QString::number(size.width()), QString::number(size.height())));
    Load(Video(QStringLiteral("/v/other.mp4")));
    EXPECT_EQ(OutputSize(), QString());
}

TEST_F(KrExportStatusTest, AFirstShotThatShowsTheWholePictureLeavesTheResultItsShape)
{
    Analyse(TallResults(25));
    const QSize size = TallSize();
    EXPECT_EQ(OutputSize(),
              QStringLiteral("Output: %1 × %2").arg(QString::number(size.width()), QString::number(size.height())));
    EXPECT_EQ(Helper().GetWorkTimeline()->projectSettings().resolution, size) << "what the preview fits pictures into";
}

TEST_F(KrExportStatusTest, ALineFollowsTheExport)
{
    EXPECT_EQ(StateText(), QString());
    host.report({State::Queued, 0, QStringLiteral("/out/clip-AutoReframe-9 16.mp4"), QString()});
    EXPECT_EQ(StateText(), QStringLiteral("Waiting in the export queue"));
    EXPECT_EQ(Label("KrAutoReframe_exportFile").text(), QStringLiteral("clip-AutoReframe-9 16.mp4"));
    host.report({State::Running, 4260, QStringLiteral("/out/clip.mp4"), QString()});
    EXPECT_EQ(StateText(), QStringLiteral("Exporting: 42 %"));
    EXPECT_TRUE(Progress().isVisibleTo(panel));
    EXPECT_EQ(Progress().value(), 4260);
    EXPECT_FALSE(ShowInFolder().isVisibleTo(panel));
    host.report({State::Done, 10000, QStringLiteral("/out/clip.mp4"), QString()});
    EXPECT_EQ(StateText(), QStringLiteral("Exported"));
    EXPECT_FALSE(Progress().isVisibleTo(panel));
    ASSERT_TRUE(ShowInFolder().isVisibleTo(panel));
    ShowInFolder().click();
    EXPECT_EQ(host.shown, QStringList{QStringLiteral("/out/clip.mp4")});
}

TEST_F(KrExportStatusTest, AFailureNamesItsReason)
{
    host.report({State::Failed, 0, QStringLiteral("/out/clip.mp4"), QStringLiteral("Cannot write /out/clip.mp4.")});
    EXPECT_EQ(StateText(), QStringLiteral("Cannot write /out/clip.mp4."));
    EXPECT_EQ(Label("KrAutoReframe_exportState").property("textRole").toString(), QStringLiteral("error"));
    EXPECT_FALSE(ShowInFolder().isVisibleTo(panel));
    host.report({State::Cancelled, 0, QStringLiteral("/out/clip.mp4"), QString()});
    EXPECT_EQ(StateText(), QStringLiteral("Export cancelled"));
    EXPECT_EQ(Label("KrAutoReframe_exportState").property("textRole").toString(), QStringLiteral("muted"));
}

TEST_F(KrExportStatusTest, TheHostReportsNothingToADialogThatHasGone)
{
    dialog.reset();
    EXPECT_FALSE(host.report);
}

TEST_F(DialogTest, TheOutputIsAChoiceWhereTheHostWritesSeveralSizes)
{
    SizingHost host;
    Make(nullptr);
    dialog->SetExtensions(host);
    Load(Video(QStringLiteral("/v/clip.mp4")));
    auto* const output = panel->findChild<QComboBox*>(QStringLiteral("KrAutoReframe_output"));
    const auto* const size = panel->findChild<KxLabel*>(QStringLiteral("KrAutoReframe_outputSize"));
    ASSERT_NE(output, nullptr);
    EXPECT_FALSE(output->isVisibleTo(panel));
    Analyse();
    ASSERT_TRUE(output->isVisibleTo(panel));
    EXPECT_EQ(output->count(), 2);
    const QSize crop = output->itemData(0).toSize();
    EXPECT_NEAR(host.lastCrop.width(), crop.width(), 1.0);
    const auto text = [](const QSize& shown, const char* form) {
        return QString::fromUtf8(form).arg(QString::number(shown.width()), QString::number(shown.height()));
    };
    EXPECT_EQ(size->text(), text(crop, "Output: %1 × %2"));
    output->setCurrentIndex(1);
    EXPECT_EQ(host.chosen, 1);
    EXPECT_EQ(size->text(), text(2 * crop, "Output: %1 × %2, enlarged"));
    Analyse();
    EXPECT_EQ(output->currentIndex(), 1) << "a new result keeps the choice";
    dialog.reset();
}

TEST_F(ExtendedDialogTest, AHostWithoutReportsOnExportsShowsTheSizeAlone)
{
    Load(Video(clip));
    Analyse();
    EXPECT_FALSE(Line("KrAutoReframe_outputSize").isEmpty());
    EXPECT_TRUE(Line("KrAutoReframe_exportState").isEmpty());
}

TEST_F(DialogTest, WithoutExtensionsNothingIsBelowTheExportButton)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    Analyse();
    EXPECT_EQ(panel->findChild<KrExportStatus*>(), nullptr);
}
