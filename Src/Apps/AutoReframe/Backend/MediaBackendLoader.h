#pragma once

#include <Apps/AutoReframe/Backend/MediaBackend.h>

#include <KxCore/KxThread.h>

#include <QObject>

/// Loads the media backend on a thread of its own, so that the window stays responsive. User-interface thread.
class MediaBackendLoader : public QObject
{
    Q_OBJECT
public:
    /// Makes the backend, or fails with the reason; runs on the loader's thread.
    using Maker = std::function<KxResult<std::shared_ptr<MediaBackend>>()>;

    MediaBackendLoader(Maker maker, QObject* parent);
    /// Waits for a load that is under way.
    ~MediaBackendLoader() override;

    /// The backend's library, beside the program or in the library folder next to the program's.
    static KxResult<std::shared_ptr<MediaBackend>> LoadLibrary();

    /// Only the first call has an effect.
    void Start();
    /// Starts if necessary and waits. Null if the backend cannot be made.
    MediaBackend* Get();
    /// Null until loading has finished; never waits.
    MediaBackend* IfLoaded() const;
    /// Why loading failed; empty until that is known.
    const QString& Error() const;

Q_SIGNALS:
    /// Once; IfLoaded() and Error() give the outcome.
    void sigFinished();

private:
    void Finish();

    const Maker m_maker;
    bool m_isStarted = false;
    bool m_isFinished = false;
    // Written by the thread, read after it was joined.
    std::shared_ptr<MediaBackend> m_made;
    QString m_error;
    KxThread m_thread;
};
