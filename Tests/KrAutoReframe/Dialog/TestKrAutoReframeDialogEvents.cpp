#include <Tests/KrAutoReframe/Dialog/DialogFixture.h>
#include <Tests/Support/Eventually.h>

#include <QtTest>

namespace
{

class DialogEventsTest : public DialogTest
{
protected:
    void LoadAndAnalyse()
    {
        Load(Video(QStringLiteral("/v/clip.mp4")));
        Analyse();
        ASSERT_TRUE(overlay->isVisible());
    }

    void ExpectQuestion(const QString& refuseText) const
    {
        ASSERT_EQ(recorders.boxes.size(), 1u);
        const KrMessageDialog::Shown& box = recorders.boxes.front();
        EXPECT_EQ(box.text, QStringLiteral("Are you sure you want to exit?"));
        EXPECT_EQ(box.title, QStringLiteral("Auto Reframe"));
        EXPECT_EQ(box.refuseText, refuseText);
        EXPECT_EQ(box.confirmText, QStringLiteral("AutoReframe_Exit"));
        EXPECT_EQ(box.defaultButton, KrStandardButton(2));
        EXPECT_EQ(box.type, KrMessageType(0));
        EXPECT_EQ(box.parent, dialog.get());
    }

    void ExpectUntouched() const
    {
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_TRUE(view->isVisible());
        EXPECT_TRUE(overlay->isVisible());
        EXPECT_TRUE(Export().isEnabled());
    }
};

} // namespace

TEST_F(DialogEventsTest, ClosesWithoutAQuestionBeforeASourceIsLoaded)
{
    QSignalSpy rejected(dialog.get(), &QDialog::rejected);
    EXPECT_TRUE(dialog->close());
    EXPECT_TRUE(recorders.boxes.empty());
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(rejected.count(), 1);
}

TEST_F(DialogEventsTest, EscapeClosesWithoutAQuestionBeforeASourceIsLoaded)
{
    QSignalSpy rejected(dialog.get(), &QDialog::rejected);
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_TRUE(recorders.boxes.empty());
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(rejected.count(), 1);
}

TEST_F(DialogEventsTest, ClosingAsksOnceASourceIsLoaded)
{
    LoadAndAnalyse();
    recorders.confirms = false;
    EXPECT_FALSE(dialog->close());
    ExpectQuestion(QStringLiteral("Cancel"));
    ExpectUntouched();
}

TEST_F(DialogEventsTest, ConfirmedItCloses)
{
    LoadAndAnalyse();
    QSignalSpy rejected(dialog.get(), &QDialog::rejected);
    EXPECT_TRUE(dialog->close());
    ExpectQuestion(QStringLiteral("Cancel"));
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_FALSE(overlay->isVisible());
    EXPECT_EQ(rejected.count(), 1);
    EXPECT_EQ(dialog->result(), 0);
}

TEST_F(DialogEventsTest, EscapeAsksWithAnotherRefusal)
{
    LoadAndAnalyse();
    recorders.confirms = false;
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    ExpectQuestion(QStringLiteral("No"));
    ExpectUntouched();
}

TEST_F(DialogEventsTest, EscapeConfirmedClosesWithOneQuestion)
{
    for (const Qt::KeyboardModifier held : {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier}) {
        Make(nullptr);
        LoadAndAnalyse();
        recorders.boxes.clear();
        recorders.events.clear();
        QSignalSpy rejected(dialog.get(), &QDialog::rejected);
        QTest::keyClick(dialog.get(), Qt::Key_Escape, held);
        ExpectQuestion(QStringLiteral("No"));
        EXPECT_FALSE(dialog->isVisible()) << int(held);
        EXPECT_FALSE(overlay->isVisible());
        EXPECT_EQ(rejected.count(), 1);
        EXPECT_TRUE(recorders.events.isEmpty()) << "nothing was clicked";
    }
}

TEST_F(DialogEventsTest, ATimelineIsASourceAsWell)
{
    dialog->InitTimeline(FakeHost::MakeTimeline({Video(QStringLiteral("/v/clip.mp4"))}));
    recorders.confirms = false;
    EXPECT_FALSE(dialog->close());
    ExpectQuestion(QStringLiteral("Cancel"));
}

TEST_F(DialogEventsTest, OtherKeysAskNothing)
{
    LoadAndAnalyse();
    for (const int key : {Qt::Key_A, Qt::Key_Return, Qt::Key_Space, Qt::Key_F1}) {
        QTest::keyClick(dialog.get(), Qt::Key(key));
    }
    EXPECT_TRUE(recorders.boxes.empty());
    ExpectUntouched();
}

TEST_F(DialogEventsTest, TheTitleBarsCloseButtonAsks)
{
    LoadAndAnalyse();
    recorders.confirms = false;
    dialog->GetTitleBar()->GetButton(32)->click();
    ExpectQuestion(QStringLiteral("Cancel"));
    ExpectUntouched();
}

TEST_F(DialogEventsTest, TheCropFollowsTheDialog)
{
    LoadAndAnalyse();
    // Only the effect of a move, not that of a layout.
    Player().videoRect = QRect(10, 20, 600, 300);
    ASSERT_NE(overlay->size(), QSize(600, 300));
    QMoveEvent moved(dialog->pos(), dialog->pos());
    QApplication::sendEvent(dialog.get(), &moved);
    EXPECT_EQ(overlay->pos(), view->mapToGlobal(QPoint(10, 20)));
    EXPECT_EQ(overlay->size(), QSize(600, 300));
    dialog->move(dialog->pos() + QPoint(60, 40));
    ASSERT_EVENTUALLY_EQ(overlay->pos(), view->mapToGlobal(QPoint(10, 20)));
}

TEST_F(DialogEventsTest, AHiddenCropStaysWhereItIs)
{
    LoadAndAnalyse();
    Preview().click();
    ASSERT_FALSE(overlay->isVisible());
    const QRect before = overlay->geometry();
    Player().videoRect = QRect(10, 20, 600, 300);
    const QPoint from = dialog->pos();
    dialog->move(from + QPoint(60, 40));
    ASSERT_EVENTUALLY_EQ(dialog->pos(), from + QPoint(60, 40));
    EXPECT_EQ(overlay->geometry(), before);
}

TEST_F(DialogEventsTest, TheNameStaysInTheMiddle)
{
    Load(Video(QStringLiteral("/v/clip.mp4")));
    for (const QSize& size : {QSize(1401, 900), QSize(1600, 901)}) {
        dialog->resize(size);
        ASSERT_EVENTUALLY_EQ(dialog->size(), size);
        const int barHeight = dialog->GetTitleBar()->height();
        EXPECT_EQ(NameLabel().geometry(), QRect((size.width() - 300) / 2, (barHeight - 24) / 2, 300, 24));
        EXPECT_EQ(NameLabel().text(), QStringLiteral("clip.mp4"));
    }
}

TEST_F(DialogEventsTest, WithoutASourceResizingShowsNoName)
{
    dialog->resize(1500, 900);
    ASSERT_EVENTUALLY_EQ(dialog->width(), 1500);
    EXPECT_TRUE(NameLabel().text().isEmpty());
}
