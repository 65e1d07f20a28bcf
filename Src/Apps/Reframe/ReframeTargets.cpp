#include <Apps/Reframe/ReframeTargets.h>

#include <KxCore/KxSystemFile.h>
#include <KxEditList/KxEditList.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

ReframeTargets::ReframeTargets(ReframeTask task, const ReframeOptions& options, const QStringList& written)
    : m_task(std::move(task))
    , m_options(options)
    , m_written(written)
    , m_run(m_task, options)
{
    if (m_options.farm.ifNeeded) {
        FindNumber();
    }
}

QString ReframeTargets::Path(const QString& named, const QString& suffix) const
{
    if (!named.isEmpty() && !QFileInfo(named).isDir()) {
        return KxOutputFile::NumberedPath(named, m_number);
    }
    const QFileInfo input(m_task.input);
    QString name = input.completeBaseName() + QStringLiteral("-AutoReframe");
    if (!m_task.makesPictures) {
        name += QStringLiteral("-%1 %2").arg(QString::number(m_task.aspect.width()),
                                             QString::number(m_task.aspect.height()));
    }
    if (m_task.frames) {
        name += QStringLiteral(" %1-%2").arg(QString::number(m_task.frames->first),
                                             QString::number(m_task.frames->end - 1));
    }
    name += QLatin1Char('.') + suffix;
    return KxOutputFile::NumberedPath(QDir(named.isEmpty() ? input.absolutePath() : named).filePath(name), m_number);
}

QString ReframeTargets::EditList(const QString& named) const
{
    // Nothing but a suffix: named like the video, and in its folder if there is one.
    if (KxEditList::Suffixes().contains(named.toLower())) {
        return Path(QFileInfo(m_options.output).isDir() ? m_options.output : QString(), named.toLower());
    }
    return KxOutputFile::NumberedPath(named, m_number);
}

QStringList ReframeTargets::All() const
{
    if (m_task.makesPictures) {
        return {Pictures()};
    }
    QStringList targets;
    if (!m_options.saveChoices.isEmpty()) {
        targets += Choices();
    }
    if (!m_options.keyframes.isEmpty()) {
        targets += Keyframes();
    }
    for (const QString& editList : m_options.editLists) {
        targets += EditList(editList);
    }
    if (!m_options.report.isEmpty()) {
        targets += Report();
    }
    if (!m_options.preview.isEmpty()) {
        targets += Preview();
    }
    if (m_options.writesVideo) {
        targets += Video();
    }
    return targets;
}

void ReframeTargets::FindNumber()
{
    const auto exists = [](const QString& target) { return QFileInfo::exists(target); };
    QStringList targets = All();
    while (std::any_of(targets.begin(), targets.end(), exists)) {
        if (std::any_of(targets.begin(), targets.end(),
                        [this](const QString& path) { return m_run.IsOfThisInput(path); })) {
            return;
        }
        ++m_number;
        targets = All();
    }
}

bool ReframeTargets::AreUpToDate() const
{
    // Files that store no run are written before those that do: they are those of the run that wrote these.
    bool storesRun = false;
    const QStringList targets = All();
    for (const QString& target : targets) {
        const QString text = RunText::StoredIn(target);
        if (!QFileInfo(target).isFile() || (!text.isEmpty() && text != m_run.OfTask())) {
            return false;
        }
        storesRun = storesRun || !text.isEmpty();
    }
    return storesRun;
}

bool ReframeTargets::IsOfAnEarlierRun(const QString& path) const
{
    if (!m_options.farm.ifNeeded) {
        return false;
    }
    if (!RunText::StoredIn(path).isEmpty()) {
        return m_run.IsOfThisInput(path);
    }
    // Marked with the results of its run; what somebody changed since, or made, has another time.
    const QDateTime written = QFileInfo(path).lastModified();
    const QStringList targets = All();
    return std::any_of(targets.begin(), targets.end(), [this, &written](const QString& target) {
        return QFileInfo(target).lastModified() == written && m_run.IsOfThisInput(target);
    });
}

void ReframeTargets::MarkAsOneRun(const QStringList& files)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    for (const QString& path : files) {
        QFile file(path);
        if (file.open(QIODevice::ReadWrite)) {
            file.setFileTime(now, QFileDevice::FileModificationTime);
        }
    }
}

KxOutputFile::Existing ReframeTargets::WhenItExists(const QString& path) const
{
    const bool isOfThisRun = m_written.contains(QFileInfo(path).absoluteFilePath());
    return !isOfThisRun && (m_options.overwrites || IsOfAnEarlierRun(path)) ? KxOutputFile::Existing::Replace
                                                                            : KxOutputFile::Existing::AddNumber;
}

bool ReframeTargets::WouldReplaceInput(const QString& path) const
{
    const QString target = KxSystemFile::Identity(path);
    const QStringList inputs = m_options.inputs + m_options.parts;
    return WhenItExists(path) == KxOutputFile::Existing::Replace && QFileInfo::exists(path) &&
           std::any_of(inputs.begin(), inputs.end(),
                       [&target](const QString& input) { return KxSystemFile::Identity(input) == target; });
}
