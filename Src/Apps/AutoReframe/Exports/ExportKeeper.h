#pragma once

#include <Apps/AutoReframe/Exports/ExportQueue.h>
#include <Apps/AutoReframe/Store/LibraryContents.h>

#include <QHash>

class LibraryStore;

/// Saves the export queue in the library's file and restores it. User-interface thread.
class ExportKeeper : public QObject
{
    Q_OBJECT
public:
    /// Both are borrowed. Restores the queue when the store is open.
    ExportKeeper(ExportQueue& queue, LibraryStore& store, QObject* parent);
    ~ExportKeeper() override;

    /// From now on the queue changes because the program ends, not because the person wants it: unfinished exports are
    /// offered at the next start.
    void StopSaving();

private:
    void Restore(const StoredContents& contents);
    void SaveNew(int id);
    void SaveChange(int id);
    void SaveRemoval(int id);
    StoredExport ToStored(int id) const;

    ExportQueue& m_queue;
    LibraryStore& m_store;
    /// By the queue's number.
    QHash<int, qint64> m_keys;
    using Saved = QPair<ExportItem::State, QList<uint>>;
    QHash<int, Saved> m_saved;
    bool m_isRestoring = false;
    bool m_saves = true;
};
