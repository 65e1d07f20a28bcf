#include <KxModel/KxPicturesFile.h>

#include <KxCore/KxSystemError.h>
#include <KxMedia/Read/KxVideoScanner.h>
#include <KxModel/KxAnalysisPictures.h>
#include <KxModel/KxPackedPicture.h>
#include <KxModel/KxPicturesStream.h>
#include <KxModel/KxVideoSampling.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxPicturesFile)
};

using Written = KxPicturesFile::Written;

Written Failed(const QString& message)
{
    return {KxOutcome::Failed, message, {}, {}};
}

/// One part on its way from the video to its file.
class Copying
{
public:
    Copying(KxVideoScanner& scanner, const KxFrameRange& frames, QFile& file, const KxCancelToken& cancel)
        : m_scanner(scanner)
        , m_frames(frames)
        , m_file(file)
        , m_stream(&file)
        , m_cancel(cancel)
    {
    }

    void Run(const QString& madeBy, const std::function<void(int percent)>& onProgress)
    {
        const KxVideoFacts& video = *m_scanner.Facts().video;
        const qint64 start = m_frames.first - KxPicturesStream::FramesBefore(m_frames, video.frameRate);
        KxPicturesStream::Write(
            m_stream, KxPicturesStream::Header{madeBy, m_frames, video.frameCount, video.resolution, video.frameRate});
        m_scanner.SkipTo(start);
        const KxSubjectSampling sampling = KxVideoSampling::Of(video);
        KxDecodedPictures pictures(m_scanner);
        int reported = -1;
        for (;;) {
            const std::optional<qint64> frame = m_cancel.IsCancelled() ? std::nullopt : pictures.Next();
            if (!frame || *frame >= m_frames.end || m_file.error() != QFileDevice::NoError) {
                break;
            }
            if (*frame >= start && sampling.Wants(*frame)) {
                Add(*frame, pictures);
            }
            const int percent =
                static_cast<int>(std::clamp<qint64>((*frame - start) * 100 / (m_frames.end - start), 0, 99));
            if (percent > reported) {
                reported = percent;
                onProgress(percent);
            }
        }
        KxPicturesStream::Write(m_stream, KxPicturesStream::Record{std::nullopt, m_scanner.EndedEarly()});
    }

private:
    void Add(qint64 frame, KxAnalysisPictures& pictures)
    {
        const QImage shot = pictures.Shot();
        if (!shot.isNull()) {
            KxPicturesStream::Write(
                m_stream, KxPicturesStream::Record{frame, false, m_shots.Pack(shot), m_wholes.Pack(pictures.Whole())});
        }
    }

    KxVideoScanner& m_scanner;
    const KxFrameRange m_frames;
    QFile& m_file;
    QDataStream m_stream;
    const KxCancelToken& m_cancel;
    KxPicturePacker m_shots;
    KxPicturePacker m_wholes;
};

} // namespace

std::optional<KxPicturesFile::Facts> KxPicturesFile::Read(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    QDataStream stream(&file);
    const std::optional<KxPicturesStream::Header> header = KxPicturesStream::ReadHeader(stream);
    return header ? std::optional(Facts{header->madeBy, header->frames, header->frameCount}) : std::nullopt;
}

Written KxPicturesFile::Write(const QString& videoPath, const KxFrameRange& frames, const Target& target,
                              const std::function<void(int percent)>& onProgress, const KxCancelToken& cancel)
{
    const KxResult<std::unique_ptr<KxVideoScanner>> scanner = KxVideoScanner::Open(videoPath, cancel);
    if (cancel.IsCancelled()) {
        return {KxOutcome::Cancelled, {}, {}, {}};
    }
    if (!scanner) {
        return Failed(scanner.Message());
    }
    const KxResult<std::unique_ptr<KxOutputFile>> output = KxOutputFile::Create(target.path);
    if (!output) {
        return Failed(output.Message());
    }
    QFile file((*output)->TemporaryPath());
    bool isWritten = file.open(QIODevice::WriteOnly);
    if (isWritten) {
        Copying(**scanner, frames, file, cancel).Run(target.madeBy, onProgress);
        isWritten = file.flush() && file.error() == QFileDevice::NoError;
    }
    if (cancel.IsCancelled()) {
        return {KxOutcome::Cancelled, {}, {}, {}};
    }
    if (!isWritten) {
        return Failed(Texts::tr("Cannot write %1: %2.").arg(target.path, KxFileErrorText(file)));
    }
    file.close();
    const KxResult<QString> path = (*output)->Commit(target.existing);
    if (!path) {
        return Failed(path.Message());
    }
    const QString name = QFileInfo(videoPath).fileName();
    return {KxOutcome::Done,
            {},
            *path,
            (*scanner)->EndedEarly() ? Texts::tr("%1 is cut off or damaged: it decodes only in part.").arg(name)
                                     : QString()};
}
