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
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// A user's file, opened so that nothing but that file is read: a regular file of a real container format, no lists
/// that name other files, no network, a bound on streams, on the size of pictures and on the time that opening takes.
/// Cancelled by the token. One thread at a time.
class KXMEDIA_API KxInputFile
{
public:
    /// Larger pictures are refused: their frames alone would fill the memory of a small machine.
    static constexpr qint64 LargestPicturePixels = qint64{8192} * 8192;
    /// Larger lists of attachments of Matroska files are passed over: the demuxer would hold them in memory, twice.
    static constexpr qint64 LargestAttachmentBytes = 4 * 1024 * 1024;

    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    /// The message names the file and the reason. `clock` bounds the time that opening takes, not what comes after.
    static KxResult<std::unique_ptr<KxInputFile>> Open(const QString& path, const KxCancelToken& cancel,
                                                       const Clock& clock = &std::chrono::steady_clock::now);
    ~KxInputFile();

    /// "Cannot open clip.mp4: <reason>."
    static QString Message(const QString& path, const QString& reason);

    const QString& Path() const { return m_path; }
    qint64 FileSize() const { return m_fileSize; }
    /// It was truncated or written to since it was opened. That it grows, or is deleted, is no change. Costs a look at
    /// the file's entry in its folder.
    bool HasChanged() const;
    /// The header claims a larger file than there is.
    bool IsCutOff() const { return m_isCutOff; }
    AVFormatContext& Context() const { return *m_context; }
    /// The stream of moving pictures; null without one.
    AVStream* VideoStream() const { return m_videoStream; }
    const std::vector<AVStream*>& AudioStreams() const { return m_audioStreams; }
    /// Why there is no VideoStream(): "it has sound but no moving picture".
    const QString& ReasonForNoVideo() const { return m_reasonForNoVideo; }

    /// Packets of other streams are left out from now on, which is quicker.
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
        /// While the container is opened, and how many streams it had at most.
        const AVFormatContext* opening = nullptr;
        unsigned streams = 0;
    };

    KxInputFile(const QString& path, const KxCancelToken& cancel, const Clock& clock);
    KxError OpenFile();
    KxError OpenContainer();
    KxError ReadStreamInfo();
    void ChooseStreams();
    QString Failure(int error) const;
    KxError ReasonToRefuseStreams() const;
    static int IsInterrupted(void* watch);

    QString m_path;
    qint64 m_fileSize = 0;
    std::filesystem::file_time_type m_lastWrite;
    QByteArray m_head;
    bool m_isCutOff = false;
    Watch m_watch;
    AVIOContext* m_file = nullptr;
    /// Where the file holds attachments that are too large to be held in memory.
    std::unique_ptr<KxMaskedFile> m_masked;
    KxAvInput m_context;
    AVStream* m_videoStream = nullptr;
    std::vector<AVStream*> m_audioStreams;
    QString m_reasonForNoVideo;
};
