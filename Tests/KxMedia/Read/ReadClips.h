#pragma once

#include <KxMedia/Read/KxVideoReader.h>
#include <Tests/Support/MadeVideo.h>

#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <ostream>

/// Helpers for the tests of the reading classes.
namespace ReadClips
{

/// One kind of file, and which number its frames carry.
struct Kind {
    const char* name;
    const char* suffix;
    MadeVideo::Recipe recipe;
    /// The number shown at frame n, as far as it is not n itself.
    std::function<int(qint64 frame, const KxRational& rate)> numberAt;
    /// The grid's length, as far as it is not the recipe's number of pictures.
    qint64 frameCount = 0;
    /// Encoder without which the kind is left out; null when it always works.
    const char* encoder = nullptr;
    /// Pictures by which the file itself is off, because its encoder could not do better: then all ways of reading have
    /// to agree on the picture.
    int lateBy = 0;
};
std::ostream& operator<<(std::ostream& stream, const Kind& kind);

/// "-c:v libx264" as a list.
QStringList Words(const char* line);

/// A file in a temporary folder that is removed at the end of the test program.
QString Path(const QString& name);

std::unique_ptr<KxVideoReader> OpenReader(const QString& path);

/// The number shown in a picture; -1 if it cannot be read.
int NumberOf(const KxVideoFrame& picture);

/// Of a picture's grey version.
uint CheckSum(const KxVideoFrame& picture);

/// Reads the number of one frame; -1 on failure.
int ReadNumber(KxVideoReader& reader, qint64 frame);

} // namespace ReadClips
