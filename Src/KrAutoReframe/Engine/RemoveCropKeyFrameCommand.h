#pragma once

#include <KrAutoReframe/Engine/KrSegmentChange.h>

#include <QMap>
#include <QRectF>
#include <QUndoCommand>

class KrAutoReframeHelper;

/// Deletes an edit point. Each redo saves what it replaces in the helper's edits, and undo puts that back.
///
/// Owned by the helper's undo stack. User-interface thread.
class RemoveCropKeyFrameCommand : public QUndoCommand
{
public:
    /// `helper` outlives the command.
    RemoveCropKeyFrameCommand(uint frame, KrAutoReframeHelper* helper);
    ~RemoveCropKeyFrameCommand() override;

    void undo() override;
    void redo() override;

private:
    Q_DISABLE_COPY_MOVE(RemoveCropKeyFrameCommand)

    KrSegmentChange m_savedSegments;
    /// The edit point at m_frame before the last redo, if there was one.
    QMap<uint, QRectF> m_savedEditPoints;
    uint m_from = 0;
    uint m_to = 0;
    uint m_frame;
    KrAutoReframeHelper* m_helper;
};
