#pragma once

#include <Apps/AutoReframe/Backend/MediaBackend.h>
#include <KxCore/KxWorker.h>

#include <QHash>
#include <QObject>

/// Looks on a thread of its own where the files of the library are: a drive that does not answer must not stop the
/// window. User-interface thread.
class MediaFinder : public QObject
{
    Q_OBJECT
public:
    /// A video as the library knows it.
    struct Wanted {
        int id = 0;
        QString path;
        qint64 fileBytes = 0;
        QByteArray contentHash; ///< empty: not known, so a moved file cannot be recognised
        QString folder;         ///< where a missing file is looked for
    };
    struct Found {
        enum class Kind {
            Unchanged,
            Changed, ///< there is another file of that name
            Moved,   ///< the file is now at `path`
            Missing,
        };
        int id = 0;
        Kind kind = Kind::Missing;
        QString path;
    };

    /// `backend` is borrowed.
    MediaFinder(MediaBackend& backend, QObject* parent);
    /// Waits for the file that is being read.
    ~MediaFinder() override;

    /// sigFound follows, once, with a result for each video.
    void Look(const QList<Wanted>& videos);
    /// Calls back whether the file `path` has the content of the video.
    void Compare(const Wanted& video, const QString& path, const std::function<void(bool isSame)>& ready);

    /// What a folder and the folders below it hold.
    struct Listed {
        /// Those whose names fit one of the patterns, in the order of their names; at most MostFiles.
        QStringList files;
        int otherFiles = 0;
        /// Those whose names would fit, but no QString can hold.
        int unnameableFiles = 0;
    };
    /// Calls back. Links to folders are not followed.
    void ListFiles(const QString& folder, const QStringList& patterns,
                   const std::function<void(const Listed& listed)>& ready);
    static constexpr int MostFiles = 10000;

Q_SIGNALS:
    void sigFound(const QList<MediaFinder::Found>& found);

private:
    using Folders = QHash<QString, QHash<qint64, QStringList>>;

    // On the finder's thread.
    Found LookFor(const Wanted& video, Folders& folders) const;
    bool IsSame(const Wanted& video, const QString& path) const;

    MediaBackend& m_backend;
    // Last: its thread uses the others.
    KxWorker m_worker{KxWorker::Order::OldestFirst};
};
