#pragma once

#include <KxCore/KxExport.h>

#include <QString>

#include <functional>

/// The host's configuration and what it knows of the machine. User-interface thread.
class KXCORE_API KxConfig
{
public:
    static KxConfig& Instance();

    /// Whether this machine can run the algorithm with this number; 4 is the auto-reframe analysis.
    bool algorithmEnabled(int algorithm) const;

    /// The folder from which the person imported last; `fallback` before the first import and when that folder is gone.
    QString getDefaultImportDir(const QString& fallback) const;
    void setDefaultImportDir(const QString& folder);

    /// Full path of the configuration file (INI); it need not exist.
    static QString GetKorviConfigFile();

    /// Where exports go unless the person chose another folder.
    static QString GetKorviOutputDirectory();

    /// Free space, in whole megabytes, of the file system that holds `path`: a drive ("C:") or a folder, which need not
    /// exist yet (then its nearest existing parent counts). -1 when it cannot be told. `unused` is null.
    static qint64 GetDiskFreeSpaceSize(const void* unused, const QString& path);

    /// Answers in the machine's place; an empty one leaves its question to the machine.
    struct MachineFacts {
        std::function<bool(int algorithm)> algorithmEnabled;
        std::function<qint64(const QString& path)> freeSpaceMb;
    };
    /// From now on `facts` answer; default-made ones let the machine answer again. For programs that run without a
    /// person, tests among them.
    static void SetMachineFacts(MachineFacts facts);

private:
    KxConfig() = default;
};
