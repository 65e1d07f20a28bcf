#pragma once

#include <KrAutoReframe/Engine/KrSegmentChange.h>

#include <QMap>
#include <QRectF>
#include <QUndoCommand>

class KrAutoReframeHelper;

/// Sets an edit point: the user's rectangle at one frame. Each redo saves what it replaces in the helper's edits, and
/// undo puts that back: two edits that were merged into one segment cannot be separated again by rule.
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

    KrSegmentChange m_savedSegments;
    /// The edit point at m_frame before the last redo, if there was one.
    QMap<uint, QRectF> m_savedEditPoints;
    uint m_from = 0;
    uint m_to = 0;
    uint m_frame;
    QRectF m_rect;
    KrAutoReframeHelper* m_helper;
};
