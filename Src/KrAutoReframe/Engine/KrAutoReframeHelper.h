#pragma once

#include <KrAutoReframe/Engine/KrEditSegment.h>
#include <KrAutoReframe/Engine/KrKeyFrameLists.h>

#include <KxModel/IKxAutoReframeResult.h>
#include <KxModel/KxCropPanZoomKeyFrameParam.h>

#include <QFutureWatcher>
#include <QList>
#include <QMap>
#include <QMutex>
#include <QObject>
#include <QRectF>

#include <optional>
#include <utility>

class IKxClip;
class IKxCropPanZoomKeyFrameHelper;
class IKxTimeline;
class QUndoStack;

/// The state that follows an analysis: a working copy of the source timeline, the keyframes in its first clip, the
/// user's edit points with their undo stack, and the rectangle of each frame that the player shows.
///
/// User-interface thread. The keyframes of a whole analysis are made by one task at a time on the global thread pool.
/// The worker never waits for the mutex. Operations that need the task's output wait for its end (a fraction of a
/// second); a new source and the destructor cancel the task first. The end of a task is delivered through the event
/// loop; until then the task can still be cancelled. If results had been applied before, a cancelled task leaves those
/// results, their keyframes and the edits unchanged.
///
/// A frame number with all bits set means no frame.
class KrAutoReframeHelper : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrAutoReframeHelper)

public:
    /// First and last frame of what an edit changed; both NoFrame when it changed nothing.
    using FrameRange = std::pair<uint, uint>;

    static constexpr uint NoFrame = 0xFFFFFFFFu;

    KrAutoReframeHelper();
    ~KrAutoReframeHelper() override;

    /// Prepares for a new source, which the host keeps owning. Edits and results of the previous one are dropped; a
    /// task whose end was not delivered yet is stopped and reports no end. Null changes nothing.
    void SetTimeline(IKxTimeline* timeline);
    IKxTimeline* GetSourceTimeline() const;
    /// The working copy that carries the keyframes; null until a source with a clip was set. Owned by the helper and
    /// replaced by the next source.
    IKxTimeline* GetWorkTimeline() const;
    /// Frame count of the source's first clip.
    int GetDuration() const;

    /// Replaces the working copy alone by a copy of `timeline`; edits, results and the undo stack stay. True when the
    /// copy has a clip. A copy without clips is not released: it stays the host's.
    bool ResetWorkTimeline(IKxTimeline* timeline);

    /// Starts the keyframe task on the first `GetDuration()` of `results`, frame 0 first. False when there are fewer;
    /// true without a new start while a task runs. Ends with `sigApplyFinished`.
    bool ApplyResults(const QList<IKxAutoReframeResult>& results);
    /// Cancels the keyframe task if its end was not delivered yet; `sigApplyFinished` still follows. If this was the
    /// first application for the source, what the task has stored stays.
    void Cancel();
    /// Like `Cancel`, but returns when the task has ended, and `sigApplyFinished` does not follow.
    void AbandonTask();

    /// Sets an edit point, undoably; a frame after the last one counts as the last one. False when there are no frames.
    bool AddKeyFrame(const uint& frame, const QRectF& rect);
    /// Deletes an edit point, undoably; the frame counts as in `AddKeyFrame`. False when there is none.
    bool RemoveKeyFrame(const uint& frame);
    /// False when there is nothing to undo.
    bool Undo();
    /// False when there is nothing to redo.
    bool Redo();

    /// Whether edit points and undo stack survive the next applications of results; initially they do not. An edit
    /// point that was placed in another aspect ratio then keeps its centre, as far as the crop stays inside the
    /// picture, and has the size of the results; its own rectangle is kept for a return to its aspect ratio.
    void SetEditsSurvive(bool survive);
    /// Sets the edit points of a source that has none, without a step to undo. Those after the last frame are dropped.
    void RestoreEditPoints(const QMap<uint, QRectF>& points);
    /// Sets these edit points in place of all others, without a step to undo; the history ends.
    void ReplaceEditPoints(const QMap<uint, QRectF>& points);
    /// As the person placed them, by frame.
    const QMap<uint, QRectF>& GetEditPoints() const;
    /// The history of the edits. Its owner's other decisions may be part of it.
    QUndoStack& GetUndoStack() const;

    /// Frames of the edit points, ascending.
    QList<uint> GetEditPointFrames() const;
    bool IsEditFrame(const uint& frame) const;
    /// The first edit point after `frame`, otherwise NoFrame.
    uint GetNextKeyFrame(const uint& frame) const;
    /// The last edit point before `frame`, otherwise NoFrame.
    uint GetPrevKeyFrame(const uint& frame) const;

    /// The rectangles that the analysis found, one a frame.
    QList<IKxAutoReframeResult> GetResults() const;
    /// The rectangles including the edits, one a frame. Do not keep a copy: the next edit would have to copy the whole
    /// list before it writes to it.
    const QList<IKxAutoReframeResult>& GetDisplayResults() const;
    /// Displays these rectangles, each at its frame, in place of the results, except where an edit applies. Results,
    /// keyframes and edits stay. Nothing while results are applied.
    void ShowPreliminary(const QList<IKxAutoReframeResult>& rectangles);
    /// Displays the results with the edits, as before ShowPreliminary().
    void ShowResultsAgain();

    /// The edit of AddCropKeyFrameCommand: `rect` affects one second of frames on both sides of `frame`, merged with
    /// the segments that it meets. After a segment was merged, the one that follows it is skipped in this edit; undo
    /// restores the segments in any case.
    FrameRange DoAddKeyFrame(const uint& frame, const QRectF& rect);
    /// The edit of RemoveCropKeyFrameCommand: removes the edit point from the first segment that has it.
    FrameRange DoRemoveKeyFrame(const uint& frame);
    /// Rebuilds the keyframes of a range after the edits were restored. Each segment inside it is rebuilt from `from`
    /// on, in order, and the rest after the last one from the results; so a later segment overwrites an earlier one
    /// with results.
    void RestoreRange(uint from, uint to);

