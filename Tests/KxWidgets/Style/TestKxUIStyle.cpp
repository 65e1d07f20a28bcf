#include <KxWidgets/Style/KxTheme.h>
#include <Tests/KxWidgets/Hand.h>

#include <KxWidgets/KxComboBox.h>
#include <KxWidgets/KxPushButton.h>
#include <KxWidgets/KxSwitchToolButton.h>
#include <KxWidgets/KxToggleSwitch.h>
#include <KxWidgets/KxToolSlider.h>
#include <KxWidgets/KxUIStyle.h>
#include <KxWidgets/KxWidget.h>

#include <QAccessible>
#include <QDir>
#include <QFontMetricsF>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <cmath>

namespace
{

using KxUIStyle::Role;

double Luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double Contrast(Role first, Role second)
{
    const double one = Luminance(KxUIStyle::Colour(first));
    const double two = Luminance(KxUIStyle::Colour(second));
    return (std::max(one, two) + 0.05) / (std::min(one, two) + 0.05);
}

QColor Middle(QWidget& widget)
{
    const QImage picture = widget.grab().toImage();
    return picture.pixelColor(picture.rect().center());
}

/// A window with two buttons, the second one below the first.
struct TwoButtons {
    TwoButtons()
    {
        layout->setContentsMargins(20, 20, 20, 20);
        layout->addWidget(first);
        layout->addWidget(second);
    }

    QWidget window;
    QVBoxLayout* layout = new QVBoxLayout(&window);
    KxPushButton* first = KxPushButton::CreatePrimaryButton(&window, 32);
    KxPushButton* second = KxPushButton::CreatePrimaryButton(&window, 32);
};

class KxUIStyleTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { KxUIStyle::Apply(*qApp); }

    // The visible one; rings that wait for their deletion are still children of the window.
    static QWidget* Ring(QWidget& window)
    {
        const QList<QWidget*> rings = window.findChildren<QWidget*>(QStringLiteral("KxFocusRing"));
        const auto shown =
            std::find_if(rings.begin(), rings.end(), [](const QWidget* ring) { return ring->isVisible(); });
        return shown == rings.end() ? nullptr : *shown;
    }
};

TEST_F(KxUIStyleTest, EveryPlaceholderOfTheSheetIsReplaced)
{
    EXPECT_FALSE(qApp->styleSheet().isEmpty());
    EXPECT_FALSE(qApp->styleSheet().contains(QRegularExpression(QStringLiteral("@[A-Za-z]"))));
    EXPECT_EQ(QApplication::font().pixelSize(), 13);
}

class KxUIStyleSchemeTest : public KxUIStyleTest, public testing::WithParamInterface<KxUIStyle::Scheme>
{
protected:
    KxUIStyleSchemeTest() { KxUIStyle::SetScheme(*qApp, GetParam()); }
    ~KxUIStyleSchemeTest() override { KxUIStyle::SetScheme(*qApp, KxUIStyle::Scheme::Dark); }
};

INSTANTIATE_TEST_SUITE_P(Schemes, KxUIStyleSchemeTest,
                         testing::Values(KxUIStyle::Scheme::Dark, KxUIStyle::Scheme::Light));

TEST_P(KxUIStyleSchemeTest, EveryPlaceholderAndDrawingOfTheSheetExists)
{
    const QString sheet = qApp->styleSheet();
    EXPECT_FALSE(sheet.contains(QRegularExpression(QStringLiteral("@[A-Za-z]"))));
    int drawings = 0;
    static const QRegularExpression url(QStringLiteral("url\\(([^)]*)\\)"));
    for (auto match = url.globalMatch(sheet); match.hasNext(); ++drawings) {
        const QString path = match.next().captured(1);
        EXPECT_TRUE(QFile::exists(path)) << path.toStdString();
    }
    EXPECT_GE(drawings, 8);
}

