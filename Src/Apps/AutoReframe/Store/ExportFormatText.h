#pragma once

#include <KxMedia/Write/KxOutputFormat.h>

#include <QString>

/// How an export is encoded, as the library stores it.
namespace ExportFormatText
{
QString Write(const KxOutputFormat& format);
/// What the text does not say, or says with a word of a later version, is as in a format that is constructed.
KxOutputFormat Read(const QString& text);
} // namespace ExportFormatText
