#pragma once

#include <Apps/AutoReframe/Backend/Studio.h>

#include <QObject>

#include <thread>

/// Brings the studio in on a thread of its own, so that the window stays alive meanwhile. User-interface thread.
class StudioLoader : public QObject
{
    Q_OBJECT
public:
    /// Makes the studio, or says why it cannot; runs on the loader's thread.
    using Maker = std::function<KxResult<std::shared_ptr<Studio>>()>;

    StudioLoader(Maker maker, QObject* parent);
    /// Waits for what is on its way.
    ~StudioLoader() override;

    /// The studio's library, next to the program or in the folder of libraries beside it.
    static KxResult<std::shared_ptr<Studio>> LoadLibrary();

    /// Only the first call does anything.
    void Start();
    /// Starts if need be and waits. Null when the studio cannot be made.
    Studio* Get();
    /// Null until it is there; never waits.
    Studio* IfThere() const;
    /// Why there is no studio; empty while that is not known.
    const QString& Message() const;

Q_SIGNALS:
    /// Once; IfThere() or Message() tell the outcome.
    void sigFinished();

private:
    void Finish();

    const Maker m_maker;
    std::thread m_thread;
    bool m_isStarted = false;
    bool m_isFinished = false;
    // Written by the thread, read once it was joined.
    std::shared_ptr<Studio> m_made;
    QString m_message;
};
