#pragma once

#include <QString>

/// Time text for the player's label.
namespace KrTimeCode
{
/// The smallest unit in the text.
enum class Detail { Seconds, Frames };

/// The time of `frame` (0 or more) as "HH:MM:SS", with `Detail::Frames` "HH:MM:SS:FF"; hours may have three digits.
/// `frameRate` is in frames a second and at least 1. A fractional rate counts its frames within the whole rate: 29.97
/// counts 0 to 28.
QString ToText(int frame, float frameRate, Detail detail);
} // namespace KrTimeCode
