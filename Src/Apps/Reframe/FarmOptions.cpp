#include <Apps/Reframe/FarmOptions.h>

#include <KxCore/KxSystemError.h>
#include <KxCore/KxSystemFile.h>
#include <KxMedia/Read/KxVideoNames.h>
#include <KxModel/KxDetectorFiles.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>

namespace
{

using Paths = KxResult<QStringList>;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(FarmOptions)
};

/// Results of earlier runs, which lie beside their inputs.
bool IsResult(const QString& name)
{
    static const QRegularExpression result(
        QStringLiteral("-AutoReframe-\\d+ \\d+( \\d+-\\d+)?( ?\\(\\d+\\))?\\.\\w+$"));
    return result.match(name).hasMatch();
}

Paths ReadList(const QString& path)
{
    QFile file(path);
    const bool isOpen =
        path == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!isOpen) {
        return Paths::Failure(Texts::tr("Cannot open %1: %2.").arg(path, KxFileErrorText(file)));
    }
    QStringList paths;
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (QByteArray line : lines) {
        if (line.endsWith('\r')) {
            line.chop(1);
        }
        if (!line.isEmpty()) {
            paths += QFile::decodeName(line);
        }
    }
    return paths;
}

Paths VideosIn(const QString& folder, bool isRecursive)
{
    if (!QFileInfo(folder).isReadable()) {
        return Paths::Failure(Texts::tr("Cannot read the folder %1.").arg(folder));
    }
    const QStringList names = KxVideoNameFilter().split(QLatin1Char(';'));
    QDirIterator files(folder, names, QDir::Files,
                       isRecursive ? QDirIterator::Subdirectories : QDirIterator::NoIteratorFlags);
    QStringList videos;
    while (files.hasNext()) {
        const QString path = files.next();
        if (!IsResult(files.fileName())) {
            videos += path;
        }
    }
    // Each is refused as an input, with the reason.
    const QStringList unnameable = KxSystemFile::UnnameableFiles(folder, isRecursive ? KxSystemFile::Depth::Subfolders
                                                                                     : KxSystemFile::Depth::Folder);
    for (const QString& path : unnameable) {
        const QString name = QFileInfo(path).fileName();
        if (QDir::match(names, name) && !IsResult(name)) {
            videos += path;
        }
    }
    videos.sort();
    return videos;
}

QByteArray Settings(const QCommandLineParser& parser)
{
    // Of the options on the command line, all but those that only say where results go and what is reported, and those
    // that a job adds in its own way. A new option counts until it is named here.
    static const QStringList withoutInfluence{
        QStringLiteral("output"),    QStringLiteral("keyframes"),    QStringLiteral("edit-list"),
        QStringLiteral("preview"),   QStringLiteral("report"),       QStringLiteral("no-video"),
        QStringLiteral("overwrite"), QStringLiteral("json"),         QStringLiteral("quiet"),
        QStringLiteral("cache"),     QStringLiteral("recursive"),    QStringLiteral("inputs"),
        QStringLiteral("if-needed"), QStringLiteral("status"),       QStringLiteral("language"),
        QStringLiteral("models"),    QStringLiteral("apply"),        QStringLiteral("choices"),
        QStringLiteral("aspect"),    QStringLiteral("save-choices"), QStringLiteral("frames"),
        QStringLiteral("join")};
    QStringList names = parser.optionNames();
    names.removeDuplicates();
    names.sort();
    QByteArray settings = "reframe " KR_VERSION;
    for (const QString& name : qAsConst(names)) {
        if (withoutInfluence.contains(name)) {
            continue;
        }
        const QStringList values = parser.values(name);
        settings += ' ' + name.toUtf8() + '=' + values.join(QLatin1Char(' ')).toUtf8();
    }
    const QString networks = KxDetectorFiles::FindNetworks(parser.value(QStringLiteral("models"))).path;
    if (!networks.isEmpty()) {
        settings += " networks=" + FarmOptions::ContentHash(networks + QStringLiteral("/SHA256SUMS"));
    }
    return settings;
}

} // namespace

bool FarmOptions::WouldReplaceInput(const QStringList& inputs) const
{
    return QFileInfo::exists(status) && std::any_of(inputs.begin(), inputs.end(), [this](const QString& input) {
               return KxSystemFile::Identity(input) == KxSystemFile::Identity(status);
           });
}

QByteArray FarmOptions::ContentHash(const QString& path)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && hash.addData(&file) ? hash.result().toHex() : QByteArray();
}

FarmOptions::Definitions::Definitions()
    : recursive(QStringLiteral("recursive"), Texts::tr("Of a folder that is an input, take the videos in its "
                                                       "subfolders too."))
    , inputs(QStringLiteral("inputs"), Texts::tr("Read more inputs from FILE, one a line; - is standard input."),
             QStringLiteral("FILE|-"))
    , status(QStringLiteral("status"),
             Texts::tr("Write progress and results to FILE as JSON lines, whatever is printed."),
             QStringLiteral("FILE"))
    , ifNeeded(QStringLiteral("if-needed"),
               Texts::tr("Skip inputs whose results are there already, from the same content, settings and version; "
                         "replace results of other settings."))
    , frames(QStringLiteral("frames"),
             Texts::tr("Only the frames A to B, counted from 0, or the part K of N: with --apply, render them without "
                       "sound; otherwise write the pictures that the analysis takes of them (.pictures)."),
             QStringLiteral("A-B|K/N"))
    , join(QStringLiteral("join"), Texts::tr("The first input is a video, the others are all its parts, as --frames "
                                             "wrote them; the results are those of the whole video."))
{
}

QList<QCommandLineOption> FarmOptions::Definitions::All() const
{
    return {recursive, inputs, status, ifNeeded, frames, join};
}

FarmOptions FarmOptions::Parse(const QCommandLineParser& parser, const Definitions& definitions)
{
    FarmOptions options;
    options.status = parser.value(definitions.status);
    options.ifNeeded = parser.isSet(definitions.ifNeeded);
    options.settings = Settings(parser);
    return options;
}

Paths FarmOptions::Inputs(const QStringList& named, const QCommandLineParser& parser, const Definitions& definitions)
{
    QStringList all = named;
    if (parser.isSet(definitions.inputs)) {
        const Paths listed = ReadList(parser.value(definitions.inputs));
        if (!listed) {
            return listed;
        }
        all += *listed;
    }
    QStringList inputs;
    for (const QString& path : qAsConst(all)) {
        if (!QFileInfo(path).isDir()) {
            inputs += path;
            continue;
        }
        const Paths videos = VideosIn(path, parser.isSet(definitions.recursive));
        if (!videos) {
            return videos;
        }
        // A folder without videos is refused as an input.
        inputs += videos->isEmpty() ? QStringList{path} : *videos;
    }
    return inputs;
}
