#pragma once

#include <KxModel/IKxAutoReframeChoices.h>

#include <KxSubject/Choice/KxChoicePlacement.h>
#include <KxSubject/KxSubjectChoices.h>

#include <QList>

#include <vector>

/// A person's choices as clients of the service give them, and as the analysis takes them.
namespace KxChoiceRecords
{
KxSubjectChoices ToSubject(const QList<KxAutoReframeChoice>& choices);
QList<KxAutoReframeChoice> FromSubject(const KxSubjectChoices& choices);
QList<KxAutoReframeChoice> FromPlaced(const std::vector<KxPlacedChoice>& placed);
} // namespace KxChoiceRecords
