#include <KxModel/KxRecordStore.h>

#include <KxModel/KxCacheFolder.h>

#include <KxCore/KxConfigFile.h>

#include <KxSubject/KxSubjectModels.h>
#include <KxSubject/KxSubjectRecordFormat.h>

#include <QCryptographicHash>
#include <QFile>
#include <QStandardPaths>

#include <algorithm>

namespace
{

constexpr qint64 EndBytes = 64 * 1024;
constexpr qint64 PlaceBytes = 4 * 1024;
constexpr qint64 Places = 62;
/// More than the longest video gives, and what a QByteArray can hold.
constexpr std::size_t MostRecordBytes = std::size_t{1} << 30;

void AddPart(QCryptographicHash& hash, QFile& file, qint64 at, qint64 bytes)
{
    file.seek(at);
    hash.addData(file.read(bytes));
}

void AddContent(QCryptographicHash& hash, QFile& file)
{
    const qint64 size = file.size();
    AddPart(hash, file, 0, EndBytes);
    for (qint64 place = 1; place <= Places; ++place) {
        AddPart(hash, file, size / (Places + 1) * place, PlaceBytes);
    }
    AddPart(hash, file, std::max<qint64>(0, size - EndBytes), EndBytes);
}

} // namespace

KxRecordStore::KxRecordStore()
    : KxRecordStore(Limits())
{
}

KxRecordStore::KxRecordStore(const Limits& limits)
    : m_memoryBytes(limits.memoryBytes)
    , m_folder(std::make_shared<KxCacheFolder>(limits.diskBytes))
{
}

KxRecordStore::~KxRecordStore() = default;

void KxRecordStore::SetFolder(const QString& path)
{
    m_folder->SetPath(path);
}

std::shared_ptr<const KxCacheFolder> KxRecordStore::Folder() const
{
    return m_folder;
}

QString KxRecordStore::ChooseFolder(const QString& named)
{
    for (const QString& choice :
         {named, qEnvironmentVariable("KX_CACHE"), KxConfigFile::ReadAutoReframe(QStringLiteral("Cache"))}) {
        if (!choice.isEmpty()) {
            return choice == QLatin1String("none") ? QString() : choice;
        }
    }
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QStringLiteral("/auto-reframe/records");
}

QByteArray KxRecordStore::ContentHash(const QString& videoPath)
{
    QFile file(videoPath);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(QByteArray::number(file.size()));
    AddContent(hash, file);
    return hash.result().toHex();
}

QByteArray KxRecordStore::KeyOf(const QString& videoPath, const KxSubjectModels& models)
{
    QFile file(videoPath);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(QByteArray::number(KxSubjectRecordFormat::Version) + ' ' + QByteArray::number(file.size()));
    AddContent(hash, file);
    const auto add = [&hash](const std::string& text) {
        hash.addData(QByteArray::number(static_cast<qint64>(text.size())) + ' ');
        hash.addData(text.data(), static_cast<int>(text.size()));
    };
    // Models are large, and their checksums are usually known.
    const auto addModel = [&add](const std::string& contents, const std::string& sha256) {
        add(sha256.empty() ? contents : sha256);
    };
    addModel(models.faces.frontalCascade, models.faces.frontalSha256);
    addModel(models.faces.profileCascade, models.faces.profileSha256);
    addModel(models.faces.detector, models.faces.detectorFile.sha256);
    addModel(models.objectDetector, models.objectDetectorFile.sha256);
    return hash.result().toHex();
}

std::shared_ptr<const KxSubjectRecord> KxRecordStore::Find(const QByteArray& key)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (const Kept* const kept = FindInMemory(key)) {
            return kept->record;
        }
    }
    return FindOnDisk(key);
}

KxRecordStore::Kept* KxRecordStore::FindInMemory(const QByteArray& key)
{
    const auto found =
        std::find_if(m_kept.begin(), m_kept.end(), [&key](const Kept& candidate) { return candidate.key == key; });
    if (found == m_kept.end()) {
        return nullptr;
    }
    m_kept.splice(m_kept.begin(), m_kept, found);
    return &m_kept.front();
}

std::shared_ptr<const KxSubjectRecord> KxRecordStore::FindConfirmed(const QByteArray& key)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const Kept* const kept = FindInMemory(key);
    return kept != nullptr && kept->isConfirmed ? kept->record : nullptr;
}

bool KxRecordStore::HasConfirmed() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return std::any_of(m_kept.begin(), m_kept.end(), [](const Kept& kept) { return kept.isConfirmed; });
}

void KxRecordStore::Confirm(const QByteArray& key)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (Kept* const kept = FindInMemory(key)) {
        kept->isConfirmed = true;
    }
}

std::shared_ptr<const KxSubjectRecord> KxRecordStore::FindOnDisk(const QByteArray& key)
{
    const std::optional<QByteArray> bytes = m_folder->Read(KxCacheFolder::Kind::Record, key);
    if (!bytes) {
        return nullptr;
    }
    std::optional<KxSubjectRecord> read =
        KxSubjectRecordFormat::Read({bytes->constData(), static_cast<std::size_t>(bytes->size())});
    if (!read) {
        m_folder->Remove(KxCacheFolder::Kind::Record, key);
        return nullptr;
    }
    const auto record = std::make_shared<const KxSubjectRecord>(std::move(*read));
    KeepInMemory({key, record, bytes->size(), false});
    return record;
}

void KxRecordStore::Add(const QByteArray& key, const std::shared_ptr<const KxSubjectRecord>& record)
{
    const std::string written = KxSubjectRecordFormat::Write(*record);
    if (key.isEmpty() || written.size() > MostRecordBytes) {
        return;
    }
    // Shares the memory: those of hours of video take some.
    const QByteArray bytes = QByteArray::fromRawData(written.data(), static_cast<int>(written.size()));
    KeepInMemory({key, record, bytes.size(), true});
    m_folder->Write(KxCacheFolder::Kind::Record, key, bytes);
}

void KxRecordStore::KeepInMemory(Kept added)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_kept.remove_if([&added](const Kept& kept) { return kept.key == added.key; });
    m_kept.push_front(std::move(added));
    qint64 sum = 0;
    m_kept.remove_if([this, &sum](const Kept& kept) {
        sum += kept.bytes;
        return sum > m_memoryBytes;
    });
}
