#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// Clips made by the `ffmpeg` program in which every picture carries its own number as large black and white blocks: 16
/// bits with a check sum and a column that tells which way is up. The number survives lossy coding, scaling and any
/// size from about 48 x 32 on. A clip that cannot be made fails the test that asked for it.
namespace MadeVideo
{

/// The picture that carries `number` (0 to 65535).
QImage Draw(int number, const QSize& size);

/// Nothing where the picture does not stand upright, is mirrored, or cannot be read.
std::optional<int> ReadNumber(const QImage& picture);

struct Recipe {
    /// Of the coded pictures.
    QSize size{160, 96};
    int frames = 60;
    /// As ffmpeg writes rates: "25", "30000/1001".
    QString rate = QStringLiteral("25");
    int firstNumber = 0;
    /// Further inputs, such as {"-f", "lavfi", "-i", "sine=frequency=440:duration=2"}; the pictures are input 0.
    QStringList inputs;
    /// What stands before the file name: codecs, filters, maps.
    QStringList output;
    /// Draws a picture of `size`; Draw() when empty.
    std::function<QImage(int number)> draw;
};

/// Makes `path`, over a file of that name.
bool Make(const QString& path, const Recipe& recipe);

/// Runs the program without a clip of ours; the file name is the last of `arguments`.
bool RunFfmpeg(const QStringList& arguments);

/// Whether this machine's ffmpeg has that encoder.
bool HasEncoder(const QString& name);

} // namespace MadeVideo
