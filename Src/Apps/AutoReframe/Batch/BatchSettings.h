#pragma once

#include <Apps/AutoReframe/Batch/OutputNames.h>
#include <Apps/AutoReframe/Exports/ExportItem.h>

/// A selected video. A plain record.
struct BatchVideo {
    QString path;
    /// Empty if it is not known.
    QSize resolution;
    qint64 frames = 0;
};

/// What "Reframe All…" is to make of the selected videos. A plain record.
struct BatchSettings {
    QList<QSize> aspects{QSize(9, 16)};
    int speed = 16;      ///< as in ReframePlan
    int shortSidePx = 0; ///< as in ReframePlan
    int heightPx = 0;    ///< as in ReframePlan
    QString folder;
    QString pattern = QStringLiteral("{name}-{ratio}");

    /// One export for each video and aspect ratio, in this order; those that would not change the video's shape are
    /// left out.
    QList<PlannedExport> PlanFor(const QList<BatchVideo>& videos, const OutputNames::Unique::IsTaken& isTaken) const;
    /// How many exports PlanFor() gives.
    int CountFor(const QList<BatchVideo>& videos) const;
    /// Whether one of them would be larger than its crop.
    bool EnlargesAnyOf(const QList<BatchVideo>& videos) const;

    QByteArray ToJson() const;
    /// What the text lacks is as in a default-constructed one.
    static BatchSettings FromJson(const QByteArray& text);
};
