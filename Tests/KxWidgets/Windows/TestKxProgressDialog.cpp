#include <Tests/KxWidgets/Hand.h>

#include <KxWidgets/KxProgressDialog.h>
#include <KxWidgets/KxPushButton.h>
#include <KxWidgets/KxTopLevelWindowTitleBar.h>

#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTimer>

#include <gtest/gtest.h>

namespace
{

class KxProgressDialogTest : public testing::Test
{
protected:
    // Runs the dialog and calls `act` when it is on the screen.
    template<typename Act>
    int Run(Act act)
    {
        QTimer::singleShot(0, &dialog, act);
        return dialog.exec();
    }

    KxPushButton& CancelButton() { return *dialog.findChild<KxPushButton*>(QStringLiteral("KxProgressDialog_cancel")); }
    QAbstractButton& CloseButton() { return *dialog.GetTitleBar()->GetButton(KxTopLevelWindowTitleBar::CloseButton); }

    KxProgressDialog dialog{QStringLiteral("Auto Reframe"), nullptr};
    QSignalSpy rejected{&dialog, &QDialog::rejected};
};

TEST_F(KxProgressDialogTest, CancelButtonRejectsOnceWithItsReason)
{
    EXPECT_EQ(Run([this] { CancelButton().click(); }), 0);
    EXPECT_EQ(rejected.count(), 1);
    EXPECT_EQ(dialog.GetCloseReason(), 1);
}

TEST_F(KxProgressDialogTest, CloseButtonRejectsOnceWithItsReason)
{
    EXPECT_EQ(Run([this] { CloseButton().click(); }), 0);
    EXPECT_EQ(rejected.count(), 1);
    EXPECT_EQ(dialog.GetCloseReason(), 2);
}

TEST_F(KxProgressDialogTest, EscapeRejectsOnceAsClosed)
{
    EXPECT_EQ(Run([this] { QTest::keyClick(&dialog, Qt::Key_Escape); }), 0);
    EXPECT_EQ(rejected.count(), 1);
    EXPECT_EQ(dialog.GetCloseReason(), 2);
}

TEST_F(KxProgressDialogTest, HidingEndsItWithoutRejecting)
{
    Run([this] { dialog.hide(); });
    EXPECT_EQ(rejected.count(), 0);
    EXPECT_EQ(dialog.GetCloseReason(), 0);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(KxProgressDialogTest, ReasonIsKnownWhileRejectedIsEmitted)
{
    int seen = -1;
    QObject::connect(&dialog, &QDialog::rejected, &dialog, [&] { seen = dialog.GetCloseReason(); });
    Run([this] { CancelButton().click(); });
    EXPECT_EQ(seen, 1);
}

TEST_F(KxProgressDialogTest, HidingWhileRejectedIsEmittedIsHarmless)
{
    QObject::connect(&dialog, &QDialog::rejected, &dialog, &QWidget::hide);
    Run([this] { CancelButton().click(); });
    EXPECT_EQ(rejected.count(), 1);
}

TEST_F(KxProgressDialogTest, EveryRunStartsWithoutAReason)
{
    Run([this] { CancelButton().click(); });
    Run([this] { dialog.hide(); });
    EXPECT_EQ(dialog.GetCloseReason(), 0);
    EXPECT_EQ(rejected.count(), 1);
}

TEST_F(KxProgressDialogTest, ShowsRangeProgressAndTexts)
{
    auto* bar = dialog.findChild<QProgressBar*>();
    auto* title = dialog.findChild<QLabel*>(QStringLiteral("KxProgressDialog_title"));
    auto* info = dialog.findChild<QLabel*>(QStringLiteral("KxProgressDialog_info"));
    ASSERT_TRUE(bar && title && info);
    dialog.SetRange(0, 10000);
    dialog.SetProgress(9999);
    dialog.SetProgressTitle(QStringLiteral("Converting video. Please wait..."), QStringLiteral("None"));
    dialog.SetInfoText(QStringLiteral("99%"), QStringLiteral("tip"), Qt::AlignRight | Qt::AlignVCenter);
    EXPECT_EQ(bar->maximum(), 10000);
    EXPECT_EQ(bar->value(), 9999);
    EXPECT_EQ(title->text(), QStringLiteral("Converting video. Please wait..."));
    EXPECT_EQ(dialog.InfoText(), QStringLiteral("99%"));
    EXPECT_EQ(info->toolTip(), QStringLiteral("tip"));
    EXPECT_EQ(info->alignment(), Qt::AlignRight | Qt::AlignVCenter);
}

} // namespace
