#include <KxRender/KxPictureFeed.h>

#include <KxCore/KxCropWindow.h>
#include <KxMedia/Picture/KxDrawnFrame.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxPictureFeed)
};

// Decoding runs in bursts; a few pictures in reserve keep the encoder busy.
constexpr qint64 PicturesAhead = 6;
// The queue of large pictures is shorter, so that it stays below this size.
constexpr qint64 BytesAhead = qint64{96} * 1024 * 1024;

size_t QueueLength(const KxPictureFeed::Target& target)
{
    const int sampleBytes = target.highRange == KxHighRange::Kept ? 2 : 1;
    const qint64 pictureBytes =
        std::max<qint64>(1, qint64{target.size.width()} * target.size.height() * sampleBytes * 3 / 2);
    return static_cast<size_t>(std::clamp<qint64>(BytesAhead / pictureBytes, 1, PicturesAhead));
}

// Many intact files claim a few frames more than they contain. For up to this time the last picture is held instead.
constexpr double LongestHoldS = 0.25;

} // namespace

KxPictureFeed::KxPictureFeed(KxVideoReader& reader, const KxRenderSource& source, const KxOutputGrid& grid,
                             const Target& target, const KxCancelToken& cancel)
    : m_reader(reader)
    , m_source(source)
    , m_grid(grid)
    , m_size(target.size)
    , m_frames(target.frames)
    , m_cancel(cancel)
    , m_pictures(QueueLength(target))
    , m_cutter(target.size, target.highRange)
    , m_fittedCutter(target.size, target.highRange)
    , m_thread([this] { Work(); })
{
}

KxPictureFeed::~KxPictureFeed()
{
    m_pictures.Close();
}

std::optional<KxVideoFrame> KxPictureFeed::Next()
{
    return m_pictures.Pop();
}

KxError KxPictureFeed::Failure()
{
    m_thread.Join();
    return m_failure;
}

bool KxPictureFeed::EndedEarly()
{
    m_thread.Join();
    return m_endedEarly;
}

void KxPictureFeed::Work()
{
    if (const KxError reason = KxCallGuarded([this] { DecodeAndCut(); })) {
        m_failure = Texts::tr("Cannot render %1: %2.").arg(m_source.Name(), *reason);
    }
    m_pictures.Close();
}

void KxPictureFeed::DecodeAndCut()
{
    // A part has the colours that the whole video has.
    if (m_frames.first > 0 && MakeFrame(m_grid.SourceFrame(0)).IsNull()) {
        return;
    }
    KxVideoFrame cut;
    qint64 cutFrame = -1;
    for (qint64 frame = m_frames.first; frame < m_frames.end && !m_cancel.IsCancelled(); ++frame) {
        const qint64 sourceFrame = m_grid.SourceFrame(frame);
        if (sourceFrame != cutFrame) {
            cut = MakeFrame(sourceFrame);
            if (cut.IsNull()) {
                return;
            }
            cutFrame = sourceFrame;
        }
        if (!m_pictures.Push(cut)) {
            return;
        }
    }
}

KxVideoFrame KxPictureFeed::MakeFrame(qint64 sourceFrame)
{
    KxVideoFrame picture;
    if (!Read(sourceFrame, picture)) {
        return {};
    }
    const KxResult<KxVideoFrame> made = Make(picture, sourceFrame);
    if (!made) {
        m_failure = Texts::tr("Cannot render %1 at frame %2. %3")
                        .arg(m_source.Name(), QString::number(sourceFrame), made.Message());
        return {};
    }
    return m_colours.Match(*made);
}

KxResult<KxVideoFrame> KxPictureFeed::Make(const KxVideoFrame& picture, qint64 frame)
{
    if (!m_source.overlay) {
        const QRectF crop = m_source.CropAt(frame, picture.DisplayedSize(), m_size);
        const bool isFitted = m_source.otherShapes == KxRenderSource::OtherShapes::Fitted &&
                              !KxCropWindow::HasShapeOf(m_size, crop, picture.DisplayedSize());
        return isFitted ? m_fittedCutter.Cut(picture, crop) : m_cutter.Cut(picture, crop);
    }
    QImage image = m_scaler.Scale(picture, m_size, QImage::Format_RGB32);
    if (!image.isNull()) {
        m_source.overlay(image, frame);
    }
    const KxVideoFrame drawn = image.isNull() ? KxVideoFrame() : KxDrawnFrame(image, picture.Index());
    if (drawn.IsNull()) {
        return KxResult<KxVideoFrame>::Failure(Texts::tr("Memory ran out."));
    }
    return m_cutter.Cut(drawn, QRectF(0.0, 0.0, 1.0, 1.0));
}

bool KxPictureFeed::Read(qint64 frame, KxVideoFrame& picture)
{
    switch (m_reader.Read(frame, picture)) {
    case KxReadStatus::Delivered:
        break;
    case KxReadStatus::Cancelled:
        return false;
    case KxReadStatus::End:
    case KxReadStatus::Failed:
        m_endedEarly = true;
        return false;
    }
    if (m_reader.EndedEarly() && frame >= m_reader.DecodableFrames()) {
        const KxVideoFacts& video = *m_reader.Facts().video;
        const auto missing = static_cast<double>(video.frameCount - m_reader.DecodableFrames());
        m_endedEarly = missing > LongestHoldS * video.frameRate.ToDouble();
    }
    return !m_endedEarly;
}
