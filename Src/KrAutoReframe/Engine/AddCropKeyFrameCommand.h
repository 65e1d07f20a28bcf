#pragma once

#include <KrAutoReframe/Engine/KrEditSegment.h>

#include <QList>
#include <QMap>
#include <QRectF>
#include <QUndoCommand>

class KrAutoReframeHelper;

/// Sets an edit point: the user's rectangle at one frame. Each redo takes a snapshot of the helper's edits first, and
/// undo puts it back, because two edits may have grown into one segment that cannot be taken apart again by rule.
///
/// Owned by the helper's undo stack. User-interface thread.
class AddCropKeyFrameCommand : public QUndoCommand
{
public:
    /// `helper` outlives the command. `frame` lies inside the clip.
    AddCropKeyFrameCommand(uint frame, const QRectF& rect, KrAutoReframeHelper* helper);
    ~AddCropKeyFrameCommand() override;

    void undo() override;
    void redo() override;

private:
    Q_DISABLE_COPY_MOVE(AddCropKeyFrameCommand)

    QList<KrEditSegment> m_savedSegments;
    QMap<uint, QRectF> m_savedEditPoints;
    uint m_from = 0;
    uint m_to = 0;
    uint m_frame;
    QRectF m_rect;
    KrAutoReframeHelper* m_helper;
};
