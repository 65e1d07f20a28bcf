#pragma once

/// Exit statuses of the program.
namespace ReframeExit
{
constexpr int Done = 0;
constexpr int SomeFailed = 1; ///< the other inputs are done
constexpr int WrongUse = 2;
constexpr int Interrupted = 130;
constexpr int Terminated = 143; ///< by SIGTERM
} // namespace ReframeExit
