#pragma once

#include <KxMedia/Read/KxVideoSource.h>

#include <functional>
#include <optional>

/// Finds the picture of any frame of the grid.
///
/// 1. The picture that was found last still shows, or the one decoded after it does: nothing or little is decoded.
/// 2. The frame lies ahead and no key frame lies well between: decoding goes on.
/// 3. Otherwise a seek. It counts only when the first picture after it comes at or before the frame; otherwise it is
/// repeated
///    from farther back, in the end from the start of the file.
/// Far before the frame, pictures that no other picture needs are left out; where it turns out that one of them would
/// have been the answer (before a gap in a stream of variable rate), the way is gone again without.
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
    /// The number of frames that could be decoded, where the stream ended early; nothing otherwise.
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
    /// A picture after the one that was found was left out. Which ones were is not kept, so each of them may show at
    /// the frame: also one that is followed by others that were left out, where decoding was given up on its way.
    bool MayHaveLeftOutTheAnswer() const;
    bool LacksTheEnd(qint64 frame) const;

    std::unique_ptr<KxVideoSource> m_source;
    /// The last picture at or before the place where decoding stands, and the one after it.
    KxVideoFrame m_current;
    KxVideoFrame m_ahead;
    bool m_isAtEnd = false;
    bool m_isAtStart = true;
    /// Of the first picture after the last seek; nothing when decoding began at the start.
    std::optional<qint64> m_landedIndex;
    std::optional<qint64> m_decodedEnd;
    std::function<bool()> m_isUnwanted;
};
