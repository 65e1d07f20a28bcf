#include <KxRender/KxRenderer.h>

#include <KxCore/KxSystemFile.h>
#include <KxCore/KxThread.h>
#include <KxMedia/Read/KxVideoReader.h>
#include <KxMedia/Write/KxMp4Writer.h>
#include <KxRender/KxAudioInterleaver.h>
#include <KxRender/KxOutputGrid.h>
#include <KxRender/KxPictureFeed.h>

#include <QFileInfo>

#include <algorithm>
#include <array>

namespace
{

constexpr int ProgressEnd = 10000;

KxRenderResult Failed(const QString& message)
{
    return {KxOutcome::Failed, message, {}, {}};
}

KxRenderResult Cancelled()
{
    return {KxOutcome::Cancelled, {}, {}, {}};
}

QString CannotWrite(const KxRenderSettings& settings, const QString& reason)
{
    return QStringLiteral("Cannot write %1: %2.").arg(settings.outputPath, reason);
}

QSize Even(const QSize& size)
{
    return {size.width() + size.width() % 2, size.height() + size.height() % 2};
}

KxError Check(const KxRenderSource& source, const KxRenderSettings& settings)
{
    constexpr int longestSidePx = 16384;
    const QSize size = settings.resolution;
    if (size.isEmpty() || size.width() > longestSidePx || size.height() > longestSidePx) {
        return CannotWrite(settings, QStringLiteral("a resolution of %1 x %2 is not possible")
                                         .arg(QString::number(size.width()), QString::number(size.height())));
    }
    if (settings.existing == KxOutputFile::Existing::Replace && QFileInfo::exists(settings.outputPath) &&
        KxSystemFile::Identity(settings.outputPath) == KxSystemFile::Identity(source.path)) {
        return CannotWrite(settings, QStringLiteral("it is the very file that is rendered"));
    }
    return std::nullopt;
}

// The source's sample rate if AAC supports it, and at most two channels, which is what phones play.
KxAudioReader::Format SoundFormat(const KxAudioFacts& facts)
{
    constexpr std::array<int, 9> ratesHz{8000, 11025, 12000, 16000, 22050, 24000, 32000, 44100, 48000};
    KxAudioReader::Format format;
    format.channels = facts.channels == 1 ? 1 : 2;
    if (std::find(ratesHz.begin(), ratesHz.end(), facts.sampleRateHz) != ratesHz.end()) {
        format.sampleRateHz = facts.sampleRateHz;
    }
    return format;
}

class Rendering
{
public:
    Rendering(const KxRenderSource& source, const KxRenderSettings& settings, const KxRenderer::Progress& progress,
              const KxCancelToken& cancel)
        : m_source(source)
        , m_settings(settings)
        , m_progress(progress)
        , m_cancel(cancel)
        , m_size(Even(settings.resolution))
    {
    }

    KxRenderResult Run();

private:
    void OpenSound();
    KxError OpenWriter(const KxOutputGrid& grid);
    KxError AddAll(KxPictureFeed& pictures, const KxOutputGrid& grid);
    KxRenderResult Finish(KxPictureFeed& pictures, const KxOutputGrid& grid);
    void Warn(const QString& message);
    void ReportProgress(qint64 done, qint64 all);

