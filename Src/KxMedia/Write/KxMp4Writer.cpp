#include <KxMedia/Write/KxMp4Writer.h>

#include <KxMedia/Container/KxAvError.h>
#include <KxMedia/Container/KxMp4Muxer.h>
#include <KxMedia/Write/KxAacEncoder.h>
#include <KxMedia/Write/KxEncoderProof.h>
#include <KxMedia/Write/KxSoundPackets.h>
#include <KxMedia/Write/KxVideoEncoder.h>
#include <KxMedia/Write/KxVideoPart.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxMp4Writer)
};

constexpr int VideoStream = 0;
constexpr int AudioStream = 1;
constexpr double SegmentSeconds = 10.0;

QString Message(const QString& path, const QString& reason)
{
    return Texts::tr("Cannot write %1: %2.").arg(path, reason);
}

KxError Check(const KxMp4Writer::Settings& settings)
{
    const QSize& size = settings.size;
    if (size.width() <= 0 || size.height() <= 0 || size.width() % 2 != 0 || size.height() % 2 != 0) {
        return Message(settings.path, Texts::tr("pictures of %1 x %2 pixels cannot be encoded; both have to be even")
                                          .arg(QString::number(size.width()), QString::number(size.height())));
    }
    if (!settings.frameRate.IsPositive()) {
        return Message(settings.path, Texts::tr("the frame rate is unknown"));
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
        m_muxer.SetComment(settings.comment);
    }

    KxError OpenAudio();
    KxError AddPicture(const KxVideoFrame& picture, qint64 index);
    KxError AddVideoPacket(AVPacket& packet);
    KxError AddAudio(const KxAudioBlock& block);
    KxError AddSoundPacket(AVPacket& packet);
    KxUsedEncoder UsedEncoder() const;
    KxResult<QString> Finish();

private:
    KxVideoEncoder::Settings VideoSettings() const;
    /// Chooses the encoder and encodes the pictures that were held back for that.
    KxError BeginWithTheBest();
    /// Ends the segment before, if there is one. `first` is needed for the first segment only.
    KxError OpenEncoder(const AVFrame& first);
    /// Whether the next picture is encoded without a look at those before.
    bool StartsSegment() const;
    /// Writes the header; the stream of the pictures has been added, or has failed to be with `error`.
    KxError Begin(int error);
    KxError Encode(const KxVideoFrame& picture);
    KxError ErrorOf(int error) const;
    KxPacketSink Into(int stream);

    Settings m_settings;
    // Destroyed after the muxer, which has the file open.
    std::unique_ptr<KxOutputFile> m_file;
    KxMp4Muxer m_muxer;
    std::unique_ptr<KxVideoEncoder> m_video;
    KxAvFrame m_tags{av_frame_alloc()}; ///< of the first picture, without its pixels
    std::unique_ptr<KxAacEncoder> m_audio;
    // Sound added before the first picture.
    std::vector<KxAudioBlock> m_earlyAudio;
    std::vector<KxAvPacket> m_earlyPackets;
    // Held back until the encoder is chosen.
    std::vector<KxVideoFrame> m_earlyPictures;
    QString m_choiceReason;
    qint64 m_added = 0;
    qint64 m_encoded = 0;
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

KxVideoEncoder::Settings KxMp4Writer::Impl::VideoSettings() const
{
    return {m_settings.size, m_settings.frameRate, m_settings.videoBitRate, m_settings.videoPreset, m_settings.format};
}

KxError KxMp4Writer::Impl::BeginWithTheBest()
{
    const KxEncoderProof::Choice choice = KxEncoderProof::Choose(VideoSettings(), m_earlyPictures);
    m_settings.format.encoder = choice.encoder;
    m_choiceReason = choice.reason;
    for (const KxVideoFrame& picture : m_earlyPictures) {
        if (KxError error = Encode(picture)) {
            return error;
        }
    }
    m_earlyPictures.clear();
    return std::nullopt;
}

bool KxMp4Writer::Impl::StartsSegment() const
{
    // At a bit rate, each segment would have to have that of the whole video.
    const bool areSegments =
        m_settings.format.quality && m_settings.format.encoder == KxOutputFormat::Encoder::Software;
    return m_encoded == 0 || (areSegments && m_encoded % SegmentFrames(m_settings.frameRate) == 0);
}

KxError KxMp4Writer::Impl::OpenEncoder(const AVFrame& first)
{
    int error = 0;
    if (m_video != nullptr) {
        error = m_video->Finish(Into(VideoStream));
        m_video.reset();
    } else if (m_tags == nullptr) {
        error = AVERROR(ENOMEM);
    } else {
        // The header has these tags, so all segments have them.
        m_tags->format = first.format;
        error = av_frame_copy_props(m_tags.get(), &first);
    }
    if (error < 0) {
        return ErrorOf(error);
    }
    KxResult<std::unique_ptr<KxVideoEncoder>> video = KxVideoEncoder::Open(VideoSettings(), *m_tags);
    if (!video) {
        return Message(m_settings.path, video.Message());
    }
    m_video = std::move(*video);
    return m_muxer.HasBegun() ? std::nullopt : Begin(m_muxer.AddStream(m_video->Context()));
}

KxError KxMp4Writer::Impl::Begin(int error)
{
    if (error >= 0 && m_audio != nullptr) {
        error = m_muxer.AddStream(m_audio->Context());
    } else if (error >= 0 && m_settings.copiedSound != nullptr) {
        error = m_muxer.AddStream(m_settings.copiedSound->Parameters(), m_settings.copiedSound->TimeBase());
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
    for (const KxAvPacket& packet : m_earlyPackets) {
        if (error >= 0) {
            error = m_muxer.Write(*packet, AudioStream);
        }
    }
    m_earlyPackets.clear();
    return ErrorOf(error);
}

KxError KxMp4Writer::Impl::AddPicture(const KxVideoFrame& picture, qint64 index)
{
    Q_ASSERT(index == m_added);
    Q_ASSERT(!picture.IsNull() &&
             (picture.Picture().format == AV_PIX_FMT_YUV420P || picture.Picture().format == AV_PIX_FMT_YUV420P10));
    Q_ASSERT(QSize(picture.Picture().width, picture.Picture().height) == m_settings.size);
    ++m_added;
    if (m_settings.format.encoder != KxOutputFormat::Encoder::Auto) {
        return Encode(picture);
    }
    m_earlyPictures.push_back(picture);
    return m_earlyPictures.size() < KxEncoderProof::Frames ? std::nullopt : BeginWithTheBest();
}

KxError KxMp4Writer::Impl::Encode(const KxVideoFrame& picture)
{
    if (StartsSegment()) {
        if (KxError error = OpenEncoder(picture.Picture())) {
            return error;
        }
    }
    return ErrorOf(m_video->Encode(picture.Picture(), m_encoded++, Into(VideoStream)));
}

KxError KxMp4Writer::Impl::AddVideoPacket(AVPacket& packet)
{
    Q_ASSERT(m_settings.copiedVideo != nullptr);
    if (!m_muxer.HasBegun()) {
        const KxVideoPart& video = *m_settings.copiedVideo;
        if (KxError error = Begin(m_muxer.AddStream(video.Parameters(), video.TimeBase()))) {
            return error;
        }
    }
    return ErrorOf(m_muxer.Write(packet, VideoStream));
}

KxUsedEncoder KxMp4Writer::Impl::UsedEncoder() const
{
    return m_settings.copiedVideo != nullptr ? KxUsedEncoder()
                                             : KxUsedEncoder{KxVideoEncoder::NameOf(m_settings.format), m_choiceReason};
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

KxError KxMp4Writer::Impl::AddSoundPacket(AVPacket& packet)
{
    Q_ASSERT(m_settings.copiedSound != nullptr);
    if (m_muxer.HasBegun()) {
        return ErrorOf(m_muxer.Write(packet, AudioStream));
    }
    KxAvPacket early(av_packet_alloc());
    if (early == nullptr) {
        return ErrorOf(AVERROR(ENOMEM));
    }
    av_packet_move_ref(early.get(), &packet);
    m_earlyPackets.push_back(std::move(early));
    return std::nullopt;
}

KxResult<QString> KxMp4Writer::Impl::Finish()
{
    using Result = KxResult<QString>;
    if (KxError error = m_earlyPictures.empty() ? std::nullopt : BeginWithTheBest()) {
        return Result::Failure(*error);
    }
    if (!m_muxer.HasBegun()) {
        return Result::Failure(Message(m_settings.path, Texts::tr("there is no picture to write")));
    }
    int error = m_video != nullptr ? m_video->Finish(Into(VideoStream)) : 0;
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

qint64 KxMp4Writer::SegmentFrames(const KxRational& frameRate)
{
    return std::max<qint64>(1, std::llround(SegmentSeconds * frameRate.ToDouble()));
}

KxError KxMp4Writer::AddPicture(const KxVideoFrame& picture, qint64 index)
{
    return m_impl->AddPicture(picture, index);
}

KxError KxMp4Writer::AddVideoPacket(AVPacket& packet)
{
    return m_impl->AddVideoPacket(packet);
}

KxError KxMp4Writer::AddAudio(const KxAudioBlock& block)
{
    return m_impl->AddAudio(block);
}

KxError KxMp4Writer::AddSoundPacket(AVPacket& packet)
{
    return m_impl->AddSoundPacket(packet);
}

KxUsedEncoder KxMp4Writer::UsedEncoder() const
{
    return m_impl->UsedEncoder();
}

KxResult<QString> KxMp4Writer::Finish()
{
    return m_impl->Finish();
}
