#pragma once

#include <KxMedia/Read/KxVideoSource.h>

#include <functional>
#include <optional>

/// Finds the picture of any frame of the grid:
///
/// 1. The last picture found, or the one after it, is still the answer: little or nothing is decoded.
/// 2. The frame is ahead, with no key frame well before it: decoding continues.
/// 3. Otherwise it seeks. If the first picture after the seek is later than the frame, the seek is repeated from
/// farther back, finally from the start of the file. Far from the frame, non-reference pictures are skipped. If one of
/// them turns out to be the answer (before a gap in a stream of variable rate), decoding is repeated without skipping.
///
/// One thread at a time.
class KxExactReader
{
public:
    explicit KxExactReader(std::unique_ptr<KxVideoSource> source)
        : m_source(std::move(source))
    {
    }

    const KxVideoSource& Source() const { return *m_source; }
    KxReadStatus Read(qint64 frame, KxVideoFrame& picture);
    /// See KxVideoReader::GiveUpWhen().
    void GiveUpWhen(std::function<bool()> isUnwanted) { m_isUnwanted = std::move(isUnwanted); }
    /// The number of decodable frames if the stream ended early; otherwise empty.
    const std::optional<qint64>& DecodedEnd() const { return m_decodedEnd; }

private:
    enum class Way { Continue, Seek };
    enum class SkipPolicy { DecodeAll, SkipNonReference };

    Way ChooseWay(qint64 frame);
    KxReadStatus GoTo(qint64 frame, SkipPolicy policy);
    KxReadStatus GoFromFartherBack(qint64 frame);
    KxReadStatus Land(qint64 frame);
    void Forget();
    KxReadStatus Restart();
    KxReadStatus DecodeUpTo(qint64 frame, SkipPolicy policy);
    KxReadStatus Advance();
    void NoteEnd();
    /// A picture after the one found was skipped. Individual skipped pictures are not recorded, so any of them may be
    /// the answer.
    bool MayHaveLeftOutTheAnswer() const;
    bool LacksTheEnd(qint64 frame) const;

    std::unique_ptr<KxVideoSource> m_source;
    /// The last picture before the one decoded last, and that one.
    KxVideoFrame m_current;
    KxVideoFrame m_ahead;
    bool m_isAtEnd = false;
    bool m_isAtStart = true;
    /// Index of the first picture after the last seek; empty if decoding began at the start.
    std::optional<qint64> m_landedIndex;
    std::optional<qint64> m_decodedEnd;
    std::function<bool()> m_isUnwanted;
};
