#include <KrAutoReframe/Extensions/KrFollowControls.h>
#include <KrAutoReframe/Extensions/KrSubjectBox.h>
#include <Tests/KrAutoReframe/Dialog/ExtendedDialogTest.h>
#include <Tests/KrAutoReframe/WidgetProbe.h>
#include <Tests/Support/Eventually.h>

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QLabel>
#include <QMenu>
#include <QThreadPool>
#include <QToolTip>
#include <QUndoStack>
#include <QtTest>

#include <future>

namespace
{

constexpr int Ended = 2;
using Kind = KxAutoReframeChoice::Kind;

class KrFollowControlsTest : public ExtendedDialogTest
{
protected:
    KrFollowControlsTest()
        : taking(FakeHost::OfferChoices())
    {
        MakeExtended();
        box = overlay->findChild<KrSubjectBox*>();
        taking.shots = {{0, 25, 0.9, KxAutoReframeDoubt::None}, {25, 100, 0.9, KxAutoReframeDoubt::None}};
        Load(Video(clip));
        Analyse();
        presenter->pause();
        FakePlayer::ShowFrame(*presenter, 50);
        // Every later task ends at once, too.
        QObject::connect(&m_ends, &QTimer::timeout, overlay, [this] { EndRunningTask(); });
        m_ends.start(5);
    }
    ~KrFollowControlsTest() override { dialog.reset(); }

    QPoint At(double x, double y) const
    {
        const QRect picture = overlay->GetPictureLabel()->geometry();
        return picture.topLeft() + QPoint(qRound(x * picture.width()), qRound(y * picture.height()));
    }
    void Drag(const QPoint& from, const QPoint& to)
    {
        WidgetProbe::Press(*overlay, from, Qt::RightButton);
        WidgetProbe::SendMouse(*overlay, QEvent::MouseMove, to, Qt::NoButton, Qt::RightButton);
        WidgetProbe::Release(*overlay, to, Qt::RightButton);
    }
    void Click(const QPoint& at)
    {
        WidgetProbe::Press(*overlay, at, Qt::RightButton);
        WidgetProbe::Release(*overlay, at, Qt::RightButton);
    }
    QMenu* Menu() const { return view->findChild<QMenu*>(QStringLiteral("KrAutoReframe_followMenu")); }
    void Choose(const QString& text)
    {
        ASSERT_NE(Menu(), nullptr);
        for (QAction* const action : Menu()->actions()) {
            if (action->text() == text) {
                action->trigger();
                Menu()->close();
                return;
            }
        }
        FAIL() << text.toStdString();
    }
    /// Of the slider, at this share of its length.
    QString ToolTipAt(double share)
    {
        KrAutoReframePlayerToolSlider& slider = view->ControlBar().Slider();
        slider.setDuration(100.0);
        auto* const marks = slider.findChild<QWidget*>(QStringLiteral("KrUIStyle_ToolBarSlider_MarkWidget"));
        QToolTip::hideText();
        const QPoint at(qRound(slider.width() * share), slider.height() / 2);
        QHelpEvent ask(QEvent::ToolTip, at, marks->mapToGlobal(at));
        QApplication::sendEvent(marks, &ask);
        return QToolTip::text();
    }
    bool HasDecided() const { return m_decisions > 0; }

    FakeHost::ServiceWithChoices& taking;
    KrSubjectBox* box = nullptr;

private:
    void EndRunningTask()
    {
        const int starts = taking.Calls().filter(QStringLiteral("StartTask")).size();
        if (starts > m_starts) {
            m_starts = starts;
            if (starts > 1) {
                ++m_decisions;
                taking.FireFromThread(Ended, 100);
            }
        }
    }

    QTimer m_ends;
    int m_starts = 1;
    int m_decisions = 0;
};

} // namespace

