#include <KrAutoReframe/Settings/KrAutoReframePropertyPanel.h>

#include <Tests/KrAutoReframe/WidgetProbe.h>
#include <Tests/Support/Eventually.h>

#include <KxWidgets/KxComboBox.h>
#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxPushButton.h>
#include <KxWidgets/KxToggleSwitch.h>
#include <KxWidgets/KxToolButton.h>

#include <QFrame>
#include <QSignalSpy>
#include <QTranslator>
#include <QVBoxLayout>
#include <QtTest>

#include <gtest/gtest.h>

using namespace WidgetProbe;

namespace
{

/// Puts every text of the panel between brackets.
class Brackets : public QTranslator
{
public:
    using QTranslator::QTranslator;
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return qstrcmp(context, "KrAutoReframePropertyPanel") == 0
                   ? QStringLiteral("[%1]").arg(QString::fromLatin1(text))
                   : QString();
    }
};

class PropertyPanelTest : public testing::Test
{
protected:
    PropertyPanelTest()
        : imports(&panel, &KrAutoReframePropertyPanel::sigImportFile)
        , exports(&panel, &KrAutoReframePropertyPanel::sigExport)
        , starts(&panel, &KrAutoReframePropertyPanel::sigStartAnalysis)
        , previews(&panel, &KrAutoReframePropertyPanel::sigPreviewModeChanged)
    {
    }

    template<class Widget>
    Widget& Child(const char* name) const
    {
        return *panel.findChild<Widget*>(QLatin1String(name));
    }
    KxToolButton& Import() const { return Child<KxToolButton>("KrAutoReframe_Import"); }
    KxToolButton& Replace() const { return Child<KxToolButton>("KrAutoReframe_Replace"); }
    KxToggleSwitch& Preview() const { return *panel.findChild<KxToggleSwitch*>(); }
    KxComboBox& Ratio() const { return Child<KxComboBox>("KrAutoReframePropertyPanel_aspectRatio"); }
    KxComboBox& Speed() const { return Child<KxComboBox>("KrAutoReframePropertyPanel_motionSpeed"); }
    KxLabel& RatioLabel() const { return Child<KxLabel>("KrAutoReframePropertyPanel_aspectRatioLabel"); }
    KxLabel& SpeedLabel() const { return Child<KxLabel>("KrAutoReframePropertyPanel_motionSpeedLabel"); }
    KxPushButton& Analyze() const { return Child<KxPushButton>("KrAutoReframePropertyPanel_analyze"); }
    KxPushButton& Restart() const { return Child<KxPushButton>("KrAutoReframePropertyPanel_restart"); }
    KxPushButton& Export() const { return Child<KxPushButton>("KrAutoReframePropertyPanel_export"); }
    QFrame& Settings() const { return Child<QFrame>("KrAutoReframePropertyPanel_editFrame"); }

    void Empty()
    {
        panel.SetPreviewEnabled(false);
        panel.SetParameterEnabled(false);
    }
    void Imported()
    {
        panel.OnFileImported();
        panel.SetPreviewEnabled(false);
        panel.SetParameterEnabled(true);
    }
    void Analysed()
    {
        panel.SetPreviewEnabled(true);
        panel.OnAnalysisFinished();
    }
    void ExpectSettingsEnabled(bool isEnabled) const
    {
        for (const QWidget* const widget : {static_cast<QWidget*>(&RatioLabel()), static_cast<QWidget*>(&Ratio()),
                                            static_cast<QWidget*>(&SpeedLabel()), static_cast<QWidget*>(&Speed()),
                                            static_cast<QWidget*>(&Analyze()), static_cast<QWidget*>(&Restart())}) {
            EXPECT_EQ(widget->isEnabled(), isEnabled) << widget->objectName().toStdString();
        }
    }

    KrAutoReframePropertyPanel panel{nullptr};
    QSignalSpy imports;
    QSignalSpy exports;
    QSignalSpy starts;
    QSignalSpy previews;
};

} // namespace

TEST_F(PropertyPanelTest, DeclaresItsSignalsInOrder)
{
    EXPECT_EQ(MethodsOf(KrAutoReframePropertyPanel::staticMetaObject, QMetaMethod::Signal),
              (QStringList{QStringLiteral("sigImportFile()"), QStringLiteral("sigExport()"),
                           QStringLiteral("sigStartAnalysis()"), QStringLiteral("sigPreviewModeChanged(bool)")}));
}

TEST_F(PropertyPanelTest, IsEmptyAtFirst)
{
    Empty();
    EXPECT_FALSE(Import().isHidden());
    EXPECT_TRUE(Replace().isHidden());
    EXPECT_EQ(Ratio().currentText(), QStringLiteral("9:16"));
    EXPECT_EQ(Speed().currentText(), QStringLiteral("Auto"));
    EXPECT_TRUE(Preview().isChecked());
    EXPECT_FALSE(Preview().isEnabled());
    EXPECT_FALSE(Export().isEnabled());
    EXPECT_FALSE(Analyze().isHidden());
    EXPECT_TRUE(Restart().isHidden());
    ExpectSettingsEnabled(false);
}

