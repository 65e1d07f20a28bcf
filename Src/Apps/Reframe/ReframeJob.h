#pragma once

#include "KxCancelToken.h"
#include "KxMediaItem.h"
#include "KxOutputFile.h"
#include "KxRenderJob.h"
#include "KxResult.h"
#include "ReframeOptions.h"

#include "KrAutoReframeProcess.h"

#include <QJsonObject>

class ReframeReporter;

/// The whole way of one input: open, analyse (or take a track), write what was asked for. Main thread; it runs the
/// event loop while it waits.
class ReframeJob
{
public:
    ReframeJob(const QString& input, const ReframeOptions& options, ReframeReporter& reporter);
    ~ReframeJob();
    Q_DISABLE_COPY_MOVE(ReframeJob)

    /// Reports how it goes and how it ended; Cancelled when the person interrupted it.
    KxOutcome Run();

private:
    /// Nothing when the step is done, else how the job ended (already reported).
    using Ended = std::optional<KxOutcome>;

    Ended Open();
    Ended FindCrops();
    Ended StartAnalysis();
    Ended StartApplying();
    Ended WaitForCrops();
    Ended WriteKeyframes();
    Ended WritePreview();
    Ended WriteVideo();
    KxRenderResult Render(const KxRenderSource& source, const KxRenderSettings& settings);

    KrAutoReframeHelper& Helper() const;
    KxOutcome Fail(const QString& sentence);
    /// Where to write: `named` itself, or a file called after the input in the folder `named`, or beside the input when
    /// `named` is empty.
    QString TargetPath(const QString& named, const QString& suffix) const;
    KxOutputFile::Existing WhenItExists() const;

    const QString m_input;
    const ReframeOptions& m_options;
    ReframeReporter& m_reporter;
    QSize m_aspect;
    std::unique_ptr<KxMediaItem> m_media;
    std::unique_ptr<KrAutoReframeProcess> m_process;
    QJsonObject m_facts;
    QStringList m_written;
};
