#include <Tests/AutoReframe/MainWindowTest.h>

#include <Apps/AutoReframe/Batch/BatchDialog.h>

#include <QApplication>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>

namespace
{

class TestMainWindowBatch : public TestMainWindow
{
protected:
    /// What the person does in the next dialog of "Reframe All…".
    void WhenAsked(const std::function<void(BatchDialog& dialog)>& answer)
    {
        QTimer::singleShot(0, m_window.get(), [answer] {
            auto* const dialog = qobject_cast<BatchDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            answer(*dialog);
        });
    }
    static QAbstractButton* In(BatchDialog& dialog, const char* name)
    {
        return dialog.findChild<QAbstractButton*>(QLatin1String(name));
    }
    /// Reframes all selected videos to 9:16 and 1:1.
    void ReframeAll()
    {
        WhenAsked([this](BatchDialog& dialog) {
            dialog.findChild<QLineEdit*>(QStringLiteral("KxOpenFileLineEdit_edit"))->setText(m_folder.path());
            In(dialog, "BatchDialog_1x1")->click();
            In(dialog, "BatchDialog_accept")->click();
        });
        Button("TopBar_reframeAll")->click();
    }
    bool WaitForText(const char* name, const QString& text) const
    {
        return QTest::qWaitFor([&] { return Text(name) == text; }, 10000);
    }
    void FailOne(const QString& message)
    {
        ASSERT_TRUE(WaitForFinding());
        FoundCrops failed;
        failed.message = message;
        m_backend->finding->End(failed);
    }
};

} // namespace

TEST_F(TestMainWindowBatch, AllSelectedVideosAreReframedInAllChosenRatios)
{
    Open({QStringLiteral("a.mp4"), QStringLiteral("b.mp4")});
    ASSERT_TRUE(WaitUntilAllAreOpen());
    ReframeAll();
    EXPECT_EQ(m_window->findChildren<QWidget*>(QStringLiteral("ExportCard")).size(), 4);
    EXPECT_EQ(Text("QueueBar_text"), QStringLiteral("0 of 4 done"));
    FinishOne();
    EXPECT_TRUE(WaitForText("QueueBar_text", QStringLiteral("1 of 4 done")));
    ASSERT_TRUE(WaitForFinding());
    EXPECT_EQ(m_backend->finding->request.plan.aspect, QSize(1, 1));
    FinishOne({40});
    FailOne(QStringLiteral("Cannot reframe b.mp4: it is too short."));
    ASSERT_TRUE(WaitForText("QueueBar_text", QStringLiteral("2 of 4 done, 1 failed")));
    FinishOne({40, 90});
    EXPECT_TRUE(WaitForText("QueueBar_text", QStringLiteral("3 done, 1 failed, 2 to look at")));
    EXPECT_TRUE(Button("QueueBar_look")->isVisible());
    EXPECT_FALSE(Button("QueueBar_pause")->isVisible());
    Button("QueueBar_retry")->click();
    EXPECT_TRUE(WaitForFinding());
    EXPECT_EQ(Text("QueueBar_text"), QStringLiteral("3 of 4 done"));
}

TEST_F(TestMainWindowBatch, TheSummaryEndsWhereTheCardsEnd)
{
    QStringList names;
    for (int i = 0; i < 12; ++i) {
        names += QStringLiteral("%1.mp4").arg(i);
    }
    Open(names);
    ASSERT_TRUE(WaitUntilAllAreOpen());
    ReframeAll();
    const auto* const list = Child<QScrollArea>("ExportPanel_list");
    const auto* const panel = Child<QWidget>("ExportPanel");
    const auto right = [&](const char* name) {
        const auto* const widget = Child<QWidget>(name);
        return widget->mapTo(panel, widget->rect().topRight()).x();
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return list->verticalScrollBar()->isVisible(); }, 10000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return right("ExportCard") == right("QueueBar"); }, 10000));
    EXPECT_LE(right("ExportCard"), list->verticalScrollBar()->mapTo(panel, QPoint()).x());
    m_window->resize(m_window->width(), 5000);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !list->verticalScrollBar()->isVisible(); }, 10000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return right("ExportCard") == right("QueueBar"); }, 10000));
}

TEST_F(TestMainWindowBatch, TheSummaryCountsExportsWithoutAllEdits)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilAllAreOpen());
    ReframeAll();
    ASSERT_TRUE(WaitForFinding());
    FinishOne({}, 2);
    FinishOne();
    EXPECT_TRUE(WaitForText("QueueBar_text", QStringLiteral("2 done, 1 without all edits")));
}

TEST_F(TestMainWindowBatch, WhatThePersonDecidedAboutAVideoIsKeptTo)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    VideoEdits edits;
    edits.editPoints.insert(25, QRectF(0.1, 0.0, 0.3, 1.0));
    edits.choices = "{}";
    m_backend->inDialog = [&](const DialogCallbacks& callbacks) {
        callbacks.editsChanged(m_folder.filePath(QStringLiteral("a.mp4")), edits);
    };
    Button("TopBar_reframe")->click();
    ReframeAll();
    ASSERT_TRUE(WaitForFinding());
    EXPECT_TRUE(m_backend->finding->request.edits == edits);
}

