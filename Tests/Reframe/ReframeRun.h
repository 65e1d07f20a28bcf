#pragma once

#include <Tests/Support/ProgramRun.h>

/// One complete run of the program `reframe`.
struct ReframeRun : ProgramRun {
    explicit ReframeRun(const QStringList& arguments)
        : ProgramRun(QStringLiteral(REFRAME_PROGRAM), arguments)
    {
    }
};
