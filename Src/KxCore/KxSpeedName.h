#pragma once

#include <KxCore/KxExport.h>

#include <QString>

#include <optional>

/// What options, crop tracks and file names call the speed of an analysis: auto, fast or slow. Its number is that of
/// IKxAutoReframeParam.
namespace KxSpeedName
{
/// "auto" for a number that has no name.
KXCORE_API QString Of(int speed);
/// Nothing if there is no such name.
KXCORE_API std::optional<int> Find(const QString& name);
} // namespace KxSpeedName
