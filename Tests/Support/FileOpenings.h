#pragma once

#include <optional>

/// How often this program opens files whose name begins with "clip.", whichever library does it. A program that has
/// this among its sources exports its symbols, so that the libraries find its open().
namespace FileOpenings
{

int Count();
void Reset();

/// How many of them were open when a result was opened for reading, last time: to make room for its index. Empty if
/// none was since Reset().
std::optional<int> OpenWhenTheIndexWasWritten();

} // namespace FileOpenings
