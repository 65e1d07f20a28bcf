#include <KxMedia/Container/KxInputFile.h>

#include <KxCore/KxSystemFile.h>
#include <KxMedia/Container/KxAvError.h>
#include <KxMedia/Container/KxClaimedSize.h>
#include <KxMedia/Container/KxMatroskaAttachments.h>
#include <KxMedia/Container/KxMp4Tracks.h>

extern "C" {
#include <libavutil/avstring.h>
}

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxInputFile)
};

constexpr const char* Containers =
    "mov,mp4,m4a,3gp,3g2,mj2,matroska,webm,avi,mpegts,mpeg,mpegvideo,flv,asf,ogg,mxf,dv,gif,apng,wtv,yuv4mpegpipe,ivf,"
    "h264,hevc,m4v,h263,vc1,vc1test,mjpeg,obu,av1,dirac,nut,rm,gxf,mp3,wav,w64,flac,aac,ac3,eac3,aiff,amr,caf,au";
constexpr unsigned MostStreams = 64;
// libavformat reports its own limit on streams as lack of memory, so it is set well above ours.
constexpr int MostStreamsWhileOpening = 256;
constexpr int MostReadingErrors = 10;
constexpr int64_t ProbeBytes = 16 * 1024 * 1024;
constexpr int64_t ProbeUs = 10 * AV_TIME_BASE;
constexpr std::chrono::seconds OpeningLimit{30};

// Demuxers call this to open files that a playlist or a reference names.
int RefuseOpening(AVFormatContext*, AVIOContext**, const char*, int, AVDictionary**)
{
    return AVERROR(EPERM);
}

constexpr int HeadBytes = 256;

/// The first bytes. Leaves the file positioned at its start.
QByteArray Head(AVIOContext& file)
{
    QByteArray head(HeadBytes, '\0');
    head.resize(std::max(0, avio_read(&file, reinterpret_cast<unsigned char*>(head.data()), HeadBytes)));
    avio_seek(&file, 0, SEEK_SET);
    return head;
}

/// The first bytes of the file that `path` names now.
QByteArray HeadAt(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(HeadBytes) : QByteArray();
}

std::vector<KxMaskedFile::Mask> MasksOfAttachments(const QString& path)
{
    QFile file(path);
    std::vector<KxMaskedFile::Mask> masks;
    if (!file.open(QIODevice::ReadOnly)) {
        return masks;
    }
    for (const qint64 position : KxLargeAttachments(file, KxInputFile::LargestAttachmentBytes)) {
        masks.push_back(KxMaskedFile::OfElement(position));
    }
    return masks;
}

/// None if nothing would be left to read. Leaves the file positioned at its start.
std::vector<KxMaskedFile::Mask> MasksOfTracks(AVIOContext& file, qint64 fileBytes, KxMp4Track::Kind leftOut)
{
    const auto bytesAt = [&file](qint64 position, int count) {
        QByteArray bytes(count, '\0');
        const bool isThere = avio_seek(&file, position, SEEK_SET) == position;
        const int read = isThere ? avio_read(&file, reinterpret_cast<unsigned char*>(bytes.data()), count) : 0;
        return bytes.left(std::max(0, read));
    };
    const std::vector<KxMp4Track> tracks = KxMp4TracksOf(bytesAt, fileBytes);
    avio_seek(&file, 0, SEEK_SET);
    const auto needed = leftOut == KxMp4Track::Kind::Sound ? KxMp4Track::Kind::Pictures : KxMp4Track::Kind::Sound;
    std::vector<KxMaskedFile::Mask> masks;
    bool hasNeeded = false;
    for (const KxMp4Track& track : tracks) {
        hasNeeded = hasNeeded || track.kind == needed;
        if (track.kind == leftOut) {
            masks.push_back(KxMaskedFile::OfBox(track.typePosition));
        }
    }
    return hasNeeded ? masks : std::vector<KxMaskedFile::Mask>();
}

