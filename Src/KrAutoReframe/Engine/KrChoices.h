#pragma once

#include <KxModel/IKxAutoReframeChoices.h>

#include <QList>

/// How a new choice changes the list of a person's choices. Pure.
namespace KrChoices
{
using Choice = KxAutoReframeChoice;

/// `choices` with `added`, which is for one shot:
/// 1. a Follow joins the seeds of a Follow of the same shot; a seed at the same time replaces the earlier one;
/// 2. any other kind but Avoid replaces what was chosen for the same shot, Avoid included;
/// 3. an Avoid leaves it in force;
/// 4. one whose pictures are not in the video stays as it is;
/// 5. an Automatic only takes back: it remains in the list only where a longer choice lies under it.
QList<Choice> With(const QList<Choice>& choices, const Choice& added);

/// The choice that applies at a time, not counting Avoid and those whose pictures are not in the video; null if the
/// analysis decides there. Valid as long as the list.
const Choice* At(const QList<Choice>& choices, double seconds);
} // namespace KrChoices
