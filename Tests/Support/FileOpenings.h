#pragma once

/// How often this program opens files whose name begins with "clip.", whichever library does it. A program that has
/// this among its sources exports its symbols, so that the libraries find its open().
namespace FileOpenings
{

int Count();
void Reset();

} // namespace FileOpenings
