#pragma once

#include <KxCore/KxExport.h>

#include <QString>

namespace KxFileFilter
{
/// Converts a group "Name(*.mp4;*.mov;)" to Qt's form "Name (*.mp4 *.mov)". Without a pattern, every file matches.
KXWIDGETS_API QString ToQt(const QString& group);
} // namespace KxFileFilter
