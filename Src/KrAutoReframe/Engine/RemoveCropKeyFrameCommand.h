#pragma once

#include <KrAutoReframe/Engine/KrEditSegment.h>

#include <QList>
#include <QMap>
#include <QRectF>
#include <QUndoCommand>

class KrAutoReframeHelper;

/// Deletes an edit point. Each redo takes a snapshot of the helper's edits first, and undo puts it back.
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

    QList<KrEditSegment> m_savedSegments;
    QMap<uint, QRectF> m_savedEditPoints;
    uint m_from = 0;
    uint m_to = 0;
    uint m_frame;
    KrAutoReframeHelper* m_helper;
};
