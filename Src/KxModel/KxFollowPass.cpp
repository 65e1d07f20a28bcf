#include <KxModel/KxFollowPass.h>

#include <KxModel/KxPicturePipeline.h>

#include <KxMedia/Picture/KxPictureScaler.h>
#include <KxMedia/Read/KxVideoReader.h>
#include <KxSubject/Follow/KxSubjectFollower.h>
#include <KxSubject/KxPictureView.h>
#include <KxSubject/KxSubjectOptions.h>
#include <KxSubject/KxSubjectRecord.h>

#include <QCoreApplication>
#include <QFileInfo>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxFollowPass)
};

class Pass
{
public:
    Pass(KxVideoReader& reader, KxSubjectFollower& follower, const QSize& size, const KxFollowPass::Listener& listener,
         const KxCancelToken& cancel)
        : m_reader(reader)
        , m_follower(follower)
        , m_size(size)
        , m_listener(listener)
        , m_cancel(cancel)
    {
    }

    KxError Run(const KxSubjectFollower::Range& range)
    {
        const KxError problem =
            KxPicturePipeline::Run([&](const KxPicturePipeline::Put& put) { Decode(range, put); },
                                   [this](const KxPicturePipeline::Picture& picture) { Follow(picture); });
        if (!problem && !m_cancel.IsCancelled()) {
            m_follower.EndRange([this] {
                m_listener.onFollowed(m_follower);
                return !m_cancel.IsCancelled();
            });
        }
        return problem;
    }

private:
    void Follow(const KxPicturePipeline::Picture& picture)
    {
        if (m_cancel.IsCancelled()) {
            return;
        }
        const QImage& image = picture.image;
        m_follower.AddPicture(
            picture.frame,
            {image.constBits(), {image.width(), image.height()}, static_cast<std::size_t>(image.bytesPerLine())});
        m_listener.onFollowed(m_follower);
    }

    void Decode(const KxSubjectFollower::Range& range, const KxPicturePipeline::Put& put)
    {
        // The follower belongs to the other thread while pictures are delivered.
        const double before = m_follower.Progress();
        const double share = m_follower.ProgressAfterRange() - before;
        KxPictureScaler scaler(KxPictureScaler::Detail::Coarse);
        for (qint64 frame = range.first; frame < range.end && !m_cancel.IsCancelled(); ++frame) {
            if (!m_follower.Wants(frame)) {
                continue;
            }
            KxVideoFrame picture;
            if (m_reader.Read(frame, picture) != KxReadStatus::Delivered || m_reader.EndedEarly()) {
                return;
            }
            QImage image = scaler.Scale(picture, m_size, QImage::Format_BGR888);
            if (!image.isNull() && !put({frame, std::move(image)})) {
                return;
            }
            const double part = static_cast<double>(frame - range.first) / static_cast<double>(range.end - range.first);
            m_listener.onProgress(before + share * part);
        }
    }

    KxVideoReader& m_reader;
    KxSubjectFollower& m_follower;
    QSize m_size;
    const KxFollowPass::Listener& m_listener;
    KxCancelToken m_cancel;
};

} // namespace

KxFollowPass::Result KxFollowPass::Run(const QString& path, const KxSubjectRecord& record,
                                       const KxSubjectChoice& choice, const Listener& listener,
                                       const KxCancelToken& cancel)
{
    Result result;
    KxSubjectFollower follower(record, choice, {});
    const KxResult<std::unique_ptr<KxVideoReader>> reader =
        KxVideoReader::Open(path, cancel, KxVideoReader::Purpose::Analysis);
    if (!reader) {
        result.message = reader.Message();
        return result;
    }
    Pass pass(**reader, follower, {record.workingSizePx.width, record.workingSizePx.height}, listener, cancel);
    while (const std::optional<KxSubjectFollower::Range> range = follower.NextRange()) {
        const KxError problem = pass.Run(*range);
        if (cancel.IsCancelled()) {
            result.outcome = KxOutcome::Cancelled;
            return result;
        }
        if (problem) {
            result.message =
                Texts::tr("Cannot follow in %1: %2.").arg(QFileInfo(path).fileName(), problem->simplified());
            return result;
        }
    }
    result.track = follower.Track();
    result.outcome = KxOutcome::Done;
    return result;
}
