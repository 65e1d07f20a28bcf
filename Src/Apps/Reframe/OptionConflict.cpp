#include <Apps/Reframe/OptionConflict.h>

#include <Apps/Reframe/ReframeOptions.h>

#include <KxEditList/KxEditList.h>
#include <KxModel/KxDetectorFiles.h>

#include <QCoreApplication>
#include <QFileInfo>

namespace
{

// The messages' translations are those of the options.
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ReframeOptions)
};

/// An output path, as an option gives it.
struct Target {
    QString option;
    QString path;
    QStringList suffixes;

    bool IsFile() const { return !path.isEmpty() && !QFileInfo(path).isDir(); }
    bool HasSuffix() const { return suffixes.contains(QFileInfo(path).suffix().toLower()); }
};

QList<Target> Targets(const ReframeOptions& options)
{
    const bool writesPictures = options.frames && options.apply.isEmpty();
    const QStringList outputs = writesPictures ? QStringList{QStringLiteral("pictures")}
                                               : QStringList{QStringLiteral("mp4"), QStringLiteral("m4v")};
    return {{QStringLiteral("--output"), options.output, outputs},
            {QStringLiteral("--keyframes"), options.keyframes, {QStringLiteral("json"), QStringLiteral("csv")}},
            {QStringLiteral("--preview"), options.preview, {QStringLiteral("png"), QStringLiteral("mp4")}},
            {QStringLiteral("--report"), options.report, {QStringLiteral("html")}}};
}

/// "mp4 or .m4v"
QString Alternatives(const QStringList& suffixes)
{
    return suffixes.size() == 2 ? Texts::tr("%1 or .%2").arg(suffixes.first(), suffixes.last()) : suffixes.first();
}

// Each of the following gives the message about one kind of conflict, empty if there is none.

QString ConflictOfPart(const ReframeOptions& options)
{
    if (!options.frames) {
        return {};
    }
    if (options.inputs.size() > 1 || !options.parts.isEmpty()) {
        return Texts::tr("--frames takes one input.");
    }
    if (options.aspects.size() > 1) {
        return Texts::tr("--frames takes one aspect ratio.");
    }
    if (!options.writesVideo && !options.apply.isEmpty()) {
        return Texts::tr("--frames with --apply renders a part of the video, and --no-video excludes that.");
    }
    const QString files = options.keyframes + options.preview + options.report + options.choices;
    if (!files.isEmpty() || !options.editLists.isEmpty() || !options.follow.isEmpty()) {
        return Texts::tr("--frames does a part of the work; files about the whole video, and choices, are for --join.");
    }
    return {};
}

QString ConflictOfInputs(const ReframeOptions& options)
{
    if (options.inputs.isEmpty()) {
        return Texts::tr("No input file was given.");
    }
    if (options.inputs.contains(QString())) {
        return Texts::tr("The name of an input file is empty.");
    }
    return {};
}

QString ConflictOfFiles(const ReframeOptions& options)
{
    if (options.farm.WouldReplaceInput(options.inputs)) {
        return Texts::tr("--status must not name an input.");
    }
    if (!options.writesVideo && !options.output.isEmpty()) {
        return Texts::tr("--output and --no-video exclude each other.");
    }
    if (!options.models.isEmpty() && options.models != QLatin1String("none")) {
        return KxDetectorFiles::FolderProblem(options.models);
    }
    return {};
}

QString ConflictOfApply(const ReframeOptions& options)
{
    if (options.apply.isEmpty()) {
        return {};
    }
    if (!options.report.isEmpty()) {
        return Texts::tr("--report shows what an analysis found, and with --apply there is none.");
    }
    if (options.inputs.size() > 1) {
        return Texts::tr("--apply takes one input.");
    }
    if (options.aspects.size() > 1) {
        return Texts::tr("--apply takes one aspect ratio.");
    }
    return {};
}

QString ConflictOfChoices(const ReframeOptions& options)
{
    if (!options.saveChoices.isEmpty() && options.aspects.size() > 1) {
        return Texts::tr("--save-choices takes one aspect ratio.");
    }
    const bool hasChoices = !options.choices.isEmpty() || !options.follow.isEmpty();
    if (hasChoices && options.inputs.size() > 1) {
        return Texts::tr("--choices and --follow take one input.");
    }
    if (hasChoices && !options.apply.isEmpty()) {
        return Texts::tr("--choices and --follow guide the analysis, and with --apply there is none.");
    }
    if (!hasChoices && !options.saveChoices.isEmpty()) {
        return Texts::tr("--save-choices writes what --choices and --follow decided, and neither was given.");
    }
    return {};
}

bool HasOneResult(const ReframeOptions& options)
{
    return options.inputs.size() == 1 && options.aspects.size() == 1;
}

QString ConflictOfEditLists(const ReframeOptions& options)
{
    const QStringList suffixes = KxEditList::Suffixes();
    for (const QString& editList : options.editLists) {
        const bool isSuffix = suffixes.contains(editList.toLower());
        const QString suffixOfFile = QFileInfo(editList).suffix().toLower();
        if (!isSuffix && !suffixes.contains(suffixOfFile)) {
            return Texts::tr("--edit-list takes the name of a .%1 file or such a suffix alone; %2 is neither.")
                .arg(suffixes.join(QStringLiteral(", .")), editList);
        }
        if (!isSuffix && !HasOneResult(options)) {
            return Texts::tr("With several inputs or aspect ratios --edit-list takes a suffix alone; write %1 "
                             "instead of %2.")
                .arg(suffixOfFile, editList);
        }
    }
    return {};
}

QString ConflictOfTargets(const ReframeOptions& options)
{
    for (const Target& target : Targets(options)) {
        if (!HasOneResult(options) && target.IsFile()) {
            return Texts::tr("With several inputs or aspect ratios %1 must name an existing folder; %2 is none.")
                .arg(target.option, target.path);
        }
        if (target.IsFile() && !target.HasSuffix()) {
            return Texts::tr("%1 takes an existing folder or the name of a .%2 file; %3 is neither.")
                .arg(target.option, Alternatives(target.suffixes), target.path);
        }
    }
    return {};
}

} // namespace

QString OptionConflict(const ReframeOptions& options)
{
    for (const auto conflictOf : {ConflictOfInputs, ConflictOfPart, ConflictOfFiles, ConflictOfApply, ConflictOfChoices,
                                  ConflictOfEditLists, ConflictOfTargets}) {
        if (const QString message = conflictOf(options); !message.isEmpty()) {
            return message;
        }
    }
    return {};
}