TEST_F(KxUIStyleTest, AnotherSchemeChangesWhatIsOnTheScreen)
{
    TwoButtons pair;
    pair.window.show();
    const auto brightness = [&pair] { return qGray(pair.window.grab().toImage().pixel(2, 2)); };
    EXPECT_LT(brightness(), 60);
    KxUIStyle::SetScheme(*qApp, KxUIStyle::Scheme::Light);
    EXPECT_EQ(KxUIStyle::ShownScheme(), KxUIStyle::Scheme::Light);
    EXPECT_GT(brightness(), 200);
    KxUIStyle::SetScheme(*qApp, KxUIStyle::Scheme::Dark);
    EXPECT_LT(brightness(), 60);
}

TEST_P(KxUIStyleSchemeTest, TextsAndIconsStandOutFromTheirBackgrounds)
{
    for (const Role background : {Role::Window, Role::Panel, Role::Surface, Role::Field, Role::Picture}) {
        for (const Role text : {Role::Text, Role::Muted, Role::Accent, Role::Error}) {
            EXPECT_GE(Contrast(text, background), 4.5);
        }
        EXPECT_GE(Contrast(Role::Icon, background), 3.0);
        EXPECT_GE(Contrast(Role::Edited, background), 3.0);
    }
    EXPECT_GE(Contrast(Role::OnAccent, Role::Accent), 4.5);
    EXPECT_GE(Contrast(Role::Text, Role::Button), 4.5);
    EXPECT_GE(Contrast(Role::PlayedTrack, Role::Window), 3.0);
    EXPECT_GE(Contrast(Role::DropFrame, Role::Window), 3.0);
    EXPECT_GE(Contrast(Role::DropFrame, Role::Panel), 3.0);
    EXPECT_GE(Contrast(Role::Doubt, Role::Panel), 4.5);
}

TEST_F(KxUIStyleTest, EveryIconOfTheFamilyPaintsAndDimsWhenDisabled)
{
    const QStringList names = QDir(QStringLiteral(":/KxWidgets/Icons")).entryList();
    ASSERT_GE(names.size(), 18);
    for (const QString& file : names) {
        const QIcon icon = KxUIStyle::Icon(QString(file).remove(QStringLiteral(".svg")));
        const QImage normal = icon.pixmap(32, 32).toImage();
        const QImage disabled = icon.pixmap(32, 32, QIcon::Disabled).toImage();
        QImage empty(normal.size(), normal.format());
        empty.fill(Qt::transparent);
        EXPECT_NE(normal, empty) << file.toStdString();
        EXPECT_NE(normal, disabled) << file.toStdString();
    }
    EXPECT_TRUE(KxUIStyle::Icon(QStringLiteral("no-such-icon")).isNull());
}

TEST_F(KxUIStyleTest, ButtonsGetTheirIconsByObjectName)
{
    const QMap<QString, QString> expected{
        {QStringLiteral("KrAutoReframe_undo"), QStringLiteral("undo")},
        {QStringLiteral("KrAutoReframe_redo"), QStringLiteral("redo")},
        {QStringLiteral("KrAutoReframe_pre"), QStringLiteral("previous-edit-point")},
        {QStringLiteral("KrAutoReframe_delete"), QStringLiteral("delete")},
        {QStringLiteral("KrAutoReframe_next"), QStringLiteral("next-edit-point")},
        {QStringLiteral("KrAutoReframe_Import"), QStringLiteral("import")},
        {QStringLiteral("KrAutoReframe_Replace"), QStringLiteral("replace")},
        {QStringLiteral("KxPlayerToolBar_stop"), QStringLiteral("stop")},
        {QStringLiteral("KxPlayerToolBar_backward"), QStringLiteral("backward")},
        {QStringLiteral("KxPlayerToolBar_forward"), QStringLiteral("forward")},
    };
    QWidget window;
    for (auto pair = expected.constBegin(); pair != expected.constEnd(); ++pair) {
        KxToolButton* button = KxToolButton::CreateToolButton(&window, QString());
        button->setObjectName(pair.key());
        button->ensurePolished();
        EXPECT_EQ(button->Glyph(), pair.value());
    }
}

