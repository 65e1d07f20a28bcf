#include <Apps/Reframe/ReframeJob.h>

#include <KxCore/KxInterrupt.h>
#include <KxMedia/Read/KxFileComment.h>
#include <KxModel/KxPicturesFile.h>
#include <KxModel/KxRecordStore.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ReframeJobNeed)
};

} // namespace

QString ReframeJob::RunText() const
{
    const QString text = WritesPictures() ? RunTextOfPictures() : RunTextOfResult();
    return m_frames ? ReframeParts::MadeBy(text, *m_frames) : text;
}

QString ReframeJob::RunTextOfPictures() const
{
    return QStringLiteral("reframe %1 pictures input=%2")
        .arg(QStringLiteral(KR_VERSION), QString::fromLatin1(m_contentHash));
}

QString ReframeJob::RunTextOfResult() const
{
    return QStringLiteral("%1%2 aspect=%3:%4 input=%5")
        .arg(QString::fromUtf8(m_options.farm.settings), m_decisions, QString::number(m_aspect.width()),
             QString::number(m_aspect.height()), QString::fromLatin1(m_contentHash));
}

QString ReframeJob::RunTextOf(const QString& path) const
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("json")) {
        return CropTrackFile::MadeBy(path);
    }
    if (suffix == QLatin1String("pictures")) {
        const std::optional<KxPicturesFile::Facts> facts = KxPicturesFile::Read(path);
        return facts ? facts->madeBy : QString();
    }
    const bool isVideo = suffix == QLatin1String("mp4") || suffix == QLatin1String("m4v");
    return isVideo && QFileInfo(path).isFile() ? KxFileComment(path, KxInterrupt::Token()) : QString();
}

bool ReframeJob::IsOfThisInput(const QString& path) const
{
    return !m_contentHash.isEmpty() && RunTextOf(path).endsWith(QString::fromLatin1(m_contentHash));
}

bool ReframeJob::IsOfAnEarlierRun(const QString& path) const
{
    if (!m_options.farm.ifNeeded) {
        return false;
    }
    if (!RunTextOf(path).isEmpty()) {
        return IsOfThisInput(path);
    }
    // Written before the result that stores the run: what is newer was changed by somebody since.
    const QDateTime written = QFileInfo(path).lastModified();
    const QStringList targets = Targets();
    return std::any_of(targets.begin(), targets.end(), [this, &written](const QString& target) {
        return QFileInfo(target).lastModified() >= written && IsOfThisInput(target);
    });
}

void ReframeJob::FindNumber()
{
    if (!m_options.farm.ifNeeded) {
        return;
    }
    const auto exists = [](const QString& target) { return QFileInfo::exists(target); };
    QStringList targets = Targets();
    while (std::any_of(targets.begin(), targets.end(), exists)) {
        if (std::any_of(targets.begin(), targets.end(), [this](const QString& path) { return IsOfThisInput(path); })) {
            return;
        }
        ++m_number;
        targets = Targets();
    }
    m_number = 1;
}

ReframeJob::Ended ReframeJob::SkipIfDone()
{
    m_contentHash = KxRecordStore::ContentHash(m_input);
    if (!m_options.apply.isEmpty()) {
        m_decisions += QStringLiteral(" apply=") + QString::fromLatin1(FarmOptions::ContentHash(m_options.apply));
    }
    if (!m_options.choices.isEmpty()) {
        m_decisions += QStringLiteral(" choices=") + QString::fromLatin1(FarmOptions::ContentHash(m_options.choices));
    }
    FindNumber();
    const QStringList targets = Targets();
    if (!m_options.farm.ifNeeded || targets.isEmpty()) {
        return std::nullopt;
    }
    // Files that carry no settings are written before those that do: they are those of the run that wrote these.
    int carriers = 0;
    for (const QString& target : targets) {
        const QString text = RunTextOf(target);
        carriers += text.isEmpty() ? 0 : 1;
        if (!QFileInfo(target).isFile() || (!text.isEmpty() && text != RunText())) {
            return std::nullopt;
        }
    }
    if (carriers == 0) {
        return std::nullopt;
    }
    for (const QString& target : targets) {
        m_allWritten += QFileInfo(target).absoluteFilePath();
    }
    m_reporter.Skip(m_input, Texts::tr("%1: skipped, up to date: %2").arg(m_input, targets.join(QStringLiteral(", "))),
                    {{QStringLiteral("files"), QJsonArray::fromStringList(targets)}});
    return KxOutcome::Done;
}
