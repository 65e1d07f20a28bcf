#include <KrAutoReframe/Player/KrAutoReframePlayerControlBar.h>

#include <KrAutoReframe/Player/KrAutoReframePlayerToolSlider.h>
#include <Tests/KrAutoReframe/FakePlayer/FakePlayer.h>
#include <Tests/KrAutoReframe/WidgetProbe.h>
#include <Tests/Support/Eventually.h>

#include <KxPlayer/KxMediaPlayerWidget.h>
#include <KxWidgets/IKxShortcutEditManager.h>
#include <KxWidgets/KxLabel.h>
#include <KxWidgets/KxSwitchToolButton.h>
#include <KxWidgets/KxToolButton.h>
#include <KxWidgets/KxToolSlider.h>

#include <QHBoxLayout>
#include <QSettings>
#include <QShortcut>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTranslator>
#include <QVBoxLayout>
#include <QtTest>

#include <gtest/gtest.h>

#include <memory>

using namespace WidgetProbe;

namespace
{

using Bar = KrAutoReframePlayerControlBar;
using Action = IKxShortcutEditManager::Action;

constexpr int Transport[] = {Bar::BackwardButton, Bar::PlayPauseButton, Bar::StopButton, Bar::ForwardButton};
const char* const Editing[] = {"KrAutoReframe_undo", "KrAutoReframe_redo", "KrAutoReframe_pre", "KrAutoReframe_delete",
                               "KrAutoReframe_next"};

/// The bar's signals by name, in the order in which they came.
class Heard
{
public:
    explicit Heard(Bar* bar)
    {
        QObject::connect(bar, &Bar::sigUndo, bar, [this] { said.append(QStringLiteral("undo")); });
        QObject::connect(bar, &Bar::sigRedo, bar, [this] { said.append(QStringLiteral("redo")); });
        QObject::connect(bar, &Bar::sigDelete, bar, [this] { said.append(QStringLiteral("delete")); });
        QObject::connect(bar, &Bar::sigPrevious, bar, [this] { said.append(QStringLiteral("previous")); });
        QObject::connect(bar, &Bar::sigNext, bar, [this] { said.append(QStringLiteral("next")); });
    }
    QStringList said;
};

class ControlBarTest : public testing::Test
{
protected:
    ControlBarTest()
        : presenter(mediaPlayerFactory()->createPlayerWidget(&window)->getOrCreatePresenter())
    {
        Script().frameRate = 30.0f;
        bar = new Bar(presenter, &window);
        auto* const layout = new QVBoxLayout(&window);
        layout->addWidget(bar);
        layout->addStretch();
        window.resize(920, 160);
    }

    void SetUp() override
    {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    FakePlayer::Script& Script() { return FakePlayer::ScriptOf(*presenter); }
    QAbstractButton& Button(const char* name) const { return *bar->findChild<KxToolButton*>(QLatin1String(name)); }
    KxLabel& Time() const { return *bar->findChild<KxLabel*>(); }
    KrAutoReframePlayerToolSlider& Slider() const
    {
        return *static_cast<KrAutoReframePlayerToolSlider*>(bar->slider());
    }
    static QString Keys(int action)
    {
        return IKxShortcutEditManager::GetInstance()->keySequence(action).toString(QKeySequence::PortableText);
    }

    QWidget window;
    KxMediaPlayerPresenter* presenter;
    Bar* bar = nullptr;
};

} // namespace

TEST_F(ControlBarTest, DeclaresItsSignalsAndSlotInOrder)
{
    const QMetaObject& metaObject = Bar::staticMetaObject;
    EXPECT_EQ(MethodsOf(metaObject, QMetaMethod::Signal),
              (QStringList{QStringLiteral("sigDelete()"), QStringLiteral("sigPrevious()"), QStringLiteral("sigNext()"),
                           QStringLiteral("sigUndo()"), QStringLiteral("sigRedo()")}));
    EXPECT_EQ(MethodsOf(metaObject, QMetaMethod::Slot),
              QStringList{QStringLiteral("SlotUpdateSliderPaint(QList<uint>)")});
}

TEST_F(ControlBarTest, StartsWithEditingEnabledAndTransportDisabled)
{
    for (const char* const name : Editing) {
        EXPECT_TRUE(Button(name).isEnabled()) << name;
    }
    for (const int number : Transport) {
        EXPECT_FALSE(bar->button(number)->isEnabled()) << number;
        EXPECT_TRUE(bar->button(number)->isVisible()) << number;
    }
    EXPECT_TRUE(bar->IsUndoRedoEnabled());
    EXPECT_TRUE(bar->property("seeksWhileDragged").toBool());
    EXPECT_EQ(bar->playerPresenter(), presenter);
}

TEST_F(ControlBarTest, EnablingTransportLeavesBackwardAlone)
{
    bar->EnableTransport();
    EXPECT_TRUE(bar->button(Bar::PlayPauseButton)->isEnabled());
    EXPECT_TRUE(bar->button(Bar::StopButton)->isEnabled());
    EXPECT_TRUE(bar->button(Bar::ForwardButton)->isEnabled());
    EXPECT_FALSE(bar->button(Bar::BackwardButton)->isEnabled());
}

TEST_F(ControlBarTest, LaysOutSliderAndRow)
{
    auto* const layout = qobject_cast<QVBoxLayout*>(bar->layout());
    ASSERT_NE(layout, nullptr);
    EXPECT_EQ(layout->contentsMargins(), QMargins(16, 16, 16, 24));
    EXPECT_EQ(layout->spacing(), 16);
    ASSERT_EQ(layout->count(), 2);
    EXPECT_EQ(layout->itemAt(0)->widget(), bar->slider());
    EXPECT_EQ(layout->itemAt(0)->alignment(), Qt::AlignVCenter);
    auto* const row = qobject_cast<QHBoxLayout*>(layout->itemAt(1)->layout());
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->contentsMargins(), QMargins(0, 0, 0, 0));
    EXPECT_EQ(row->spacing(), 8);