TEST_F(PropertyPanelTest, TakesAFile)
{
    Empty();
    Imported();
    EXPECT_TRUE(Import().isHidden());
    EXPECT_FALSE(Replace().isHidden());
    EXPECT_FALSE(Preview().isEnabled());
    EXPECT_FALSE(Export().isEnabled());
    EXPECT_FALSE(Analyze().isHidden());
    EXPECT_TRUE(Restart().isHidden());
    ExpectSettingsEnabled(true);
}

TEST_F(PropertyPanelTest, ShowsRestartAfterTheFirstAnalysisOnly)
{
    Empty();
    Imported();
    for (int analysis = 0; analysis < 2; ++analysis) {
        Analysed();
        EXPECT_TRUE(Analyze().isHidden());
        EXPECT_FALSE(Restart().isHidden());
        EXPECT_TRUE(Preview().isEnabled());
        EXPECT_TRUE(Preview().isChecked());
        EXPECT_TRUE(Export().isEnabled());
        ExpectSettingsEnabled(true);
    }
}

TEST_F(PropertyPanelTest, AnotherFileBringsAnalyzeBack)
{
    Empty();
    Imported();
    Analysed();
    Imported();
    EXPECT_FALSE(Replace().isHidden());
    EXPECT_TRUE(Import().isHidden());
    EXPECT_FALSE(Analyze().isHidden());
    EXPECT_TRUE(Restart().isHidden());
    EXPECT_FALSE(Preview().isEnabled());
    EXPECT_FALSE(Export().isEnabled());
    Analysed();
    EXPECT_FALSE(Restart().isHidden());
}

TEST_F(PropertyPanelTest, TheImportButtonIsSwappedOnce)
{
    panel.OnFileImported();
    Import().show();
    panel.OnFileImported();
    EXPECT_FALSE(Import().isHidden());
}

TEST_F(PropertyPanelTest, ShowsTheSameOnTheScreen)
{
    panel.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&panel));
    Imported();
    Analysed();
    Analysed();
    EXPECT_TRUE(Restart().isVisible());
    EXPECT_FALSE(Analyze().isVisible());
}

TEST_F(PropertyPanelTest, OffersRatiosAndSpeeds)
{
    const struct {
        const char* text;
        int width;
        int height;
    } ratios[] = {{"9:16", 9, 16}, {"1:1", 1, 1}, {"16:9", 16, 9}, {"4:3", 4, 3}, {"4:5", 4, 5}, {"21:9", 21, 9}};
    ASSERT_EQ(Ratio().count(), 6);
    int width = 0;
    int height = 0;
    int speed = 0;
    for (int index = 0; index < Ratio().count(); ++index) {
        Ratio().setCurrentIndex(index);
        panel.GetParameters(width, height, speed);
        EXPECT_EQ(Ratio().currentText(), QLatin1String(ratios[index].text));
        EXPECT_EQ(Ratio().currentData().toString(), QLatin1String(ratios[index].text));
        EXPECT_EQ(width, ratios[index].width);
        EXPECT_EQ(height, ratios[index].height);
        EXPECT_EQ(speed, 16);
    }
    ASSERT_EQ(Speed().count(), 3);
    const char* const names[] = {"Auto", "Fast", "Slow"};
    const int speeds[] = {16, 8, 24};
    for (int index = 0; index < Speed().count(); ++index) {
        Speed().setCurrentIndex(index);
        panel.GetParameters(width, height, speed);
        EXPECT_EQ(Speed().currentText(), QLatin1String(names[index]));
        EXPECT_EQ(speed, speeds[index]);
    }
    EXPECT_EQ(width, 21);
    EXPECT_EQ(height, 9);
    EXPECT_EQ(speed, 24);
}

TEST_F(PropertyPanelTest, NumbersSpeedsForReports)
{
    EXPECT_EQ(panel.MotionSpeedToTrackValue(16), 3);
    EXPECT_EQ(panel.MotionSpeedToTrackValue(8), 1);
    EXPECT_EQ(panel.MotionSpeedToTrackValue(24), 2);
    EXPECT_EQ(panel.MotionSpeedToTrackValue(0), -1);
    Speed().addItem(QStringLiteral("other"), 99);
    EXPECT_EQ(panel.MotionSpeedToTrackValue(99), -1);
    Speed().clear();
    EXPECT_EQ(panel.MotionSpeedToTrackValue(16), -1);
}

