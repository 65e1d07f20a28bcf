#include <KrAutoReframe/Dialog/KrAutoReframeExportDlg.h>
#include <Tests/KrAutoReframe/Dialog/DialogFixture.h>

#include <KxWidgets/KxComboBox.h>
#include <KxWidgets/KxLineEdit.h>
#include <KxWidgets/KxOpenFileLineEdit.h>

#include <QApplication>
#include <QDir>

namespace
{

/// Information of a media item that has neither video nor sound.
class BareInfo : public IKxMediaInfo
{
public:
    bool hasVideoStream() const override { return true; }
    bool hasAudioStream() const override { return true; }
};

class BareItem : public FakeHost::MediaItem
{
public:
    using MediaItem::MediaItem;
    const IKxMediaInfo* mediaInfo() const override { return &m_info; }

private:
    BareInfo m_info;
};

class DialogExportTest : public DialogTest
{
protected:
    struct Exported {
        IKxTimeline* timeline;
        const QList<IKxAbstractMedia*>* media;
        QList<IKxAbstractMedia*> mediaThen;
        QVariantMap record;
        KxProjectSettings settings;
    };

    void ListenToExports()
    {
        QObject::connect(dialog.get(), &KrAutoReframeDialog::sigExportToLocal, dialog.get(),
                         [this](IKxTimeline* timeline, QList<IKxAbstractMedia*>& media, const QVariant& info) {
                             EXPECT_EQ(info.userType(), int(QMetaType::QVariantMap));
                             exported.push_back({timeline, &media, media, info.toMap(), timeline->projectSettings()});
                         });
    }

    FakeHost::Facts Source() const
    {
        FakeHost::Facts facts = Video(QStringLiteral("/v/my.clip.MP4"));
        facts.frameRate = {30000, 1001};
        facts.videoBitRate = 5000000;
        facts.audioBitRates = QList<int>{64000, 128000};
        facts.audioStream = 1;
        return facts;
    }

    void LoadAndAnalyse(const FakeHost::Facts& facts, double cropWidth = 0.31640625)
    {
        Load(facts);
        QList<IKxAutoReframeResult> results;
        for (int frame = 0; frame < FrameCount; ++frame) {
            results.append(IKxAutoReframeResult(frame, QRectF(frame / 1000.0, 0.0, cropWidth, 1.0)));
        }
        Analyse(results);
        recorders.events.clear();
        ListenToExports();
    }

    static KrAutoReframeExportDlg* ExportDialog()
    {
        return qobject_cast<KrAutoReframeExportDlg*>(QApplication::activeModalWidget());
    }

    /// Presses the panel's Export, and then Export in the dialog that opens.
    void Confirm(const std::function<void(KrAutoReframeExportDlg&)>& change = {})
    {
        WhileModal([this, change] {
            KrAutoReframeExportDlg* const asks = ExportDialog();
            ASSERT_NE(asks, nullptr);
            asks->findChild<KxOpenFileLineEdit*>()->SetText(recorders.folder.path());
            if (change) {
                change(*asks);
            }
            asks->slotExportButtonClicked();
        });
        Export().click();
    }

    /// The value of the record of an export of `facts` under `key`.
    QVariant Value(const FakeHost::Facts& facts, const char* key)
    {
        LoadAndAnalyse(facts);
        Confirm();
        EXPECT_FALSE(exported.empty());
        return exported.empty() ? QVariant() : exported.back().record.value(QLatin1String(key));
    }

    void ChooseRatio(const QString& ratio)
    {
        panel->findChild<KxComboBox*>(QStringLiteral("KrAutoReframePropertyPanel_aspectRatio"))->setCurrentText(ratio);
    }

    std::vector<Exported> exported;
};

} // namespace

TEST_F(DialogExportTest, WithoutASourceNothingHappens)
{
    dialog->slotExportToLocal();
    EXPECT_TRUE(recorders.events.isEmpty());
    EXPECT_TRUE(Player().calls.isEmpty());
}

TEST_F(DialogExportTest, WithoutResultsNothingIsReported)
{
    Load(Source());
    ListenToExports();
    Player().calls.clear();
    dialog->slotExportToLocal();
    EXPECT_TRUE(recorders.events.isEmpty());
    EXPECT_EQ(Player().calls, QStringList{QStringLiteral("pause")});
    EXPECT_TRUE(exported.empty());
}