class Options
{
public:
    Options() = default;
    Options(const Options&) = delete;
    Options& operator=(const Options&) = delete;
    ~Options() { av_dict_free(&m_options); }
    void Set(const char* key, const char* value) { av_dict_set(&m_options, key, value, 0); }
    void Set(const char* key, int64_t value) { av_dict_set_int(&m_options, key, value, 0); }
    AVDictionary** Get() { return &m_options; }

private:
    AVDictionary* m_options = nullptr;
};

QString ReasonToRefuse(const AVInputFormat& format)
{
    const QLatin1String name(format.name);
    if (name.endsWith(QLatin1String("_pipe")) || name == QLatin1String("image2") || name == QLatin1String("ico")) {
        return Texts::tr("it is a single picture, not a video");
    }
    if (name.startsWith(QLatin1String("hls")) || name == QLatin1String("concat") || name == QLatin1String("dash") ||
        name == QLatin1String("imf") || name == QLatin1String("webm_dash_manifest") || name == QLatin1String("sdp")) {
        return Texts::tr("it is a list of other files, not a video");
    }
    return Texts::tr("it is not a video file");
}

QString TooManyStreams()
{
    return Texts::tr("it has more than %1 streams").arg(MostStreams);
}

bool IsPicture(const AVStream& stream)
{
    constexpr int stillPictures =
        AV_DISPOSITION_ATTACHED_PIC | AV_DISPOSITION_TIMED_THUMBNAILS | AV_DISPOSITION_STILL_IMAGE;
    return (stream.disposition & stillPictures) != 0;
}

bool IsTooLarge(const AVStream& stream)
{
    return stream.codecpar->codec_type == AVMEDIA_TYPE_VIDEO && !IsPicture(stream) &&
           int64_t{stream.codecpar->width} * stream.codecpar->height > KxInputFile::LargestPicturePixels;
}

bool IsBetter(const AVStream& a, const AVStream& b)
{
    const bool isDefaultA = (a.disposition & AV_DISPOSITION_DEFAULT) != 0;
    const bool isDefaultB = (b.disposition & AV_DISPOSITION_DEFAULT) != 0;
    if (isDefaultA != isDefaultB) {
        return isDefaultA;
    }
    return int64_t{a.codecpar->width} * a.codecpar->height > int64_t{b.codecpar->width} * b.codecpar->height;
}

} // namespace

KxResult<std::unique_ptr<KxInputFile>> KxInputFile::Open(const QString& path, const KxCancelToken& cancel,
                                                         Tracks tracks, const Clock& clock)
{
    std::unique_ptr<KxInputFile> input(new KxInputFile(path, cancel, tracks, clock));
    input->m_watch.deadline = clock() + OpeningLimit;
    for (const auto step : {&KxInputFile::OpenFile, &KxInputFile::OpenContainer, &KxInputFile::ReadStreamInfo}) {
        if (const KxError reason = (input.get()->*step)()) {
            return KxResult<std::unique_ptr<KxInputFile>>::Failure(Message(path, *reason));
        }
    }
    input->m_watch.deadline.reset();
    input->ChooseStreams();
    return input;
}

KxInputFile::KxInputFile(const QString& path, const KxCancelToken& cancel, Tracks tracks, const Clock& clock)
    : m_path(path)
    , m_tracks(tracks)
    , m_watch{cancel, clock, std::nullopt}
{
}

KxInputFile::~KxInputFile()
{
    m_context.reset();
    m_masked.reset();
    avio_closep(&m_file);
}

QString KxInputFile::Message(const QString& path, const QString& reason)
{
    const QString name = QFileInfo(path).fileName();
    return Texts::tr("Cannot open %1: %2.").arg(name.isEmpty() ? QDir::toNativeSeparators(path) : name, reason);
}

bool KxInputFile::HasChanged() const
{
    const QFileInfo info(m_path);
    if (!info.exists() || (info.size() >= m_fileSize && KxSystemFile::LastWriteTime(m_path) == m_lastWrite)) {
        return false;
    }
    return info.size() <= m_fileSize || HeadAt(m_path) != m_head;
}

