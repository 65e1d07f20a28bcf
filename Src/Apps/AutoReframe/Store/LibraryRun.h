#pragma once

#include <QString>

#include <memory>

class QLockFile;

/// One run of the program, marked by a lock file beside the database while it lives. So another run can distinguish
/// exports of a program that is still working from those of one that was killed.
class LibraryRun
{
public:
    explicit LibraryRun(const QString& folder);
    ~LibraryRun();
    LibraryRun(const LibraryRun&) = delete;
    LibraryRun& operator=(const LibraryRun&) = delete;

    /// Unique.
    const QString& Name() const { return m_name; }

    /// Whether the run of that name still lives. Removes the lock file of one that was killed.
    static bool IsAlive(const QString& name, const QString& folder);
    /// Removes the lock files of all runs that were killed.
    static void RemoveDead(const QString& folder);

private:
    const QString m_name;
    const std::unique_ptr<QLockFile> m_lock;
};
