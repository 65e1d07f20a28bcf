#include <KxModel/KxPackedPicture.h>

#include <QtEndian>

#include <cstdlib>
#include <cstring>

namespace
{

constexpr int BytesPerPixel = 3;
constexpr int ChecksumBytes = 2;

/// From what a byte is predicted.
enum Prediction : char { FromLeft, FromBefore };

QByteArray PixelsOf(const QImage& picture)
{
    const int rowBytes = picture.width() * BytesPerPixel;
    QByteArray pixels(rowBytes * picture.height(), Qt::Uninitialized);
    for (int y = 0; y < picture.height(); ++y) {
        std::memcpy(pixels.data() + static_cast<std::ptrdiff_t>(y) * rowBytes, picture.constScanLine(y),
                    static_cast<std::size_t>(rowBytes));
    }
    return pixels;
}

/// The differences to the prediction; the first byte names it.
QByteArray Differences(const QByteArray& pixels, const QByteArray& before, Prediction prediction)
{
    QByteArray result(pixels.size() + 1, Qt::Uninitialized);
    char* to = result.data();
    *to++ = prediction;
    const char* const from = pixels.constData();
    for (int i = 0; i < pixels.size(); ++i) {
        const char predicted = prediction == FromBefore ? before.constData()[i]
                               : i < BytesPerPixel      ? char(0)
                                                        : from[i - BytesPerPixel];
        *to++ = static_cast<char>(from[i] - predicted);
    }
    return result;
}

/// Damaged bytes are recognised by it before Qt, which would report them in its own way.
QByteArray Checksum(const QByteArray& bytes)
{
    QByteArray sum(ChecksumBytes, Qt::Uninitialized);
    qToBigEndian(qChecksum(bytes.constData(), static_cast<uint>(bytes.size())), sum.data());
    return sum;
}

qint64 Magnitude(const QByteArray& differences)
{
    qint64 sum = 0;
    for (const char difference : differences) {
        sum += std::abs(static_cast<signed char>(difference));
    }
    return sum;
}

} // namespace

QByteArray KxPicturePacker::Pack(const QImage& picture)
{
    if (picture.isNull()) {
        return {};
    }
    const QByteArray pixels = PixelsOf(picture);
    QByteArray differences = Differences(pixels, m_before, FromLeft);
    if (m_before.size() == pixels.size()) {
        const QByteArray toBefore = Differences(pixels, m_before, FromBefore);
        differences = Magnitude(toBefore) < Magnitude(differences) ? toBefore : differences;
    }
    m_before = pixels;
    constexpr int fastest = 1;
    const QByteArray compressed = qCompress(differences, fastest);
    return compressed + Checksum(compressed);
}

KxPictureUnpacker::KxPictureUnpacker(QSize size)
    : m_size(size)
{
}

bool KxPictureUnpacker::Unpack(const QByteArray& packed)
{
    m_isNull = packed.isEmpty();
    if (m_isNull) {
        return true;
    }
    const int bytes = m_size.width() * m_size.height() * BytesPerPixel;
    const QByteArray compressed = packed.left(packed.size() - ChecksumBytes);
    // The size comes first; a wrong one must not ask for memory.
    const bool isSane = compressed.size() > 4 && packed.endsWith(Checksum(compressed)) &&
                        qFromBigEndian<quint32>(compressed.constData()) == quint32(bytes) + 1;
    const QByteArray differences = isSane ? qUncompress(compressed) : QByteArray();
    if (differences.size() != bytes + 1) {
        return false;
    }
    const bool isFromBefore = differences.at(0) == FromBefore;
    if (isFromBefore && m_pixels.isEmpty()) {
        return false;
    }
    if (m_pixels.isEmpty()) {
        m_pixels.resize(bytes);
    }
    char* const pixels = m_pixels.data();
    for (int i = 0; i < bytes; ++i) {
        const char predicted = isFromBefore ? pixels[i] : i < BytesPerPixel ? char(0) : pixels[i - BytesPerPixel];
        pixels[i] = static_cast<char>(differences.at(i + 1) + predicted);
    }
    return true;
}

QImage KxPictureUnpacker::Picture() const
{
    if (m_isNull) {
        return {};
    }
    QImage picture(m_size, QImage::Format_BGR888);
    const int rowBytes = m_size.width() * BytesPerPixel;
    for (int y = 0; y < m_size.height() && !picture.isNull(); ++y) {
        std::memcpy(picture.scanLine(y), m_pixels.constData() + static_cast<std::ptrdiff_t>(y) * rowBytes,
                    static_cast<std::size_t>(rowBytes));
    }
    return picture;
}
