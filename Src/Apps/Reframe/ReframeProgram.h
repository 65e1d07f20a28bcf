#pragma once

#include <Apps/Reframe/ReframeOptions.h>

/// The command-line program.
namespace ReframeProgram
{
/// Processes the inputs one after the other, also after a failure, and returns the exit status. Needs a
/// QCoreApplication.
int Run(const ReframeOptions& options);
} // namespace ReframeProgram
