#pragma once

#include <Apps/Reframe/ReframeOptions.h>
#include <Apps/Reframe/RunText.h>
#include <KxCore/KxOutputFile.h>

#include <QStringList>

/// The files that a job writes: their names, and whether those that are there may be replaced.
class ReframeTargets
{
public:
    /// `written` are the full paths of all files of this program run so far: it never replaces its own output.
    ReframeTargets(ReframeTask task, const ReframeOptions& options, const QStringList& written);
    Q_DISABLE_COPY_MOVE(ReframeTargets)

    QString Video() const { return Path(m_options.output, QStringLiteral("mp4")); }
    QString Pictures() const { return Path(m_options.output, QStringLiteral("pictures")); }
    QString Keyframes() const { return Path(m_options.keyframes, QStringLiteral("json")); }
    QString Report() const { return Path(m_options.report, QStringLiteral("html")); }
    QString Preview() const { return Path(m_options.preview, QStringLiteral("png")); }
    QString Choices() const { return KxOutputFile::NumberedPath(m_options.saveChoices, m_number); }
    /// `named` is a value of --edit-list.
    QString EditList(const QString& named) const;
    /// All files that are asked for.
    QStringList All() const;

    const RunText& Run() const { return m_run; }
    /// Whether all of them are there as this run would make them. False if there are none, or if none stores its run.
    bool AreUpToDate() const;
    KxOutputFile::Existing WhenItExists(const QString& path) const;
    bool WouldReplaceInput(const QString& path) const;

    /// Gives the files of a run a common time of last change, by which --if-needed recognises those that store no run.
    static void MarkAsOneRun(const QStringList& files);

private:
    /// The file `named` itself; if that is a folder, a file in it that is named after the input; if it is empty, such a
    /// file beside the input.
    QString Path(const QString& named, const QString& suffix) const;
    /// With --if-needed: the number of this input's results where others have the same names, otherwise the first
    /// for which there are no files.
    void FindNumber();
    /// Whether --if-needed may replace it: it is a result of this input, or stores no run and is marked as one of the
    /// files of such a result.
    bool IsOfAnEarlierRun(const QString& path) const;

    const ReframeTask m_task;
    const ReframeOptions& m_options;
    const QStringList& m_written;
    const RunText m_run;
    int m_number = 1; ///< of the names, as KxOutputFile counts
};
