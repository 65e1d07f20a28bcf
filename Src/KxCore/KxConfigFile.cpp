#include <KxCore/KxConfigFile.h>

#include <KxCore/KxResult.h>

#include <KxCore/KxLog.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QSettings>
#include <QStandardPaths>

#include <mutex>

namespace
{

bool IsDigitOf(char byte, int base)
{
    return base == 8 ? byte >= '0' && byte <= '7'
                     : (byte >= '0' && byte <= '9') || (byte >= 'a' && byte <= 'f') || (byte >= 'A' && byte <= 'F');
}

/// The content without quotes and escapes, which can hide the start of a value from a search.
QString Unescaped(const QByteArray& content)
{
    QString text;
    text.reserve(content.size());
    const int size = content.size();
    for (int i = 0; i < size;) {
        const char byte = content.at(i++);
        if (byte == '"') {
            continue;
        }
        if (byte != '\\' || i == size) {
            text += QLatin1Char(byte);
            continue;
        }
        const char name = content.at(i);
        const int base = name == 'x' ? 16 : 8;
        if (name != 'x' && !IsDigitOf(name, base)) {
            // The other escapes are control characters, quotes and the end of a line that goes on.
            i += content.mid(i, 2) == "\r\n" ? 2 : 1;
            continue;
        }
        i += base == 16 ? 1 : 0;
        quint16 code = 0;
        for (; i < size && IsDigitOf(content.at(i), base); ++i) {
            code = static_cast<quint16>(code * base + QByteArray(1, content.at(i)).toInt(nullptr, base));
        }
        text += QChar(code);
    }
    return text;
}

bool HasSerialisedValue(const QByteArray& content)
{
    // A doubled @ is the first character of a plain text.
    static const QRegularExpression start(QStringLiteral("(?<!@)@(Variant|DateTime)\\("));
    return start.match(Unescaped(content)).hasMatch();
}

/// Why QSettings must not get the file.
KxError Problem(const QString& path)
{
    constexpr qint64 mostBytes = 1024 * 1024;
    const QFileInfo info(path);
    if (!info.exists()) {
        return std::nullopt;
    }
    if (!info.isFile()) {
        return QStringLiteral("it is not a regular file");
    }
    if (info.size() > mostBytes) {
        return QStringLiteral("it is too large");
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt; // QSettings has its own way to say so
    }
    return HasSerialisedValue(file.read(mostBytes)) ? KxError(QStringLiteral("it holds a serialised value"))
                                                    : std::nullopt;
}

void ReportOnce(const QString& path, const QString& problem)
{
    static std::mutex mutex;
    static QSet<QString> reported;
    const QString text = QStringLiteral("Cannot use the configuration file %1: %2.").arg(path, problem);
    {
        const std::lock_guard<std::mutex> lock(mutex);
        if (reported.contains(text)) {
            return;
        }
        reported.insert(text);
    }
    KX_LOG_WARNING(text);
}

QString WantedPath()
{
    const QString named = qEnvironmentVariable("KX_CONFIG_FILE");
    if (!named.isEmpty()) {
        return named;
    }
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/auto-reframe/auto-reframe.ini");
}

} // namespace

QString KxConfigFile::Path()
{
    const QString wanted = WantedPath();
    const QFileInfo info(wanted);
    QString path = wanted;
    constexpr int mostFiles = 9;
    for (int number = 2; number <= mostFiles; ++number) {
        const KxError problem = Problem(path);
        if (!problem) {
            break;
        }
        ReportOnce(path, *problem);
        path = info.dir().filePath(QStringLiteral("%1 (%2).ini").arg(info.completeBaseName(), QString::number(number)));
    }
    return path;
}

QString KxConfigFile::ReadAutoReframe(const QString& key)
{
    QSettings settings(Path(), QSettings::IniFormat);
    settings.beginGroup(QStringLiteral("Auto Reframe"));
    return settings.value(key).toString();
}
