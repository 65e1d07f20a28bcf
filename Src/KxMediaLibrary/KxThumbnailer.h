#pragma once

#include <KxCore/KxCancelToken.h>
#include <KxCore/KxExport.h>
#include <KxCore/KxResult.h>

#include <QImage>
#include <QObject>
#include <QSize>

#include <functional>
#include <memory>

/// Makes small pictures of video files on a thread of its own. The newest request is served first: a person looks at
/// what was scrolled into view last.
///
/// User-interface thread. Every request that is not cancelled ends with exactly one signal, never from inside
/// Request(). The destructor cancels all requests and waits for the picture that is being made.
class KXMEDIALIBRARY_SIGNAL_API KxThumbnailer : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(KxThumbnailer)

public:
    /// Makes a picture of `path` that fits into `roomPx`. Called on the thumbnailer's thread.
    using Maker =
        std::function<KxResult<QImage>(const QString& path, const QSize& roomPx, const KxCancelToken& cancel)>;

    /// Pictures are made by KxThumbnailPicture.
    explicit KxThumbnailer(QObject* parent = nullptr);
    explicit KxThumbnailer(Maker maker, QObject* parent = nullptr);
    ~KxThumbnailer() override;

    /// Asks for a picture of `path` as large as fits into `roomPx` with its shape kept. Returns the request's number.
    quint64 Request(const QString& path, const QSize& roomPx);
    /// No signal is emitted for this request any more. Unknown numbers are ignored.
    void Cancel(quint64 request);
    void CancelAll();

Q_SIGNALS:
    void sigReady(quint64 request, const QImage& picture);
    /// `message` is for the person.
    void sigFailed(quint64 request, const QString& message);

private:
    struct Work;

    quint64 m_lastRequest = 0;
    std::unique_ptr<Work> m_work;
};
