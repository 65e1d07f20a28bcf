#include <Tests/KrAutoReframe/Player/PlayerViewTest.h>

#include <Tests/KrAutoReframe/WidgetProbe.h>

#include <KxCore/KxMachineFacts.h>
#include <KxPlayer/KxMediaPlayerWidget.h>

#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

namespace
{

constexpr int WaitMs = 60000;

} // namespace

PlayerViewTest::PlayerViewTest()
{
    Open(QSize(1920, 1080));
}

PlayerViewTest::~PlayerViewTest()
{
    view.reset();
    helper.reset();
    FakeHost::Reset();
    KxMachineFacts::Replaced() = {};
}

void PlayerViewTest::Open(const QSize& resolution)
{
    FakeHost::Facts facts;
    facts.frameCount = FrameCount;
    facts.resolution = resolution;
    timeline = FakeHost::MakeTimeline({facts});
    helper = QSharedPointer<KrAutoReframeHelper>::create();
    Show(helper);
}

void PlayerViewTest::Show(const QSharedPointer<KrAutoReframeHelper>& sharedHelper)
{
    view = std::make_unique<KrAutoReframePlayerView>(sharedHelper, nullptr);
    overlay = view->findChild<ShadowForm*>();
    bar = view->findChild<KrAutoReframePlayerControlBar*>();
    presenter = view->findChild<KxMediaPlayerWidget*>()->getOrCreatePresenter();
    view->resize(640, 500);
    view->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(view.get()));
    Calls().clear();
}

void PlayerViewTest::Analyse(int resultCount)
{
    helper->SetTimeline(timeline);
    QSignalSpy finished(helper.data(), &KrAutoReframeHelper::sigApplyFinished);
    ASSERT_TRUE(helper->ApplyResults(FakeHost::MakeResults(resultCount)));
    ASSERT_TRUE(finished.wait(WaitMs));
    ASSERT_TRUE(finished.at(0).at(0).toBool());
}

void PlayerViewTest::ShowCrop()
{
    Analyse();
    ASSERT_TRUE(view->SwitchTimeline(false, true));
    Calls().clear();
}

void PlayerViewTest::Edit(int frame, const QRectF& rect)
{
    ShowFrame(frame);
    Q_EMIT overlay->sigRectFChanged(rect);
}

bool PlayerViewTest::HasMarks() const
{
    QWidget* const marks = view->findChild<QWidget*>(QStringLiteral("KrUIStyle_ToolBarSlider_MarkWidget"));
    const QImage image = WidgetProbe::Paint(*marks);
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, image.height() / 2).alpha() != 0) {
            return true;
        }
    }
    return false;
}

QColor PlayerViewTest::Outline() const
{
    const QPoint corner(static_cast<int>(overlay->GetCropRect().x() * Picture().width()),
                        static_cast<int>(overlay->GetCropRect().y() * Picture().height()));
    return WidgetProbe::Paint(*overlay).pixelColor(Picture().pos() + corner);
}
