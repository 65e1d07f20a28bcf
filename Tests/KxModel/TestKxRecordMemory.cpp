#include <KxModel/KxRecordStore.h>

#include <KxCore/KxMemory.h>
#include <KxSubject/KxSubjectRecordFormat.h>
#include <Tests/Support/TestSystem.h>

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

// A little more than 60 MiB, where a text that grows by doubling has just moved and took twice as much.
constexpr int Samples = 543000;
constexpr qint64 RecordBytes = qint64{Samples} * 116;
const QByteArray Key = "0123456789abcdef";

std::shared_ptr<const KxSubjectRecord> LongRecord()
{
    KxSubjectRecord record;
    record.source = {1280, 720, 25.0, Samples};
    record.workingSizePx = {320, 180};
    record.samples.resize(Samples);
    for (int i = 0; i < Samples; ++i) {
        record.samples[static_cast<std::size_t>(i)].frame = i;
    }
    return std::make_shared<const KxSubjectRecord>(std::move(record));
}

} // namespace

TEST(KxRecordMemory, ARecordIsWrittenAndReadWithOneCopyOfItsText)
{
    const QTemporaryDir folder;
    const KxRecordStore::Limits limits{2 * RecordBytes, 2 * RecordBytes};
    // It remains while it is read again, so that reading needs more than writing did.
    const std::shared_ptr<const KxSubjectRecord> record = LongRecord();
    const qint64 before = TestSystem::PeakMemoryBytes();
    {
        KxRecordStore store(limits);
        store.SetFolder(folder.path());
        store.Add(Key, record);
    }
    const qint64 written = TestSystem::PeakMemoryBytes() - before;
    EXPECT_GT(written, RecordBytes / 10 * 9);
    EXPECT_LT(written, RecordBytes / 2 * 3);

    KxMemory::ReturnUnused();
    KxRecordStore store(limits);
    store.SetFolder(folder.path());
    const std::shared_ptr<const KxSubjectRecord> again = store.Find(Key);
    const qint64 read = TestSystem::PeakMemoryBytes() - before;
    ASSERT_NE(again, nullptr);
    EXPECT_NE(again, record);
    EXPECT_EQ(again->samples.size(), static_cast<std::size_t>(Samples));
    EXPECT_GT(read, RecordBytes / 10 * 19);
    EXPECT_LT(read, RecordBytes / 2 * 5);
}
