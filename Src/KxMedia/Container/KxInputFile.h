#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxExport.h>
#include <KxCore/KxResult.h>
#include <KxMedia/Container/KxAvHandles.h>
#include <KxMedia/Container/KxMaskedFile.h>
#include <KxMedia/Container/KxReadStatus.h>

#include <QByteArray>
#include <QSize>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// A user's file, opened so that nothing but that file is read: only regular files of known container formats, no
/// playlists, no network. The number of streams, the size of pictures and the time for opening are limited. Cancelled
/// by the token. One thread at a time.
class KXMEDIA_API KxInputFile
{
public:
    /// Larger pictures are refused: their frames alone would fill the memory of a small machine.
    static constexpr qint64 LargestPicturePixels = qint64{8192} * 8192;
    /// Larger attachment lists of Matroska files are skipped: the demuxer would hold them in memory, twice.
    static constexpr qint64 LargestAttachmentBytes = 4 * 1024 * 1024;

    /// The tracks that a reader needs. The others of an MP4 or MOV file are left out, because its demuxer holds an
    /// index of all packets in memory. Other formats, and files in fragments, keep all of their tracks.
    enum class Tracks { All, AllButSound, AllButPictures };
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    /// The message names the file and the reason. `clock` limits the time for opening only.
    static KxResult<std::unique_ptr<KxInputFile>> Open(const QString& path, const KxCancelToken& cancel,
                                                       Tracks tracks = Tracks::All,
                                                       const Clock& clock = &std::chrono::steady_clock::now);
    ~KxInputFile();

    /// "Cannot open clip.mp4: <reason>."
    static QString Message(const QString& path, const QString& reason);

    const QString& Path() const { return m_path; }
    qint64 FileSize() const { return m_fileSize; }
    /// Whether the file was truncated or modified since it was opened. Growing and deletion do not count. Costs a few
    /// stat() calls.
    bool HasChanged() const;
    /// According to its header, the file should be larger.
    bool IsCutOff() const { return m_isCutOff; }
    /// As it was opened.
    Tracks ReadTracks() const { return m_tracks; }
    AVFormatContext& Context() const { return *m_context; }
    /// The stream of moving pictures; null without one.
    AVStream* VideoStream() const { return m_videoStream; }
    const std::vector<AVStream*>& AudioStreams() const { return m_audioStreams; }
    /// Why there is no VideoStream(): "it has sound but no moving picture".
    const QString& ReasonForNoVideo() const { return m_reasonForNoVideo; }

    /// From now on, packets of other streams are discarded, which is faster.
    void Select(const AVStream& stream);
    /// The next packet.
    KxReadStatus Read(AVPacket& packet);
    bool IsCancelled() const { return m_watch.cancel.IsCancelled(); }
    const KxCancelToken& Cancel() const { return m_watch.cancel; }

private:
    struct Watch {
        KxCancelToken cancel;
        Clock clock;
        std::optional<std::chrono::steady_clock::time_point> deadline;
        bool isLate = false;
        /// While the container is being opened; the largest number of streams seen so far.
        const AVFormatContext* opening = nullptr;
        unsigned streams = 0;
    };

    KxInputFile(const QString& path, const KxCancelToken& cancel, Tracks tracks, const Clock& clock);
    KxError OpenFile();
    KxError OpenContainer();
    std::vector<KxMaskedFile::Mask> Masks(const AVInputFormat& format) const;
    KxError ReadStreamInfo();
    void ChooseStreams();
    QString Failure(int error) const;
    KxError ReasonToRefuseStreams() const;
    static int IsInterrupted(void* watch);

    QString m_path;
    qint64 m_fileSize = 0;
    qint64 m_lastWrite = -1;
    QByteArray m_head;
    bool m_isCutOff = false;
    Tracks m_tracks;
    Watch m_watch;
    AVIOContext* m_file = nullptr;
    /// Set if the file has attachments that are too large to be held in memory, or tracks that are left out.
    std::unique_ptr<KxMaskedFile> m_masked;
    KxAvInput m_context;
    AVStream* m_videoStream = nullptr;
    std::vector<AVStream*> m_audioStreams;
    QString m_reasonForNoVideo;
};
