#pragma once

#include <KxCore/KxExport.h>

#include <QString>

#include <system_error>

class QFileDevice;

/// The reason of an operating system error as a clause to append to a message: "the disk is full". Empty for an unknown
/// error.
KXCORE_API QString KxSystemErrorText(const std::error_code& error);

/// The same; for an unknown error, what the system calls it.
KXCORE_API QString KxSystemErrorMeaning(const std::error_code& error);

/// Whether the error is a full disk or an exhausted quota.
KXCORE_API bool KxIsDiskFull(const std::error_code& error);

/// The reason why the last operation on `file` failed, in the same form; never empty. Call it right after the failure,
/// on the same thread.
KXCORE_API QString KxFileErrorText(const QFileDevice& file);
