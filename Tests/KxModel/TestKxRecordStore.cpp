#include <KxModel/KxDetectorFiles.h>
#include <KxModel/KxRecordStore.h>
#include <KxModel/KxVideoAnalysis.h>

#include <KxSubject/KxSubjectModels.h>
#include <KxSubject/KxSubjectRecordFormat.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

const QByteArray Key = "0123456789abcdef";
const QByteArray OtherKey = "fedcba9876543210";

/// A record of `samples` samples; `shade` distinguishes it from others and keeps its file from shrinking to nothing.
std::shared_ptr<const KxSubjectRecord> Record(int samples, int shade = 1)
{
    KxSubjectRecord record;
    record.source = {1280, 720, 25.0, 100000};
    record.workingSizePx = {320, 180};
    for (int i = 0; i < samples; ++i) {
        KxPackedProfile::Groups levels{};
        for (std::size_t group = 0; group < levels.size(); ++group) {
            levels[group] = static_cast<std::uint8_t>((shade + 31 * i + 7 * static_cast<int>(group) * i) % 256);
        }
        const KxPackedProfile profile(0.5F, levels);
        record.samples.push_back({i, {profile, profile}, {profile, profile}});
    }
    return std::make_shared<const KxSubjectRecord>(std::move(record));
}

class KxRecordStoreTest : public testing::Test
{
protected:
    QString Write(const char* name, const QByteArray& content)
    {
        QFile file(m_folder.filePath(QLatin1String(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }
    QString Folder() const { return m_folder.filePath(QStringLiteral("cache/records")); }
    QStringList Files() const { return QDir(Folder()).entryList(QDir::Files | QDir::Hidden); }
    QString OnlyFile() const { return Folder() + QLatin1Char('/') + Files().value(0); }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(KxRecordStoreTest, ARecordIsFoundByItsKeyAlone)
{
    KxRecordStore store;
    const auto record = Record(3);
    store.Add(Key, record);
    EXPECT_EQ(store.Find(Key), record);
    EXPECT_EQ(store.Find(OtherKey), nullptr);
    EXPECT_EQ(store.Find({}), nullptr);
}

TEST_F(KxRecordStoreTest, MemoryIsBoundedAndTheRecordsUsedLastStay)
{
    const auto bytes = static_cast<qint64>(KxSubjectRecordFormat::Write(*Record(10)).size());
    KxRecordStore store({2 * bytes, 0});
    store.Add("a", Record(10));
    store.Add("b", Record(10));
    ASSERT_NE(store.Find("a"), nullptr);
    store.Add("c", Record(10));
    EXPECT_NE(store.Find("a"), nullptr);
    EXPECT_EQ(store.Find("b"), nullptr);
    EXPECT_NE(store.Find("c"), nullptr);
    store.Add("large", Record(100));
    EXPECT_EQ(store.Find("large"), nullptr);
}

TEST_F(KxRecordStoreTest, AnotherStoreFindsTheRecordInTheFolder)
{
    const auto record = Record(20);
    KxRecordStore first;
    first.SetFolder(Folder());
    first.Add(Key, record);
    KxRecordStore second;
    EXPECT_EQ(second.Find(Key), nullptr) << "no folder is set";
    second.SetFolder(Folder());
    const auto found = second.Find(Key);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(KxSubjectRecordFormat::Write(*found), KxSubjectRecordFormat::Write(*record));
    EXPECT_EQ(second.Find(Key), found) << "now it is in memory";
}

TEST_F(KxRecordStoreTest, ADamagedFileIsNotUsedAndRemoved)
{
    const auto damages = {+[](QByteArray& bytes) { bytes.chop(1); }, +[](QByteArray& bytes) { bytes[40] = '\x7f'; },
                          +[](QByteArray& bytes) { bytes.clear(); }, +[](QByteArray& bytes) { bytes = "no record"; }};
    for (const auto damage : damages) {
        KxRecordStore writer;
        writer.SetFolder(Folder());
        writer.Add(Key, Record(20));
        QFile file(OnlyFile());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QByteArray bytes = file.readAll();
        file.close();
        damage(bytes);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bytes);
        file.close();
        KxRecordStore reader;
        reader.SetFolder(Folder());
        EXPECT_EQ(reader.Find(Key), nullptr);
        EXPECT_TRUE(Files().isEmpty());
    }
}

TEST_F(KxRecordStoreTest, TheDiskIsBoundedAndTheFilesUsedLastStay)
{
    KxRecordStore probe;
    probe.SetFolder(Folder());
    probe.Add("probe", Record(50));
    const qint64 bytes = QFileInfo(OnlyFile()).size();
    ASSERT_TRUE(QFile::remove(OnlyFile()));

    KxRecordStore store({0, 2 * bytes + bytes / 2});
    store.SetFolder(Folder());
    const auto age = [this](const char* key, int hours) {
        QFile file(Folder() + QLatin1Char('/') + QLatin1String(key) + QStringLiteral(".record"));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTimeUtc().addSecs(-3600 * hours),
                                     QFileDevice::FileModificationTime));
    };
    store.Add("a", Record(50));
    age("a", 2);
    store.Add("b", Record(50));
    age("b", 1);
    ASSERT_NE(store.Find("a"), nullptr);
    store.Add("c", Record(50));
    EXPECT_EQ(Files(), QStringList({QStringLiteral("a.record"), QStringLiteral("c.record")}));
    store.Add("large", Record(1000));
    EXPECT_FALSE(Files().contains(QStringLiteral("large.record")));
}

TEST_F(KxRecordStoreTest, AFolderThatCannotBeWrittenCostsNothingElse)
{
    const QString file = Write("file", "a file, no folder");
    KxRecordStore store;
    store.SetFolder(file + QStringLiteral("/records"));
    const auto record = Record(3);
    store.Add(Key, record);
    EXPECT_EQ(store.Find(Key), record);
}

TEST_F(KxRecordStoreTest, TheKeyFollowsTheContentAndTheModels)
{
    QByteArray content(1 << 20, 'v');
    const KxSubjectModels models{{"cascade", "profile", ""}, "network"};
    const QByteArray key = KxRecordStore::KeyOf(Write("clip", content), models);
    EXPECT_EQ(key.size(), 64);
    EXPECT_EQ(KxRecordStore::KeyOf(Write("renamed", content), models), key);
    EXPECT_NE(KxRecordStore::KeyOf(Write("longer", content + 'v'), models), key);
    for (const int place : {0, content.size() / 63 * 31, content.size() - 1}) {
        QByteArray changed = content;
        changed[place] = 'w';
        EXPECT_NE(KxRecordStore::KeyOf(Write("changed", changed), models), key) << place;
    }
    const QString clip = Write("clip", content);
    EXPECT_NE(KxRecordStore::KeyOf(clip, {{"cascade", "profile", ""}, ""}), key);
    EXPECT_NE(KxRecordStore::KeyOf(clip, {{"cascade", "", "profile"}, "network"}), key);
    EXPECT_NE(KxRecordStore::KeyOf(clip, {{"cascade", "", ""}, "network", {"file", "checksum"}}), key);
    EXPECT_EQ(KxRecordStore::KeyOf(clip, {{"cascade", "", ""}, "network", {"file", "checksum"}}),
              KxRecordStore::KeyOf(clip, {{"cascade", "", ""}, "", {"renamed", "checksum"}}));
    const auto withChecksums = [&clip](const std::string& contents, const std::string& ofFrontal,
                                       const std::string& ofProfile) {
        KxSubjectModels known{{contents, contents, ""}, "network"};
        known.faces.frontalSha256 = ofFrontal;
        known.faces.profileSha256 = ofProfile;
        return KxRecordStore::KeyOf(clip, known);
    };
    EXPECT_EQ(withChecksums("cascade", "first", "second"), withChecksums("", "first", "second"));
    EXPECT_NE(withChecksums("cascade", "first", "second"), withChecksums("cascade", "third", "second"));
    EXPECT_NE(withChecksums("cascade", "first", "second"), withChecksums("cascade", "first", "third"));
    EXPECT_TRUE(KxRecordStore::KeyOf(m_folder.filePath(QStringLiteral("missing")), models).isEmpty());
    EXPECT_FALSE(KxRecordStore::KeyOf(Write("empty", {}), models).isEmpty());
}

TEST_F(KxRecordStoreTest, TheContentHashIdentifiesAFileWhateverItsName)
{
    const QByteArray content = QByteArray(300 * 1024, 'v');
    const QByteArray hash = KxRecordStore::ContentHash(Write("clip", content));
    EXPECT_FALSE(hash.isEmpty());
    EXPECT_EQ(KxRecordStore::ContentHash(Write("renamed", content)), hash);
    EXPECT_NE(KxRecordStore::ContentHash(Write("longer", content + 'v')), hash);
    QByteArray changed = content;
    changed[0] = 'w';
    EXPECT_NE(KxRecordStore::ContentHash(Write("changed", changed)), hash);
    EXPECT_TRUE(KxRecordStore::ContentHash(m_folder.filePath(QStringLiteral("missing"))).isEmpty());
}

TEST_F(KxRecordStoreTest, ARecordFromTheDiskIsConfirmedByItsVideo)
{
    KxRecordStore store;
    store.SetFolder(Folder());
    store.Add(Key, Record(3));
    EXPECT_TRUE(store.FindConfirmed(Key)) << "it was made here";
    KxRecordStore next;
    next.SetFolder(Folder());
    next.Confirm(Key);
    EXPECT_FALSE(next.FindConfirmed(Key));
    const auto found = next.Find(Key);
    ASSERT_TRUE(found);
    EXPECT_FALSE(next.FindConfirmed(Key));
    next.Confirm(Key);
    EXPECT_EQ(next.FindConfirmed(Key), found);
}

TEST_F(KxRecordStoreTest, AnAnalysisOpensNoVideoWhoseRecordIsConfirmed)
{
    constexpr qint64 frames = 40;
    const QString path = Write("clip.mp4", "not really a video");
    auto record = std::make_shared<KxSubjectRecord>(*Record(3));
    record->source.frameCount = frames;
    KxAnalysisSettings settings;
    settings.records = std::make_shared<KxRecordStore>();
    settings.records->SetFolder(Folder());
    settings.records->Add(KxRecordStore::KeyOf(path, KxDetectorFiles::Read({}).models), record);
    const IKxAutoReframeParam param(16, QSize(9, 16));
    const auto analysis = KxVideoAnalysis::Open(path, param, settings, {});
    ASSERT_TRUE(analysis);
    EXPECT_EQ((*analysis)->Run([](int) {}).crops.size(), frames);
    settings.records = std::make_shared<KxRecordStore>();
    settings.records->SetFolder(Folder());
    EXPECT_FALSE(KxVideoAnalysis::Open(path, param, settings, {}));
}
