#include <KxRender/KxRenderer.h>

#include <KxCore/KxMemory.h>
#include <KxCore/KxSystemFile.h>
#include <KxCore/KxThread.h>
#include <KxMedia/Read/KxVideoReader.h>
#include <KxMedia/Write/KxMp4Writer.h>
#include <KxMedia/Write/KxVideoParts.h>
#include <KxRender/KxOutputGrid.h>
#include <KxRender/KxPictureFeed.h>
#include <KxRender/KxRenderSound.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxRenderer)
};

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
    return Texts::tr("Cannot write %1: %2.").arg(settings.outputPath, reason);
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
        return CannotWrite(settings, Texts::tr("a resolution of %1 x %2 is not possible")
                                         .arg(QString::number(size.width()), QString::number(size.height())));
    }
    if (settings.existing == KxOutputFile::Existing::Replace && QFileInfo::exists(settings.outputPath) &&
        KxSystemFile::Identity(settings.outputPath) == KxSystemFile::Identity(source.path)) {
        return CannotWrite(settings, Texts::tr("it is the very file that is rendered"));
    }
    return std::nullopt;
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
    KxError OpenParts(const KxRational& rate);
    KxRenderResult Render(const KxOutputGrid& grid);
    /// Copies the pictures of the parts.
    KxRenderResult Join(const KxOutputGrid& grid);
    KxError AddAll(KxPictureFeed& pictures, const KxRational& rate);
    /// After another picture has been written.
    KxError AddSound(const KxRational& rate);
    KxRenderResult Finish();
    void Warn(const QString& message);

    const KxRenderSource& m_source;
    const KxRenderSettings& m_settings;
    const KxRenderer::Progress& m_progress;
    const KxCancelToken& m_cancel;
    const QSize m_size;
    std::unique_ptr<KxVideoReader> m_reader;
    KxRenderSound m_sound;
    std::unique_ptr<KxMp4Writer> m_writer;
    std::unique_ptr<KxVideoParts> m_parts; ///< null where pictures are rendered
    QString m_warning;
    KxFrameRange m_frames; ///< of the output
    qint64 m_written = 0;
    int m_reported = 0;
};

void Rendering::Warn(const QString& message)
{
    m_warning += m_warning.isEmpty() ? message : QLatin1Char(' ') + message;
}

