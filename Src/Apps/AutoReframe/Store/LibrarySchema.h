#pragma once

#include <KxCore/KxResult.h>

class LibraryConnection;

/// The tables of the library's database. Its version is stored in the file (PRAGMA user_version); 0 is a new file.
namespace LibrarySchema
{
/// The version that this program reads and writes.
constexpr int Version = 8;

/// Brings the tables of version `from` to Version. Call it in a transaction.
KxError Migrate(LibraryConnection& connection, int from);
} // namespace LibrarySchema
