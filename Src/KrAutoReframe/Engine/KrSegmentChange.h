#pragma once

#include <KrAutoReframe/Engine/KrEditSegment.h>

#include <QList>

/// The segments that one edit replaced in the list. Unchanged segments are not stored, so an undo stack of changes
/// stays small even if there are many segments. A plain record; its operations are pure.
struct KrSegmentChange {
    /// Index of the first replaced segment.
    int first = 0;
    /// Number of segments that took the place of the replaced ones.
    int newCount = 0;
    QList<KrEditSegment> replaced;

    /// The change that leads from `before` to `after`.
    static KrSegmentChange Between(const QList<KrEditSegment>& before, const QList<KrEditSegment>& after);
    /// Takes the change back; `segments` is the list that it led to.
    void Revert(QList<KrEditSegment>* segments) const;
};
