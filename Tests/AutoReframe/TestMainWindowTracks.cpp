#include <Tests/AutoReframe/MainWindowTest.h>

#include <Apps/AutoReframe/Tracks/CropTrackDialog.h>

#include <KxWidgets/KxProgressDialog.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>

namespace
{

class TestMainWindowTracks : public TestMainWindow
{
protected:
    /// Chooses an entry of the window's menu, or of the menu `submenu` in it; false if it is disabled.
    bool Choose(const QString& entry, const QString& submenu = QString())
    {
        bool isEnabled = false;
        QTimer::singleShot(0, m_window.get(), [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            const QMenu* const entries = submenu.isEmpty() ? menu : menu->findChild<QMenu*>(submenu);
            ASSERT_NE(entries, nullptr);
            for (QAction* const action : entries->actions()) {
                if (action->text() == entry) {
                    isEnabled = action->isEnabled();
                    menu->close();
                    if (isEnabled) {
                        action->trigger();
                    }
                    return;
                }
            }
            menu->close();
            FAIL() << entry.toStdString();
        });
        Button("TopBar_menu")->click();
        return isEnabled;
    }
    /// The texts of the menu that the right mouse button opens on the first video.
    QStringList MenuOfTheFirstVideo()
    {
        QStringList texts;
        QTimer::singleShot(0, m_window.get(), [&texts] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (const QAction* const action : menu->actions()) {
                texts += action->text();
            }
            menu->close();
        });
        const QPoint place = View()->visualRect(View()->model()->index(0, 0)).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, View()->viewport()->mapToGlobal(place));
        QApplication::sendEvent(View()->viewport(), &event);
        return texts;
    }
    /// Calls `use` once a modal dialog of that class is open.
    template<typename Dialog>
    void WhenShown(const std::function<void(Dialog& dialog)>& use)
    {
        auto* const look = new QTimer(m_window.get());
        QObject::connect(look, &QTimer::timeout, look, [look, use] {
            if (auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
                look->deleteLater();
                look->stop();
                use(*dialog);
            }
        });
        look->start(5);
    }
    void WhenAsked(const QString& name, const char* format)
    {
        WhenShown<CropTrackDialog>([this, name, format](CropTrackDialog& dialog) {
            m_offeredName = dialog.findChild<QLineEdit*>(QStringLiteral("CropTrackDialog_name"))->text();
            dialog.findChild<QLineEdit*>(QStringLiteral("CropTrackDialog_name"))->setText(name);
            dialog.findChild<QLineEdit*>(QStringLiteral("KxOpenFileLineEdit_edit"))->setText(m_folder.path());
            dialog.findChild<QComboBox*>()->setCurrentText(QLatin1String(format));
            dialog.findChild<QAbstractButton*>(QStringLiteral("CropTrackDialog_accept"))->click();
        });
    }
    /// Enters a name for the file that is made for another program.
    void WhenAskedForAFile(const QString& name, const QString& title)
    {
        WhenShown<CropTrackDialog>([this, name, title](CropTrackDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), title);
            EXPECT_FALSE(dialog.findChild<QComboBox*>()->isVisible());
            dialog.findChild<QLineEdit*>(QStringLiteral("CropTrackDialog_name"))->setText(name);
            dialog.findChild<QLineEdit*>(QStringLiteral("KxOpenFileLineEdit_edit"))->setText(m_folder.path());
            dialog.findChild<QAbstractButton*>(QStringLiteral("CropTrackDialog_accept"))->click();
        });
    }
    void OpenOne()
    {
        Open({QStringLiteral("a.mp4")});
        ASSERT_TRUE(WaitUntilUsable());
    }

    QString m_offeredName;
};

} // namespace

TEST_F(TestMainWindowTracks, ACropTrackIsSavedAsTheDialogWouldShowTheVideo)
{
    OpenOne();
    VideoEdits edits;
    edits.aspect = QSize(4, 5);
    edits.speed = 8;
    edits.editPoints.insert(3, QRectF(0.1, 0.0, 0.3, 1.0));
    m_backend->inDialog = [&](const DialogCallbacks& callbacks) {
        callbacks.editsChanged(m_folder.filePath(QStringLiteral("a.mp4")), edits);
    };
    Button("TopBar_reframe")->click();
    m_backend->whenFinding = [&](FakeMediaBackend::Finding& finding) {
        EXPECT_TRUE(finding.request.plan == (ReframePlan{QSize(4, 5), 8, 0}));
        EXPECT_TRUE(finding.request.edits == edits);
        EXPECT_TRUE(finding.request.cropTrack.isEmpty());
        finding.EndWell();
    };
    m_answer = true;
    WhenAsked(QStringLiteral("track"), "CSV");
    EXPECT_TRUE(Choose(QStringLiteral("Save Crop Track…")));
    EXPECT_EQ(m_offeredName, QStringLiteral("a-4x5"));
    EXPECT_EQ(m_backend->savedTracks, QStringList(m_folder.filePath(QStringLiteral("track.csv"))));
    EXPECT_EQ(m_boxes, QStringList(QStringLiteral("The crop track was saved.")));
    EXPECT_EQ(m_fileManager.shown, QStringList(m_folder.path()));
}

