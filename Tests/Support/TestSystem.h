#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

/// What tests need of the operating system; each platform has its own implementation.
namespace TestSystem
{
/// Makes a named pipe. False where the system has none in folders.
bool MakeNamedPipe(const QString& path);

/// A file name of signs that mark-up, messages and templates use, as far as the names of files can have them.
QString HostileName();

/// Whether LANGUAGE in a program's environment is the language of the system to it.
bool TakesLanguageFromEnvironment();

/// Whether a file that is open can be removed; otherwise the attempt fails.
bool RemovesOpenFiles();

/// The largest amount of memory that this process has used; since ResetPeakMemory(), where that returns true.
qint64 PeakMemoryBytes();
bool ResetPeakMemory();

/// How many threads this process has.
int Threads();
} // namespace TestSystem
