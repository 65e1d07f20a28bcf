#include <KxModel/KxJoinedPictures.h>

#include <KxCore/KxSystemError.h>
#include <KxModel/KxPackedPicture.h>
#include <KxModel/KxPicturesStream.h>
#include <KxModel/KxVideoSampling.h>

#include <QCoreApplication>
#include <QFile>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(KxJoinedPictures)
};

} // namespace

/// One file, picture by picture.
class KxJoinedPictures::Part
{
public:
    Part(const QString& partPath, const KxVideoFacts& video)
        : path(partPath)
        , shots(KxVideoSampling::ShotSize())
        , wholes(KxVideoSampling::WholeSize(video))
        , m_file(partPath)
        , m_stream(&m_file)
    {
        if (m_file.open(QIODevice::ReadOnly)) {
            header = KxPicturesStream::ReadHeader(m_stream);
        }
    }

    /// Nothing if the file is damaged.
    std::optional<KxPicturesStream::Record> Next()
    {
        std::optional<KxPicturesStream::Record> record = KxPicturesStream::ReadRecord(m_stream);
        const bool isUsable =
            record && (!record->frame || (*record->frame < header->frames.end && shots.Unpack(record->shot) &&
                                          wholes.Unpack(record->whole)));
        return isUsable ? record : std::nullopt;
    }

    const QString path;
    std::optional<KxPicturesStream::Header> header;
    KxPictureUnpacker shots;
    KxPictureUnpacker wholes;

private:
    QFile m_file;
    QDataStream m_stream;
};

KxJoinedPictures::KxJoinedPictures(QStringList parts, const KxVideoFacts& video)
    : m_parts(std::move(parts))
    , m_video(video)
{
}

KxJoinedPictures::~KxJoinedPictures() = default;

std::optional<qint64> KxJoinedPictures::Fail(const QString& message)
{
    m_problem = message;
    return std::nullopt;
}

bool KxJoinedPictures::Open()
{
    m_part = std::make_unique<Part>(m_parts.at(m_nextPart++), m_video);
    if (!m_part->header || !m_part->header->IsOf(m_video)) {
        Fail(Texts::tr("%1 does not hold pictures of a part of this video").arg(m_part->path));
        return false;
    }
    const KxFrameRange& frames = m_part->header->frames;
    ForgetBefore(frames.first - KxPicturesStream::FramesBefore(frames, m_video.frameRate));
    m_compared = 0;
    return true;
}

void KxJoinedPictures::ForgetBefore(qint64 frame)
{
    while (!m_last.empty() && m_last.front().frame < frame) {
        m_last.pop_front();
    }
}

bool KxJoinedPictures::IsAsBefore(qint64 frame)
{
    if (m_compared >= m_last.size()) {
        return false;
    }
    const Seen& seen = m_last[m_compared++];
    return seen.frame == frame && seen.shot == Shot() && seen.whole == Whole();
}

bool KxJoinedPictures::IsContinued(const std::optional<qint64>& frame)
{
    // The first picture of its own, or its end: the last of those before has been compared.
    const bool isBefore = frame && *frame < m_part->header->frames.first;
    const bool isAsBefore = isBefore ? IsAsBefore(*frame) : m_isInside || m_compared == m_last.size();
    m_isInside = !isBefore && frame;
    return isAsBefore;
}

std::optional<qint64> KxJoinedPictures::Next()
{
    for (;;) {
        if (m_part == nullptr && (m_nextPart == m_parts.size() || !Open())) {
            return std::nullopt;
        }
        const std::optional<KxPicturesStream::Record> record = m_part->Next();
        if (!record) {
            return Fail(Texts::tr("%1 is damaged").arg(m_part->path));
        }
        if (!IsContinued(record->frame)) {
            return Fail(Texts::tr("%1 begins with other pictures than the part before ends with; analyse the video as "
                                  "a whole")
                            .arg(m_part->path));
        }
        if (!record->frame) {
            m_endedEarly = record->endedEarly;
            m_part.reset();
        } else if (m_isInside) {
            const qint64 before = KxPicturesStream::FramesBefore({*record->frame, 0}, m_video.frameRate);
            ForgetBefore(*record->frame - before);
            m_last.push_back({*record->frame, Shot(), Whole()});
            return record->frame;
        }
    }
}

QImage KxJoinedPictures::Shot()
{
    return m_part->shots.Picture();
}

QImage KxJoinedPictures::Whole()
{
    return m_part->wholes.Picture();
}