TEST_F(KrFollowControlsTest, ABoxThatIsDrawnIsFollowedInItsShot)
{
    Drag(At(0.2, 0.3), At(0.4, 0.7));
    EXPECT_NEAR(box->Box().x(), 0.2, 0.01);
    EXPECT_NEAR(box->Box().height(), 0.4, 0.01);
    Choose(QStringLiteral("Follow This"));
    ASSERT_EQ(taking.choices.size(), 1);
    const KxAutoReframeChoice choice = taking.choices.first();
    EXPECT_EQ(choice.kind, Kind::Follow);
    EXPECT_DOUBLE_EQ(choice.fromSeconds, 1.0);
    EXPECT_DOUBLE_EQ(choice.toSeconds, 4.0);
    ASSERT_EQ(choice.seeds.size(), 1);
    EXPECT_DOUBLE_EQ(choice.seeds.first().seconds, 2.0);
    EXPECT_NEAR(choice.seeds.first().box.width(), 0.2, 0.01);
    EXPECT_FALSE(choice.seeds.first().isGuessed);
    EXPECT_TRUE(box->Box().isEmpty());
    ASSERT_EVENTUALLY(HasDecided());
}

TEST_F(KrFollowControlsTest, AClickShowsTheBoxThatTheServiceGuesses)
{
    Click(At(0.5, 0.5));
    ASSERT_EVENTUALLY(Menu() != nullptr);
    EXPECT_NEAR(box->Box().x(), 0.45, 0.01);
    EXPECT_NEAR(box->Box().width(), 0.1, 1e-9);
    Choose(QStringLiteral("Not This"));
    ASSERT_EQ(taking.choices.size(), 1);
    EXPECT_EQ(taking.choices.first().kind, Kind::Avoid);
    EXPECT_TRUE(taking.choices.first().seeds.first().isGuessed);
}

TEST_F(KrFollowControlsTest, WhereNothingIsGuessedABoxOfUsualSizeIsShown)
{
    taking.guess = QSizeF();
    Click(At(0.5, 0.5));
    ASSERT_EVENTUALLY(Menu() != nullptr);
    EXPECT_NEAR(box->Box().width(), 0.14, 1e-9);
}

TEST_F(KrFollowControlsTest, AGuessThatTakesItsTimeIsShown)
{
    std::promise<void> end;
    taking.whileGuessing = [ended = end.get_future().share()] { ended.wait(); };
    Click(At(0.5, 0.5));
    EXPECT_TRUE(box->IsSeeking());
    EXPECT_TRUE(box->isVisible());
    EXPECT_EQ(box->cursor().shape(), Qt::BusyCursor);
    end.set_value();
    ASSERT_EVENTUALLY(Menu() != nullptr);
    EXPECT_FALSE(box->IsSeeking());
    EXPECT_NE(box->cursor().shape(), Qt::BusyCursor);
}

TEST_F(KrFollowControlsTest, EscapeOrAPressOfAButtonEndsAGuess)
{
    const auto press = [this] { WidgetProbe::Press(*overlay, At(0.9, 0.9)); };
    const auto escape = [this] { QTest::keyClick(&view->PlayerWidget(), Qt::Key_Escape); };
    for (const std::function<void()>& ending : {std::function<void()>(escape), std::function<void()>(press)}) {
        std::promise<void> end;
        taking.whileGuessing = [ended = end.get_future().share()] { ended.wait(); };
        Click(At(0.5, 0.5));
        ending();
        EXPECT_FALSE(box->IsSeeking());
        EXPECT_FALSE(box->isVisible());
        WidgetProbe::Release(*overlay, At(0.9, 0.9));
        end.set_value();
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        EXPECT_EQ(Menu(), nullptr);
    }
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(recorders.boxes.empty());
}