TEST_F(KxUIStyleTest, SwitchButtonChangesItsIconWithItsFace)
{
    QWidget window;
    auto* button = KxSwitchToolButton::CreateSwitchToolButton(&window, QStringLiteral("KxPlayerToolBar_play"));
    window.show();
    EXPECT_EQ(button->Glyph(), QStringLiteral("play"));
    button->SetFace(1);
    EXPECT_EQ(button->Glyph(), QStringLiteral("pause"));
    button->SetFace(0);
    EXPECT_EQ(button->Glyph(), QStringLiteral("play"));
}

TEST_F(KxUIStyleTest, ImportButtonShowsTheSheetsIconInPlaceOfAnEmptyOne)
{
    QWidget window;
    KxToolButton* button = KxToolButton::CreateToolButton(&window, QString());
    button->setObjectName(QStringLiteral("KrAutoReframe_Import"));
    button->setFixedSize(248, 81);
    QPixmap empty(30, 30);
    empty.fill(Qt::transparent);
    button->setIcon(empty);
    button->setIconSize(QSize(30, 30));
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    window.show();
    const QImage picture = button->grab().toImage();
    const QColor surface = KxUIStyle::Colour(Role::Surface);
    EXPECT_EQ(picture.pixelColor(20, 40), surface);
    int inked = 0;
    for (int x = 109; x < 139; ++x) {
        for (int y = 10; y < 50; ++y) {
            inked += picture.pixelColor(x, y) != surface ? 1 : 0;
        }
    }
    EXPECT_GT(inked, 60);
}

TEST_F(KxUIStyleTest, AreasAreFilledByTheirType)
{
    for (const auto& [type, role] :
         {std::pair(0, Role::Window), std::pair(1, Role::Picture), std::pair(5, Role::Panel)}) {
        KxWidget area;
        area.resize(40, 40);
        KxUIStyle::SetBGColorType(&area, type);
        EXPECT_EQ(area.property("bgColorType").toInt(), type);
        EXPECT_EQ(Middle(area), KxUIStyle::Colour(role));
    }
}

TEST_F(KxUIStyleTest, PushButtonKindsLookTheirKind)
{
    QWidget window;
    KxPushButton* primary = KxPushButton::CreatePrimaryButton(&window, 32);
    window.show();
    EXPECT_EQ(Middle(*primary), KxUIStyle::Colour(Role::Accent));
    EXPECT_EQ(primary->height(), 32);
    primary->setEnabled(false);
    EXPECT_NE(Middle(*primary), KxUIStyle::Colour(Role::Accent));
    KxPushButton* secondary = KxPushButton::CreateSecondaryButton(&window, 32);
    secondary->show();
    EXPECT_EQ(Middle(*secondary), KxUIStyle::Colour(Role::Button));
}

TEST_F(KxUIStyleTest, FixedWidthsAndHeightsSurviveTheSheet)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    KxPushButton* button = KxPushButton::CreatePrimaryButton(&window, 32);
    button->setText(QStringLiteral("Export"));
    button->SetAutoResizeText(false);
    button->setFixedWidth(225);
    layout->addWidget(button);
    KxComboBox* box = KxComboBox::CreateComboBox(&window);
    layout->addWidget(box);
    layout->addStretch();
    window.resize(300, 300);
    window.show();
    EXPECT_EQ(button->size(), QSize(225, 32));
    EXPECT_EQ(box->height(), 32);
}

TEST_F(KxUIStyleTest, SheetPaintsTheSliderHandleRound)
{
    KxToolSlider slider(nullptr, Qt::Horizontal);
    slider.resize(116, 16);
    slider.setValue(0.5, false);
    slider.show();
    const QImage handle = slider.chunkWidget()->grab().toImage();
    EXPECT_EQ(handle.pixelColor(8, 8), KxUIStyle::Colour(Role::Text));
    const QImage whole = slider.grab().toImage();
    EXPECT_NE(whole.pixelColor(slider.chunkWidget()->pos()), KxUIStyle::Colour(Role::Text));
}

