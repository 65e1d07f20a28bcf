#include <KrAutoReframe/Player/KrAutoReframePlayerToolSlider.h>

#include <KrAutoReframe/Player/KrMarkColours.h>
#include <Tests/KrAutoReframe/WidgetProbe.h>
#include <Tests/Support/Eventually.h>

#include <QPainterPath>
#include <QSignalSpy>
#include <QtTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace WidgetProbe;

namespace
{

const QColor Orange(255, 139, 85);
const QColor Disc(255, 174, 52);

/// Captures the messages that the code under test writes to Qt's debug stream.
class DebugLines
{
public:
    DebugLines()
    {
        Lines().clear();
        Before() = qInstallMessageHandler(&Keep);
    }
    ~DebugLines() { qInstallMessageHandler(Before()); }
    Q_DISABLE_COPY_MOVE(DebugLines)

    QStringList Said() const { return Lines(); }

private:
    static QStringList& Lines()
    {
        static QStringList lines;
        return lines;
    }
    static QtMessageHandler& Before()
    {
        static QtMessageHandler before = nullptr;
        return before;
    }
    static void Keep(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (type == QtDebugMsg) {
            Lines().append(text.trimmed());
        } else if (Before() != nullptr) {
            Before()(type, context, text);
        }
    }
};

class SliderTest : public testing::Test
{
protected:
    SliderTest()
        : slider(KrAutoReframePlayerToolSlider::CreateNormalSlider(nullptr, Qt::Horizontal))
    {
        slider->resize(416, 24);
        slider->setDuration(100.0);
        marks = slider->findChild<QWidget*>(QStringLiteral("KrUIStyle_ToolBarSlider_MarkWidget"));
    }

    void SetUp() override
    {
        slider->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(slider.get()));
    }

    /// Left edge of a mark that is not at the handle.
    int MarkX(double frame) const
    {
        const int position = static_cast<int>(slider->GetWidth() * (frame / slider->duration()));
        return qBound(0, position + slider->GetChunkWidth() / 2, slider->GetWidth());
    }