    const KxRenderSource& m_source;
    const KxRenderSettings& m_settings;
    const KxRenderer::Progress& m_progress;
    const KxCancelToken& m_cancel;
    const QSize m_size;
    std::unique_ptr<KxVideoReader> m_reader;
    std::unique_ptr<KxAudioInterleaver> m_sound;
    KxAudioReader::Format m_soundFormat;
    std::unique_ptr<KxMp4Writer> m_writer;
    QString m_warning;
    qint64 m_written = 0;
    int m_reported = 0;
};

void Rendering::Warn(const QString& message)
{
    m_warning += m_warning.isEmpty() ? message : QLatin1Char(' ') + message;
}

void Rendering::ReportProgress(qint64 done, qint64 all)
{
    const auto value = static_cast<int>(std::min<qint64>(done * ProgressEnd / all, ProgressEnd - 1));
    if (value > m_reported && m_progress) {
        m_reported = value;
        m_progress(value);
    }
}

void Rendering::OpenSound()
{
    const KxMediaFacts& facts = m_reader->Facts();
    const int stream = m_source.audioStream.value_or(facts.defaultAudio);
    if (stream < 0 || stream >= facts.audio.size()) {
        return;
    }
    m_soundFormat = SoundFormat(facts.audio.at(stream));
    KxResult<std::unique_ptr<KxAudioReader>> sound =
        KxAudioReader::Open(m_source.path, stream, m_soundFormat, m_reader->Clock(), m_cancel);
    if (sound) {
        m_sound = std::make_unique<KxAudioInterleaver>(std::move(*sound), m_soundFormat);
    } else {
        Warn(QStringLiteral("The sound is left out. %1").arg(sound.Message()));
    }
}

KxError Rendering::OpenWriter(const KxOutputGrid& grid)
{
    KxMp4Writer::Settings settings;
    settings.path = m_settings.outputPath;
    settings.existing = m_settings.existing;
    settings.size = m_size;
    settings.frameRate = grid.Rate();
    settings.videoBitRate = m_settings.videoBitRate > 0 ? m_settings.videoBitRate : settings.videoBitRate;
    settings.hasAudio = m_sound != nullptr;
    settings.audioFormat = m_soundFormat;
    settings.audioBitRate = m_settings.audioBitRate > 0 ? m_settings.audioBitRate : settings.audioBitRate;
    KxResult<std::unique_ptr<KxMp4Writer>> writer = KxMp4Writer::Open(settings);
    if (!writer) {
        return writer.Message();
    }
    m_writer = std::move(*writer);
    return std::nullopt;
}

KxError Rendering::AddAll(KxPictureFeed& pictures, const KxOutputGrid& grid)
{
    while (!m_cancel.IsCancelled()) {
        const std::optional<KxVideoFrame> picture = pictures.Next();
        if (!picture) {
            return std::nullopt;
        }
        if (KxError error = m_writer->AddPicture(*picture, m_written)) {
            return error;
        }
        ++m_written;
        if (KxError error =
                m_sound != nullptr ? m_sound->WriteUntil(m_written, grid.Rate(), *m_writer) : std::nullopt) {
            return error;
        }
        ReportProgress(m_written, grid.Frames());
    }
    return std::nullopt;
}

KxRenderResult Rendering::Finish(KxPictureFeed& pictures, const KxOutputGrid& grid)
{
    if (KxError failure = pictures.Failure()) {
        return Failed(*failure);
    }
    if (m_written == 0) {
        return Failed(QStringLiteral("Cannot render %1: it is damaged.").arg(m_source.Name()));
    }
    if (pictures.EndedEarly()) {
        Warn(QStringLiteral("%1 is damaged or incomplete: only %2 of %3 frames could be rendered.")
                 .arg(m_source.Name(), QString::number(m_written), QString::number(grid.Frames())));
    }
    if (m_sound != nullptr && m_sound->HasFailed()) {
        Warn(QStringLiteral("The sound of %1 is damaged and ends early.").arg(m_source.Name()));
    }
    const KxResult<QString> path = m_writer->Finish();
    if (!path) {
        return Failed(path.Message());
    }
    if (m_progress) {
        m_progress(ProgressEnd);
    }
    return {KxOutcome::Done, {}, *path, m_warning};
}

KxRenderResult Rendering::Run()
{
    if (KxError error = Check(m_source, m_settings)) {
        return Failed(*error);
    }
    KxResult<std::unique_ptr<KxVideoReader>> reader = KxVideoReader::Open(m_source.path, m_cancel);
    if (m_cancel.IsCancelled()) {
        return Cancelled();
    }
    if (!reader) {
        return Failed(reader.Message());
    }
    m_reader = std::move(*reader);
    const KxVideoFacts& video = *m_reader->Facts().video;
    const std::optional<KxOutputGrid> grid =
        KxOutputGrid::Make(video.frameRate, video.frameCount, m_settings.frameRate);
    if (!grid) {
        return Failed(
            CannotWrite(m_settings, QStringLiteral("%1 frames a second are not possible").arg(m_settings.frameRate)));
    }
    OpenSound();
    if (KxError error = OpenWriter(*grid)) {
        return Failed(*error);
    }
    KxPictureFeed pictures(*m_reader, m_source, *grid, m_size, m_cancel);
    if (KxError error = AddAll(pictures, *grid)) {
        return Failed(*error);
    }
    return m_cancel.IsCancelled() ? Cancelled() : Finish(pictures, *grid);
}

} // namespace

KxRenderResult KxRenderer::Run(const KxRenderSource& source, const KxRenderSettings& settings, const Progress& progress,
                               const KxCancelToken& cancel)
{
    KxRenderResult result;
    const KxError reason = KxCallGuarded([&] { result = Rendering(source, settings, progress, cancel).Run(); });
    if (!reason) {
        return result;
    }
    return cancel.IsCancelled() ? Cancelled()
                                : Failed(QStringLiteral("Cannot render %1: %2.").arg(source.Name(), *reason));
}