TEST_F(KrFollowControlsTest, AHandleAdjustsTheBoxAndConfirmsIt)
{
    Click(At(0.5, 0.5));
    ASSERT_EVENTUALLY(Menu() != nullptr);
    Menu()->close();
    const QPoint corner(qRound(box->Box().right() * box->width()), qRound(box->Box().bottom() * box->height()));
    const QPoint wider = corner + QPoint(box->width() / 10, 0);
    WidgetProbe::Press(*box, corner);
    WidgetProbe::MoveHeld(*box, wider);
    WidgetProbe::Release(*box, wider);
    EXPECT_NEAR(box->Box().width(), 0.2, 0.01);
    ASSERT_EVENTUALLY(Menu() == nullptr);
    Click(At(0.5, 0.5));
    Choose(QStringLiteral("Follow This"));
    EXPECT_FALSE(taking.choices.first().seeds.first().isGuessed);
}

TEST_F(KrFollowControlsTest, HoldKeepsTheCropThatIsShown)
{
    Drag(At(0.2, 0.3), At(0.4, 0.7));
    const QPointF centre = overlay->GetCropRect().center();
    Choose(QStringLiteral("Hold the Crop in This Shot"));
    EXPECT_EQ(taking.choices.first().kind, Kind::Hold);
    EXPECT_EQ(taking.choices.first().centre, centre);
    EXPECT_TRUE(taking.choices.first().seeds.isEmpty());
}

TEST_F(KrFollowControlsTest, AClickOnBackgroundOffersToHoldTheCropThere)
{
    taking.isBackground = true;
    Click(At(0.6, 0.5));
    ASSERT_EVENTUALLY(Menu() != nullptr);
    EXPECT_EQ(Menu()->actions().first()->text(), QStringLiteral("This looks like background"));
    EXPECT_FALSE(Menu()->actions().first()->isEnabled());
    Choose(QStringLiteral("Hold the Crop Here in This Shot"));
    ASSERT_EQ(taking.choices.size(), 1);
    EXPECT_EQ(taking.choices.first().kind, Kind::Hold);
    EXPECT_NEAR(taking.choices.first().centre.x(), 0.6, 0.01);
    EXPECT_TRUE(taking.choices.first().seeds.isEmpty());
}

TEST_F(KrFollowControlsTest, ABoxThatWasDrawnIsFollowedWhateverIsInIt)
{
    taking.isBackground = true;
    Click(At(0.6, 0.5));
    ASSERT_EVENTUALLY(Menu() != nullptr);
    Menu()->close();
    ASSERT_EVENTUALLY(Menu() == nullptr);
    Drag(At(0.2, 0.3), At(0.4, 0.7));
    ASSERT_EVENTUALLY(Menu() != nullptr);
    EXPECT_EQ(Menu()->actions().first()->text(), QStringLiteral("Follow This"));
}

TEST_F(KrFollowControlsTest, BackToAutomaticIsOfferedWhereSomethingWasChosen)
{
    Drag(At(0.2, 0.3), At(0.4, 0.7));
    ASSERT_NE(Menu(), nullptr);
    EXPECT_FALSE(Menu()->actions().last()->isEnabled());
    Choose(QStringLiteral("Follow This"));
    ASSERT_EVENTUALLY(HasDecided() && Menu() == nullptr);
    Drag(At(0.2, 0.3), At(0.4, 0.7));
    ASSERT_NE(Menu(), nullptr);
    EXPECT_EQ(Menu()->actions().last()->text(), QStringLiteral("Back to Automatic"));
    EXPECT_TRUE(Menu()->actions().last()->isEnabled());
    Menu()->close();
}

TEST_F(KrFollowControlsTest, TheSliderShowsWhereWhatIsFollowedWasLost)
{
    taking.losses = {{60, 79}};
    Drag(At(0.2, 0.3), At(0.4, 0.7));
    Choose(QStringLiteral("Follow This"));
    ASSERT_EVENTUALLY(HasDecided());
    const QString lost = QStringLiteral("Lost from 00:00:02:10: point again");
    EXPECT_TRUE(QTest::qWaitFor([&] { return ToolTipAt(0.7).contains(lost); })) << ToolTipAt(0.7).toStdString();
    EXPECT_FALSE(ToolTipAt(0.9).contains(QStringLiteral("Lost")));
    taking.losses.clear();
    Drag(At(0.2, 0.3), At(0.5, 0.7));
    Choose(QStringLiteral("Back to Automatic"));
    EXPECT_FALSE(ToolTipAt(0.7).contains(QStringLiteral("Lost")));
    QToolTip::hideText();
}