TEST_F(DialogExportTest, AConfirmedExportEmitsTimelineMediaAndRecord)
{
    LoadAndAnalyse(Source());
    ASSERT_TRUE(Helper().AddKeyFrame(40, QRectF(0.5, 0.0, 0.31640625, 1.0)));
    Player().calls.clear();
    Confirm();
    EXPECT_EQ(Player().calls.value(0), QStringLiteral("pause"));
    EXPECT_EQ(recorders.events, (QStringList{QStringLiteral("export_btn"), QStringLiteral("tomp4_export_btn")}));
    EXPECT_TRUE(recorders.boxes.empty());
    ASSERT_EQ(exported.size(), 1u);
    const Exported& one = exported.front();
    EXPECT_EQ(one.timeline, Helper().GetWorkTimeline());
    EXPECT_EQ(one.mediaThen, QList<IKxAbstractMedia*>{items.front().get()});
    EXPECT_EQ(one.settings.resolution, QSize(608, 1080));
    EXPECT_EQ(one.settings.aspectRatioType, KxProjectAspectRatio9x16);
    EXPECT_EQ(Helper().GetSourceTimeline()->projectSettings().resolution, QSize(1920, 1080));
    const QVariantMap expected{
        {QStringLiteral("export_module"), QStringLiteral("AutoReframe")},
        {QStringLiteral("name"), QStringLiteral("my-AutoReframe-9 16")},
        {QStringLiteral("org_file_name"), QStringLiteral("my")},
        {QStringLiteral("path"), QDir::toNativeSeparators(recorders.folder.path())},
        {QStringLiteral("resolution"), QSize(608, 1080)},
        {QStringLiteral("frame_rate"), static_cast<float>(30000.0 / 1001.0)},
        {QStringLiteral("video_bit_rate"), 5000000},
        {QStringLiteral("audio_bit_rate"), 128000},
        {QStringLiteral("radio_w"), 9},
        {QStringLiteral("radio_h"), 16},
        {QStringLiteral("speed"), 16},
        {QStringLiteral("duration"), FrameCount},
        {QStringLiteral("file_format"), QStringLiteral("MP4")},
        {QStringLiteral("adjust_frames"), 1},
        {QStringLiteral("src_resolution"), QSize(1920, 1080)},
        {QStringLiteral("src_duration"), FrameCount},
        {QStringLiteral("motion_speed"), 3},
        {QStringLiteral("track_ratio"), 2},
    };
    EXPECT_EQ(one.record.keys(), expected.keys());
    for (auto entry = expected.cbegin(); entry != expected.cend(); ++entry) {
        const QVariant value = one.record.value(entry.key());
        EXPECT_EQ(value.userType(), entry->userType()) << entry.key().toStdString();
        EXPECT_EQ(value, *entry) << entry.key().toStdString();
    }
}

TEST_F(DialogExportTest, NoTimelineLeavesTheSourceToBeExported)
{
    LoadAndAnalyse(Source());
    dialog->InitTimeline(nullptr);
    Confirm();
    EXPECT_EQ(exported.size(), 1U);
}

TEST_F(DialogExportTest, TheMediaAreTheDialogsOwnList)
{
    LoadAndAnalyse(Source());
    Confirm();
    Confirm();
    ASSERT_EQ(exported.size(), 2u);
    EXPECT_EQ(exported.front().media, exported.back().media);
}

TEST_F(DialogExportTest, ClosedWithoutExportItOnlyReports)
{
    LoadAndAnalyse(Source());
    WhileModal([] {
        ASSERT_NE(ExportDialog(), nullptr);
        ExportDialog()->close();
    });
    Export().click();
    EXPECT_EQ(recorders.events, (QStringList{QStringLiteral("export_btn"), QStringLiteral("tomp4_close_window")}));
    EXPECT_TRUE(exported.empty());
    EXPECT_EQ(Helper().GetWorkTimeline()->projectSettings().resolution, QSize(1920, 1080));
}

TEST_F(DialogExportTest, TheNameThatThePersonTypesIsTheRecords)
{
    LoadAndAnalyse(Source());
    Confirm([](KrAutoReframeExportDlg& asks) {
        EXPECT_EQ(asks.findChild<KxLineEdit*>(QStringLiteral("KrAutoReframeExport_name"))->text(),
                  QStringLiteral("my"));
        asks.findChild<KxLineEdit*>(QStringLiteral("KrAutoReframeExport_name"))->setText(QStringLiteral("50%1 off"));
    });
    ASSERT_EQ(exported.size(), 1u);
    EXPECT_EQ(exported.front().record.value(QStringLiteral("org_file_name")).toString(), QStringLiteral("50%1 off"));
    EXPECT_EQ(exported.front().record.value(QStringLiteral("name")).toString(),
              QStringLiteral("50%1 off-AutoReframe-9 16"));
}

TEST_F(DialogExportTest, TheFolderIsOfferedAgain)
{
    LoadAndAnalyse(Source());
    Confirm();
    WhileModal([this] {
        EXPECT_EQ(ExportDialog()->findChild<KxOpenFileLineEdit*>()->Text(), recorders.folder.path());
        ExportDialog()->close();
    });
    Export().click();
}

