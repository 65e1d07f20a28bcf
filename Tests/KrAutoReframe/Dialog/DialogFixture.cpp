#include <Tests/KrAutoReframe/Dialog/DialogFixture.h>

#include <QTimer>
#include <QtTest>

namespace
{

constexpr int Running = 1;
constexpr int Ended = 2;
constexpr int WaitMs = 60000;

} // namespace

DialogTest::DialogTest()
{
    FakeHost::Reset();
    Make(nullptr);
}

DialogTest::~DialogTest()
{
    dialog.reset();
    FakeHost::Reset();
}

void DialogTest::Make(QWidget* parent)
{
    dialog = std::make_unique<ReachableDialog>(parent);
    process = dialog->findChild<KrAutoReframeProcess*>();
    panel = dialog->findChild<KrAutoReframePropertyPanel*>();
    view = dialog->findChild<KrAutoReframePlayerView*>();
    presenter = view->findChild<KxMediaPlayerWidget*>()->getOrCreatePresenter();
    overlay = view->findChild<ShadowForm*>();
    progress = dialog->findChild<KxProgressDialog*>();
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
    Player().calls.clear();
}

FakeHost::Facts DialogTest::Video(const QString& path)
{
    FakeHost::Facts facts;
    facts.path = path;
    facts.frameCount = FrameCount;
    return facts;
}

FakeHost::MediaItem* DialogTest::Item(const FakeHost::Facts& facts)
{
    items.push_back(std::make_unique<FakeHost::MediaItem>(facts));
    return items.back().get();
}

void DialogTest::Load(const FakeHost::Facts& facts)
{
    dialog->InitMediaItem({Item(facts)});
}

void DialogTest::WhileModal(const std::function<void()>& act)
{
    QTimer::singleShot(0, dialog.get(), act);
    // A modal dialog that nobody ends would stop all tests.
    QTimer::singleShot(WaitMs, dialog.get(), [] {
        if (QWidget* const modal = QApplication::activeModalWidget()) {
            ADD_FAILURE() << "a modal dialog did not end";
            modal->close();
        }
    });
}

void DialogTest::Analyse(const QList<IKxAutoReframeResult>& results)
{
    FakeHost::TheService().Answer(0, results);
    WhileModal([] {
        FakeHost::TheService().FireFromThread(Running, 50);
        FakeHost::TheService().FireFromThread(Ended, 100);
    });
    dialog->slotStartAnalysis();
    ASSERT_FALSE(progress->isVisible());
}

QAbstractButton& DialogTest::PanelButton(const char* name) const
{
    return *panel->findChild<QAbstractButton*>(QLatin1String(name));
}

KxLabel& DialogTest::NameLabel() const
{
    return *dialog->GetTitleBar()->findChild<KxLabel*>(QStringLiteral("KrAutoReframe_fileName"));
}