TEST_F(KrFollowControlsTest, TheSliderShowsWhereWhatIsFollowedIsDoubted)
{
    taking.losses = {{40, 79, KxAutoReframeLoss::Kind::Doubted}, {60, 79}};
    Drag(At(0.2, 0.3), At(0.4, 0.7));
    Choose(QStringLiteral("Follow This"));
    ASSERT_EVENTUALLY(HasDecided());
    const QString doubted = QStringLiteral("Perhaps lost from 00:00:01:15: look, and point again");
    EXPECT_TRUE(QTest::qWaitFor([&] { return ToolTipAt(0.5).contains(doubted); })) << ToolTipAt(0.5).toStdString();
    EXPECT_TRUE(ToolTipAt(0.7).contains(QStringLiteral("Lost from 00:00:02:10: point again")))
        << ToolTipAt(0.7).toStdString();
    QToolTip::hideText();
}

TEST_F(KrFollowControlsTest, WhatIsAvoidedDoesNotHideOnTheSliderWhatIsFollowed)
{
    Drag(At(0.2, 0.3), At(0.4, 0.7));
    Choose(QStringLiteral("Follow This"));
    Drag(At(0.6, 0.3), At(0.8, 0.7));
    Choose(QStringLiteral("Not This"));
    ASSERT_EQ(taking.choices.size(), 2);
    EXPECT_TRUE(ToolTipAt(0.7).contains(QStringLiteral("The crop follows your choice")))
        << ToolTipAt(0.7).toStdString();
    Drag(At(0.6, 0.3), At(0.8, 0.7));
    Choose(QStringLiteral("Hold the Crop in This Shot"));
    EXPECT_TRUE(ToolTipAt(0.7).contains(QStringLiteral("The crop is held"))) << ToolTipAt(0.7).toStdString();
    QToolTip::hideText();
}

TEST_F(KrFollowControlsTest, TheWholePictureCanBeShownInAShot)
{
    Drag(At(0.2, 0.3), At(0.4, 0.7));
    Choose(QStringLiteral("Show the Whole Picture in This Shot"));
    ASSERT_EQ(taking.choices.size(), 1);
    EXPECT_EQ(taking.choices.first().kind, Kind::Fit);
    EXPECT_TRUE(taking.choices.first().seeds.isEmpty());
    EXPECT_DOUBLE_EQ(taking.choices.first().fromSeconds, 1.0);
    EXPECT_DOUBLE_EQ(taking.choices.first().toSeconds, 4.0);
}

TEST_F(KrFollowControlsTest, OneKeyLeadsBackToAutomatic)
{
    Click(At(0.3, 0.5));
    ASSERT_EVENTUALLY(Menu() != nullptr);
    Choose(QStringLiteral("Hold the Crop in This Shot"));
    ASSERT_EVENTUALLY(HasDecided());
    ASSERT_EQ(taking.choices.size(), 1);
    QTest::keyClick(dialog.get(), Qt::Key_Backspace);
    EXPECT_TRUE(taking.choices.isEmpty());
    Helper().GetUndoStack().undo();
    EXPECT_EQ(taking.choices.size(), 1);
}

