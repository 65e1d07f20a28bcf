#pragma once

#include <Apps/CropTracks/CropTrackFile.h>
#include <KxSubject/KxSubjectFindings.h>

/// The findings of an analysis over the time of a video, as inline SVG with one time axis. It contains no text from a
/// file. Pure.
class AnalysisPlot
{
public:
    /// Both are borrowed. `track` holds at least one crop.
    AnalysisPlot(const CropTrack& track, const KxSubjectFindings& findings);

    /// The evidence as a heat map, with shot boundaries, the centre with the most evidence, and the crop's centre and
    /// edges.
    QString Path() const;
    /// The strength of each signal, as stacked areas.
    QString Signals() const;

    /// Names of the two ends of the free axis.
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