void Rendering::OpenSound()
{
    if (m_settings.frames) {
        return;
    }
    m_sound = KxRenderSound::Open(*m_reader, m_source, m_settings.format, m_cancel);
    for (const QString& warning : qAsConst(m_sound.warnings)) {
        Warn(warning);
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
    settings.copiedSound = m_sound.copied;
    settings.hasAudio = m_sound.feed != nullptr && m_sound.copied == nullptr;
    settings.audioFormat = m_sound.format;
    settings.audioBitRate = m_settings.audioBitRate > 0 ? m_settings.audioBitRate : settings.audioBitRate;
    settings.format = m_settings.format;
    settings.comment = m_settings.comment;
    settings.copiedVideo = m_parts != nullptr ? &m_parts->First() : nullptr;
    KxResult<std::unique_ptr<KxMp4Writer>> writer = KxMp4Writer::Open(settings);
    if (!writer) {
        return writer.Message();
    }
    m_writer = std::move(*writer);
    return std::nullopt;
}

KxError Rendering::OpenParts(const KxRational& rate)
{
    if (m_settings.parts.isEmpty()) {
        return std::nullopt;
    }
    KxResult<std::unique_ptr<KxVideoParts>> parts = KxVideoParts::Open(m_settings.parts, rate, m_cancel);
    if (!parts) {
        return parts.Message();
    }
    m_parts = std::move(*parts);
    return std::nullopt;
}

KxError Rendering::AddSound(const KxRational& rate)
{
    ++m_written;
    if (m_sound.feed != nullptr) {
        if (KxError error = m_sound.feed->WriteUntil(m_written, rate, *m_writer)) {
            return error;
        }
    }
    const auto value = static_cast<int>(std::min<qint64>(m_written * ProgressEnd / m_frames.Count(), ProgressEnd - 1));
    if (value > m_reported && m_progress) {
        m_reported = value;
        m_progress(value);
    }
    return std::nullopt;
}

KxError Rendering::AddAll(KxPictureFeed& pictures, const KxRational& rate)
{
    while (!m_cancel.IsCancelled()) {
        const std::optional<KxVideoFrame> picture = pictures.Next();
        if (!picture) {
            return std::nullopt;
        }
        if (KxError error = m_writer->AddPicture(*picture, m_written)) {
            return error;
        }
        if (KxError error = AddSound(rate)) {
            return error;
        }
    }
    return std::nullopt;
}

KxRenderResult Rendering::Render(const KxOutputGrid& grid)
{
    const KxPictureFeed::Target target{m_size, m_frames, m_settings.format.highRange};
    auto pictures = std::make_unique<KxPictureFeed>(*m_reader, m_source, grid, target, m_cancel);
    if (KxError error = AddAll(*pictures, grid.Rate())) {
        return Failed(*error);
    }
    if (m_cancel.IsCancelled()) {
        return Cancelled();
    }
    if (KxError failure = pictures->Failure()) {
        return Failed(*failure);
    }
    if (m_written == 0) {
        return Failed(Texts::tr("Cannot render %1: it is damaged.").arg(m_source.Name()));
    }
    if (pictures->EndedEarly()) {
        Warn(Texts::tr("%1 is damaged or incomplete: only %2 of %3 frames could be rendered.")
                 .arg(m_source.Name(), QString::number(m_written), QString::number(m_frames.Count())));
    }
    // The index of a long result takes memory while it is written: what was needed to read pictures is freed before.
    pictures.reset();
    m_reader.reset();
    KxMemory::ReturnUnused();
    return Finish();
}

KxRenderResult Rendering::Join(const KxOutputGrid& grid)
{
    KxReadStatus status = m_parts->Next();
    for (; status == KxReadStatus::Delivered; status = m_parts->Next()) {
        if (KxError error = m_writer->AddVideoPacket(m_parts->Packet())) {
            return Failed(*error);
        }
        if (KxError error = AddSound(grid.Rate())) {
            return Failed(*error);
        }
    }
    if (m_cancel.IsCancelled()) {
        return Cancelled();
    }
    if (status == KxReadStatus::Failed) {
        return Failed(m_parts->Problem());
    }
    if (m_written != m_frames.Count()) {
        return Failed(CannotWrite(m_settings, Texts::tr("its parts have %1 of %2 frames")
                                                  .arg(QString::number(m_written), QString::number(m_frames.Count()))));
    }
    return Finish();
}

KxRenderResult Rendering::Finish()
{
    if (m_sound.feed != nullptr && m_sound.feed->HasFailed()) {
        Warn(Texts::tr("The sound of %1 is damaged and ends early.").arg(m_source.Name()));
    }
    const KxResult<QString> path = m_writer->Finish();
    if (!path) {
        return Failed(path.Message());
    }
    if (m_progress) {
        m_progress(ProgressEnd);
    }
    return {KxOutcome::Done, {}, *path, m_warning, m_writer->UsedEncoder()};
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
            CannotWrite(m_settings, Texts::tr("%1 frames a second are not possible").arg(m_settings.frameRate)));
    }
    m_frames = m_settings.frames ? grid->FramesOf(*m_settings.frames) : KxFrameRange{0, grid->Frames()};
    if (m_frames.Count() <= 0) {
        return Failed(CannotWrite(m_settings, Texts::tr("there is no picture to write")));
    }
    OpenSound();
    if (KxError error = OpenParts(grid->Rate())) {
        return m_cancel.IsCancelled() ? Cancelled() : Failed(*error);
    }
    if (KxError error = OpenWriter(*grid)) {
        return Failed(*error);
    }
    return m_parts != nullptr ? Join(*grid) : Render(*grid);
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
    return cancel.IsCancelled() ? Cancelled() : Failed(Texts::tr("Cannot render %1: %2.").arg(source.Name(), *reason));
}