TEST_F(TestMainWindowBatch, LookingOpensTheVideoAtTheSettingsOfItsExport)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    ReframeAll();
    FinishOne();
    FinishOne({40, 90});
    ASSERT_TRUE(WaitForText("QueueBar_text", QStringLiteral("2 done, 1 to look at")));
    const QString path = m_folder.filePath(QStringLiteral("a.mp4"));
    m_backend->inDialog = [&](const DialogCallbacks& callbacks) {
        VideoEdits edits = callbacks.loadEdits(path);
        EXPECT_EQ(edits.aspect, QSize(1, 1));
        EXPECT_EQ(edits.speed, 16);
        EXPECT_TRUE(edits.isAnalyzed);
        EXPECT_TRUE(callbacks.startsAtDoubtfulShot);
        edits.seenShots = {40, 90};
        callbacks.editsChanged(path, edits);
    };
    Button("QueueBar_look")->click();
    EXPECT_EQ(m_backend->dialogs, 1);
    EXPECT_EQ(Text("QueueBar_text"), QStringLiteral("2 done"));
    EXPECT_FALSE(Button("QueueBar_look")->isVisible());
    // Without the summary's link, the person's own settings count.
    m_backend->inDialog = [&](const DialogCallbacks& callbacks) {
        EXPECT_EQ(callbacks.loadEdits(path).aspect, QSize(1, 1));
        EXPECT_FALSE(callbacks.startsAtDoubtfulShot);
    };
    Button("TopBar_reframe")->click();
    EXPECT_EQ(m_backend->dialogs, 2);
}

TEST_F(TestMainWindowBatch, LookingAtAVideoThatWasRemovedSaysSo)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    ReframeAll();
    FinishOne({40});
    FinishOne();
    QTest::keyClick(View(), Qt::Key_Delete);
    ASSERT_TRUE(WaitForText("QueueBar_text", QStringLiteral("2 done, 1 to look at")));
    Button("QueueBar_look")->click();
    EXPECT_EQ(m_boxes,
              QStringList(QStringLiteral("a.mp4 is no longer in the library. Import it to look at its shots.")));
    EXPECT_EQ(m_backend->dialogs, 0);
}

TEST_F(TestMainWindowBatch, PauseAndContinueAndCancelAll)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    ReframeAll();
    Button("QueueBar_pause")->click();
    EXPECT_EQ(Text("QueueBar_timeLeft"), QStringLiteral("Paused"));
    EXPECT_EQ(Button("QueueBar_pause")->text(), QStringLiteral("Continue"));
    EXPECT_EQ(Text("ExportCard_status"), QStringLiteral("Analyzing · Paused · 0 %"));
    Button("QueueBar_pause")->click();
    EXPECT_EQ(Text("QueueBar_timeLeft"), QString());
    Button("QueueBar_cancel")->click();
    EXPECT_TRUE(WaitForText("QueueBar_text", QStringLiteral("0 done, 2 cancelled")));
    Button("ExportPanel_clear")->click();
    EXPECT_FALSE(Child<QWidget>("QueueBar")->isVisible());
}

TEST_F(TestMainWindowBatch, TheLastSettingsAreOfferedAgain)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    ReframeAll();
    m_window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    bool isAsked = false;
    WhenAsked([&](BatchDialog& dialog) {
        isAsked = true;
        EXPECT_TRUE(In(dialog, "BatchDialog_1x1")->isChecked());
        EXPECT_EQ(dialog.Settings().folder, m_folder.path());
        In(dialog, "BatchDialog_cancel")->click();
    });
    QTest::keyClick(m_window.get(), Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(isAsked);
    EXPECT_EQ(m_window->findChildren<QWidget*>(QStringLiteral("ExportCard")).size(), 2);
}

TEST_F(TestMainWindowBatch, TheFirstFolderIsThatOfTheLastExport)
{
    QFile config(m_folder.filePath(QStringLiteral("config.ini")));
    ASSERT_TRUE(config.open(QIODevice::WriteOnly));
    config.write("[Auto%20Reframe]\nOutputPath=" + m_folder.path().toUtf8() + "\n");
    config.close();
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    QString folder;
    WhenAsked([&folder](BatchDialog& dialog) {
        folder = dialog.Settings().folder;
        dialog.reject();
    });
    Button("TopBar_reframeAll")->click();
    EXPECT_EQ(folder, m_folder.path());
}

TEST_F(TestMainWindowBatch, WithoutAVideoThereIsNothingToReframe)
{
    EXPECT_FALSE(Button("TopBar_reframeAll")->isEnabled());
    QTest::keyClick(m_window.get(), Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(TestMainWindowBatch, SelectingAllLeavesThePlaceForDropsOut)
{
    Open({QStringLiteral("a.mp4"), QStringLiteral("b.mp4"), QStringLiteral("c.mp4")});
    ASSERT_TRUE(WaitUntilAllAreOpen());
    View()->clearSelection();
    QTest::keyClick(View(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(View()->SelectedVideos().size(), 3);
    EXPECT_EQ(Text("StatusBar_text"), QStringLiteral("3 videos · 3 selected"));
}

TEST_F(TestMainWindowBatch, EveryButtonHasAToolTipAndIsReachedWithTab)
{
    Open({QStringLiteral("a.mp4")});
    ASSERT_TRUE(WaitUntilUsable());
    ReframeAll();
    FinishOne({40});
    FailOne(QStringLiteral("Cannot reframe a.mp4: it is too short."));
    ASSERT_TRUE(WaitForText("QueueBar_text", QStringLiteral("1 done, 1 failed, 1 to look at")));
    const QSet<QWidget*> reached = ReachedWithTab();
    int links = 0;
    for (QAbstractButton* const button : m_window->findChildren<QAbstractButton*>()) {
        if (button->isVisible() && button->isEnabled()) {
            EXPECT_TRUE(reached.contains(button)) << button->objectName().toStdString();
            EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
            links += button->objectName().startsWith(QLatin1String("QueueBar_")) ? 1 : 0;
        }
    }
    EXPECT_EQ(links, 2);
}