int KxInputFile::IsInterrupted(void* watch)
{
    Watch& state = *static_cast<Watch*>(watch);
    if (state.opening != nullptr) {
        state.streams = std::max(state.streams, state.opening->nb_streams);
    }
    state.isLate = state.isLate || (state.deadline && state.clock() > *state.deadline);
    return state.cancel.IsCancelled() || state.isLate ? 1 : 0;
}

QString KxInputFile::Failure(int error) const
{
    if (IsCancelled()) {
        return Texts::tr("it was cancelled");
    }
    if (error == AVERROR_EXIT || m_watch.isLate) {
        return Texts::tr("reading it takes too long");
    }
    // For malformed files, the error codes of demuxers say little.
    const bool isNoFaultOfTheFile = error == AVERROR(ENOMEM) || error == AVERROR(EIO) || error == AVERROR_PATCHWELCOME;
    return isNoFaultOfTheFile ? KxAvErrorText(error) : Texts::tr("it is damaged or incomplete");
}

KxError KxInputFile::OpenFile()
{
    const QFileInfo info(m_path);
    if (!info.exists()) {
        if (m_path.contains(QChar::ReplacementCharacter)) {
            return Texts::tr("its name is not valid UTF-8; rename it");
        }
        return info.isSymLink() ? Texts::tr("it is a link to a file that does not exist")
                                : Texts::tr("there is no such file");
    }
    if (info.isDir()) {
        return Texts::tr("it is a folder");
    }
    if (!info.isFile()) {
        return Texts::tr("it is not a regular file");
    }
    if (!info.isReadable()) {
        return Texts::tr("permission is denied");
    }
    m_fileSize = info.size();
    if (m_fileSize == 0) {
        return Texts::tr("it is empty");
    }
    m_lastWrite = KxSystemFile::LastWriteTime(m_path);
    Options options;
    options.Set("protocol_whitelist", "file");
    const QByteArray url = QByteArrayLiteral("file:") + info.absoluteFilePath().toUtf8();
    const AVIOInterruptCB interrupt{&IsInterrupted, &m_watch};
    const int error = avio_open2(&m_file, url.constData(), AVIO_FLAG_READ, &interrupt, options.Get());
    if (error < 0) {
        return IsCancelled() ? Failure(error) : KxAvErrorText(error);
    }
    m_head = Head(*m_file);
    m_isCutOff = KxClaimedSize(m_head).value_or(0) > m_fileSize;
    return std::nullopt;
}

std::vector<KxMaskedFile::Mask> KxInputFile::Masks(const AVInputFormat& format) const
{
    if (av_match_name("matroska", format.name) > 0) {
        return MasksOfAttachments(m_path);
    }
    if (m_tracks == Tracks::All || av_match_name("mov", format.name) <= 0) {
        return {};
    }
    const auto leftOut = m_tracks == Tracks::AllButSound ? KxMp4Track::Kind::Sound : KxMp4Track::Kind::Pictures;
    return MasksOfTracks(*m_file, m_fileSize, leftOut);
}

KxError KxInputFile::OpenContainer()
{
    const QByteArray url = QByteArrayLiteral("file:") + QFileInfo(m_path).absoluteFilePath().toUtf8();
    const AVInputFormat* format = nullptr;
    const int score = av_probe_input_buffer2(m_file, &format, url.constData(), nullptr, 0, 0);
    if (score < 0 || format == nullptr) {
        return IsCancelled() || m_watch.isLate ? Failure(score) : Texts::tr("it is not a video file");
    }
    if (av_match_list(format->name, Containers, ',') <= 0) {
        return ReasonToRefuse(*format);
    }
    AVFormatContext* context = avformat_alloc_context();
    if (context == nullptr) {
        return KxAvErrorText(AVERROR(ENOMEM));
    }
    context->pb = m_file;
    std::vector<KxMaskedFile::Mask> masks = Masks(*format);
    if (!masks.empty()) {
        m_masked = std::make_unique<KxMaskedFile>(*m_file, std::move(masks));
        context->pb = m_masked->Context() != nullptr ? m_masked->Context() : m_file;
    }
    context->io_open = &RefuseOpening;
    context->interrupt_callback = {&IsInterrupted, &m_watch};
    Options options;
    options.Set("format_whitelist", Containers);
    options.Set("protocol_whitelist", "file");
    options.Set("max_streams", MostStreamsWhileOpening);
    options.Set("probesize", ProbeBytes);
    options.Set("analyzeduration", ProbeUs);
    m_watch.opening = context;
    const int error = avformat_open_input(&context, url.constData(), format, options.Get());
    m_watch.opening = nullptr;
    if (error == AVERROR(ENOMEM) && m_watch.streams > MostStreams) {
        return TooManyStreams();
    }
    if (error < 0) {
        // Nothing but the file's name suggested a format.
        const bool isGuess = score <= AVPROBE_SCORE_EXTENSION && !IsCancelled();
        return isGuess ? Texts::tr("it is not a video file") : Failure(error);
    }
    m_context.reset(context);
    return std::nullopt;
}

