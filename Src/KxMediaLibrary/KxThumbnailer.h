#pragma once

#include <KxCore/KxExport.h>

#include <QImage>
#include <QObject>
#include <QSize>

#include <memory>

/// Makes small pictures of video files on a thread of its own. The newest request is served first: what a person
/// brought to the screen last is what they look at.
///
/// User-interface thread. Every request that is not cancelled ends with exactly one signal, never from inside
/// Request(). Destroying it cancels what is left and waits for the picture that is being made to be given up.
class KXMEDIALIBRARY_API KxThumbnailer : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KxThumbnailer)

public:
    explicit KxThumbnailer(QObject* parent = nullptr);
    ~KxThumbnailer() override;

    /// Asks for a picture of `path` as large as fits into `roomPx` with its shape kept. Returns the request's number.
    quint64 Request(const QString& path, const QSize& roomPx);
    /// No signal comes for this request any more. A number that is not (or no longer) known changes nothing.
    void Cancel(quint64 request);
    void CancelAll();

Q_SIGNALS:
    void sigReady(quint64 request, const QImage& picture);
    /// `message` is for the person.
    void sigFailed(quint64 request, const QString& message);

private:
    class Worker;

    void HandleReady(quint64 request, const QImage& picture);
    void HandleFailed(quint64 request, const QString& message);

    quint64 m_lastRequest = 0;
    std::unique_ptr<Worker> m_worker;
};