TEST_F(PropertyPanelTest, TurnsThePreviewSwitchOnWithoutASignal)
{
    Preview().setChecked(false);
    ASSERT_EQ(previews.count(), 1);
    panel.SetPreviewEnabled(false);
    EXPECT_TRUE(Preview().isChecked());
    EXPECT_FALSE(Preview().isEnabled());
    EXPECT_EQ(previews.count(), 1);
    panel.SetPreviewEnabled(true);
    EXPECT_EQ(previews.count(), 1);
    Preview().setChecked(false);
    EXPECT_EQ(previews.count(), 2);
}

TEST_F(PropertyPanelTest, ReportsClicks)
{
    Import().click();
    EXPECT_EQ(imports.count(), 1);
    Replace().click();
    EXPECT_EQ(imports.count(), 2);
    Analyze().click();
    EXPECT_EQ(starts.count(), 1);
    Restart().click();
    EXPECT_EQ(starts.count(), 2);
    Export().click();
    EXPECT_EQ(exports.count(), 1);
    Preview().click();
    ASSERT_EQ(previews.count(), 1);
    EXPECT_FALSE(previews.at(0).at(0).toBool());
    Preview().click();
    ASSERT_EQ(previews.count(), 2);
    EXPECT_TRUE(previews.at(1).at(0).toBool());
    EXPECT_EQ(imports.count(), 2);
    EXPECT_EQ(starts.count(), 2);
    EXPECT_EQ(exports.count(), 1);
}

TEST_F(PropertyPanelTest, LaysItsControlsOut)
{
    panel.resize(296, 670);
    panel.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&panel));
    EXPECT_EQ(Import().geometry(), QRect(24, 16, 248, 81));
    EXPECT_EQ(Replace().minimumSize(), QSize(248, 81));
    EXPECT_EQ(Replace().maximumSize(), QSize(248, 81));
    EXPECT_EQ(Import().iconSize(), QSize(30, 30));
    EXPECT_EQ(Import().toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    EXPECT_EQ(Import().icon().pixmap(30, 30).toImage().pixelColor(15, 15).alpha(), 0);

    EXPECT_EQ(Settings().geometry().topLeft(), QPoint(24, 16 + 81 + 16));
    EXPECT_EQ(Settings().width(), 248);
    EXPECT_EQ(Preview().geometry().topLeft(), QPoint(12, 16));
    EXPECT_EQ(RatioLabel().y(), Preview().geometry().bottom() + 1 + 16);
    EXPECT_EQ(Ratio().y(), RatioLabel().geometry().bottom() + 1 + 8);
    EXPECT_EQ(SpeedLabel().y(), Ratio().geometry().bottom() + 1 + 16);
    EXPECT_EQ(Speed().y(), SpeedLabel().geometry().bottom() + 1 + 8);
    EXPECT_EQ(Analyze().y(), Speed().geometry().bottom() + 1 + 16);
    EXPECT_EQ(Settings().height(), Analyze().geometry().bottom() + 1 + 16);
    EXPECT_EQ(Analyze().width(), 225);
    EXPECT_EQ(Export().width(), 225);
    EXPECT_EQ(Restart().minimumWidth(), 225);
    EXPECT_EQ(Export().y(), Settings().geometry().bottom() + 1 + 16 + 8);
    EXPECT_EQ(Export().x(), 24 + (248 - 225) / 2);
    EXPECT_EQ(panel.property("bgColorType").toInt(), 5);
}

TEST_F(PropertyPanelTest, TakesItsTextsFromTheTranslation)
{
    Brackets brackets;
    QCoreApplication::installTranslator(&brackets);
    ASSERT_EVENTUALLY_EQ(Import().text(), QStringLiteral("[Import]"));
    EXPECT_EQ(Replace().text(), QStringLiteral("[Replace File]"));
    EXPECT_EQ(Preview().text(), QStringLiteral("[Adjust Frame]"));
    EXPECT_EQ(RatioLabel().text(), QStringLiteral("[Aspect Ratio]"));
    EXPECT_EQ(SpeedLabel().text(), QStringLiteral("[Motion Speed]"));
    EXPECT_EQ(Analyze().text(), QStringLiteral("[Analyze]"));
    EXPECT_EQ(Restart().text(), QStringLiteral("[AutoReframe_Restart]"));
    EXPECT_EQ(Export().text(), QStringLiteral("[Export]"));
    EXPECT_EQ(Speed().itemText(0), QStringLiteral("Auto")) << "speeds are translated when they are added";
    const KrAutoReframePropertyPanel later(nullptr);
    const auto textOf = [&later](const char* name, int index) {
        return later.findChild<KxComboBox*>(QLatin1String(name))->itemText(index);
    };
    EXPECT_EQ(textOf("KrAutoReframePropertyPanel_motionSpeed", 2), QStringLiteral("[Slow]"));
    EXPECT_EQ(textOf("KrAutoReframePropertyPanel_aspectRatio", 0), QStringLiteral("9:16"));
    QCoreApplication::removeTranslator(&brackets);
}