    QStringList names;
    for (int index = 0; index < row->count(); ++index) {
        QLayoutItem* const item = row->itemAt(index);
        names.append(item->widget() != nullptr ? item->widget()->objectName() : QStringLiteral("stretch"));
    }
    EXPECT_EQ(names, (QStringList{QStringLiteral("KrAutoReframe_undo"), QStringLiteral("KrAutoReframe_redo"),
                                  QStringLiteral("KrAutoReframe_pre"), QStringLiteral("KrAutoReframe_delete"),
                                  QStringLiteral("KrAutoReframe_next"), QStringLiteral("stretch"),
                                  QStringLiteral("KxPlayerToolBar_backward"), QStringLiteral("KxPlayerToolBar_play"),
                                  QStringLiteral("KxPlayerToolBar_stop"), QStringLiteral("KxPlayerToolBar_forward"),
                                  QStringLiteral("stretch"), QStringLiteral("KrAutoReframe_time")}));
    EXPECT_EQ(Time().width(), 152);
    EXPECT_EQ(Time().alignment(), Qt::AlignRight | Qt::AlignVCenter);
    EXPECT_EQ(row->itemAt(11)->alignment(), Qt::AlignVCenter);
    EXPECT_EQ(Slider().sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed));
    EXPECT_EQ(Slider().geometry().left(), 16);
    EXPECT_EQ(Slider().geometry().top(), 16);
    EXPECT_EQ(Slider().geometry().width(), bar->width() - 32);
}

TEST_F(ControlBarTest, ShowsTheTimeOfTheFrame)
{
    EXPECT_EQ(Time().text(), QStringLiteral("00:00:00:00"));
    FakePlayer::ShowFrame(*presenter, 65 * 30 + 12);
    EXPECT_EQ(Time().text(), QStringLiteral("00:01:05:12"));
    Script().frameRate = 25.0f;
    FakePlayer::ShowFrame(*presenter, 90061);
    EXPECT_EQ(Time().text(), QStringLiteral("01:00:02:11"));
}

TEST_F(ControlBarTest, PassesTheFrameToTheSlider)
{
    Slider().SetEditFrames({40});
    QWidget& chunk = *Slider().chunkWidget();
    const QPoint centre(qMax(chunk.width() / 2, chunk.height() / 2), qMax(chunk.width() / 2, chunk.height() / 2));
    FakePlayer::ShowFrame(*presenter, 40);
    EXPECT_EQ(Paint(chunk).pixelColor(centre), QColor(255, 174, 52));
    FakePlayer::ShowFrame(*presenter, 41);
    EXPECT_NE(Paint(chunk).pixelColor(centre), QColor(255, 174, 52));
}

