#include <KrAutoReframe/Extensions/KrGuideOverlay.h>
#include <KrAutoReframe/Extensions/KrViewMenu.h>
#include <Tests/KrAutoReframe/Dialog/ExtendedDialogTest.h>
#include <Tests/KrAutoReframe/WidgetProbe.h>

#include <QAction>
#include <QImage>

namespace
{

class KrViewMenuTest : public ExtendedDialogTest
{
protected:
    void Show(const char* guide, bool isShown)
    {
        auto* const action = view->findChild<QAction*>(QLatin1String(guide));
        ASSERT_NE(action, nullptr) << guide;
        if (action->isChecked() != isShown) {
            action->trigger();
        }
    }
    static KrGuideOverlay& GuidesOver(const QWidget& parent) { return *parent.findChild<KrGuideOverlay*>(); }
    KrGuideOverlay& OverCrop() const { return GuidesOver(*overlay); }
    KrGuideOverlay& OverResult() const { return GuidesOver(view->PlayerWidget()); }

    /// What the guides paint, as the rectangle of its pixels; empty if they paint nothing.
    static QRect Painted(KrGuideOverlay& guides)
    {
        const QImage image = WidgetProbe::Paint(guides);
        QRect painted;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) != 0) {
                    painted |= QRect(x, y, 1, 1);
                }
            }
        }
        return painted;
    }
    void AnalyseTall()
    {
        Load(Video(clip));
        QList<IKxAutoReframeResult> results;
        const QSize video = view->VideoSize();
        const double width = video.height() * 9.0 / 16.0 / video.width();
        for (qint64 frame = 0; frame < FrameCount; ++frame) {
            results.append({frame, QRectF(0.25, 0.0, width, 1.0)});
        }
        Analyse(results);
        view->UpdateOverlayGeometry();
    }
};

} // namespace

TEST_F(KrViewMenuTest, GuidesAreOffAtFirst)
{
    AnalyseTall();
    EXPECT_FALSE(OverCrop().isVisible());
    EXPECT_EQ(Painted(OverCrop()), QRect());
}

TEST_F(KrViewMenuTest, GuidesLieOverTheCropWhileItIsAdjusted)
{
    AnalyseTall();
    for (const char* const guide : {"SafeZones", "Thirds", "Headroom"}) {
        Show(guide, true);
        EXPECT_TRUE(OverCrop().isVisible()) << guide;
        EXPECT_FALSE(Painted(OverCrop()).isEmpty()) << guide;
        EXPECT_TRUE(overlay->CropArea().contains(Painted(OverCrop()))) << guide;
        EXPECT_EQ(Painted(OverResult()), QRect()) << guide;
        Show(guide, false);
    }
    EXPECT_FALSE(OverCrop().isVisible());
}

TEST_F(KrViewMenuTest, GuidesLieOverTheResultInThePreview)
{
    AnalyseTall();
    Show("SafeZones", true);
    Player().videoRect = QRect(200, 40, 180, 320);
    Preview().click();
    ASSERT_FALSE(overlay->isVisible());
    EXPECT_EQ(Painted(OverResult()), Player().videoRect.adjusted(1, 1, -1, -1));
}

TEST_F(KrViewMenuTest, AResultOfAnotherRatioHasNoSafeZones)
{
    AnalyseTall();
    Show("SafeZones", true);
    Player().videoRect = QRect(200, 40, 320, 320);
    Preview().click();
    EXPECT_EQ(Painted(OverResult()), QRect());
}

TEST_F(KrViewMenuTest, GuidesAreNotInTheWayOfTheMouse)
{
    AnalyseTall();
    Show("Thirds", true);
    EXPECT_TRUE(OverCrop().testAttribute(Qt::WA_TransparentForMouseEvents));
    const double before = overlay->GetCropRect().x();
    const QPoint middle = overlay->CropArea().center();
    WidgetProbe::Press(*overlay, middle);
    WidgetProbe::MoveHeld(*overlay, middle + QPoint(20, 0));
    WidgetProbe::MoveHeld(*overlay, middle + QPoint(40, 0));
    WidgetProbe::Release(*overlay, middle + QPoint(40, 0));
    EXPECT_GT(overlay->GetCropRect().x(), before);
}

TEST_F(KrViewMenuTest, TheNextDialogShowsTheSameGuides)
{
    Show("Thirds", true);
    Show("Headroom", true);
    MakeExtended();
    EXPECT_TRUE(view->findChild<QAction*>(QStringLiteral("Thirds"))->isChecked());
    EXPECT_TRUE(view->findChild<QAction*>(QStringLiteral("Headroom"))->isChecked());
    EXPECT_FALSE(view->findChild<QAction*>(QStringLiteral("SafeZones"))->isChecked());
    AnalyseTall();
    EXPECT_FALSE(Painted(OverCrop()).isEmpty());
}

TEST_F(KrViewMenuTest, TheButtonIsNamedForScreenReaders)
{
    QAbstractButton& button = BarButton("KrAutoReframe_view");
    EXPECT_EQ(button.toolTip(), QStringLiteral("View"));
    EXPECT_EQ(button.accessibleName(), QStringLiteral("View"));
    EXPECT_NE(button.focusPolicy() & Qt::TabFocus, 0);
}

TEST_F(DialogTest, WithoutExtensionsThereIsNoViewMenu)
{
    EXPECT_EQ(view->findChild<KrViewMenu*>(), nullptr);
    EXPECT_EQ(dialog->findChild<KrGuideOverlay*>(), nullptr);
}
