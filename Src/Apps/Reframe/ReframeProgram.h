#pragma once

#include <Apps/Reframe/ReframeOptions.h>

/// The command line as a whole.
namespace ReframeProgram
{
/// Does every input, one after the other, also when one fails, and returns the exit status. Needs a QCoreApplication.
int Run(const ReframeOptions& options);
} // namespace ReframeProgram
