#include <Apps/AutoReframe/Store/LibraryDatabase.h>

#include <Apps/AutoReframe/Store/ExportFormatText.h>
#include <KxCore/KxOutputFile.h>

#include <QFileInfo>
#include <QSet>
#include <QSqlQuery>

#include <algorithm>
#include <array>
#include <cstring>

namespace
{

using State = StoredExport::State;
using Crops = std::vector<QRectF>;

constexpr std::array<std::pair<State, const char*>, 6> StateNames{{{State::Waiting, "waiting"},
                                                                   {State::Running, "running"},
                                                                   {State::Done, "done"},
                                                                   {State::Failed, "failed"},
                                                                   {State::Cancelled, "cancelled"},
                                                                   {State::Interrupted, "interrupted"}}};

QString NameOf(State state)
{
    const auto found =
        std::find_if(StateNames.begin(), StateNames.end(), [state](const auto& entry) { return entry.first == state; });
    return QLatin1String(found->second);
}

std::optional<State> StateOf(const QString& name)
{
    const auto found = std::find_if(StateNames.begin(), StateNames.end(),
                                    [&name](const auto& entry) { return name == QLatin1String(entry.second); });
    return found != StateNames.end() ? std::optional<State>(found->first) : std::nullopt;
}

constexpr int NumbersPerCrop = 4;
constexpr int CropBytes = NumbersPerCrop * static_cast<int>(sizeof(double));

/// Ends the crops of an export that fits those of another shape into the result.
constexpr char FittedMark = 1;

/// Four numbers for each crop, in the byte order of x86, compressed. The database stays on one machine.
QByteArray Pack(const KxRenderSource& source)
{
    const std::shared_ptr<const Crops>& crops = source.crops;
    QByteArray bytes;
    if (crops != nullptr) {
        bytes.reserve(static_cast<int>(crops->size()) * CropBytes);
        for (const QRectF& crop : *crops) {
            const double numbers[NumbersPerCrop] = {crop.x(), crop.y(), crop.width(), crop.height()};
            bytes.append(reinterpret_cast<const char*>(numbers), CropBytes);
        }
    }
    if (!bytes.isEmpty() && source.otherShapes == KxRenderSource::OtherShapes::Fitted) {
        bytes.append(FittedMark);
    }
    return bytes.isEmpty() ? QByteArray() : qCompress(bytes, 1); // a null array is stored as NULL
}

/// Sets the crops to null if they cannot be read.
void Unpack(const QByteArray& packed, KxRenderSource& source)
{
    // The first four bytes claim how much memory is needed. A day of video at 60 frames a second takes 158 MiB.
    constexpr quint32 mostBytes = 256U * 1024 * 1024;
    quint32 claimed = 0;
    for (int i = 0; i < 4 && packed.size() > 4; ++i) {
        claimed = (claimed << 8) | static_cast<uchar>(packed.at(i));
    }
    if (claimed == 0 || claimed > mostBytes) {
        return;
    }
    const QByteArray bytes = qUncompress(packed);
    const int rest = bytes.size() % CropBytes;
    const bool isFitted = rest == 1 && bytes.back() == FittedMark;
    if (bytes.size() < CropBytes || (rest != 0 && !isFitted)) {
        return;
    }
    auto crops = std::make_shared<Crops>();
    crops->reserve(static_cast<size_t>(bytes.size() / CropBytes));
    for (int at = 0; at + CropBytes <= bytes.size(); at += CropBytes) {
        double numbers[NumbersPerCrop];
        std::memcpy(numbers, bytes.constData() + at, CropBytes);
        crops->push_back({numbers[0], numbers[1], numbers[2], numbers[3]});
    }
    source.crops = std::move(crops);
    source.otherShapes = isFitted ? KxRenderSource::OtherShapes::Fitted : KxRenderSource::OtherShapes::Stretched;
}

QString TextOf(const QList<uint>& frames)
{
    QStringList numbers;
    for (const uint frame : frames) {
        numbers += QString::number(frame);
    }
    return numbers.join(QLatin1Char(' '));
}

QList<uint> FramesOf(const QString& text)
{
    QList<uint> frames;
    for (const QString& number : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        frames += number.toUInt();
    }
    return frames;
}

KxOutputFile::Existing ExistingOf(const QVariant& addsNumber)
{
    return addsNumber.toBool() ? KxOutputFile::Existing::AddNumber : KxOutputFile::Existing::Replace;
}

StoredExport ExportOf(const QSqlQuery& row, State state)
{
    StoredExport item;
    item.key = row.value(0).toLongLong();
    item.state = state;
    KxRenderSource& source = item.request.source;
    source.path = row.value(2).toString();
    source.audioStream = row.value(3).isNull() ? std::nullopt : std::optional<int>(row.value(3).toInt());
    Unpack(row.value(4).toByteArray(), source);
    KxRenderSettings& settings = item.request.settings;
    settings.outputPath = row.value(5).toString();
    settings.existing = ExistingOf(row.value(6));
    settings.resolution = QSize(row.value(7).toInt(), row.value(8).toInt());
    settings.frameRate = row.value(9).toDouble();
    settings.videoBitRate = row.value(10).toInt();
    settings.audioBitRate = row.value(11).toInt();
    item.filePath = row.value(12).toString();
    item.fileBytes = row.value(13).toLongLong();
    item.message = row.value(14).toString();
    const QSize aspect(row.value(15).toInt(), row.value(16).toInt());
    if (!aspect.isEmpty()) {
        item.plan = ReframePlan{aspect, row.value(17).toInt(), row.value(18).toInt(), row.value(21).toInt()};
    }
    item.frames = row.value(19).toLongLong();
    item.shotsToLookAt = FramesOf(row.value(20).toString());
    item.begunAtMs = row.value(22).toLongLong();
    settings.format = ExportFormatText::Read(row.value(23).toString());
    item.missingEdits = row.value(24).toInt();
    return item;
}

/// These belong to one run: two programs must not render the same export.
const QString Unfinished = QStringLiteral("state IN ('waiting', 'running', 'interrupted')");

} // namespace

