#include <Tests/Support/MadeVideo.h>

#include <QColor>
#include <QPainter>
#include <QProcess>

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace
{

constexpr int Columns = 6;
constexpr int Rows = 4;
constexpr int NumberBits = 16;
constexpr std::array<bool, Rows> UprightMark{true, false, true, true};

int CheckSum(int number)
{
    return ((number ^ (number >> 4) ^ (number >> 8) ^ (number >> 12)) & 0xF) ^ 0x5;
}

QRectF Cell(int column, int row, const QSize& size)
{
    const double width = static_cast<double>(size.width()) / Columns;
    const double height = static_cast<double>(size.height()) / Rows;
    return {column * width, row * height, width, height};
}

std::optional<bool> ReadCell(const QImage& picture, int column, int row)
{
    const QRectF cell = Cell(column, row, picture.size());
    const QRectF middle = cell.adjusted(cell.width() / 4, cell.height() / 4, -cell.width() / 4, -cell.height() / 4);
    const QRect area = middle.toRect();
    qint64 sum = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            sum += qGray(picture.pixel(x, y));
        }
    }
    const double mean = static_cast<double>(sum) / (area.width() * area.height());
    if (std::abs(mean - 128) < 48) {
        return std::nullopt;
    }
    return mean > 128;
}

bool Finish(QProcess& process, const QStringList& arguments)
{
    const bool ended = process.waitForFinished(120000);
    if (!ended || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        process.kill();
        process.waitForFinished();
        ADD_FAILURE() << "ffmpeg " << arguments.join(QLatin1Char(' ')).toStdString() << "\n"
                      << process.readAllStandardError().toStdString();
        return false;
    }
    return true;
}

QStringList QuietArguments()
{
    return {QStringLiteral("-hide_banner"), QStringLiteral("-nostdin"), QStringLiteral("-loglevel"),
            QStringLiteral("error"), QStringLiteral("-y")};
}

} // namespace

QImage MadeVideo::Draw(int number, const QSize& size)
{
    QImage picture(size, QImage::Format_RGB888);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    const auto fill = [&](int column, int row, bool white) {
        if (white) {
            painter.fillRect(Cell(column, row, size).toAlignedRect(), Qt::white);
        }
    };
    for (int row = 0; row < Rows; ++row) {
        fill(0, row, UprightMark[static_cast<size_t>(row)]);
    }
    const int code = number | (CheckSum(number) << NumberBits);
    for (int bit = 0; bit < (Columns - 1) * Rows; ++bit) {
        fill(1 + bit / Rows, bit % Rows, ((code >> bit) & 1) != 0);
    }
    return picture;
}

std::optional<int> MadeVideo::ReadNumber(const QImage& picture)
{
    if (picture.isNull()) {
        return std::nullopt;
    }
    for (int row = 0; row < Rows; ++row) {
        if (ReadCell(picture, 0, row) != UprightMark[static_cast<size_t>(row)]) {
            return std::nullopt;
        }
    }
    int code = 0;
    for (int bit = 0; bit < (Columns - 1) * Rows; ++bit) {
        const std::optional<bool> white = ReadCell(picture, 1 + bit / Rows, bit % Rows);
        if (!white) {
            return std::nullopt;
        }
        code |= (*white ? 1 : 0) << bit;
    }
    const int number = code & ((1 << NumberBits) - 1);
    if (code >> NumberBits != CheckSum(number)) {
        return std::nullopt;
    }
    return number;
}

bool MadeVideo::Make(const QString& path, const Recipe& recipe)
{
    QStringList arguments = QuietArguments();
    arguments << QStringLiteral("-f") << QStringLiteral("rawvideo") << QStringLiteral("-pix_fmt")
              << QStringLiteral("rgb24") << QStringLiteral("-s")
              << QStringLiteral("%1x%2").arg(QString::number(recipe.size.width()),
                                             QString::number(recipe.size.height()))
              << QStringLiteral("-r") << recipe.rate << QStringLiteral("-i") << QStringLiteral("pipe:0");
    arguments << recipe.inputs << recipe.output << QStringLiteral("file:") + path;
    arguments.removeAll(QStringLiteral("-nostdin"));
    QProcess process;
    process.start(QStringLiteral("ffmpeg"), arguments);
    if (!process.waitForStarted()) {
        ADD_FAILURE() << "ffmpeg does not start";
        return false;
    }
    for (int n = 0; n < recipe.frames && process.state() == QProcess::Running; ++n) {
        const int number = recipe.firstNumber + n;
        const QImage drawn = recipe.draw ? recipe.draw(number) : Draw(number, recipe.size);
        const QImage picture = drawn.convertToFormat(QImage::Format_RGB888);
        // At once: QProcess on Windows passes on what one call wrote, then waits for a millisecond or more.
        QByteArray samples;
        samples.reserve(3 * picture.width() * picture.height());
        for (int y = 0; y < picture.height(); ++y) {
            samples.append(reinterpret_cast<const char*>(picture.constScanLine(y)), 3 * picture.width());
        }
        process.write(samples);
        while (process.bytesToWrite() > 4 * 1024 * 1024 && process.waitForBytesWritten()) {
        }
    }
    process.closeWriteChannel();
    return Finish(process, arguments);
}

bool MadeVideo::RunFfmpeg(const QStringList& arguments)
{
    const QStringList all = QuietArguments() + arguments;
    QProcess process;
    process.start(QStringLiteral("ffmpeg"), all);
    return Finish(process, all);
}

bool MadeVideo::HasEncoder(const QString& name)
{
    QProcess process;
    process.start(QStringLiteral("ffmpeg"), {QStringLiteral("-hide_banner"), QStringLiteral("-encoders")});
    process.waitForFinished();
    const QString list = QString::fromUtf8(process.readAllStandardOutput());
    return list.contains(QStringLiteral(" %1 ").arg(name));
}