TEST_F(ControlBarTest, EachEditingButtonEmitsItsSignal)
{
    const Heard heard(bar);
    for (const char* const name : Editing) {
        Button(name).click();
    }
    EXPECT_EQ(heard.said, (QStringList{QStringLiteral("undo"), QStringLiteral("redo"), QStringLiteral("previous"),
                                       QStringLiteral("delete"), QStringLiteral("next")}));
}

TEST_F(ControlBarTest, DisabledButtonsEmitNothing)
{
    const Heard heard(bar);
    bar->SetUndoRedoEnabled(false, true);
    EXPECT_FALSE(Button("KrAutoReframe_undo").isEnabled());
    EXPECT_TRUE(Button("KrAutoReframe_redo").isEnabled());
    EXPECT_FALSE(bar->IsUndoRedoEnabled());
    bar->SetUndoRedoEnabled(true, false);
    EXPECT_TRUE(Button("KrAutoReframe_undo").isEnabled());
    EXPECT_FALSE(Button("KrAutoReframe_redo").isEnabled());
    EXPECT_FALSE(bar->IsUndoRedoEnabled());
    bar->SetPrevNextEnabled(true, false);
    EXPECT_TRUE(Button("KrAutoReframe_pre").isEnabled());
    EXPECT_FALSE(Button("KrAutoReframe_next").isEnabled());
    bar->SetPrevNextEnabled(false, true);
    EXPECT_FALSE(Button("KrAutoReframe_pre").isEnabled());
    EXPECT_TRUE(Button("KrAutoReframe_next").isEnabled());
    bar->SetDeleteEnabled(false);
    EXPECT_FALSE(Button("KrAutoReframe_delete").isEnabled());
    Button("KrAutoReframe_delete").click();
    EXPECT_TRUE(heard.said.isEmpty());
}

TEST_F(ControlBarTest, ShortcutsWorkWhetherTheButtonIsEnabledOrNot)
{
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const Heard heard(bar);
    bar->SetUndoRedoEnabled(false, false);
    bar->SetDeleteEnabled(false);
    bar->SetPrevNextEnabled(false, false);
    const IKxShortcutEditManager* const manager = IKxShortcutEditManager::GetInstance();
    for (const int action :
         {Action::Undo, Action::Redo, Action::Delete, Action::PreviousEditPoint, Action::NextEditPoint}) {
        QTest::keySequence(&window, manager->keySequence(action));
    }
    EXPECT_EQ(heard.said, (QStringList{QStringLiteral("undo"), QStringLiteral("redo"), QStringLiteral("delete"),
                                       QStringLiteral("previous"), QStringLiteral("next")}));
    const QList<QShortcut*> shortcuts = bar->findChildren<QShortcut*>();
    EXPECT_EQ(shortcuts.size(), 5);
    for (const QShortcut* const shortcut : shortcuts) {
        EXPECT_EQ(shortcut->context(), Qt::WindowShortcut);
    }
}

TEST_F(ControlBarTest, TooltipsNameTheKeys)
{
    const auto expect = [](const QAbstractButton& button, const QString& text, int action) {
        EXPECT_EQ(button.toolTip(), text.arg(Keys(action)));
    };
    expect(*bar->button(Bar::BackwardButton), QStringLiteral("Backward (%1)"), Action::Backward);
    expect(*bar->button(Bar::ForwardButton), QStringLiteral("Forward (%1)"), Action::Forward);
    expect(*bar->button(Bar::StopButton), QStringLiteral("Stop (%1)"), Action::Stop);
    expect(Button("KrAutoReframe_undo"), QStringLiteral("Undo (%1)"), Action::Undo);
    expect(Button("KrAutoReframe_redo"), QStringLiteral("Redo (%1)"), Action::Redo);
    expect(Button("KrAutoReframe_delete"), QStringLiteral("Delete (%1)"), Action::Delete);
    expect(Button("KrAutoReframe_pre"), QStringLiteral("Previous Edit Point (%1)"), Action::PreviousEditPoint);
    expect(Button("KrAutoReframe_next"), QStringLiteral("Next Edit Point (%1)"), Action::NextEditPoint);
    EXPECT_EQ(Button("KrAutoReframe_undo").toolTip(), QStringLiteral("Undo (Ctrl+Z)"));

    auto* const play = qobject_cast<KxSwitchToolButton*>(bar->button(Bar::PlayPauseButton));
    ASSERT_NE(play, nullptr);
    play->SetFace(0);
    expect(*play, QStringLiteral("Play (%1)"), Action::PlayPause);
    play->SetFace(1);
    expect(*play, QStringLiteral("Pause (%1)"), Action::PlayPause);
}