TEST_F(TestMainWindowTracks, TheCropIsHandedOverToEachProgram)
{
    OpenOne();
    m_backend->whenFinding = [](FakeMediaBackend::Finding& finding) { finding.EndWell(); };
    const QList<std::pair<QString, QString>> targets{{QStringLiteral("Shotcut"), QStringLiteral("mlt")},
                                                     {QStringLiteral("Kdenlive"), QStringLiteral("kdenlive")},
                                                     {QStringLiteral("Final Cut Pro"), QStringLiteral("fcpxml")},
                                                     {QStringLiteral("After Effects"), QStringLiteral("txt")},
                                                     {QStringLiteral("ffmpeg"), QStringLiteral("ffscript")}};
    QStringList files;
    QStringList messages;
    for (const auto& [program, suffix] : targets) {
        WhenAskedForAFile(QStringLiteral("crop"), QStringLiteral("Export for %1").arg(program));
        EXPECT_TRUE(Choose(QStringLiteral("%1 (.%2)…").arg(program, suffix), QStringLiteral("ExportForMenu")));
        files += m_folder.filePath(QStringLiteral("crop.%1").arg(suffix));
        messages += QStringLiteral("The file for %1 was saved.").arg(program);
    }
    EXPECT_EQ(m_backend->savedEditLists, files);
    EXPECT_EQ(m_boxes, messages);
    EXPECT_TRUE(m_backend->savedTracks.isEmpty());
}

TEST_F(TestMainWindowTracks, AFailureIsReportedAndNothingSaved)
{
    OpenOne();
    m_backend->whenFinding = [](FakeMediaBackend::Finding& finding) {
        FoundCrops failed;
        failed.message = QStringLiteral("Cannot reframe a.mp4: it is too short.");
        finding.End(failed);
    };
    WhenAsked(QStringLiteral("track"), "JSON");
    EXPECT_TRUE(Choose(QStringLiteral("Save Crop Track…")));
    EXPECT_EQ(m_boxes, QStringList(QStringLiteral("Cannot reframe a.mp4: it is too short.")));
    EXPECT_TRUE(m_backend->savedTracks.isEmpty());
}

TEST_F(TestMainWindowTracks, ALongAnalysisShowsItsProgressAndCanBeCancelled)
{
    OpenOne();
    WhenAsked(QStringLiteral("track"), "JSON");
    m_backend->whenFinding = [this](FakeMediaBackend::Finding& finding) {
        finding.callbacks.progress(2500);
        WhenShown<KxProgressDialog>([](KxProgressDialog& progress) { progress.reject(); });
    };
    EXPECT_TRUE(Choose(QStringLiteral("Save Crop Track…")));
    EXPECT_EQ(m_backend->finding, nullptr);
    EXPECT_TRUE(m_backend->savedTracks.isEmpty());
    EXPECT_TRUE(m_boxes.isEmpty());
}

TEST_F(TestMainWindowTracks, AnOpenedCropTrackIsShownInTheDialog)
{
    OpenOne();
    const QString path = m_folder.filePath(QStringLiteral("track.json"));
    KxFileDialog::SetResponder([&](const KxFileDialog::Shown& shown) {
        EXPECT_EQ(shown.filter, QStringLiteral("Crop tracks(*.json;*.csv;)"));
        return QStringList(path);
    });
    // Only the backend looks into it.
    const auto owner = std::make_shared<int>();
    const std::shared_ptr<const CropTrack> track(owner, reinterpret_cast<const CropTrack*>(owner.get()));
    m_backend->whenFinding = [&](FakeMediaBackend::Finding& finding) {
        EXPECT_EQ(finding.request.cropTrack, path);
        FoundCrops found;
        found.outcome = KxOutcome::Done;
        found.track = track;
        finding.End(found);
    };
    QList<std::shared_ptr<const CropTrack>> shown;
    m_backend->inDialog = [&](const DialogCallbacks& callbacks) { shown += callbacks.track; };
    EXPECT_TRUE(Choose(QStringLiteral("Open Crop Track…")));
    EXPECT_EQ(m_backend->reframed, QStringList(QStringLiteral("a.mp4")));
    EXPECT_TRUE(m_boxes.isEmpty());
    Button("TopBar_reframe")->click();
    ASSERT_EQ(shown.size(), 2);
    EXPECT_EQ(shown[0], track);
    EXPECT_EQ(shown[1], nullptr) << "the next dialog analyzes the video";
}

TEST_F(TestMainWindowTracks, ACropTrackThatDoesNotFitIsReported)
{
    OpenOne();
    KxFileDialog::SetResponder(
        [&](const KxFileDialog::Shown&) { return QStringList(m_folder.filePath(QStringLiteral("track.json"))); });
    m_backend->whenFinding = [](FakeMediaBackend::Finding& finding) {
        FoundCrops failed;
        failed.message = QStringLiteral("Cannot use track.json: it is no crop track (line 1).");
        finding.End(failed);
    };
    EXPECT_TRUE(Choose(QStringLiteral("Open Crop Track…")));
    EXPECT_EQ(m_boxes, QStringList(QStringLiteral("Cannot use track.json: it is no crop track (line 1).")));
    EXPECT_EQ(m_backend->task, nullptr);
}

TEST_F(TestMainWindowTracks, OnlyOneVideoHasACropTrack)
{
    EXPECT_FALSE(Choose(QStringLiteral("Save Crop Track…")));
    Open({QStringLiteral("a.mp4"), QStringLiteral("b.mp4")});
    ASSERT_TRUE(WaitUntilAllAreOpen());
    EXPECT_FALSE(Choose(QStringLiteral("Save Crop Track…")));
    EXPECT_FALSE(Choose(QStringLiteral("Open Crop Track…")));
    EXPECT_FALSE(Choose(QStringLiteral("Export for")));
    EXPECT_FALSE(MenuOfTheFirstVideo().contains(QStringLiteral("Save Crop Track…")));
    View()->setCurrentIndex(View()->model()->index(0, 0));
    KxFileDialog::SetResponder([](const KxFileDialog::Shown&) { return QStringList(); });
    EXPECT_TRUE(Choose(QStringLiteral("Open Crop Track…")));
    EXPECT_TRUE(MenuOfTheFirstVideo().contains(QStringLiteral("Save Crop Track…")));
}
