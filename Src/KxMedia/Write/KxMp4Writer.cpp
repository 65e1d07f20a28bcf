#include <KxMedia/Write/KxMp4Writer.h>

#include <KxMedia/Container/KxAvError.h>
#include <KxMedia/Container/KxMp4Muxer.h>
#include <KxMedia/Write/KxAacEncoder.h>
#include <KxMedia/Write/KxVideoEncoder.h>

namespace
{

constexpr int VideoStream = 0;
constexpr int AudioStream = 1;

QString Message(const QString& path, const QString& reason)
{
    return QStringLiteral("Cannot write %1: %2.").arg(path, reason);
}

KxError Check(const KxMp4Writer::Settings& settings)
{
    const QSize& size = settings.size;
    if (size.width() <= 0 || size.height() <= 0 || size.width() % 2 != 0 || size.height() % 2 != 0) {
        return Message(settings.path,
                       QStringLiteral("pictures of %1 x %2 pixels cannot be encoded; both have to be even")
                           .arg(QString::number(size.width()), QString::number(size.height())));
    }
    if (!settings.frameRate.IsPositive()) {
        return Message(settings.path, QStringLiteral("the frame rate is unknown"));
    }
    return std::nullopt;
}

} // namespace

class KxMp4Writer::Impl
{
public:
    Impl(const Settings& settings, std::unique_ptr<KxOutputFile> file)
        : m_settings(settings)
        , m_file(std::move(file))
        , m_muxer(m_file->TemporaryPath())
    {
    }

    KxError OpenAudio();
    KxError AddPicture(const KxVideoFrame& picture, qint64 index);
    KxError AddAudio(const KxAudioBlock& block);
    KxResult<QString> Finish();

private:
    KxError Begin(const AVFrame& first);
    KxError ErrorOf(int error) const;
    KxPacketSink Into(int stream);

    const Settings m_settings;
    // Destroyed after the muxer, which has the file open.
    std::unique_ptr<KxOutputFile> m_file;
    KxMp4Muxer m_muxer;
    std::unique_ptr<KxVideoEncoder> m_video;
    std::unique_ptr<KxAacEncoder> m_audio;
    // Sound added before the first picture.
    std::vector<KxAudioBlock> m_earlyAudio;
    qint64 m_pictures = 0;
};

KxError KxMp4Writer::Impl::ErrorOf(int error) const
{
    return error < 0 ? KxError(Message(m_settings.path, KxAvErrorText(error))) : std::nullopt;
}

KxPacketSink KxMp4Writer::Impl::Into(int stream)
{
    return [this, stream](AVPacket& packet) {
        if (stream == VideoStream) {
            packet.duration = 1;
        }
        return m_muxer.Write(packet, stream);
    };
}

KxError KxMp4Writer::Impl::OpenAudio()
{
    KxResult<std::unique_ptr<KxAacEncoder>> audio = KxAacEncoder::Open(m_settings.audioFormat, m_settings.audioBitRate);
    if (!audio) {
        return Message(m_settings.path, audio.Message());
    }
    m_audio = std::move(*audio);
    return std::nullopt;
}

KxError KxMp4Writer::Impl::Begin(const AVFrame& first)
{
    KxResult<std::unique_ptr<KxVideoEncoder>> video = KxVideoEncoder::Open(
        {m_settings.size, m_settings.frameRate, m_settings.videoBitRate, m_settings.videoPreset, {}}, first);
    if (!video) {
        return Message(m_settings.path, video.Message());
    }
    m_video = std::move(*video);
    int error = m_muxer.AddStream(m_video->Context());
    if (error >= 0 && m_audio != nullptr) {
        error = m_muxer.AddStream(m_audio->Context());
    }
    if (error >= 0) {
        error = m_muxer.Begin();
    }
    for (const KxAudioBlock& block : m_earlyAudio) {
        if (error >= 0) {
            error = m_audio->Encode(block, Into(AudioStream));
        }
    }
    m_earlyAudio.clear();
    return ErrorOf(error);
}

KxError KxMp4Writer::Impl::AddPicture(const KxVideoFrame& picture, qint64 index)
{
    Q_ASSERT(index == m_pictures);
    Q_ASSERT(!picture.IsNull() && picture.Picture().format == AV_PIX_FMT_YUV420P);
    Q_ASSERT(QSize(picture.Picture().width, picture.Picture().height) == m_settings.size);
    if (m_video == nullptr) {
        if (KxError error = Begin(picture.Picture())) {
            return error;
        }
    }
    ++m_pictures;
    return ErrorOf(m_video->Encode(picture.Picture(), index, Into(VideoStream)));
}

KxError KxMp4Writer::Impl::AddAudio(const KxAudioBlock& block)
{
    Q_ASSERT(m_settings.hasAudio && block.channels == m_settings.audioFormat.channels);
    if (!m_muxer.HasBegun()) {
        m_earlyAudio.push_back(block);
        return std::nullopt;
    }
    return ErrorOf(m_audio->Encode(block, Into(AudioStream)));
}

KxResult<QString> KxMp4Writer::Impl::Finish()
{
    using Result = KxResult<QString>;
    if (!m_muxer.HasBegun()) {
        return Result::Failure(Message(m_settings.path, QStringLiteral("there is no picture to write")));
    }
    int error = m_video->Finish(Into(VideoStream));
    if (error >= 0 && m_audio != nullptr) {
        error = m_audio->Finish(Into(AudioStream));
    }
    if (error >= 0) {
        error = m_muxer.End();
    }
    if (KxError failure = ErrorOf(error)) {
        return Result::Failure(*failure);
    }
    return m_file->Commit(m_settings.existing);
}

KxMp4Writer::KxMp4Writer(std::unique_ptr<Impl> impl)
    : m_impl(std::move(impl))
{
}
KxMp4Writer::~KxMp4Writer() = default;

KxResult<std::unique_ptr<KxMp4Writer>> KxMp4Writer::Open(const Settings& settings)
{
    using Opened = KxResult<std::unique_ptr<KxMp4Writer>>;
    if (KxError error = Check(settings)) {
        return Opened::Failure(*error);
    }
    KxResult<std::unique_ptr<KxOutputFile>> file = KxOutputFile::Create(settings.path);
    if (!file) {
        return Opened::Failure(file.Message());
    }
    auto impl = std::make_unique<Impl>(settings, std::move(*file));
    if (KxError error = settings.hasAudio ? impl->OpenAudio() : std::nullopt) {
        return Opened::Failure(*error);
    }
    return std::unique_ptr<KxMp4Writer>(new KxMp4Writer(std::move(impl)));
}

KxError KxMp4Writer::AddPicture(const KxVideoFrame& picture, qint64 index)
{
    return m_impl->AddPicture(picture, index);
}

KxError KxMp4Writer::AddAudio(const KxAudioBlock& block)
{
    return m_impl->AddAudio(block);
}

KxResult<QString> KxMp4Writer::Finish()
{
    return m_impl->Finish();
}
