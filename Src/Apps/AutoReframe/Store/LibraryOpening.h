#pragma once

#include <KxCore/KxResult.h>

#include <QString>

/// Makes a library's file usable: creates, checks, migrates, or sets it aside. Any thread.
namespace LibraryOpening
{
/// On success, what the person must know (empty if there is nothing); the file is then one of the current version.
/// Otherwise a message for the person. Two programs do not do this at the same time.
KxResult<QString> Prepare(const QString& filePath);
} // namespace LibraryOpening
