#pragma once

#include <KxSubject/KxSubjectRecord.h>

#include <cstdint>
#include <vector>

/// A record with one look a second from its first frame on, at `framesPerSecond`; `looks` is what each one found.
inline KxSubjectRecord LooksEachSecond(std::int32_t framesPerSecond, const std::vector<std::vector<KxDetection>>& looks)
{
    KxSubjectRecord record;
    record.source = {1280, 720, static_cast<double>(framesPerSecond), 1000};
    std::int32_t frame = 0;
    for (const std::vector<KxDetection>& found : looks) {
        record.looks.push_back({frame, found});
        frame += framesPerSecond;
    }
    return record;
}
