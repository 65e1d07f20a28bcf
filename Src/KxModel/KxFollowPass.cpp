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
    Pass(KxVideoReader& reader, KxSubjectFollower& follower, const KxSubjectRecord& record, const KxCancelToken& cancel)
        : m_reader(reader)
        , m_follower(follower)
        , m_size(record.workingSizePx.width, record.workingSizePx.height)
        , m_cancel(cancel)
    {
    }

    KxError Run(const KxSubjectFollower::Range& range, const std::function<void(double)>& onProgress)
    {
        return KxPicturePipeline::Run([&](const KxPicturePipeline::Put& put) { Decode(range, put, onProgress); },
                                      [this](const KxPicturePipeline::Picture& picture) {
                                          if (!m_cancel.IsCancelled()) {
                                              const QImage& image = picture.image;
                                              m_follower.AddPicture(picture.frame,
                                                                    {image.constBits(),
                                                                     {image.width(), image.height()},
                                                                     static_cast<std::size_t>(image.bytesPerLine())});
                                          }
                                      });
    }

private:
    /// `onProgress` is called with the share of the range.
    void Decode(const KxSubjectFollower::Range& range, const KxPicturePipeline::Put& put,
                const std::function<void(double)>& onProgress)
    {
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
            onProgress(static_cast<double>(frame - range.first) / static_cast<double>(range.end - range.first));
        }
    }

    KxVideoReader& m_reader;
    KxSubjectFollower& m_follower;
    QSize m_size;
    KxCancelToken m_cancel;
};

} // namespace

KxFollowPass::Result KxFollowPass::Run(const QString& path, const KxSubjectRecord& record,
                                       const KxSubjectChoice& choice, const std::function<void(double)>& onProgress,
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
    Pass pass(**reader, follower, record, cancel);
    while (const std::optional<KxSubjectFollower::Range> range = follower.NextRange()) {
        const double before = follower.Progress();
        const double share = follower.ProgressAfterRange() - before;
        const KxError problem = pass.Run(*range, [&](double part) { onProgress(before + share * part); });
        if (cancel.IsCancelled()) {
            result.outcome = KxOutcome::Cancelled;
            return result;
        }
        if (problem) {
            result.message =
                Texts::tr("Cannot follow in %1: %2.").arg(QFileInfo(path).fileName(), problem->simplified());
            return result;
        }
        follower.EndRange();
    }
    result.track = follower.Track();
    result.outcome = KxOutcome::Done;
    return result;
}
