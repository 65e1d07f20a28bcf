#include <Tests/KrAutoReframe/Dialog/DialogFixture.h>

#include <QSignalSpy>

namespace
{

class CapabilityTest : public DialogTest
{
protected:
    CapabilityTest()
    {
        KxMachineFacts::Replaced().algorithmEnabled = [this](int algorithm) {
            askedFor.append(algorithm);
            return isAble;
        };
    }

    int StartsSince(const std::function<void()>& act)
    {
        FakeHost::TheService().ForgetCalls();
        act();
        return FakeHost::TheService().Calls().filter(QStringLiteral("StartTask")).size();
    }

    void Start()
    {
        WhileModal([this] { progress->hide(); });
        dialog->slotStartAnalysis();
    }

    bool isAble = true;
    QList<int> askedFor;
};

} // namespace

// One test, as the notice is asked for once in a process.
TEST_F(CapabilityTest, AMachineThatIsTooWeakIsReportedOnce)
{
    QSignalSpy notices(dialog.get(), &KrAutoReframeDialog::sigShowUnsupportDlg);
    Load(Video(QStringLiteral("/v/clip.mp4")));
    EXPECT_EQ(StartsSince([this] { Start(); }), 1);
    EXPECT_EQ(StartsSince([this] { Start(); }), 1);
    EXPECT_EQ(askedFor, (QList<int>{4, 4})) << "a machine that can is asked each time";

    isAble = false;
    Player().calls.clear();
    recorders.events.clear();
    EXPECT_EQ(StartsSince([this] { dialog->slotStartAnalysis(); }), 0);
    EXPECT_EQ(notices.count(), 1);
    EXPECT_EQ(askedFor.size(), 3);
    EXPECT_EQ(Player().calls, QStringList{QStringLiteral("pause")});
    EXPECT_EQ(recorders.events, QStringList{QStringLiteral("anlyze_btn")});
    EXPECT_TRUE(recorders.boxes.empty());
    EXPECT_FALSE(progress->isVisible());

    EXPECT_EQ(StartsSince([this] { Start(); }), 1);
    EXPECT_EQ(notices.count(), 1);
    EXPECT_EQ(askedFor.size(), 3);

    Make(nullptr);
    QSignalSpy laterNotices(dialog.get(), &KrAutoReframeDialog::sigShowUnsupportDlg);
    Load(Video(QStringLiteral("/v/clip.mp4")));
    EXPECT_EQ(StartsSince([this] { Start(); }), 1);
    EXPECT_EQ(laterNotices.count(), 0);
    EXPECT_EQ(askedFor.size(), 3);
}
