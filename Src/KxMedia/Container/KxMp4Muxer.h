#pragma once

#include <KxMedia/Container/KxAvHandles.h>

#include <QString>

#include <vector>

/// The container side of an MP4 file whose index is at its front. Every failure is a negative libav* error. One
/// thread at a time.
class KxMp4Muxer
{
public:
    explicit KxMp4Muxer(QString path);

    /// Call before Begin(). Streams are numbered in the order in which they are added.
    int AddStream(const AVCodecContext& encoder);
    /// For packets that were encoded elsewhere.
    int AddStream(const AVCodecParameters& parameters, AVRational timeBase);
    /// A text that is stored in the file; call before Begin().
    void SetComment(const QString& comment) { m_comment = comment; }
    /// Creates or replaces the file and writes the header.
    int Begin();
    bool HasBegun() const { return m_hasBegun; }
    /// `packet` is in the time base of its encoder, or that of AddStream(); it is blank afterwards.
    int Write(AVPacket& packet, int stream);
    /// Writes the rest, moves the index to the front and closes the file: late write errors are detected here.
    int End();

private:
    /// Null if memory runs out.
    AVStream* NewStream(AVRational timeBase);

    QString m_path;
    QString m_comment;
    KxAvOutput m_context;
    std::vector<AVRational> m_timeBases;
    bool m_hasBegun = false;
};