TEST_F(DialogExportTest, ABadFolderKeepsTheDialogOpen)
{
    LoadAndAnalyse(Source());
    WhileModal([this] {
        KrAutoReframeExportDlg* const asks = ExportDialog();
        asks->findChild<KxOpenFileLineEdit*>()->SetText(QString());
        asks->slotExportButtonClicked();
        EXPECT_TRUE(asks->isVisible());
        EXPECT_EQ(recorders.boxes.size(), 1u);
        EXPECT_TRUE(exported.empty());
        asks->close();
    });
    Export().click();
    EXPECT_TRUE(exported.empty());
}

TEST_F(DialogExportTest, FrameRatesAreThoseOfTheSourceUpTo60)
{
    FakeHost::Facts facts = Source();
    facts.frameRate = {24000, 1001};
    EXPECT_EQ(Value(facts, "frame_rate").toFloat(), 23.97F);
    facts.frameRate = {120, 1};
    EXPECT_EQ(Value(facts, "frame_rate").toFloat(), 60.0F);
    facts.frameRate = {0, 0};
    EXPECT_EQ(Value(facts, "frame_rate").toFloat(), 0.0F);
}

TEST_F(DialogExportTest, BitRatesStayBetweenTheirBounds)
{
    FakeHost::Facts facts = Source();
    facts.videoBitRate = 100000;
    EXPECT_EQ(Value(facts, "video_bit_rate").toInt(), 256000);
    facts.videoBitRate = 200000000;
    EXPECT_EQ(Value(facts, "video_bit_rate").toInt(), 150000000);
    facts.audioStream = 0;
    EXPECT_EQ(Value(facts, "audio_bit_rate").toInt(), 96000);
    facts.audioBitRates = QList<int>{448000};
    EXPECT_EQ(Value(facts, "audio_bit_rate").toInt(), 320000);
    facts.audioBitRates.clear();
    EXPECT_EQ(Value(facts, "audio_bit_rate").toInt(), 192000);
}

TEST_F(DialogExportTest, UnknownParametersHaveDefaults)
{
    const BareItem* const bare = new BareItem(Video(QStringLiteral("/v/clip.mp4")));
    items.emplace_back(const_cast<BareItem*>(bare));
    dialog->InitMediaItem({items.back().get()});
    Helper().SetTimeline(FakeHost::MakeTimeline({Video(QStringLiteral("/v/clip.mp4"))}));
    Analyse();
    ListenToExports();
    Confirm();
    ASSERT_EQ(exported.size(), 1u);
    const QVariantMap& record = exported.front().record;
    EXPECT_EQ(record.value(QStringLiteral("frame_rate")).toFloat(), 25.0F);
    EXPECT_EQ(record.value(QStringLiteral("video_bit_rate")).toInt(), 2000000);
    EXPECT_EQ(record.value(QStringLiteral("audio_bit_rate")).toInt(), 192000);
}

TEST_F(DialogExportTest, FourToFiveIsReportedAlthoughTheHostDoesNotKnowIt)
{
    ChooseRatio(QStringLiteral("4:5"));
    LoadAndAnalyse(Source());
    Confirm();
    ASSERT_EQ(exported.size(), 1u);
    EXPECT_EQ(exported.front().record.value(QStringLiteral("track_ratio")), QVariant(5));
    EXPECT_EQ(exported.front().settings.aspectRatioType, KxProjectAspectRatioUnknown);
    EXPECT_EQ(exported.front().record.value(QStringLiteral("name")).toString(), QStringLiteral("my-AutoReframe-4 5"));
}

TEST_F(DialogExportTest, AnotherUnknownRatioIsReportedAsNone)
{
    ChooseRatio(QStringLiteral("1:1"));
    LoadAndAnalyse(Source());
    Confirm();
    ASSERT_EQ(exported.size(), 1u);
    EXPECT_EQ(exported.front().record.value(QStringLiteral("track_ratio")), QVariant(0));
}

TEST_F(DialogExportTest, TheRecordDescribesTheAnalysisNotThePanel)
{
    LoadAndAnalyse(Source());
    ChooseRatio(QStringLiteral("21:9"));
    panel->findChild<KxComboBox*>(QStringLiteral("KrAutoReframePropertyPanel_motionSpeed"))
        ->setCurrentText(QStringLiteral("Fast"));
    Confirm();
    ASSERT_EQ(exported.size(), 1u);
    EXPECT_EQ(exported.front().record.value(QStringLiteral("radio_w")), QVariant(9));
    EXPECT_EQ(exported.front().record.value(QStringLiteral("radio_h")), QVariant(16));
    EXPECT_EQ(exported.front().record.value(QStringLiteral("speed")), QVariant(16));
}

TEST_F(DialogExportTest, TheFirstResultDeterminesTheSizeNotAnEdit)
{
    LoadAndAnalyse(Source(), 0.5625);
    Helper().AddKeyFrame(0, QRectF(0.0, 0.0, 0.25, 0.5));
    Confirm();
    ASSERT_EQ(exported.size(), 1u);
    EXPECT_EQ(exported.front().record.value(QStringLiteral("resolution")).toSize(), QSize(1080, 1080));
}
