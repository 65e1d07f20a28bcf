#pragma once

#include <Apps/Reframe/CropTrackFile.h>
#include <KxSubject/KxSubjectFindings.h>

/// What an analysis found over a video's time, as inline SVG of one time axis. No text in it comes from a file. Pure.
class AnalysisPlot
{
public:
    /// Both are borrowed. `track` holds at least one crop.
    AnalysisPlot(const CropTrack& track, const KxSubjectFindings& findings);

    /// The evidence as a heat picture, shot boundaries, the place that the evidence asks for, and the crop's edges and
    /// middle.
    QString Path() const;
    /// How much each signal says for the place, one upon the other.
    QString Signals() const;

    /// Of the free axis' start and end.
    QString StartName() const;
    QString EndName() const;

private:
    double X(double frame) const;
    double Y(double place) const;
    qint64 FrameOf(int column, int columns) const;
    QString Heat() const;
    QString ShotLines(double height, bool numbered) const;
    QString WantedLine() const;
    QString CropLines() const;
    QString TimeAxis(double top) const;
    std::pair<double, double> CropEnds(qint64 frame) const;

    const CropTrack& m_track;
    const KxSubjectFindings& m_findings;
    const qint64 m_frames;
};