TEST_F(KxUIStyleTest, TabularFontHasDigitsOfOneWidth)
{
    const QFont font = KxUIStyle::TabularFont();
    const QFontMetricsF metrics(font);
    if (QFontInfo(font).family() != QStringLiteral("Noto Sans")) {
        GTEST_SKIP() << "no font with tabular figures is installed";
    }
    EXPECT_DOUBLE_EQ(metrics.horizontalAdvance(QLatin1Char('1')), metrics.horizontalAdvance(QLatin1Char('8')));
}

TEST_F(KxUIStyleTest, RingAppearsForTheKeyboardAndDisappearsForTheMouse)
{
    TwoButtons shown;
    auto& [window, layout, first, second] = shown;
    ASSERT_TRUE(Hand::ShowActive(window));
    QTest::mouseClick(&window, Qt::LeftButton, {}, {1, 1});
    first->setFocus();
    EXPECT_EQ(Ring(window), nullptr);
    QTest::keyClick(first, Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), second);
    QWidget* ring = Ring(window);
    ASSERT_NE(ring, nullptr);
    EXPECT_EQ(ring->geometry(), second->geometry().adjusted(-4, -4, 4, 4));
    second->move(second->pos() + QPoint(3, 5));
    EXPECT_EQ(ring->geometry(), second->geometry().adjusted(-4, -4, 4, 4));
    const QImage picture = window.grab().toImage();
    EXPECT_EQ(picture.pixelColor(second->geometry().center().x(), second->y() - 3), KxUIStyle::Colour(Role::Accent));
    QTest::mouseClick(&window, Qt::LeftButton, {}, {1, 1});
    EXPECT_EQ(Ring(window), nullptr);
}

TEST_F(KxUIStyleTest, RingDisappearsWithItsControl)
{
    TwoButtons shown;
    auto& [window, layout, first, second] = shown;
    ASSERT_TRUE(Hand::ShowActive(window));
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Tab);
    ASSERT_NE(Ring(window), nullptr);
    delete second;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Ring(window), nullptr);
}

TEST_F(KxUIStyleTest, RingSurroundsThePartThatTheControlNames)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    KxPushButton* first = KxPushButton::CreatePrimaryButton(&window, 32);
    auto* slider = new KxToolSlider(&window, Qt::Horizontal);
    layout->addWidget(first);
    layout->addWidget(slider);
    window.resize(300, 120);
    ASSERT_TRUE(Hand::ShowActive(window));
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), slider);
    ASSERT_NE(Ring(window), nullptr);
    const auto handle = [&] { return slider->chunkWidget()->geometry().translated(slider->pos()); };
    EXPECT_EQ(Ring(window)->geometry(), handle().adjusted(-4, -4, 4, 4));
    slider->setValue(0.5, false);
    EXPECT_EQ(Ring(window)->geometry(), handle().adjusted(-4, -4, 4, 4));
}

TEST_F(KxUIStyleTest, RingIsNotPaintedOutsideTheScrollAreaOfItsControl)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* title = new QLabel(QStringLiteral("Videos"), &window);
    title->setMinimumHeight(40);
    auto* list = new QListWidget(&window);
    list->setProperty("focusRingRect", QRect(20, 20, 100, 60));
    layout->addWidget(title);
    layout->addWidget(list);
    window.resize(300, 300);
    ASSERT_TRUE(Hand::ShowActive(window));
    title->setFocus();
    QTest::keyClick(&window, Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), list);
    const auto accentIn = [&](const QRect& area) {
        const QImage picture = window.grab(area).toImage();
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                count += picture.pixelColor(x, y) == KxUIStyle::Colour(Role::Accent) ? 1 : 0;
            }
        }
        return count;
    };
    EXPECT_GT(accentIn(list->geometry()), 300);
    // After scrolling, the ringed part is half above the list, then completely above it.
    list->setProperty("focusRingRect", QRect(20, -30, 100, 60));
    EXPECT_EQ(accentIn(title->geometry()), 0);
    EXPECT_GT(accentIn(list->geometry()), 100);
    list->setProperty("focusRingRect", QRect(20, -90, 100, 60));
    EXPECT_EQ(accentIn(window.rect()), 0);
    list->setProperty("focusRingRect", QRect(20, 20, 100, 60));
    EXPECT_GT(accentIn(list->geometry()), 300);
}

