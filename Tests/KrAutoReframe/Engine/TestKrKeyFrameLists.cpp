#include <KrAutoReframe/Engine/KrKeyFrameLists.h>

#include <gtest/gtest.h>

#include <random>

namespace
{

using KeyFrame = KrKeyFrameLists::KeyFrame;

constexpr int FrameCount = 2000;

KeyFrame At(qint64 frame, double x)
{
    KeyFrame keyFrame;
    keyFrame.frame = frame;
    keyFrame.cropRect = QRectF(x, 0.0, 0.25, 1.0);
    return keyFrame;
}

class TestKrKeyFrameLists : public testing::Test
{
protected:
    TestKrKeyFrameLists()
    {
        for (int frame = 0; frame < FrameCount; ++frame) {
            keyFrames.insert(frame, At(frame, 0.0));
        }
        lists.Rebuild(keyFrames);
        host = lists.Current();
    }

    /// Removes the keyframes from `first` to `last` but every `kept`th, which get `x`.
    void Thin(qint64 first, qint64 last, int kept, double x)
    {
        for (qint64 frame = first; frame <= last; ++frame) {
            if (frame % kept == 0) {
                keyFrames.insert(frame, At(frame, x));
            } else {
                keyFrames.remove(frame);
            }
        }
        lists.Update(keyFrames, {first, last});
        host = lists.Current();
    }

    void ExpectHostIsUpToDate() const
    {
        ASSERT_EQ(host.size(), keyFrames.size());
        int index = 0;
        for (const KeyFrame& keyFrame : keyFrames) {
            ASSERT_EQ(host.at(index).frame, keyFrame.frame);
            ASSERT_EQ(host.at(index).cropRect, keyFrame.cropRect) << keyFrame.frame;
            ++index;
        }
    }

    KrKeyFrameLists::KeyFrameMap keyFrames;
    KrKeyFrameLists lists;
    /// The host's list.
    QList<KeyFrame> host;
};

} // namespace

TEST_F(TestKrKeyFrameLists, StartEmpty)
{
    EXPECT_TRUE(KrKeyFrameLists().Current().isEmpty());
}

TEST_F(TestKrKeyFrameLists, RebuildTakesAllKeyFrames)
{
    ExpectHostIsUpToDate();
    keyFrames = {{7, At(7, 0.7)}};
    lists.Rebuild(keyFrames);
    host = lists.Current();
    ExpectHostIsUpToDate();
    Thin(5, 9, 1, 0.3);
    ExpectHostIsUpToDate();
}

TEST_F(TestKrKeyFrameLists, UpdatesThatRemoveReplaceAndInsertFollowEachOther)
{
    Thin(100, 160, 30, 0.1);
    ExpectHostIsUpToDate();
    Thin(1900, 1999, 1999, 0.2);
    ExpectHostIsUpToDate();
    Thin(100, 160, 1, 0.3);
    ExpectHostIsUpToDate();
    Thin(0, 1999, 500, 0.4);
    ExpectHostIsUpToDate();
    Thin(0, 1999, 1, 0.5);
    ExpectHostIsUpToDate();
}

TEST_F(TestKrKeyFrameLists, AKeptCopyOfAListDoesNotChange)
{
    const QList<KeyFrame> kept = host;
    Thin(10, 20, 5, 0.1);
    Thin(10, 20, 2, 0.2);
    Thin(10, 20, 1, 0.3);
    ExpectHostIsUpToDate();
    ASSERT_EQ(kept.size(), FrameCount);
    EXPECT_EQ(kept.at(11).frame, 11);
    EXPECT_DOUBLE_EQ(kept.at(11).cropRect.x(), 0.0);
}

TEST_F(TestKrKeyFrameLists, AnUpdateDoesNotCopyTheList)
{
    Thin(10, 20, 5, 0.1);
    const KeyFrame* const first = &host.constFirst();
    Thin(1000, 1020, 5, 0.1);
    Thin(500, 520, 5, 0.1);
    EXPECT_EQ(&host.constFirst(), first);
}

TEST_F(TestKrKeyFrameLists, RandomUpdatesMatchTheKeyFrames)
{
    std::mt19937 random(1);
    const auto pick = [&random](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
    for (int round = 0; round < 300; ++round) {
        const int first = pick(FrameCount);
        const int last = std::min(FrameCount - 1, first + pick(pick(10) == 0 ? FrameCount : 80));
        Thin(first, last, pick(2) == 0 ? 1 : 1 + pick(40), round / 1000.0);
        ExpectHostIsUpToDate();
        if (HasFatalFailure()) {
            FAIL() << "round " << round;
        }
    }
}
