#include <Apps/AutoReframe/Exports/ExportKeeper.h>

#include <Apps/AutoReframe/Store/LibraryStore.h>

#include <QRandomGenerator>

#include <algorithm>
#include <array>

namespace
{

using State = ExportItem::State;

/// An export that is being cancelled is not wanted any more. The first entry of a stored state is what is restored.
constexpr std::array<std::pair<State, StoredExport::State>, 8> States{{
    {State::Waiting, StoredExport::State::Waiting},
    {State::Running, StoredExport::State::Running},
    {State::Analyzing, StoredExport::State::Running},
    {State::Done, StoredExport::State::Done},
    {State::Failed, StoredExport::State::Failed},
    {State::Cancelled, StoredExport::State::Cancelled},
    {State::Cancelling, StoredExport::State::Cancelled},
    {State::Interrupted, StoredExport::State::Interrupted},
}};

StoredExport::State ToStoredState(State state)
{
    return std::find_if(States.begin(), States.end(), [state](const auto& pair) { return pair.first == state; })
        ->second;
}

State FromStoredState(StoredExport::State state)
{
    return std::find_if(States.begin(), States.end(), [state](const auto& pair) { return pair.second == state; })
        ->first;
}

qint64 MakeKey()
{
    return static_cast<qint64>(QRandomGenerator::system()->generate64() >> 1);
}

} // namespace

ExportKeeper::ExportKeeper(ExportQueue& queue, LibraryStore& store, QObject* parent)
    : QObject(parent)
    , m_queue(queue)
    , m_store(store)
{
    connect(&m_store, &LibraryStore::sigOpened, this, &ExportKeeper::Restore);
    connect(&m_queue, &ExportQueue::sigAdded, this, &ExportKeeper::SaveNew);
    connect(&m_queue, &ExportQueue::sigChanged, this, &ExportKeeper::SaveChange);
    connect(&m_queue, &ExportQueue::sigRemoved, this, &ExportKeeper::SaveRemoval);
}

ExportKeeper::~ExportKeeper() = default;

void ExportKeeper::StopSaving()
{
    m_saves = false;
}

void ExportKeeper::Restore(const StoredContents& contents)
{
    m_isRestoring = true;
    for (const StoredExport& stored : contents.exports) {
        ExportItem item;
        item.state = FromStoredState(stored.state);
        static_cast<ExportJob&>(item) = stored;
        const int id = m_queue.Restore(item);
        m_keys.insert(id, stored.key);
        m_saved.insert(id, {item.state, item.shotsToLookAt});
    }
    m_isRestoring = false;
}

StoredExport ExportKeeper::ToStored(int id) const
{
    const ExportItem* const item = m_queue.Find(id);
    StoredExport stored;
    stored.key = m_keys.value(id);
    stored.state = ToStoredState(item->state);
    static_cast<ExportJob&>(stored) = *item;
    return stored;
}

void ExportKeeper::SaveNew(int id)
{
    if (m_isRestoring || !m_saves) {
        return;
    }
    m_keys.insert(id, MakeKey());
    m_saved.insert(id, {m_queue.Find(id)->state, {}});
    m_store.SaveExport(ToStored(id));
}

void ExportKeeper::SaveChange(int id)
{
    const ExportItem* const item = m_queue.Find(id);
    // Progress is not saved: an interrupted export begins anew.
    const Saved now{item != nullptr ? item->state : State::Waiting,
                    item != nullptr ? item->shotsToLookAt : QList<uint>()};
    if (!m_saves || item == nullptr || m_saved.value(id) == now) {
        return;
    }
    m_saved.insert(id, now);
    m_store.SaveExportState(ToStored(id));
}

void ExportKeeper::SaveRemoval(int id)
{
    if (m_saves) {
        m_saved.remove(id);
        m_store.RemoveExport(m_keys.take(id));
    }
}