KxError LibraryDatabase::ClaimInterruptedExports()
{
    QSet<QString> runs;
    const KxError failure = m_connection.Select(QStringLiteral("SELECT DISTINCT run FROM exports WHERE ") + Unfinished,
                                                {}, [&runs](const QSqlQuery& row) { runs += row.value(0).toString(); });
    if (failure) {
        return failure;
    }
    LibraryRun::RemoveDead(m_folder);
    for (const QString& run : qAsConst(runs)) {
        if (run == m_run.Name() || LibraryRun::IsAlive(run, m_folder)) {
            continue;
        }
        if (const KxError finishFailure = FinishCommittedExports(run)) {
            return finishFailure;
        }
        if (const KxError claimFailure = m_connection.Execute(
                QStringLiteral("UPDATE exports SET state = 'interrupted', run = ? WHERE run = ? AND ") + Unfinished,
                {m_run.Name(), run})) {
            return claimFailure;
        }
    }
    return std::nullopt;
}

KxError LibraryDatabase::FinishCommittedExports(const QString& run)
{
    QHash<qint64, QString> written;
    const KxError failure =
        m_connection.Select(QStringLiteral("SELECT key, output_path, adds_number, begun_at FROM exports "
                                           "WHERE run = ? AND state = 'running' AND begun_at > 0"),
                            {run}, [&written](const QSqlQuery& row) {
                                const QString path = KxOutputFile::FindCommitted(
                                    row.value(1).toString(), ExistingOf(row.value(2)), row.value(3).toLongLong());
                                if (!path.isEmpty()) {
                                    written.insert(row.value(0).toLongLong(), path);
                                }
                            });
    if (failure) {
        return failure;
    }
    for (auto file = written.cbegin(); file != written.cend(); ++file) {
        if (const KxError finishFailure = m_connection.Execute(
                QStringLiteral("UPDATE exports SET state = 'done', crops = NULL, file_path = ?, file_bytes = ? "
                               "WHERE key = ?"),
                {file.value(), QFileInfo(file.value()).size(), file.key()})) {
            return finishFailure;
        }
    }
    return std::nullopt;
}

