#pragma once

#include <KxCore/KxExport.h>

#include <QString>

namespace KxFileFilter
{
/// A group "Name(*.mp4;*.mov;)" as Qt writes it: "Name (*.mp4 *.mov)". Every file where it names no pattern.
KXWIDGETS_API QString ToQt(const QString& group);
} // namespace KxFileFilter
