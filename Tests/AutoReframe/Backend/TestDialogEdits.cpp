#include <Apps/AutoReframe/Backend/DialogEdits.h>

#include <Apps/CropTracks/CropTrackFile.h>

#include <QHash>

#include <QTemporaryDir>

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

namespace
{

/// A configuration file of its own.
class TestDialogOutputs : public testing::Test
{
protected:
    TestDialogOutputs() { qputenv("KX_CONFIG_FILE", m_folder.filePath(QStringLiteral("test.ini")).toUtf8()); }
    ~TestDialogOutputs() override { qunsetenv("KX_CONFIG_FILE"); }

    static QStringList Offered(DialogEdits& edits, const QSizeF& crop, const QSize& cropSize)
    {
        QStringList texts;
        for (const KrAutoReframeOutput& output : edits.OutputsFor(crop, cropSize)) {
            texts += QStringLiteral("%1: %2x%3")
                         .arg(output.name, QString::number(output.size.width()), QString::number(output.size.height()));
        }
        return texts;
    }

    QTemporaryDir m_folder;
    DialogCallbacks m_callbacks;
};

} // namespace

TEST_F(TestDialogOutputs, OffersTheSizesForTheShapeOfTheCrop)
{
    DialogEdits edits(m_callbacks);
    EXPECT_EQ(Offered(edits, QSizeF(607.5, 1080.0), QSize(608, 1080)),
              (QStringList{QStringLiteral("As large as the crop: 608x1080"), QStringLiteral("1080 × 1920: 1080x1920"),
                           QStringLiteral("720 × 1280: 720x1280"), QStringLiteral("2160 pixels high: 1216x2160")}));
    EXPECT_EQ(Offered(edits, QSizeF(1080.0, 1080.0), QSize(1080, 1080)).at(1),
              QStringLiteral("1080 × 1080: 1080x1080"));
}

TEST_F(TestDialogOutputs, TheChoiceHoldsForExportsAndForTheNextDialog)
{
    DialogEdits edits(m_callbacks);
    edits.OutputsFor(QSizeF(607.5, 1080.0), QSize(608, 1080));
    EXPECT_EQ(edits.ChosenOutput(), 0);
    EXPECT_EQ(edits.SizeFor(QSize(608, 1080)), QSize(608, 1080));
    edits.ChooseOutput(2);
    EXPECT_EQ(edits.SizeFor(QSize(608, 1080)), QSize(720, 1280));
    EXPECT_EQ(edits.SizeFor(QSize(540, 960)), QSize(540, 960)); // of another result
    EXPECT_EQ(DialogEdits(m_callbacks).ChosenOutput(), 2);
}

TEST(TestDialogEdits, ACropTrackIsShownInPlaceOfWhatWasDecided)
{
    VideoEdits stored;
    stored.choices = "{}";
    int changes = 0;
    CropTrack track;
    track.aspect = QSize(4, 5);
    track.crops = {IKxAutoReframeResult(0, QRectF(0.1, 0.0, 0.5, 1.0)),
                   IKxAutoReframeResult(1, QRectF(0.2, 0.0, 0.5, 1.0))};
    DialogCallbacks callbacks;
    callbacks.loadEdits = [&stored](const QString&) { return stored; };
    callbacks.editsChanged = [&changes](const QString&, const VideoEdits&) { ++changes; };
    callbacks.track = std::make_shared<const CropTrack>(track);
    DialogEdits edits(callbacks);
    const KrAutoReframeState state = edits.LoadState(QStringLiteral("/a.mp4"));
    EXPECT_EQ(state.aspectHeight, 5);
    EXPECT_EQ(state.crops, (QList<QRectF>{QRectF(0.1, 0.0, 0.5, 1.0), QRectF(0.2, 0.0, 0.5, 1.0)}));
    EXPECT_TRUE(state.choices.isEmpty());
    edits.OnStateChanged(QStringLiteral("/a.mp4"), state);
    EXPECT_EQ(changes, 0) << "what was decided before stays";
    EXPECT_EQ(edits.LoadState(QStringLiteral("/b.mp4")).choices, "{}");
    edits.OnStateChanged(QStringLiteral("/b.mp4"), state);
    EXPECT_EQ(changes, 1);
}