Q_SIGNALS:
    /// Below 1; emitted on the worker's thread.
    void sigApplyProgress(double progress);
    /// The keyframe task has ended; false when it was cancelled.
    void sigApplyFinished(bool success);
    /// A new source was set.
    void sigOpenTimelineFinished();
    void sigCanUndoRedo(bool canUndo, bool canRedo);

private:
    using KeyFrameMap = KrKeyFrameLists::KeyFrameMap;

    struct AppliedResults {
        QList<IKxAutoReframeResult> results;
        KeyFrameMap keyFrames;
    };

    friend class AddCropKeyFrameCommand;
    friend class RemoveCropKeyFrameCommand;

    /// The mutex as its base class, whose inline fast path is cheap enough for each frame and visible to thread
    /// checkers, which cannot see into Qt's libraries.
    QBasicMutex& Guard() const { return m_mutex; }

    void ReadClipFacts(const IKxTimeline& timeline);
    void MarkCanceled();
    void HandleTaskFinished();
    void WaitForTask();
    void StopTask();
    void RestoreEarlierResults();
    void RunKeyFrameTask(IKxCropPanZoomKeyFrameHelper* target, const QList<IKxAutoReframeResult>& results);
    bool IsTaskCanceled();
    /// Worker's thread. Returns the keyframes to push; the worker does not use the helper afterwards.
    QList<KxCropPanZoomKeyFrameParam> StoreTaskResults(const QList<IKxAutoReframeResult>& results,
                                                       KeyFrameMap* keyFrames);

    bool AreCountsValid(uint to) const;
    void SetKeyFrame(qint64 frame, const QRectF& rect);
    void FillFromResults(uint from, uint to);
    void ApplyEditRange(uint from, uint to, const KrEditSegment& segment);
    void RemoveKeyFramesIn(const KrEditSegment& segment);
    /// The edit point at `frame` in the aspect ratio of the results.
    QRectF EditRect(uint frame) const;
    void ReapplyEdits();
    /// Passes the keyframes to the host and shows those that have changed since the last time.
    void FlushChanges();
    void RebuildDisplayResults();
    void UpdateDisplayResults(const KrFrameRange& changed);
    /// The frames whose rectangle depends on a keyframe in `changed`: up to the keyframes around it.
    KrFrameRange AffectedFrames(const KrFrameRange& changed) const;
    /// Shows the part of `segment` in `frames`.
    void ShowSegment(const KrEditSegment& segment, const KrFrameRange& frames);

    QFutureWatcher<void>* m_watcher;
    /// Guards m_canceled and the transfer of results and keyframes between the worker and the user-interface thread.
    mutable QMutex m_mutex;
    bool m_canceled = false;
    /// A task was started and its end was not delivered yet.
    bool m_isEndDue = false;
    /// The state that the running task replaces; empty for the first application and after an edit of its results.
    std::optional<AppliedResults> m_earlier;
    /// While set, a rebuilt range is not pushed to the host.
    bool m_suspendFlush = false;
    bool m_editsSurvive = false;
    /// Null when the working clip has no such keyframes.
    IKxCropPanZoomKeyFrameHelper* m_keyFrameHelper = nullptr;
    /// Owned.
    IKxTimeline* m_workTimeline = nullptr;
    IKxTimeline* m_sourceTimeline = nullptr;
    IKxClip* m_clip = nullptr;
    /// Stored by the worker while a task runs.
    QList<IKxAutoReframeResult> m_results;
    QList<IKxAutoReframeResult> m_displayResults;
    /// The display shows m_results with the edits. While false, the next edit rebuilds all of it.
    bool m_isDisplayCurrent = false;
    /// By frame; only the worker accesses it while a task runs.
    KeyFrameMap m_keyFrames;
    /// m_keyFrames as lists for the host.
    KrKeyFrameLists m_keyFrameLists;
    /// Where m_keyFrames has changed since the last push.
    KrFrameRange m_changedFrames;
    /// In ascending order of starts.
    QList<KrEditSegment> m_segments;
    QMap<uint, QRectF> m_editPoints;
    int m_frameCount = 0;
    /// Frames a second; 0 when unknown.
    float m_frameRate = 0.0f;
    QUndoStack* m_undoStack;
};