    /// The widget of the marks with bars at `lefts`.
    QImage Bars(const QList<int>& lefts) const
    {
        QImage image(marks->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        for (const int left : lefts) {
            QPainterPath path;
            path.addRect(left, 0, 4, slider->height());
            painter.fillPath(path, Orange);
            painter.strokePath(path, QPen(QColor(0, 0, 0, 61), 0.5, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        }
        return image;
    }

    std::unique_ptr<KrAutoReframePlayerToolSlider> slider;
    QWidget* marks = nullptr;
};

} // namespace

TEST_F(SliderTest, DeclaresItsSlotsInOrder)
{
    const QMetaObject& metaObject = KrAutoReframePlayerToolSlider::staticMetaObject;
    EXPECT_EQ(MethodsOf(metaObject, QMetaMethod::Slot),
              (QStringList{QStringLiteral("slotOnAddOneEdit(uint)"), QStringLiteral("slotOnDelOneEdit(uint)"),
                           QStringLiteral("slotOnDelAllEdit()"), QStringLiteral("slotOnToPreEdit()"),
                           QStringLiteral("slotOnToNextEdit()"), QStringLiteral("slotRealCurrentFrame(uint)")}));
    EXPECT_TRUE(MethodsOf(metaObject, QMetaMethod::Signal).isEmpty());
}

TEST_F(SliderTest, TheStyleSheetCanDistinguishTheKinds)
{
    EXPECT_EQ(slider->objectName(), QStringLiteral("KrUIStyle_ToolBarSlider"));
    EXPECT_EQ(slider->property("sliderType").toString(), QStringLiteral("normal"));
    const std::unique_ptr<QWidget> flat(KrAutoReframePlayerToolSlider::CreateSmallSlider(nullptr, Qt::Horizontal));
    EXPECT_EQ(flat->property("sliderType").toString(), QStringLiteral("small"));
    EXPECT_EQ(flat->minimumHeight(), 8);
    EXPECT_EQ(flat->maximumHeight(), 8);
    EXPECT_EQ(flat->maximumWidth(), QWIDGETSIZE_MAX);
    const std::unique_ptr<QWidget> narrow(KrAutoReframePlayerToolSlider::CreateSmallSlider(nullptr, Qt::Vertical));
    EXPECT_EQ(narrow->property("sliderType").toString(), QStringLiteral("small"));
    EXPECT_EQ(narrow->minimumWidth(), 8);
    EXPECT_EQ(narrow->maximumWidth(), 8);
    EXPECT_EQ(narrow->maximumHeight(), QWIDGETSIZE_MAX);
}

TEST_F(SliderTest, MarksCoverTheSliderUnderTheHandle)
{
    EXPECT_EQ(marks->geometry(), slider->rect());
    const QObjectList& children = slider->children();
    EXPECT_LT(children.indexOf(marks), children.indexOf(slider->chunkWidget()));
    slider->resize(300, 30);
    ASSERT_EVENTUALLY_EQ(marks->geometry(), QRect(0, 0, 300, 30));
}

TEST_F(SliderTest, PaintsABarAtEachEditedFrame)
{
    slider->SetEditFrames({40, 10});
    slider->slotRealCurrentFrame(70);
    const QImage painted = Paint(*marks);
    EXPECT_EQ(painted, Bars({MarkX(10), MarkX(40)}));
    EXPECT_EQ(painted.pixelColor(MarkX(10) + 1, 12), Orange);
    EXPECT_EQ(painted.pixelColor(MarkX(10) + 2, 0 + 12), Orange);
    EXPECT_EQ(painted.pixelColor(MarkX(10) - 2, 12).alpha(), 0);
    EXPECT_EQ(painted.pixelColor(MarkX(10) + 5, 12).alpha(), 0);
}

TEST_F(SliderTest, PlacesBarsByTruncation)
{
    // A third of the way never falls on a whole pixel.
    slider->setDuration(96.0);
    slider->SetEditFrames({31});
    slider->slotRealCurrentFrame(70);
    EXPECT_EQ(Paint(*marks), Bars({MarkX(31)}));
}

TEST_F(SliderTest, AMarkForFrameZeroStartsAtTheEdge)
{
    slider->SetEditFrames({0});
    slider->slotRealCurrentFrame(50);
    EXPECT_EQ(Paint(*marks), Bars({0}));
    slider->slotRealCurrentFrame(0);
    EXPECT_EQ(Paint(*marks), Bars({0}));
}

TEST_F(SliderTest, TheMarkOfTheCurrentFrameStartsAtTheHandlesCentre)
{
    slider->SetEditFrames({40});
    slider->setValue(60.0, false);
    slider->slotRealCurrentFrame(40);
    const QWidget& chunk = *slider->chunkWidget();
    const int radius = qMax(chunk.width() / 2, chunk.height() / 2);
    ASSERT_NE(chunk.x() + radius, MarkX(40));
    EXPECT_EQ(Paint(*marks), Bars({chunk.x() + radius}));
}

TEST_F(SliderTest, NoMarkStartsBeyondTheUsableLength)
{
    slider->SetEditFrames({99});
    slider->slotRealCurrentFrame(50);
    EXPECT_EQ(Paint(*marks), Bars({slider->GetWidth(), slider->GetWidth()}));
}

TEST_F(SliderTest, MarksCanBeStyled)
{
    slider->SetMarkStyle(Qt::transparent, 0.5, Qt::blue, 10);
    slider->SetEditFrames({40});
    slider->slotRealCurrentFrame(50);
    const QImage painted = Paint(*marks);
    EXPECT_EQ(painted.pixelColor(MarkX(40), 12), QColor(Qt::blue));
    EXPECT_EQ(painted.pixelColor(MarkX(40) + 9, 12), QColor(Qt::blue));
    EXPECT_EQ(painted.pixelColor(MarkX(40) + 10, 12).alpha(), 0);
}

TEST_F(SliderTest, TheHandleShowsADiscOnAnEditedFrameOnly)
{
    QWidget& chunk = *slider->chunkWidget();
    const int radius = qMax(chunk.width() / 2, chunk.height() / 2);
    ASSERT_GT(radius, 2);
    slider->SetEditFrames({40});
    slider->slotRealCurrentFrame(40);

    QImage expected(chunk.size(), QImage::Format_ARGB32_Premultiplied);
    expected.fill(Qt::transparent);
    {
        QPainter painter(&expected);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(chunk.palette().color(chunk.foregroundRole()));
        painter.setBrush(Disc);
        painter.drawEllipse(QPointF(radius, radius), radius + 0.5, radius + 0.5);
    }
    const QImage painted = Paint(chunk);
    EXPECT_EQ(painted, expected);
    EXPECT_EQ(painted.pixelColor(radius, radius), Disc);

    slider->slotRealCurrentFrame(41);
    EXPECT_NE(Paint(chunk).pixelColor(radius, radius), Disc);
}

TEST_F(SliderTest, TheDiscTakesTheStyledColour)
{
    slider->SetChunkStyle(Qt::red, 3, Qt::green, Qt::blue);
    slider->SetEditFrames({40});
    slider->slotRealCurrentFrame(40);
    QWidget& chunk = *slider->chunkWidget();
    const int radius = qMax(chunk.width() / 2, chunk.height() / 2);
    EXPECT_EQ(Paint(chunk).pixelColor(radius, radius), QColor(Qt::blue));
}

TEST_F(SliderTest, OnlyPaintEventsOfHandleAndMarksAreTaken)
{
    QWidget other;
    QEvent paint(QEvent::Paint);
    QEvent enter(QEvent::Enter);
    QObject* const filter = slider.get();
    EXPECT_FALSE(filter->eventFilter(&other, &paint));
    EXPECT_FALSE(filter->eventFilter(slider->chunkWidget(), &enter));
    EXPECT_FALSE(filter->eventFilter(marks, &enter));
}

TEST_F(SliderTest, RepaintsForMarksButNotForNoMarks)
{
    PaintPending(*slider);
    EventCounter paints(marks, QEvent::Paint);
    const auto expectPaint = [this, &paints](int count) {
        PaintPending(*slider);
        EXPECT_EQ(paints.count, count);
        paints.count = 0;
    };
    expectPaint(0);
    slider->SetEditFrames({10});
    expectPaint(1);
    slider->SetEditFrames({});
    expectPaint(0);
    slider->slotRealCurrentFrame(10);
    expectPaint(0);
    slider->slotOnAddOneEdit(20);
    expectPaint(1);
    slider->slotOnDelOneEdit(20);
    expectPaint(1);
    slider->slotOnDelAllEdit();
    expectPaint(1);
}

TEST_F(SliderTest, AnEditOfTheLastFrameAddsAMarkAndAStopAtTheVeryEnd)
{
    slider->SetEditFrames({99, 10});
    slider->setValue(99.0, false);
    {
        const DebugLines debug;
        slider->slotOnToNextEdit();
        EXPECT_EQ(debug.Said(), QStringList{QStringLiteral("Find Next Edit Pos: 100")});
    }
    EXPECT_EQ(slider->value(), 100.0);
    slider->slotOnToPreEdit();
    EXPECT_EQ(slider->value(), 99.0);

    slider->SetEditFrames({98});
    slider->setValue(98.0, false);
    slider->slotOnToNextEdit();
    EXPECT_EQ(slider->value(), 98.0);
}

TEST_F(SliderTest, SearchesFromAnEditedFrame)
{
    slider->SetEditFrames({20, 10});
    slider->setValue(20.0, false);
    const QSignalSpy moved(slider.get(), &KxToolSlider::sigValueChanged);
    const DebugLines debug;
    slider->slotOnToNextEdit();
    EXPECT_EQ(debug.Said(), QStringList{QStringLiteral("Not found Next Edit Point:")});
    EXPECT_EQ(moved.count(), 0);
    slider->slotOnToPreEdit();
    EXPECT_EQ(debug.Said().last(), QStringLiteral("Find Pre Edit Pos: 10"));
    EXPECT_EQ(slider->value(), 10.0);
    EXPECT_EQ(moved.count(), 1);
}

TEST_F(SliderTest, SearchesFromTheTruncatedPosition)
{
    slider->SetEditFrames({10, 20});
    slider->setValue(10.7, false);
    slider->slotOnToPreEdit();
    EXPECT_EQ(slider->value(), 10.7);
    slider->slotOnToNextEdit();
    EXPECT_EQ(slider->value(), 20.0);
}

TEST_F(SliderTest, TheSearchBackLogsNothingWhenThereIsNone)
{
    const DebugLines debug;
    slider->slotOnToPreEdit();
    slider->SetEditFrames({10});
    slider->setValue(10.0, false);
    slider->slotOnToPreEdit();
    EXPECT_TRUE(debug.Said().isEmpty());
    EXPECT_EQ(slider->value(), 10.0);
}

TEST_F(SliderTest, AddingAFrameAgainMovesItToTheEnd)
{
    // Wide bars that overlap: the one painted last shows both its edges.
    constexpr int wide = 60;
    slider->SetMarkStyle(Qt::black, 2.0, Orange, wide);
    slider->SetEditFrames({10, 20, 30});
    slider->slotRealCurrentFrame(70);
    const int rightEdge = MarkX(20) + wide;
    ASSERT_LT(MarkX(30) + 2, rightEdge);
    EXPECT_EQ(Paint(*marks).pixelColor(rightEdge, 12), Orange);
    slider->slotOnAddOneEdit(20);
    EXPECT_EQ(Paint(*marks).pixelColor(rightEdge, 12), QColor(Qt::black));
}

TEST_F(SliderTest, AFrameAddedTwiceIsInTheListOnce)
{
    slider->SetEditFrames({10, 20});
    slider->slotRealCurrentFrame(70);
    // Half clear: two bars on the same place would be darker.
    slider->SetMarkStyle(Qt::transparent, 0.5, QColor(0, 0, 255, 128), 4);
    slider->slotOnAddOneEdit(20);
    EXPECT_EQ(Paint(*marks).pixelColor(MarkX(20) + 1, 12).alpha(), 128);
    slider->SetMarkStyle(QColor(0, 0, 0, 61), 0.5, Orange, 4);
    slider->slotOnDelOneEdit(20);
    EXPECT_EQ(Paint(*marks), Bars({MarkX(10)}));
    slider->slotOnDelAllEdit();
    EXPECT_EQ(Paint(*marks), Bars({}));
}

TEST_F(SliderTest, PassesFramesThroughSinglePrecision)
{
    slider->setDuration(40000000.0);
    slider->SetEditFrames({16777217});
    slider->slotOnToNextEdit();
    EXPECT_EQ(slider->value(), 16777216.0);
}

TEST_F(SliderTest, KeepsItsOwnList)
{
    QList<uint> frames{30, 10};
    slider->SetEditFrames(frames);
    EXPECT_EQ(frames, (QList<uint>{30, 10}));
    frames.append(5);
    slider->slotOnToNextEdit();
    EXPECT_EQ(slider->value(), 10.0);
}

namespace
{

/// As of the contrast of two colours in the guidelines for accessible content: 1 to 21.
double Contrast(const QColor& a, const QColor& b)
{
    const auto luminance = [](const QColor& colour) {
        const auto linear = [](double value) {
            return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
    };
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

} // namespace

TEST_F(SliderTest, ADoubtfulShotThatWasSeenIsNoLongerAmber)
{
    using Kind = KrAutoReframePlayerToolSlider::ShotMark::Kind;
    const auto isAmber = [this](Kind kind) {
        slider->SetShots({{0, 40, Kind::Sure, QString()}, {40, 100, kind, QString()}});
        const QImage image = Paint(*marks);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == KrMarkColours::Doubt(slider->palette())) {
                    return true;
                }
            }
        }
        return false;
    };
    for (const QColor& window : {QColor(0x20, 0x22, 0x27), QColor(0xFA, 0xFB, 0xFC)}) {
        slider->setPalette(QPalette(window));
        EXPECT_TRUE(isAmber(Kind::Doubtful));
        EXPECT_FALSE(isAmber(Kind::Seen));
        EXPECT_FALSE(isAmber(Kind::Sure));
    }
}

TEST_F(SliderTest, MarksTakeTheColoursOfTheThemeThatIsShown)
{
    using Kind = KrAutoReframePlayerToolSlider::ChoiceMark::Kind;
    using ShotKind = KrAutoReframePlayerToolSlider::ShotMark::Kind;
    slider->SetChoices({{0, 30, Kind::Followed, QString()}, {30, 60, Kind::Other, QString()}});
    slider->SetGaps({{60, 80, Kind::Doubted, QString()}, {80, 100, Kind::Lost, QString()}});
    slider->SetShots({{0, 50, ShotKind::Sure, QString()}, {50, 100, ShotKind::Doubtful, QString()}});
    // Of the program's style sheet.
    slider->setStyleSheet(QStringLiteral("#KrUIStyle_ToolBarSlider { background: transparent; }"));
    const QPalette before = QApplication::palette();
    for (const QColor& window : {QColor(0x20, 0x22, 0x27), QColor(0xFA, 0xFB, 0xFC)}) {
        QPalette palette(window);
        palette.setColor(QPalette::Highlight, window.lightness() < 128 ? Qt::yellow : Qt::blue);
        palette.setColor(QPalette::PlaceholderText, window.lightness() < 128 ? Qt::lightGray : Qt::darkGray);
        QApplication::setPalette(palette);
        const QImage image = Paint(*marks);
        EXPECT_EQ(image.pixelColor(MarkX(15), 1), palette.color(QPalette::Highlight));
        EXPECT_EQ(image.pixelColor(MarkX(45), 1), palette.color(QPalette::PlaceholderText));
        EXPECT_EQ(image.pixelColor(MarkX(70), 1), KrMarkColours::Doubt(palette));
        EXPECT_EQ(image.pixelColor(MarkX(90), 1), KrMarkColours::Loss(palette));
        EXPECT_EQ(image.pixelColor(MarkX(75), image.height() - 1), KrMarkColours::Doubt(palette));
    }
    QApplication::setPalette(before);
}

TEST_F(SliderTest, MarksOfShotsStandOutInDarkAndLightWindows)
{
    constexpr double least = 3.0;
    for (const QColor& window : {QColor(0x20, 0x22, 0x27), QColor(0xFA, 0xFB, 0xFC)}) {
        const QPalette palette(window);
        ASSERT_EQ(palette.color(QPalette::Window), window);
        for (const QColor& colour :
             {KrMarkColours::Shot(palette), KrMarkColours::Doubt(palette), KrMarkColours::Loss(palette)}) {
            EXPECT_GE(Contrast(colour, window), least) << colour.name().toStdString() << window.name().toStdString();
        }
    }
}