KxError KxInputFile::ReasonToRefuseStreams() const
{
    if (m_context->nb_streams > MostStreams) {
        return TooManyStreams();
    }
    for (unsigned i = 0; i < m_context->nb_streams; ++i) {
        const AVStream& stream = *m_context->streams[i];
        if (IsTooLarge(stream)) {
            return Texts::tr("its pictures are too large (%1 x %2)")
                .arg(QString::number(stream.codecpar->width), QString::number(stream.codecpar->height));
        }
    }
    return std::nullopt;
}

KxError KxInputFile::ReadStreamInfo()
{
    if (KxError reason = ReasonToRefuseStreams()) {
        return reason;
    }
    const unsigned streams = m_context->nb_streams;
    std::vector<AVDictionary*> options(streams, nullptr);
    for (AVDictionary*& option : options) {
        av_dict_set_int(&option, "max_pixels", LargestPicturePixels, 0);
        av_dict_set_int(&option, "threads", 1, 0);
        // Nobody sees these pictures.
        av_dict_set(&option, "skip_loop_filter", "all", 0);
    }
    const int error = avformat_find_stream_info(m_context.get(), options.empty() ? nullptr : options.data());
    for (AVDictionary*& option : options) {
        av_dict_free(&option);
    }
    if (error < 0 || IsCancelled()) {
        return Failure(error);
    }
    m_context->max_streams = MostStreams;
    return ReasonToRefuseStreams();
}

void KxInputFile::ChooseStreams()
{
    bool hasPicture = false;
    for (unsigned i = 0; i < m_context->nb_streams; ++i) {
        AVStream* stream = m_context->streams[i];
        const AVCodecParameters& codec = *stream->codecpar;
        if (codec.codec_type == AVMEDIA_TYPE_AUDIO && codec.codec_id != AV_CODEC_ID_NONE &&
            codec.ch_layout.nb_channels > 0 && codec.sample_rate > 0) {
            m_audioStreams.push_back(stream);
        } else if (codec.codec_type == AVMEDIA_TYPE_VIDEO) {
            hasPicture = hasPicture || IsPicture(*stream);
            if (!IsPicture(*stream) && (m_videoStream == nullptr || IsBetter(*stream, *m_videoStream))) {
                m_videoStream = stream;
            }
        }
    }
    m_reasonForNoVideo = !m_audioStreams.empty() ? Texts::tr("it has sound but no moving picture")
                         : hasPicture            ? Texts::tr("it is a single picture, not a video")
                                                 : Texts::tr("it has no moving picture");
}

void KxInputFile::Select(const AVStream& stream)
{
    for (unsigned i = 0; i < m_context->nb_streams; ++i) {
        m_context->streams[i]->discard = m_context->streams[i] == &stream ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
    }
}

KxReadStatus KxInputFile::Read(AVPacket& packet)
{
    for (int attempt = 0; attempt < MostReadingErrors; ++attempt) {
        const int error = IsCancelled() ? AVERROR_EXIT : av_read_frame(m_context.get(), &packet);
        if (error >= 0) {
            return KxReadStatus::Delivered;
        }
        if (IsCancelled()) {
            return KxReadStatus::Cancelled;
        }
        if (error == AVERROR_EOF) {
            return KxReadStatus::End;
        }
    }
    return KxReadStatus::Failed;
}
