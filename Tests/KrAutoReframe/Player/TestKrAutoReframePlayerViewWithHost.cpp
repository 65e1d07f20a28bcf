#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>
#include <KrAutoReframe/Player/KrAutoReframePlayerView.h>
#include <KrAutoReframe/Player/ShadowForm.h>
#include <KrAutoReframe/Settings/KrAutoReframePropertyPanel.h>
#include <KxModel/KxSimpleTimeline.h>
#include <Tests/KrAutoReframe/WidgetProbe.h>
#include <Tests/Support/MadeVideo.h>

#include <KxModel/IKxAbstractMedia.h>
#include <KxModel/IKxTimeline.h>
#include <KxPlayer/KxMediaPlayerPresenter.h>
#include <KxPlayer/KxMediaPlayerWidget.h>
#include <KxWidgets/KxToolButton.h>
#include <KxWidgets/KxToolSlider.h>
#include <KxWidgets/KxUIStyle.h>

#include <QAccessible>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

namespace
{

constexpr int FrameCount = 30;
constexpr int WaitMs = 60000;
constexpr QSize Coded{320, 240};
const QRectF Crop(0.25, 0.0, 0.375, 1.0);

QImage Red(int)
{
    QImage picture(Coded, QImage::Format_RGB888);
    picture.fill(Qt::red);
    return picture;
}

QImage RedBesideBlue(int)
{
    QImage picture = Red(0);
    QPainter(&picture).fillRect(Coded.width() / 2, 0, Coded.width() / 2, Coded.height(), Qt::blue);
    return picture;
}

bool IsRed(const QColor& colour)
{
    return colour.red() > 150 && colour.green() < 100 && colour.blue() < 100;
}

bool IsBlue(const QColor& colour)
{
    return colour.blue() > 150 && colour.red() < 100 && colour.green() < 100;
}

bool IsOutline(const QColor& colour)
{
    return colour.alpha() == 255;
}

/// The rectangle that the pixels of that kind fill.
QRect Bounds(const QImage& image, bool (*isOfKind)(const QColor&))
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (isOfKind(image.pixelColor(x, y))) {
                bounds |= QRect(x, y, 1, 1);
            }
        }
    }
    return bounds;
}

/// Compares each side, except for the rounding to whole points.
void ExpectNear(const QRectF& actual, const QRectF& expected, double tolerance)
{
    EXPECT_NEAR(actual.left(), expected.left(), tolerance);
    EXPECT_NEAR(actual.top(), expected.top(), tolerance);
    EXPECT_NEAR(actual.right(), expected.right(), tolerance);
    EXPECT_NEAR(actual.bottom(), expected.bottom(), tolerance);
}

/// The view beside the panel, on the real host.
class PlayerViewWithHostTest : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        KxUIStyle::Apply(*qApp);
        folder = std::make_unique<QTemporaryDir>();
        MadeVideo::Recipe recipe;
        recipe.size = Coded;
        recipe.frames = FrameCount;
        recipe.draw = &Red;
        ASSERT_TRUE(MadeVideo::Make(folder->filePath(QStringLiteral("red.mp4")), recipe));
        recipe.draw = &RedBesideBlue;
        ASSERT_TRUE(MadeVideo::Make(folder->filePath(QStringLiteral("halves.mp4")), recipe));
    }
    static void TearDownTestSuite() { folder.reset(); }

    ~PlayerViewWithHostTest() override
    {
        window.reset();
        helper.reset();
        releaseMediaItem(item);
        KxSimpleTimeline::ReleaseAll();
    }

    void ShowCrop(const QString& fileName = QStringLiteral("red.mp4"))
    {
        item = createMediaItem(folder->filePath(fileName));
        ASSERT_NE(item, nullptr);
        helper = QSharedPointer<KrAutoReframeHelper>::create();
        window = std::make_unique<QWidget>();
        window->resize(901, 523);
        view = new KrAutoReframePlayerView(helper, window.get());
        panel = new KrAutoReframePropertyPanel(window.get());
        auto* const layout = new QHBoxLayout(window.get());
        layout->addWidget(panel);
        layout->addWidget(view, 1);
        overlay = view->findChild<ShadowForm*>();
        player = view->findChild<KxMediaPlayerWidget*>();
        helper->SetTimeline(IKxTimeline::createSimpleTimeline(item->clip()));
        window->show();
        QApplication::setActiveWindow(window.get());
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));

        QList<IKxAutoReframeResult> results;
        for (int frame = 0; frame < FrameCount; ++frame) {
            results.append(IKxAutoReframeResult(frame, Crop));
        }
        QSignalSpy applied(helper.data(), &KrAutoReframeHelper::sigApplyFinished);
        ASSERT_TRUE(helper->ApplyResults(results));
        ASSERT_TRUE(applied.wait(WaitMs));
        QSignalSpy shown(player->getOrCreatePresenter(), &KxMediaPlayerPresenter::sigFrameChanged);
        ASSERT_TRUE(view->SwitchTimeline(false, true));
        ASSERT_TRUE(shown.wait(WaitMs));
    }

    static std::unique_ptr<QTemporaryDir> folder;

    IKxAbstractMediaItem* item = nullptr;
    QSharedPointer<KrAutoReframeHelper> helper;
    std::unique_ptr<QWidget> window;
    KrAutoReframePlayerView* view = nullptr;
    KrAutoReframePropertyPanel* panel = nullptr;
    ShadowForm* overlay = nullptr;
    KxMediaPlayerWidget* player = nullptr;
};