TEST_F(KrFollowControlsTest, ChoicesAndEditsAreOneHistory)
{
    Helper().AddKeyFrame(10, QRectF(0.5, 0.0, 0.25, 1.0));
    Drag(At(0.2, 0.3), At(0.4, 0.7));
    Choose(QStringLiteral("Follow This"));
    ASSERT_EVENTUALLY(HasDecided());
    EXPECT_EQ(Helper().GetEditPointFrames(), QList<uint>{10});
    EXPECT_EQ(StateOf(clip).choices, QByteArray("1"));
    Helper().Undo();
    EXPECT_TRUE(taking.choices.isEmpty());
    EXPECT_EQ(StateOf(clip).choices, QByteArray());
    EXPECT_EQ(Helper().GetEditPointFrames(), QList<uint>{10});
    Helper().Undo();
    EXPECT_TRUE(Helper().GetEditPointFrames().isEmpty());
    Helper().Redo();
    Helper().Redo();
    EXPECT_EQ(taking.choices.size(), 1);
}

TEST_F(KrFollowControlsTest, AChoiceAtAnEditedFrameSaysThatTheEditStays)
{
    const QString hint = QStringLiteral("Your edit stays here");
    Helper().AddKeyFrame(90, QRectF(0.5, 0.0, 0.25, 1.0));
    Drag(At(0.2, 0.3), At(0.4, 0.7));
    Choose(QStringLiteral("Follow This"));
    ASSERT_EVENTUALLY(HasDecided());
    ASSERT_EVENTUALLY(Hint().isEmpty());

    FakePlayer::ShowFrame(*presenter, 80);
    Drag(At(0.5, 0.3), At(0.7, 0.7));
    Choose(QStringLiteral("Follow This"));
    ASSERT_EVENTUALLY(Hint() == hint);
    FakePlayer::ShowFrame(*presenter, 81);
    EXPECT_EQ(Hint(), hint);
    FakePlayer::ShowFrame(*presenter, 50);
    EXPECT_EQ(Hint(), QString());
}

TEST_F(KrFollowControlsTest, TheHintThatAnEditStaysEndsWithTheEdit)
{
    Helper().AddKeyFrame(50, QRectF(0.5, 0.0, 0.25, 1.0));
    Drag(At(0.2, 0.3), At(0.4, 0.7));
    Choose(QStringLiteral("Follow This"));
    ASSERT_EVENTUALLY(!Hint().isEmpty());
    Helper().RemoveKeyFrame(50);
    EXPECT_EQ(Hint(), QString());
}

TEST_F(KrFollowControlsTest, AChoiceIsDecidedInTheRatioThatIsShown)
{
    Ratios().setCurrentText(QStringLiteral("1:1"));
    Drag(At(0.2, 0.3), At(0.4, 0.7));
    Choose(QStringLiteral("Follow This"));
    ASSERT_EVENTUALLY(HasDecided());
    EXPECT_TRUE(taking.Calls().filter(QStringLiteral("StartTask")).last().endsWith(QStringLiteral("9x16)")));
    EXPECT_EQ(Hint(), QStringLiteral("Settings changed: analyze again"));
}

TEST_F(KrFollowControlsTest, AChoiceThatFailedAndIsTakenBackLeavesNoHint)
{
    taking.Answer(-1, {});
    Drag(At(0.2, 0.3), At(0.4, 0.7));
    Choose(QStringLiteral("Follow This"));
    ASSERT_EVENTUALLY(HasDecided());
    ASSERT_EVENTUALLY(Hint() == QStringLiteral("Settings changed: analyze again"));
    Helper().Undo();
    ASSERT_EVENTUALLY(Hint().isEmpty());
}

TEST_F(KrFollowControlsTest, AnotherFrameOrEscapeRemovesTheBox)
{
    Drag(At(0.2, 0.3), At(0.4, 0.7));
    Menu()->close();
    EXPECT_FALSE(box->Box().isEmpty());
    FakePlayer::ShowFrame(*presenter, 51);
    EXPECT_TRUE(box->Box().isEmpty());
    Drag(At(0.2, 0.3), At(0.4, 0.7));
    Menu()->close();
    QTest::keyClick(&view->PlayerWidget(), Qt::Key_Escape);
    EXPECT_TRUE(box->Box().isEmpty());
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_TRUE(recorders.boxes.empty());
}

