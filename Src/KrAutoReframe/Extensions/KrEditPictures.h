#pragma once

#include <KrAutoReframe/Engine/KrKeptEdits.h>

#include <QCoreApplication>
#include <QString>

class KrAutoReframeHelper;

/// Keeps the edit points of the open video together with what the pictures around them look like, so that they are
/// found again where the video was cut differently. Without IKxAutoReframePictures of the host's service edit points
/// stay at their frames.
class KrEditPictures
{
    Q_DECLARE_TR_FUNCTIONS(KrEditPictures)

public:
    /// Borrowed.
    explicit KrEditPictures(KrAutoReframeHelper& helper);

    /// Sets the edit points of a video that was just opened.
    void Restore(const KrAutoReframeState& state);
    /// Call it when an analysis of `path` has succeeded: moves the edit points to where their pictures are. True if
    /// the helper's edit points have changed.
    bool Place(const QString& path);
    /// Describes the helper's edit points that have no pictures yet. Call it when results of `path` are shown.
    void Describe(const QString& path);

    /// As it was when one of the above was called.
    const KrKeptEdits& Edits() const { return m_edits; }
    /// For the person: what happened to the edit points; empty: nothing.
    QString Message() const { return m_message; }

private:
    KrAutoReframeHelper& m_helper;
    KrKeptEdits m_edits;
    QString m_message;
};
