#pragma once

#include <Apps/AutoReframe/AutoReframeOptions.h>

class QApplication;

namespace AutoReframeProgram
{
/// Shows the window and returns the exit status once it was closed; 130 when the terminal interrupted the program.
int Run(QApplication& application, const AutoReframeOptions& options);
} // namespace AutoReframeProgram
