#pragma once

#include <KxCore/KxFrameRange.h>

#include <QSize>
#include <QString>

#include <optional>

struct ReframeOptions;

/// What one job makes of an input.
struct ReframeTask {
    QString input;
    QSize aspect;
    std::optional<KxFrameRange> frames; ///< a part of the input; nothing: all of it
    bool makesPictures = false;         ///< those for an analysis, instead of results
};

/// Tells which run made a file: all that has an influence on the results, as a text that is stored in them.
class RunText
{
public:
    /// Reads the input and the files of --apply and --choices.
    RunText(const ReframeTask& task, const ReframeOptions& options);

    /// Of what the task makes.
    const QString& OfTask() const { return m_ofTask; }
    /// Of results of the whole video.
    const QString& OfResults() const { return m_ofResults; }
    /// Of the pictures for the analysis, which depend on no setting.
    const QString& OfPictures() const { return m_ofPictures; }

    /// The text that is stored in a file; empty if there is none.
    static QString StoredIn(const QString& path);
    /// Whether a file stores the text of a run with this input, whatever the settings were.
    bool IsOfThisInput(const QString& path) const;

private:
    QString m_contentHash; ///< of the input; empty if it cannot be read
    QString m_ofResults;
    QString m_ofPictures;
    QString m_ofTask;
};
