#pragma once

#include <KxSubject/KxSubjectFindings.h>

#include <QRgb>
#include <QString>

/// Looks up the findings of an analysis and names them for people. Pure; any thread.
namespace FoundSignals
{
QString Name(KxSignal signal);
/// Its name and, in a few words, what it looks for.
QString Explanation(KxSignal signal);
/// For a dark background.
QRgb Colour(KxSignal signal);
constexpr std::array<KxSignal, KxSignalCount> All{KxSignal::Detections, KxSignal::Faces, KxSignal::Movers,
                                                  KxSignal::Motion, KxSignal::Saliency};

/// The sample that applies to `frame`: the last one before it in the same shot, otherwise the first one of that shot.
/// Null if the shot has none.
const KxSubjectFindings::Sample* SampleAt(const KxSubjectFindings& findings, qint64 frame);
/// Counted from 0; 0 if there are no shots.
std::size_t ShotAt(const KxSubjectFindings& findings, qint64 frame);
/// The largest sum of all signals in a sample; positive.
float StrongestSum(const KxSubjectFindings& findings);
/// The share of the dominant signal in all signals of a shot, 0 to 1; 0 without any.
double DominantShare(const KxSubjectFindings& findings, const KxSubjectFindings::Shot& shot);
/// Why a person should look at a shot; empty if there is no reason. A fifth of the shots of ordinary videos is
/// doubtful.
QString Doubt(const KxSubjectFindings::Shot& shot);
/// What the crop does about people who talk, in words; empty if there are none, or nothing is known.
QString Speech(const KxSubjectFindings::Shot& shot);
/// "62 %".
QString Confidence(const KxSubjectFindings::Shot& shot);
} // namespace FoundSignals
