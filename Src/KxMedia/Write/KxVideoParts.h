#pragma once

#include <KxMedia/Write/KxVideoPart.h>

#include <QStringList>

/// The pictures of several files, one after the other, as packets of one video. One thread at a time.
class KXMEDIA_API KxVideoParts
{
public:
    /// Reads the header of each file. On failure, the error message names the file and the reason.
    static KxResult<std::unique_ptr<KxVideoParts>> Open(const QStringList& paths, const KxRational& rate,
                                                        const KxCancelToken& cancel);
    ~KxVideoParts();
    KxVideoParts(const KxVideoParts&) = delete;
    KxVideoParts& operator=(const KxVideoParts&) = delete;

    /// For the header of the joined file.
    const KxVideoPart& First() const { return *m_first; }

    /// Goes to the next packet in decoding order.
    KxReadStatus Next();
    /// With both times in frames. May be moved from.
    AVPacket& Packet() const { return *m_packet; }
    /// After a failed Next(), the error message.
    const QString& Problem() const { return m_problem; }

private:
    KxVideoParts(QStringList paths, const KxRational& rate, const KxCancelToken& cancel, KxAvPacket packet);
    KxError Check();
    KxReadStatus Fail(const QString& message);

    const QStringList m_paths;
    const KxRational m_rate;
    const KxCancelToken m_cancel;
    const KxAvPacket m_packet;
    std::unique_ptr<KxVideoPart> m_first;   ///< of which nothing is read but its header
    std::unique_ptr<KxVideoPart> m_current; ///< null between two parts
    int m_opened = 0;                       ///< parts
    qint64 m_delay = 0;                     ///< the longest of all parts
    qint64 m_packets = 0;                   ///< delivered
    qint64 m_start = 0;                     ///< of the current part
    QString m_problem;
};