std::unique_ptr<QTemporaryDir> PlayerViewWithHostTest::folder;

/// The controls that are visible and enabled.
QList<QWidget*> ControlsOf(const QWidget& window)
{
    QList<QWidget*> controls;
    for (QWidget* const widget : window.findChildren<QWidget*>()) {
        const bool isControl = qobject_cast<QAbstractButton*>(widget) != nullptr ||
                               qobject_cast<QComboBox*>(widget) != nullptr ||
                               qobject_cast<KxToolSlider*>(widget) != nullptr;
        if (isControl && widget->isVisible() && widget->isEnabled()) {
            controls.append(widget);
        }
    }
    return controls;
}

bool WearsRing(const QWidget& window)
{
    const QList<QWidget*> rings = window.findChildren<QWidget*>(QStringLiteral("KxFocusRing"));
    return std::any_of(rings.begin(), rings.end(), [](const QWidget* ring) { return ring->isVisible(); });
}

} // namespace

TEST_F(PlayerViewWithHostTest, TheOverlayLiesOverThePictureAtEveryScale)
{
    ShowCrop();
    const QString wanted = qEnvironmentVariable("QT_SCREEN_SCALE_FACTORS", QStringLiteral("1"));
    const double ratio = view->devicePixelRatioF();
    ASSERT_EQ(ratio, wanted.toDouble());
    for (const QSize& size : {QSize(901, 523), QSize(700, 640), QSize(1100, 400)}) {
        window->resize(size);
        QCoreApplication::sendPostedEvents();
        const QImage painted = player->grab().toImage();
        ASSERT_EQ(painted.size(), (QSizeF(player->size()) * ratio).toSize());
        const QRectF picture = Bounds(painted, &IsRed);
        const QPointF corner = overlay->pos() - player->mapToGlobal(QPoint(0, 0));
        const QRectF covered(corner * ratio, QSizeF(overlay->size()) * ratio);
        ExpectNear(covered, picture, ratio);
        // The overlay's label represents the picture, and the crop is relative to it.
        const QImage dimmed = overlay->grab().toImage();
        const QRectF crop = QRectF(Bounds(dimmed, &IsOutline)).translated(covered.topLeft());
        const QRectF part(picture.x() + Crop.x() * picture.width(), picture.y() + Crop.y() * picture.height(),
                          Crop.width() * picture.width(), Crop.height() * picture.height());
        ExpectNear(crop, part, 2 * ratio);
    }
}

TEST_F(PlayerViewWithHostTest, TheReframedPreviewShowsAnUndoneEditAtOnce)
{
    ShowCrop(QStringLiteral("halves.mp4"));
    Q_EMIT overlay->sigRectFChanged(QRectF(0.0, 0.0, 0.375, 1.0));
    QSignalSpy shown(player->getOrCreatePresenter(), &KxMediaPlayerPresenter::sigFrameChanged);
    ASSERT_TRUE(view->SwitchTimeline(true, true));
    ASSERT_TRUE(shown.wait(WaitMs));
    EXPECT_TRUE(Bounds(player->grab().toImage(), &IsBlue).isEmpty());
    view->findChild<QAbstractButton*>(QStringLiteral("KrAutoReframe_undo"))->click();
    ASSERT_TRUE(shown.wait(WaitMs));
    const QImage undone = player->grab().toImage();
    EXPECT_FALSE(Bounds(undone, &IsRed).isEmpty());
    EXPECT_FALSE(Bounds(undone, &IsBlue).isEmpty());
}

TEST_F(PlayerViewWithHostTest, EveryControlHasANameAndIsReachedWithTab)
{
    ShowCrop();
    panel->SetParameterEnabled(true);
    panel->SetPreviewEnabled(true);
    for (KxToolButton* const button : view->findChildren<KxToolButton*>()) {
        button->setEnabled(true);
    }
    const QList<QWidget*> controls = ControlsOf(*window);
    EXPECT_GE(controls.size(), 16);
    QApplication::setActiveWindow(window.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    controls.first()->setFocus();
    QSet<const QWidget*> reached;
    for (int press = 0; press < 2 * controls.size(); ++press) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const QWidget* const focused = QApplication::focusWidget();
        ASSERT_NE(focused, nullptr);
        reached.insert(focused);
        EXPECT_TRUE(WearsRing(*window)) << focused->objectName().toStdString();
    }
    for (QWidget* const control : controls) {
        const std::string name = control->objectName().toStdString();
        EXPECT_FALSE(name.empty());
        EXPECT_TRUE(reached.contains(control)) << name;
        QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(control);
        ASSERT_NE(accessible, nullptr) << name;
        EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty()) << name;
    }
}
