#include <KrAutoReframe/Dialog/KrAutoReframeExportDlg.h>

#include <Tests/KrAutoReframe/Dialog/Recorders.h>

#include <KxCore/KxConfig.h>
#include <KxWidgets/KxDialogButtonBar.h>
#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxLineEdit.h>
#include <KxWidgets/KxOpenFileLineEdit.h>
#include <KxWidgets/KxPushButton.h>
#include <KxWidgets/KxTopLevelWindowTitleBar.h>

#include <QDir>
#include <QFormLayout>
#include <QSettings>
#include <QTimer>
#include <QtTest>

#include <gtest/gtest.h>

#include <memory>

namespace
{

const QString InvalidFolder = QStringLiteral("Please make sure you have selected a valid folder.");
const QString NoPermission = QStringLiteral("Please check write permission, or choose another path to continue.");
const QString TooLong = QStringLiteral("The outputted file path is too long, please choose another path to continue.");

class ExportDlgTest : public testing::Test
{
protected:
    ExportDlgTest() { Make(); }

    void Make()
    {
        dialog = std::make_unique<KrAutoReframeExportDlg>(nullptr);
        name = dialog->findChild<KxLineEdit*>(QStringLiteral("KrAutoReframeExport_name"));
        path = dialog->findChild<KxOpenFileLineEdit*>();
        exportButton = dialog->findChild<KxPushButton*>(QStringLiteral("KrAutoReframeExport_export"));
    }

    QString StoredFolder() const
    {
        QSettings settings(recorders.ConfigFile(), QSettings::IniFormat);
        settings.beginGroup(QStringLiteral("Auto Reframe"));
        return settings.value(QStringLiteral("OutputPath")).toString();
    }

    void StoreFolder(const QString& folder)
    {
        QSettings settings(recorders.ConfigFile(), QSettings::IniFormat);
        settings.setValue(QStringLiteral("Auto Reframe/OutputPath"), folder);
    }

    /// A folder below the test's own whose path has that many characters.
    QString FolderOfLength(int length)
    {
        QString folder = recorders.folder.path();
        while (folder.size() < length) {
            const int rest = length - folder.size();
            const int part = rest > 202 ? 200 : rest - 1;
            folder += QLatin1Char('/') + QString(part, QLatin1Char('d'));
        }
        EXPECT_EQ(folder.size(), length);
        EXPECT_TRUE(QDir().mkpath(folder));
        return folder;
    }

    /// Presses Export; whether the dialog closed with the result of an export.
    bool Export()
    {
        dialog->setResult(-1);
        exportButton->click();
        return dialog->result() == 1;
    }

    Recorders recorders;
    std::unique_ptr<KrAutoReframeExportDlg> dialog;
    KxLineEdit* name = nullptr;
    KxOpenFileLineEdit* path = nullptr;
    KxPushButton* exportButton = nullptr;
};

} // namespace

TEST_F(ExportDlgTest, ShowsItsTexts)
{
    EXPECT_EQ(dialog->GetTitleBar()->Title(), QStringLiteral("Export to MP4"));
    EXPECT_EQ(exportButton->text(), QStringLiteral("Export"));
    auto* const form = dialog->findChild<QFormLayout*>();
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(qobject_cast<KxLabel*>(form->labelForField(name))->text(), QStringLiteral("Name:"));
    EXPECT_EQ(qobject_cast<KxLabel*>(form->labelForField(path))->text(), QStringLiteral("Save to:"));
}

