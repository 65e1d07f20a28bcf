#include <KrAutoReframe/Engine/KrAutoReframeHelper.h>
#include <Tests/KrAutoReframe/Dialog/ExtendedDialogTest.h>
#include <Tests/Support/Eventually.h>

#include <QUndoStack>

namespace
{

/// A host whose service finds pictures again.
class KrEditPicturesTest : public ExtendedDialogTest
{
protected:
    KrEditPicturesTest()
        : finding(FakeHost::OfferChoices())
    {
        MakeExtended();
    }
    ~KrEditPicturesTest() override { dialog.reset(); }

    QRectF Crop(double x) const { return {x, 0.0, 0.25, 1.0}; }
    /// As the dialog left the whole video, with edits in the frames 10 and 60.
    void Leave()
    {
        KrAutoReframeState& state = StateOf(clip);
        state.editPoints = {{10, Crop(0.1)}, {60, Crop(0.6)}};
        state.editPictures = {{10, "10"}, {60, "60"}};
    }

    FakeHost::ServiceWithChoices& finding;
};

} // namespace

TEST_F(KrEditPicturesTest, AnEditIsKeptWithItsPictures)
{
    Load(Video(clip));
    Analyse();
    Helper().AddKeyFrame(60, Crop(0.6));
    EXPECT_EQ(StateOf(clip).editPictures, (QMap<uint, QByteArray>{{60, "60"}}));
    Helper().Undo();
    EXPECT_TRUE(StateOf(clip).editPictures.isEmpty());
    Helper().Redo();
    EXPECT_EQ(StateOf(clip).editPictures.value(60), QByteArray("60"));
}

TEST_F(KrEditPicturesTest, InATrimmedFileEditsMoveWithTheirPictures)
{
    Leave();
    finding.trimmed = 8;
    Load(Video(clip));
    Analyse();
    EXPECT_EQ(Helper().GetEditPointFrames(), (QList<uint>{2, 52}));
    EXPECT_DOUBLE_EQ(Helper().GetDisplayResults().at(52).cropRect().x(), 0.6);
    EXPECT_EQ(Helper().GetDisplayResults().at(90).cropRect(), Helper().GetResults().at(90).cropRect())
        << "nothing is left where an edit was";
    EXPECT_FALSE(Helper().GetUndoStack().canUndo());
    EXPECT_EQ(Hint(), QStringLiteral("2 edit points were moved to where their pictures are"));
    EXPECT_EQ(StateOf(clip).editPoints, (QMap<uint, QRectF>{{2, Crop(0.1)}, {52, Crop(0.6)}}));
    EXPECT_EQ(StateOf(clip).editPictures.value(52), QByteArray("60"));
}

TEST_F(KrEditPicturesTest, AnEditThatWasCutAwayIsKeptReportedAndReturns)
{
    Leave();
    finding.trimmed = 30;
    Load(Video(clip));
    Analyse();
    EXPECT_EQ(Helper().GetEditPointFrames(), QList<uint>{30});
    EXPECT_EQ(Hint(), QStringLiteral("1 edit points are kept, but not in this cut of the video"));
    ASSERT_EQ(StateOf(clip).unplacedEdits.size(), 1);
    EXPECT_EQ(StateOf(clip).unplacedEdits.first().crop, Crop(0.1));

    finding.trimmed = 0;
    Analyse();
    EXPECT_EQ(Helper().GetEditPointFrames(), (QList<uint>{10, 60}));
    EXPECT_TRUE(StateOf(clip).unplacedEdits.isEmpty());
}

TEST_F(KrEditPicturesTest, EditsAfterTheEndOfAShorterFileAreNotLost)
{
    Leave();
    StateOf(clip).editPoints.insert(5000, Crop(0.3));
    StateOf(clip).editPictures.insert(5000, "70");
    Load(Video(clip));
    EXPECT_EQ(Helper().GetEditPointFrames(), (QList<uint>{10, 60}));
    Analyse();
    EXPECT_EQ(Helper().GetEditPointFrames(), (QList<uint>{10, 60, 70}));
    EXPECT_TRUE(StateOf(clip).editPoints.contains(70));
}
