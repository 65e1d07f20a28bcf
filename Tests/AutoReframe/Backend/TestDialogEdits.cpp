#include <Apps/AutoReframe/Backend/DialogEdits.h>

#include <QHash>

#include <gtest/gtest.h>

TEST(TestDialogEdits, AVideoThatIsNewHasNoSettings)
{
    DialogCallbacks callbacks;
    callbacks.loadEdits = [](const QString&) { return VideoEdits(); };
    EXPECT_TRUE(DialogEdits(callbacks).LoadState(QStringLiteral("/a.mp4")) == KrAutoReframeState());
    EXPECT_TRUE(DialogEdits(DialogCallbacks()).LoadState(QStringLiteral("/a.mp4")) == KrAutoReframeState());
}

TEST(TestDialogEdits, EverythingThatThePersonDecidedComesBack)
{
    QHash<QString, VideoEdits> saved;
    DialogCallbacks callbacks;
    callbacks.loadEdits = [&saved](const QString& path) { return saved.value(path); };
    callbacks.editsChanged = [&saved](const QString& path, const VideoEdits& edits) { saved.insert(path, edits); };
    KrAutoReframeState state;
    state.aspectWidth = 4;
    state.aspectHeight = 5;
    state.motionSpeed = 24;
    state.isAnalyzed = true;
    state.editPoints = {{7, QRectF(0.1, 0.2, 0.3, 0.4)}};
    state.choices = "{}";
    state.seenShots = {1, 2};
    DialogEdits edits(callbacks);
    edits.OnStateChanged(QStringLiteral("/a.mp4"), state);
    EXPECT_TRUE(edits.LoadState(QStringLiteral("/a.mp4")) == state);
    EXPECT_TRUE(edits.LoadState(QStringLiteral("/b.mp4")) == KrAutoReframeState());
}

TEST(TestDialogEdits, OnlyTheFirstVideoStartsAtADoubtfulShot)
{
    DialogCallbacks callbacks;
    callbacks.startsAtDoubtfulShot = true;
    DialogEdits edits(callbacks);
    EXPECT_TRUE(edits.LoadState(QStringLiteral("/a.mp4")).startsAtDoubtfulShot);
    EXPECT_FALSE(edits.LoadState(QStringLiteral("/b.mp4")).startsAtDoubtfulShot);
}
