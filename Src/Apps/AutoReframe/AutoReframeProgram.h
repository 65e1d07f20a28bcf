#pragma once

#include <Apps/AutoReframe/AutoReframeOptions.h>

class QApplication;

namespace AutoReframeProgram
{
/// Shows the window and returns the exit status once it was closed; 130 when the terminal interrupted the program.
/// With the environment variable KR_END_WHEN_PAINTED the process ends as soon as the window is painted, for
/// measurements of how long that takes.
int Run(QApplication& application, const AutoReframeOptions& options);
} // namespace AutoReframeProgram