KxError LibraryDatabase::ReadExports(StoredContents& contents)
{
    return m_connection.Select(
        QStringLiteral("SELECT key, state, source_path, audio_stream, crops, output_path, adds_number, width, height, "
                       "frame_rate, video_bit_rate, audio_bit_rate, file_path, file_bytes, message, plan_width, "
                       "plan_height, plan_speed, plan_short_side, frames, shots_to_look_at, plan_output_height, "
                       "begun_at, format, missing_edits FROM exports "
                       "WHERE run = ? OR NOT ") +
            Unfinished + QStringLiteral(" ORDER BY position, key"),
        {m_run.Name()}, [&contents](const QSqlQuery& row) {
            const std::optional<State> state = StateOf(row.value(1).toString());
            if (!state) {
                return;
            }
            const StoredExport item = ExportOf(row, *state);
            // Without its crops it would become another video.
            const bool isWhole = row.value(4).isNull() || item.request.source.crops != nullptr;
            if (isWhole || *state == State::Done) {
                contents.exports += item;
            }
        });
}

KxError LibraryDatabase::SaveExport(const StoredExport& item)
{
    const KxRenderSource& source = item.request.source;
    const KxRenderSettings& settings = item.request.settings;
    const ReframePlan plan = item.plan.value_or(ReframePlan{QSize(0, 0), 0, 0, 0});
    return m_connection.Execute(
        QStringLiteral("INSERT OR REPLACE INTO exports(key, position, state, run, source_path, audio_stream, crops, "
                       "output_path, adds_number, width, height, frame_rate, video_bit_rate, audio_bit_rate, "
                       "file_path, file_bytes, message, plan_width, plan_height, plan_speed, plan_short_side, "
                       "frames, shots_to_look_at, plan_output_height, begun_at, format, missing_edits) "
                       "VALUES(?, (SELECT coalesce(max(position), 0) + 1 FROM exports), ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, "
                       "?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
        {item.key,
         NameOf(item.state),
         m_run.Name(),
         source.path,
         source.audioStream ? QVariant(*source.audioStream) : QVariant(QVariant::Int),
         item.plan ? Pack({}) : Pack(source),
         settings.outputPath,
         settings.existing == KxOutputFile::Existing::AddNumber,
         settings.resolution.width(),
         settings.resolution.height(),
         settings.frameRate,
         settings.videoBitRate,
         settings.audioBitRate,
         item.filePath,
         item.fileBytes,
         item.message,
         plan.aspect.width(),
         plan.aspect.height(),
         plan.speed,
         plan.shortSidePx,
         item.frames,
         TextOf(item.shotsToLookAt),
         plan.heightPx,
         item.begunAtMs,
         ExportFormatText::Write(settings.format),
         item.missingEdits});
}

KxError LibraryDatabase::SaveExportState(const StoredExport& item)
{
    return m_connection.Execute(
        QStringLiteral("UPDATE exports SET state = ?, run = ?, file_path = ?, file_bytes = ?, message = ?, "
                       "shots_to_look_at = ?, begun_at = ?, missing_edits = ?, "
                       "crops = CASE ? WHEN 'done' THEN NULL ELSE crops END, "
                       "position = CASE ? WHEN 'waiting' THEN (SELECT max(position) + 1 FROM exports) "
                       "ELSE position END WHERE key = ?"),
        {NameOf(item.state), m_run.Name(), item.filePath, item.fileBytes, item.message, TextOf(item.shotsToLookAt),
         item.begunAtMs, item.missingEdits, NameOf(item.state), NameOf(item.state), item.key});
}

KxError LibraryDatabase::RemoveExport(qint64 key)
{
    return m_connection.Execute(QStringLiteral("DELETE FROM exports WHERE key = ?"), {key});
}
