#pragma once

#include <KxModel/IKxAutoReframeChoices.h>

#include <QList>
#include <QObject>

class QUndoStack;

/// The person's choices for the open video. Changes are steps of the same history as the edits. User-interface thread.
class KrChoiceList : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KrChoiceList)

public:
    using Choices = QList<KxAutoReframeChoice>;

    /// `history` outlives every call to this class.
    KrChoiceList(QUndoStack& history, QObject* parent);
    ~KrChoiceList() override;

    const Choices& Current() const { return m_choices; }
    /// Without a step to undo, and without the signal.
    void Restore(const Choices& choices);
    /// One step to undo; nothing if the choices are the same.
    void Change(const Choices& choices);

Q_SIGNALS:
    /// The choices were changed, or a change was undone or redone.
    void sigChanged();

private:
    class Step;
    void Set(const Choices& choices);

    QUndoStack& m_history;
    Choices m_choices;
};
