#pragma once

#include <KxCore/KxExport.h>

#include <QString>

/// The host's configuration and properties of the machine. User-interface thread.
class KXCORE_API KxConfig
{
public:
    static KxConfig& Instance();

    /// Whether this machine can run the algorithm with this number; 4 is the auto-reframe analysis.
    bool algorithmEnabled(int algorithm) const;

    /// The folder of the last import; `fallback` before the first import and if that folder is gone.
    QString getDefaultImportDir(const QString& fallback) const;
    void setDefaultImportDir(const QString& folder);

    /// Full path of the configuration file (INI); it need not exist.
    static QString GetKorviConfigFile();

    /// The default folder for exports.
    static QString GetKorviOutputDirectory();

    /// Free space, in whole megabytes, of the file system of `path`: a drive ("C:") or a folder; for a folder that does
    /// not exist, of its nearest existing parent. -1 if unknown. `unused` is null.
    static qint64 GetDiskFreeSpaceSize(const void* unused, const QString& path);

private:
    KxConfig() = default;
};
