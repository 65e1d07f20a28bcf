#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

/// Compresses pictures in Format_BGR888 without loss, each with the help of the one before. One thread at a time.
class KxPicturePacker
{
public:
    /// A null picture becomes an empty array.
    QByteArray Pack(const QImage& picture);

private:
    QByteArray m_before;
};

/// The reverse, from the same first picture on.
class KxPictureUnpacker
{
public:
    explicit KxPictureUnpacker(QSize size);

    /// False if the bytes are damaged. Call with all pictures in order.
    bool Unpack(const QByteArray& packed);
    /// Of the bytes that were unpacked last; null if they are that of a null picture.
    QImage Picture() const;

private:
    const QSize m_size;
    QByteArray m_pixels; ///< of the last picture that is not null
    bool m_isNull = true;
};
