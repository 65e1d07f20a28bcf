#include <Apps/AutoReframe/Backend/CropFinder.h>
#include <KxModel/KxRecordStore.h>
#include <Tests/Support/FileOpenings.h>
#include <Tests/Support/MadeVideo.h>

#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <optional>

TEST(CropFinder, AVideoIsOpenedOnceForItsFactsAndItsAnalysis)
{
    const QTemporaryDir folder;
    CropRequest request;
    request.path = folder.filePath(QStringLiteral("clip.mp4"));
    request.plan.aspect = QSize(9, 16);
    MadeVideo::Recipe recipe;
    recipe.size = QSize(192, 108);
    recipe.frames = 50;
    ASSERT_TRUE(MadeVideo::Make(request.path, recipe));
    KxAnalysisSettings settings;
    settings.records = std::make_shared<KxRecordStore>();

    FileOpenings::Reset();
    std::optional<FoundCrops> found;
    const CropFinder finder(request, settings, {{}, [&found](const FoundCrops& crops) { found = crops; }});
    ASSERT_TRUE(QTest::qWaitFor([&found] { return found.has_value(); }, 60000));
    ASSERT_EQ(found->outcome, KxOutcome::Done) << found->message.toStdString();
    // Once more for the key of its record, without a demuxer.
    EXPECT_EQ(FileOpenings::Count(), 2);
}
