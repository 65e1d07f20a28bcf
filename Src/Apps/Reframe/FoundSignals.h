#pragma once

#include <KxSubject/KxSubjectFindings.h>

#include <QRgb>
#include <QString>

/// What an analysis found, looked up and named for people. Pure; any thread.
namespace FoundSignals
{
QString Name(KxSignal signal);
/// What it looks for, in a few words after its name.
QString Explanation(KxSignal signal);
/// For a dark ground.
QRgb Colour(KxSignal signal);
constexpr std::array<KxSignal, KxSignalCount> all{KxSignal::Faces, KxSignal::Movers, KxSignal::Motion,
                                                  KxSignal::Saliency};

/// The sample that holds at `frame`: the one before it, or the first, of the same shot. Null where the shot has none.
const KxSubjectFindings::Sample* SampleAt(const KxSubjectFindings& findings, qint64 frame);
/// Counted from 0; 0 where there are none.
std::size_t ShotAt(const KxSubjectFindings& findings, qint64 frame);
/// The most that all signals together say anywhere; positive.
float LoudestSum(const KxSubjectFindings& findings);
/// The part of all that is said in a shot that its carrier says, 0 to 1; 0 where nothing is said.
double CarrierShare(const KxSubjectFindings& findings, const KxSubjectFindings::Shot& shot);
} // namespace FoundSignals
