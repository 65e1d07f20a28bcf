#include <KrAutoReframe/Engine/KrChoiceList.h>

#include <QPointer>
#include <QUndoCommand>
#include <QUndoStack>

class KrChoiceList::Step : public QUndoCommand
{
public:
    Step(KrChoiceList& list, const Choices& after)
        : m_list(&list)
        , m_before(list.m_choices)
        , m_after(after)
    {
    }

    void undo() override { Show(m_before); }
    void redo() override { Show(m_after); }

private:
    void Show(const Choices& choices)
    {
        // The history may live longer than the list.
        if (m_list) {
            m_list->Set(choices);
        }
    }

    QPointer<KrChoiceList> m_list;
    const Choices m_before;
    const Choices m_after;
};

KrChoiceList::KrChoiceList(QUndoStack& history, QObject* parent)
    : QObject(parent)
    , m_history(history)
{
}

KrChoiceList::~KrChoiceList() = default;

void KrChoiceList::Restore(const Choices& choices)
{
    m_choices = choices;
}

void KrChoiceList::Change(const Choices& choices)
{
    if (!(choices == m_choices)) {
        m_history.push(new Step(*this, choices));
    }
}

void KrChoiceList::Set(const Choices& choices)
{
    m_choices = choices;
    Q_EMIT sigChanged();
}
