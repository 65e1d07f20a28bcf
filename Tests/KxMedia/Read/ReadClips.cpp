#include <Tests/KxMedia/Read/ReadClips.h>

#include <KxMedia/Picture/KxPictureScaler.h>

#include <QHash>

#include <gtest/gtest.h>

std::ostream& ReadClips::operator<<(std::ostream& stream, const Kind& kind)
{
    return stream << kind.name;
}

QStringList ReadClips::Words(const char* line)
{
    return QString::fromLatin1(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QString ReadClips::Path(const QString& name)
{
    static const QTemporaryDir folder;
    return folder.filePath(name);
}

std::unique_ptr<KxVideoReader> ReadClips::OpenReader(const QString& path)
{
    KxResult<std::unique_ptr<KxVideoReader>> reader = KxVideoReader::Open(path, KxCancelToken());
    if (!reader) {
        ADD_FAILURE() << reader.Message().toStdString();
        return nullptr;
    }
    return std::move(*reader);
}

int ReadClips::NumberOf(const KxVideoFrame& picture)
{
    KxPictureScaler scaler;
    return MadeVideo::ReadNumber(scaler.Scale(picture, picture.DisplayedSize(), QImage::Format_Grayscale8))
        .value_or(-1);
}

uint ReadClips::CheckSum(const KxVideoFrame& picture)
{
    KxPictureScaler scaler;
    const QImage grey = scaler.Scale(picture, picture.DisplayedSize(), QImage::Format_Grayscale8);
    uint sum = 0;
    for (int y = 0; y < grey.height(); ++y) {
        sum = sum * 31 + qHashBits(grey.constScanLine(y), static_cast<size_t>(grey.width()));
    }
    return sum;
}

int ReadClips::ReadNumber(KxVideoReader& reader, qint64 frame)
{
    KxVideoFrame picture;
    return reader.Read(frame, picture) == KxReadStatus::Delivered ? NumberOf(picture) : -1;
}