TEST_F(ControlBarTest, AnActionWithoutKeysHasEmptyBrackets)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("host.ini"));
    QSettings(path, QSettings::IniFormat).setValue(QStringLiteral("Shortcuts/1000"), QString());
    const QByteArray before = qgetenv("KX_CONFIG_FILE");
    qputenv("KX_CONFIG_FILE", path.toUtf8());
    bar->updateToolTip();
    qputenv("KX_CONFIG_FILE", before);

    EXPECT_EQ(Button("KrAutoReframe_undo").toolTip(), QStringLiteral("Undo ()"));
    EXPECT_EQ(Button("KrAutoReframe_redo").toolTip(), QStringLiteral("Redo (Ctrl+Shift+Z)"));
}

TEST_F(ControlBarTest, TextsAreTakenFromTheBarsOwnContext)
{
    class Brackets : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char* context, const char* text, const char*, int) const override
        {
            return qstrcmp(context, "KrAutoReframePlayerControlBar") == 0
                       ? QStringLiteral("[%1]").arg(QString::fromLatin1(text))
                       : QString();
        }
    } brackets;
    QCoreApplication::installTranslator(&brackets);
    ASSERT_EVENTUALLY_EQ(Button("KrAutoReframe_undo").toolTip(), QStringLiteral("[Undo (Ctrl+Z)]"));
    EXPECT_EQ(bar->button(Bar::PlayPauseButton)->toolTip(), QStringLiteral("[Play (%1)]").arg(Keys(Action::PlayPause)));
    QCoreApplication::removeTranslator(&brackets);
    QCoreApplication::sendPostedEvents();
}

TEST_F(ControlBarTest, NoButtonShowsItsName)
{
    for (const char* const name : Editing) {
        EXPECT_TRUE(Button(name).text().isEmpty()) << name;
    }
}

TEST_F(ControlBarTest, HandsMarksToTheSlider)
{
    bar->slider()->setDuration(100.0);
    bar->SlotUpdateSliderPaint({20, 10});
    Slider().slotOnToNextEdit();
    EXPECT_EQ(bar->slider()->value(), 10.0);
}

TEST_F(ControlBarTest, ClearingTheMarksRepaintsTheSlider)
{
    bar->SetUndoRedoEnabled(false, false);
    bar->SlotUpdateSliderPaint({10});
    QWidget* const marks = bar->slider()->findChild<QWidget*>(QStringLiteral("KrUIStyle_ToolBarSlider_MarkWidget"));
    PaintPending(window);
    const EventCounter paints(marks, QEvent::Paint);
    PaintPending(window);
    ASSERT_EQ(paints.count, 0);
    bar->SlotUpdateSliderPaint({});
    PaintPending(window);
    EXPECT_EQ(paints.count, 1);
}

TEST_F(ControlBarTest, AClickWithoutAMoveIsNoDrag)
{
    const QSignalSpy started(bar->slider(), &KxToolSlider::sigValueChangeStart);
    const QSignalSpy ended(bar->slider(), &KxToolSlider::sigValueChangeEnd);
    const QPoint handle = bar->slider()->chunkWidget()->geometry().center();
    Press(*bar->slider(), handle);
    Release(*bar->slider(), handle);
    EXPECT_EQ(started.count(), 0);
    EXPECT_EQ(ended.count(), 0);
    Press(*bar->slider(), handle + QPoint(200, 0));
    Release(*bar->slider(), handle + QPoint(200, 0));
    EXPECT_EQ(started.count(), 1);
    EXPECT_EQ(ended.count(), 1);
}

TEST_F(ControlBarTest, WithoutAPresenterItConnectsNothing)
{
    Bar deaf(nullptr, nullptr);
    const Heard heard(&deaf);
    for (const char* const name : Editing) {
        deaf.findChild<KxToolButton*>(QLatin1String(name))->click();
    }
    EXPECT_TRUE(heard.said.isEmpty());
    EXPECT_TRUE(deaf.findChildren<QShortcut*>().isEmpty());
    EXPECT_TRUE(deaf.findChild<KxLabel*>()->text().isEmpty());
    EXPECT_FALSE(deaf.findChild<KxToolButton*>(QStringLiteral("KrAutoReframe_undo"))->toolTip().isEmpty());
}
