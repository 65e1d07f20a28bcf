#pragma once

#include <KxCore/KxResult.h>
#include <KxModel/KxAnalysisPictures.h>

#include <QStringList>

#include <deque>
#include <memory>

/// The pictures of a whole video from the files of its parts (KxPicturesFile).
class KxJoinedPictures final : public KxAnalysisPictures
{
public:
    /// `parts` are in the order of their frames and complete.
    KxJoinedPictures(QStringList parts, const KxVideoFacts& video);
    ~KxJoinedPictures() override;

    std::optional<qint64> Next() override;
    QImage Shot() override;
    QImage Whole() override;

    /// After the last picture: why it is not the end of the video.
    const KxError& Problem() const { return m_problem; }
    /// The video could not be decoded to its end.
    bool EndedEarly() const { return m_endedEarly; }

private:
    class Part;
    struct Seen {
        qint64 frame;
        QImage shot;
        QImage whole;
    };
    bool Open();
    void ForgetBefore(qint64 frame);
    /// Whether the current picture of the part is the next one of those that the part before ends with.
    bool IsAsBefore(qint64 frame);
    /// The same for whatever comes next in the part; without a frame, for its end.
    bool IsContinued(const std::optional<qint64>& frame);
    std::optional<qint64> Fail(const QString& message);

    const QStringList m_parts;
    const KxVideoFacts& m_video;
    int m_nextPart = 0;
    std::unique_ptr<Part> m_part;
    bool m_isInside = false;    ///< the part's own frames have begun
    std::deque<Seen> m_last;    ///< the pictures of the last half second
    std::size_t m_compared = 0; ///< of those, with what the part has from before its frames
    KxError m_problem;
    bool m_endedEarly = false;
};