TEST_F(KrFollowControlsTest, TheMenuKeyPointsAtTheMiddleOfTheCrop)
{
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint());
    QApplication::sendEvent(&view->PlayerWidget(), &event);
    ASSERT_EVENTUALLY(Menu() != nullptr);
    EXPECT_NEAR(box->Box().center().x(), overlay->GetCropRect().center().x(), 0.001);
}

TEST_F(KrFollowControlsTest, ALongPressDoesWhatTheRightButtonDoes)
{
    WidgetProbe::Press(*overlay, At(0.15, 0.5));
    ASSERT_EVENTUALLY(Menu() != nullptr);
    EXPECT_NEAR(box->Box().center().x(), 0.15, 0.01);
}

TEST_F(KrFollowControlsTest, AfterALongPressThePointerDoesNotDragTheCrop)
{
    const QRectF crop = overlay->GetCropRect();
    ASSERT_TRUE(crop.contains(QPointF(0.15, 0.5)));
    WidgetProbe::Press(*overlay, At(0.15, 0.5));
    ASSERT_EVENTUALLY(Menu() != nullptr);
    Menu()->close();
    WidgetProbe::Hover(*overlay, At(0.2, 0.5));
    WidgetProbe::Hover(*overlay, At(0.4, 0.5));
    EXPECT_EQ(overlay->GetCropRect(), crop);
}

TEST_F(KrFollowControlsTest, AnotherSourceHasItsOwnChoices)
{
    Drag(At(0.2, 0.3), At(0.4, 0.7));
    Choose(QStringLiteral("Follow This"));
    ASSERT_EVENTUALLY(HasDecided());
    const QString other = QStringLiteral("/v/other.mp4");
    StateOf(other).choices = "2";
    Load(Video(other));
    EXPECT_EQ(taking.choices.size(), 2);
    EXPECT_EQ(StateOf(clip).choices, QByteArray("1"));
    dialog.reset();
    EXPECT_TRUE(taking.choices.isEmpty());
}

TEST_F(KrFollowControlsTest, ChoicesAreShownWhereTheAnalysisFoundTheirPictures)
{
    Drag(At(0.2, 0.3), At(0.4, 0.7));
    KxAutoReframeChoice moved;
    moved.kind = Kind::Follow;
    moved.fromSeconds = 0.5;
    moved.toSeconds = 3.5;
    taking.placed = {moved};
    Choose(QStringLiteral("Follow This"));
    ASSERT_EVENTUALLY(HasDecided());
    ASSERT_EVENTUALLY(Hint() == QStringLiteral("1 choices were moved to where their pictures are"));
    EXPECT_EQ(taking.choices, taking.placed);
}

TEST_F(KrFollowControlsTest, AChoiceWhosePicturesAreMissingIsKeptAndReported)
{
    Drag(At(0.2, 0.3), At(0.4, 0.7));
    KxAutoReframeChoice missing;
    missing.kind = Kind::Hold;
    missing.fromSeconds = 1.0;
    missing.toSeconds = 4.0;
    missing.isFound = false;
    taking.placed = {missing};
    Choose(QStringLiteral("Follow This"));
    ASSERT_EVENTUALLY(HasDecided());
    ASSERT_EVENTUALLY(Hint() == QStringLiteral("1 choices are kept, but not in this cut of the video"));
    EXPECT_EQ(StateOf(clip).choices, "1") << "it is stored";
    EXPECT_FALSE(BarButton("KrAutoReframe_undo").isHidden());

    taking.placed.clear();
    Drag(At(0.5, 0.3), At(0.7, 0.7));
    Choose(QStringLiteral("Follow This"));
    ASSERT_EQ(taking.choices.size(), 2) << "a new choice for the same time does not replace it";
    EXPECT_FALSE(taking.choices.first().isFound);
}
