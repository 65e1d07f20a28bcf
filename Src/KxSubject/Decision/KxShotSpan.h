#pragma once

#include <KxCore/KxExport.h>

#include <cstddef>
#include <cstdint>
#include <vector>

struct KxSubjectRecord;

/// One shot of a record. Each `first` is in it, its `end` is the first one after it.
struct KxShotSpan {
    std::int64_t first = 0;
    std::int64_t end = 0;
    /// Frames outside these are blended with the neighbouring shot and do not count as evidence.
    std::int64_t clearFirst = 0;
    std::int64_t clearEnd = 0;
    /// Indices of the record's samples.
    std::size_t firstSample = 0;
    std::size_t endSample = 0;
};

/// The shots of a record, growing by frame; together they are all of its frames. They end at its boundaries, and where
/// its samples pause for more than `longestPauseFrames`: what follows hours later is another shot, and no path has to
/// be computed through the pause.
KXSUBJECT_API std::vector<KxShotSpan> KxShotSpansOf(const KxSubjectRecord& record, std::int64_t longestPauseFrames);
