#include <KrAutoReframe/Extensions/KrDoubtfulShots.h>
#include <Tests/KrAutoReframe/Dialog/ExtendedDialogTest.h>
#include <Tests/Support/Eventually.h>

#include <QHelpEvent>
#include <QToolTip>
#include <QtTest>

namespace
{

constexpr auto Sure = KxAutoReframeDoubt::None;

class KrDoubtfulShotsTest : public ExtendedDialogTest
{
protected:
    /// Shots of 25 frames each; the second and the last are doubtful.
    void FindFourShots()
    {
        service.shots = {{0, 25, 0.9, Sure},
                         {25, 50, 0.3, KxAutoReframeDoubt::SeveralPeople},
                         {50, 75, 0.8, Sure},
                         {75, 100, 0.0, KxAutoReframeDoubt::NothingStandsOut}};
    }
    void AnalyseFourShots()
    {
        FindFourShots();
        Load(Video(clip));
        Analyse();
        presenter->pause();
        Player().calls.clear();
    }
    QAbstractButton& Previous() const { return BarButton("KrAutoReframe_previousDoubt"); }
    QAbstractButton& Next() const { return BarButton("KrAutoReframe_nextDoubt"); }
    bool HasSeen(const QList<uint>& firstFrames) { return StateOf(clip).seenShots == firstFrames; }
};

} // namespace

TEST_F(KrDoubtfulShotsTest, ThePanelCountsTheShotsToLookAt)
{
    EXPECT_EQ(Fact(), QString());
    AnalyseFourShots();
    EXPECT_EQ(Fact(), QStringLiteral("2 of 4 shots to look at"));
}

TEST_F(KrDoubtfulShotsTest, TheButtonsLeadToTheDoubtfulShotsAndNoFarther)
{
    EXPECT_FALSE(Next().isEnabled());
    AnalyseFourShots();
    EXPECT_FALSE(Previous().isEnabled());
    Next().click();
    EXPECT_EQ(Player().calls, (QStringList{QStringLiteral("pause"), QStringLiteral("seek 25 0 0")}));
    FakePlayer::ShowFrame(*presenter, 25);
    Next().click();
    FakePlayer::ShowFrame(*presenter, 75);
    EXPECT_EQ(Player().calls.last(), QStringLiteral("seek 75 0 0"));
    EXPECT_FALSE(Next().isEnabled());
    Previous().click();
    EXPECT_EQ(Player().calls.last(), QStringLiteral("seek 25 0 0"));
}

TEST_F(KrDoubtfulShotsTest, ASecondPressCountsFromTheShotThatIsAboutToShow)
{
    AnalyseFourShots();
    Next().click();
    Next().click();
    EXPECT_EQ(Player().calls.last(), QStringLiteral("seek 75 0 0"));
}

TEST_F(KrDoubtfulShotsTest, TheKeysDoWhatTheButtonsDo)
{
    AnalyseFourShots();
    dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    QTest::keyClick(dialog.get(), Qt::Key_N);
    EXPECT_EQ(Player().calls.last(), QStringLiteral("seek 25 0 0"));
    FakePlayer::ShowFrame(*presenter, 80);
    QTest::keyClick(dialog.get(), Qt::Key_N, Qt::ShiftModifier);
    EXPECT_EQ(Player().calls.last(), QStringLiteral("seek 25 0 0"));
    EXPECT_EQ(Next().toolTip(), QStringLiteral("Next Doubtful Shot (N)"));
    EXPECT_EQ(Previous().toolTip(), QStringLiteral("Previous Doubtful Shot (Shift+N)"));
}

TEST_F(KrDoubtfulShotsTest, ALookMarksAShotAsSeen)
{
    AnalyseFourShots();
    FakePlayer::ShowFrame(*presenter, 30);
    ASSERT_EVENTUALLY(HasSeen({25}));
    EXPECT_EQ(Fact(), QStringLiteral("1 of 4 shots to look at"));
    FakePlayer::ShowFrame(*presenter, 80);
    ASSERT_EVENTUALLY(HasSeen({25, 75}));
    EXPECT_EQ(Fact(), QStringLiteral("All doubtful shots seen"));
}

TEST_F(KrDoubtfulShotsTest, AHostMayStartAtTheFirstShotToLookAt)
{
    StateOf(clip).startsAtDoubtfulShot = true;
    StateOf(clip).isAnalyzed = true;
    StateOf(clip).seenShots = {25};
    FindFourShots();
    Load(Video(clip));
    Analyse();
    EXPECT_EQ(Player().calls.last(), QStringLiteral("seek 75 0 0"));
    Player().calls.clear();
    Analyse();
    EXPECT_FALSE(Player().calls.contains(QStringLiteral("seek 75 0 0"))) << "only the first result";
}

TEST_F(KrDoubtfulShotsTest, ADragAcrossAShotDoesNotMarkItAsSeen)
{
    AnalyseFourShots();
    FakePlayer::ShowFrame(*presenter, 30);
    FakePlayer::ShowFrame(*presenter, 80);
    ASSERT_EVENTUALLY(HasSeen({75}));
}

TEST_F(KrDoubtfulShotsTest, WhatWasSeenEarlierStaysSeen)
{
    StateOf(clip).seenShots = {75};
    AnalyseFourShots();
    EXPECT_EQ(Fact(), QStringLiteral("1 of 4 shots to look at"));
}

TEST_F(KrDoubtfulShotsTest, AnotherSourceHasNoShotsYet)
{
    AnalyseFourShots();
    Load(Video(QStringLiteral("/v/other.mp4")));
    EXPECT_EQ(Fact(), QString());
    EXPECT_FALSE(Next().isEnabled());
}

TEST_F(KrDoubtfulShotsTest, TheSliderNamesTheReason)
{
    AnalyseFourShots();
    KrAutoReframePlayerToolSlider& slider = view->ControlBar().Slider();
    slider.setDuration(100.0);
    auto* const marks = slider.findChild<QWidget*>(QStringLiteral("KrUIStyle_ToolBarSlider_MarkWidget"));
    const QPoint inSecond(slider.width() * 2 / 5, slider.height() / 2);
    QHelpEvent ask(QEvent::ToolTip, inSecond, marks->mapToGlobal(inSecond));
    QApplication::sendEvent(marks, &ask);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("Shot 2 of 4: several people or animals, far apart"));
    QToolTip::hideText();
}

TEST_F(DialogTest, AServiceWithoutShotsHasNoWayThroughThem)
{
    StateKeeper keeper;
    dialog->SetExtensions(keeper);
    Load(Video(QStringLiteral("/v/clip.mp4")));
    Analyse();
    EXPECT_EQ(view->findChild<KrDoubtfulShots*>(), nullptr);
    EXPECT_EQ(keeper.changes, 1);
    dialog.reset();
}
