#pragma once

#include <KxCore/KxExport.h>

#include <QString>

#include <system_error>

class QFileDevice;

/// What an error of the operating system means to a person, as a clause to append to a message: "the disk is full".
/// Empty where there are no such words for it.
KXCORE_API QString KxSystemErrorText(const std::error_code& error);

/// Whether the error says that there is no room: a full disk or a used-up quota.
KXCORE_API bool KxIsDiskFull(const std::error_code& error);

/// Why what was just done with `file` failed, in the same form; never empty. Right after the failure, on its thread.
KXCORE_API QString KxFileErrorText(const QFileDevice& file);