TEST_F(ExportDlgTest, LaysItsFieldsOut)
{
    EXPECT_EQ(dialog->size(), QSize(480, 208));
    EXPECT_FALSE(dialog->GetTitleBar()->IsResizeble());
    for (const QWidget* const field : {static_cast<QWidget*>(name), static_cast<QWidget*>(path)}) {
        EXPECT_EQ(field->minimumSize(), QSize(219, 24));
        EXPECT_EQ(field->maximumSize(), QSize(219, 24));
    }
    EXPECT_EQ(exportButton->minimumWidth(), 104);
    EXPECT_EQ(exportButton->maximumWidth(), 104);
    EXPECT_TRUE(dialog->GetButtonBar()->isAncestorOf(exportButton));
    auto* const form = dialog->findChild<QFormLayout*>();
    EXPECT_EQ(form->spacing(), 16);
    EXPECT_EQ(form->contentsMargins(), QMargins(52, 0, 52, 0));
    EXPECT_EQ(form->labelAlignment(), Qt::AlignRight | Qt::AlignVCenter);
    EXPECT_EQ(form->formAlignment(), Qt::AlignLeft | Qt::AlignVCenter);
    EXPECT_EQ(form->alignment(), Qt::AlignCenter);
    EXPECT_EQ(form->rowCount(), 2);
    const auto* const caption = qobject_cast<KxLabel*>(form->labelForField(name));
    EXPECT_EQ(caption->minimumWidth(), 100);
    EXPECT_EQ(caption->maximumWidth(), 100);
    EXPECT_EQ(caption->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    EXPECT_EQ(name->maxLength(), 42);
}

TEST_F(ExportDlgTest, DeclaresNothingToTheMetaObject)
{
    const QMetaObject& meta = KrAutoReframeExportDlg::staticMetaObject;
    EXPECT_EQ(meta.methodCount(), meta.methodOffset());
}

TEST_F(ExportDlgTest, OpensOnTheHostsFolderWithoutAConfiguration)
{
    EXPECT_FALSE(QFile::exists(recorders.ConfigFile()));
    EXPECT_EQ(path->Text(), KxConfig::GetKorviOutputDirectory());
}

TEST_F(ExportDlgTest, OpensOnTheFolderOfTheLastExport)
{
    StoreFolder(recorders.folder.path());
    Make();
    EXPECT_EQ(path->Text(), recorders.folder.path());
}

TEST_F(ExportDlgTest, AMissingFolderIsReplacedByTheHosts)
{
    StoreFolder(recorders.folder.filePath(QStringLiteral("deleted")));
    Make();
    EXPECT_EQ(path->Text(), KxConfig::GetKorviOutputDirectory());
    StoreFolder(QString());
    Make();
    EXPECT_EQ(path->Text(), KxConfig::GetKorviOutputDirectory());
    StoreFolder(recorders.ConfigFile());
    Make();
    EXPECT_EQ(path->Text(), KxConfig::GetKorviOutputDirectory()) << "a file is no folder";
}

TEST_F(ExportDlgTest, EveryChangeOfTheFolderIsStoredAtOnce)
{
    path->SetText(QStringLiteral("/some/where"));
    EXPECT_EQ(StoredFolder(), QStringLiteral("/some/where"));
    recorders.chosen = QStringList{recorders.folder.path()};
    path->findChild<QAbstractButton*>()->click();
    EXPECT_EQ(StoredFolder(), QDir::toNativeSeparators(recorders.folder.path()));
}

TEST_F(ExportDlgTest, AClearedNameIsRestored)
{
    dialog->SetDefaultName(QStringLiteral("clip"));
    EXPECT_EQ(name->text(), QStringLiteral("clip"));
    dialog->show();
    name->setFocus();
    for (const QString& typed : {QString(), QStringLiteral("   ")}) {
        name->clear();
        QTest::keyClicks(name, typed);
        QTest::keyClick(name, Qt::Key_Tab);
        Q_EMIT name->editingFinished();
        EXPECT_EQ(name->text(), QStringLiteral("clip"));
    }
    name->setText(QStringLiteral("other"));
    Q_EMIT name->editingFinished();
    EXPECT_EQ(name->text(), QStringLiteral("other"));
}

TEST_F(ExportDlgTest, AClearedNameIsNotExportedEmpty)
{
    dialog->SetDefaultName(QStringLiteral("clip"));
    path->SetText(recorders.folder.path());
    name->clear();
    EXPECT_TRUE(Export());
    EXPECT_EQ(dialog->GetOutputName(), QStringLiteral("clip"));
}

TEST_F(ExportDlgTest, ALongNameIsCutTo42Characters)
{
    dialog->SetDefaultName(QString(50, QLatin1Char('n')));
    EXPECT_EQ(dialog->GetOutputName(), QString(42, QLatin1Char('n')));
}

TEST_F(ExportDlgTest, ANameLosesWhatNoFileNameMayHold)
{
    QTest::keyClicks(name, QStringLiteral("a:b*c?"));
    EXPECT_EQ(name->text(), QStringLiteral("abc"));
    EXPECT_EQ(dialog->GetOutputName(), QStringLiteral("abc"));
    // The field rejects such characters; text that gets past it is cleaned as well.
    name->setValidator(nullptr);
    name->setText(QStringLiteral("a:b*c?"));
    EXPECT_EQ(name->text(), QStringLiteral("a:b*c?"));
    EXPECT_EQ(dialog->GetOutputName(), QStringLiteral("abc"));
    const QVariantMap record = dialog->GetExportInfo().toMap();
    EXPECT_EQ(record.value(QStringLiteral("org_file_name")).toString(), QStringLiteral("abc"));
    EXPECT_EQ(record.value(QStringLiteral("name")).toString(), QStringLiteral("abc-AutoReframe-0 0"));
    name->setText(QStringLiteral(" *|a<>b\\?/:\"c "));
    EXPECT_EQ(dialog->GetOutputName(), QStringLiteral(" abc ")) << "blanks at the ends stay";
    name->setText(QStringLiteral("one\ntwo"));
    EXPECT_EQ(dialog->GetOutputName(), QStringLiteral("onetwo"));
}

TEST_F(ExportDlgTest, AFolderLosesOneBackslashAtItsEnd)
{
    path->SetText(QStringLiteral("D:\\out\\"));
    EXPECT_EQ(dialog->GetOutputPath(), QStringLiteral("D:\\out"));
    path->SetText(QStringLiteral("D:\\out\\\\"));
    EXPECT_EQ(dialog->GetOutputPath(), QStringLiteral("D:\\out\\"));
    path->SetText(QStringLiteral("D:\\out"));
    EXPECT_EQ(dialog->GetOutputPath(), QStringLiteral("D:\\out"));
    path->SetText(QStringLiteral("/out/"));
    EXPECT_EQ(dialog->GetOutputPath(), QDir::toNativeSeparators(QStringLiteral("/out")));
    path->SetText(QStringLiteral("/"));
    EXPECT_EQ(dialog->GetOutputPath(), QDir::toNativeSeparators(QStringLiteral("/"))) << "the root is no empty path";
}

TEST_F(ExportDlgTest, GoodEntriesCloseItWithOne)
{
    dialog->SetDefaultName(QStringLiteral("clip"));
    path->SetText(recorders.folder.path());
    QTimer::singleShot(0, exportButton, &QAbstractButton::click);
    EXPECT_EQ(dialog->DoModal(), 1);
    EXPECT_TRUE(recorders.boxes.empty());
}

TEST_F(ExportDlgTest, ClosedByTheUserItReturnsZero)
{
    QTimer::singleShot(0, dialog.get(), &QWidget::close);
    EXPECT_EQ(dialog->DoModal(), 0);
}

TEST_F(ExportDlgTest, AMissingFolderIsMade)
{
    dialog->SetDefaultName(QStringLiteral("clip"));
    const QString folder = recorders.folder.filePath(QStringLiteral("a/b/c"));
    path->SetText(folder);
    EXPECT_TRUE(Export());
    EXPECT_TRUE(QFileInfo(folder).isDir());
}

TEST_F(ExportDlgTest, AFolderThatCannotBeCreatedIsReportedFirst)
{
    dialog->SetDefaultName(QString(42, QLatin1Char('n')));
    QFile file(recorders.folder.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    recorders.freeSpaceMb = 0;
    const QString tooDeep = file.fileName() + QLatin1Char('/') + QString(250, QLatin1Char('d'));
    for (const QString& folder : {file.fileName(), tooDeep, QString()}) {
        recorders.boxes.clear();
        path->SetText(folder);
        EXPECT_FALSE(Export());
        EXPECT_EQ(recorders.BoxTexts(), QStringList{InvalidFolder}) << folder.toStdString();
    }
    EXPECT_TRUE(recorders.spaceAskedFor.isEmpty());
}

TEST_F(ExportDlgTest, ABoxNamesTheProductAndBelongsToTheDialog)
{
    path->SetText(QString());
    EXPECT_FALSE(Export());
    ASSERT_EQ(recorders.boxes.size(), 1u);
    const KrMessageDialog::Shown& box = recorders.boxes.front();
    EXPECT_EQ(box.title, QStringLiteral("Auto Reframe"));
    EXPECT_EQ(box.parent, dialog.get());
    EXPECT_EQ(box.type, KrMessageType::Information);
}

TEST_F(ExportDlgTest, AFolderThatCannotBeWrittenIsReportedBeforeItsLength)
{
    dialog->SetDefaultName(QStringLiteral("clip"));
    recorders.freeSpaceMb = 0;
    path->SetText(QStringLiteral("/proc"));
    EXPECT_FALSE(Export());
    EXPECT_EQ(recorders.BoxTexts(), QStringList{NoPermission});
}

TEST_F(ExportDlgTest, APathOf260CharactersIsTooLong)
{
    recorders.freeSpaceMb = 0;
    path->SetText(FolderOfLength(250));
    name->setText(QString(9, QLatin1Char('n')));
    EXPECT_FALSE(Export());
    EXPECT_EQ(recorders.BoxTexts(), QStringList{TooLong});
    EXPECT_TRUE(recorders.spaceAskedFor.isEmpty());
    recorders.freeSpaceMb = 10;
    name->setText(QString(8, QLatin1Char('n')));
    EXPECT_TRUE(Export());
}

TEST_F(ExportDlgTest, TenMegabytesAreEnough)
{
    dialog->SetDefaultName(QStringLiteral("clip"));
    path->SetText(recorders.folder.path());
    recorders.freeSpaceMb = 9;
    EXPECT_FALSE(Export());
    EXPECT_EQ(recorders.BoxTexts(),
              QStringList{QStringLiteral("There is not enough space in the specified output directory, please choose "
                                         "another one.\nDise Space needed :10 MB, remaining:9 MB.")});
    recorders.freeSpaceMb = 10;
    EXPECT_TRUE(Export());
    EXPECT_EQ(recorders.boxes.size(), 1u);
}

TEST_F(ExportDlgTest, TheEstimateCountsInWholeMegabytes)
{
    dialog->SetDefaultName(QStringLiteral("clip"));
    path->SetText(recorders.folder.path());
    dialog->SetEstimatedSize(5LL * 1048576 * 1024 + 1048575);
    recorders.freeSpaceMb = 4000;
    EXPECT_FALSE(Export());
    ASSERT_EQ(recorders.boxes.size(), 1u);
    EXPECT_TRUE(recorders.boxes.front().text.endsWith(QStringLiteral("needed :5130 MB, remaining:4000 MB.")));
    recorders.freeSpaceMb = 5130;
    EXPECT_TRUE(Export());
}

TEST_F(ExportDlgTest, SpaceIsAskedForWhereTheFolderIs)
{
    dialog->SetDefaultName(QStringLiteral("clip"));
    path->SetText(recorders.folder.path());
    EXPECT_TRUE(Export());
    const bool hasDrives = recorders.folder.path().at(1) == QLatin1Char(':');
    EXPECT_EQ(recorders.spaceAskedFor,
              QStringList{hasDrives ? recorders.folder.path().left(2) : recorders.folder.path()});
    if (hasDrives) {
        return;
    }
    // On this system a folder can have the name of a drive.
    ASSERT_TRUE(QDir::setCurrent(recorders.folder.path()));
    path->SetText(QStringLiteral("D:/out"));
    EXPECT_TRUE(Export());
    EXPECT_EQ(recorders.spaceAskedFor.last(), QStringLiteral("D:"));
    ASSERT_TRUE(QDir::setCurrent(QDir::rootPath()));
}

TEST_F(ExportDlgTest, TheRecordHasItsKeysValuesAndTypes)
{
    dialog->SetDefaultName(QStringLiteral("50%1"));
    path->SetText(QStringLiteral("D:\\out\\"));
    dialog->SetResolution(QSize(608, 1080));
    dialog->SetFrameRate(29.5F);
    dialog->SetVideoBitRate(3000000);
    dialog->SetAudioBitRate(128000);
    dialog->SetSrcResolution(QSize(1920, 1080));
    dialog->SetRatio(9, 16);
    dialog->SetAnalysisInfo(24, 3, 250, QStringLiteral("MP4"));
    dialog->SetSrcDuration(251);
    dialog->SetMotionSpeed(2);
    dialog->SetTrackRatio(5);
    const QVariant info = dialog->GetExportInfo();
    ASSERT_EQ(info.userType(), int(QMetaType::QVariantMap));
    const QVariantMap expected{
        {QStringLiteral("export_module"), QStringLiteral("AutoReframe")},
        {QStringLiteral("name"), QStringLiteral("50%1-AutoReframe-9 16")},
        {QStringLiteral("org_file_name"), QStringLiteral("50%1")},
        {QStringLiteral("path"), QStringLiteral("D:\\out")},
        {QStringLiteral("resolution"), QSize(608, 1080)},
        {QStringLiteral("frame_rate"), 29.5F},
        {QStringLiteral("video_bit_rate"), 3000000},
        {QStringLiteral("audio_bit_rate"), 128000},
        {QStringLiteral("radio_w"), 9},
        {QStringLiteral("radio_h"), 16},
        {QStringLiteral("speed"), 24},
        {QStringLiteral("duration"), 250},
        {QStringLiteral("file_format"), QStringLiteral("MP4")},
        {QStringLiteral("adjust_frames"), 3},
        {QStringLiteral("src_resolution"), QSize(1920, 1080)},
        {QStringLiteral("src_duration"), 251},
        {QStringLiteral("motion_speed"), 2},
        {QStringLiteral("track_ratio"), 5},
    };
    const QVariantMap record = info.toMap();
    EXPECT_EQ(record.keys(), expected.keys());
    for (auto entry = expected.cbegin(); entry != expected.cend(); ++entry) {
        const QVariant value = record.value(entry.key());
        EXPECT_EQ(value.userType(), entry->userType()) << entry.key().toStdString();
        EXPECT_EQ(value, *entry) << entry.key().toStdString();
    }
}

TEST_F(ExportDlgTest, TheRecordsDefaults)
{
    const QVariantMap record = dialog->GetExportInfo().toMap();
    EXPECT_EQ(record.value(QStringLiteral("frame_rate")).toFloat(), 25.0F);
    EXPECT_EQ(record.value(QStringLiteral("video_bit_rate")).toInt(), 2000000);
    EXPECT_EQ(record.value(QStringLiteral("audio_bit_rate")).toInt(), 192000);
    EXPECT_FALSE(record.value(QStringLiteral("resolution")).toSize().isValid());
    EXPECT_FALSE(record.value(QStringLiteral("src_resolution")).toSize().isValid());
    for (const char* const key :
         {"radio_w", "radio_h", "speed", "duration", "adjust_frames", "src_duration", "motion_speed", "track_ratio"}) {
        EXPECT_EQ(record.value(QLatin1String(key)), QVariant(0)) << key;
    }
}
