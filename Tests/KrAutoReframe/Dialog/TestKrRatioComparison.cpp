#include <KrAutoReframe/Extensions/KrRatioComparison.h>
#include <Tests/KrAutoReframe/Dialog/ExtendedDialogTest.h>
#include <Tests/Support/Eventually.h>

#include <QAction>
#include <QUndoStack>

namespace
{

class KrRatioComparisonTest : public ExtendedDialogTest
{
protected:
    KrRatioComparisonTest()
        : deciding(FakeHost::OfferChoices())
    {
        MakeExtended();
        deciding.decided = FakeHost::MakeResults(FrameCount);
        Load(Video(clip));
    }
    ~KrRatioComparisonTest() override { dialog.reset(); }

    QAction& Entry() const { return *view->findChild<QAction*>(QStringLiteral("Compare")); }
    KrRatioComparison* Window() const { return dialog->findChild<KrRatioComparison*>(); }
    QList<KrRatioPane*> Panes() const { return Window()->findChildren<KrRatioPane*>(); }
    static FakePlayer::Script& PlayerOf(const KrRatioPane& pane)
    {
        return FakePlayer::ScriptOf(*pane.findChild<KxMediaPlayerWidget*>()->getOrCreatePresenter());
    }
    static QString CaptionOf(const KrRatioPane& pane) { return pane.findChild<KxLabel*>()->text(); }
    bool AreShown() const
    {
        const QList<KrRatioPane*> panes = Panes();
        return std::all_of(panes.cbegin(), panes.cend(),
                           [](const KrRatioPane* pane) { return CaptionOf(*pane).contains(QStringLiteral("×")); });
    }

    FakeHost::ServiceWithChoices& deciding;
};

} // namespace

TEST_F(KrRatioComparisonTest, ItCanBeOpenedOnceThereIsAResult)
{
    EXPECT_FALSE(Entry().isEnabled());
    Analyse();
    EXPECT_TRUE(Entry().isEnabled());
    Load(Video(QStringLiteral("/v/other.mp4")));
    EXPECT_FALSE(Entry().isEnabled());
}

TEST_F(KrRatioComparisonTest, ThreeRatiosShowTheFrameOfTheDialog)
{
    Analyse();
    presenter->pause();
    FakePlayer::ShowFrame(*presenter, 42);
    Entry().trigger();
    ASSERT_NE(Window(), nullptr);
    ASSERT_EQ(Panes().size(), 3);
    ASSERT_EVENTUALLY(AreShown());
    for (const KrRatioPane* const pane : Panes()) {
        EXPECT_EQ(PlayerOf(*pane).opened.size(), 1);
        EXPECT_TRUE(PlayerOf(*pane).calls.contains(QStringLiteral("seek 42 0 0")));
    }
    FakePlayer::ShowFrame(*presenter, 60);
    for (const KrRatioPane* const pane : Panes()) {
        EXPECT_EQ(PlayerOf(*pane).calls.last(), QStringLiteral("seek 60 0 0"));
    }
}

TEST_F(KrRatioComparisonTest, AnEditIsShownInEveryRatio)
{
    Analyse();
    presenter->pause();
    Entry().trigger();
    ASSERT_EVENTUALLY(AreShown());
    Helper().AddKeyFrame(10, QRectF(0.5, 0.0, 0.25, 1.0));
    for (const KrRatioPane* const pane : Panes()) {
        ASSERT_EVENTUALLY(PlayerOf(*pane).opened.size() >= 2);
    }
}

TEST_F(KrRatioComparisonTest, ARatioThatCannotBeDecidedSaysWhatToDo)
{
    deciding.decided.clear();
    Analyse();
    Entry().trigger();
    for (const KrRatioPane* const pane : Panes()) {
        ASSERT_EVENTUALLY(CaptionOf(*pane).endsWith(QStringLiteral("analyze the video again")));
    }
}

TEST_F(KrRatioComparisonTest, AnotherSourceClosesIt)
{
    Analyse();
    Entry().trigger();
    ASSERT_EVENTUALLY(AreShown());
    Load(Video(QStringLiteral("/v/other.mp4")));
    EXPECT_FALSE(Window()->isVisible());
    EXPECT_EQ(PlayerOf(*Panes().first()).opened.last(), nullptr);
}

TEST_F(KrRatioComparisonTest, TheDialogMayEndWhileItIsDeciding)
{
    Analyse();
    Entry().trigger();
    dialog.reset();
    EXPECT_EQ(FakeHost::LiveTimelines(), 1) << "that of the source, which is the host's";
}
