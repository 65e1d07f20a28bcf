#include <Tests/KrAutoReframe/FakePlayer/FakePlayer.h>

#include <KxPlayer/KxMediaPlayerPresenter.h>
#include <KxPlayer/KxMediaPlayerWidget.h>
#include <KxPlayer/KxPlayerToolBarBase.h>
#include <KxWidgets/KxToolSlider.h>

#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace
{

// The bar with a player whose pictures come when the test says so.
class TestToolBarSeeks : public testing::Test
{
protected:
    TestToolBarSeeks()
    {
        bar.setPlayerPresenter(&player);
        Calls().clear();
    }

    QStringList& Calls() { return FakePlayer::ScriptOf(player).calls; }
    void DragTo(double value) { bar.slider()->setValue(value, true); }

    KxMediaPlayerWidget widget{nullptr};
    KxMediaPlayerPresenter& player = *widget.getOrCreatePresenter();
    KxPlayerToolBarBase bar{nullptr, new KxToolSlider(nullptr, Qt::Horizontal), true};
};

const QString Seek30 = QStringLiteral("seek 30 0 0");
const QString Seek50 = QStringLiteral("seek 50 0 0");

} // namespace

TEST_F(TestToolBarSeeks, ADragGoesOnWhenThePictureStands)
{
    Q_EMIT bar.slider()->sigValueChangeStart(0);
    DragTo(30);
    DragTo(40);
    DragTo(50);
    EXPECT_EQ(Calls(), QStringList{Seek30});
    FakePlayer::ShowFrame(player, 30);
    EXPECT_EQ(Calls(), (QStringList{Seek30, Seek50}));
    FakePlayer::ShowFrame(player, 50);
    EXPECT_EQ(Calls().size(), 2);
}

TEST_F(TestToolBarSeeks, BackAtThePlaceOfThePictureThatIsMadeThereIsNothingToAdd)
{
    Q_EMIT bar.slider()->sigValueChangeStart(0);
    DragTo(30);
    DragTo(40);
    DragTo(30);
    FakePlayer::ShowFrame(player, 30);
    EXPECT_EQ(Calls(), QStringList{Seek30});
}

TEST_F(TestToolBarSeeks, APictureThatTakesLongIsGivenUpForTheNewestPlace)
{
    Q_EMIT bar.slider()->sigValueChangeStart(0);
    DragTo(30);
    DragTo(40);
    DragTo(50);
    Q_EMIT bar.slider()->sigValueChangeEnd(50);
    EXPECT_EQ(Calls(), QStringList{Seek30});
    ASSERT_TRUE(QTest::qWaitFor([this] { return Calls().size() > 1; }));
    EXPECT_EQ(Calls(), (QStringList{Seek30, Seek50}));
}

TEST_F(TestToolBarSeeks, WhoeverMovesLaterDoesNotWaitForAPictureThatTakesLong)
{
    DragTo(30);
    const QTimer* const patience = bar.findChild<QTimer*>(QStringLiteral("patience"));
    ASSERT_NE(patience, nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !patience->isActive(); }));
    EXPECT_EQ(Calls(), QStringList{Seek30});
    DragTo(50);
    EXPECT_EQ(Calls(), (QStringList{Seek30, Seek50}));
}