TEST_F(KxUIStyleTest, TheStylesOwnFocusRectangleIsNotDrawnInsideControls)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    const QList<QAbstractButton*> buttons{KxPushButton::CreatePrimaryButton(&window, 32),
                                          KxPushButton::CreateSecondaryButton(&window, 32), new QPushButton(&window),
                                          KxToolButton::CreateToolButton(&window, QStringLiteral("tool"))};
    for (QAbstractButton* button : buttons) {
        button->setText(QStringLiteral("Export"));
        layout->addWidget(button);
    }
    auto* box = KxComboBox::CreateComboBox(&window);
    box->addItem(QStringLiteral("9:16"));
    layout->addWidget(box);
    ASSERT_TRUE(Hand::ShowActive(window));
    box->setFocus();
    for (QAbstractButton* button : buttons) {
        const QImage before = button->grab().toImage();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        ASSERT_EQ(QApplication::focusWidget(), button);
        EXPECT_EQ(button->grab().toImage(), before) << button->metaObject()->className();
    }
    const QImage before = box->grab().toImage();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), box);
    EXPECT_EQ(box->grab().toImage(), before);
}

TEST_F(KxUIStyleTest, SpacePressesTheRingedButtonOtherwiseItIsTheShortcut)
{
    TwoButtons shown;
    auto& [window, layout, first, second] = shown;
    QShortcut play(QKeySequence(Qt::Key_Space), &window);
    QSignalSpy played(&play, &QShortcut::activated);
    QSignalSpy clicked(second, &QAbstractButton::clicked);
    ASSERT_TRUE(Hand::ShowActive(window));
    QTest::mouseClick(&window, Qt::LeftButton, {}, {1, 1});
    second->setFocus();
    QTest::keyClick(window.windowHandle(), Qt::Key_Space);
    EXPECT_EQ(played.count(), 1);
    EXPECT_EQ(clicked.count(), 0);
    first->setFocus();
    QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), second);
    QTest::keyClick(window.windowHandle(), Qt::Key_Space);
    EXPECT_EQ(played.count(), 1);
    EXPECT_EQ(clicked.count(), 1);
}

TEST_F(KxUIStyleTest, AKeyWithAModifierIsAShortcutAlsoOnTheRingedButton)
{
    TwoButtons shown;
    auto& [window, layout, first, second] = shown;
    QShortcut stop(QKeySequence(Qt::CTRL | Qt::Key_Space), &window);
    QSignalSpy stopped(&stop, &QShortcut::activated);
    ASSERT_TRUE(Hand::ShowActive(window));
    first->setFocus();
    QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), second);
    QTest::keyClick(window.windowHandle(), Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(stopped.count(), 1);
}

TEST_F(KxUIStyleTest, SliderAndSwitchAreAccessible)
{
    QWidget window;
    KxToolSlider slider(&window, Qt::Horizontal);
    slider.setDuration(100.0);
    slider.setValue(40.0, false);
    QAccessibleInterface* read = QAccessible::queryAccessibleInterface(&slider);
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(read->role(), QAccessible::Slider);
    ASSERT_NE(read->valueInterface(), nullptr);
    EXPECT_DOUBLE_EQ(read->valueInterface()->currentValue().toDouble(), 40.0);
    EXPECT_DOUBLE_EQ(read->valueInterface()->maximumValue().toDouble(), 100.0);
    KxToggleSwitch toggle(&window);
    toggle.setText(QStringLiteral("Adjust Frame"));
    toggle.setChecked(true);
    QAccessibleInterface* readSwitch = QAccessible::queryAccessibleInterface(&toggle);
    ASSERT_NE(readSwitch, nullptr);
    EXPECT_EQ(readSwitch->role(), QAccessible::CheckBox);
    EXPECT_EQ(readSwitch->text(QAccessible::Name), QStringLiteral("Adjust Frame"));
    EXPECT_TRUE(readSwitch->state().checked);
}

} // namespace
