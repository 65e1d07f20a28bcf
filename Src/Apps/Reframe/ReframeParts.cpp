#include <Apps/Reframe/ReframeParts.h>

#include <KxCore/KxInterrupt.h>
#include <KxMedia/Read/KxFileComment.h>
#include <KxModel/KxPicturesFile.h>

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <vector>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ReframeParts)
};

struct Part {
    QString path;
    KxFrameRange frames;
    QString madeBy; ///< without the frames
    bool isOfPictures = false;
};

/// In front of it, the text of a part has its frames.
QString InputMark()
{
    return QStringLiteral(" input=");
}

QString InputOf(const QString& madeBy)
{
    return madeBy.mid(madeBy.lastIndexOf(InputMark()));
}

std::optional<Part> Read(const QString& path)
{
    const std::optional<KxPicturesFile::Facts> pictures = KxPicturesFile::Read(path);
    const QString text = pictures ? pictures->madeBy : KxFileComment(path, KxInterrupt::Token());
    static const QRegularExpression form(QStringLiteral(" frames=(\\d{1,9})-(\\d{1,9})(?= input=)"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    QString madeBy = text;
    madeBy.remove(match.capturedStart(), match.capturedLength());
    return Part{
        path, {match.captured(1).toLongLong(), match.captured(2).toLongLong() + 1}, madeBy, pictures.has_value()};
}

/// The message about a part that is not of this video, these settings or this version.
KxError StrangerMessage(const Part& part, const ReframeParts::Whole& whole)
{
    const QString& expected = part.isOfPictures ? whole.madeOfPictures : whole.madeOfVideo;
    if (InputOf(part.madeBy) != InputOf(expected)) {
        return Texts::tr("Cannot join %1: it is a part of another video than %2.").arg(part.path, whole.input);
    }
    if (part.madeBy != expected) {
        return Texts::tr("Cannot join %1: it was made with other settings or by another version (\"%2\"; now \"%3\").")
            .arg(part.path, part.madeBy, expected);
    }
    return std::nullopt;
}

/// The message about frames that are there twice or not at all.
KxError CoverageMessage(const std::vector<Part>& parts, const ReframeParts::Whole& whole)
{
    qint64 end = 0;
    const Part* before = nullptr;
    const auto missing = [&whole](qint64 first, qint64 afterLast) {
        return Texts::tr("Cannot join the parts of %1: the frames %2 to %3 are missing.")
            .arg(whole.input, QString::number(first), QString::number(afterLast - 1));
    };
    for (const Part& part : parts) {
        if (part.frames.first > end) {
            return missing(end, part.frames.first);
        }
        if (part.frames.first < end) {
            return Texts::tr("Cannot join %1 and %2: both have the frames %3 to %4.")
                .arg(before->path, part.path, QString::number(part.frames.first),
                     QString::number(std::min(end, part.frames.end) - 1));
        }
        end = part.frames.end;
        before = &part;
    }
    return end < whole.frameCount ? KxError(missing(end, whole.frameCount)) : std::nullopt;
}

} // namespace

QString ReframeParts::MadeBy(const QString& whole, const KxFrameRange& frames)
{
    QString text = whole;
    return text.insert(
        text.lastIndexOf(InputMark()),
        QStringLiteral(" frames=%1-%2").arg(QString::number(frames.first), QString::number(frames.end - 1)));
}

KxResult<ReframeParts> ReframeParts::Check(const QStringList& paths, const Whole& whole)
{
    using Checked = KxResult<ReframeParts>;
    std::vector<Part> parts;
    for (const QString& path : paths) {
        const std::optional<Part> part = Read(path);
        if (!part) {
            return Checked::Failure(Texts::tr("Cannot join %1: it is no part that --frames wrote.").arg(path));
        }
        if (!parts.empty() && parts.front().isOfPictures != part->isOfPictures) {
            return Checked::Failure(Texts::tr("Cannot join %1 and %2: only one of them holds pictures of the analysis.")
                                        .arg(parts.front().path, path));
        }
        parts.push_back(*part);
    }
    for (const Part& part : parts) {
        if (const KxError message = StrangerMessage(part, whole)) {
            return Checked::Failure(*message);
        }
    }
    std::sort(parts.begin(), parts.end(), [](const Part& a, const Part& b) { return a.frames.first < b.frames.first; });
    if (const KxError message = CoverageMessage(parts, whole)) {
        return Checked::Failure(*message);
    }
    ReframeParts checked;
    checked.arePictures = parts.front().isOfPictures;
    for (const Part& part : parts) {
        checked.paths += part.path;
    }
    return checked;
}
