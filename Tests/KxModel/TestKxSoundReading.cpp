#include <KxModel/KxSoundReading.h>

#include <KxMedia/Read/KxVideoScanner.h>
#include <KxSubject/KxSubjectRecord.h>
#include <Tests/Support/MadeVideo.h>

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

class KxSoundReadingTest : public testing::Test
{
protected:
    /// Twenty seconds; a tone from 8 to 10 s.
    void SetUp() override
    {
        MadeVideo::Recipe recipe;
        recipe.frames = 500;
        recipe.inputs =
            QStringList{QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                        QStringLiteral("sine=frequency=1000:duration=20,volume='between(t,8,10)':eval=frame")};
        recipe.output = QStringList{QStringLiteral("-c:v"),    QStringLiteral("libx264"), QStringLiteral("-pix_fmt"),
                                    QStringLiteral("yuv420p"), QStringLiteral("-c:a"),    QStringLiteral("aac")};
        m_path = m_folder.filePath(QStringLiteral("tone.mp4"));
        ASSERT_TRUE(MadeVideo::Make(m_path, recipe));
    }

    /// A record of the clip in which two people were seen between two frames.
    static KxSubjectRecord RecordWithMouths(int first, int last)
    {
        KxSubjectRecord record;
        record.source = {160, 96, 25.0, 500};
        KxMouthTrack mouth;
        mouth.looks = {{first, 2, 0, 0, 0}, {last, 2, 0, 0, 0}};
        record.mouths = {mouth};
        return record;
    }

    void Add(KxSubjectRecord& record, int track = 0, const KxCancelToken& cancel = {}) const
    {
        const auto scanner = KxVideoScanner::Open(m_path, KxCancelToken());
        ASSERT_TRUE(scanner);
        KxSoundReading::AddTo(record, m_path, track, (*scanner)->Clock(), cancel);
    }

    QTemporaryDir m_folder;
    QString m_path;
};

} // namespace

TEST_F(KxSoundReadingTest, TheSoundAroundTheMouthsIsMeasured)
{
    KxSubjectRecord record = RecordWithMouths(200, 250);
    Add(record);
    ASSERT_EQ(record.sound.size(), 1U);
    const KxSoundSpan& span = record.sound[0];
    EXPECT_EQ(span.first, 75);
    ASSERT_NEAR(static_cast<double>(span.levels.size()), 301.0, 1.0);
    EXPECT_LT(span.levels[20], -5000);
    EXPECT_LT(span.levels[200 - 75 - 3], -4000);
    EXPECT_GT(span.levels[200 - 75 + 3], -3000);
    EXPECT_GT(span.levels[250 - 75 - 4], -3000);
    EXPECT_LT(span.levels[250 - 75 + 4], -4000);
}

TEST_F(KxSoundReadingTest, APartReadAfterASeekIsThatOfTheWhole)
{
    KxSubjectRecord whole = RecordWithMouths(2, 498);
    KxSubjectRecord part = RecordWithMouths(200, 250);
    Add(whole);
    Add(part);
    ASSERT_EQ(whole.sound.size(), 1U);
    ASSERT_EQ(part.sound.size(), 1U);
    EXPECT_EQ(whole.sound[0].first, 0);
    for (std::size_t i = 2; i < 290; ++i) {
        EXPECT_NEAR(part.sound[0].levels[i], whole.sound[0].levels[i + 75], 100) << i;
    }
}

TEST_F(KxSoundReadingTest, WithoutMouthsTheSoundIsNotRead)
{
    KxSubjectRecord record = RecordWithMouths(200, 250);
    record.mouths.clear();
    KxSoundReading::AddTo(record, QStringLiteral("/no/such/file"), 0, {}, {});
    EXPECT_TRUE(record.sound.empty());
}

TEST_F(KxSoundReadingTest, AFileWithoutSoundGivesNone)
{
    KxSubjectRecord record = RecordWithMouths(200, 250);
    Add(record, -1);
    EXPECT_TRUE(record.sound.empty());
    Add(record, 3);
    EXPECT_TRUE(record.sound.empty()) << "a track that is not there";
}

TEST_F(KxSoundReadingTest, OnceCancelledItReadsNoMore)
{
    KxCancelToken cancel;
    cancel.Cancel();
    KxSubjectRecord record = RecordWithMouths(200, 250);
    Add(record, 0, cancel);
    EXPECT_TRUE(record.sound.empty());
}
